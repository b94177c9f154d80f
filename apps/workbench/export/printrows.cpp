#include "apps/workbench/export/printrows.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QGuiApplication>
#include <QLocale>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <algorithm>

#include "apps/workbench/controls/askchoice.h"
#include "apps/workbench/results/celltext.h"
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

struct TTexts {
  Q_DECLARE_TR_FUNCTIONS(tolvi::TPrintRows)
};

constexpr double FontPoints = 9;
constexpr std::size_t MeasuredRows = 200;
/// A column is at most that part of the page wide.
constexpr double MostOfPage = 0.4;

/// The table on pages: a page holds some columns and some rows.
class TTablePages final {
 public:
  TTablePages(QPrinter& printer, const TSortedRows& rows, std::size_t count, const QString& title)
      : FPrinter(printer), FRows(rows), FCount(count), FTitle(title) {
    FFont.setPointSizeF(FontPoints);
    FBold = FFont;
    FBold.setBold(true);
    const QFontMetrics metrics(FFont, &printer);
    FLine = metrics.lineSpacing() * 5 / 4;
    FAir = metrics.averageCharWidth();
    FPage = printer.pageLayout().paintRectPixels(printer.resolution());
    FPage.moveTo(0, 0);
    Measure(metrics, QFontMetrics(FBold, &printer));
    // The title and the head of the columns above, the foot with some air below.
    FRowsPerPage = static_cast<std::size_t>(std::max(1, (FPage.height() - 2 * FLine) / FLine - 2));
  }

  int Paint() {
    QPainter painter(&FPrinter);
    painter.setLayoutDirection(QGuiApplication::layoutDirection());
    FPainter = &painter;
    const std::size_t bands = std::max<std::size_t>(1, (FCount + FRowsPerPage - 1) / FRowsPerPage);
    const int pages = static_cast<int>(bands * FParts.size());
    int page = 0;
    for (std::size_t band = 0; band < bands; ++band) {
      for (const TPart& part : FParts) {
        if (page > 0) FPrinter.newPage();
        PaintPage(part, band * FRowsPerPage, ++page, pages);
      }
    }
    return pages;
  }

 private:
  // The columns that stand side by side on a page.
  struct TPart {
    std::size_t first, end;
    // Their places, from the left, and the right end of the last one.
    std::vector<int> lefts;
  };

  void Measure(const QFontMetrics& metrics, const QFontMetrics& bold) {
    const std::size_t columns = FRows.Rows.Columns().size();
    const int most = std::max(4 * FAir, static_cast<int>(FPage.width() * MostOfPage));
    for (std::size_t i = 0; i < columns; ++i) {
      FDecimals.push_back(ShownDecimals(FRows.Rows, i));
      int width = bold.horizontalAdvance(ToQString(FRows.Rows.Columns()[i]));
      TSqlValueKind kind = svNull;
      for (std::size_t row = 0; row < std::min(FCount, MeasuredRows); ++row) {
        const TCellView cell = FRows.Cell(row, i);
        width = std::max(width, metrics.horizontalAdvance(TextOf(cell, i)));
        if (kind == svNull) kind = cell.Kind;
      }
      FWidths.push_back(std::min(width, most) + 2 * FAir);
      FRight.push_back(IsRightAligned(kind));
    }
    FParts.push_back({0, 0, {0}});
    for (std::size_t i = 0; i < columns; ++i) {
      if (FParts.back().end > FParts.back().first && FParts.back().lefts.back() + FWidths[i] > FPage.width()) {
        FParts.push_back({i, i, {0}});
      }
      TPart& part = FParts.back();
      part.end = i + 1;
      part.lefts.push_back(part.lefts.back() + FWidths[i]);
    }
  }

  QString TextOf(const TCellView& cell, std::size_t column) const {
    return cell.Kind == svNull ? QString() : FText.Line(cell, FDecimals[column]);
  }

  void PaintPage(const TPart& part, std::size_t firstRow, int page, int pages) {
    FPainter->setFont(FBold);
    FPainter->drawText(QRect(0, 0, FPage.width(), FLine), Qt::AlignLeading | Qt::AlignVCenter,
                       Elided(FTitle, FPage.width()));
    int top = FLine + FLine / 4;
    for (std::size_t i = part.first; i < part.end; ++i) {
      PaintCell(part, i, top, ToQString(FRows.Rows.Columns()[i]));
    }
    top += FLine;
    FPainter->drawLine(0, top, FPage.width(), top);
    FPainter->setFont(FFont);
    const std::size_t end = std::min(FCount, firstRow + FRowsPerPage);
    for (std::size_t row = firstRow; row < end; ++row, top += FLine) {
      for (std::size_t i = part.first; i < part.end; ++i) PaintCell(part, i, top, TextOf(FRows.Cell(row, i), i));
    }
    const QRect foot(0, FPage.height() - FLine, FPage.width(), FLine);
    FPainter->drawText(foot, Qt::AlignLeading | Qt::AlignVCenter, FDate);
    FPainter->drawText(foot, Qt::AlignTrailing | Qt::AlignVCenter,
                       TTexts::tr("Page %1 of %2").arg(QString::number(page), QString::number(pages)));
  }

  void PaintCell(const TPart& part, std::size_t column, int top, const QString& text) {
    const int left = part.lefts[column - part.first], width = std::min(FWidths[column], FPage.width()) - 2 * FAir;
    QRect place(left + FAir, top, width, FLine);
    const bool isMirrored = FPainter->layoutDirection() == Qt::RightToLeft;
    if (isMirrored) place.moveRight(FPage.width() - 1 - left - FAir);
    const Qt::Alignment side = FRight[column] || isMirrored ? Qt::AlignRight : Qt::AlignLeft;
    FPainter->drawText(place,
                       static_cast<int>((side | Qt::AlignAbsolute | Qt::AlignVCenter).toInt()) | Qt::TextSingleLine,
                       Elided(text, width));
  }

  QString Elided(const QString& text, int width) const {
    return FPainter->fontMetrics().elidedText(text, Qt::ElideRight, width);
  }

  QPrinter& FPrinter;
  const TSortedRows& FRows;
  std::size_t FCount, FRowsPerPage = 1;
  QString FTitle, FDate = QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat);
  QFont FFont, FBold;
  TCellText FText;
  QRect FPage;
  int FLine = 1, FAir = 1;
  std::vector<int> FWidths;
  std::vector<bool> FRight;
  std::vector<std::size_t> FDecimals;
  std::vector<TPart> FParts;
  QPainter* FPainter = nullptr;
};

/// How many rows to print; 0 for none.
size_t AskCount(QWidget* parent, size_t count) {
  if (count <= PrintedRowsUnasked) return count;
  const QLocale locale;
  const QString all = locale.toString(qulonglong{count}), some = locale.toString(qulonglong{PrintedRowsUnasked});
  const auto answer = AskChoice(parent, QStringLiteral("print"),
                                TTexts::tr("There are %1 rows. Print them all, or the first %2?").arg(all, some),
                                {{QStringLiteral("first"), TTexts::tr("&First %1 rows").arg(some)},
                                 {QStringLiteral("all"), TTexts::tr("&All rows")}});
  if (!answer) return 0;
  return *answer == 0 ? PrintedRowsUnasked : count;
}

}  // namespace

int PaintRows(QPrinter& printer, const TSortedRows& rows, std::size_t count, const QString& title) {
  return TTablePages(printer, rows, std::min(count, rows.GetRowCount()), title).Paint();
}

QString PrintedTitle(const QString& title, std::size_t printed, std::size_t rows, TExtent extent) {
  if (printed >= rows && extent == exWhole) return title;
  return TTexts::tr("%1 (only the first %Ln rows)", nullptr, static_cast<int>(printed)).arg(title);
}

void PrintRows(QWidget* parent, std::shared_ptr<const TResultRows> rows, std::vector<std::uint32_t> order,
               const QString& title, TExtent extent) {
  if (!rows) return;
  const std::size_t count = AskCount(parent, rows->GetRowCount());
  if (count == 0) return;
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(title);
  const QString head = PrintedTitle(title, count, rows->GetRowCount(), extent);
  QPrintPreviewDialog preview(&printer, parent);
  QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview, [&](QPrinter* paper) {
    PaintRows(*paper, {*rows, order}, count, head);
  });
  preview.exec();
}

}  // namespace tolvi
