#include <iterator>
#include <optional>
#include <span>
#include <utility>

#include <tolvi/foundation/text.h>
#include <tolvi/panel/paneleditor.h>
#include <tolvi/panel/panelmenus.h>

namespace tolvi {
namespace {

/// An entry of a menu as the tables below list them: nothing for a separator.
using TEntry = std::optional<TPanelCommand>;
constexpr TEntry Separator;

constexpr TEntry RowEntries[] = {
    pcAddCondAfter, pcAddBracketAfter, pcAddCondInside, pcAddBracketInside,
    Separator,      pcAddCustomCond,   Separator,       pcDelete,
    Separator,      pcEnable,          Separator,       pcDuplicate,
    pcWrap,         pcUngroup,         pcCollapse,      pcExpand,
    pcLock,         Separator,         pcMoveUp,        pcMoveDown,
    pcMoveOut,      pcMoveInto,        Separator,       pcCut,
    pcCopy,         pcPaste,           Separator,       pcUndo,
    pcRedo,
};
constexpr TEntry AddEntries[] = {pcAddCond, pcAddBracket, pcAddCustomCond, Separator, pcPaste};
// What is possible when a failed import has left the panel inactive.
constexpr TEntry InactiveEntries[] = {pcUndo, pcRedo};
constexpr TEntry ValueEntries[] = {pcConstant, pcParameter, pcSubQuery};
constexpr TEntry ListEntries[] = {pcConstant, pcParameter, pcSubQuery, Separator, pcValueList};

/// A sentence with places for values as a caption.
std::string ConditionCaption(const TDSCondition& condition) {
  const std::string caption = ReplaceStr(condition.GetDisplayFormat(), "&", "&&");
  return condition.Values().Count() > 0 ? ReplaceStr(caption, "@", "…") : caption;
}

TPanelMenu CustomConditions(const TPanelEditor& editor, TFilterRow* row) {
  TPanelMenu items;
  int index = 0;
  for (const TDSCondition& condition : editor.GetPanel()->GetDBStruct()->Conditions()) {
    TPanelMenuItem item;
    item.Command = pcAddCustomCond;
    item.Argument = index++;
    item.Caption = ConditionCaption(condition);
    item.Enabled = CanRun(editor, item.Command, row, item.Argument);
    items.push_back(std::move(item));
  }
  return items;
}

TPanelMenu MakeMenu(const TPanelEditor& editor, const TCommandTitles& titles, std::span<const TEntry> entries,
                    TFilterRow* row, int argument = -1) {
  TPanelMenu menu;
  if (editor.GetPanel() == nullptr) return menu;
  if (!editor.IsActive()) {
    if (!editor.CanUndo() && !editor.CanRedo()) return menu;
    entries = InactiveEntries;
  }
  for (const TEntry& entry : entries) {
    if (entry == pcLock && !editor.GetAllowLocking()) continue;
    TPanelMenuItem& item = menu.emplace_back();
    item.IsSeparator = !entry;
    if (item.IsSeparator) continue;
    item.Command = *entry;
    item.Argument = argument;
    item.Caption = titles.GetCaption(*entry, editor.GetPanel()->Titles());
    item.Enabled = CanRun(editor, *entry, row, argument);
    item.Checked = IsOn(editor, *entry, row, argument);
    if (*entry == pcAddCustomCond) item.Items = CustomConditions(editor, row);
  }
  return menu;
}

}  // namespace

TPanelMenu RowMenu(const TPanelEditor& editor, const TCommandTitles& titles, TFilterRow& row) {
  return MakeMenu(editor, titles, RowEntries, &row);
}

TPanelMenu AddMenu(const TPanelEditor& editor, const TCommandTitles& titles) {
  return MakeMenu(editor, titles, AddEntries, nullptr);
}

TPanelMenu ValueMenu(const TPanelEditor& editor, const TCommandTitles& titles, TFilterCond& condition, int index) {
  const bool isList = CanRun(editor, pcValueList, &condition, index);
  const auto entries = isList ? std::span<const TEntry>(ListEntries) : std::span<const TEntry>(ValueEntries);
  return MakeMenu(editor, titles, entries, &condition, index);
}

}  // namespace tolvi
