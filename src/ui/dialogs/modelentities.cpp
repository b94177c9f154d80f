#include <QAction>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollArea>
#include <QTabWidget>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>
#include <unordered_set>

#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/dialogs/faultdelegate.h>
#include <tolvi/ui/dialogs/fieldform.h>
#include <tolvi/ui/dialogs/fieldoperators.h>
#include <tolvi/ui/dialogs/listactions.h>
#include <tolvi/ui/dialogs/modelentities.h>
#include <tolvi/ui/dialogs/scrolled.h>
#include <tolvi/ui/dialogs/valueeditorbox.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// So many fields are seen at a glance, and their groups shown open.
constexpr std::size_t FewFields = 200;

/// Qt looks up the place of each range of a selection; of thousands, the whole view is painted sooner.
class TFieldsTree final : public QTreeView {
 public:
  using QTreeView::QTreeView;

 protected:
  QRegion visualRegionForSelection(const QItemSelection& selection) const override {
    constexpr qsizetype mostRanges = 50;
    return selection.size() > mostRanges ? QRegion(viewport()->rect()) : QTreeView::visualRegionForSelection(selection);
  }
};

}  // namespace

TEntitiesPage::TEntitiesPage(TModelEditor& editor, QWidget* parent) : TModelPage(editor, parent) {
  QWidget* tree = MakeTree();
  ShowParts("Entities", *tree, *MakeForms(), 1, 1);
  setFocusProxy(FTree);
  ShowCurrent();
}

TEntitiesPage::~TEntitiesPage() { FTree->selectionModel()->disconnect(this); }

// Controls

QWidget* TEntitiesPage::MakeTree() {
  auto* box = new QWidget(this);
  FModel = new TEntitiesModel(this);
  FModel->OnDrop = [this](const auto& entries, std::size_t group, auto place) { Drop(entries, group, place); };
  FTree = new TFieldsTree(box);
  FTree->setModel(FModel);
  FTree->setItemDelegate(new TFaultDelegate(FTree));
  FTree->setAccessibleName(tr("Fields in groups"));
  FTree->setUniformRowHeights(true);
  FTree->setSelectionMode(QAbstractItemView::ExtendedSelection);
  FTree->setDragEnabled(true);
  FTree->setAcceptDrops(true);
  FTree->setDropIndicatorShown(true);
  FTree->setDragDropMode(QAbstractItemView::InternalMove);
  const int letter = fontMetrics().averageCharWidth();
  FTree->header()->resizeSection(TEntitiesModel::ColName, 22 * letter);
  FTree->header()->resizeSection(TEntitiesModel::ColSource, 20 * letter);
  FSearch = MakeSearchLine(*FTree, tr("Find fields or groups"), *this);
  auto* buttons = new QHBoxLayout;
  const auto add = [&](const QString& text, TSign sign, const QKeySequence& key, auto run) {
    return AddListAction(*FTree, *buttons, text, sign, key, run);
  };
  FAddColumns = add(tr("Add columns..."), sgNone, Qt::Key_Insert, [this] { AddColumns(); });
  add(tr("Expression"), sgNone, Qt::CTRL | Qt::Key_E, [this] { AddExpression(); });
  add(tr("Group"), sgNone, Qt::CTRL | Qt::Key_N, [this] { AddGroup(); });
  FDelete = add(tr("Delete"), sgDelete, Qt::Key_Delete, [this] { DeleteSelected(); });
  FUp = add(tr("Move up"), sgUp, Qt::ALT | Qt::Key_Up, [this] { Step(-1); });
  FDown = add(tr("Move down"), sgDown, Qt::ALT | Qt::Key_Down, [this] { Step(1); });
  buttons->addStretch();
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(FSearch);
  column->addWidget(FTree, 1);
  column->addLayout(buttons);
  connect(FSearch, &QLineEdit::textChanged, this, &TEntitiesPage::Find);
  connect(FTree->selectionModel(), &QItemSelectionModel::selectionChanged, this, &TEntitiesPage::ShowCurrent);
  return box;
}

QWidget* TEntitiesPage::MakeForms() {
  const auto edit = [this](const QString& name, const std::function<void()>& change) { return Edit(name, change); };
  FForms = new QTabWidget(this);
  FGeneral = new TFieldForm(Editor(), edit, FForms);
  FOperators = new TFieldOperators(Editor(), edit, FForms);
  auto* values = new QWidget(FForms);
  FValueEditor = new TValueEditorBox(Editor(), values);
  auto* column = new QVBoxLayout(values);
  column->addWidget(FValueEditor);
  FForms->addTab(Scrolled(FGeneral, FForms), tr("General"));
  FForms->addTab(FOperators, tr("Operators"));
  FForms->addTab(Scrolled(values, FForms), tr("Value Editor"));
  connect(FForms, &QTabWidget::currentChanged, this, [this] {
    CommitEdits();
    ShowCurrent();
  });
  return FForms;
}

// What is selected

std::vector<TEntitiesModel::TEntry> TEntitiesPage::Selected() const {
  // By ranges, as there may be thousands of them.
  QModelIndexList rows;
  for (const QItemSelectionRange& range : FTree->selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows << FModel->index(row, 0, range.parent());
  }
  std::sort(rows.begin(), rows.end(), [](const QModelIndex& one, const QModelIndex& other) {
    const auto path = [](const QModelIndex& index) {
      return index.parent().isValid() ? std::pair(index.parent().row(), index.row()) : std::pair(index.row(), -1);
    };
    return path(one) < path(other);
  });
  std::vector<TEntry> entries;
  for (const QModelIndex& row : rows) entries.push_back(FModel->EntryOf(row));
  return entries;
}

std::vector<std::size_t> TEntitiesPage::SelectedGroups() const {
  std::vector<std::size_t> groups;
  for (const TEntry& entry : Selected()) {
    if (!entry.Field) groups.push_back(entry.Group);
  }
  return groups;
}

TFieldIDs TEntitiesPage::SelectedFields() const {
  TFieldIDs ids;
  std::optional<std::size_t> whole;
  for (const TEntry& entry : Selected()) {
    if (!entry.Field) {
      whole = entry.Group;
      // While something is sought, a group stands for its fields that are shown.
      const QModelIndex group = FModel->IndexOfGroup(entry.Group);
      for (int row = 0; group.isValid() && row < FModel->rowCount(group); ++row) {
        ids.push_back(FModel->EntryOf(FModel->index(row, 0, group)).Field.value());
      }
    } else if (entry.Group != whole) {
      ids.push_back(*entry.Field);
    }
  }
  return ids;
}

void TEntitiesPage::Select(const std::vector<TEntry>& entries) {
  std::unordered_set<std::int32_t> fields;
  std::unordered_set<std::size_t> groups;
  for (const TEntry& entry : entries) {
    if (entry.Field) {
      fields.insert(*entry.Field);
    } else {
      groups.insert(entry.Group);
    }
  }
  QItemSelection selection;
  QModelIndex first;
  const auto add = [&](const QModelIndex& from, const QModelIndex& to) {
    if (!first.isValid()) first = from;
    selection.select(from, to);
  };
  for (int row = 0; row < FModel->rowCount(); ++row) {
    const QModelIndex group = FModel->index(row, 0);
    if (groups.contains(FModel->EntryOf(group).Group)) add(group, group);
    const int count = fields.empty() ? 0 : FModel->rowCount(group);
    for (int from = 0; from < count; ++from) {
      int to = from;
      while (to < count && fields.contains(*FModel->EntryOf(FModel->index(to, 0, group)).Field)) ++to;
      if (to == from) continue;
      add(FModel->index(from, 0, group), FModel->index(to - 1, 0, group));
      from = to;
    }
  }
  QItemSelectionModel& model = *FTree->selectionModel();
  model.setCurrentIndex(first, QItemSelectionModel::NoUpdate);
  model.select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  if (first.isValid()) FTree->scrollTo(first);
}

void TEntitiesPage::SelectFields(const TFieldIDs& ids) {
  std::vector<TEntry> entries;
  for (const std::int32_t id : ids) entries.push_back({0, id});
  Select(entries);
}

// Showing

void TEntitiesPage::CommitEdits() {
  FGeneral->CommitEdits();
  FValueEditor->CommitEdits();
}

void TEntitiesPage::Refresh() {
  const std::vector<TEntry> selected = Selected();
  const QModelIndex current = FTree->currentIndex();
  const int nextRow = current.row();
  const TEntry group = current.isValid() ? TEntry{FModel->EntryOf(current).Group, {}} : TEntry{};
  std::unordered_set<std::size_t> open;
  for (int row = 0; row < FModel->rowCount(); ++row) {
    const QModelIndex index = FModel->index(row, 0);
    if (FTree->isExpanded(index)) open.insert(FModel->EntryOf(index).Group);
  }
  FModel->Read(Editor().Model());
  const bool isFew = FIsNew && Editor().Model().Fields().Count() <= FewFields;
  if (isFew) FTree->expandAll();
  FIsNew = FIsNew && Editor().Model().Fields().Empty();
  for (int row = 0; row < FModel->rowCount() && !isFew; ++row) {
    const QModelIndex index = FModel->index(row, 0);
    if (open.contains(FModel->EntryOf(index).Group)) FTree->expand(index);
  }
  if (Selected().size() != selected.size() || selected.empty()) Select(selected);
  if (Selected().empty() && FModel->rowCount() > 0) {
    // What is next to one that went; the first of all at the beginning.
    QModelIndex next = FModel->IndexOfGroup(group.Group);
    if (!next.isValid()) next = FModel->index(0, 0);
    if (const int count = FModel->rowCount(next); count > 0 && FTree->isExpanded(next)) {
      next = FModel->index(std::clamp(nextRow, 0, count - 1), 0, next);
    }
    FTree->setCurrentIndex(next);
  }
  ShowCurrent();
}

void TEntitiesPage::Find(const QString& text) {
  const std::vector<TEntry> selected = Selected();
  FModel->Find(text);
  if (!text.trimmed().isEmpty() || Editor().Model().Fields().Count() <= FewFields) FTree->expandAll();
  Select(selected);
  if (Selected().empty() && FModel->rowCount() > 0) {
    const QModelIndex group = FModel->index(0, 0);
    FTree->setCurrentIndex(FModel->rowCount(group) > 0 ? FModel->index(0, 0, group) : group);
  }
  ShowCurrent();
}

void TEntitiesPage::ShowCurrent() {
  const TFieldIDs ids = SelectedFields();
  const std::vector<TEntry> selected = Selected();
  const bool isGroup = selected.size() == 1 && !selected.front().Field;
  const std::size_t group = isGroup ? selected.front().Group : 0;
  FGeneral->ShowFields(ids, group <= Editor().Model().FieldGroups().Count() ? group : 0);
  if (FForms->currentWidget() == FOperators) FOperators->ShowFields(ids);
  if (FForms->currentWidget()->isAncestorOf(FValueEditor)) {
    FValueEditor->ShowFields(FieldsByIDs(Editor().Model(), ids));
  }
  const bool isRoot = isGroup && group == 0;
  for (QAction* action : {FDelete, FUp, FDown}) action->setEnabled(!selected.empty() && !isRoot);
  FAddColumns->setEnabled(Editor().Model().GetTableCount() > 0);
}

bool TEntitiesPage::GoTo(std::string_view section) {
  const TJCustomDBStructure& model = Editor().Model();
  // Of the whole model, a page of fields can mend but that there are none.
  if (section == "Main") return model.Fields().Empty() && model.GetTableCount() > 0;
  std::optional<TEntry> found;
  for (std::size_t i = 0; i < model.Fields().Count() && !found; ++i) {
    if (section == "Field:" + std::to_string(i + 1)) found = TEntry{0, model.GetField(i).GetID()};
  }
  for (std::size_t number = 1; number <= model.FieldGroups().Count() && !found; ++number) {
    if (section == "FieldGroup" + std::to_string(number)) found = TEntry{number, {}};
  }
  if (!found) return false;
  Select({*found});
  if (Selected().empty()) {
    FSearch->clear();
    Select({*found});
  }
  return true;
}

}  // namespace tolvi
