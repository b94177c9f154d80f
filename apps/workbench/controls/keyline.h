#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>
#include <vector>
class QAction;

namespace tolvi {

/// A command and the keys that run it, for people.
struct TKeyLine {
  /// `caption` may mark an accelerator.
  TKeyLine(const QString& caption, const QList<QKeySequence>& keys);

  QString Command;
  QList<QKeySequence> Keys;
};
using TKeyLines = std::vector<TKeyLine>;

/// Of the actions that have keys.
TKeyLines KeysOf(const QList<QAction*>& actions);

}  // namespace tolvi
