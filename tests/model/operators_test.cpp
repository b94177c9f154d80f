#include <functional>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tolvi/model/dbstruc.h>

namespace tolvi {
namespace {

std::string Names(const TJCustomDBStructure& model) {
  TStrings names{"left over"};
  model.GetOperatorNames(names);
  return names.GetCommaText();
}

constexpr std::string_view Always = "Equal,NotEqual,LessThan,LessOrEqual,GreaterThan,GreaterOrEqual,IsNull";
TEST(Operators, DefaultTableIsWhatTheModelOffers) {
  const TJDBStructure model;
  EXPECT_EQ(Names(model),
            std::string(Always) + ",InList,NotInList,StartsWith,NotStartsWith,Contains,NotContains,Between,NotBetween");
  ASSERT_EQ(model.GetDefOperators().Count(), 15U);
  std::string templates;
  for (const TDSOperator& op : model.Operators()) {
    templates += op.GetSQLExpr() + "|";
    EXPECT_EQ(op.GetDisplayName(), model.GetDefOperator(op.GetName()));
    EXPECT_EQ(op.GetValueKind(), op.GetName().ends_with("InList") ? vkList : vkScalar) << op.GetName();
    EXPECT_EQ(op.GetValFormat(), op.GetName().ends_with("Between") ? "and" : "") << op.GetName();
    EXPECT_EQ(op.GetAppliedTypes().Contains(ftMemo), op.GetParamCount() == 0 || op.GetSQLExpr().find("like") < 9);
    EXPECT_EQ(op.GetAppliedTypes().Contains(ftBoolean),
              (std::set<std::string>{"Equal", "NotEqual", "IsNull", "InList", "NotInList"}.contains(op.GetName())))
        << op.GetName();
  }
  EXPECT_EQ(templates,
            "@f = '@1'|@f <> '@1'|@f < '@1'|@f <= '@1'|@f >'@1'|@f >= '@1'|@f is null|@f in (@1)|NOT (@f in (@1))|"
            "@f like '@1%'|not(@f like '@1%')|@f like '%@1%'|not(@f like '%@1%')|@f between '@1' and '@2'|"
            "NOT (@f between '@1' and '@2')|");
  EXPECT_EQ(model.GetDefOperators()[14], "NotBetween=is not between");
}

TEST(Operators, CountsParametersUpToTheFirstMissingOne) {
  EXPECT_EQ(TemplateParamCount("@f is null"), 0U);
  EXPECT_EQ(TemplateParamCount("@f between '@1' and '@2'"), 2U);
  EXPECT_EQ(TemplateParamCount("f(@3, @1)"), 1U);
}

TEST(Operators, AddingOnlyAbsentOnesKeepsWhatIsThere) {
  TJDBStructure model;
  TDSOperator& inList = *model.OperatorByName("INLIST");
  inList.SetValueKind(vkScalar);
  inList.SetSQLExpr("@f in @1");
  model.AddDefOperators(true);
  EXPECT_EQ(model.GetOperatCount(), 15U);
  EXPECT_EQ(inList.GetSQLExpr(), "@f in @1");
  EXPECT_EQ(inList.GetValueKind(), vkList) << "given also to one that was there";
  EXPECT_EQ(model.AddUpdateOperator(true, "isnull", "x", "x", "", {}), 6U);
  model.AddDefOperators(false);
  EXPECT_EQ(model.GetOperatCount(), 30U);
  EXPECT_EQ(model.OperatorIndexByName("InList"), 7) << "the first of that name";
}

TEST(Operators, EqualToWrittenExactlySoMeansEqual) {
  TJDBStructure model;
  EXPECT_EQ(model.OperatorIndexByName("EqualTo"), 0);
  EXPECT_EQ(model.OperatorIndexByName("equalto"), -1);
  model.AddOperator("equalto", "", "", "", {});
  EXPECT_EQ(model.OperatorIndexByName("EqualTO"), 15);
  EXPECT_EQ(model.OperatorIndexByName("EqualTo"), 0);
}

TEST(Operators, LookUpsFollowRenamingMovingAndDeleting) {
  TJDBStructure model;
  model.MoveOperator(0, 14);
  EXPECT_EQ(model.OperatorIndexByName("Equal"), 14);
  model.OperatorByName("Equal")->SetName("Same");
  EXPECT_EQ(model.OperatorByName("Equal"), nullptr);
  EXPECT_EQ(model.OperatorByName("SAME"), &model.GetOperator(14));
  model.DeleteOperatorByName("same");
  model.DeleteOperatorByName("same");
  EXPECT_EQ(model.OperatorByName("Same"), nullptr);
  EXPECT_EQ(model.GetOperatCount(), 14U);
  EXPECT_EQ(model.OperatorByExpr("like")->GetName(), "StartsWith");
  EXPECT_EQ(model.OperatorByExpr("LIKE"), nullptr);
}

TEST(Operators, BadIndexesAreReportedBeforeAnythingChanges) {
  TJDBStructure model;
  const std::function<void()> actions[] = {[&] { model.GetOperator(15); }, [&] { model.DelOperator(15); },
                                           [&] { model.MoveOperator(0, 15); }};
  for (const auto& action : actions) {
    try {
      action();
      FAIL();
    } catch (const EJDBStructError& error) {
      EXPECT_EQ(error.ErrorCode(), 3);
      EXPECT_STREQ(error.what(), "Invalid operator index 15");
    }
  }
  EXPECT_EQ(model.OperatorIndexByName("Equal"), 0);
}

TEST(Operators, OptionalGroupsComeAndGo) {
  TJDBStructure model;
  model.SetExOperators({xoContains});
  EXPECT_EQ(Names(model), std::string(Always) + ",Contains,NotContains");
  model.SetExOperators(AllExOperators);
  EXPECT_EQ(Names(model),
            std::string(Always) + ",Contains,NotContains,InList,NotInList,StartsWith,NotStartsWith,Between,NotBetween");
  model.SetExOperators({});
  EXPECT_EQ(Names(model), Always);
  // Captions alone leave the operators of a disabled StartsWith group, and no others.
  model.AddStartsWithOperator(true);
  model.AddNotStartsWithOperator(true);
  model.AddInListOperator(true);
  model.AddNotContainsOperator(true);
  model.AddBetweenOperator(true);
  model.UpdateDefOperators();
  EXPECT_EQ(Names(model), std::string(Always) + ",StartsWith,NotStartsWith");
  model.UpdateExOperators();
  EXPECT_EQ(Names(model), Always);
}

TEST(Operators, CaptionsComeFromTheDefaultLines) {
  TJDBStructure model;
  model.SetDefOperators({"Equal=ist gleich", "startswith=beginnt mit"});
  EXPECT_EQ(model.OperatorByName("Equal")->GetDisplayName(), "ist gleich");
  EXPECT_EQ(model.OperatorByName("StartsWith")->GetDisplayName(), "beginnt mit");
  model.MergeDefOperators();
  model.MergeDefOperators();
  EXPECT_EQ(model.GetDefOperators().Count(), 15U);
  EXPECT_EQ(model.GetDefOperator("Equal"), "ist gleich");
  EXPECT_EQ(model.GetDefOperators()[2], "NotEqual=is not equal to");
  model.LoadDefsOpertors();
  EXPECT_EQ(model.GetDefOperators()[0], "Equal=is equal to");
}

struct TOperatorListener final : TDSListener {
  std::vector<std::string> Removed;
  void OperatorRemoved(TDSOperator& op) override { Removed.push_back(op.GetName()); }
};

TEST(Operators, DeletingLeavesNoReferenceBehind) {
  TJDBStructure model;
  model.AddTable("T", "T");
  TDSField& field = model.GetField(model.AddField(jfkData, "A", "A", &model.GetTable(0)));
  field.SetFieldType(ftString);
  field.AddAppliedOperators();
  TOperatorListener listener;
  model.AddListener(listener);
  int changes = 0;
  model.OnChange = [&](TJCustomDBStructure& sender) { changes += sender.GetOperatCount() == 14 ? 1 : 100; };
  const TDSOperator* second = &model.GetOperator(1);
  model.DelOperator(0);
  EXPECT_EQ(listener.Removed, std::vector<std::string>{"Equal"});
  EXPECT_EQ(&field.GetOperator(0), second);
  EXPECT_EQ(changes, 1);
  model.GetOperator(0).SetCaseInsensative(true);
  model.GetOperator(0).SetCaseInsensative(true);
  EXPECT_EQ(changes, 2) << "a setter tells of a change, not of the same value";
  model.RemoveListener(listener);
}

}  // namespace
}  // namespace tolvi
