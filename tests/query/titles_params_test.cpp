#include <string>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/sections.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {
namespace {

TEST(SQLOptions, AreStoredByTheirBits) {
  const TSQLOptions all{soASCIIRFields, soSelectDistinct,    soQuoteAliases, soBracketJoins,
                        soFilter,       soBracketConditions, soSortByNames};
  EXPECT_EQ(SQLOptionsToInt(all), 122);
  EXPECT_EQ(IntToSQLOptions(122), all - TSQLOptions({soASCIIRFields, soFilter}));
  EXPECT_EQ(SQLOptionsToInt(TSQLOptions{soBracketJoins}), 16);
  for (const std::int64_t ignored : {4, 1, 128, 0}) EXPECT_TRUE(IntToSQLOptions(ignored).Empty()) << ignored;
  EXPECT_EQ(SQLOptionsToInt(IntToSQLOptions(-1)), 122);
}

TEST(Titles, StandInTwoSectionsWithABlankLineBetween) {
  const TStrings& lines = TTitles::DefaultLines();
  EXPECT_EQ(lines.Count(), 58U);
  EXPECT_EQ(lines[0], "[Query Panel]");
  EXPECT_EQ(lines[23], " ");
  EXPECT_EQ(lines[24], "[Result Fields Editor]");
  for (std::size_t i = 0; i < lines.Count(); ++i) {
    if (i == 0 || i == 23 || i == 24) continue;
    EXPECT_EQ(lines.IndexOfName(lines.NameAt(i)), static_cast<std::ptrdiff_t>(i)) << "twice: " << lines[i];
    EXPECT_TRUE(lines[i].starts_with("ttl") && !lines.ValueAt(i).empty()) << lines[i];
  }
  const TTitles titles;
  EXPECT_EQ(titles.GetTitle("ttlFilter"), "Choose records where @ of the following apply");
  EXPECT_EQ(titles.GetTitle("TTLMGSDELETEFIELD"), "Delete Field \"%s\"?");
  EXPECT_EQ(titles.GetTitle("ttlCOUNTDISTINCTCaption"), "Distinct count");
  EXPECT_EQ(titles.GetTitle("ttlNoSuch"), "");
}

TEST(Titles, OnlyKnownKeysChange) {
  TTitles titles;
  titles.SetTitle("ttlNoSuch", "x");
  EXPECT_TRUE(titles.IsDefault());
  titles.SetTitle("TTLALL", "every=one\r\n[Main]");
  EXPECT_EQ(titles.GetTitle("ttlAll"), "every=one  [Main]") << "a title is one line";
  EXPECT_EQ(titles.Lines().Count(), 58U);
  titles.LoadDefTitles();
  EXPECT_TRUE(titles.IsDefault());
}

TEST(Titles, AreLoadedOverAnyDefaults) {
  const TStrings defaults{"ttlUp=Up", "ttlDown=Down", "ttlOff=Off"};
  TStrings titles{"ttlUp=Hinauf", "old line"};
  LoadTitlesFromStrings(defaults, titles, {"ttlNew=Neu", "TTLDOWN=Hin\nab", "ttlOff="});
  EXPECT_EQ(titles, TStrings({"ttlUp=Up", "ttlDown=Hin ab", "ttlOff=Off"}));
  LoadTitlesFromStrings({"ttlDown=x", "[Other]", "ttlDown=y"}, titles, titles);
  EXPECT_EQ(titles, TStrings({"ttlDown=Hin ab", "[Other]", "ttlDown=y"}));
}

TEST(Titles, LoadedLinesReplaceTheDefaultsOfTheirSection) {
  TTitles titles;
  titles.SetTitle("ttlOr", "oder");
  titles.Assign({"[PanelTitles]", "ttlAll=alle", "ttlAny=", "ttlNew=neu", "ttlFields=wrong section",
                 "[Result Fields Editor]", "ttlSUMCaption=Summe"});
  EXPECT_EQ(titles.GetTitle("ttlAll"), "alle");
  EXPECT_EQ(titles.GetTitle("ttlAny"), "any") << "an empty text is none";
  EXPECT_EQ(titles.GetTitle("ttlNew"), "");
  EXPECT_EQ(titles.GetTitle("ttlFields"), "&Available fields");
  EXPECT_EQ(titles.GetTitle("ttlSUMCaption"), "Summe");
  EXPECT_EQ(titles.GetTitle("ttlOr"), "or") << "what was there before goes";
  TTitles copy;
  copy.Assign(titles.Lines());
  EXPECT_EQ(copy.Lines(), titles.Lines());
  titles.AssignOld({"ttlOr=ou", "ttlLISTCaption=Liste", "ttlAll=", "ttlNew=nouveau"});
  EXPECT_EQ(titles.GetTitle("ttlOr") + titles.GetTitle("ttlLISTCaption") + titles.GetTitle("ttlAll"), "ouListealle");
  EXPECT_EQ(titles.Lines().Count(), 58U);
}

struct TParams : testing::Test {
  TParams() { panel.SetDBStruct(model.get()); }

  TSimpleCond& Add(std::string_view op, std::string_view value1 = {}, std::string_view value2 = {}) {
    return panel.AddSimpleCond(panel.RootBracket(), FieldOf(*model, "Customers.Company"), OperatorOf(*model, op),
                               value1, value2);
  }
  TSQLParam& AddParam(std::string_view op = "Equal", std::string_view value = {}) {
    TSimpleCond& condition = Add(op, value);
    condition.SetValueIsParam(1, true);
    return *condition.GetParam(1);
  }
  std::string Names() {
    std::string names;
    for (const TSQLParam& param : panel.QResult().Params()) names += param.GetParamName() + " ";
    return names;
  }

  std::unique_ptr<TJDBStructure> model = OrdersModel();
  TJQueryPanel panel;
};

TEST_F(TParams, TakeTheSmallestFreeNumberAboveThoseOfTheOuterQuery) {
  TSQLParamList& params = panel.QResult().Params();
  for (int i = 0; i < 3; ++i) AddParam();
  params.Delete(1);
  AddParam().SetParamName("param2");
  AddParam();
  EXPECT_EQ(Names(), "Param1 Param3 param2 Param4 ");
  params.SetParentParamCount(7);
  AddParam();
  EXPECT_EQ(params[4].GetParamName(), "Param8");
  params[0].SetParamName("City");
  params.Reindex(8);
  EXPECT_EQ(Names(), "City Param8 Param9 Param10 Param11 ") << "a user's name stays";
  EXPECT_EQ(params.IndexByName("CITY"), 0);
  EXPECT_EQ(params.IndexByName("Param3"), -1);
}

TEST_F(TParams, HaveNamesThatSQLCanHold) {
  TSQLParam& param = AddParam();
  for (const std::string_view automatic : {"Param1", "Param20"}) {
    param.SetParamName(automatic);
    EXPECT_TRUE(param.HasAutomaticName()) << automatic;
  }
  for (const std::string_view given : {"Param", "Param01", "Param1a", "_x", "Region"}) {
    param.SetParamName(given);
    EXPECT_FALSE(param.HasAutomaticName()) << given;
  }
  for (const std::string_view bad : {"", "1a", "a b", "a;--", "Größe", "a'"}) {
    try {
      param.SetParamName(bad);
      ADD_FAILURE() << bad;
    } catch (const EJQueryPanelError& error) {
      EXPECT_EQ(error.Message(), "\"" + std::string(bad) +
                                     "\" is no parameter name: use letters A to Z, digits and \"_\", a letter first");
    }
  }
  EXPECT_EQ(param.GetParamName(), "Region");
}

TEST_F(TParams, ReadTheirValueFromTheCondition) {
  TSQLParam& param = AddParam("Contains", "O'Hara");
  EXPECT_EQ(param.GetParamType(), ftString);
  EXPECT_EQ(param.GetFullValue(), "%O'Hara%") << "the template's wildcards";
  model->SQLFormats().SetWildcardChar('*');
  EXPECT_EQ(param.GetFullValue(), "*O'Hara*");
  param.SetValueFormat("@v_@v");
  param.SetValue("100%");
  EXPECT_EQ(param.GetCondition().GetValue(1), "100%");
  EXPECT_EQ(param.GetFullValue(), "100%_100%");
  EXPECT_EQ(AddParam("Equal", "x").GetFullValue(), "x");
}

TEST_F(TParams, GoWithTheirConditionAndTellThePanel) {
  int changes = 0;
  TSQLParam& first = AddParam();
  TSimpleCond& range = Add("Between", "a", "b");
  range.SetValueIsParam(2, true);
  panel.OnChange = [&changes](TJQueryPanel&) { ++changes; };
  first.SetParamName("Name");
  first.SetParamName("Name");
  first.SetValueFormat("@v%");
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(panel.QResult().Params().IndexByCondition(range, 2), 1);
  EXPECT_EQ(panel.QResult().Params().IndexByCondition(range, 1), -1);
  EXPECT_EQ(first.GetDisplayName(), "Parameter");
  EXPECT_EQ(range.GetParam(2)->GetDisplayName(), "Parameter 2");
  range.GetParam(2)->SetDisplayName("Up to");
  EXPECT_EQ(range.GetParam(2)->GetDisplayName(), "Up to");
  panel.RootBracket().DeleteRow(0);
  EXPECT_EQ(Names(), "Param2 ");
}

}  // namespace
}  // namespace tolvi
