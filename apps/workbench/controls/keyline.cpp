#include "apps/workbench/controls/keyline.h"

#include <QAction>

namespace tolvi {
namespace {

QString Plain(QString caption) {
  caption = caption.section(u'\t', 0, 0);
  return caption.replace(QStringLiteral("&&"), QStringLiteral("\1")).remove(u'&').replace(u'\1', u'&');
}

}  // namespace

TKeyLine::TKeyLine(const QString& caption, const QList<QKeySequence>& keys) : Command(Plain(caption)), Keys(keys) {}

TKeyLines KeysOf(const QList<QAction*>& actions) {
  TKeyLines lines;
  for (const QAction* action : actions) {
    if (!action->shortcuts().isEmpty()) lines.emplace_back(action->text(), action->shortcuts());
  }
  return lines;
}

}  // namespace tolvi
