#include <QAbstractTableModel>
#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QTreeView>
#include <algorithm>
#include <utility>

#include <tolvi/ui/dialogs/faultdelegate.h>
#include <tolvi/ui/dialogs/listactions.h>
#include <tolvi/ui/dialogs/partlist.h>

namespace tolvi {

/// The rows that the search finds.
class TPartRows final : public QAbstractTableModel {
 public:
  TPartRows(QStringList headers, QObject* parent) : QAbstractTableModel(parent), FHeaders(std::move(headers)) {}

  void Show(std::vector<TPartRow> rows) {
    beginResetModel();
    FRows = std::move(rows);
    Filter();
    endResetModel();
  }
  void Find(const QString& text) {
    beginResetModel();
    FSought = text;
    Filter();
    endResetModel();
  }

  const std::vector<TPartRow>& Rows() const { return FRows; }
  std::size_t PartOf(int row) const { return FFound[static_cast<std::size_t>(row)]; }
  /// -1 when the search has not found it.
  int RowOf(std::size_t part) const {
    const auto found = std::lower_bound(FFound.begin(), FFound.end(), part);
    return found != FFound.end() && *found == part ? static_cast<int>(found - FFound.begin()) : -1;
  }

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(FFound.size());
  }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(FHeaders.size());
  }
  QVariant data(const QModelIndex& index, int role) const override {
    if (!index.isValid()) return {};
    const TPartRow& row = FRows[PartOf(index.row())];
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return row.Texts.value(index.column());
    if (role == TFaultDelegate::WrongRole) return row.IsWrong && index.column() == 0;
    return {};
  }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return FHeaders.value(section);
  }

 private:
  void Filter() {
    FFound.clear();
    for (std::size_t i = 0; i < FRows.size(); ++i) {
      const QStringList& texts = FRows[i].Texts;
      const bool found = FSought.isEmpty() || std::any_of(texts.begin(), texts.end(), [this](const QString& text) {
                           return text.contains(FSought, Qt::CaseInsensitive);
                         });
      if (found) FFound.push_back(i);
    }
  }

  const QStringList FHeaders;
  std::vector<TPartRow> FRows;
  std::vector<std::size_t> FFound;
  QString FSought;
};

TPartList::TPartList(const QString& name, const QStringList& headers, QWidget* parent)
    : QWidget(parent), FRows(new TPartRows(headers, this)), FTree(new QTreeView(this)), FButtons(new QHBoxLayout) {
  FTree->setModel(FRows);
  FTree->setItemDelegate(new TFaultDelegate(FTree));
  FTree->setRootIsDecorated(false);
  FTree->setUniformRowHeights(true);
  FTree->setSelectionMode(QAbstractItemView::ExtendedSelection);
  FTree->setAccessibleName(name);
  FTree->header()->setDefaultSectionSize(20 * fontMetrics().averageCharWidth());
  FTree->setMinimumWidth(30 * fontMetrics().averageCharWidth());
  FSearch = MakeSearchLine(*FTree, tr("Find"), *parent);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(FSearch);
  layout->addWidget(FTree, 1);
  layout->addLayout(FButtons);
  FButtons->addStretch();
  connect(FSearch, &QLineEdit::textChanged, this, &TPartList::Find);
  connect(FTree->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    if (FShowing) return;
    ShowEnabled();
    if (OnSelect) OnSelect();
  });
  setFocusProxy(FTree);
}

TPartList::~TPartList() { FTree->selectionModel()->disconnect(this); }

QAction* TPartList::AddAction(const QString& text, TSign sign, const QKeySequence& key, bool onSelected,
                              const std::function<void()>& run) {
  QLayoutItem* stretch = FButtons->takeAt(FButtons->count() - 1);
  QAction* action = AddListAction(*FTree, *FButtons, text, sign, key, run);
  FButtons->addItem(stretch);
  if (onSelected) FOnSelected.push_back(action);
  ShowEnabled();
  return action;
}

void TPartList::ShowRows(std::vector<TPartRow> rows) {
  const std::vector<std::size_t> before = Selected();
  std::vector<std::size_t> selected;
  for (const std::size_t part : before) {
    const QString& key = FRows->Rows()[part].Key;
    if (part < rows.size() && rows[part].Key == key) {
      selected.push_back(part);
      continue;
    }
    const auto found = std::find_if(rows.begin(), rows.end(), [&key](const TPartRow& row) { return row.Key == key; });
    if (found != rows.end()) selected.push_back(static_cast<std::size_t>(found - rows.begin()));
  }
  // One that got another name; the next one, when it went.
  if (selected.empty() && !rows.empty()) {
    selected.push_back(before.empty() ? 0 : std::min(before.front(), rows.size() - 1));
  }
  const std::optional<std::size_t> current = Current();
  if (current && std::find(selected.begin(), selected.end(), *current) != selected.end()) {
    std::iter_swap(selected.begin(), std::find(selected.begin(), selected.end(), *current));
  }
  FShowing = true;
  FRows->Show(std::move(rows));
  SelectShown(selected);
  FShowing = false;
  ShowEnabled();
}

void TPartList::Find(const QString& text) {
  const std::vector<std::size_t> selected = Selected();
  FShowing = true;
  FRows->Find(text);
  SelectShown(selected);
  if (Selected().empty() && FRows->rowCount({}) > 0) SelectShown({FRows->PartOf(0)});
  FShowing = false;
  ShowEnabled();
  if (OnSelect) OnSelect();
}

std::vector<std::size_t> TPartList::Selected() const {
  std::vector<std::size_t> parts;
  for (const QModelIndex& index : FTree->selectionModel()->selectedRows()) parts.push_back(FRows->PartOf(index.row()));
  std::sort(parts.begin(), parts.end());
  return parts;
}

std::optional<std::size_t> TPartList::Current() const {
  const QModelIndexList selected = FTree->selectionModel()->selectedRows();
  if (selected.isEmpty()) return std::nullopt;
  const QModelIndex current = FTree->currentIndex().siblingAtColumn(0);
  return FRows->PartOf(selected.contains(current) ? current.row() : selected.front().row());
}

void TPartList::Select(const std::vector<std::size_t>& parts) {
  const bool isHidden =
      std::any_of(parts.begin(), parts.end(), [this](std::size_t part) { return FRows->RowOf(part) < 0; });
  if (isHidden) FSearch->clear();
  SelectShown(parts);
}

void TPartList::SelectShown(const std::vector<std::size_t>& parts) {
  std::vector<int> rows;
  for (const std::size_t part : parts) rows.push_back(FRows->RowOf(part));
  SelectRows(*FTree, rows);
}

void TPartList::ShowEnabled() {
  const bool any = FTree->selectionModel()->hasSelection();
  for (QAction* action : FOnSelected) action->setEnabled(any);
}

}  // namespace tolvi
