// How the chart is drawn.
#include <QBarSeries>
#include <QBarSet>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QGraphicsLayout>
#include <QLegend>
#include <QLineSeries>
#include <QPushButton>
#include <QSet>
#include <QToolTip>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

#include "apps/workbench/export/chartpane.h"
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// In letters: what can be read of a label, and the longest that is shown where there are many.
constexpr int LeastLabel = 6, MostLabel = 18;

/// Labels of some width that axes can tell apart: equal ones differ by signs that are not seen.
QStringList Distinct(const QStringList& labels, const QFontMetrics& metrics, int width) {
  QStringList result;
  QSet<QString> used;
  for (const QString& label : labels) {
    QString text = metrics.elidedText(label, Qt::ElideRight, width);
    if (text.isEmpty()) text = QStringLiteral(" ");
    while (used.contains(text)) text += QChar(0x200B);
    used.insert(text);
    result << text;
  }
  return result;
}

int WidestOf(const QStringList& labels, const QFontMetrics& metrics) {
  int width = 1;
  for (const QString& label : labels) width = std::max(width, metrics.horizontalAdvance(label));
  return width;
}

/// Round numbers at the ticks, with the decimals that they need.
void Number(QValueAxis& axis) {
  if (axis.min() == axis.max()) axis.setRange(axis.min() - 1, axis.max() + 1);
  axis.applyNiceNumbers();
  const double step = (axis.max() - axis.min()) / std::max(1, axis.tickCount() - 1);
  const bool isHuge = std::max(std::abs(axis.min()), std::abs(axis.max())) >= 1e9 || step < 1e-6;
  const int decimals = std::clamp(static_cast<int>(std::ceil(-std::log10(step) - 1e-9)), 0, 6);
  axis.setLabelFormat(isHuge ? QStringLiteral("%.6g") : QStringLiteral("%.%1f").arg(decimals));
}

}  // namespace

void TChartPane::Draw() {
  if (FIsDrawn) return;
  FIsDrawn = true;
  const bool isEmpty = GetData().Values.empty();
  auto* chart = new QChart;
  chart->legend()->hide();
  chart->setLocalizeNumbers(true);
  const int air = fontMetrics().averageCharWidth();
  chart->setMargins(QMargins(air / 2, air / 2, 2 * air, air / 2));
  chart->layout()->setContentsMargins(0, 0, 0, 0);
  if (!isEmpty) {
    chart->setTitle(FTitle.toHtmlEscaped());
    if (GetKind() == chBar) {
      DrawBars(*chart);
    } else {
      DrawLine(*chart);
    }
  }
  Dress(*chart);
  const std::unique_ptr<QChart> before(FView->chart());
  FView->setChart(chart);
  FCopy->setEnabled(!isEmpty);
  FSave->setEnabled(!isEmpty);
  Tell();
}

void TChartPane::DrawBars(QChart& chart) {
  auto* bars = new QBarSet(YName());
  for (const double value : FData.Values) bars->append(value);
  const QColor background = palette().color(QPalette::Base);
  bars->setColor(ReadableColor(palette().color(QPalette::Highlight), background, 3));
  bars->setBorderColor(background);
  connect(bars, &QBarSet::hovered, this, [this](bool isOn, int index) { ShowPoint(isOn, index); });
  auto* series = new QBarSeries;
  series->append(bars);
  series->setBarWidth(0.75);
  chart.addSeries(series);
  const double last = static_cast<double>(FData.Values.size()) - 1;
  AddAxes(chart, *series, -0.5, last + 0.5);
  // Bars begin at zero.
  auto* up = static_cast<QValueAxis*>(chart.axes(Qt::Vertical).constFirst());
  const auto [least, most] = std::minmax_element(FData.Values.begin(), FData.Values.end());
  up->setRange(std::min(0.0, *least), std::max(0.0, *most));
  Number(*up);
}

void TChartPane::DrawLine(QChart& chart) {
  auto* series = new QLineSeries;
  for (std::size_t i = 0; i < FData.Values.size(); ++i) series->append(static_cast<double>(i), FData.Values[i]);
  const QColor color = ReadableColor(palette().color(QPalette::Highlight), palette().color(QPalette::Base), 3);
  series->setPen(QPen(color, 2));
  series->setPointsVisible(FData.Values.size() <= MaxBars);
  connect(series, &QLineSeries::hovered, this,
          [this](const QPointF& point, bool isOn) { ShowPoint(isOn, qRound(point.x())); });
  chart.addSeries(series);
  AddAxes(chart, *series, 0, std::max(1.0, static_cast<double>(FData.Values.size()) - 1));
  Number(*static_cast<QValueAxis*>(chart.axes(Qt::Vertical).constFirst()));
}

void TChartPane::AddAxes(QChart& chart, QAbstractSeries& series, double first, double last) {
  auto* across = new QCategoryAxis;
  across->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
  across->setRange(first, last);
  // Each label where there is room for a part of it that can be read, else as many as there is room for.
  const QFontMetrics metrics = fontMetrics();
  const int room = FView->width() * 8 / 10, air = metrics.averageCharWidth();
  const auto count = static_cast<int>(FData.Labels.size());
  const int slot = room / count - air, widest = WidestOf(FData.Labels, metrics);
  const bool isEach = slot >= std::min(widest, LeastLabel * air);
  const int width = std::min(isEach ? slot : MostLabel * air, widest + 1);
  const int step = isEach ? 1 : std::max(1, (count * (width + air) + room - 1) / room);
  const QStringList labels = Distinct(FData.Labels, metrics, width);
  for (int i = 0; i < count; i += step) {
    // One that would reach over the right end is left out.
    const double behind = (last - i) * room / (last - first);
    if (i > 0 && behind < width / 2.0 - 2 * air) break;
    across->append(labels[i].toHtmlEscaped(), i);
  }
  chart.addAxis(across, Qt::AlignBottom);
  series.attachAxis(across);
  auto* up = new QValueAxis;
  chart.addAxis(up, Qt::AlignLeft);
  series.attachAxis(up);
}

void TChartPane::ShowPoint(bool isOn, int index) {
  if (!isOn || index < 0 || static_cast<std::size_t>(index) >= FData.Values.size()) return QToolTip::hideText();
  const QString value = QLocale().toString(FData.Values[static_cast<std::size_t>(index)], 'g', 12);
  const QString words = QStringLiteral("%1: %2").arg(FData.Labels[index], value);
  QToolTip::showText(QCursor::pos(), PlainToolTip(words), FView);
}

void TChartPane::Dress(QChart& chart) {
  const QColor background = palette().color(QPalette::Base), text = palette().color(QPalette::Text);
  chart.setBackgroundBrush(background);
  chart.setBackgroundRoundness(0);
  chart.setTitleBrush(text);
  QFont bold = font();
  bold.setBold(true);
  chart.setTitleFont(bold);
  FView->setBackgroundBrush(background);
  const QString names[] = {FX->currentText(), YName()};
  for (QAbstractAxis* axis : chart.axes()) {
    axis->setLabelsFont(font());
    axis->setLabelsBrush(text);
    axis->setTitleFont(font());
    axis->setTitleBrush(text);
    axis->setTitleText(names[axis->orientation() == Qt::Horizontal ? 0 : 1].toHtmlEscaped());
    axis->setLinePenColor(MixedColor(text, background, 0.4));
    axis->setGridLineColor(MixedColor(text, background, 0.15));
  }
  for (QAbstractAxis* axis : chart.axes(Qt::Horizontal)) axis->setGridLineVisible(false);
}

}  // namespace tolvi
