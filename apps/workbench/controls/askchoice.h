#pragma once

#include <QMessageBox>
#include <QString>
#include <cstddef>
#include <optional>
#include <vector>

class QWidget;

namespace tolvi {

struct TChoice {
  /// Of the button, for scripts, behind the name of the box and a point.
  QString Name;
  QString Caption;
  /// What the system places and marks the button by.
  QMessageBox::ButtonRole Role = QMessageBox::AcceptRole;
};

/// Asks in a message box of that name. The number of the choice, of which the first is the default; nothing for Cancel,
/// which is always there, for Escape, and when the box is closed.
std::optional<std::size_t> AskChoice(QWidget* parent, const QString& name, const QString& question,
                                     const std::vector<TChoice>& choices);

}  // namespace tolvi
