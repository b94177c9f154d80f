#include <algorithm>
#include <iterator>
#include <vector>

#include <tolvi/foundation/text.h>
#include <tolvi/panel/panelcommands.h>
#include <tolvi/panel/paneleditor.h>

namespace tolvi {
namespace {

constexpr TPanelCommandInfo Commands[] = {
    {pcAddCondAfter, "AddConditionAfter", "ttlAddCond", "ttlAfterCurrent", "",
     "Adds a condition behind the current row", "Alt+Ins"},
    {pcAddBracketAfter, "AddBracketAfter", "ttlAddBracket", "ttlAfterCurrent", "",
     "Adds a bracket behind the current row", "Alt+Shift+Ins"},
    {pcAddCondInside, "AddConditionInside", "ttlAddCond", "ttlInsideCurrent", "",
     "Adds a condition at the end of the current bracket", "Ctrl+Alt+Ins"},
    {pcAddBracketInside, "AddBracketInside", "ttlAddBracket", "ttlInsideCurrent", "",
     "Adds a bracket at the end of the current bracket", "Ctrl+Alt+Shift+Ins"},
    {pcAddCond, "AddCondition", "ttlAddCond", "", "", "Adds a condition: inside the current bracket or behind the row",
     "Ins"},
    {pcAddBracket, "AddBracket", "ttlAddBracket", "", "",
     "Adds a bracket: inside the current bracket or behind the row", "Shift+Ins"},
    {pcAddCustomCond, "AddCustomCondition", "ttlCustomCond", "", "", "Adds one of the ready-made conditions",
     "Ctrl+Shift+Ins"},
    {pcDelete, "DeleteRow", "ttlDelRow", "", "", "Deletes the current row with all that is in it", "Del"},
    {pcEnable, "EnableRow", "ttlEnableDisable", "", "", "Switches the current row on or off", "Ctrl+Space; Space"},
    {pcConstant, "ConstantValue", "ttlConstant", "", "", "The value is the one that is written here", "Ctrl+1"},
    {pcParameter, "ParameterValue", "ttlParameter", "", "", "The value is asked for each time the query runs",
     "Ctrl+2"},
    {pcSubQuery, "SubQueryValue", "ttlSubQueryCaption", "", "", "The value comes from a query of its own", "Ctrl+3"},
    {pcValueList, "ValueList", "", "", "Value &list...", "Edits the values of a list, one in a line", "Ctrl+4"},
    {pcDuplicate, "DuplicateRow", "", "", "Duplic&ate row", "Puts a copy behind the current row", "Ctrl+D"},
    {pcWrap, "WrapRow", "", "", "&Wrap in new bracket", "Puts the current row into a new bracket", "Ctrl+G"},
    {pcUngroup, "UngroupBracket", "", "", "U&ngroup bracket", "Replaces the current bracket by its rows",
     "Ctrl+Shift+G"},
    {pcMoveUp, "MoveUp", "", "", "Move u&p", "Moves the row before the one above it", "Alt+Up"},
    {pcMoveDown, "MoveDown", "", "", "Mo&ve down", "Moves the row behind the one below it", "Alt+Down"},
    {pcMoveOut, "MoveOut", "", "", "Move &out of bracket", "Moves the row out of its bracket", "Alt+Left"},
    {pcMoveInto, "MoveInto", "", "", "Move &into bracket", "Moves the row into the bracket beside it", "Alt+Right"},
    {pcCollapse, "CollapseBracket", "", "", "Co&llapse bracket", "Shows the bracket in one line", "-"},
    {pcExpand, "ExpandBracket", "", "", "E&xpand bracket", "Shows the rows of the bracket", "+"},
    {pcLock, "LockRow", "", "", "Loc&k/Unlock row", "Keeps the row from being changed", "Ctrl+L"},
    {pcCut, "Cut", "", "", "Cu&t", "Takes the current row out and keeps it to be pasted", "Ctrl+X"},
    {pcCopy, "Copy", "", "", "Cop&y", "Keeps a copy of the current row to be pasted", "Ctrl+C"},
    {pcPaste, "Paste", "", "", "Pa&ste", "Adds the rows that were cut or copied", "Ctrl+V"},
    {pcUndo, "Undo", "", "", "&Undo", "Takes the last change back", "Ctrl+Z"},
    {pcRedo, "Redo", "", "", "&Redo", "Makes the change again that was taken back last", "Ctrl+Y; Ctrl+Shift+Z"},
    {pcPrevRow, "PreviousRow", "", "", "Previous row", "Goes to the row above", "Up"},
    {pcNextRow, "NextRow", "", "", "Next row", "Goes to the row below", "Down"},
    {pcFirstRow, "FirstRow", "", "", "First row", "Goes to the first row", "Home"},
    {pcLastRow, "LastRow", "", "", "Last row", "Goes to the last row", "End"},
    {pcPrevPart, "PreviousPart", "", "", "Previous part", "Goes to the part before this one in its row",
     "Left; Shift+Tab"},
    {pcNextPart, "NextPart", "", "", "Next part", "Goes to the next part of the row", "Right; Tab"},
    {pcOpenPart, "OpenPart", "", "", "Change part", "Opens the list or the text of the part", "Return; Enter; F2"},
    {pcRowMenu, "RowMenu", "", "", "Row menu", "Opens the menu of the current row", "Menu; Shift+F10"},
    {pcAddMenu, "AddMenu", "", "", "Add menu", "Opens the menu of what can be added at the end", "Ctrl+Shift+A"},
};

constexpr std::string_view TitlesHeader = "[Query Panel Commands]", CaptionPrefix = "cmd", HelpPrefix = "hlp";

std::string KeyOf(std::string_view prefix, const TPanelCommandInfo& info) {
  return std::string(prefix) + std::string(info.Name);
}

}  // namespace

std::span<const TPanelCommandInfo> PanelCommands() { return Commands; }

const TPanelCommandInfo* CommandByName(std::string_view name) {
  const auto found = std::find_if(std::begin(Commands), std::end(Commands),
                                  [name](const TPanelCommandInfo& info) { return SameText(info.Name, name); });
  return found != std::end(Commands) ? &*found : nullptr;
}

// Texts

const TStrings& TCommandTitles::DefaultLines() {
  static const TStrings lines = [] {
    TStrings result{TitlesHeader};
    for (const TPanelCommandInfo& info : Commands) {
      if (info.Title.empty()) result.SetValue(KeyOf(CaptionPrefix, info), info.Caption);
      result.SetValue(KeyOf(HelpPrefix, info), info.Help);
    }
    return result;
  }();
  return lines;
}

void TCommandTitles::Assign(const TStrings& lines) { LoadTitlesFromStrings(DefaultLines(), FLines, lines); }

std::string TCommandTitles::GetCaption(TPanelCommand command, const TTitles& titles) const {
  const TPanelCommandInfo& info = InfoOf(command);
  if (info.Title.empty()) return FLines.Value(KeyOf(CaptionPrefix, info));
  std::string caption = titles.GetTitle(info.Title);
  if (!info.PlaceTitle.empty()) caption += " (" + titles.GetTitle(info.PlaceTitle) + ")";
  return caption;
}

std::string TCommandTitles::GetHelp(TPanelCommand command) const {
  return FLines.Value(KeyOf(HelpPrefix, InfoOf(command)));
}

TStrings CommandHelp(const TCommandTitles& commandTitles, const TTitles& titles) {
  TStrings lines;
  for (const TPanelCommandInfo& info : Commands) {
    std::string caption = ReplaceStr(commandTitles.GetCaption(info.Command, titles), "&&", "\n");
    caption = ReplaceStr(ReplaceStr(caption, "&", ""), "\n", "&");
    lines.Add(caption + "\t" + std::string(info.Keys) + "\t" + commandTitles.GetHelp(info.Command));
  }
  return lines;
}

// Running

namespace {

/// A row that a command acts on.
struct TTarget {
  TFilterRow* Row;
  int Argument;

  /// The condition whose value the argument names; null when there is none.
  TFilterCond* Condition() const {
    if (Row == nullptr || Row->GetRowType() == frtBracket) return nullptr;
    auto* condition = static_cast<TFilterCond*>(Row);
    return Argument >= 1 && Argument <= condition->GetValueCount() ? condition : nullptr;
  }
};

bool HasFields(const TPanelEditor& editor) {
  if (!editor.IsActive()) return false;
  const auto& fields = editor.GetPanel()->GetDBStruct()->Fields();
  return std::any_of(fields.begin(), fields.end(), [](const TDSField& field) { return field.GetUseInConditions(); });
}

TRowPlace After(const TTarget& target) { return target.Row != nullptr ? PlaceAfter(*target.Row) : TRowPlace{}; }
TRowPlace Inside(const TTarget& target) { return target.Row != nullptr ? PlaceInside(*target.Row) : TRowPlace{}; }
TRowPlace ByDefault(const TPanelEditor& editor, const TTarget& target) {
  return editor.IsActive() ? DefaultPlace(*editor.GetPanel(), target.Row) : TRowPlace{};
}

/// The predefined condition that the argument names, or the only one; null when there is none.
TDSCondition* CustomCondition(const TPanelEditor& editor, int argument) {
  TDSConditionList& conditions = editor.GetPanel()->GetDBStruct()->Conditions();
  if (argument < 0 && conditions.Count() == 1) argument = 0;
  const auto index = static_cast<std::size_t>(argument);
  return argument >= 0 && index < conditions.Count() ? &conditions[index] : nullptr;
}

using TPlaceFinder = TRowPlace (TPanelEditor::*)(const TFilterRow&) const;

template <TPlaceFinder Find>
bool CanMoveTo(const TPanelEditor& editor, const TTarget& target) {
  return target.Row != nullptr && editor.CanMove(*target.Row, (editor.*Find)(*target.Row));
}
template <TPlaceFinder Find>
void MoveTo(TPanelEditor& editor, const TTarget& target) {
  editor.Move(*target.Row, (editor.*Find)(*target.Row));
}

/// Goes to the visible row at an index made of the target's one and the number of rows.
using TNextIndex = std::ptrdiff_t (*)(std::ptrdiff_t at, std::ptrdiff_t count);

template <TNextIndex Next>
TFilterRow* RowToGo(const TPanelEditor& editor, const TTarget& target) {
  const std::vector<TFilterRow*> rows = editor.VisibleRows();
  const std::ptrdiff_t at = std::find(rows.begin(), rows.end(), target.Row) - rows.begin();
  const auto count = static_cast<std::ptrdiff_t>(rows.size());
  const std::ptrdiff_t next = at < count ? Next(at, count) : (count > 0 ? 0 : -1);
  return next >= 0 && next < count ? rows[static_cast<std::size_t>(next)] : nullptr;
}
template <TNextIndex Next>
bool CanGo(const TPanelEditor& editor, const TTarget& target) {
  const TFilterRow* row = RowToGo<Next>(editor, target);
  return row != nullptr && row != target.Row;
}
template <TNextIndex Next>
void Go(TPanelEditor& editor, const TTarget& target) {
  editor.GetPanel()->SetCurrentRow(RowToGo<Next>(editor, target));
}

std::ptrdiff_t Above(std::ptrdiff_t at, std::ptrdiff_t) { return at - 1; }
std::ptrdiff_t Below(std::ptrdiff_t at, std::ptrdiff_t) { return at + 1; }
std::ptrdiff_t First(std::ptrdiff_t, std::ptrdiff_t) { return 0; }
std::ptrdiff_t Last(std::ptrdiff_t, std::ptrdiff_t count) { return count - 1; }

template <bool Collapsed>
bool CanCollapse(const TPanelEditor& editor, const TTarget& target) {
  return editor.IsActive() && target.Row != nullptr && target.Row->GetRowType() == frtBracket &&
         editor.IsCollapsed(*target.Row) != Collapsed &&
         (!Collapsed || static_cast<TFilterBracket*>(target.Row)->GetRowCount() > 0);
}

/// Whether the value is a list that is typed, rather than chosen from items.
bool CanEditList(const TPanelEditor& editor, const TTarget& target) {
  const TFilterCond* condition = target.Condition();
  return condition != nullptr && editor.CanEdit(*condition) && target.Argument >= 1 &&
         target.Argument <= condition->GetValueCount() && condition->GetValueKind(target.Argument) == vkList &&
         !condition->GetValueIsParam(target.Argument) &&
         dynamic_cast<const TDSListEditor*>(condition->GetValueEditor(target.Argument)) == nullptr;
}

template <bool IsParam>
bool CanSetParam(const TPanelEditor& editor, const TTarget& target) {
  const TFilterCond* condition = target.Condition();
  return condition != nullptr && editor.CanEdit(*condition) &&
         (IsParam || condition->GetValueKind(target.Argument) != vkSubQuery);
}
template <bool IsParam>
void SetParam(TPanelEditor& editor, const TTarget& target) {
  editor.SetValueIsParam(*target.Condition(), target.Argument, IsParam);
}

struct TCommandRule {
  TPanelCommand Command;
  bool (*Can)(const TPanelEditor&, const TTarget&);
  void (*Do)(TPanelEditor&, const TTarget&);
};

using TEditor = TPanelEditor;

constexpr TCommandRule Rules[] = {
    {pcAddCondAfter,
     [](const TEditor& editor, const TTarget& at) { return editor.CanAdd(After(at)) && HasFields(editor); },
     [](TEditor& editor, const TTarget& at) { editor.AddCondition(After(at)); }},
    {pcAddBracketAfter, [](const TEditor& editor, const TTarget& at) { return editor.CanAdd(After(at)); },
     [](TEditor& editor, const TTarget& at) { editor.AddBracket(After(at)); }},
    {pcAddCondInside,
     [](const TEditor& editor, const TTarget& at) { return editor.CanAdd(Inside(at)) && HasFields(editor); },
     [](TEditor& editor, const TTarget& at) { editor.AddCondition(Inside(at)); }},
    {pcAddBracketInside, [](const TEditor& editor, const TTarget& at) { return editor.CanAdd(Inside(at)); },
     [](TEditor& editor, const TTarget& at) { editor.AddBracket(Inside(at)); }},
    {pcAddCond,
     [](const TEditor& editor, const TTarget& at) { return editor.CanAdd(ByDefault(editor, at)) && HasFields(editor); },
     [](TEditor& editor, const TTarget& at) { editor.AddCondition(ByDefault(editor, at)); }},
    {pcAddBracket, [](const TEditor& editor, const TTarget& at) { return editor.CanAdd(ByDefault(editor, at)); },
     [](TEditor& editor, const TTarget& at) { editor.AddBracket(ByDefault(editor, at)); }},
    {pcAddCustomCond,
     [](const TEditor& editor, const TTarget& at) {
       return editor.CanAdd(ByDefault(editor, at)) &&
              (at.Argument < 0 ? editor.GetPanel()->GetDBStruct()->Conditions().Count() > 0
                               : CustomCondition(editor, at.Argument) != nullptr);
     },
     [](TEditor& editor, const TTarget& at) {
       editor.AddCustomCondition(ByDefault(editor, at), *CustomCondition(editor, at.Argument));
     }},
    {pcDelete, [](const TEditor& editor, const TTarget& at) { return at.Row != nullptr && editor.CanDelete(*at.Row); },
     [](TEditor& editor, const TTarget& at) { editor.Delete(*at.Row); }},
    {pcEnable,
     [](const TEditor& editor, const TTarget& at) {
       // Without its root, a query would be one of all records.
       return at.Row != nullptr && at.Row->GetParentBracket() != nullptr && editor.CanEdit(*at.Row);
     },
     [](TEditor& editor, const TTarget& at) { editor.SetEnabled(*at.Row, !at.Row->GetEnabled()); }},
    {pcConstant, CanSetParam<false>, SetParam<false>},
    {pcParameter, CanSetParam<true>, SetParam<true>},
    {pcSubQuery,
     [](const TEditor& editor, const TTarget& at) {
       return CanSetParam<true>(editor, at) && at.Condition()->GetValueKind(at.Argument) == vkSubQuery;
     },
     SetParam<false>},
    {pcDuplicate,
     [](const TEditor& editor, const TTarget& at) { return at.Row != nullptr && editor.CanDuplicate(*at.Row); },
     [](TEditor& editor, const TTarget& at) { editor.Duplicate(*at.Row); }},
    {pcWrap, [](const TEditor& editor, const TTarget& at) { return at.Row != nullptr && editor.CanWrap(*at.Row); },
     [](TEditor& editor, const TTarget& at) { editor.Wrap(*at.Row); }},
    {pcUngroup,
     [](const TEditor& editor, const TTarget& at) { return at.Row != nullptr && editor.CanUngroup(*at.Row); },
     [](TEditor& editor, const TTarget& at) { editor.Ungroup(*at.Row); }},
    {pcMoveUp, CanMoveTo<&TEditor::PlaceAbove>, MoveTo<&TEditor::PlaceAbove>},
    {pcMoveDown, CanMoveTo<&TEditor::PlaceBelow>, MoveTo<&TEditor::PlaceBelow>},
    {pcMoveOut, CanMoveTo<&TEditor::PlaceOutside>, MoveTo<&TEditor::PlaceOutside>},
    {pcMoveInto, CanMoveTo<&TEditor::PlaceInNeighbour>, MoveTo<&TEditor::PlaceInNeighbour>},
    {pcCollapse, CanCollapse<true>, [](TEditor& editor, const TTarget& at) { editor.SetCollapsed(*at.Row, true); }},
    {pcExpand, CanCollapse<false>, [](TEditor& editor, const TTarget& at) { editor.SetCollapsed(*at.Row, false); }},
    {pcLock,
     [](const TEditor& editor, const TTarget& at) {
       return editor.GetAllowLocking() && editor.IsActive() && at.Row != nullptr;
     },
     [](TEditor& editor, const TTarget& at) { editor.ToggleLock(*at.Row); }},
    {pcCut, [](const TEditor& editor, const TTarget& at) { return at.Row != nullptr && editor.CanDelete(*at.Row); },
     [](TEditor& editor, const TTarget& at) { editor.Cut(*at.Row); }},
    {pcCopy, [](const TEditor& editor, const TTarget& at) { return at.Row != nullptr && editor.IsActive(); },
     [](TEditor& editor, const TTarget& at) { editor.SetClipboard(editor.CopyText(*at.Row)); }},
    {pcPaste,
     [](const TEditor& editor, const TTarget& at) {
       return editor.CanAdd(ByDefault(editor, at)) && TEditor::CanPasteText(editor.GetClipboard());
     },
     [](TEditor& editor, const TTarget& at) { editor.PasteText(editor.GetClipboard(), ByDefault(editor, at)); }},
    {pcUndo, [](const TEditor& editor, const TTarget&) { return editor.CanUndo(); },
     [](TEditor& editor, const TTarget&) { editor.Undo(); }},
    {pcRedo, [](const TEditor& editor, const TTarget&) { return editor.CanRedo(); },
     [](TEditor& editor, const TTarget&) { editor.Redo(); }},
    {pcPrevRow, CanGo<Above>, Go<Above>},
    {pcNextRow, CanGo<Below>, Go<Below>},
    {pcFirstRow, CanGo<First>, Go<First>},
    {pcLastRow, CanGo<Last>, Go<Last>},
};

const TCommandRule* RuleOf(TPanelCommand command) {
  const auto found = std::find_if(std::begin(Rules), std::end(Rules),
                                  [command](const TCommandRule& rule) { return rule.Command == command; });
  return found != std::end(Rules) ? &*found : nullptr;
}

}  // namespace

bool IsViewCommand(TPanelCommand command) { return RuleOf(command) == nullptr; }

bool IsOn(const TPanelEditor& editor, TPanelCommand command, const TFilterRow* row, int argument) {
  if (row == nullptr) return false;
  if (command == pcEnable) return row->GetEnabled();
  if (command == pcLock) return editor.IsLocked(*row);
  if (row->GetRowType() == frtBracket || (argument != 1 && argument != 2)) return false;
  if (command != pcConstant && command != pcParameter && command != pcSubQuery) return false;
  const auto& condition = static_cast<const TFilterCond&>(*row);
  if (condition.GetValueIsParam(argument)) return command == pcParameter;
  return command == (condition.GetValueKind(argument) == vkSubQuery ? pcSubQuery : pcConstant);
}

bool CanRun(const TPanelEditor& editor, TPanelCommand command, TFilterRow* row, int argument) {
  if (command == pcValueList) return CanEditList(editor, {row, argument});
  const TCommandRule* rule = RuleOf(command);
  if (rule != nullptr) return rule->Can(editor, {row, argument});
  return editor.IsActive() && (row != nullptr || command == pcAddMenu);
}

bool RunCommand(TPanelEditor& editor, TPanelCommand command, TFilterRow* row, int argument) {
  const TCommandRule* rule = RuleOf(command);
  if (rule == nullptr || !rule->Can(editor, {row, argument})) return false;
  if (command == pcAddCustomCond && CustomCondition(editor, argument) == nullptr) return false;
  rule->Do(editor, {row, argument});
  return true;
}

}  // namespace tolvi
