#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>
#include <string>
#include <utility>

#include <tolvi/foundation/numbers.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/rfldrows.h>
#include <tolvi/ui/controls/itemmodel.h>
#include <tolvi/ui/dialogs/fieldtree.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

enum TRole { RoleID = Qt::UserRole, RoleFolded };

QStandardItem* MakeItem(const QString& text, Qt::ItemFlags flags) {
  auto* item = new QStandardItem(text);
  item->setFlags(flags);
  item->setData(FoldedForSearch(text), RoleFolded);
  item->setToolTip(PlainToolTip(text));
  return item;
}

bool IsField(const QModelIndex& index) { return index.data(RoleID).isValid(); }

}  // namespace

class TFieldTree::TFilter final : public QSortFilterProxyModel {
 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

  void Find(const QString& text) {
    FFolded = FoldedForSearch(text.trimmed());
    invalidateFilter();
  }

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    return FFolded.isEmpty() || index.data(RoleFolded).toString().contains(FFolded);
  }

 private:
  QString FFolded;
};

TFieldTree::TFieldTree(QWidget* parent)
    : QWidget(parent),
      FItems(new QStandardItemModel(this)),
      FFilter(new TFilter(this)),
      FSearch(new QLineEdit(this)),
      FTree(new QTreeView(this)) {
  FFilter->setRecursiveFilteringEnabled(true);
  FFilter->setAutoAcceptChildRows(true);
  FFilter->setSourceModel(FItems);
  FSearch->setClearButtonEnabled(true);
  FSearch->setPlaceholderText(tr("Find"));
  FSearch->setAccessibleName(tr("Find a field"));
  FTree->setModel(FFilter);
  FTree->setHeaderHidden(true);
  FTree->setUniformRowHeights(true);
  FTree->setSelectionMode(QAbstractItemView::ExtendedSelection);
  FTree->setEditTriggers(QAbstractItemView::NoEditTriggers);
  FTree->setExpandsOnDoubleClick(true);
  FTree->setMinimumWidth(28 * fontMetrics().averageCharWidth());
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(FSearch);
  layout->addWidget(FTree);
  for (QWidget* widget : {static_cast<QWidget*>(FSearch), static_cast<QWidget*>(FTree)}) {
    widget->installEventFilter(this);
  }
  connect(FSearch, &QLineEdit::textChanged, this, &TFieldTree::Find);
  connect(FTree, &QAbstractItemView::doubleClicked, this, &TFieldTree::Choose);
  connect(FTree->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    if (OnSelect) OnSelect();
  });
}

void TFieldTree::ShowFields(const TJCustomDBStructure* model) {
  const std::uint64_t revision = model != nullptr ? model->GetRevision() : 0;
  if (model == FModel && revision == FRevision) return;
  FModel = model;
  FRevision = revision;
  FItems->clear();
  if (model == nullptr) return;
  std::string groupName;
  QStandardItem* group = FItems->invisibleRootItem();
  for (const TRFItem& field : ResultFieldItems(*model)) {
    if (field.Group != std::exchange(groupName, field.Group)) {
      group = FItems->invisibleRootItem();
      if (!groupName.empty()) {
        group = MakeItem(ToQString(groupName), Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        FItems->appendRow(group);
      }
    }
    QStandardItem* item =
        MakeItem(ToQString(field.Text), Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren);
    item->setData(ToQString(field.Value), RoleID);
    group->appendRow(item);
  }
  // Few groups are seen at a glance.
  if (FItems->rowCount() < 8 || !FSearch->text().isEmpty()) FTree->expandAll();
  SelectFirst();
}

void TFieldTree::SelectFirst() {
  QModelIndex first = FFilter->index(0, 0);
  if (FTree->isExpanded(first) && FFilter->hasChildren(first)) first = FFilter->index(0, 0, first);
  FTree->setCurrentIndex(first);
}

void TFieldTree::Find(const QString& text) {
  FFilter->Find(text);
  if (!text.trimmed().isEmpty()) FTree->expandAll();
  if (!IsField(FTree->currentIndex()) || !FTree->selectionModel()->hasSelection()) SelectFirst();
  FTree->scrollTo(FTree->currentIndex());
}

std::vector<TDSField*> TFieldTree::SelectedFields() const {
  std::vector<TDSField*> fields;
  if (FModel == nullptr) return fields;
  QModelIndexList selected = FFilter->mapSelectionToSource(FTree->selectionModel()->selection()).indexes();
  // By the path from the root.
  std::sort(selected.begin(), selected.end(), [](const QModelIndex& one, const QModelIndex& other) {
    const auto path = [](const QModelIndex& index) {
      return index.parent().isValid() ? std::pair(index.parent().row(), index.row()) : std::pair(index.row(), -1);
    };
    return path(one) < path(other);
  });
  for (const QModelIndex& index : selected) {
    if (!IsField(index)) continue;
    if (TDSField* field = FModel->FieldByID(index.data(RoleID).toInt())) fields.push_back(field);
  }
  return fields;
}

void TFieldTree::Choose(const QModelIndex& index) {
  if (IsField(index) && OnChoose) OnChoose();
}

bool TFieldTree::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent&>(*event).key();
  if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    if (static_cast<QKeyEvent&>(*event).modifiers() & Qt::ControlModifier) return false;
    const QModelIndex current = FTree->currentIndex();
    if (IsField(current)) {
      Choose(current);
    } else {
      FTree->setExpanded(current, !FTree->isExpanded(current));
    }
    return true;
  }
  if (key == Qt::Key_Escape && watched == FSearch && !FSearch->text().isEmpty()) {
    FSearch->clear();
    return true;
  }
  if (watched == FSearch &&
      (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown)) {
    QCoreApplication::sendEvent(FTree, event);
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace tolvi
