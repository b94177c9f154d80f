#pragma once

class QMainWindow;

namespace tolvi {

class TJQueryPanelView;

/// Lists the keys of the window's menus and of the panel of conditions, as they are in use, with a line to search in
/// them.
void ShowShortcuts(QMainWindow& window, TJQueryPanelView& conditions);

}  // namespace tolvi
