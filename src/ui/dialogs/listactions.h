#pragma once

#include <QString>
#include <functional>
#include <vector>

#include <tolvi/ui/dialogs/signicon.h>
class QAbstractItemView;
class QBoxLayout;
class QKeySequence;
class QLineEdit;

namespace tolvi {

/// The text of a tool tip with the key behind it, where there is one.
QString WithKey(const QString& text, const QKeySequence& key);

/// An action of a list: a button of `row`, with a sign or else its text, and a key that works while the list has the
/// focus. What it does may destroy the list.
QAction* AddListAction(QAbstractItemView& list, QBoxLayout& row, const QString& text, TSign sign,
                       const QKeySequence& key, const std::function<void()>& run);

/// A line above a list in which one types what is sought in it. Keys: Ctrl+F in the parent goes to it, Up, Down and
/// Enter from it to the list, Escape empties it.
QLineEdit* MakeSearchLine(QAbstractItemView& list, const QString& accessibleName, QWidget& parent);

/// Selects these rows, and no others; the first becomes the current one and is brought into view. Negative ones do not
/// count.
void SelectRows(QAbstractItemView& list, const std::vector<int>& rows);

}  // namespace tolvi
