#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/sections.h>
#include <tolvi/query/resultfields.h>

namespace tolvi {
namespace {

template <typename TError = EJQueryPanelError, typename TCall>
std::string MessageOf(TCall call) {
  try {
    call();
  } catch (const TError& error) {
    return error.Message();
  }
  return "no error";
}

struct TResultFields : testing::Test {
  TDSField& Field(std::string_view name) { return FieldOf(*model, name); }
  TDSField& AddVirtual(std::string_view expr, std::string_view name) {
    return model->GetField(model->AddField(jfkVirtual, expr, name, nullptr));
  }
  TResultField& Add(std::string_view formula, const std::vector<std::string>& names) {
    TResultField& column = list.New();
    column.SetFormula(formula);
    for (const std::string& name : names) column.AddDSField(Field(name));
    return column;
  }
  std::string Aliases() {
    std::string aliases;
    list.RegenerateAliases();
    for (const TResultField& column : list) aliases += column.GetAlias() + "|";
    return aliases;
  }

  std::unique_ptr<TJDBStructure> model = OrdersModel();
  TRFieldList list{model.get()};
};

TEST_F(TResultFields, FormulasAreReplacedInIncreasingOrderOverPlainText) {
  AddVirtual("'@2'", "At two");
  AddVirtual("2 * 2", "Four");
  const struct {
    std::string_view formula;
    std::vector<std::string> fields;
    std::string_view sql;
  } cases[] = {
      {"@1", {"Orders.Total"}, "Orders.Total"},
      {"sum(@1) - @2 + @1",
       {"Orders.Total", "Customers.CustNo"},
       "sum(Orders.Total) - Customers.CustNo + Orders.Total"},
      {"@10 @1", {"Orders.Total"}, "Orders.Total0 Orders.Total"},
      {"@1 @3", {"Orders.Total"}, "Orders.Total @3"},
      {"@2", {"Orders.Total", "Customers.City"}, "@2"},
      {"@1", {"At two"}, "'@2'"},
      {"@1 @2", {"At two", "Customers.City"}, "'Customers.City' Customers.City"},
      {"@2 @1", {"Customers.City", "At two"}, "'@2' Customers.City"},
      {"@@1", {"Four", "Customers.City"}, "Customers.City * 2"},
      {"count(*)", {}, "count(*)"},
      {"", {"Orders.Total"}, ""},
  };
  for (const auto& [formula, fields, sql] : cases) {
    EXPECT_EQ(Add(formula, fields).GetSQLExpr(), sql) << formula;
  }
  TResultField& details = Add("@1", {"Order Details.Qty"});
  EXPECT_EQ(details.GetNormalSQLExpr(), "Order_Details.\"Qty\"");
  EXPECT_EQ(details.GetOrderName(), "Order_Details.Qty");
}

TEST_F(TResultFields, SelectNamesTheAliasUnlessItIsTheColumnsOwn) {
  const auto select = [this](std::string_view caption) {
    list[0].SetCaption(caption);
    list.RegenerateAliases();
    return list[0].GetSelectExpr();
  };
  EXPECT_EQ(list.GetCaption(), "*");
  list.Add(Field("Orders.SaleDate"));
  EXPECT_EQ(select("Sale date"), "Orders.SaleDate as Sale_date");
  EXPECT_EQ(select("SALEDATE"), "Orders.SaleDate");
  list[0].SetFormula("max(@1)");
  EXPECT_EQ(select("SaleDate"), "max(Orders.SaleDate) as SaleDate");
  list.SetQuoteAliases(true);
  EXPECT_EQ(select("Last \"sale\"; x"), "max(Orders.SaleDate) as \"Last \"\"sale\"\"; x\"");
  model->SQLFormats().SetQuoteSymbol1('[');
  model->SQLFormats().SetQuoteSymbol2(']');
  EXPECT_EQ(select("a]b"), "max(Orders.SaleDate) as [a]]b]");
  EXPECT_EQ(std::string() + list[0].GetQuoteSymbol(1) + list[0].GetQuoteSymbol(2), "[]");
  EXPECT_EQ(select(""), "max(Orders.SaleDate)");
  list.SetUseAliases(false);
  EXPECT_EQ(select("Last"), "max(Orders.SaleDate)");
  list.New();
  EXPECT_EQ(list.GetCaption(), "Last, ");
  list[0].SetCaption("");
  EXPECT_EQ(list.GetCaption(), "*") << "only empty captions";
}

TEST_F(TResultFields, UnquotedAliasesAreNamesWhateverTheCaptionHolds) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"First name", "First_name"},
      {"Total; drop table x--", "Total_drop_table_x"},
      {"a'b\"c`d]e\r\n", "abcde"},
      {"Größe Übersicht", "Größe_Übersicht"},
      {"2024 sales", "C2024_sales"},
      {"%", "C1"},
      {"x\xCA\xBC or\xEF\xBC\x9B 1", "x_or_1"},
      {"Цена \xE2\x82\xAC", "Цена_"},
      {"bad\xFF ü", "bad_"},
      {"", ""},
  };
  TResultField& column = list.New();
  for (const auto& [caption, alias] : cases) {
    column.SetCaption(caption);
    column.GenerateAlias();
    EXPECT_EQ(column.GetAlias(), alias) << caption;
  }
  list.SetAsciiAliases(true);
  column.SetCaption("Größe Łódź");
  EXPECT_EQ(Aliases(), "Groe_odz|");
  column.SetCaption("Цена");
  list.New().SetCaption("Überschuß");
  EXPECT_EQ(Aliases(), "C1|Uberschu|");
  list.SetQuoteAliases(true);
  EXPECT_EQ(Aliases(), "Цена|Überschuß|") << "the captions as they stand";
  list.ReplaceNonAsciiAliases();
  EXPECT_EQ(list[0].GetAlias() + list[1].GetAlias(), "C1C2");
}

TEST_F(TResultFields, CaptionsAndAliasesStayUnique) {
  for (int i = 0; i < 3; ++i) list.Add(Field("Orders.Total"));
  EXPECT_EQ(list.GetCaption(), "Total, Total 2, Total 3");
  list.New().SetCaption("TOTAL");
  EXPECT_EQ(list[3].GetCaption(), "TOTAL 4");
  list[1].SetCaption("Total");
  EXPECT_EQ(list[1].GetCaption(), "Total 2") << "its own one";
  list[0].SetCaption("Sum");
  list[1].SetCaption("total");
  EXPECT_EQ(list.GetCaption(), "Sum, total, Total 3, TOTAL 4") << "given up by the first";
  (void)list.Delete(2);
  list.Add(Field("Orders.Total"));
  EXPECT_EQ(list[3].GetCaption(), "Total 2") << "the smallest free number";
  EXPECT_FALSE(list.CheckUniqCaption("SUM"));
  EXPECT_TRUE(list.CheckUniqCaption("SUM", &list[0]));
  list[0].SetCaption("Total.");
  EXPECT_EQ(Aliases(), "Total|total_2|TOTAL_4|Total_2_2|") << "unlike captions may make one alias";
  EXPECT_EQ(list.GetUniqAlias("total"), "total_3");
  EXPECT_FALSE(list.CheckUniqAlias("TOTAL_2"));
}

TEST_F(TResultFields, AggregatesAreToldByFirstFieldOrFormula) {
  EXPECT_TRUE(Add("SUM(@1)", {"Orders.Total"}).GetAgregate());
  EXPECT_TRUE(Add("1 + avg( @1)", {"Orders.Total"}).GetAgregate());
  EXPECT_TRUE(Add("@1", {"Quantity sold"}).GetAgregate());
  EXPECT_FALSE(Add("@1 + @2", {"Orders.Total", "Quantity sold"}).GetAgregate());
  EXPECT_FALSE(Add("upper(@1) + summ", {"Customers.City"}).GetAgregate());
  EXPECT_FALSE(Add("group_concat(@1)", {"Customers.City"}).GetAgregate());
  EXPECT_TRUE(Add("LIST(@1)", {"Customers.City"}).GetAgregate()) << "by the model's function for lists";
  EXPECT_FALSE(Add("pricelist(@1) + price_list(@1)", {"Customers.City"}).GetAgregate());
  model->SQLFormats().SetListFunction("Group_Concat(@1)");
  EXPECT_TRUE(Add("1 + group_concat(@1, ';')", {"Customers.City"}).GetAgregate());
  EXPECT_FALSE(Add("list(@1)", {"Customers.City"}).GetAgregate());
}

TEST_F(TResultFields, ExpressionsNameFieldsInBraces) {
  // A second table of the same name: the full names of its fields are those of the first.
  TDSTable& again = model->GetTable(model->AddTable("Customers", "Payers"));
  again.SetTableAlias("Payers");
  model->AddField(jfkData, "City", "Payer's {city}", &again);
  AddVirtual("{fn now()}", "Now");
  const struct {
    std::string_view formula;
    std::vector<std::string> fields;
    std::string_view expression;
  } cases[] = {
      {"@1 + @2 * @1", {"Orders.Total", "Order Details.Qty"}, "{Orders.Total} + {Order Details.Qty} * {Orders.Total}"},
      {"@1", {"Item price"}, "{Order_Details.Qty * Products.Price}"},
      {"@1 || @2", {"Customers.City", "Payer's {city}"}, "{Customers.City} || {Payer's {city}}}"},
      {"{fn lcase(@1)}", {"Customers.City"}, "{{fn lcase({Customers.City})}"},
      {"@1", {"Now"}, "{ {fn now()}}}"},
  };
  for (const auto& [formula, fields, expression] : cases) {
    const TResultField& column = Add(formula, fields);
    EXPECT_EQ(column.GetExpression(), expression);
    const TResultField& again = list.AddByExpression(expression);
    EXPECT_EQ(again.GetFormula(), formula);
    EXPECT_EQ(again.DSFields(), column.DSFields()) << expression;
  }
  EXPECT_EQ(Add("{@1}", {"Orders.Total"}).GetExpression(), "{{{Orders.Total} }");
  EXPECT_EQ(list.AddByExpression("{orders.total} / {Quantity}").GetCaption(), "Total, Quantity 2");
}

TEST_F(TResultFields, BadExpressionsChangeNothing) {
  TResultField& column = list.AddByExpression("{Orders.Total}");
  std::string tenFields;
  for (std::size_t i = 0; i < 10; ++i) tenFields += "{" + model->GetField(i).GetFullName() + "}";
  const std::pair<std::string, std::string_view> cases[] = {
      {"1 + {Orders.Nothing}", "Unrecognized field \"Orders.Nothing\""},
      {"{}", "Unrecognized field \"\""},
      {"1 + {Orders.Total", "The expression \"1 + {Orders.Total\" has no \"}\" for the \"{\" in column 5"},
      {"{Orders.Total} || '%@1und1.de'",
       "The expression \"{Orders.Total} || '%@1und1.de'\" has \"@1\" in column 21: fields are written in braces"},
      {tenFields, "An expression can refer to 9 fields at most"},
  };
  for (const auto& [expression, message] : cases) {
    EXPECT_EQ(MessageOf([&, &expression = expression] { column.ProcessExpression(expression); }), message);
    EXPECT_EQ(MessageOf([&, &expression = expression] { list.AddByExpression(expression); }), message);
  }
  EXPECT_EQ(column.GetExpression(), "{Orders.Total}");
  EXPECT_EQ(list.Count(), 1U);
}

TEST_F(TResultFields, QualifiedNamesInSQLBecomeFields) {
  const struct {
    std::string_view sql, formula;
    std::vector<std::string> fields;
  } cases[] = {
      {"Orders.Total", "@1", {"Orders.Total"}},
      {"SUM ( orders . TOTAL ) / Order_Details.\"Qty\"", "SUM ( @1 ) / @2", {"Orders.Total", "Order Details.Qty"}},
      {"Orders.Total+Orders.Total", "@1+@1", {"Orders.Total"}},
      {"'Orders.Total' || Orders.Nothing || Total", "'Orders.Total' || Orders.Nothing || Total", {}},
      {"Orders.Total(1) + \"Order Details\".Qty", "Orders.Total(1) + @1", {"Order Details.Qty"}},
      {" sum(Order_Details.Qty) ", "@1", {"Quantity sold"}},
      {"count(*)", "count(*)", {}},
  };
  for (const auto& [sql, formula, names] : cases) {
    const TResultField& column = list.AddBySQLExpr(sql);
    EXPECT_EQ(column.GetFormula(), formula) << sql;
    ASSERT_EQ(column.DSFields().size(), names.size()) << sql;
    for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(column.DSFields()[i], &Field(names[i])) << sql;
  }
}

TEST_F(TResultFields, TakingAFieldOutRenumbersThePlaceholders) {
  TResultField& column = Add("@1 + @2 + @3 + @4", {"Orders.Total", "Orders.CustNo", "Customers.City"});
  column.DelDSField(1);
  EXPECT_EQ(column.GetFormula(), "@1 +  + @2 + @4");
  column.SetDSField(0, Field("Products.Price"));
  EXPECT_EQ(column.GetSQLExpr(), "Products.Price +  + Customers.City + @4");
  EXPECT_EQ(MessageOf<EListError>([&] { column.DelDSField(2); }), "List index out of bounds (2)");
}

constexpr std::string_view Stored =
    "[RFields]\r\nCount=2\r\nVersion=3.6\r\nJustSorting=1\r\n\r\n"
    "[RField1]\r\nFormula=@1 - @2\r\nFields=11,1\r\nAlias=Net_total\r\nCaption=Net "
    "total\r\nSorting=2\r\nSortOrder=1\r\n"
    "\r\n[RField2]\r\nFormula=@1@2\r\nFields=999,2\r\nAlias=\r\nCaption=Lost\r\nSorting=0\r\nSortOrder=0\r\n\r\n";

TStrings LinesOf(std::string_view text) {
  TStrings lines;
  lines.SetText(text);
  return lines;
}

TEST_F(TResultFields, StoredColumnsComeBackAsTheyWere) {
  list.LoadFromStrings(LinesOf(Stored));
  TStrings lines;
  list.SaveToStrings(lines);
  EXPECT_EQ(lines.GetText(), Stored);
  EXPECT_EQ(list.GetSortCount(), 1U);
  EXPECT_EQ(list[0].GetSQLExpr(), "Orders.Total - Customers.CustNo");
  EXPECT_EQ(list[1].DSFields()[0], &model->GetNullField());
  EXPECT_EQ(MessageOf([&] { (void)list[1].GetSQLExpr(); }), "Unrecognized field \"999\"");
  EXPECT_EQ(list[1].GetExpression(), "{999}{Customers.Company}");
  list[1].ProcessExpression("lower({999})");
  EXPECT_EQ(MessageOf([&] { (void)list[1].GetSelectExpr(); }), "Unrecognized field \"999\"");
  Field("Customers.City").SetID(999);
  list.ResolveFields();
  EXPECT_EQ(list[1].GetSQLExpr(), "lower(Customers.City)");
}

TEST_F(TResultFields, OldVersionsNameTheirFields) {
  const auto read = [this](std::string_view version, std::string_view fields) {
    const std::string text = "[RFields]\nCount=1\n" + std::string(version) +
                             "[RField1]\nFormula=@1\nFields=" + std::string(fields) +
                             "\nName=old\nAlias=new\nCaption=c\n";
    list.LoadFromStrings(LinesOf(text));
    TStrings lines;
    list.SaveToStrings(lines);
    return lines.Value("Fields") + " " + list[0].GetAlias();
  };
  EXPECT_EQ(read("Version=1.3\n", "Orders.CustNo"), "7 old") << "by column, else by full name";
  EXPECT_EQ(read("Version=1.3\n", "Orders.None"), "Orders.None old") << "kept as it stands";
  EXPECT_EQ(read("Version=1.3\n", "CustNo"), "1 old");
  EXPECT_EQ(read("Version=1.4\n", "Orders.CustNo"), "7 new");
  EXPECT_EQ(read("", "Order Details.PartNo,\"Price\""), "13,18 new");
  EXPECT_EQ(read("Version=1.9\n", "No, such"), "No,such new");
  EXPECT_EQ(read("Version=2.0\n", "Order Details.PartNo"), "Order,Details.PartNo new");
  EXPECT_EQ(read("Version=2.0\n", "\"Order Details.PartNo\""), "13 new") << "what an older text named";
}

TEST_F(TResultFields, ReadingTellsWhatIsMissingOrWrong) {
  const std::string text = "[RFields]\nCount=2000000000\n[RField1]\nFields=3,77\n[RField3]\nFields=x\n";
  TSectionedText sections(text, [](std::string_view) { return true; });
  std::string told;
  list.Read(sections, 3.6, [&told](std::string_view section, const std::string& message) {
    told.append(section).append(": ").append(message).append("\n");
  });
  EXPECT_EQ(told,
            "RField1: Unrecognized field \"77\"\nRFields: Can not find section RField2\n"
            "RField3: Unrecognized field \"x\"\n");
  EXPECT_EQ(list.Count(), 2U);
  const std::pair<std::string_view, std::string_view> errors[] = {
      {"[RFields]\nCount=x\n", "Line 2, section \"RFields\", key \"Count\": 'x' is not a valid integer value"},
      {"[RFields]\nCount=-1\n",
       "Line 2, section \"RFields\", key \"Count\": -1 is not in the range of 0 to 2147483647"},
      {"[RFields]\nCount=0\nVersion=new\n",
       "Line 3, section \"RFields\", key \"Version\": 'new' is not a valid floating point value"},
      {"[RFields]\nCount=1\n[RField1]\nSorting=3\n",
       "Line 4, section \"RField1\", key \"Sorting\": 3 is not in the range of 0 to 2"},
  };
  for (const auto& [bad, message] : errors) {
    EXPECT_EQ(MessageOf<EConvertError>([&, &bad = bad] { list.LoadFromStrings(LinesOf(bad)); }), message);
  }
  EXPECT_EQ(list.Count(), 2U) << "nothing is lost by a failure";
}

TEST_F(TResultFields, FieldsThatGoAreRememberedByTheirID) {
  TResultField& column = Add("@1 / @2", {"Orders.Total", "Products.Price"});
  list.FieldRemoved(Field("Products.Price"));
  EXPECT_EQ(MessageOf([&] { (void)column.GetSQLExpr(); }), "Unrecognized field \"18\"");
  list.SetDBStruct(nullptr);
  EXPECT_EQ(column.DSFields().size(), 2U);
  EXPECT_EQ(column.GetFormula(), "@1 / @2");
  const std::unique_ptr<TJDBStructure> other = OrdersModel();
  list.SetDBStruct(other.get());
  EXPECT_EQ(column.DSFields()[0], &FieldOf(*other, "Orders.Total"));
  EXPECT_EQ(column.GetSQLExpr(), "Orders.Total / Products.Price");
  TRFieldList copy(model.get());
  copy.Assign(list);
  EXPECT_EQ(copy[0].DSFields()[1], &Field("Products.Price")) << "the copy's own model";
}

TEST_F(TResultFields, ChangesAreToldOncePerOperation) {
  std::vector<std::uint64_t> told;
  list.OnChange = [&] {
    told.push_back(list.GetRevision());
    list.SetJustSorting(!list.GetJustSorting());
  };
  list.Add(Field("Orders.Total"));
  EXPECT_EQ(told.size(), 1U) << "a change made by the handler fires nothing";
  list.OnChange = [&] { told.push_back(list.GetRevision()); };
  list.BeginUpdate();
  list.Add(Field("Customers.City")).SetSorting(stAscending);
  list.Move(0, 1);
  list.EndUpdate();
  EXPECT_EQ(told.size(), 2U);
  list[0].SetSorting(stAscending);
  const std::uint64_t revision = list.GetRevision();
  list.GenerateNumbers();
  EXPECT_EQ(Aliases(), "City|Total|");
  EXPECT_EQ(list[1].GetNumber(), 2);
  EXPECT_EQ(list.GetRevision(), revision) << "derived texts are no change";
  EXPECT_EQ(MessageOf<EListError>([&] { list.Move(0, 2); }), "List index out of bounds (2)");
  auto doomed = std::make_unique<TRFieldList>(model.get());
  doomed->OnChange = [&doomed] { doomed.reset(); };
  doomed->New();
  EXPECT_EQ(doomed, nullptr);
}

TEST_F(TResultFields, ManyEqualCaptionsAreNumbered) {
  for (int i = 0; i < 20000; ++i) list.Add(Field("Orders.Total"));
  list.RegenerateAliases();
  EXPECT_EQ(list[19999].GetAlias(), "Total_20000");
}

}  // namespace
}  // namespace tolvi
