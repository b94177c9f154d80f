#pragma once

#include "apps/workbench/controls/keyline.h"
class QMainWindow;

namespace tolvi {

/// The keys of panes that stand in no menu, or mean something else there.
struct TPaneKeys {
  TKeyLines Conditions, Queries, Rows, Sql;
};

/// Lists the keys of the window's menus and of its panes, as they are in use, with a line to search in them.
void ShowShortcuts(QMainWindow& window, const TPaneKeys& panes);

}  // namespace tolvi
