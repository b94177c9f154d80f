#include "apps/workbench/results/rowcopy.h"

#include <algorithm>
#include <set>
#include <utility>

#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr std::uint64_t htmlCells = 10'000;

void AppendQuoted(QString& out, const QString& text) {
  const bool isPlain = std::none_of(text.begin(), text.end(), [](QChar letter) {
    return letter == u'\t' || letter == u'\n' || letter == u'\r' || letter == u'"';
  });
  if (isPlain) {
    out += text;
    return;
  }
  QString inner = text;
  out += u'"' + inner.replace(QLatin1Char('"'), QLatin1String("\"\"")) + u'"';
}

}  // namespace

TRowCopy::TRowCopy(std::shared_ptr<const TResultRows> rows, TOrder order, const QItemSelection& selection,
                   const std::vector<int>& columns, bool hasHeaders, TCellText texts)
    : FRows(std::move(rows)), FOrder(std::move(order)), FTexts(std::move(texts)), FHasHeaders(hasHeaders) {
  MakeSpans(selection, columns);
  FHasHtml = GetCellCount() <= htmlCells;
  FRow = FSpans.empty() ? 0 : FSpans.front().First;
}

void TRowCopy::MakeSpans(const QItemSelection& selection, const std::vector<int>& columns) {
  // The rows at which the set of selected columns may change.
  std::set<int> bounds;
  for (const QItemSelectionRange& range : selection) {
    bounds.insert(range.top());
    bounds.insert(range.bottom() + 1);
  }
  const auto isIn = [](const QItemSelectionRange& range, int column) {
    return range.left() <= column && column <= range.right();
  };
  std::copy_if(columns.begin(), columns.end(), std::back_inserter(FColumns), [&](int column) {
    return std::any_of(selection.begin(), selection.end(), [&](const auto& range) { return isIn(range, column); });
  });
  for (auto bound = bounds.begin(); bound != bounds.end() && std::next(bound) != bounds.end(); ++bound) {
    TSpan span{*bound, *std::next(bound) - 1, std::vector<bool>(FColumns.size())};
    for (const QItemSelectionRange& range : selection) {
      if (range.top() > span.First || range.bottom() < span.First) continue;
      for (std::size_t i = 0; i < FColumns.size(); ++i) {
        if (isIn(range, FColumns[i])) span.IsSelected[i] = true;
      }
    }
    if (std::find(span.IsSelected.begin(), span.IsSelected.end(), true) == span.IsSelected.end()) continue;
    FRowCount += static_cast<std::uint64_t>(span.Last - span.First + 1);
    FSpans.push_back(std::move(span));
  }
}

bool TRowCopy::Write(std::chrono::milliseconds time) {
  using TClock = std::chrono::steady_clock;
  constexpr int rowsBetweenQuestions = 64;
  const TClock::time_point end = TClock::now() + time;
  if (std::exchange(FHasHeaders, false)) WriteHeaders();
  for (int count = 1; FSpan < FSpans.size(); ++count) {
    const TSpan& span = FSpans[FSpan];
    WriteRow(span, FRow);
    ++FRowsWritten;
    if (++FRow > span.Last && ++FSpan < FSpans.size()) FRow = FSpans[FSpan].First;
    if (count % rowsBetweenQuestions == 0 && TClock::now() >= end) break;
  }
  return FSpan == FSpans.size();
}

void TRowCopy::WriteHeaders() {
  FHtml += QLatin1String("<tr>");
  for (std::size_t i = 0; i < FColumns.size(); ++i) {
    Cell(ToQString(FRows->Columns()[static_cast<std::size_t>(FColumns[i])]), i == 0, false, "th");
  }
  FText += u'\n';
  FHtml += QLatin1String("</tr>");
}

void TRowCopy::WriteRow(const TSpan& span, int row) {
  const auto number = static_cast<std::size_t>(row);
  if (FHasHtml) FHtml += QLatin1String("<tr>");
  for (std::size_t i = 0; i < FColumns.size(); ++i) {
    const TCellView cell = span.IsSelected[i] ? FRows->Cell(FOrder->empty() ? number : (*FOrder)[number],
                                                            static_cast<std::size_t>(FColumns[i]))
                                              : TCellView();
    Cell(FTexts.Whole(cell), i == 0, IsRightAligned(cell.Kind), "td");
  }
  FText += u'\n';
  if (FHasHtml) FHtml += QLatin1String("</tr>");
}

void TRowCopy::Cell(const QString& text, bool isFirst, bool isNumber, const char* tag) {
  if (!isFirst) FText += u'\t';
  AppendQuoted(FText, text);
  if (!FHasHtml) return;
  FHtml += QStringLiteral("<%1%2>%3</%1>")
               .arg(QLatin1String(tag), isNumber ? QLatin1String(" align=\"right\"") : QLatin1String(),
                    text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")));
}

QString TRowCopy::GetHtml() const {
  return FHasHtml ? QLatin1String("<table>") + FHtml + QLatin1String("</table>") : QString();
}

}  // namespace tolvi
