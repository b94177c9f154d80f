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
#include <QScrollBar>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace tolvi {
namespace {

struct TTexts {
  Q_DECLARE_TR_FUNCTIONS(tolvi::TShortcuts)
};

void AddGroup(QTreeWidget& tree, const QString& caption, const TKeyLines& lines) {
  if (lines.empty()) return;
  auto* group = new QTreeWidgetItem(&tree, {caption});
  QFont bold = tree.font();
  bold.setBold(true);
  group->setFont(0, bold);
  group->setExpanded(true);
  for (const TKeyLine& line : lines) {
    QStringList keys;
    for (const QKeySequence& key : line.Keys) keys << key.toString(QKeySequence::NativeText);
    new QTreeWidgetItem(group, {line.Command, keys.join(QStringLiteral("  ·  "))});
  }
}

void Fill(QTreeWidget& tree, QMainWindow& window, const TPaneKeys& panes) {
  for (const QAction* top : window.menuBar()->actions()) {
    AddGroup(tree, TKeyLine(top->text(), {}).Command, KeysOf(top->menu()->actions()));
  }
  AddGroup(tree, TTexts::tr("Among the conditions"), panes.Conditions);
  AddGroup(tree, TTexts::tr("In the list of queries"), panes.Queries);
  AddGroup(tree, TTexts::tr("Among the rows"), panes.Rows);
  AddGroup(tree, TTexts::tr("In the SQL"), panes.Sql);
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

void ShowShortcuts(QMainWindow& window, const TPaneKeys& panes) {
  QDialog dialog(&window);
  dialog.setObjectName(QStringLiteral("shortcuts"));
  dialog.setWindowTitle(TTexts::tr("Keyboard shortcuts"));
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
  Fill(*tree, window, panes);
  tree->resizeColumnToContents(0);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  QObject::connect(search, &QLineEdit::textChanged, tree, [tree](const QString& wanted) { ShowFound(*tree, wanted); });
  auto* rows = new QVBoxLayout(&dialog);
  rows->addWidget(search);
  rows->addWidget(tree, 1);
  rows->addWidget(buttons);
  const QFontMetrics metrics = dialog.fontMetrics();
  // Both columns whole, in every language.
  const QAbstractItemView& view = *tree;
  const int keys = view.sizeHintForColumn(1) + tree->verticalScrollBar()->sizeHint().width();
  const int around = 2 * tree->frameWidth() + rows->contentsMargins().left() + rows->contentsMargins().right();
  const int width = std::max(metrics.averageCharWidth() * 80, tree->columnWidth(0) + keys + around);
  dialog.resize(QSize(width, metrics.height() * 32).boundedTo(window.size()));
  dialog.exec();
}

}  // namespace tolvi
