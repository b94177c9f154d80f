#include <limits>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {
namespace {

class Rows : public testing::Test {
 protected:
  Rows() { panel.SetDBStruct(model.get()); }

  TSimpleCond& Cond(TFilterBracket& bracket, std::string_view field = "Customers.City", std::string_view op = "Equal") {
    return panel.AddSimpleCond(bracket, FieldOf(*model, field), OperatorOf(*model, op), "");
  }
  /// IDs of all rows in display order, those that are off in brackets.
  std::string Tree() const {
    std::string result;
    for (int number = 1; const TFilterRow* row = panel.RowByNum(number); ++number) {
      EXPECT_EQ(row->GetRowNum(), number);
      result += result.empty() ? "" : " ";
      result += row->GetEnabled() ? row->GetRowID() : "(" + row->GetRowID() + ")";
    }
    return result;
  }
  std::string CurrentID() const { return panel.GetCurrentRow() ? panel.GetCurrentRow()->GetRowID() : "none"; }

  std::unique_ptr<TJDBStructure> model = OrdersModel();
  TJQueryPanel panel;
  TFilterBracket& root = panel.RootBracket();
};

TEST_F(Rows, AreNumberedByPlace) {
  TSimpleCond& first = Cond(root);
  TFilterBracket& bracket = root.AddNewBracket();
  TSimpleCond& inner = Cond(bracket);
  TCustomCond& last = root.AddCustomCond(model->Conditions()[0]);
  EXPECT_EQ(Tree(), ".1 .2 .2.1 .3");
  EXPECT_EQ(root.GetRowID(), "");
  EXPECT_EQ(root.GetRowLevel(), 0);
  EXPECT_EQ(last.GetRowLevel(), 1);
  EXPECT_EQ(inner.GetRowLevel(), 2);
  EXPECT_EQ(root.GetLastRowNum(), 4);
  EXPECT_EQ(bracket.GetLastRowNum(), 3);
  EXPECT_EQ(bracket.AddNewBracket().GetLastRowNum(), 4) << "an empty bracket's own number";
  EXPECT_EQ(root.IndexByRowNum(5), 2);
  EXPECT_EQ(root.IndexByRowNum(3), -1) << "a row of another bracket";
  EXPECT_EQ(bracket.IndexByRowNum(3), 0);
  EXPECT_EQ(root.IndexOf(last), 2);
  EXPECT_EQ(root.IndexOf(inner), -1);
  EXPECT_EQ(root.RowByID(".2.1"), &inner);
  EXPECT_EQ(bracket.RowByID(".2.1"), &inner);
  EXPECT_EQ(bracket.RowByID(".2"), &bracket);
  EXPECT_EQ(root.RowByID(""), &root);
  for (std::string_view id :
       {"1", ".", ".0", ".4", ".01", ".1.1", ".2.", ".2.1.1", ".20", "..1", ".99999999999999999999"})
    EXPECT_EQ(root.RowByID(id), nullptr) << id;
  EXPECT_EQ(bracket.RowByID(".1"), nullptr);
  for (int number : {-1, 6, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
    EXPECT_EQ(panel.RowByNum(number), nullptr) << number;
  // A row is inserted before the first one whose number is not smaller.
  for (const auto& [number, index] : {std::pair(0, 0), {1, 0}, {2, 1}, {3, 2}, {5, 2}, {6, 3}, {99, 3}})
    EXPECT_EQ(root.IndexForNewRow(number), static_cast<std::size_t>(index)) << number;
  EXPECT_EQ(root.InsertSimpleCondByNum(1).GetRowNum(), 1);
  EXPECT_EQ(bracket.InsertNewBracketByNum(5).GetRowID(), ".3.2");
  EXPECT_EQ(root.InsertCustomCondByNum(99, model->Conditions()[1]).GetRowID(), ".5");
  EXPECT_EQ(first.GetRowID(), ".2");
  EXPECT_THROW(root.GetRow(5), EListError);
  EXPECT_THROW(root.DeleteRow(5), EListError);
  EXPECT_THROW(root.InsertRow(6, std::make_unique<TFilterBracket>(panel)), EListError);
  root.DeleteRow(2);
  EXPECT_EQ(Tree(), ".1 .2 .3 .4");
}

TEST_F(Rows, OfATreeThatIsNotPlacedTellNobody) {
  int changes = 0;
  panel.OnChange = [&changes](TJQueryPanel&) { ++changes; };
  auto bracket = std::make_unique<TFilterBracket>(panel);
  bracket->AddCond().SetEnabled(false);
  bracket->AddCond().SetValue(1, "x");
  bracket->GetRow(1).MoveUp();
  bracket->DeleteRow(1);
  EXPECT_EQ(changes, 0);
  root.AddRow(std::move(bracket));
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(Tree(), ".1 .1.1");
}

TEST_F(Rows, SwitchBracketsAroundThem) {
  TFilterBracket& outer = root.AddNewBracket();
  TFilterBracket& bracket = outer.AddNewBracket();
  TSimpleCond &a = Cond(bracket), &b = Cond(bracket);
  a.SetEnabled(false);
  EXPECT_EQ(Tree(), ".1 .1.1 (.1.1.1) .1.1.2");
  b.SetEnabled(false);
  EXPECT_EQ(Tree(), "(.1) (.1.1) (.1.1.1) (.1.1.2)");
  EXPECT_FALSE(root.GetEnabled());
  a.SetEnabled(true);
  EXPECT_EQ(Tree(), ".1 .1.1 .1.1.1 (.1.1.2)") << "only that row";
  EXPECT_TRUE(root.GetEnabled());
  outer.SetEnabled(false);
  outer.SetEnabled(true);
  EXPECT_EQ(Tree(), ".1 .1.1 .1.1.1 .1.1.2") << "all of a bracket with it";
  b.SetEnabled(false);
  bracket.DeleteRow(0);
  EXPECT_EQ(Tree(), "(.1) (.1.1) (.1.1.1)") << "the last row that was on is gone";
  Cond(bracket);
  EXPECT_EQ(Tree(), ".1 .1.1 (.1.1.1) .1.1.2");
  bracket.ClearRows();
  EXPECT_TRUE(bracket.GetEnabled());
  bracket.CheckIfAllDisabled();
  EXPECT_FALSE(bracket.GetEnabled()) << "no row is on";
  EXPECT_FALSE(bracket.GetIsHavingRow());
}

TEST_F(Rows, MoveWithinAndBetweenBrackets) {
  TSimpleCond& a = Cond(root);
  TFilterBracket& bracket = root.AddNewBracket();
  TSimpleCond& b = Cond(bracket);
  TSimpleCond& c = Cond(root);
  EXPECT_FALSE(root.MoveUp() || root.MoveDown() || root.MoveLeft() || root.MoveRight());
  EXPECT_FALSE(a.MoveUp() || a.MoveLeft() || a.MoveRight() || c.MoveDown() || b.MoveUp() || b.MoveRight());
  EXPECT_TRUE(c.MoveRight());
  EXPECT_EQ(c.GetRowID(), ".2.2");
  EXPECT_TRUE(c.MoveUp());
  EXPECT_EQ(b.GetRowID() + c.GetRowID(), ".2.2.2.1");
  EXPECT_TRUE(b.MoveLeft());
  EXPECT_EQ(b.GetRowID(), ".3");
  EXPECT_TRUE(bracket.MoveUp());
  EXPECT_EQ(a.GetRowID() + c.GetRowID(), ".2.1.1");
  EXPECT_TRUE(bracket.MoveDown());
  EXPECT_TRUE(a.MoveDown());
  EXPECT_EQ(Tree(), ".1 .1.1 .2 .3");
  // The brackets that a row leaves and enters are switched as by deletion and insertion.
  TSimpleCond& off = Cond(bracket);
  off.SetEnabled(false);
  EXPECT_TRUE(c.MoveLeft());
  EXPECT_EQ(Tree(), "(.1) (.1.1) .2 .3 .4");
  EXPECT_TRUE(c.MoveRight());
  EXPECT_EQ(Tree(), ".1 (.1.1) .1.2 .2 .3");
}

TEST_F(Rows, NestToALimit) {
  constexpr std::string_view message =
      "Brackets are nested deeper than 1000 levels: put the conditions into fewer brackets";
  TFilterBracket* deepest = &root;
  for (int level = 1; level < MaxRowLevel; ++level) deepest = &deepest->AddNewBracket();
  TSimpleCond& first = Cond(*deepest);
  EXPECT_EQ(first.GetRowLevel(), MaxRowLevel);
  TFilterBracket& last = deepest->AddNewBracket();
  const auto add = [&last] { last.AddCond(); };
  EXPECT_THROW(add(), EJQueryPanelError);
  try {
    panel.AddCondition(last, FieldOf(*model, "Customers.City"));
  } catch (const EJQueryPanelError& error) {
    EXPECT_EQ(error.Message(), message);
  }
  auto tree = std::make_unique<TFilterBracket>(panel);
  tree->AddCond();
  EXPECT_THROW(deepest->AddRow(std::move(tree)), EJQueryPanelError) << "the level of the row in it counts";
  EXPECT_TRUE(last.MoveUp());
  EXPECT_FALSE(first.MoveRight());
  EXPECT_EQ(first.GetRowLevel(), MaxRowLevel);
  TFilterBracket& second = root.AddNewBracket();
  EXPECT_TRUE(second.MoveUp());
  EXPECT_FALSE(root.GetRow(1).MoveRight()) << "a tree as deep as the limit";
  int changes = 0;
  panel.OnChange = [&changes](TJQueryPanel&) { ++changes; };
  panel.ClearRows();
  EXPECT_EQ(changes, 1) << "the errors above hold nothing back";
}

TEST_F(Rows, GoingLeaveTheCurrentRowBehind) {
  TFilterBracket& bracket = root.AddNewBracket();
  panel.AddCondition(bracket, FieldOf(*model, "Customers.City"));
  panel.AddCondition(bracket, FieldOf(*model, "Customers.City"));
  EXPECT_EQ(CurrentID(), ".1.2");
  panel.DeleteCurrentRow();
  EXPECT_EQ(CurrentID(), "none") << "the root has one row";
  Cond(root);
  panel.SetCurrentRow(bracket.FirstRow());
  root.DeleteRow(0);
  EXPECT_EQ(panel.GetCurrentRow(), root.FirstRow()) << "the row behind the bracket";
  Cond(root), Cond(root);
  panel.SetCurrentRow(&root.GetRow(1));
  panel.DeleteCurrentRow();
  EXPECT_EQ(panel.GetCurrentRow(), &root.GetRow(1)) << "the next";
  panel.DeleteCurrentRow();
  EXPECT_EQ(panel.GetCurrentRow(), &root.GetRow(0)) << "the previous";
  panel.SetCurrentRow(&root);
  panel.DeleteCurrentRow();
  EXPECT_EQ(Tree(), ".1");
  EXPECT_TRUE(panel.NextRow());
  EXPECT_FALSE(panel.NextRow());
  EXPECT_TRUE(panel.PrevRow());
  EXPECT_FALSE(panel.PrevRow());
}

TEST_F(Rows, BelongToHavingWithTheirFirstCondition) {
  TFilterBracket& bracket = root.AddNewBracket();
  EXPECT_FALSE(bracket.GetIsHavingRow());
  Cond(bracket.AddNewBracket());
  EXPECT_FALSE(bracket.GetIsHavingRow()) << "its own rows count";
  EXPECT_TRUE(Cond(bracket, "Quantity sold").GetIsHavingRow());
  EXPECT_TRUE(bracket.GetIsHavingRow());
  bracket.InsertCustomCondByNum(0, model->Conditions()[0]);
  EXPECT_FALSE(bracket.GetIsHavingRow());
}

TEST_F(Rows, KeepTheValuesThatStillFit) {
  TSimpleCond& row = Cond(root, "Orders.Total", "Between");
  TSQLParamList& params = panel.QResult().Params();
  const auto set = [&](std::string_view field, std::string_view op) {
    row.SetField(FieldOf(*model, field));
    row.SetOperator(OperatorOf(*model, op));
    row.SetValue(1, "1");
    row.SetValue(2, "2");
    row.SetCaption(1, "one");
    row.SetValueIsParam(2, true);
  };
  set("Orders.Total", "Between");
  row.SetOperator(OperatorOf(*model, "NotBetween"));
  EXPECT_EQ(row.GetValue(1) + row.GetValue(2) + row.GetCaption(1), "12one");
  EXPECT_EQ(params.Count(), 1u);
  row.SetOperator(OperatorOf(*model, "LessThan"));
  EXPECT_EQ(row.GetValue(1) + row.GetValue(2), "1");
  EXPECT_EQ(params.Count(), 0u);
  // The field brings another operator, with one value, of the same type.
  set("Customers.City", "Between");
  TDSField& company = FieldOf(*model, "Customers.Company");
  company.RemoveOperator(OperatorOf(*model, "Between"));
  row.SetField(company);
  EXPECT_EQ(row.GetDSOperator().GetName(), company.GetOperator(0).GetName());
  EXPECT_EQ(row.GetValue(1) + row.GetValue(2), "1");
  EXPECT_EQ(params.Count(), 0u);
  row.SetField(FieldOf(*model, "Orders.SaleDate"));
  EXPECT_EQ(row.GetValue(1) + row.GetCaption(1), "") << "another type";
  row.SetOperator(OperatorOf(*model, "InQuery"));
  row.SetSubQuery(TStrings{"[Main]"});
  row.SetOperator(OperatorOf(*model, "Equal"));
  EXPECT_TRUE(row.GetSubQuery().Empty());
  EXPECT_THROW(row.SetValue(3, ""), EListError);
  EXPECT_THROW(row.GetCaption(0), EListError);
}

TEST_F(Rows, TakeTheirParametersAlong) {
  TFilterBracket& bracket = root.AddNewBracket();
  for (TSimpleCond* row : {&Cond(bracket, "Orders.Total", "Between"), &Cond(bracket), &Cond(root)})
    for (int index = 1; index <= row->GetValueCount(); ++index) row->SetValueIsParam(index, true);
  TQueryResult& result = panel.QResult();
  EXPECT_EQ(result.GetParamCount(), 4u);
  auto& between = static_cast<TSimpleCond&>(bracket.GetRow(0));
  EXPECT_EQ(result.FindParameterByCondition(between, 2), result.FindParameter("param2"));
  result.DeleteParameter(*result.FindParameter("Param2"));
  EXPECT_FALSE(between.GetValueIsParam(2));
  const TSQLParam& added = result.AddParameter(between, 2);
  EXPECT_EQ(between.GetParam(2), &added);
  EXPECT_EQ(between.GetParam(2)->GetParamName(), "Param2") << "the smallest free number";
  root.DeleteRow(0);
  ASSERT_EQ(result.GetParamCount(), 1u);
  EXPECT_EQ(result.GetParam(0).GetParamName(), "Param4");
  result.Params().Clear();
  EXPECT_FALSE(static_cast<TSimpleCond&>(root.GetRow(0)).GetValueIsParam(1));
}

/// What the panel must say of the tree, counted anew.
void CheckTree(TJQueryPanel& panel, const TFilterBracket& bracket, int& number) {
  std::size_t index = 0, enabled = 0;
  EXPECT_EQ(panel.RowByNum(number), &bracket);
  EXPECT_EQ(bracket.GetRowNum(), number++);
  for (TFilterRow& row : bracket) {
    EXPECT_EQ(row.GetParentBracket(), &bracket);
    EXPECT_EQ(row.GetRowIndex(), index);
    EXPECT_EQ(row.GetRowID(), bracket.GetRowID() + "." + std::to_string(++index));
    EXPECT_EQ(row.GetRowLevel(), bracket.GetRowLevel() + 1);
    EXPECT_EQ(panel.RootBracket().RowByID(row.GetRowID()), &row);
    EXPECT_EQ(bracket.IndexByRowNum(number), row.GetRowIndex());
    if (row.GetEnabled()) ++enabled;
    if (row.GetRowType() == frtBracket) {
      CheckTree(panel, static_cast<TFilterBracket&>(row), number);
    } else {
      EXPECT_EQ(panel.RowByNum(number), &row);
      EXPECT_EQ(row.GetRowNum(), number++);
    }
  }
  EXPECT_TRUE(index == 0 || bracket.GetEnabled() == (enabled > 0)) << bracket.GetRowID();
}

TEST_F(Rows, StayConsistentThroughRandomChanges) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  const auto pick = [&random](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
  for (int step = 0; step < 3000 && !HasFailure(); ++step) {
    TFilterRow& row = *panel.RowByNum(pick(root.GetLastRowNum() + 1));
    TFilterBracket& in = row.GetRowType() == frtBracket ? static_cast<TFilterBracket&>(row) : *row.GetParentBracket();
    const int place = pick(root.GetLastRowNum() + 2);
    const int action = pick(root.GetLastRowNum() > 60 ? 16 : 12);
    if (action < 2) panel.AddConditionNum(in, place, FieldOf(*model, "Orders.Total"));
    if (action == 2) panel.AddBracketNum(in, place);
    if (action == 3) in.AddCond().SetValueIsParam(1, true);
    if (action == 4) row.SetEnabled(!row.GetEnabled());
    if (action == 5) row.SetEnabled(false);
    if (action == 6) row.MoveUp();
    if (action == 7) row.MoveDown();
    if (action == 8) row.MoveLeft();
    if (action == 9) row.MoveRight();
    if (action == 10) panel.SetCurrentRow(&row);
    if (action == 11) panel.DeleteCurrentRow();
    if (action > 11 && &row != &root) row.GetParentBracket()->DeleteRow(row.GetRowIndex());
    int number = 0;
    CheckTree(panel, root, number);
    const TFilterRow* current = panel.GetCurrentRow();
    EXPECT_TRUE(current == nullptr || panel.RowByNum(current->GetRowNum()) == current);
  }
}

}  // namespace
}  // namespace tolvi
