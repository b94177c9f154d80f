#pragma once

#include <QMessageBox>

namespace tolvi {

/// Asks in a message box with the title of the parent's window. The answer; `QMessageBox::NoButton` when the box goes
/// with its parent. Where "No" is among the buttons, it is the default.
int Ask(QWidget& parent, QMessageBox::Icon icon, const QString& text, const QString& further,
        QMessageBox::StandardButtons buttons);

}  // namespace tolvi
