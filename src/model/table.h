#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>

namespace tolvi {

class TDSLink;
class TJCustomDBStructure;

/// The place of a table's box in the structure designer, in pixels.
struct TDesignPositions {
  int Left = 0, Top = 0, Width = 0, Height = 0;
  bool operator==(const TDesignPositions&) const = default;
};

/// A table of the model. The model owns it; every setter tells the model, which fires `OnChange`.
class TOLVI_CORE_API TDSTable final {
 public:
  TDSTable() = default;
  TDSTable(const TDSTable&) = delete;
  TDSTable& operator=(const TDSTable&) = delete;

  /// The model that owns the table; null until it is added to one.
  TJCustomDBStructure* GetDBStruct() const { return FDBStruct; }

  /// The database (catalogue) that holds the table; may be empty.
  const std::string& GetDatabaseName() const { return FDatabaseName; }
  void SetDatabaseName(std::string_view name) { Set(FDatabaseName, name); }
  /// The name in the database.
  const std::string& GetTableName() const { return FTableName; }
  void SetTableName(std::string_view name) { Set(FTableName, name); }
  /// The name shown to users.
  const std::string& GetDisplayName() const { return FDisplayName; }
  void SetDisplayName(std::string_view name) { Set(FDisplayName, name); }
  /// The key of the table in the model. Setting replaces every blank by "_".
  const std::string& GetTableAlias() const { return FAlias; }
  void SetTableAlias(std::string_view alias);
  /// Hints written after the table in FROM ("WITH ..."); may be empty.
  const std::string& GetTableHints() const { return FTableHints; }
  void SetTableHints(std::string_view hints) { Set(FTableHints, hints); }
  /// Whether the name needs quoting.
  bool GetQuoted() const { return FQuoted; }
  void SetQuoted(bool quoted) { Set(FQuoted, quoted); }
  const TDesignPositions& GetDesignPositions() const { return FDesign; }
  void SetDesignPositions(const TDesignPositions& positions) { Set(FDesign, positions); }

  /// The links in which the table takes part, in the order in which they were added. A link of the table with itself
  /// stands here once. Adding and deleting here changes only this list, and with it the paths: use the model's
  /// operations for links. A link that is added must be one of the model's.
  void AddLinkRef(TDSLink& link);
  void DelLink(std::size_t index);
  TDSLink& GetLink(std::size_t index) const;
  std::size_t GetLinkCount() const { return FLinks.size(); }
  const std::vector<TDSLink*>& Links() const { return FLinks; }
  /// The first link whose other end is `table` (the same table for a link with itself); null when there is none.
  TDSLink* LinkByTable(const TDSTable& table) const;
  TDSLink* LinkByTableAlias(std::string_view alias) const;

  /// The table name behind the default owner and ".", where the model has one.
  std::string GetFullName() const;
  /// The database name, "." and the table name; without a database name the table name.
  std::string GetCompoundName() const;
  /// The table as an SQL name: quoted where needed and, in a model of several databases, qualified.
  std::string GetMainExpr() const;
  /// The table's entry in a FROM clause, with alias and hints.
  std::string GetFromExpr() const;
  /// How other clauses refer to the table: the alias when it is set and differs from the table name, else `MainExpr`.
  std::string GetWhereExpr() const;
  void AppendWhereExpr(std::string& out) const;

 private:
  friend class TJCustomDBStructure;
  friend class TPathFinder;
  void Modified();
  void LinksModified();
  template <typename T, typename V>
  void Set(T& property, const V& value) {
    if (property == value) return;
    property = value;
    Modified();
  }
  std::string GetFullSQLExpr(std::string_view name) const;
  void AppendMainExpr(std::string& out) const;

  TJCustomDBStructure* FDBStruct = nullptr;
  std::string FDatabaseName, FTableName, FDisplayName, FAlias, FTableHints;
  std::vector<TDSLink*> FLinks;
  TDesignPositions FDesign;
  bool FQuoted = false;
  // The number of the table in the path search's arrays.
  mutable std::uint32_t FPathNumber = 0;
};

/// A list of tables that belong to somebody else.
class TOLVI_CORE_API TSimpleDSTableList final {
 public:
  std::size_t Count() const { return FTables.size(); }
  bool Empty() const { return FTables.empty(); }
  /// An index outside the list raises `EListError`.
  TDSTable& operator[](std::size_t index) const;
  void Add(TDSTable& table) { FTables.push_back(&table); }
  /// Adds the table unless it is in the list.
  void AddOnce(TDSTable& table);
  void Erase(std::size_t index);
  void Remove(const TDSTable& table);
  void Clear() { FTables.clear(); }
  bool Contains(const TDSTable& table) const;
  /// The tables' names joined by commas.
  std::string GetCommaText() const;

  auto begin() const { return FTables.begin(); }
  auto end() const { return FTables.end(); }

 private:
  std::vector<TDSTable*> FTables;
};

}  // namespace tolvi
