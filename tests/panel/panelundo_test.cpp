#include <any>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "panel_fixture.h"
#include "support/random_queries.h"

namespace tolvi {
namespace {

using Undo = PanelEditorTest;

TEST_F(Undo, TakesBackEveryKindOfChange) {
  Build("A B");
  std::vector<std::string> texts{FPanel.SaveToText()};
  const auto note = [&] {
    FEditor.NoteChange();
    FEditor.NoteChange();
    texts.push_back(FPanel.SaveToText());
    EXPECT_EQ(FEditor.GetUndoCount(), texts.size() - 1);
  };
  static_cast<TSimpleCond*>(FPanel.RowByNum(1))->SetValue(1, "Größe");
  note();
  FPanel.RootBracket().SetLinkType(fltNotAll);
  note();
  FPanel.RFields().Add(FieldOf(*FModel, "Orders.Total")).SetSorting(stDescending);
  note();
  FPanel.SetDescription({"[Row]", "[Row.1]", ""});
  note();
  FPanel.ParseSQL("select distinct Company from Customers where City = 'Oslo' and (CustNo > 1 or CustNo < 0)");
  note();
  FPanel.LoadFromText(texts[1]);
  note();
  FPanel.ClearAll();
  note();
  for (std::size_t step = texts.size() - 1; step > 0; --step) {
    FEditor.Undo();
    EXPECT_EQ(FPanel.SaveToText(), texts[step - 1]);
  }
  EXPECT_FALSE(FEditor.CanUndo());
  for (std::size_t step = 1; step < texts.size(); ++step) {
    FEditor.Redo();
    EXPECT_EQ(FPanel.SaveToText(), texts[step]);
  }
  EXPECT_FALSE(FEditor.CanRedo());
}

TEST_F(Undo, BringsBackWhatAFailedImportHasDestroyed) {
  Build("A (B)");
  EXPECT_THROW(FPanel.ParseSQL("select a from b where (c = 1"), EException);
  EXPECT_FALSE(FPanel.GetActive());
  FEditor.Undo();
  EXPECT_TRUE(FPanel.GetActive());
  EXPECT_EQ(Outline(), "A (B)");
}

TEST_F(Undo, KeepsOptionsAndTitlesAsTheHostWantsThem) {
  Build("A");
  FPanel.SetSaveSQLOptions(false);
  FPanel.SetSaveTitles(true);
  FPanel.SetSQLOptions({soSelectDistinct});
  FEditor.NoteChange();
  FEditor.AddCondition(DefaultPlace(FPanel, nullptr));
  FPanel.SetTitle("ttlAll", "alle");
  FEditor.Undo();
  EXPECT_TRUE(FPanel.GetSQLOptions().Contains(soSelectDistinct));
  EXPECT_EQ(FPanel.GetTitle("ttlAll"), "alle");
  FEditor.Undo();
  EXPECT_FALSE(FPanel.GetSQLOptions().Contains(soSelectDistinct));
  EXPECT_FALSE(FPanel.GetSaveSQLOptions());
  EXPECT_TRUE(FPanel.GetSaveTitles());
}

TEST_F(Undo, SeveralChangesCanBeOneStep) {
  Build("A");
  int changes = 0;
  FPanel.OnChange = [&](TJQueryPanel&) {
    ++changes;
    FEditor.NoteChange();
  };
  FEditor.BeginStep();
  FEditor.AddCondition(DefaultPlace(FPanel, nullptr));
  FEditor.BeginStep();
  FPanel.RootBracket().SetLinkType(fltAny);
  FEditor.EndStep();
  EXPECT_FALSE(FEditor.CanUndo());
  FEditor.Undo();
  FEditor.EndStep();
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(FEditor.GetUndoCount(), 1u);
  FEditor.Undo();
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(Outline(), "A");
  FPanel.RootBracket().SetLinkType(fltNone);
  EXPECT_FALSE(FEditor.CanRedo());
}

TEST_F(Undo, DoesNotTakeRowsAwayThatTheHostHasLocked) {
  Build("A");
  FEditor.AddCondition({&FPanel.RootBracket(), 0});
  FEditor.SetLocked(*FPanel.RowByNum(1), true);
  EXPECT_FALSE(FEditor.CanUndo());
  FEditor.SetAllowLocking(true);
  FEditor.AddBracket({&FPanel.RootBracket(), 0});
  FEditor.ToggleLock(*FPanel.RowByNum(1));
  EXPECT_TRUE(FEditor.CanUndo());
}

TEST_F(Undo, RowsKeepWhatTheTextDoesNotHold) {
  Build("A (B C) D");
  FPanel.RowByNum(1)->SetHidden(true);
  FPanel.RowByNum(1)->SetOleObject(7);
  FEditor.SetLocked(*FPanel.RowByNum(3), true);
  FEditor.SetCollapsed(*FPanel.RowByNum(2), true);
  auto& d = static_cast<TSimpleCond&>(*FPanel.RowByNum(5));
  FEditor.SetValueIsParam(d, 1, true);
  d.GetParam(1)->SetDisplayName("Which company?");
  FPanel.SetCurrentRow(&d);
  FEditor.Move(d, {&FPanel.RootBracket(), 0});
  int locked = 0;
  FEditor.OnRowStateChange = [&](TFilterRow& row) { locked += FEditor.IsLocked(row) ? 1 : 0; };
  for (const int place : {5, 1, 5}) {
    place == 1 ? FEditor.Redo() : FEditor.Undo();
    const int before = place == 1 ? 1 : 0;
    EXPECT_EQ(FPanel.GetCurrentRow(), FPanel.RowByNum(place));
    EXPECT_TRUE(FPanel.RowByNum(1 + before)->GetHidden());
    EXPECT_EQ(std::any_cast<int>(FPanel.RowByNum(1 + before)->GetOleObject()), 7);
    EXPECT_TRUE(FEditor.IsCollapsed(*FPanel.RowByNum(2 + before)));
    EXPECT_TRUE(FEditor.IsLocked(*FPanel.RowByNum(3 + before)));
    EXPECT_FALSE(FEditor.IsLocked(*FPanel.RowByNum(4 + before)));
    EXPECT_EQ(static_cast<TSimpleCond*>(FPanel.RowByNum(place))->GetParam(1)->GetDisplayName(), "Which company?");
  }
  EXPECT_EQ(locked, 3);
  // A row that is gone comes back as it was.
  FEditor.SetLocked(*FPanel.RowByNum(3), false);
  FPanel.SetCurrentRow(FPanel.RowByNum(4));
  FEditor.Delete(*FPanel.RowByNum(1));
  FEditor.Undo();
  EXPECT_TRUE(FPanel.RowByNum(1)->GetHidden());
}

TEST_F(Undo, GoesBackToTheCurrentRowOfTheTime) {
  Build("A B C D");
  FPanel.SetCurrentRow(FPanel.RowByNum(3));
  FEditor.Delete(*FPanel.RowByNum(3));
  FPanel.SetCurrentRow(FPanel.RowByNum(1));
  FEditor.Undo();
  EXPECT_EQ(FPanel.GetCurrentRow(), FPanel.RowByNum(3));
  FPanel.SetCurrentRow(FPanel.RowByNum(4));
  static_cast<TSimpleCond*>(FPanel.GetCurrentRow())->SetValue(1, "E");
  FEditor.NoteChange();
  FPanel.SetCurrentRow(nullptr);
  FEditor.Undo();
  EXPECT_EQ(FPanel.GetCurrentRow(), FPanel.RowByNum(4));
}

TEST_F(Undo, TheSavedStateIsUnmodified) {
  Build("A");
  FEditor.AddCondition(DefaultPlace(FPanel, nullptr));
  FPanel.SaveToText();
  FEditor.NoteSaved();
  FEditor.Undo();
  EXPECT_TRUE(FPanel.GetModified());
  FEditor.Redo();
  EXPECT_FALSE(FPanel.GetModified());
  FEditor.Undo();
  FEditor.AddBracket(DefaultPlace(FPanel, nullptr));
  EXPECT_TRUE(FPanel.GetModified());
}

TEST_F(Undo, ThePanelMayGoFirst) {
  auto panel = std::make_unique<TJQueryPanel>();
  panel->SetDBStruct(FModel.get());
  panel->SetActive(true);
  TPanelEditor editor(*panel);
  editor.AddCondition(DefaultPlace(*panel, nullptr));
  EXPECT_TRUE(editor.CanUndo());
  panel.reset();
  EXPECT_EQ(editor.GetPanel(), nullptr);
  editor.NoteChange();
  editor.BeginStep();
  editor.EndStep();
  for (const TPanelCommandInfo& info : PanelCommands()) EXPECT_FALSE(CanRun(editor, info.Command, nullptr));
}

TEST_F(Undo, StepsAreSmallInLargeQueries) {
  for (int i = 0; i < 1000; ++i) FPanel.RootBracket().AddCond().SetValue(1, std::to_string(i));
  FEditor.ClearHistory();
  const TQueryState before = TakeQueryState(FPanel, [](TFilterRow& row) { return TRowKey(row.GetSerial()); });
  FPanel.RootBracket().InsertRow(500, std::make_unique<TSimpleCond>(FPanel));
  const TQueryState after = TakeQueryState(FPanel, [](TFilterRow& row) { return TRowKey(row.GetSerial()); });
  const std::optional<TQueryStep> step = TQueryStep::Between(before, after);
  ASSERT_TRUE(step);
  EXPECT_EQ(step->PlacesBefore.size() + step->PlacesAfter.size(), 1u);
  EXPECT_EQ(step->Rows.size(), 2u);
}

/// One of the things that users and programs do, at random.
void ChangeAnything(TPanelEditor& editor, TRandom& random, const std::vector<std::string>& texts) {
  TJQueryPanel& panel = *editor.GetPanel();
  TFilterRow* row =
      panel.RowByNum(static_cast<int>(random.Below(std::size_t(panel.RootBracket().GetLastRowNum()) + 1)));
  if (random.Chance(50)) panel.SetCurrentRow(row);
  if (random.Chance(70)) {
    const TPanelCommand command = PanelCommands()[random.Below(pcUndo)].Command;
    RunCommand(editor, command, row, command == pcAddCustomCond ? 0 : int(random.Between(1, 2)));
    return;
  }
  switch (random.Below(5)) {
    case 0:
      if (row->GetRowType() == frtBracket) {
        static_cast<TFilterBracket*>(row)->SetLinkType(static_cast<TFilterLinkType>(random.Below(4)));
      } else {
        static_cast<TFilterCond*>(row)->SetValue(1, std::to_string(random.Below(100)));
      }
      break;
    case 1:
      row->SetEnabled(random.Chance(50));
      break;
    case 2:
      panel.SetQueryName(std::to_string(random.Below(100)));
      break;
    case 3:
      panel.LoadFromText(random.Of(texts));
      break;
    default:
      if (row->GetParentBracket() != nullptr) row->GetParentBracket()->DeleteRow(row->GetRowIndex());
  }
  editor.NoteChange();
}

TEST(UndoOfAnything, LeadsThroughTheSameTexts) {
  for (unsigned seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    TRandom random(seed);
    const std::unique_ptr<TJDBStructure> model = TModelMaker(random).Make();
    TJQueryPanel panel;
    panel.SetDBStruct(model.get());
    panel.SetAllowSQLFragments(true);
    TQueryMaker(random).Fill(panel);
    TPanelEditor editor(panel);
    std::vector<std::string> texts{panel.SaveToText()};
    for (int i = 0; i < 40; ++i) {
      ChangeAnything(editor, random, texts);
      ASSERT_GE(texts.size() + 1, editor.GetUndoCount() + 1);
      if (editor.GetUndoCount() == texts.size()) texts.push_back(panel.SaveToText());
      ASSERT_EQ(panel.SaveToText(), texts.back());
    }
    for (int round = 0; round < 2; ++round) {
      for (std::size_t step = texts.size() - 1; step > 0; --step) {
        editor.Undo();
        ASSERT_EQ(panel.SaveToText(), texts[step - 1]);
      }
      EXPECT_FALSE(editor.CanUndo());
      for (std::size_t step = 1; step < texts.size(); ++step) {
        editor.Redo();
        ASSERT_EQ(panel.SaveToText(), texts[step]);
      }
      EXPECT_FALSE(editor.CanRedo());
    }
  }
}

}  // namespace
}  // namespace tolvi
