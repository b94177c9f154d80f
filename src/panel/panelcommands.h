#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

class TFilterRow;
class TJQueryPanel;
class TPanelEditor;
class TTitles;

/// The commands of the query panel, in the order of the help page.
enum TPanelCommand : std::uint8_t {
  pcAddCondAfter,
  pcAddBracketAfter,
  pcAddCondInside,
  pcAddBracketInside,
  pcAddCond,
  pcAddBracket,
  pcAddCustomCond,
  pcDelete,
  pcEnable,
  pcConstant,
  pcParameter,
  pcSubQuery,
  pcValueList,
  pcDuplicate,
  pcWrap,
  pcUngroup,
  pcMoveUp,
  pcMoveDown,
  pcMoveOut,
  pcMoveInto,
  pcCollapse,
  pcExpand,
  pcLock,
  pcCut,
  pcCopy,
  pcPaste,
  pcUndo,
  pcRedo,
  pcPrevRow,
  pcNextRow,
  pcFirstRow,
  pcLastRow,
  pcPrevPart,
  pcNextPart,
  pcOpenPart,
  pcRowMenu,
  pcAddMenu,
};

/// What a program knows of a command before there is a panel.
struct TPanelCommandInfo {
  TPanelCommand Command;
  /// For programs, settings and the keys of texts.
  std::string_view Name;
  /// The panel titles of which the caption is made: the text, and in brackets the place. Empty where the caption is one
  /// of the command titles.
  std::string_view Title, PlaceTitle;
  /// Default texts (English); `TCommandTitles` holds those in use.
  std::string_view Caption, Help;
  /// Default keys, several divided by "; ": names of keys joined by "+" as in "Ctrl+Shift+Ins". In panels that are read
  /// from right to left, Left and Right change places.
  std::string_view Keys;
};

/// All commands, each at the index of its value.
TOLVI_CORE_API std::span<const TPanelCommandInfo> PanelCommands();
inline const TPanelCommandInfo& InfoOf(TPanelCommand command) { return PanelCommands()[command]; }
/// Null when there is none of that name.
TOLVI_CORE_API const TPanelCommandInfo* CommandByName(std::string_view name);

/// The texts of the commands that the panel's titles do not have: lines "cmdNAME=caption" and "hlpNAME=one line of
/// help" in the section "[Query Panel Commands]", which a host may replace or translate. "&" marks a menu accelerator.
class TOLVI_CORE_API TCommandTitles final {
 public:
  /// Starts with the default texts.
  TCommandTitles() : FLines(DefaultLines()) {}
  /// Default texts, replaced by those of `lines` (`LoadTitlesFromStrings`).
  void Assign(const TStrings& lines);
  const TStrings& Lines() const { return FLines; }
  static const TStrings& DefaultLines();

  /// The caption for menus, made of the panel's titles where they have it.
  std::string GetCaption(TPanelCommand command, const TTitles& titles) const;
  std::string GetHelp(TPanelCommand command) const;

 private:
  TStrings FLines;
};

/// The commands as a help page: lines of name, keys and help, divided by tabs. Names are captions without accelerators.
TOLVI_CORE_API TStrings CommandHelp(const TCommandTitles& commandTitles, const TTitles& titles);

/// Whether the command is possible for a row (null: none is current). `argument` is the index of the predefined
/// condition for `pcAddCustomCond` (-1: any), the value's index, 1 or 2, for the kinds of values; else it means
/// nothing. Commands about the parts of a row, and the choice among several predefined conditions, are the view's.
TOLVI_CORE_API bool CanRun(const TPanelEditor& editor, TPanelCommand command, TFilterRow* row, int argument = -1);
/// Whether the command is a switch, or one of several kinds of values, that is on for the row.
TOLVI_CORE_API bool IsOn(const TPanelEditor& editor, TPanelCommand command, const TFilterRow* row, int argument = -1);
/// Runs the command; the panel may be gone then. False when it is not possible or for the view to do. Raises what
/// `TPanelEditor` raises for texts that cannot be pasted.
TOLVI_CORE_API bool RunCommand(TPanelEditor& editor, TPanelCommand command, TFilterRow* row, int argument = -1);
/// Whether the command is about a value of the row.
constexpr bool IsValueCommand(TPanelCommand command) { return command >= pcConstant && command <= pcValueList; }
/// Whether only a view can run the command.
TOLVI_CORE_API bool IsViewCommand(TPanelCommand command);

}  // namespace tolvi
