// Query bases that keep their queries somewhere: what is common to folders and databases.
//
//   TJFileQueryBase base;
//   base.SetFolder("queries");
//   base.Open();
//   base.AddQuery("Late orders", lines);
//   base.RenameQuery(base.IndexByName("Late orders"), "Late orders of 2025");
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/schema/qrybase.h>

namespace tolvi {

class TJStoredQueryBase;

/// A store cannot do what it was asked for: a name is taken or none at all, the place cannot be read or written.
/// Nothing was changed.
class TOLVI_CORE_API EQueryStoreError : public EException {
 public:
  using EException::EException;
};

/// A query in the store.
struct TQueryEntry {
  /// What the store finds the query by; stays when the query is renamed, unless the store knows it by its name alone.
  std::string Id;
  std::string Name, Description, Owner;
  /// "yyyy-mm-dd hh:mm:ss", UTC.
  std::string ChangedAt;
  /// Differs after each change of name, description or text.
  std::string Revision;

  bool operator==(const TQueryEntry&) const = default;
};

/// Another query of the store has that name, or would have the same file.
class TOLVI_CORE_API EQueryNameTakenError final : public EQueryStoreError {
 public:
  explicit EQueryNameTakenError(std::string_view name);
};

/// An entry with its text.
struct TQueryCopy {
  TQueryEntry Entry;
  std::string Text;
};

/// A query was written or erased by somebody else since it was read. Nothing was changed: the host shows both texts,
/// then stores one of them, or both:
///
///   catch (const EQueryConflictError& conflict) {
///     query.Accept(conflict);  // what is stored now has been seen: the next save replaces it
///   }
///
/// or stores the own text as another query, by `AddQuery`.
class TOLVI_CORE_API EQueryConflictError final : public EQueryStoreError {
 public:
  EQueryConflictError(std::string_view name, std::string ownText, std::optional<TQueryCopy> stored);

  /// The text that was to be stored; empty when there was none, in renaming, describing and erasing.
  const std::string& GetOwnText() const { return FOwnText; }
  /// What is stored now; nothing when the query has been erased.
  const std::optional<TQueryCopy>& GetStored() const { return FStored; }

 private:
  std::string FOwnText;
  std::optional<TQueryCopy> FStored;
};

/// A query of a `TJStoredQueryBase`. `SetQueryName` and `SetDescription` change the list alone; the next save stores
/// the name.
class TOLVI_CORE_API TJStoredQuery final : public TJQueryItem {
 public:
  /// The stored text, with the query's name in it. Raises `EQueryStoreError` when somebody has erased it.
  void LoadContent(TStrings& strings) override;
  /// Stores the text under the query's name; the description becomes that of the text. Raises `EQueryConflictError`
  /// when the stored query is another one than was last listed, read or written here, and `EQueryStoreError` when there
  /// are no lines: `Save` found no link that shows the query.
  void SaveContent(const TStrings& strings) override;

  /// What the store has told of the query.
  const TQueryEntry& Entry() const { return FEntry; }
  /// Whether `Refresh` has found it changed or erased by somebody else: a save would raise `EQueryConflictError`.
  bool IsChangedOutside() const { return FSeen != FEntry.Revision; }
  /// What the error tells of has been seen: the next save replaces it, or stores an erased query again.
  void Accept(const EQueryConflictError& conflict);

 private:
  friend class TJStoredQueryBase;
  explicit TJStoredQuery(const TQueryEntry& entry);

  TJStoredQueryBase& Store() const;
  // The entry as it was last seen here.
  TQueryEntry Seen() const;
  void TakeOver(const TQueryEntry& entry);

  // Without an ID once an erasure was accepted.
  TQueryEntry FEntry;
  std::string FSeen;
};

/// What `Refresh` has found, by name.
struct TStoreChanges {
  TStrings Added, Changed, Erased;
  bool operator==(const TStoreChanges&) const = default;
};

/// A query base whose queries are kept somewhere. All are `TJStoredQuery`s. `Open` lists them in the order of their
/// names; those that come later stand at the end.
///
/// 1. No two queries have the same name, ignoring case. A name is 1 to 200 characters, none of them a control
///    character, without blanks at its ends; `EQueryStoreError` says what is wrong with one, `EQueryNameTakenError`
///    that there is one.
/// 2. Every write is whole: after a crash the store holds the old query or the new one.
/// 3. A write raises `EQueryConflictError` instead of replacing what has not been seen.
/// 4. Other than in `TJQueryBase`, the current query stays the current one when one before it goes; and when it goes
///    itself, the one that becomes the current one does so as by `SetItemIndex`: what views show is what a save stores.
class TOLVI_CORE_API TJStoredQueryBase : public TJQueryBase {
 public:
  /// As `GetQuery`.
  TJStoredQuery& GetStoredQuery(int index) const;

  /// Store a query: an empty one called "New query" ("New query 2", ...); the text under that name. The text may be
  /// that of a query with another name. Links are told; the index is that of the query. Raise `EQueryStoreError` on a
  /// closed base.
  TJQueryItem* NewQuery() override;
  int AddQuery(std::string_view name, const TStrings& strings);
  /// Store the name, the description. Links are told as by `SetQueryName` and `SetDescription`.
  void RenameQuery(int index, std::string_view name);
  void DescribeQuery(int index, std::string_view description);
  /// Erases the stored query, too.
  void EraseQuery(int index) override;
  void DeleteQuery(int index) override;
  /// Takes over what is stored now: queries that have come, that have gone, that have another name or description.
  /// Links are told of each. Texts are not read; the current query stays in the list even when somebody has erased it,
  /// so that a view keeps what it shows. Does nothing on a closed base, nor while links are told of a deletion.
  TStoreChanges Refresh();

 protected:
  void LoadQueries() override;

  // Where the queries are kept. All raise `EQueryStoreError`, or an error of their means of storing, when the place
  // cannot be read or written. Texts are UTF-8 with LF for line ends; name and description stand in them, too.

  /// All queries, in any order.
  virtual std::vector<TQueryEntry> ReadEntries() = 0;
  /// Nothing when there is no query of this ID.
  virtual std::optional<TQueryCopy> ReadCopy(std::string_view id) = 0;
  /// Stores a new query. Raises `EQueryNameTakenError`.
  virtual TQueryEntry InsertCopy(std::string_view name, std::string_view description, std::string_view text) = 0;
  /// Stores these in place of the entry that was seen; nothing when the stored one has another revision or is gone.
  /// Raises `EQueryNameTakenError`.
  virtual std::optional<TQueryEntry> ReplaceCopy(const TQueryEntry& seen, std::string_view name,
                                                 std::string_view description, std::string_view text) = 0;
  /// Erases the entry that was seen; false when the stored one has another revision. One that is gone counts as erased.
  virtual bool EraseCopy(const TQueryEntry& seen) = 0;

 private:
  friend class TJStoredQuery;

  void CheckOpen() const;
  // The stored query, if it is the one that was seen; raises `EQueryConflictError` otherwise.
  TQueryCopy ReadSeen(const TJStoredQuery& query);
  void Replace(TJStoredQuery& query, std::string_view name, std::string_view description);
  int IndexByID(std::string_view id) const;
  // Makes the query that views show, once number `former`, the current one again; `reload`: they may have lost it.
  void Follow(const TJQueryItem* shown, int former, bool reload);

  // While a query is being deleted: whether a handler has deleted another one.
  bool* FHasInner = nullptr;
};

/// A name that no query of the base has, ignoring case: the first of `nameOf(1)`, `nameOf(2)`, ...; `nameOf` gives
/// another name for each number.
TOLVI_CORE_API std::string FreeQueryName(const TJQueryBase& base, const std::function<std::string(int number)>& nameOf);

}  // namespace tolvi
