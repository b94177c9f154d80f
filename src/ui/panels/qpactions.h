// The commands of the query panel as actions, and its menus.
#pragma once

#include <QAction>
#include <QList>
#include <QMenu>
#include <functional>
#include <optional>
#include <vector>

#include <tolvi/panel/panelcommands.h>
#include <tolvi/panel/panelmenus.h>
#include <tolvi/ui/api.h>
class QKeyEvent;

namespace tolvi {

/// One action for each command: named like it, with its caption, keys and help. They are no short cuts of a window: the
/// view looks up which one a key means.
class TOLVI_WIDGETS_API TQPActions final : public QObject {
  Q_OBJECT

 public:
  using TRun = std::function<void(TPanelCommand command)>;

  TQPActions(QObject* parent, const TRun& run);

  QAction& Get(TPanelCommand command) const { return *FActions[command]; }
  /// Captions and help, from these texts; keys left and right change places from right to left.
  void SetTexts(const TCommandTitles& commandTitles, const TTitles& titles);
  void SetRightToLeft(bool on);
  /// Nothing for a key that is none of a command.
  std::optional<TPanelCommand> CommandOf(const QKeyEvent& key) const;
  /// Fills a menu. `run` gets the item chosen; the menu shows the keys of the commands.
  void FillMenu(QMenu& menu, const TPanelMenu& items, const std::function<void(const TPanelMenuItem&)>& run) const;

 private:
  std::vector<QAction*> FActions;
};

}  // namespace tolvi
