#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include <tolvi/panel/rfldeditor.h>
#include <tolvi/ui/controls/flatcheckbox.h>
#include <tolvi/ui/controls/rowdrag.h>
#include <tolvi/ui/dialogs/faultdelegate.h>
#include <tolvi/ui/dialogs/rfldsorting.h>
#include <tolvi/ui/dialogs/signicon.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

enum TColumn { ColName, ColExpression, ColSorting, ColumnCount };

}  // namespace

TRFSortingPage::TRFSortingPage(TRFieldEditor& editor, QWidget* parent)
    : QWidget(parent),
      FEditor(editor),
      FTable(new QTableWidget(0, ColumnCount, this)),
      FAdd(new QPushButton(Title("ttlAddBtnCaption"), this)),
      FMenu(new QMenu(this)),
      FJustSorting(new TJFlatCheckBox(Title("ttlJustSorting"), this)) {
  BuildTable();
  FAdd->setMenu(FMenu);
  FAdd->setAutoDefault(false);
  FAdd->setToolTip(Title("ttlAddBtnHint"));
  FJustSorting->setToolTip(tr("The result shows all columns; the result fields only sort it."));
  connect(FMenu, &QMenu::aboutToShow, this, &TRFSortingPage::FillMenu);
  connect(FJustSorting, &QCheckBox::clicked, this, [this](bool on) { FEditor.SetJustSorting(on); });
  auto* below = new QHBoxLayout;
  below->addWidget(FAdd);
  below->addStretch();
  below->addWidget(FJustSorting);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(FTable);
  layout->addLayout(below);
  Refresh();
}

QString TRFSortingPage::Title(std::string_view key) const { return ToQString(FEditor.Titles().GetTitle(key)); }

void TRFSortingPage::BuildTable() {
  FTable->setHorizontalHeaderLabels(
      {Title("ttlFieldNmColName"), Title("ttlFieldExprColName"), Title("ttlSortingColName")});
  FTable->setAccessibleName(Title("ttlSortCaption"));
  FTable->setToolTip(tr("Drag a row, or press Alt+Up or Alt+Down, to move it"));
  FTable->setSelectionBehavior(QAbstractItemView::SelectRows);
  FTable->setSelectionMode(QAbstractItemView::SingleSelection);
  FTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
  FTable->setTabKeyNavigation(false);
  FTable->setShowGrid(false);
  FTable->setWordWrap(false);
  FTable->verticalHeader()->hide();
  QHeaderView& header = *FTable->horizontalHeader();
  header.setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
  header.setHighlightSections(false);
  header.setSectionResizeMode(ColName, QHeaderView::Interactive);
  header.setSectionResizeMode(ColExpression, QHeaderView::Stretch);
  header.setSectionResizeMode(ColSorting, QHeaderView::ResizeToContents);
  FTable->setColumnWidth(ColName, 24 * fontMetrics().averageCharWidth());
  FTable->setItemDelegate(new TFaultDelegate(FTable));
  FTable->installEventFilter(this);
  auto* drag = new TRowDrag(*FTable);
  drag->OnMove = [this](int from, int to) { Move(from, to); };
  connect(FTable, &QTableWidget::currentCellChanged, this, [this](int row) {
    const std::vector<std::size_t> sorted = FEditor.Sorted();
    if (!FRefreshing && row >= 0) FEditor.SetCurrent(sorted[static_cast<std::size_t>(row)]);
  });
}

// Offers the columns that do not sort yet.
void TRFSortingPage::FillMenu() {
  FMenu->clear();
  for (std::size_t i = 0; i < FEditor.Fields().Count(); ++i) {
    const TResultField& column = FEditor.Fields()[i];
    if (column.GetSorting() != stNoSort) continue;
    const QString caption = ToQString(column.GetCaption()).replace(u'&', QLatin1String("&&"));
    connect(FMenu->addAction(caption), &QAction::triggered, this, [this, i] {
      FEditor.SetSorting(i, stAscending);
      FEditor.SetCurrent(i);
      FTable->setFocus();
    });
  }
}

void TRFSortingPage::Refresh() {
  if (std::exchange(FRefreshing, true)) return;
  const std::vector<std::size_t> sorted = FEditor.Sorted();
  FTable->setRowCount(static_cast<int>(sorted.size()));
  int current = -1;
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    ShowRow(static_cast<int>(i), sorted[i]);
    if (sorted[i] == FEditor.GetCurrent()) current = static_cast<int>(i);
  }
  FTable->setCurrentCell(current, current < 0 ? -1 : ColName);
  FAdd->setEnabled(sorted.size() < FEditor.Fields().Count());
  FJustSorting->setChecked(FEditor.Fields().GetJustSorting());
  FRefreshing = false;
}

void TRFSortingPage::ShowRow(int row, std::size_t column) {
  const TResultField& field = FEditor.Fields()[column];
  const QString texts[] = {ToQString(field.GetCaption()), ToQString(FEditor.GetExpression(column))};
  for (const int col : {ColName, ColExpression}) {
    if (FTable->item(row, col) == nullptr) FTable->setItem(row, col, new QTableWidgetItem);
    FTable->item(row, col)->setText(texts[col]);
    FTable->item(row, col)->setToolTip(PlainToolTip(texts[col]));
    FTable->item(row, col)->setData(TFaultDelegate::WrongRole, !FEditor.GetProblem(column).empty());
  }
  if (FTable->cellWidget(row, ColSorting) == nullptr) MakeSortingBox(row);
  auto& box = *static_cast<QComboBox*>(FTable->cellWidget(row, ColSorting));
  box.setCurrentIndex(field.GetSorting());
  box.setAccessibleName(Title("ttlSortingColName") + QStringLiteral(": ") + texts[ColName]);
}

void TRFSortingPage::MakeSortingBox(int row) {
  auto* box = new QComboBox;
  box->setFocusPolicy(Qt::StrongFocus);
  const int side = fontMetrics().ascent();
  box->setIconSize(QSize(side, side));
  constexpr TSign signs[] = {sgNone, sgAscending, sgDescending};
  for (const char* key : {"ttlNotSorted", "ttlAscending", "ttlDescending"}) {
    box->addItem(SignIcon(signs[box->count()], *FTable), Title(key));
  }
  box->installEventFilter(this);
  connect(box, &QComboBox::activated, this, [this, box](int sorting) { Choose(RowOf(*box), sorting); });
  FTable->setCellWidget(row, ColSorting, box);
  FTable->setRowHeight(row, std::max(FTable->rowHeight(row), box->sizeHint().height()));
}

int TRFSortingPage::RowOf(const QObject& box) const {
  int row = FTable->rowCount() - 1;
  while (row >= 0 && FTable->cellWidget(row, ColSorting) != &box) --row;
  return row;
}

void TRFSortingPage::GoTo(int row, bool toBox) {
  FTable->setCurrentCell(row, ColName);
  QWidget* box = FTable->cellWidget(row, ColSorting);
  if (toBox && box != nullptr) box->setFocus();
}

void TRFSortingPage::Choose(int row, int sorting) {
  const auto index = static_cast<std::size_t>(row);
  std::vector<std::size_t> sorted = FEditor.Sorted();
  if (index >= sorted.size()) return;
  FEditor.SetSorting(sorted[index], static_cast<TSortingType>(sorting));
  if (sorting != stNoSort) return;
  // The row that takes the place is current, but its box does not take the keys meant for the one that has gone.
  FTable->setFocus();
  sorted = FEditor.Sorted();
  if (!sorted.empty()) FEditor.SetCurrent(sorted[std::min(index, sorted.size() - 1)]);
}

void TRFSortingPage::Move(int from, int to) {
  if (from < 0 || to < 0 || to >= FTable->rowCount()) return;
  const std::size_t moved = FEditor.Sorted()[static_cast<std::size_t>(from)];
  FEditor.MoveSorted(static_cast<std::size_t>(from), static_cast<std::size_t>(to));
  FEditor.SetCurrent(moved);
}

bool TRFSortingPage::HandleKey(const QKeyEvent& pressed, QWidget& sender) {
  const bool isBox = &sender != FTable;
  const int key = pressed.key(), row = isBox ? RowOf(sender) : FTable->currentRow();
  if (pressed.modifiers() == Qt::AltModifier && (key == Qt::Key_Up || key == Qt::Key_Down)) {
    Move(row, key == Qt::Key_Up ? row - 1 : row + 1);
    if (isBox) GoTo(FTable->currentRow(), true);
    return true;
  }
  if (key == Qt::Key_Delete && row >= 0) {
    Choose(row, stNoSort);
    return true;
  }
  const int last = FTable->rowCount() - 1;
  const std::pair<int, int> ways[] = {{Qt::Key_Up, row - 1}, {Qt::Key_Down, row + 1}, {Qt::Key_PageUp, 0},
                                      {Qt::Key_Home, 0},     {Qt::Key_End, last},     {Qt::Key_PageDown, last}};
  for (const auto& [way, to] : ways) {
    if (!isBox || key != way) continue;
    GoTo(std::clamp(to, 0, last), true);
    return true;
  }
  auto* box = static_cast<QComboBox*>(FTable->cellWidget(row, ColSorting));
  if (box == nullptr || (pressed.modifiers() & Qt::ControlModifier)) return false;
  if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_F2 && key != Qt::Key_Space) return false;
  box->setFocus();
  box->showPopup();
  return true;
}

bool TRFSortingPage::eventFilter(QObject* watched, QEvent* event) {
  // The wheel scrolls the table.
  if (event->type() == QEvent::Wheel && watched != FTable) {
    event->ignore();
    return true;
  }
  if (event->type() == QEvent::KeyPress &&
      HandleKey(static_cast<QKeyEvent&>(*event), static_cast<QWidget&>(*watched))) {
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace tolvi
