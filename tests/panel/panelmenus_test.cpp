#include <set>
#include <string>

#include <gtest/gtest.h>

#include "panel_fixture.h"
#include <tolvi/panel/panelmenus.h>

namespace tolvi {
namespace {

/// The captions, "-" for separators; "!" before what is not possible, "*" before what is checked.
std::string Captions(const TPanelMenu& menu) {
  std::string text;
  for (const TPanelMenuItem& item : menu) {
    text += item.IsSeparator ? "-" : std::string(item.Enabled ? "" : "!") + (item.Checked ? "*" : "") + item.Caption;
    text += "\n";
    if (!item.Items.empty()) text += "[" + Captions(item.Items) + "]\n";
  }
  return text;
}

using Menus = PanelEditorTest;

TEST_F(Menus, HoldTheCaptionsInTheirOrder) {
  Build("A (B)");
  EXPECT_EQ(Captions(RowMenu(FEditor, {}, *FPanel.RowByNum(1))), R"(Add new &condition (after current)
Open new &bracket (after current)
!Add new &condition (inside current)
!Open new &bracket (inside current)
-
Add custom condition
[Orders that have not been shipped
Sold between … and …
]
-
&Delete row
-
*&Enable/Disable row
-
Duplic&ate row
&Wrap in new bracket
!U&ngroup bracket
!Co&llapse bracket
!E&xpand bracket
-
!Move u&p
Mo&ve down
!Move &out of bracket
Move &into bracket
-
Cu&t
Cop&y
!Pa&ste
-
!&Undo
!&Redo
)");
  EXPECT_EQ(Captions(AddMenu(FEditor, {})), R"(Add new &condition
Open new &bracket
Add custom condition
[Orders that have not been shipped
Sold between … and …
]
-
!Pa&ste
)");
}

TEST_F(Menus, FollowRowTitlesAndHost) {
  Build("A (B)");
  FPanel.SetTitle("ttlAddCond", "Neue &Bedingung");
  FPanel.SetTitle("ttlAfterCurrent", "dahinter");
  TCommandTitles titles;
  titles.Assign({"[Query Panel Commands]", "cmdDuplicateRow=&Verdoppeln", "cmdNothing=x", "hlpUndo="});
  TPanelMenu menu = RowMenu(FEditor, titles, FPanel.RootBracket());
  EXPECT_EQ(menu[0].Caption, "Neue &Bedingung (dahinter)");
  EXPECT_FALSE(menu[0].Enabled);
  EXPECT_TRUE(menu[2].Enabled);
  EXPECT_EQ(menu[11].Caption, "&Verdoppeln");
  EXPECT_EQ(titles.Lines().Count(), TCommandTitles::DefaultLines().Count());
  EXPECT_EQ(titles.GetHelp(pcUndo), "Takes the last change back");
  FEditor.SetAllowLocking(true);
  FEditor.SetLocked(*FPanel.RowByNum(1), true);
  menu = RowMenu(FEditor, titles, *FPanel.RowByNum(1));
  EXPECT_EQ(menu[16].Command, pcLock);
  EXPECT_TRUE(menu[16].Checked && menu[16].Enabled);
  FModel->Conditions()[0].SetDisplayFormat("R&D @");
  EXPECT_EQ(menu[5].Items[0].Command, pcAddCustomCond);
  EXPECT_EQ(AddMenu(FEditor, titles)[2].Items[0].Caption, "R&&D …");
  FPanel.SetActive(false);
  EXPECT_TRUE(AddMenu(FEditor, titles).empty());
}

TEST_F(Menus, ValuesAreConstantParameterOrSubQuery) {
  Build("A");
  auto& condition = static_cast<TSimpleCond&>(*FPanel.RowByNum(1));
  EXPECT_EQ(Captions(ValueMenu(FEditor, {}, condition, 1)), "*Constant value\nParameter\n!Sub-query\n");
  EXPECT_TRUE(RunCommand(FEditor, pcParameter, &condition, 1));
  EXPECT_EQ(Captions(ValueMenu(FEditor, {}, condition, 1)), "Constant value\n*Parameter\n!Sub-query\n");
  EXPECT_EQ(Captions(ValueMenu(FEditor, {}, condition, 2)), "!*Constant value\n!Parameter\n!Sub-query\n");
  condition.SetField(FieldOf(*FModel, "Customers.CustNo"));
  condition.SetOperator(OperatorOf(*FModel, "InQuery"));
  EXPECT_EQ(Captions(ValueMenu(FEditor, {}, condition, 1)), "!Constant value\nParameter\n*Sub-query\n");
}

TEST(PanelCommands, AreOneTable) {
  std::set<std::string> names, keys;
  int number = 0;
  for (const TPanelCommandInfo& info : PanelCommands()) {
    EXPECT_EQ(info.Command, number++) << info.Name;
    EXPECT_TRUE(names.insert(std::string(info.Name)).second) << info.Name;
    EXPECT_EQ(CommandByName(info.Name), &info);
    EXPECT_NE(info.Title.empty(), info.Caption.empty()) << info.Name;
    EXPECT_FALSE(info.Help.empty()) << info.Name;
    std::string_view list = info.Keys;
    while (!list.empty()) {
      const std::size_t end = std::min(list.find("; "), list.size());
      EXPECT_TRUE(keys.insert(std::string(list.substr(0, end))).second) << info.Keys;
      list.remove_prefix(std::min(end + 2, list.size()));
    }
    EXPECT_FALSE(info.Keys.empty()) << info.Name;
  }
  EXPECT_EQ(CommandByName("Nothing"), nullptr);
  const TStrings help = CommandHelp(TCommandTitles(), TTitles());
  EXPECT_EQ(help.Count(), PanelCommands().size());
  EXPECT_EQ(help[pcDelete], "Delete row\tDel\tDeletes the current row with all that is in it");
  EXPECT_EQ(help[pcRedo], "Redo\tCtrl+Y; Ctrl+Shift+Z\tMakes the change again that was taken back last");
}

TEST_F(Menus, PredefinedConditionsNeedAChoice) {
  Build("A");
  EXPECT_TRUE(CanRun(FEditor, pcAddCustomCond, nullptr));
  EXPECT_FALSE(RunCommand(FEditor, pcAddCustomCond, nullptr));
  EXPECT_FALSE(CanRun(FEditor, pcAddCustomCond, nullptr, 2));
  EXPECT_TRUE(RunCommand(FEditor, pcAddCustomCond, nullptr, 1));
  FModel->Conditions().Delete(1).reset();
  EXPECT_TRUE(RunCommand(FEditor, pcAddCustomCond, nullptr));
  EXPECT_EQ(FPanel.RootBracket().GetRowCount(), 3u);
  EXPECT_TRUE(IsViewCommand(pcOpenPart) && CanRun(FEditor, pcOpenPart, FPanel.RowByNum(1)));
  EXPECT_FALSE(RunCommand(FEditor, pcOpenPart, FPanel.RowByNum(1)));
}

}  // namespace
}  // namespace tolvi
