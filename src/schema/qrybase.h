// The query store: named queries with a current one, and the views that are linked to it.
//
//   TMyQueryBase base;                           // a descendant that knows where the queries are kept
//   TJQPBaseLink link(panel);                    // a view takes part through a link
//   link.SetQueryBase(&base);
//   base.Open();                                 // reads the list; the first query comes into the panel
//   base.SetItemIndex(2);                        // the third one does
//   base.GetCurrentQuery()->Save();              // the panel's query goes to where the queries are kept
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/components.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/objectlist.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/foundation/text.h>

namespace tolvi {

class TJQueryBase;

/// The codes of `EJQueryBaseError`.
enum TQueryBaseErrorCode : std::int32_t {
  /// "Query base is not specified"
  qbeNoQueryBase = 1,
  /// "List index out of bounds (%d)"
  qbeWrongIndex = 2,
};

/// What has happened to the list of queries.
enum TQBOperation : std::uint8_t { qboListLoaded, qboListCleared, qboItemAdded, qboItemDeleted };

/// A named query. Descendants know where its text is kept.
class TOLVI_CORE_API TJQueryItem {
 public:
  TJQueryItem() = default;
  explicit TJQueryItem(std::string_view queryName, std::string_view description = {})
      : FQueryName(queryName), FDescription(description) {}
  TJQueryItem(const TJQueryItem&) = delete;
  TJQueryItem& operator=(const TJQueryItem&) = delete;
  virtual ~TJQueryItem();

  /// Reads the stored text into the lines, which are empty; stores the lines. Do nothing in the base.
  virtual void LoadContent(TStrings& strings);
  virtual void SaveContent(const TStrings& strings);

  /// Default empty. Setting another text (compared exactly) tells the links of the base of the first query that has
  /// this query's name then, ignoring case.
  const std::string& GetQueryName() const { return FQueryName; }
  void SetQueryName(std::string_view name);
  const std::string& GetDescription() const { return FDescription; }
  void SetDescription(std::string_view description);
  /// The base whose list holds this query; null before `AddItem`.
  TJQueryBase* GetQueryBase() const { return FQueryBase; }

  /// The same operations of the base, which see. Raise `EJQueryBaseError` "Query base is not specified" without one.
  bool TakeContent(TStrings& strings);
  bool GiveContent(TStrings& strings);
  /// Passes what `LoadContent` reads to `GiveContent`.
  void Load();
  /// Passes what `TakeContent` gives to `SaveContent`: no lines when no link answers.
  void Save();

 protected:
  /// Tells the base that name or description are others.
  void Changed();

 private:
  friend class TJQueryBase;
  struct TWatch;
  TJQueryBase& NeedQueryBase() const;

  std::string FQueryName, FDescription;
  TJQueryBase* FQueryBase = nullptr;
  // The flag of the innermost watch.
  bool* FDestroyed = nullptr;
};

/// How a view takes part in a query base: told of its changes, asked for the query that it shows. Detaches itself when
/// it is destroyed; when the base is destroyed, the link stays without one.
///
/// Its operations may destroy links, queries and the base, or change them; while one of them runs, it is not called
/// again.
class TOLVI_CORE_API TJQueryBaseLink {
 public:
  TJQueryBaseLink() = default;
  TJQueryBaseLink(const TJQueryBaseLink&) = delete;
  TJQueryBaseLink& operator=(const TJQueryBaseLink&) = delete;
  virtual ~TJQueryBaseLink();

  /// Name or description of a query have changed, or it has been added.
  virtual void QueryChanged(int index);
  /// Another query is the current one.
  virtual void QueryIndexChanged();
  /// `index` is that of the query added, that of the query deleted before it was, and -1 for the whole list. When the
  /// current query has been deleted, the base's `ItemIndex` is still that of the query.
  virtual void QueryListChanged(TQBOperation operation, int index);
  /// Replaces the lines by the text of the query shown; shows the query of that text. Return whether they did it; false
  /// in the base.
  virtual bool GetQueryContent(TStrings& strings);
  virtual bool PutQueryContent(const TStrings& strings);

  /// Null for none. A link that is attached is told after those that were before it.
  TJQueryBase* GetQueryBase() const { return FQueryBase; }
  void SetQueryBase(TJQueryBase* queryBase);

 private:
  friend class TJQueryBase;
  TJQueryBase* FQueryBase = nullptr;
};

using TQueryBaseEvent = std::function<void(TJQueryBase& sender)>;

/// A list of named queries with a current one, open or closed, as a small dataset. Descendants override `LoadQueries`,
/// `NewQuery` and `EraseQuery`; the base stores nothing.
///
/// 1. The base owns its queries, not its links. Links are told in the order in which they were attached.
/// 2. Handlers and links may do anything, even destroy the base. While a handler runs, its event is not fired again;
///    while an operation of a link runs, this operation of this link is not called again.
/// 3. What a handler of a `Before` event raises prevents the operation and reaches the caller. What links and handlers
///    of `After` events raise stops nothing: the operation is done to its end, then the first error reaches the caller.
class TOLVI_CORE_API TJQueryBase : public TComponent {
 public:
  ~TJQueryBase() override;
  std::string_view ClassName() const override { return "TJQueryBase"; }

  TQueryBaseEvent BeforeScroll;
  TQueryBaseEvent AfterScroll;
  TQueryBaseEvent BeforeOpen;
  TQueryBaseEvent AfterOpen;
  TQueryBaseEvent BeforeClose;
  TQueryBaseEvent AfterClose;

  /// Default false. Setting opens and closes.
  bool GetActive() const { return FActive; }
  void SetActive(bool active);
  /// `BeforeOpen`, the queries are loaded, links are told `qboListLoaded`, the base is active, the first query becomes
  /// the current one as by `SetItemIndex`, `AfterOpen`. Queries added before stay in front of those loaded. Does
  /// nothing when the base is active. `Close` meanwhile ends it.
  ///
  /// When `LoadQueries` raises, the queries that it has added are destroyed, the base stays closed and the error
  /// reaches the caller; only `BeforeOpen` has been fired, and no link has been told.
  void Open();
  /// `BeforeClose`, the base is no longer active, has no current query and no queries, links are told `qboListCleared`,
  /// `AfterClose`. No scroll events. The same on a base that is not active, for queries that were added to it.
  void Close();

  const TJObjectList<TJQueryItem>& Queries() const { return FQueries; }
  int Count() const { return static_cast<int>(FQueries.Count()); }
  /// Raises `EListError` for an index outside the list.
  TJQueryItem& GetQuery(int index) const;
  /// The first query of that name, ignoring case; -1 when there is none. Uses an index, built on first use.
  int IndexByName(std::string_view queryName) const;

  /// The number of the current query; -1 for none. Setting another one: `BeforeScroll`, links are told, `AfterScroll`.
  /// Raises `EJQueryBaseError` "List index out of bounds (%d)" for one outside the list, -1 too. Does nothing more when
  /// the handler of `BeforeScroll` has taken the query away.
  int GetItemIndex() const { return FItemIndex; }
  void SetItemIndex(int index);
  /// Null when `ItemIndex` is outside the list.
  TJQueryItem* GetCurrentQuery() const;

  /// Adds a query at the end and returns its index. Links are told `qboItemAdded`, then `QueryChanged`. The current
  /// query stays.
  int AddItem(std::unique_ptr<TJQueryItem> queryItem);
  /// Makes a query that is stored, too. Null in the base.
  virtual TJQueryItem* NewQuery();
  /// Destroys a query; links are told `qboItemDeleted`. `ItemIndex` does not follow queries that move up, with one
  /// exception: when the current query goes and at most one is left behind it, the one before it becomes the current
  /// one as by `SetItemIndex`; without one before it there is none, and no event. So the query that follows a deleted
  /// one becomes the current one in silence. Raises `EJQueryBaseError` "List index out of bounds (%d)".
  virtual void DeleteQuery(int index);
  /// `DeleteQuery`; descendants destroy the stored copy, too.
  virtual void EraseQuery(int index);
  /// Destroys all queries; there is no current one then. Tells nobody.
  void ClearQueries();

  /// The same as `link.SetQueryBase`; `DelLink` does nothing for a link of another base.
  void AddLink(TJQueryBaseLink& link);
  void DelLink(TJQueryBaseLink& link);
  /// Both ask the links for the query that they show, until one answers, and return whether one did. `GiveContent`
  /// hands nothing over: links fetch a query themselves when it becomes the current one.
  bool NeedContent(TStrings& strings);
  bool GiveContent(TStrings& strings);

  /// While this flag is set, links are told nothing, nor afterwards; events fire. Calls do not nest.
  void BeginUpdate() { FUpdating = true; }
  void EndUpdate() { FUpdating = false; }
  bool IsUpdating() const { return FUpdating; }
  /// Call this operation of all links.
  void QueryChanged(int index);
  void IndexChanged();
  void ListChanged(TQBOperation operation, int index);

 protected:
  /// Adds the stored queries by `AddItem`; links are not told of each. Does nothing in the base.
  virtual void LoadQueries();
  /// Says what number the current query has; -1 for none. Fires and tells nothing.
  void MoveItemIndex(int index) { FItemIndex = index; }
  /// Raises `EJQueryBaseError` "List index out of bounds (%d)" for an index outside the list.
  void CheckIndex(int index) const;

 private:
  friend class TJQueryItem;
  enum TCallKind : std::uint8_t;
  struct TCall;

  bool HasIndex(int index) const { return index >= 0 && index < Count(); }
  void LoadList();
  bool IsRunning(const void* receiver, TCallKind kind) const;
  void Fire(const TQueryBaseEvent& event);
  void CallLinks(TCallKind kind, const std::function<void(TJQueryBaseLink&)>& call);
  void TellLinks(TCallKind kind, const std::function<void(TJQueryBaseLink&)>& tell);

  TJObjectList<TJQueryItem> FQueries;
  // Views of the queries' names; empty until it is needed.
  mutable std::unordered_map<std::string_view, int, TFoldedHash, TFoldedEqual> FNames;
  // While calls run, a link that goes leaves a null.
  std::vector<TJQueryBaseLink*> FLinks;
  // The handlers and operations of links that are running, the innermost first.
  const TCall* FCalls = nullptr;
  int FItemIndex = -1;
  bool FActive = false, FUpdating = false, FOpening = false, FClosing = false;
};

}  // namespace tolvi
