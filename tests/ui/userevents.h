// What users do, through the window system: keys and clicks go to the popup that is open, else to a window.
#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace tolvi::user {

inline void Settle() { QCoreApplication::processEvents(); }

inline QWidget* Popup() { return QApplication::activePopupWidget(); }

inline void Click(QWidget& widget, QPoint at) {
  QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, {}, widget.mapTo(widget.window(), at));
}
inline void Click(QWidget& widget) { Click(widget, widget.rect().center()); }
inline void RightClick(QWidget& widget) {
  QTest::mouseClick(widget.window()->windowHandle(), Qt::RightButton, {},
                    widget.mapTo(widget.window(), widget.rect().center()));
}

inline void Press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  Settle();
  QTest::keyClick(Popup() != nullptr ? Popup()->windowHandle() : window.windowHandle(), key, modifiers);
  Settle();
}

/// Types into the editor that is open, in place of what it holds.
inline void TypeOver(const QString& text) {
  QWidget* line = Popup()->focusProxy() != nullptr ? Popup()->focusProxy() : Popup();
  if (auto* edit = qobject_cast<QLineEdit*>(line)) edit->selectAll();
  for (const QChar letter : text) QTest::keyClick(line, letter.toLatin1());
}

/// Clicks the item of the menu that is open; false when it has none of that name.
inline bool ChooseFromMenu(const QString& objectName) {
  Settle();
  auto* menu = qobject_cast<QMenu*>(Popup());
  const QList<QAction*> actions = menu != nullptr ? menu->actions() : QList<QAction*>();
  for (QAction* action : actions) {
    if (action->objectName() != objectName) continue;
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    Settle();
    return true;
  }
  return false;
}

}  // namespace tolvi::user
