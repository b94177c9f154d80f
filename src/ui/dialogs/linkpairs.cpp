#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QCompleter>
#include <QFont>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QToolButton>
#include <algorithm>
#include <functional>
#include <set>

#include <tolvi/ui/dialogs/faultdelegate.h>
#include <tolvi/ui/dialogs/linkpairs.h>
#include <tolvi/ui/dialogs/signicon.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr int shownRows = 4;

std::size_t SideOf(int column) { return column == TLinkPairsModel::ColSide1 ? 0 : 1; }

TLinkPart PartOf(int column) {
  constexpr TLinkPart parts[] = {lpSide1, lpSymbol, lpSide2};
  return parts[column];
}

/// In its own direction inside a text of the other one.
QString Isolated(const QString& text) {
  return QGuiApplication::isRightToLeft() ? QChar(0x2068) + text + QChar(0x2069) : text;
}

/// Lists for the cells; what is chosen from one is taken over at once.
class TPairDelegate final : public TFaultDelegate {
 public:
  TPairDelegate(const TLinkEditor& editor, QObject* parent) : TFaultDelegate(parent), FEditor(editor) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const override {
    auto* box = new QComboBox(parent);
    box->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    // A list that is long must not make the cell wide.
    box->setMinimumContentsLength(1);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    if (index.column() == TLinkPairsModel::ColSymbol) {
      for (const std::string_view symbol : LinkSymbols()) box->addItem(ToQString(symbol));
    } else {
      box->setEditable(true);
      box->setInsertPolicy(QComboBox::NoInsert);
      box->addItems(ToQStringList(FEditor.Columns(SideOf(index.column()))));
      box->completer()->setCompletionMode(QCompleter::PopupCompletion);
      box->completer()->setFilterMode(Qt::MatchContains);
      box->addItem(TLinkPairsModel::tr("A constant..."), ToQString(LinkConstantPrefix));
    }
    connect(box, &QComboBox::activated, this, [this, box](int item) { Choose(*box, item); });
    return box;
  }

  void setEditorData(QWidget* editor, const QModelIndex& index) const override {
    auto& box = static_cast<QComboBox&>(*editor);
    const QString text = index.data(Qt::EditRole).toString();
    if (!box.isEditable() && box.findText(text) < 0) box.addItem(text);
    box.setCurrentIndex(box.findText(text));
    if (!box.isEditable()) return;
    box.setEditText(text);
    box.lineEdit()->selectAll();
  }

  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override {
    const auto& box = static_cast<QComboBox&>(*editor);
    QString text = box.currentText().trimmed();
    // A column that is typed is written as the list has it.
    const int item = box.findText(text, Qt::MatchFixedString);
    if (item >= 0) text = box.itemData(item).isValid() ? box.itemData(item).toString() : box.itemText(item);
    model->setData(index, text, Qt::EditRole);
  }

 private:
  void Choose(QComboBox& box, int item) const {
    if (box.itemData(item).isValid()) return box.setEditText(box.itemData(item).toString());
    Q_EMIT const_cast<TPairDelegate*>(this)->commitData(&box);
  }

  const TLinkEditor& FEditor;
};

}  // namespace

// The model

TLinkPairsModel::TLinkPairsModel(TLinkEditor& editor, QObject* parent)
    : QAbstractTableModel(parent), FEditor(editor), FFindings(editor.Findings()) {}

int TLinkPairsModel::Add() {
  const int row = rowCount();
  beginInsertRows({}, row, row);
  FEditor.AddPair();
  endInsertRows();
  Recheck();
  return row;
}

void TLinkPairsModel::Delete(int row) {
  beginRemoveRows({}, row, row);
  FEditor.DeletePair(static_cast<std::size_t>(row));
  endRemoveRows();
  Recheck();
}

void TLinkPairsModel::Move(int from, int to) {
  if (to < 0 || to >= rowCount() || !beginMoveRows({}, from, from, {}, to > from ? to + 1 : to)) return;
  FEditor.MovePair(static_cast<std::size_t>(from), static_cast<std::size_t>(to));
  endMoveRows();
  Recheck();
}

void TLinkPairsModel::Recheck() {
  FFindings = FEditor.Findings();
  if (rowCount() > 0) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
  Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
  if (OnChange) OnChange();
}

int TLinkPairsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(FEditor.Pairs().size());
}

QVariant TLinkPairsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return section == ColSymbol ? tr("Comparison") : ToQString(FEditor.TableName(SideOf(section)));
}

std::string TLinkPairsModel::Entry(const QModelIndex& index) const {
  const TLinkPair& pair = FEditor.Pairs()[static_cast<std::size_t>(index.row())];
  return index.column() == ColSymbol ? pair.Symbol : index.column() == ColSide1 ? pair.Side1 : pair.Side2;
}

QString TLinkPairsModel::Shown(const QModelIndex& index) const {
  const std::string entry = Entry(index);
  if (index.column() == ColSymbol) return ToQString(entry);
  const QString text = ToQString(LinkEntryText(entry));
  if (IsLinkConstant(entry)) return tr("Constant: %1").arg(Isolated(text));
  return text.isEmpty() ? tr("(choose a column)") : text;
}

QString TLinkPairsModel::Reasons(const QModelIndex& index) const {
  QStringList reasons;
  for (const TLinkFinding& finding : FFindings) {
    const TLinkSpot spot{static_cast<std::size_t>(index.row()), PartOf(index.column())};
    const bool isHere = std::find(finding.Spots.begin(), finding.Spots.end(), spot) != finding.Spots.end();
    if (isHere) reasons << ToQString(finding.Text);
  }
  return reasons.join(u'\n');
}

QVariant TLinkPairsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  switch (role) {
    case Qt::EditRole:
      return ToQString(Entry(index));
    case Qt::DisplayRole:
      return Shown(index);
    case Qt::FontRole: {
      QFont font;
      font.setItalic(index.column() != ColSymbol && (IsLinkConstant(Entry(index)) || Entry(index).empty()));
      return font.italic() ? QVariant(font) : QVariant();
    }
    case Qt::TextAlignmentRole:
      return index.column() == ColSymbol ? QVariant(Qt::AlignCenter) : QVariant();
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
      return Reasons(index);
    case TFaultDelegate::WrongRole:
      return !Reasons(index).isEmpty();
    default:
      return {};
  }
}

bool TLinkPairsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  const std::string text = FromQString(value.toString());
  if (!index.isValid() || role != Qt::EditRole || text == Entry(index)) return false;
  const auto row = static_cast<std::size_t>(index.row());
  if (index.column() == ColSymbol) {
    FEditor.SetSymbol(row, text);
  } else {
    FEditor.SetSide(row, SideOf(index.column()), text);
  }
  Recheck();
  return true;
}

Qt::ItemFlags TLinkPairsModel::flags(const QModelIndex& index) const {
  return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable : Qt::NoItemFlags;
}

// The grid

TLinkPairs::TLinkPairs(TLinkEditor& editor, QWidget* parent)
    : QWidget(parent), FModel(new TLinkPairsModel(editor, this)), FTable(new QTableView(this)) {
  BuildTable();
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(FTable);
  auto* buttons = new QVBoxLayout;
  BuildActions(*buttons);
  buttons->addStretch();
  row->addLayout(buttons);
  setFocusProxy(FTable);
  if (FModel->rowCount() > 0) FTable->setCurrentIndex(FModel->index(0, 0));
}

void TLinkPairs::BuildTable() {
  FTable->setModel(FModel);
  FTable->setItemDelegate(new TPairDelegate(FModel->Editor(), FTable));
  FTable->setAccessibleName(tr("Column pairs"));
  FTable->setSelectionBehavior(QAbstractItemView::SelectRows);
  FTable->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                          QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
  FTable->setTabKeyNavigation(false);
  FTable->verticalHeader()->hide();
  FTable->verticalHeader()->setDefaultSectionSize(QComboBox().sizeHint().height());
  FTable->setMinimumHeight((shownRows + 2) * FTable->verticalHeader()->defaultSectionSize());
  QHeaderView& header = *FTable->horizontalHeader();
  header.setHighlightSections(false);
  header.setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
  header.setSectionResizeMode(QHeaderView::Stretch);
  header.setSectionResizeMode(TLinkPairsModel::ColSymbol, QHeaderView::ResizeToContents);
  connect(FTable, &QAbstractItemView::activated, FTable, qOverload<const QModelIndex&>(&QAbstractItemView::edit));
  connect(FTable->selectionModel(), &QItemSelectionModel::currentChanged, this, &TLinkPairs::RefreshActions);
}

void TLinkPairs::BuildActions(QBoxLayout& buttons) {
  const auto add = [&](const QString& text, TSign sign, const QKeySequence& key, QWidget& owner, auto operation) {
    auto* action = new QAction(SignIcon(sign, *this), text, this);
    action->setShortcut(key);
    // The keys that an editor in a cell needs are those of the grid alone.
    action->setShortcutContext(&owner == FTable ? Qt::WidgetShortcut : Qt::WindowShortcut);
    action->setToolTip(text + QStringLiteral(" (") + key.toString(QKeySequence::NativeText) + u')');
    connect(action, &QAction::triggered, this, operation);
    owner.addAction(action);
    buttons.addWidget(MakeSignButton(*action, *this));
    return action;
  };
  add(tr("New pair"), sgNew, Qt::CTRL | Qt::Key_N, *this, [this] { AddPair(); });
  FDelete = add(tr("Delete pairs"), sgDelete, Qt::Key_Delete, *FTable, [this] { DeletePairs(); });
  FUp = add(tr("Move up"), sgUp, Qt::ALT | Qt::Key_Up, *FTable, [this] { MovePair(-1); });
  FDown = add(tr("Move down"), sgDown, Qt::ALT | Qt::Key_Down, *FTable, [this] { MovePair(1); });
  RefreshActions();
}

void TLinkPairs::RefreshActions() {
  const int row = FTable->currentIndex().row();
  FDelete->setEnabled(row >= 0);
  FUp->setEnabled(row > 0);
  FDown->setEnabled(row >= 0 && row + 1 < FModel->rowCount());
}

void TLinkPairs::EditCell(int row, int column) {
  const QModelIndex cell = FModel->index(row, column);
  FTable->setFocus();
  FTable->setCurrentIndex(cell);
  FTable->edit(cell);
}

void TLinkPairs::CommitEdit() {
  const QWidget* focus = window()->focusWidget();
  if (focus != nullptr && FTable->viewport()->isAncestorOf(focus)) FTable->setFocus();
}

void TLinkPairs::AddPair() {
  CommitEdit();
  EditCell(FModel->Add(), TLinkPairsModel::ColSide1);
}

void TLinkPairs::DeletePairs() {
  std::set<int, std::greater<>> rows;
  for (const QModelIndex& index : FTable->selectionModel()->selectedRows()) rows.insert(index.row());
  for (const int row : rows) FModel->Delete(row);
  RefreshActions();
}

void TLinkPairs::MovePair(int by) {
  const int row = FTable->currentIndex().row();
  if (row >= 0) FModel->Move(row, row + by);
  RefreshActions();
}

}  // namespace tolvi
