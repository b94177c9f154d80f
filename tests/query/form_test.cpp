#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/streaming.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/schema/dbinfo.h>

namespace tolvi {
namespace {

class TForm final : public TComponent {
 public:
  std::string_view ClassName() const override { return "TForm"; }
};

TComponentRegistry FormClasses() {
  TComponentRegistry registry;
  registry.Register<TForm>("TForm");
  registry.Register<TJDBInfo>("TJDBInfo");
  registry.Register<TJDBStructure>("TJDBStructure");
  registry.Register<TJQueryPanel>("TJQueryPanel");
  return registry;
}

template <typename T>
T& Part(const TComponent& form, std::string_view name) {
  return dynamic_cast<T&>(*form.FindComponent(name));
}

/// A form that holds a catalogue source, a model that uses it, and a panel on the model, before or behind it.
class Form : public testing::TestWithParam<bool> {
 protected:
  Form() {
    form.SetName("Form1");
    auto ownPanel = std::make_unique<TJQueryPanel>();
    auto ownModel = OrdersModel();
    TJQueryPanel& panel = *ownPanel;
    TJDBStructure& model = *ownModel;
    panel.SetName("Panel1");
    model.SetName("Model1");
    if (GetParam()) form.Own(std::move(ownPanel));
    form.Own(std::move(ownModel));
    TJDBInfo& info = form.Own(std::make_unique<TJDBInfo>());
    info.SetName("Info1");
    if (!GetParam()) form.Own(std::move(ownPanel));

    info.SetTableNameFormat("%d.%t");
    model.SetDatabaseInfo(&info);
    model.SQLFormats().SetQuoteSymbol1('[');
    model.SQLFormats().SetQuoteSymbol2(']');
    panel.SetDBStruct(&model);
    panel.SetActive(true);
    panel.RFields().Add(FieldOf(model, "Customers.Company")).SetSorting(stDescending);
    panel.RFields().AddByExpression("{Orders.Total} * 2").SetCaption("Twice 'as' much");
    panel.SetSQLOptions({soQuoteAliases, soSortByNames, soFilter});
    panel.SetSQLSyntax(ssAccess);
    panel.SetSaveSQLOptions(false);
    panel.SetSQLTopClause("5");
    panel.SetAllowSQLFragments(true);
    panel.SetTitle("ttlAll", "alle\xC3\xA4");
  }
  TForm form;
};
INSTANTIATE_TEST_SUITE_P(PanelBehindAndBeforeTheModel, Form, testing::Bool());

TEST_P(Form, ComesBackFromItsText) {
  const std::string text = WriteComponentText(form);
  const std::unique_ptr<TComponent> read = ReadComponentText(text, FormClasses());
  EXPECT_EQ(WriteComponentText(*read), text);
  auto& panel = Part<TJQueryPanel>(*read, "Panel1");
  auto& model = Part<TJDBStructure>(*read, "Model1");
  EXPECT_EQ(panel.GetDBStruct(), &model);
  EXPECT_EQ(model.GetDatabaseInfo(), &Part<TJDBInfo>(*read, "Info1"));
  EXPECT_EQ(model.GetDatabaseInfo()->GetTableNameFormat(), "%d.%t");
  EXPECT_EQ(model.GetStructString(), Part<TJDBStructure>(form, "Model1").GetStructString());
  EXPECT_EQ(panel.RFields()[1].GetExpression(), "{Orders.Total} * 2");
  EXPECT_EQ(panel.GetSQLOptions(), TSQLOptions({soQuoteAliases, soSortByNames, soFilter}));
  EXPECT_EQ(panel.GetTitle("ttlAll"), "alle\xC3\xA4");
  EXPECT_TRUE(panel.GetActive() && panel.GetAllowSQLFragments());
  EXPECT_FALSE(panel.GetModified() || panel.GetSaveSQLOptions() || panel.IsLoading());
  EXPECT_EQ(panel.GetQueryText(), Part<TJQueryPanel>(form, "Panel1").GetQueryText());
}

TEST_P(Form, HoldsModelAndColumnsAsTexts) {
  const std::string text = WriteComponentText(form);
  for (std::string_view part :
       {"  object Model1: TJDBStructure\r\n", "    Struct = (\r\n      '[Main]'\r\n", "    DatabaseInfo = Info1\r\n",
        "    DBStruct = Model1\r\n    Active = True\r\n    SQLSyntax = 'ssAccess'\r\n",
        "    RFields = (\r\n      '[RFields]'\r\n      'Count=2'\r\n", "      'Caption=Twice ''as'' much'\r\n"}) {
    EXPECT_NE(text.find(part), std::string::npos) << part << "in\n" << text.substr(0, 2000);
  }
}

TEST(OldForm, HasItsOptionsAsANumber) {
  const auto read = [](std::string_view text) {
    try {
      const std::unique_ptr<TComponent> panel = ReadComponentText(text, FormClasses());
      const std::string written = WriteComponentText(*panel);
      EXPECT_EQ(written.find("  Options"), std::string::npos);
      return std::to_string(SQLOptionsToInt(dynamic_cast<TJQueryPanel&>(*panel).GetSQLOptions()));
    } catch (const EStreamError& error) {
      return error.Message();
    }
  };
  for (const auto& [lines, result] : {
           std::pair("  Options = 42", "42"),
           {"  Options = 4", "0"},
           {"  Options = 'x'", "Line 2: Options must be a whole number, not 'x'"},
           {"  SQLSyntax = 'ssOther'",
            "Line 2: SQLSyntax: 'ssOther' is none of ssSQL1,ssSQL2,ssOracle,ssAccess,ssNexusDB"},
           {"  SQLOptions = 'soFilter,soOther'",
            "Line 2: SQLOptions: 'soOther' is none of soASCIIRFields,soSelectDistinct,soQuoteAliases,soBracketJoins,"
            "soBracketConditions,soSortByNames,soFilter"},
           {"  DBStruct = Model1", "Line 2: DBStruct: there is no component Model1; add it or remove the line"},
           {"  Colour = 1", "Line 2: TJQueryPanel has no property \"Colour\"; remove the line or correct the name"},
           {"  RFields = 'x'", "Line 2: RFields must be a list of texts in parentheses, not 'x'"},
           {"  RFields = ('[RFields]' 'Count=1')\n  DBStruct = Panel1", "Line 3: DBStruct: Panel1 is no data model"},
           {"  Active = Maybe", "Line 2: Active must be True or False, not Maybe"},
       }) {
    EXPECT_EQ(read(Format("object Panel1: TJQueryPanel\n%s\nend\n", {lines})), result);
  }
  EXPECT_EQ(read("object Panel1: TJQueryPanel\n  Active = True\nend\n"), "0") << "without a model it stays inactive";
}

TEST(FormWithoutModel, KeepsItsColumns) {
  constexpr std::string_view text =
      "object Panel1: TJQueryPanel\r\n  RFields = (\r\n    '[RFields]'\r\n    'Count=1'\r\n    'Version=3.6'\r\n"
      "    'JustSorting=0'\r\n    ''\r\n    '[RField1]'\r\n    'Formula=@1'\r\n    'Fields=2'\r\n    'Alias='\r\n"
      "    'Caption=Company'\r\n    'Sorting=0'\r\n    'SortOrder=0'\r\n    '')\r\nend\r\n";
  const std::unique_ptr<TComponent> read = ReadComponentText(text, FormClasses());
  EXPECT_EQ(WriteComponentText(*read), text);
  const std::unique_ptr<TJDBStructure> model = OrdersModel();
  auto& panel = dynamic_cast<TJQueryPanel&>(*read);
  panel.SetDBStruct(model.get());
  EXPECT_EQ(panel.GetSQL()[0], "SELECT Customers.Company");
}

TEST(BrokenForm, IsRefusedWithTheLine) {
  const auto read = [](std::string_view text) {
    try {
      ReadComponentText(text, FormClasses());
      return std::string("read");
    } catch (const EStreamError& error) {
      return error.Message();
    }
  };
  EXPECT_EQ(
      read(
          "object F: TForm\n  object M: TJDBStructure\n    Struct = (\n      '[Main]'\n      'Version=x')\n  end\nend"),
      "Line 2: it could not be loaded: Line 2, section \"Main\", key \"Version\": 'x' is not a valid version");
  EXPECT_EQ(
      read("object F: TForm\n  object M: TJDBStructure\n  end\n  object P: TJQueryPanel\n    DBStruct = M\n"
           "    RFields = (\n      '[RFields]'\n      'Count=x')\n  end\nend"),
      "Line 4: it could not be loaded: Line 2, section \"RFields\", key \"Count\": 'x' is not a valid integer value");
}

}  // namespace
}  // namespace tolvi
