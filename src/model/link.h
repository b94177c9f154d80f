#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

class TDSTable;
class TJCustomDBStructure;

/// How a link joins: both sides must match, or the rows of the left (first), right (second) or both tables are kept.
enum TDSLinkType : std::uint8_t { ltInner, ltOuterLeft, ltOuterRight, ltOuterFull };

/// "Inner", "Left", "Right" or "Full", as model texts write it.
TOLVI_CORE_API std::string_view LinkTypeToStr(TDSLinkType linkType);

/// How the join condition is written: for JOIN and comma style, or in the older notation with " (+)" on the columns of
/// the side whose rows may be missing.
enum TLinkExprMode : std::uint8_t { lemPlain = 1, lemOuterMarks = 2 };

/// Before an entry of a link's columns that is a constant.
inline constexpr std::string_view LinkConstantPrefix = "val:";
/// Whether an entry is a constant; the entry without its prefix.
TOLVI_CORE_API bool IsLinkConstant(std::string_view entry);
TOLVI_CORE_API std::string_view LinkEntryText(std::string_view entry);

/// A join between two tables: pairs of columns with a comparison each. The model owns it and both tables know it.
/// Every setter tells the model, which fires `OnChange`.
class TOLVI_CORE_API TDSLink final {
 public:
  TDSLink() = default;
  /// Both tables must outlive the link or be removed through the model.
  TDSLink(TDSTable& table1, TDSTable& table2) : FTable1(&table1), FTable2(&table2) {}
  TDSLink(const TDSLink&) = delete;
  TDSLink& operator=(const TDSLink&) = delete;

  TDSTable* GetTable1() const { return FTable1; }
  TDSTable* GetTable2() const { return FTable2; }
  /// For a link that is not yet in a model; for one that is, only to let its two tables change places.
  void SetTables(TDSTable& table1, TDSTable& table2);
  /// The other end as seen from `table`: the second table when `table` is the first, else the first.
  TDSTable* OtherTable(const TDSTable& table) const { return &table == FTable1 ? FTable2 : FTable1; }

  /// The columns of each side and the comparison symbols, index by index. An entry may begin with "fld:" (a column;
  /// the prefix is not written) or "val:" (a constant, written as it stands).
  const TStrings& GetFields1() const { return FFields1; }
  void SetFields1(const TStrings& fields);
  const TStrings& GetFields2() const { return FFields2; }
  void SetFields2(const TStrings& fields);
  const TStrings& GetOperators() const { return FOperators; }
  void SetOperators(const TStrings& symbols);
  /// Appends one column pair.
  void AddPair(std::string_view field1, std::string_view symbol, std::string_view field2);
  /// One "=" for every entry of the first side.
  void ApplyDefOperator();

  TDSLinkType GetLinkType() const { return FLinkType; }
  void SetLinkType(TDSLinkType linkType);
  /// Whether the columns are written in the model's quote symbols. Default false.
  bool GetQuoteFields() const { return FQuoteFields; }
  void SetQuoteFields(bool quote);

  /// Whether `table` is an end of the link; `leftJoin` becomes true when it is the first one.
  bool ContainsTableEx(const TDSTable& table, bool& leftJoin) const;
  bool ContainsTable(const TDSTable& table) const { return &table == FTable1 || &table == FTable2; }

  /// The join condition: "left symbol right" for each pair, joined by " and ". Mode `lemOuterMarks` raises
  /// `EJQueryPanelError` for a full outer link, which that notation cannot express; the message names both tables.
  std::string GetSQLExpr(TLinkExprMode mode = lemPlain) const;
  std::string GetOracleSQLExpr() const { return GetSQLExpr(lemOuterMarks); }
  /// "First table -> second table: condition" for people: the display names and the plain condition.
  std::string GetDisplayName() const;

 private:
  friend class TJCustomDBStructure;
  void Modified();

  TJCustomDBStructure* FDBStruct = nullptr;
  TDSTable* FTable1 = nullptr;
  TDSTable* FTable2 = nullptr;
  TStrings FFields1, FFields2, FOperators;
  TDSLinkType FLinkType = ltInner;
  bool FQuoteFields = false;
};

}  // namespace tolvi
