#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "panel_fixture.h"

namespace tolvi {
namespace {

using Editor = PanelEditorTest;

TEST_F(Editor, AddsRowsWithTheDefaultFieldAndMakesThemCurrent) {
  FEditor.AddBracket(PlaceInside(FPanel.RootBracket()));
  FEditor.AddCondition(PlaceInside(*FPanel.GetCurrentRow()));
  FEditor.AddCustomCondition(PlaceAfter(*FPanel.RowByNum(1)), FModel->Conditions()[0]);
  EXPECT_EQ(Rows(), "(all) Customer no is equal to <empty> / ) Orders that have not been shipped");
  EXPECT_EQ(FPanel.GetCurrentRow(), FPanel.RowByNum(3));
  FPanel.SetLinkTypes({fltNone, fltNotAll});
  FEditor.AddBracket(PlaceAfter(*FPanel.RowByNum(3)));
  EXPECT_EQ(static_cast<TFilterBracket*>(FPanel.GetCurrentRow())->GetLinkType(), fltNone);
}

TEST_F(Editor, EachOperationFiresOnce) {
  Build("A (B C) D");
  int changes = 0;
  FPanel.OnChange = [&changes](TJQueryPanel&) { ++changes; };
  struct TCase {
    TPanelCommand Command;
    int Row;
    std::string_view Rows;
  };
  static constexpr TCase Cases[] = {
      {pcDuplicate, 2, "A (B C) (B C) D"}, {pcWrap, 7, "A (B C) (B (C)) D"},
      {pcUngroup, 5, "A (B C) B (C) D"},   {pcCut, 2, "A B (C) D"},
      {pcPaste, 1, "A (B C) B (C) D"},     {pcMoveInto, 5, "A (B C B) (C) D"},
      {pcMoveOut, 5, "A (B C) B (C) D"},   {pcEnable, 1, "A (B C) B (C) D"},
  };
  for (const TCase& test : Cases) {
    changes = 0;
    ASSERT_TRUE(RunCommand(FEditor, test.Command, FPanel.RowByNum(test.Row))) << test.Rows;
    EXPECT_EQ(Outline(), test.Rows);
    EXPECT_EQ(changes, 1) << test.Rows;
  }
  while (FEditor.CanUndo()) FEditor.Undo();
  EXPECT_EQ(Outline(), "A (B C) D");
}

TEST_F(Editor, MovesRowsWhereTheyCanGo) {
  struct TCase {
    std::string_view Before;
    TPanelCommand Command;
    int Row;
    std::string_view After;
  };
  static constexpr TCase Cases[] = {
      {"A B C", pcMoveUp, 2, "B A C"},           {"A B C", pcMoveUp, 1, "A B C"},
      {"A B C", pcMoveDown, 1, "B A C"},         {"A B C", pcMoveDown, 3, "A B C"},
      {"A (B) C", pcMoveUp, 4, "A C (B)"},       {"A (B) C", pcMoveOut, 3, "A () B C"},
      {"A (B) C", pcMoveInto, 4, "A (B C)"},     {"A (B) C", pcMoveInto, 1, "(A B) C"},
      {"(A) B (C)", pcMoveInto, 3, "(A B) (C)"}, {"A B", pcMoveInto, 1, "A B"},
      {"A (B) C", pcMoveDown, 1, "(B) A C"},     {"A B", pcMoveOut, 2, "A B"},
  };
  for (const TCase& test : Cases) {
    Build(test.Before);
    TFilterRow* row = FPanel.RowByNum(test.Row);
    FPanel.SetCurrentRow(row);
    EXPECT_EQ(RunCommand(FEditor, test.Command, row), test.Before != test.After) << test.Before;
    EXPECT_EQ(Outline(), test.After) << test.Before;
    EXPECT_EQ(FPanel.GetCurrentRow(), row);
  }
  Build("A B C");
  FPanel.RowByNum(2)->SetHidden(true);
  RunCommand(FEditor, pcMoveUp, FPanel.RowByNum(3));
  EXPECT_EQ(Outline(), "C A B");
}

TEST_F(Editor, TellsImpossiblePlacesBeforehand) {
  Build("A (B (C)) D");
  TFilterBracket& root = FPanel.RootBracket();
  auto& outer = static_cast<TFilterBracket&>(*FPanel.RowByNum(2));
  auto& inner = static_cast<TFilterBracket&>(*FPanel.RowByNum(4));
  TFilterRow& last = *FPanel.RowByNum(6);
  EXPECT_FALSE(FEditor.CanMove(outer, {&outer, 0}));
  EXPECT_FALSE(FEditor.CanMove(outer, {&inner, 0}));
  EXPECT_FALSE(FEditor.CanMove(root, {&inner, 0}));
  EXPECT_FALSE(FEditor.CanMove(last, {&root, 2}));
  EXPECT_FALSE(FEditor.CanMove(last, {&root, 3}));
  EXPECT_FALSE(FEditor.CanMove(last, {&root, 4}));
  EXPECT_FALSE(FEditor.CanMove(last, {nullptr, 0}));
  EXPECT_TRUE(FEditor.CanMove(inner, {&root, 0}));
  FEditor.Move(last, {&root, 0});
  FEditor.Move(inner, {&root, 2});
  EXPECT_EQ(Outline(), "D A (C) (B)");
  FPanel.SetActive(false);
  EXPECT_FALSE(FEditor.CanMove(last, {&root, 4}));
}

TEST_F(Editor, NestsNoDeeperThanRowsMay) {
  TFilterBracket* bracket = &FPanel.RootBracket();
  for (int level = 1; level < MaxRowLevel; ++level) bracket = &bracket->AddNewBracket();
  TSimpleCond& deepest = bracket->AddCond();
  EXPECT_FALSE(FEditor.CanWrap(deepest));
  EXPECT_FALSE(FEditor.CanWrap(*FPanel.RowByNum(1)));
  EXPECT_FALSE(FEditor.CanMove(*FPanel.RowByNum(1), {bracket, 0}));
  const std::string text = FEditor.CopyText(*deepest.GetParentBracket());
  EXPECT_THROW(FEditor.PasteText(text, {bracket, 0}), EJQueryPanelError);
  EXPECT_EQ(bracket->GetRowCount(), 1u);
  FEditor.NoteChange();
  FEditor.Delete(deepest);
  FEditor.Undo();
  EXPECT_EQ(FPanel.RootBracket().GetLastRowNum(), MaxRowLevel);
}

TEST_F(Editor, LockedRowsStayAsTheyAre) {
  Build("A (B C) D");
  TFilterRow &a = *FPanel.RowByNum(1), &bracket = *FPanel.RowByNum(2), &b = *FPanel.RowByNum(3);
  FEditor.SetLocked(b, true);
  for (TFilterRow* row : {&b, &bracket}) {
    for (const TPanelCommand command : {pcDelete, pcEnable, pcWrap, pcUngroup, pcCut, pcMoveUp, pcMoveOut, pcLock}) {
      EXPECT_FALSE(RunCommand(FEditor, command, row)) << int(command);
    }
  }
  EXPECT_FALSE(CanRun(FEditor, pcParameter, &b, 1));
  EXPECT_FALSE(FEditor.CanEdit(FPanel.RootBracket()));
  EXPECT_TRUE(RunCommand(FEditor, pcDelete, FPanel.RowByNum(4)));
  EXPECT_TRUE(RunCommand(FEditor, pcDuplicate, &b));
  EXPECT_TRUE(RunCommand(FEditor, pcMoveInto, &a));
  EXPECT_EQ(Outline(), "(A B B) D");
  EXPECT_FALSE(FEditor.IsLocked(*FPanel.RowByNum(4)));

  FEditor.SetAllowLocking(true);
  EXPECT_TRUE(RunCommand(FEditor, pcLock, FPanel.RowByNum(3)));
  EXPECT_TRUE(RunCommand(FEditor, pcLock, FPanel.RowByNum(1)));
  EXPECT_FALSE(FEditor.CanDelete(*FPanel.RowByNum(2)));
  EXPECT_FALSE(CanRun(FEditor, pcAddCond, FPanel.RowByNum(2)));
  EXPECT_FALSE(CanRun(FEditor, pcPaste, FPanel.RowByNum(1)));
  EXPECT_FALSE(FEditor.CanMove(*FPanel.RowByNum(5), PlaceInside(*FPanel.RowByNum(1))));
}

TEST_F(Editor, CollapsedBracketsHideTheirRows) {
  Build("A (B (C)) D");
  std::string states;
  FEditor.OnRowStateChange = [&states](TFilterRow& row) { states += row.GetRowID() + ";"; };
  FPanel.SetCurrentRow(FPanel.RowByNum(5));
  EXPECT_TRUE(RunCommand(FEditor, pcCollapse, FPanel.RowByNum(4)));
  EXPECT_TRUE(RunCommand(FEditor, pcCollapse, FPanel.RowByNum(2)));
  EXPECT_FALSE(CanRun(FEditor, pcCollapse, FPanel.RowByNum(1)));
  EXPECT_EQ(FPanel.GetCurrentRow(), FPanel.RowByNum(2));
  EXPECT_EQ(FEditor.VisibleRows().size(), 4u);
  EXPECT_EQ(states, ".2.2;.2;");
  std::string path;
  for (const TPanelCommand command : {pcNextRow, pcNextRow, pcPrevRow, pcPrevRow, pcFirstRow, pcPrevRow, pcLastRow}) {
    RunCommand(FEditor, command, FPanel.GetCurrentRow());
    path += std::to_string(FPanel.GetCurrentRow()->GetRowNum()) + " ";
  }
  EXPECT_EQ(path, "6 6 2 1 0 0 6 ");
  // What happens inside opens the brackets round it.
  EXPECT_TRUE(RunCommand(FEditor, pcAddCond, FPanel.RowByNum(4)));
  EXPECT_FALSE(FEditor.IsCollapsed(*FPanel.RowByNum(2)));
  EXPECT_FALSE(FEditor.IsCollapsed(*FPanel.RowByNum(4)));
}

TEST_F(Editor, RowsAreCopiedAsTextToOtherPanels) {
  Build("A (B C) D");
  FPanel.RowByNum(3)->SetEnabled(false);
  auto& c = static_cast<TSimpleCond&>(*FPanel.RowByNum(4));
  c.SetValueIsParam(1, true);
  c.GetParam(1)->SetParamName("Since");
  auto& d = static_cast<TSimpleCond&>(*FPanel.RowByNum(5));
  d.SetValueIsParam(1, true);
  TJQueryPanel other;
  other.SetDBStruct(FModel.get());
  other.SetActive(true);
  TPanelEditor editor(other);
  for (const int row : {2, 5}) editor.PasteText(FEditor.CopyText(*FPanel.RowByNum(row)), DefaultPlace(other, nullptr));
  EXPECT_EQ(OutlineOf(other), "(B C) D");
  EXPECT_FALSE(other.RowByNum(2)->GetEnabled());
  EXPECT_EQ(static_cast<TSimpleCond*>(other.RowByNum(3))->GetParam(1)->GetParamName(), "Since");
  // A copy is asked for by itself, unless the user has named what is to be asked.
  RunCommand(editor, pcDuplicate, other.RowByNum(4));
  EXPECT_EQ(static_cast<TSimpleCond*>(other.RowByNum(5))->GetParam(1)->GetParamName(), "Param2");

  // A whole query keeps how its root links the rows.
  FPanel.RootBracket().SetLinkType(fltNone);
  editor.PasteText(FPanel.SaveToText(), DefaultPlace(other, other.RowByNum(0)));
  EXPECT_EQ(OutlineOf(other), "(B C) D D (A (B C) D)");
  EXPECT_EQ(static_cast<TFilterBracket*>(other.RowByNum(6))->GetLinkType(), fltNone);
}

TEST_F(Editor, TextThatIsNoQueryIsRefused) {
  Build("A");
  const std::string empty = TJQueryPanelText(*FModel);
  for (const std::string& text : {std::string(), std::string("A is equal to 1"), std::string("[Row]\n[Row.1]\n"), empty,
                                  std::string("[Main]\nVersion=3.5\n[Row]\nRowCount=0\n")}) {
    FEditor.SetClipboard(text);
    EXPECT_FALSE(CanRun(FEditor, pcPaste, nullptr));
    EXPECT_EQ(PasteError(text), "The clipboard holds no conditions of a query");
  }
  EXPECT_EQ(PasteError("[Main]\nVersion=3.5\n[Row]\nRowType=1\nRowCount=2\n[Row.1]\nRowType=0\n").substr(0, 6),
            "Line 5");
  EXPECT_EQ(Outline(), "A");
  EXPECT_FALSE(FEditor.CanUndo());
  // What the model lacks is kept.
  const std::vector<TQueryWarning> warnings = FEditor.PasteText(
      "[Main]\nVersion=3.5\n[Row]\nRowType=1\nRowCount=1\n[Row.1]\nRowType=0\nFieldID=99\nOperator=Equal\nValue1=x\n",
      DefaultPlace(FPanel, nullptr));
  ASSERT_EQ(warnings.size(), 1u);
  EXPECT_EQ(warnings[0].RowID, ".1");
  EXPECT_TRUE(FPanel.LoadWarnings().empty());
  EXPECT_EQ(static_cast<TSimpleCond*>(FPanel.RowByNum(2))->GetFieldID(), 99);
}

TEST_F(Editor, AHandlerMayDestroyPanelAndEditor) {
  for (const TPanelCommand command : {pcAddCond, pcDelete, pcWrap, pcCut, pcUndo}) {
    auto panel = std::make_unique<TJQueryPanel>();
    panel->SetDBStruct(FModel.get());
    panel->SetActive(true);
    auto editor = std::make_unique<TPanelEditor>(*panel);
    editor->AddCondition(DefaultPlace(*panel, nullptr));
    panel->OnChange = [&](TJQueryPanel&) {
      editor.reset();
      panel.reset();
    };
    EXPECT_TRUE(RunCommand(*editor, command, panel->RowByNum(1)));
    EXPECT_EQ(panel, nullptr);
  }
}

}  // namespace
}  // namespace tolvi
