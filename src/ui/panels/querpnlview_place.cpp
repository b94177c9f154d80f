// Where rows stand, and which of them have widgets.
#include <QApplication>
#include <QResizeEvent>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include <tolvi/ui/controls/ddedit.h>
#include <tolvi/ui/panels/linklabel.h>
#include <tolvi/ui/panels/qprow.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr int rowsBeyond = 2;  // rows that have widgets above and below those in sight

}  // namespace

qsizetype TJQueryPanelView::DigitsOfRows() const {
  return QString::number(std::max<std::size_t>(FRows.size(), 10)).size();
}

void TJQueryPanelView::Measure() {
  ensurePolished();
  TJRndBtn button(QStringLiteral("0"), viewport());
  TJFlatCheckBox box(viewport());
  button.resize(button.sizeHint());
  const QFontMetrics fonts = fontMetrics();
  const auto orElse = [](int pixels, int byFont) { return pixels >= 0 ? pixels : byFont; };
  const int wide = fonts.averageCharWidth();
  int above = 0, below = 0;
  const auto reserve = [&](int baseline, int height) {
    above = std::max(above, baseline);
    below = std::max(below, height - baseline);
  };
  reserve(button.GetBaseline(), button.sizeHint().height());
  reserve(box.GetBaseline(), box.sizeHint().height());
  TDropDownEdit label(viewport());
  label.SetCaption(QStringLiteral("0"));
  for (const TPhraseKind kind : {pkText, pkLinkWord, pkField, pkOperator, pkValue, pkParameter}) {
    label.setFont(FAppearance->FontOf(kind));
    label.resize(label.sizeHint());
    reserve(label.GetBaseline(), label.height());
  }
  FMetrics.RowSpace = orElse(FAppearance->GetRowSpace(), std::max(2, fonts.height() / 5));
  FMetrics.Left = orElse(FAppearance->GetLeftMargin(), wide);
  FMetrics.Top = orElse(FAppearance->GetTopMargin(), wide / 2);
  FMetrics.ElemSpace = orElse(FAppearance->GetElemSpace(), std::max(2, wide / 2));
  FMetrics.Baseline = above + FMetrics.RowSpace / 2;
  FMetrics.RowHeight = above + below + FMetrics.RowSpace;
  FDigits = DigitsOfRows();
  FMetrics.ButtonWidth = std::max(
      button.sizeHint().width() - fonts.horizontalAdvance(u'0') + fonts.horizontalAdvance(QString(FDigits, u'0')),
      button.sizeHint().height());
  FMetrics.Indent = orElse(FAppearance->GetIndent(), FMetrics.ButtonWidth + wide);
  FMeasured = true;
  FContentWidth = 0;
}

int TJQueryPanelView::TopOfRow(std::size_t index) const {
  return FMetrics.Top + static_cast<int>(index) * FMetrics.RowHeight - verticalScrollBar()->value();
}

std::size_t TJQueryPanelView::RowAt(int y) const {
  const int rows = (y + verticalScrollBar()->value() - FMetrics.Top) / FMetrics.RowHeight;
  return std::min(static_cast<std::size_t>(std::max(rows, 0)), FRows.size());
}

std::ptrdiff_t TJQueryPanelView::IndexOfRow(const TFilterRow& row) const {
  const auto found = std::find_if(FRows.begin(), FRows.end(), [&](const TPlacedRow& at) { return at.Row == &row; });
  return found != FRows.end() ? found - FRows.begin() : -1;
}

TQPRow* TJQueryPanelView::RowWidget(const TFilterRow& row) const {
  const auto found = FWidgets.find(row.GetSerial());
  return found != FWidgets.end() ? found->second : nullptr;
}

void TJQueryPanelView::UpdateScrollBars() {
  const int rows = FRows.empty() ? 0 : static_cast<int>(FRows.size()) + 1;
  const int height = 2 * FMetrics.Top + rows * FMetrics.RowHeight;
  const QSize room = viewport()->size();
  verticalScrollBar()->setPageStep(room.height());
  verticalScrollBar()->setSingleStep(FMetrics.RowHeight);
  verticalScrollBar()->setRange(0, std::max(0, height - room.height()));
  horizontalScrollBar()->setPageStep(room.width());
  horizontalScrollBar()->setSingleStep(FMetrics.Indent);
  horizontalScrollBar()->setRange(0, std::max(0, FContentWidth - room.width()));
}

void TJQueryPanelView::BringIntoView(std::size_t index) {
  const int top = TopOfRow(index), bottom = top + FMetrics.RowHeight;
  QScrollBar& bar = *verticalScrollBar();
  if (top < 0) {
    bar.setValue(index == 0 ? 0 : bar.value() + top);
  } else if (bottom > viewport()->height()) {
    bar.setValue(bar.value() + std::min(top, bottom - viewport()->height()));
  }
}

// Gives the rows in sight widgets, takes them from those that are far away, and places all.
void TJQueryPanelView::PlaceRows() {
  if (FRowsStale) return;
  const std::size_t first = RowAt(-rowsBeyond * FMetrics.RowHeight);
  const std::size_t last = RowAt(viewport()->height() + rowsBeyond * FMetrics.RowHeight);
  std::unordered_map<std::uint64_t, TQPRow*> kept;
  const TFilterRow* current = FPanel ? FPanel->GetCurrentRow() : nullptr;
  int contentWidth = FContentWidth;
  for (std::size_t i = 0; i < FRows.size(); ++i) {
    TFilterRow& row = *FRows[i].Row;
    const auto own = FWidgets.find(row.GetSerial());
    TQPRow* widget = own != FWidgets.end() ? own->second : nullptr;
    const bool isNear = i >= first && i <= last;
    // The part that has the focus stays, wherever it is; while its editor is open, it has that of the window only.
    if (!isNear && (widget == nullptr || !widget->isAncestorOf(window()->focusWidget()))) continue;
    const bool isNew = widget == nullptr;
    if (isNew) {
      widget = new TQPRow(*this, row, viewport());
      widget->Refresh();
    } else {
      FWidgets.erase(own);
    }
    kept.emplace(row.GetSerial(), widget);
    widget->SetPlace(FRows[i].Level, static_cast<int>(i));
    widget->SetCurrent(&row == current);
    contentWidth = std::max(contentWidth, widget->Arrange());
  }
  ReleaseWidgets(nullptr);
  FWidgets = std::move(kept);
  FContentWidth = contentWidth;
  horizontalScrollBar()->setRange(0, std::max(0, FContentWidth - viewport()->width()));
  const int width = std::max(viewport()->width(), FContentWidth);
  const int shift = horizontalScrollBar()->value();
  const int x = isRightToLeft() ? viewport()->width() - width + shift : -shift;
  for (std::size_t i = 0; i < FRows.size(); ++i) {
    const auto own = FWidgets.find(FRows[i].Row->GetSerial());
    if (own == FWidgets.end()) continue;
    own->second->setGeometry(x, TopOfRow(i), width, FMetrics.RowHeight);
    own->second->show();
  }
  PlaceAddLabel();
}

void TJQueryPanelView::PlaceAddLabel() {
  FAddLabel->setVisible(!FRows.empty());
  if (FRows.empty()) return;
  FAddLabel->setText(QStringLiteral("< %1 >").arg(ToQString(FPanel->GetTitle("ttlClickToAdd"))));
  const QSize size = FAddLabel->sizeHint();
  const int shift = horizontalScrollBar()->value();
  const int x = FMetrics.Left + FMetrics.Indent;
  const int top = TopOfRow(FRows.size()) + (FMetrics.RowHeight - size.height()) / 2;
  FAddLabel->setGeometry(isRightToLeft() ? viewport()->width() + shift - x - size.width() : x - shift, top,
                         size.width(), size.height());
}

void TJQueryPanelView::scrollContentsBy(int, int) {
  if (!FShowing) PlaceRows();
}

void TJQueryPanelView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  UpdateScrollBars();
  PlaceRows();
}

void TJQueryPanelView::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  // The base class may tell of changes before the view is complete.
  if (FAppearance == nullptr || FAddLabel == nullptr) return;
  FMeasured = false;
  Schedule();
}

QSize TJQueryPanelView::sizeHint() const {
  return {60 * fontMetrics().averageCharWidth(), 12 * fontMetrics().height()};
}

}  // namespace tolvi
