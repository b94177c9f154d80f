#include "apps/workbench/results/resultgrid.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "apps/workbench/results/celldelegate.h"
#include "apps/workbench/results/fire.h"
#include "apps/workbench/results/rowcopy.h"
#include "apps/workbench/results/valuedlg.h"
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

using namespace std::chrono_literals;

constexpr std::uint64_t cellsCopiedAtOnce = 20'000, cellsCopiedUnasked = 100'000, cellsCopiedAtMost = 5'000'000;
constexpr auto copySlice = 15ms;

enum class TGridKey { Copy, CopyWithHeaders, SelectAll, ShowValue, StopCopying, None };

struct TGridCommand {
  TGridKey Key;
  const char* Caption;
  QList<QKeySequence> Keys;
};

const std::vector<TGridCommand>& GridCommands() {
  static const std::vector<TGridCommand> commands{
      {TGridKey::Copy, QT_TRANSLATE_NOOP("tolvi::TResultGrid", "&Copy"), {QKeySequence(QKeySequence::Copy)}},
      {TGridKey::CopyWithHeaders,
       QT_TRANSLATE_NOOP("tolvi::TResultGrid", "Copy with &headers"),
       {Qt::CTRL | Qt::SHIFT | Qt::Key_C}},
      {TGridKey::SelectAll,
       QT_TRANSLATE_NOOP("tolvi::TResultGrid", "Select &all"),
       {QKeySequence(QKeySequence::SelectAll)}},
      {TGridKey::ShowValue,
       QT_TRANSLATE_NOOP("tolvi::TResultGrid", "&Show value"),
       {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}},
      {TGridKey::StopCopying, QT_TRANSLATE_NOOP("tolvi::TResultGrid", "Stop copying"), {Qt::Key_Escape}}};
  return commands;
}

TGridKey GridKeyOf(const QKeyEvent& event, bool isCopying) {
  // Keyboards may have one of its own.
  if (event.matches(QKeySequence::Copy)) return TGridKey::Copy;
  const QKeySequence pressed(QKeyCombination(event.modifiers() & ~Qt::KeypadModifier, Qt::Key(event.key())));
  for (const TGridCommand& command : GridCommands()) {
    if (command.Key == TGridKey::StopCopying && !isCopying) continue;
    if (command.Keys.contains(pressed)) return command.Key;
  }
  return TGridKey::None;
}

/// Adds an entry that is found by its name.
QAction& Add(QMenu& menu, const QString& text, const char* name, std::function<void()> act) {
  QAction& action = *menu.addAction(text, &menu, std::move(act));
  action.setObjectName(QLatin1String(name));
  return action;
}
QAction& Add(QMenu& menu, TGridKey key, const char* name, std::function<void()> act) {
  const TGridCommand& command = GridCommands()[static_cast<std::size_t>(key)];
  QAction& action = Add(menu, TResultGrid::tr(command.Caption), name, std::move(act));
  action.setShortcut(command.Keys.constFirst());
  return action;
}

}  // namespace

TResultGrid::TResultGrid(QWidget* parent)
    : QTableView(parent),
      FModel(new TResultModel(this)),
      FDelegate(new TCellDelegate(*FModel, this)),
      FCopyTimer(new QTimer(this)) {
  setObjectName(QStringLiteral("results.grid"));
  setAccessibleName(tr("Rows of the result"));
  setItemDelegate(FDelegate);
  setEditTriggers(NoEditTriggers);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setDragEnabled(false);
  setHorizontalScrollMode(ScrollPerPixel);
  SetUpHeads();
  setModel(FModel);
  // To show whether a column is selected, a head would ask for every row of it: it is given a selection of its own.
  horizontalHeader()->setSelectionModel(new QItemSelectionModel(FModel, this));
  setSortingEnabled(true);
  FitRowHeight();
  // A selection of many rows would be taken apart row by row to follow them.
  FModel->OnOrderChanging = [this] {
    const QModelIndex current = currentIndex();
    selectionModel()->clearSelection();
    if (current.isValid()) selectionModel()->select(current, QItemSelectionModel::Select);
  };
  connect(this, &QTableView::doubleClicked, this, [this] { ShowValue(); });
  FCopyTimer->setInterval(0);
  connect(FCopyTimer, &QTimer::timeout, this, &TResultGrid::ContinueCopy);
}

TResultGrid::~TResultGrid() { FModel->OnOrderChanging = nullptr; }

void TResultGrid::SetUpHeads() {
  QHeaderView& head = *horizontalHeader();
  head.setSectionsMovable(true);
  head.setHighlightSections(false);
  head.setSortIndicatorClearable(true);
  head.setSortIndicator(-1, Qt::AscendingOrder);
  head.setContextMenuPolicy(Qt::CustomContextMenu);
  head.setTextElideMode(Qt::ElideRight);
  connect(&head, &QHeaderView::customContextMenuRequested, this, [this](QPoint at) {
    const int column = horizontalHeader()->logicalIndexAt(at);
    if (column < 0) return;
    MakeColumnMenu(column)->exec(horizontalHeader()->viewport()->mapToGlobal(at));
  });
  // Columns that are hidden or shown change from or to 0.
  connect(&head, &QHeaderView::sectionResized, this, [this](int column, int before, int now) {
    if (!FIsFitting && before > 0 && now > 0) FSized.insert(column);
  });
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setHighlightSections(false);
  verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void TResultGrid::FitRowHeight() {
  const int height = fontMetrics().height() + fontMetrics().height() / 3;
  verticalHeader()->setMinimumSectionSize(height);
  verticalHeader()->setDefaultSectionSize(height);
}

void TResultGrid::SetRows(std::shared_ptr<TResultRows> rows) {
  const std::shared_ptr<const TResultRows> old = FModel->GetRows();
  QHeaderView& head = *horizontalHeader();
  if (old && rows && old->Columns() == rows->Columns()) {
    const int sortColumn = FModel->GetSortColumn();
    const Qt::SortOrder order = FModel->GetSortOrder();
    const int scrolled = horizontalScrollBar()->value();
    FModel->SetRows(std::move(rows));
    if (sortColumn >= 0) FModel->sort(sortColumn, order);
    // Widths that were measured without rows are none to keep.
    for (int i = 0; i < FModel->columnCount() && !FHasFitted; ++i) {
      if (!FSized.contains(i)) Fit(i);
    }
    FHasFitted = FHasFitted || FModel->rowCount() > 0;
    horizontalScrollBar()->setValue(scrolled);
    return;
  }
  head.setSortIndicator(-1, Qt::AscendingOrder);
  FModel->SetRows(std::move(rows));
  for (int i = 0; i < FModel->columnCount(); ++i) {
    head.showSection(i);
    head.moveSection(head.visualIndex(i), i);
  }
  scrollToTop();
  FitColumns();
}

void TResultGrid::SetDimmed(bool isDimmed) {
  if (FDelegate->GetDimmed() == isDimmed) return;
  FDelegate->SetDimmed(isDimmed);
  viewport()->update();
}

bool TResultGrid::GetDimmed() const { return FDelegate->GetDimmed(); }

void TResultGrid::FitColumn(int column) {
  FSized.remove(column);
  Fit(column);
}

void TResultGrid::Fit(int column) {
  const QScopedValueRollback fitting(FIsFitting, true);
  constexpr int rowsFitted = 100, mostLetters = 40, leastLetters = 4;
  const QFontMetrics metrics = fontMetrics();
  int width = metrics.averageCharWidth() * leastLetters;
  const int count = std::min(FModel->rowCount(), rowsFitted);
  for (int row = 0; row < count; ++row) {
    width = std::max(width, metrics.horizontalAdvance(FModel->LineAt(row, column)));
  }
  const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
  const int most = metrics.averageCharWidth() * mostLetters;
  horizontalHeader()->resizeSection(column, std::min(most, std::max(width + 2 * margin + metrics.averageCharWidth(),
                                                                    horizontalHeader()->sectionSizeHint(column))));
}

void TResultGrid::FitColumns() {
  for (int i = 0; i < FModel->columnCount(); ++i) FitColumn(i);
  FHasFitted = FModel->rowCount() > 0;
}

bool TResultGrid::event(QEvent* event) {
  // Keys of the grid go before those of the window.
  if (event->type() == QEvent::ShortcutOverride &&
      GridKeyOf(*static_cast<QKeyEvent*>(event), IsCopying()) != TGridKey::None) {
    event->accept();
    return true;
  }
  return QTableView::event(event);
}

void TResultGrid::keyPressEvent(QKeyEvent* event) {
  switch (GridKeyOf(*event, IsCopying())) {
    case TGridKey::Copy:
      return Copy(false);
    case TGridKey::CopyWithHeaders:
      return Copy(true);
    case TGridKey::ShowValue:
      return ShowValue();
    case TGridKey::SelectAll:
      return selectAll();
    case TGridKey::StopCopying:
      return StopCopying();
    case TGridKey::None:
      QTableView::keyPressEvent(event);
  }
}

void TResultGrid::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  FitRowHeight();
  FitColumns();
}

void TResultGrid::ShowValue() {
  const QModelIndex current = currentIndex();
  if (!current.isValid()) return;
  const TCellView cell = FModel->CellAt(current.row(), current.column());
  const QString column = FModel->headerData(current.column(), Qt::Horizontal).toString();
  (new TValueDlg(column, FModel->Texts().Whole(cell), cell.Kind == svNull, this))->open();
}

// Menus

int TResultGrid::VisibleColumns() const {
  return horizontalHeader()->count() - horizontalHeader()->hiddenSectionCount();
}

void TResultGrid::SortBy(int column, Qt::SortOrder order) { sortByColumn(column, order); }

void TResultGrid::FillColumnMenu(QMenu& menu, int column) {
  const QString name = FModel->headerData(column, Qt::Horizontal).toString();
  const auto sorted = [&](Qt::SortOrder order) {
    return FModel->GetSortColumn() == column && FModel->GetSortOrder() == order;
  };
  const auto addSort = [&](const QString& text, const char* objectName, int by, Qt::SortOrder order, bool isOn) {
    QAction& action = Add(menu, text, objectName, [this, by, order] { SortBy(by, order); });
    action.setCheckable(true);
    action.setChecked(isOn);
  };
  addSort(tr("Sort &ascending"), "results.sortUp", column, Qt::AscendingOrder, sorted(Qt::AscendingOrder));
  addSort(tr("Sort &descending"), "results.sortDown", column, Qt::DescendingOrder, sorted(Qt::DescendingOrder));
  addSort(tr("&Order of the database"), "results.sortNone", -1, Qt::AscendingOrder, FModel->GetSortColumn() < 0);
  menu.addSeparator();
  Add(menu, tr("&Hide column"), "results.hideColumn", [this, column] {
    hideColumn(column);
  }).setEnabled(VisibleColumns() > 1);
  QMenu& shown = *menu.addMenu(tr("&Show columns"));
  for (int i = 0; i < FModel->columnCount(); ++i) {
    QString text = FModel->headerData(i, Qt::Horizontal).toString();
    QAction& action = Add(shown, text.replace(u'&', QLatin1String("&&")), "results.showColumn",
                          [this, i] { setColumnHidden(i, !isColumnHidden(i)); });
    action.setCheckable(true);
    action.setChecked(!isColumnHidden(i));
    action.setEnabled(isColumnHidden(i) || VisibleColumns() > 1);
  }
  menu.addSeparator();
  Add(menu, tr("&Fit width"), "results.fitColumn", [this, column] { FitColumn(column); });
  Add(menu, tr("Fit &all widths"), "results.fitColumns", [this] { FitColumns(); });
  menu.addSeparator();
  Add(menu, tr("Copy column &name"), "results.copyName", [name] { QGuiApplication::clipboard()->setText(name); });
}

TKeyLines TResultGrid::Keys() {
  TKeyLines lines;
  for (const TGridCommand& command : GridCommands()) lines.emplace_back(tr(command.Caption), command.Keys);
  return lines;
}

std::unique_ptr<QMenu> TResultGrid::MakeColumnMenu(int column) {
  auto menu = std::make_unique<QMenu>(this);
  FillColumnMenu(*menu, column);
  return menu;
}

void TResultGrid::contextMenuEvent(QContextMenuEvent* event) {
  const QModelIndex current = currentIndex();
  QMenu menu(this);
  const bool hasSelection = selectionModel()->hasSelection();
  Add(menu, TGridKey::Copy, "results.copy", [this] { Copy(false); }).setEnabled(hasSelection);
  Add(menu, TGridKey::CopyWithHeaders, "results.copyWithHeaders", [this] { Copy(true); }).setEnabled(hasSelection);
  Add(menu, TGridKey::SelectAll, "results.selectAll", [this] { selectAll(); });
  menu.addSeparator();
  Add(menu, TGridKey::ShowValue, "results.showValue", [this] { ShowValue(); }).setEnabled(current.isValid());
  if (current.isValid()) FillColumnMenu(*menu.addMenu(tr("Co&lumn")), current.column());
  const bool isByKey = event->reason() == QContextMenuEvent::Keyboard && current.isValid();
  menu.exec(isByKey ? viewport()->mapToGlobal(visualRect(current).center()) : event->globalPos());
}

// Copying

void TResultGrid::Tell(const QString& words) { Fire(OnMessage, words); }

void TResultGrid::Copy(bool hasHeaders) {
  StopCopying();
  if (!FModel->GetRows()) return;
  std::vector<int> columns;
  for (int i = 0; i < horizontalHeader()->count(); ++i) {
    const int column = horizontalHeader()->logicalIndex(i);
    if (!isColumnHidden(column)) columns.push_back(column);
  }
  FCopy = std::make_unique<TRowCopy>(FModel->GetRows(), FModel->GetOrder(), selectionModel()->selection(), columns,
                                     hasHeaders, FModel->Texts());
  const std::uint64_t count = FCopy->GetCellCount();
  if (count == 0) return FCopy.reset();
  if (count <= cellsCopiedUnasked) return BeginCopy();
  const bool isTooMuch = count > cellsCopiedAtMost;
  const QString number = QLocale().toString(static_cast<qulonglong>(count));
  auto* question = new QMessageBox(this);
  question->setObjectName(QStringLiteral("results.copyQuestion"));
  question->setAttribute(Qt::WA_DeleteOnClose);
  question->setIcon(QMessageBox::Question);
  question->setWindowTitle(tr("Copy"));
  question->setText(isTooMuch ? tr("%1 cells are too many for the clipboard.").arg(number)
                              : tr("Copy %1 cells to the clipboard?").arg(number));
  question->setInformativeText(isTooMuch ? tr("Select fewer of them, or export the rows to a file.")
                                         : tr("A file may be the better place for so many: export the rows instead."));
  QAbstractButton* copy = isTooMuch ? nullptr : question->addButton(tr("&Copy"), QMessageBox::AcceptRole);
  question->addButton(isTooMuch ? QMessageBox::Close : QMessageBox::Cancel);
  connect(question, &QMessageBox::finished, this, [this, question, copy] {
    // Rows that have gone meanwhile took the copy with them.
    if (FCopy && copy != nullptr && question->clickedButton() == copy) return BeginCopy();
    FCopy.reset();
  });
  question->open();
}

void TResultGrid::BeginCopy() {
  if (FCopy->GetCellCount() <= cellsCopiedAtOnce) {
    constexpr auto ever = std::chrono::milliseconds(1h);
    FCopy->Write(ever);
  }
  FCopyTimer->start();
  ContinueCopy();
}

void TResultGrid::ContinueCopy() {
  if (!FCopy->Write(copySlice)) {
    const auto percent = static_cast<int>(FCopy->GetRowsWritten() * 100 / FCopy->GetRowCount());
    return Tell(tr("Copying: %1 % (Esc stops it)").arg(percent));
  }
  FCopyTimer->stop();
  auto data = std::make_unique<QMimeData>();
  data->setText(FCopy->GetText());
  if (const QString html = FCopy->GetHtml(); !html.isEmpty()) data->setHtml(html);
  const auto rows = static_cast<int>(FCopy->GetRowCount());
  FCopy.reset();
  QGuiApplication::clipboard()->setMimeData(data.release());
  Tell(rows == 1 ? tr("Copied 1 row") : tr("Copied %Ln rows", nullptr, rows));
}

void TResultGrid::StopCopying() {
  FCopyTimer->stop();
  if (!FCopy) return;
  FCopy.reset();
  Tell(tr("Copying was stopped; the clipboard holds what it held"));
}

}  // namespace tolvi
