#include "apps/workbench/window/shortcutsdlg.h"

#include <QAction>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <tolvi/panel/panelcommands.h>
#include <tolvi/ui/panels/querpnlview.h>

namespace tolvi {
namespace {

struct TTexts {
  Q_DECLARE_TR_FUNCTIONS(tolvi::TShortcuts)
};

/// Without accelerators.
QString Plain(QString caption) {
  caption = caption.section(u'\t', 0, 0);
  return caption.replace(QStringLiteral("&&"), QStringLiteral("\1")).remove(u'&').replace(u'\1', u'&');
}

void AddLine(QTreeWidgetItem& group, const QAction& action) {
  QStringList keys;
  for (const QKeySequence& key : action.shortcuts()) keys << key.toString(QKeySequence::NativeText);
  if (keys.isEmpty()) return;
  auto* line = new QTreeWidgetItem(&group, {Plain(action.text()), keys.join(QStringLiteral("  ·  "))});
  line->setToolTip(0, action.toolTip());
}

QTreeWidgetItem* AddGroup(QTreeWidget& tree, const QString& caption) {
  auto* group = new QTreeWidgetItem(&tree, {caption});
  QFont bold = tree.font();
  bold.setBold(true);
  group->setFont(0, bold);
  group->setExpanded(true);
  return group;
}

void Fill(QTreeWidget& tree, QMainWindow& window, TJQueryPanelView& conditions) {
  for (const QAction* top : window.menuBar()->actions()) {
    QTreeWidgetItem* group = AddGroup(tree, Plain(top->text()));
    for (const QAction* action : top->menu()->actions()) AddLine(*group, *action);
  }
  QTreeWidgetItem* group = AddGroup(tree, TTexts::tr("Among the conditions"));
  for (const TPanelCommandInfo& info : PanelCommands()) AddLine(*group, conditions.GetAction(info.Command));
  for (int i = tree.topLevelItemCount() - 1; i >= 0; --i) {
    if (tree.topLevelItem(i)->childCount() == 0) delete tree.takeTopLevelItem(i);
  }
}

void ShowFound(QTreeWidget& tree, const QString& wanted) {
  for (int i = 0; i < tree.topLevelItemCount(); ++i) {
    QTreeWidgetItem& group = *tree.topLevelItem(i);
    int found = 0;
    for (int j = 0; j < group.childCount(); ++j) {
      QTreeWidgetItem& line = *group.child(j);
      const bool isFound = (line.text(0) + u' ' + line.text(1)).contains(wanted, Qt::CaseInsensitive);
      line.setHidden(!isFound);
      found += isFound ? 1 : 0;
    }
    group.setHidden(found == 0);
  }
}

}  // namespace

void ShowShortcuts(QMainWindow& window, TJQueryPanelView& conditions) {
  QDialog dialog(&window);
  dialog.setObjectName(QStringLiteral("shortcuts"));
  dialog.setWindowTitle(TTexts::tr("Keyboard short cuts"));
  auto* search = new QLineEdit;
  search->setObjectName(QStringLiteral("shortcuts.search"));
  search->setPlaceholderText(TTexts::tr("Search"));
  search->setClearButtonEnabled(true);
  search->setAccessibleName(search->placeholderText());
  auto* tree = new QTreeWidget;
  tree->setObjectName(QStringLiteral("shortcuts.list"));
  tree->setHeaderLabels({TTexts::tr("Command"), TTexts::tr("Keys")});
  tree->setRootIsDecorated(false);
  tree->setAllColumnsShowFocus(true);
  tree->setUniformRowHeights(true);
  tree->setAccessibleName(dialog.windowTitle());
  Fill(*tree, window, conditions);
  tree->resizeColumnToContents(0);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  QObject::connect(search, &QLineEdit::textChanged, tree, [tree](const QString& wanted) { ShowFound(*tree, wanted); });
  auto* rows = new QVBoxLayout(&dialog);
  rows->addWidget(search);
  rows->addWidget(tree, 1);
  rows->addWidget(buttons);
  const QFontMetrics metrics = dialog.fontMetrics();
  dialog.resize(metrics.averageCharWidth() * 80, metrics.height() * 32);
  dialog.exec();
}

}  // namespace tolvi
