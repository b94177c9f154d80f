#pragma once

#include <string>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/panel/panelcommands.h>

namespace tolvi {

class TFilterCond;

/// An item of a menu: a separator, a command, or a list of items below a caption.
struct TPanelMenuItem {
  bool IsSeparator = false;
  TPanelCommand Command = pcAddCond;
  /// What the command needs besides the row; see `CanRun`.
  int Argument = -1;
  /// With "&" before the accelerator; a real "&" is doubled.
  std::string Caption;
  bool Enabled = false;
  bool Checked = false;
  std::vector<TPanelMenuItem> Items;
};
using TPanelMenu = std::vector<TPanelMenuItem>;

/// The menu of a row: add after and inside, predefined conditions, delete, enable; then what else can be done with it.
TOLVI_CORE_API TPanelMenu RowMenu(const TPanelEditor& editor, const TCommandTitles& titles, TFilterRow& row);
/// The menu of the label at the end of the panel: add to the panel, paste. Undo and redo for an inactive panel.
TOLVI_CORE_API TPanelMenu AddMenu(const TPanelEditor& editor, const TCommandTitles& titles);
/// The menu of a value (1 or 2): what kind of value it is; the present one is checked. For a list that
/// is typed, its values as lines, too.
TOLVI_CORE_API TPanelMenu ValueMenu(const TPanelEditor& editor, const TCommandTitles& titles, TFilterCond& condition,
                                    int index);

}  // namespace tolvi
