#include <QKeyEvent>
#include <QStringList>

#include <tolvi/query/titles.h>
#include <tolvi/ui/panels/qpactions.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

QList<QKeySequence> KeysOf(const TPanelCommandInfo& info, bool rightToLeft) {
  QList<QKeySequence> keys;
  for (QString key : ToQString(info.Keys).split(QStringLiteral("; "), Qt::SkipEmptyParts)) {
    if (rightToLeft && key.endsWith(QStringLiteral("Left"))) {
      key = key.chopped(4) + QStringLiteral("Right");
    } else if (rightToLeft && key.endsWith(QStringLiteral("Right"))) {
      key = key.chopped(5) + QStringLiteral("Left");
    }
    keys << QKeySequence(key, QKeySequence::PortableText);
  }
  return keys;
}

/// Whether the command switches something on and off, or chooses one of several kinds.
bool IsSwitch(TPanelCommand command) {
  return command == pcEnable || command == pcLock || (IsValueCommand(command) && command != pcValueList);
}

/// The key without what tells keyboards apart: the number block, and Shift for signs that need it on some.
QKeySequence PlainKey(const QKeyEvent& event) {
  Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
  if (event.key() == Qt::Key_Plus || event.key() == Qt::Key_Minus) modifiers &= ~Qt::ShiftModifier;
  return QKeySequence(static_cast<int>(modifiers) | event.key());
}

}  // namespace

TQPActions::TQPActions(QObject* parent, const TRun& run) : QObject(parent) {
  for (const TPanelCommandInfo& info : PanelCommands()) {
    auto* action = new QAction(parent);
    action->setObjectName(ToQString(info.Name));
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setCheckable(IsSwitch(info.Command));
    connect(action, &QAction::triggered, this, [run, command = info.Command] { run(command); });
    FActions.push_back(action);
  }
  SetRightToLeft(false);
  SetTexts(TCommandTitles(), TTitles());
}

void TQPActions::SetTexts(const TCommandTitles& commandTitles, const TTitles& titles) {
  for (const TPanelCommandInfo& info : PanelCommands()) {
    QAction& action = Get(info.Command);
    action.setText(ToQString(commandTitles.GetCaption(info.Command, titles)));
    action.setWhatsThis(ToQString(commandTitles.GetHelp(info.Command)));
    action.setStatusTip(action.whatsThis());
  }
}

void TQPActions::SetRightToLeft(bool on) {
  for (const TPanelCommandInfo& info : PanelCommands()) Get(info.Command).setShortcuts(KeysOf(info, on));
}

std::optional<TPanelCommand> TQPActions::CommandOf(const QKeyEvent& key) const {
  const QKeySequence pressed = PlainKey(key);
  for (const TPanelCommandInfo& info : PanelCommands()) {
    if (Get(info.Command).shortcuts().contains(pressed)) return info.Command;
  }
  return std::nullopt;
}

void TQPActions::FillMenu(QMenu& menu, const TPanelMenu& items,
                          const std::function<void(const TPanelMenuItem&)>& run) const {
  for (const TPanelMenuItem& item : items) {
    if (item.IsSeparator) {
      menu.addSeparator();
    } else if (!item.Items.empty()) {
      QMenu* inner = menu.addMenu(ToQString(item.Caption));
      inner->setEnabled(item.Enabled);
      inner->menuAction()->setObjectName(ToQString(InfoOf(item.Command).Name));
      FillMenu(*inner, item.Items, run);
    } else {
      QAction* action = menu.addAction(ToQString(item.Caption));
      const QAction& command = Get(item.Command);
      action->setObjectName(command.objectName());
      action->setEnabled(item.Enabled);
      action->setCheckable(IsSwitch(item.Command));
      action->setChecked(item.Checked);
      action->setWhatsThis(command.whatsThis());
      if (&menu == menu.window() && item.Argument < 0) {
        action->setShortcut(command.shortcut());
        action->setShortcutContext(Qt::WidgetShortcut);
        action->setShortcutVisibleInContextMenu(true);
      }
      connect(action, &QAction::triggered, &menu, [run, item] { run(item); });
    }
  }
}

}  // namespace tolvi
