#pragma once

#include <cstddef>
#include <iterator>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>

namespace tolvi {

/// Chance that is the same on every platform.
class TRandom final {
 public:
  explicit TRandom(unsigned seed) : FEngine(seed) {}
  std::size_t Below(std::size_t count) { return FEngine() % count; }
  /// From `first` to `last`.
  std::size_t Between(std::size_t first, std::size_t last) { return first + Below(last - first + 1); }
  bool Chance(unsigned percent) { return Below(100) < percent; }
  template <typename TList>
  decltype(auto) Of(const TList& list) {
    return list[Below(std::size(list))];
  }

 private:
  std::mt19937 FEngine;
};

/// Makes models of up to eight tables, all of them linked: names that need quotes, tables under two aliases, links of
/// one or two pairs of columns, computed fields, operators of its own, predefined conditions.
///
/// No two fields and no predefined condition and operator write the same SQL: which of them a statement means could not
/// be told.
class TModelMaker final {
 public:
  explicit TModelMaker(TRandom& random) : FRandom(random) {}

  std::unique_ptr<TJDBStructure> Make() {
    FModel = std::make_unique<TJDBStructure>();
    SetFormats();
    AddOperators();
    const std::size_t tableCount = FRandom.Between(1, 8);
    for (std::size_t i = 0; i < tableCount; ++i) AddTable();
    for (std::size_t i = 1; i < tableCount; ++i) AddLink(FRandom.Below(i), i);
    if (tableCount > 2 && FRandom.Chance(30)) AddLink(FRandom.Below(tableCount), FRandom.Below(tableCount));
    AddVirtualFields();
    AddConditions();
    if (FRandom.Chance(15)) FModel->SetDefaultMainTable(FModel->GetTable(FRandom.Below(tableCount)).GetTableAlias());
    return std::move(FModel);
  }

 private:
  void SetFormats() {
    TSQLFormats& formats = FModel->SQLFormats();
    if (FRandom.Chance(20)) {
      formats.SetQuoteSymbol1('[');
      formats.SetQuoteSymbol2(']');
    } else if (FRandom.Chance(20)) {
      formats.SetQuoteSymbol1('`');
      formats.SetQuoteSymbol2('`');
    }
    formats.SetQuoteBool(FRandom.Chance(50));
    if (FRandom.Chance(30)) {
      formats.SetTrueValue(formats.GetQuoteBool() ? "T" : "1");
      formats.SetFalseValue(formats.GetQuoteBool() ? "F" : "0");
    }
    formats.SetUseAsInFrom(FRandom.Chance(50));
    formats.SetUseOuterKeyword(FRandom.Chance(50));
    if (FRandom.Chance(10)) formats.SetWildcardChar('*');
  }

  void AddOperators() {
    struct TSampleOperator {
      std::string_view Name, SQL;
      TFieldTypes Types;
      TFieldType ExprType = ftUnknown;
    };
    static constexpr TSampleOperator Own[] = {{"EqualAnyCase", "@f = '@1'", TextFieldTypes},
                                              {"ContainsAnyCase", "@f like '%@1%'", TextFieldTypes},
                                              {"EndsWith", "@f like '%@1'", TextFieldTypes},
                                              {"InYear", "extract(year from @f) = @1", {ftDate}, ftInteger},
                                              {"InQuery", "@f in (@1)", NullableFieldTypes},
                                              {"NotInQuery", "@f not in (@1)", NullableFieldTypes},
                                              {"IsNotNull", "@f is not null", NullableFieldTypes}};
    if (FRandom.Chance(20)) FModel->SetExOperators({xoInList, xoBetween});
    for (const TSampleOperator& own : Own) {
      const std::size_t index = FModel->AddOperator(own.Name, own.Name, own.SQL, "", own.Types);
      TDSOperator& op = FModel->GetOperator(index);
      op.SetExprType(own.ExprType);
      op.SetCaseInsensative(own.Name.ends_with("AnyCase"));
      if (own.Name.ends_with("InQuery")) op.SetValueKind(vkSubQuery);
      if (FRandom.Chance(30)) FModel->MoveOperator(index, FRandom.Below(index));
    }
  }

  void AddTable() {
    static constexpr std::string_view Names[] = {"Customers", "Orders", "Order Details", "Länder", "a",
                                                 "group",     "Склад",  "Products",      "5 per %"};
    const std::string_view name = FRandom.Of(Names);
    const bool isSecond = FModel->TableByName(tnName, name) != nullptr;
    TDSTable& table = FModel->GetTable(FModel->AddTable(name, name));
    table.SetQuoted(NeedsQuotes(name) || FRandom.Chance(20));
    // Aliases are never quoted.
    const bool isNoAlias = name.starts_with('5');
    if (isSecond || isNoAlias || FRandom.Chance(20)) table.SetTableAlias("T" + std::to_string(FModel->GetTableCount()));
    for (std::size_t count = FRandom.Between(2, 6); count > 0; --count) AddDataField(table);
  }

  void AddDataField(TDSTable& table) {
    static constexpr TFieldType Types[] = {ftString,    ftSmallint, ftInteger,   ftWord,       ftBoolean,
                                           ftFloat,     ftCurrency, ftBCD,       ftDate,       ftTime,
                                           ftDateTime,  ftAutoInc,  ftFixedChar, ftWideString, ftLargeint,
                                           ftTimeStamp, ftMemo,     ftString,    ftInteger};
    const std::string_view name = FRandom.Of(ColumnNames);
    if (FModel->FieldByName(fnSQLExpr, table.GetWhereExpr() + "." + std::string(name)) != nullptr) return;
    TDSField& field =
        FModel->GetField(FModel->AddField(jfkData, name, table.GetDisplayName() + " " + std::string(name), &table));
    field.SetQuoted(NeedsQuotes(name) || FRandom.Chance(10));
    Complete(field, FRandom.Of(Types));
  }

  static bool NeedsQuotes(std::string_view name) {
    return name == "order" || name == "group" || name.find_first_of(" \"") != std::string_view::npos;
  }

  static void Complete(TDSField& field, TFieldType type) {
    field.SetFieldType(type);
    field.AddAppliedOperators();
  }

  void AddLink(std::size_t table1, std::size_t table2) {
    static constexpr TDSLinkType Types[] = {ltInner, ltInner, ltInner, ltOuterLeft, ltOuterRight};
    if (table1 == table2) return;
    if (FRandom.Chance(50)) std::swap(table1, table2);
    auto link = std::make_unique<TDSLink>(FModel->GetTable(table1), FModel->GetTable(table2));
    bool quotes = FRandom.Chance(20);
    for (std::size_t pairs = FRandom.Chance(20) ? 2 : 1; pairs > 0; --pairs) {
      const std::string_view column1 = FRandom.Of(ColumnNames), column2 = FRandom.Of(ColumnNames);
      link->AddPair(column1, "=", column2);
      quotes = quotes || NeedsQuotes(column1) || NeedsQuotes(column2);
    }
    link->SetQuoteFields(quotes);
    link->SetLinkType(FRandom.Of(Types));
    FModel->AddLinkByRef(std::move(link));
  }

  /// A template with a column in place of each "#".
  std::string Filled(std::string_view pattern) {
    std::string sql;
    for (const char c : pattern) {
      sql += c == '#' ? FModel->GetField(FRandom.Below(FDataFields)).GetSQLExpr() : std::string(1, c);
    }
    return sql;
  }

  void AddVirtualFields() {
    static constexpr std::pair<std::string_view, TFieldType> Fields[] = {
        {"# * #", ftFloat},
        {"# + 1 - #", ftInteger},
        {"upper(#)", ftString},
        {"coalesce(#, 'it''s, \"-\"')", ftString},
        {"case when # > 0 and # is null then 'a' else 'b' end", ftString},
        {"sum(#)", ftInteger},
        {"max(#) - min( # )", ftFloat},
        {"count(distinct #)", ftInteger},
    };
    FDataFields = FModel->Fields().Count();
    for (std::size_t count = FRandom.Below(5); count > 0; --count) {
      const auto& [pattern, type] = FRandom.Of(Fields);
      const std::string sql = Filled(pattern);
      if (FModel->FieldByName(fnSQLExpr, sql) != nullptr) continue;
      TDSField& field =
          FModel->GetField(FModel->AddField(jfkVirtual, sql, "Virtual " + std::to_string(count), nullptr));
      field.SetIsAggregate(TJCustomDBStructure::CheckIfAggregate(sql));
      Complete(field, type);
    }
  }

  void AddConditions() {
    static constexpr std::pair<std::string_view, std::string_view> Conditions[] = {
        {"Odd", "mod(#, 2) = 1"},
        {"Smaller", "# + 0 < #"},
        {"One or the other", "(# + 1 < 5 or # || '' is null)"},
        {"At least @", "abs(#) >= @1"},
        {"From @ to @", "abs(#) between '@1' and '@2'"},
        {"Text like @", "trim(#) like '@1%'"},
    };
    static constexpr TFieldType Types[] = {ftInteger, ftFloat, ftString, ftDate};
    std::set<std::string> known;
    for (std::size_t count = FRandom.Below(4); count > 0; --count) {
      const auto& [format, pattern] = FRandom.Of(Conditions);
      const std::string sql = Filled(pattern);
      // A lone quote in a name is taken for the beginning of a literal.
      if (sql.find("x\"y") != std::string::npos || !known.insert(sql).second) continue;
      auto condition = std::make_unique<TDSCondition>(FModel.get());
      condition->SetDisplayFormat(format);
      condition->SetSQLExpr(sql);
      const TFieldType type = sql.find("like") != std::string::npos ? ftString : FRandom.Of(Types);
      for (TDSValue& value : condition->Values()) value.SetDataType(type);
      FModel->Conditions().Add(std::move(condition));
    }
  }

  static constexpr std::string_view ColumnNames[] = {"ID",    "Name",  "City",    "Order no", "größe", "Дата",
                                                     "order", "Value", "Total_2", "x\"y]z`",  "key"};

  TRandom& FRandom;
  std::unique_ptr<TJDBStructure> FModel;
  std::size_t FDataFields = 0;
};

}  // namespace tolvi
