#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/modeltext.h>

namespace tolvi {
namespace {

const std::filesystem::path Fixtures = std::filesystem::path(TOLVI_SOURCE_DIR) / "tests/model/fixtures";

TDSOperator& AddOperator(TJCustomDBStructure& model, std::string_view name, std::string_view expr, TFieldTypes types) {
  return model.GetOperator(model.AddOperator(name, name, expr, "", types));
}

TDSTable& AddTable(TJCustomDBStructure& model, std::string_view name, std::string_view alias) {
  TDSTable& table = model.GetTable(model.AddTable(name, name));
  table.SetTableAlias(alias);
  return table;
}

TDSLink& AddLink(TJCustomDBStructure& model, TDSTable& table1, TDSTable& table2, TDSLinkType type) {
  auto link = std::make_unique<TDSLink>(table1, table2);
  link->AddPair("Cust No", "=", "CustNo");
  link->AddPair("fld:Since", "<=", "val:'2000-01-01'");
  link->SetLinkType(type);
  return model.GetLink(model.AddLinkByRef(std::move(link)));
}

template <typename TEditor>
TEditor& AddEditedField(TJCustomDBStructure& model, TDSTable& table, std::string_view name, TDSEditType type) {
  TDSField& field = model.GetField(model.AddField(jfkData, name, name, &table));
  field.SetFieldType(ftString);
  field.AddAppliedOperators();
  field.SetEditType(type);
  return static_cast<TEditor&>(*field.GetValueEditor());
}

void FillEditors(TJCustomDBStructure& model, TDSTable& table) {
  auto& plain = AddEditedField<TDSTextEditor>(model, table, "Name", etEdit);
  plain.SetAutoLowerCase(true);
  plain.SetDefaultValue("two\r\nlines \\ and a backslash");
  auto& masked = AddEditedField<TDSTextEditor>(model, table, "Phone No", etEdit);
  masked.SetKind(tekMask);
  masked.SetValueType(ftFixedChar);
  masked.SetEditMask("!(999) 000-0000;1;_");
  masked.SetUseFormattedValue(true);
  auto& list = AddEditedField<TDSListEditor>(model, table, "Country", etList);
  list.Items() = {"The Netherlands", "Łódź, PL", ""};
  list.Values() = {"NL", "\"PL\"", "-"};
  AddEditedField<TDSCustomEditor>(model, table, "Photo", etCustom).Data() = {"width=100", ""};
  auto& sql = AddEditedField<TDSSQLEditor>(model, table, "City", etSQL);
  sql.SetSQL({"SELECT id, name", "FROM cities", "[FIELD:1.sql]", " [RootGroup]", "[id] = :country", ""});
  sql.SetSQLParams({"country=N, L"});
}

/// Everything that a model text can hold, with the characters that are hard to write.
void FillModel(TJCustomDBStructure& model) {
  model.ClearStructure();
  AddOperator(model, "Equal", "@f = '@1'", {ftString, ftInteger});
  TDSOperator& between = AddOperator(model, "Between, \"both\"", "@f between '@1' and '@2'", {});
  between.SetValFormat(" and ");
  between.SetExprType(ftTimeStamp);
  between.SetCaseInsensative(true);
  AddOperator(model, "Is one of", "@f in (@1)", {ftString}).SetValueKind(vkList);
  AddOperator(model, "InQuery", "@f in (@1)", {ftSingle}).SetValueKind(vkSubQuery);

  TDSTable& customers = AddTable(model, "Cust Omers", "cust");
  customers.SetDatabaseName("main");
  customers.SetTableHints("with (nolock)");
  customers.SetDesignPositions({-5, 20, 130, 140});
  TDSTable& orders = AddTable(model, "Orders", "a,\r\nb");
  TDSTable& lonely = AddTable(model, "Lonely", "lonely");
  lonely.SetDisplayName("");
  AddLink(model, customers, orders, ltOuterLeft).SetQuoteFields(true);
  AddLink(model, customers, orders, ltOuterFull);
  AddLink(model, customers, customers, ltOuterRight);
  AddLink(model, orders, customers, ltInner);

  FillEditors(model, customers);
  model.GetField(model.AddField(jfkData, "Blob", "Blob", nullptr)).SetUseInResult(false);
  TDSField& sum = model.GetField(model.AddField(jfkVirtual, "sum(lonely.Total)", "Total", nullptr));
  sum.SetIsAggregate(true);
  sum.SetUseInConditions(false);
  sum.AddOperator(model.GetOperator(1));
  sum.AddOperator(model.GetOperator(0));
  sum.SetID(70);

  TDSFieldGroup& totals = model.FieldGroups().AddGroup("Totals");
  model.FieldGroups().AddGroup("Empty = none");
  totals.Add(sum);
  totals.Add(model.GetField(0));

  auto condition = std::make_unique<TDSCondition>();
  condition->SetID(4);
  condition->SetDisplayFormat("since @ in @");
  condition->SetSQLExpr("lonely.Day > @1");
  condition->Values()[0].SetDataType(ftDate);
  condition->Values()[1].SetDataKind(vkList);
  auto editor = std::make_unique<TDSSQLEditor>(&model);
  editor->SetSQL({"SELECT 1", "FROM dual"});
  condition->Values()[1].SetValueEditor(std::move(editor));
  model.Conditions().Add(std::move(condition));

  model.SetDefaultMainTable("a,\r\nb");
  model.SetRootFieldsFirst(true);
  model.SetSpecInfo({"[Cond:1]", "owner=dbo"});
  model.SQLFormats().SetQuoteSymbol1('[');
  model.SQLFormats().SetLowerFunc("");
  model.SQLFormats().SetListFunction("");
  model.SQLFormats().SetQuotedTypes({ftString, ftGuid});
  model.DMOptions().SetMultiDB(true);
}

TEST(ModelText, WritesTheGoldenFileToTheByteAndReadsItBack) {
  TJDBInfo info;
  TJDBStructure model;
  FillModel(model);
  model.SetDatabaseInfo(&info);
  const std::string text = WriteModelText(model);
  // To take a reviewed change over: TOLVI_UPDATE_GOLDEN=1 test_model --gtest_filter='ModelText.*'
  if (std::getenv("TOLVI_UPDATE_GOLDEN") != nullptr) WriteFileAtomically(Fixtures / "golden.model", text);
  EXPECT_EQ(text, ReadFile(Fixtures / "golden.model"));

  TJDBStructure copy;
  copy.SetDatabaseInfo(&info);
  copy.SetStructString(text);
  EXPECT_EQ(WriteModelText(copy), text);
  EXPECT_EQ(copy.GetField(0).GetGroupName(), "Totals");
  ASSERT_EQ(copy.GetField(6).Tables().Count(), 1U);
  EXPECT_EQ(copy.GetField(6).Tables()[0].GetTableAlias(), "lonely");
  EXPECT_EQ(copy.GetTable(0).GetLinkCount(), 4U);
  EXPECT_EQ(copy.GetTable(1).GetTableAlias(), "a,\r\nb");
  const auto& sql = static_cast<const TDSSQLEditor&>(*copy.GetField(4).GetValueEditor());
  EXPECT_EQ(sql.GetSQL(),
            TStrings({"SELECT id, name", "FROM cities", "[FIELD:1.sql]", " [RootGroup]", "[id] = :country", ""}));
  const TDSCondition& condition = copy.Conditions()[0];
  EXPECT_EQ(condition.Values()[0].GetValueEditor(), nullptr);
  EXPECT_EQ(dynamic_cast<TDSSQLEditor&>(*condition.Values()[1].GetValueEditor()).GetSQL(),
            TStrings({"SELECT 1", "FROM dual"}));
  EXPECT_EQ(condition.Tables().GetCommaText(), "Lonely");

  model.SetDatabaseInfo(nullptr);
  EXPECT_EQ(WriteModelText(model).find("[DBSpecInfo]"), std::string::npos) << "stored for a database only";
}

TEST(ModelText, OfAnEmptyModelHoldsTheTwoSectionsThatAlwaysStand) {
  TJDBStructure model;
  model.ClearStructure();
  const std::string text =
      "[Main]\r\nVersion=3.6\r\nOperatCount=0\r\nTableCount=0\r\nFieldCount=0\r\nCondCount=0\r\nFieldGroups=0\r\n"
      "DefaultMainTable=\r\nRootFieldsFirst=0\r\n \r\n[RootGroup]\r\nFields=\r\n";
  EXPECT_EQ(WriteModelText(model), text);
  EXPECT_EQ(ReadModelText("[Main]\nVersion=2.5", model), 2.5) << "all that is required";
}

TEST(ModelText, AnotherModelTakesTheDefaultOperatorsAsTheyStandInTheText) {
  TJDBStructure model;
  TDSField& field = model.GetField(model.AddField(jfkVirtual, "1", "One", nullptr));
  model.MoveOperator(14, 0);
  field.AddAppliedOperators();
  TJDBStructure copy;
  model.AssignTo(copy);
  ASSERT_EQ(copy.GetOperatCount(), 15U);
  EXPECT_EQ(copy.GetField(0).GetOperatCount(), field.GetOperatCount());
  EXPECT_EQ(&copy.GetField(0).GetOperator(0), copy.OperatorByName("NotBetween")) << WriteModelText(copy);
  EXPECT_EQ(WriteModelText(copy), WriteModelText(model));
}

TEST(ModelText, ReadsExpressionsByTheFormatsOfTheText) {
  TJDBStructure model;
  model.SQLFormats().SetQuoteSymbol1('[');
  model.SQLFormats().SetQuoteSymbol2(']');
  model.DMOptions().SetDefaultDBOwner("dbo");
  model.AddTable("Order Lines", "Lines");
  model.AddField(jfkVirtual, "[dbo].[Order Lines].[Unit Price] * 2", "Twice", nullptr);
  ASSERT_EQ(model.GetField(0).Tables().Count(), 1U);
  TJDBStructure copy;
  copy.SetStructString(model.GetStructString());
  EXPECT_EQ(copy.GetField(0).Tables().Count(), 1U);
  EXPECT_EQ(copy.GetField(0).GetGroupByFields(), model.GetField(0).GetGroupByFields());
}

TEST(ModelText, KeepsFieldsOfATableWithoutAlias) {
  TJDBStructure model;
  model.AddTable("Orders", "Orders");
  model.GetTable(0).SetTableAlias("");
  model.AddField(jfkData, "ID", "ID", &model.GetTable(0));
  TJDBStructure copy;
  model.AssignTo(copy);
  EXPECT_EQ(copy.GetField(0).GetTable(), &copy.GetTable(0));
}

/// The model of the version files in a few words.
std::string Describe(const TJCustomDBStructure& model) {
  std::string text = XFloatToStr(model.GetVersion()) + (model.GetRootFieldsFirst() ? " root first" : "");
  for (const TDSOperator& op : model.Operators()) {
    text += "; " + op.GetName() + "/" + op.GetDisplayName() + "/" + std::string(ValueKindToStr(op.GetValueKind()));
  }
  for (const TDSField& field : model.Fields()) {
    text += "; " + field.GetDisplayName();
    for (const TDSOperator* op : field.Operators()) text += "," + op->GetName();
    if (!field.GetGroupName().empty()) text += " in " + field.GetGroupName();
  }
  for (const TDSCondition& condition : model.Conditions()) text += "; " + condition.GetSQLExpr();
  return text;
}

TEST(ModelText, EachVersionIsReadByItsOwnRules) {
  const std::string lists = "; Equal/is equal to/vkScalar; InList/InList/vkList; InQuery/InQuery/vkSubQuery";
  const std::string scalars = "; Equal/is equal to/vkScalar; InList/InList/vkScalar; InQuery/InQuery/vkSubQuery";
  const std::string fields = "; Customer,Equal,InList; sum(orders.Total),Equal";
  const std::string rest = " in Totals; orders.Day > @1";
  const struct {
    const char* file;
    std::string expected;
  } cases[] = {
      {"v1_1.model", "1.1; Customer; sum(orders.Total)"},
      {"v1_2.model", "1.2" + scalars + fields},
      {"v1_4.model", "1.4" + scalars + fields + rest},
      {"v2_01.model", "2.01" + lists + fields + rest},
      {"v2_62.model", "2.62 root first" + lists + fields + rest},
      {"v3_6.model", "3.6 root first" + lists + fields + rest},
  };
  for (const auto& [file, expected] : cases) {
    SCOPED_TRACE(file);
    TJDBStructure model;
    model.LoadFromFile(Fixtures / file);
    EXPECT_EQ(Describe(model), expected);
    EXPECT_EQ(model.GetTable(0).GetDesignPositions(), (TDesignPositions{10, 20, 130, 140}));
    EXPECT_EQ(model.GetTable(1).GetDisplayName(), "All orders");
    ASSERT_EQ(model.GetLinkCount(), 1U);
    EXPECT_EQ(model.GetLink(0).GetLinkType(), ltOuterLeft);
    EXPECT_EQ(model.GetLink(0).GetSQLExpr(), "cust.CustNo = orders.CustNo");
    EXPECT_TRUE(dynamic_cast<TDSTextEditor&>(*model.GetField(0).GetValueEditor()).GetAutoUpperCase());
    ASSERT_EQ(model.GetField(1).Tables().Count(), 1U);
    EXPECT_EQ(&model.GetField(1).Tables()[0], &model.GetTable(1));
  }
}

TEST(ModelText, WhatCannotBeReadIsNamedWithItsPlaceAndChangesNothing) {
  const struct {
    const char *from, *to, *message;
  } cases[] = {
      {"[Main]", "[Mian]", "Can not find section Main"},
      {"Version=3.6", "Version=x", "Line 2, section \"Main\", key \"Version\": 'x' is not a valid version"},
      {"Version=3.6", "Version=3.7",
       "Line 2, section \"Main\", key \"Version\": the model was written in version 3.7 of the format; this program "
       "reads versions up to 3.6. Use a newer release of the program, or save the model in version 3.6"},
      {"Version=3.6", "Version=1.3", "Line 2, section \"Main\", key \"Version\": Can not find section Operations"},
      {"Version=3.6", "", "Line 1, section \"Main\", key \"Version\": Can not find section Tables"},
      {"OperatCount=3", "OperatCount=-1", "Line 3, section \"Main\", key \"OperatCount\": '-1' is not a valid count"},
      {"TableCount=2", "TableCount=999999999",
       "Line 4, section \"Main\", key \"TableCount\": Can not find section Table:3"},
      {"TableCount=2", "TableCount=99999999999999999999",
       "Line 4, section \"Main\", key \"TableCount\": '99999999999999999999' is not a valid integer value"},
      {"ExprType=SameAsField", "ExprType=ftNone",
       "Line 16, section \"Operator:1\", key \"ExprType\": 'ftNone' is not a valid field type"},
      {"AppliedTypes=ftString,ftInteger,", "AppliedTypes=ftString,5,",
       "Line 17, section \"Operator:1\", key \"AppliedTypes\": '5' is not a valid field type"},
      {"ValueKind=vkList", "ValueKind=list",
       "Line 25, section \"Operator:2\", key \"ValueKind\": 'list' is not a valid value kind"},
      {"CaseInsens=yes", "CaseInsens=2",
       "Line 26, section \"Operator:2\", key \"CaseInsens\": '2' is not a valid boolean value"},
      {"DsgnPos=10,20", "DsgnPos=10,left",
       "Line 40, section \"Table:1\", key \"DsgnPos\": 'left' is not a valid integer value"},
      {"[Link:cust-orders]", "[Link:orders-cust]",
       "Line 41, section \"Table:1\", key \"Links\": Can not find section Link:cust-orders"},
      {"Alias=orders", "Alias=ordres", "Line 41, section \"Table:1\", key \"Links\": No such table orders"},
      {"LinkType=Left", "LinkType=Outer",
       "Line 48, section \"Link:cust-orders\", key \"LinkType\": 'Outer' is not a valid link type"},
      {"Kind=jfkData", "Kind=jfkOther",
       "Line 62, section \"Field:1\", key \"Kind\": 'jfkOther' is not a valid field kind"},
      {"TableAlias=cust", "TableAlias=who", "Line 65, section \"Field:1\", key \"TableAlias\": No such table who"},
      {"EditType=1", "EditType=5", "Line 66, section \"Field:1\", key \"EditType\": '5' is not a valid ordinal"},
      {"EditType=1", "EditType=4", "Line 66, section \"Field:1\", key \"EditType\": Can not find section Field:1.SQL"},
      {"FieldType=1", "FieldType=52", "Line 67, section \"Field:1\", key \"FieldType\": '52' is not a valid ordinal"},
      {"Operators=Equal,InList", "Operators=Equal,Unequal",
       "Line 73, section \"Field:1\", key \"Operators\": Operator not found: Unequal"},
      {"Fields=2", "Fields=2,77",
       "Line 89, section \"FieldGroup1\", key \"Fields\": '77' is not a valid field ID of this model"},
      {"Values=ftDate:vkScalar", "Values=ftDate",
       "Line 98, section \"Cond:1\", key \"Values\": 'ftDate' is not a valid value type and kind"},
      {"[Cond:1]", "[", "Line 6, section \"Main\", key \"CondCount\": Can not find section Cond:1"},
  };
  const std::string text = ReadFile(Fixtures / "v3_6.model");
  TJDBStructure model;
  model.SetStructString(text);
  const std::string before = model.GetStructString();
  for (const auto& [from, to, message] : cases) {
    SCOPED_TRACE(to);
    const std::string wrong = ReplaceStr(text, from, to);
    ASSERT_NE(wrong, text);
    try {
      model.SetStructString(wrong);
      ADD_FAILURE() << "no error";
    } catch (const EException& error) {
      EXPECT_STREQ(error.what(), message);
    }
  }
  EXPECT_EQ(model.GetStructString(), before);
}

TEST(ModelText, SkipsWhatIsTwiceOrStrangeAndCompletesWhatIsMissing) {
  TJDBStructure model;
  model.SetStructString(
      "; a remark\n[\n[]\n[Main]\nversion=3.60\nTableCount=1\nFieldCount=2\nFieldGroups=1\nunknown=1\n"
      "[Table:1]\nNAME=Big Table\n[Table:1]\nName=Other\n[Field:1]\nFieldExpr=a\nTableAlias=Big Table\n"
      "[Field:1]\nFieldExpr=b\n[Field:2]\nID=9\nOperators=\n[FieldGroup1]\nFields=9,9,1\n[SQLFormats]\nLowerFunc="
      "LCASE\n");
  ASSERT_EQ(model.GetTableCount(), 1U);
  EXPECT_EQ(model.GetTable(0).GetTableAlias(), "Big_Table");
  EXPECT_EQ(model.GetTable(0).GetDisplayName(), "Big Table");
  ASSERT_EQ(model.Fields().Count(), 2U);
  EXPECT_EQ(model.GetField(0).GetID(), 1);
  EXPECT_EQ(model.GetField(0).GetDisplayName(), "a");
  EXPECT_EQ(model.GetField(0).GetTable(), &model.GetTable(0));
  EXPECT_TRUE(model.GetField(0).GetUseInResult());
  EXPECT_EQ(model.FieldGroups()[0].Count(), 2U);
  EXPECT_EQ(&model.FieldGroups()[0][0], &model.GetField(1));
  EXPECT_TRUE(model.RootGroup().Empty());
  EXPECT_EQ(model.SQLFormats().GetLowerFunc(), "LCASE");
  EXPECT_EQ(model.SQLFormats().GetFalseValue(), "false");
}

}  // namespace
}  // namespace tolvi
