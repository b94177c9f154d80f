#include "apps/workbench/export/chartpane.h"

#include <QBarSeries>
#include <QBarSet>
#include <QBuffer>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QGraphicsLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLegend>
#include <QLineSeries>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QSet>
#include <QSvgGenerator>
#include <QToolTip>
#include <QVBoxLayout>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

#include "apps/workbench/controls/wraplayout.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// In letters: what can be read of a label, and the longest that is shown where there are many.
constexpr int LeastLabel = 6, MostLabel = 18;
/// Milliseconds from a change of size to drawing.
constexpr int Delay = 30;

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

[[noreturn]] void Raise(const QString& text) { throw EFileError(FromQString(text)); }

}  // namespace

TChartPane::TChartPane(QWidget* parent) : QWidget(parent) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(MakeBar());
  FView = new QChartView(this);
  FView->setObjectName(QStringLiteral("chart.view"));
  FView->setAccessibleName(tr("Chart"));
  FView->setRenderHint(QPainter::Antialiasing);
  FView->setFrameShape(QFrame::StyledPanel);
  FView->setMinimumSize(20 * fontMetrics().averageCharWidth(), 4 * fontMetrics().lineSpacing());
  layout->addWidget(FView, 1);
  layout->addWidget(MakeTold());
  FTimer.setSingleShot(true);
  FTimer.setInterval(Delay);
  connect(&FTimer, &QTimer::timeout, this, &TChartPane::Draw);
  SetRows(nullptr);
}

TChartPane::~TChartPane() = default;

QWidget* TChartPane::MakeBar() {
  auto* bar = new QWidget(this);
  auto* layout = new TWrapLayout(bar);
  layout->setContentsMargins({});
  const auto box = [this, bar, layout](const QString& caption, const char* name) {
    // A box stays beside its caption.
    auto* pair = new QWidget(bar);
    auto* inPair = new QHBoxLayout(pair);
    inPair->setContentsMargins({});
    auto* combo = new QComboBox(pair);
    combo->setObjectName(QLatin1String(name));
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(8);
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* label = new QLabel(caption, pair);
    label->setBuddy(combo);
    inPair->addWidget(label);
    inPair->addWidget(combo, 1);
    layout->addWidget(pair);
    connect(combo, &QComboBox::currentIndexChanged, this, &TChartPane::Changed);
    return combo;
  };
  FKind = box(tr("&Kind:"), "chart.kind");
  FKind->addItem(tr("Bars"), int{chBar});
  FKind->addItem(tr("Line"), int{chLine});
  FX = box(tr("Ac&ross:"), "chart.x");
  FY = box(tr("&Values:"), "chart.y");
  const auto button = [this, bar, layout](const QString& caption, const char* name, auto call) {
    auto* result = new QPushButton(caption, bar);
    result->setObjectName(QLatin1String(name));
    result->setAutoDefault(false);
    layout->addWidget(result);
    connect(result, &QPushButton::clicked, this, call);
    return result;
  };
  FCopy = button(tr("&Copy picture"), "chart.copy", &TChartPane::CopyPicture);
  FSave = button(tr("&Save picture..."), "chart.save", &TChartPane::SaveByDialog);
  return bar;
}

QWidget* TChartPane::MakeTold() {
  auto* line = new QWidget(this);
  FTold = new QLabel(line);
  FTold->setObjectName(QStringLiteral("chart.told"));
  FTold->setTextFormat(Qt::PlainText);
  FTold->setWordWrap(true);
  FTold->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  FReadAll = new QPushButton(tr("Read &all rows"), line);
  FReadAll->setObjectName(QStringLiteral("chart.readall"));
  FReadAll->setAutoDefault(false);
  connect(FReadAll, &QPushButton::clicked, this, [this] {
    if (OnReadAll) OnReadAll();
  });
  auto* layout = new QHBoxLayout(line);
  layout->setContentsMargins({});
  layout->addWidget(FTold, 1);
  layout->addWidget(FReadAll);
  return line;
}

void TChartPane::SetRows(std::shared_ptr<const TResultRows> rows, std::vector<std::uint32_t> order, TExtent extent) {
  const bool isSame = rows && FRows && rows->Columns() == FRows->Columns() && GetY() >= 0;
  FRows = std::move(rows);
  FOrder = std::move(order);
  FExtent = extent;
  if (!isSame) FillColumns();
  Changed();
}

void TChartPane::FillColumns() {
  const QSignalBlocker quietX(FX), quietY(FY);
  FX->clear();
  FY->clear();
  if (!FRows) return;
  const std::vector<std::string>& names = FRows->Columns();
  for (std::size_t i = 0; i < names.size(); ++i) FX->addItem(ToQString(names[i]), static_cast<int>(i));
  for (const std::size_t i : NumberColumns(*FRows)) FY->addItem(ToQString(names[i]), static_cast<int>(i));
  const TChartColumns columns = SuggestedColumns(*FRows);
  FX->setCurrentIndex(FX->findData(columns.X));
  FY->setCurrentIndex(FY->findData(columns.Y));
}

void TChartPane::SetTitle(const QString& title) {
  FTitle = title;
  FIsDrawn = false;
  if (isVisible()) FTimer.start();
}

TChartKind TChartPane::GetKind() const { return static_cast<TChartKind>(FKind->currentData().toInt()); }

void TChartPane::SetKind(TChartKind kind) { FKind->setCurrentIndex(FKind->findData(int{kind})); }

int TChartPane::GetX() const { return FX->currentIndex() < 0 ? -1 : FX->currentData().toInt(); }

int TChartPane::GetY() const { return FY->currentIndex() < 0 ? -1 : FY->currentData().toInt(); }

void TChartPane::SetColumns(int x, int y) {
  if (const int index = FX->findData(x); index >= 0) FX->setCurrentIndex(index);
  if (const int index = FY->findData(y); index >= 0) FY->setCurrentIndex(index);
}

void TChartPane::Changed() {
  FHasData = false;
  FIsDrawn = false;
  if (isVisible()) FTimer.start();
}

const TChartData& TChartPane::GetData() {
  if (FHasData) return FData;
  FHasData = true;
  FData = {};
  if (FRows && GetX() >= 0 && GetY() >= 0) {
    const TSortedRows rows{*FRows, FOrder};
    FData = MakeChartData(rows, static_cast<std::size_t>(GetX()), static_cast<std::size_t>(GetY()), GetKind());
  }
  return FData;
}

QString TChartPane::YName() const { return FY->currentText(); }

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

QString TChartPane::ToldOf(const TChartData& data) const {
  if (!FRows || FRows->GetRowCount() == 0) return tr("There are no rows to draw.");
  if (GetY() < 0) return tr("There is no column of numbers to draw.");
  QStringList told;
  if (FExtent != exWhole) {
    told << tr("Only the first %Ln rows have been read.", nullptr, static_cast<int>(FRows->GetRowCount()));
  }
  if (data.Values.empty()) told << tr("The column \"%1\" holds no numbers.").arg(YName());
  if (!data.Told.isEmpty()) told << data.Told;
  return told.join(u' ');
}

void TChartPane::Tell() {
  const TChartData& data = GetData();
  const QString told = ToldOf(data);
  FTold->setText(told);
  const bool canReadAll = FExtent == exBeginning && FRows && FRows->GetRowCount() > 0 && GetY() >= 0;
  if (!canReadAll && FReadAll->hasFocus()) FView->setFocus();
  FReadAll->setVisible(canReadAll);
  FTold->setVisible(!told.isEmpty());
  if (data.Values.empty()) return FView->setAccessibleDescription(told);
  const auto [least, most] = std::minmax_element(data.Values.begin(), data.Values.end());
  const auto label = [&data](auto at) { return data.Labels[at - data.Values.begin()]; };
  const QString kind = GetKind() == chBar ? tr("Bars: %1 by %2.") : tr("Line: %1 by %2.");
  const QLocale locale;
  FView->setAccessibleDescription(
      kind.arg(YName(), FX->currentText()) + u' ' +
      tr("%n values, the least %1 (%2), the greatest %3 (%4).", nullptr, static_cast<int>(data.Values.size()))
          .arg(locale.toString(*least), label(least), locale.toString(*most), label(most)) +
      u' ' + told);
}

QImage TChartPane::ToImage(double scale) {
  Draw();
  const QRectF all = FView->scene()->sceneRect();
  QImage image((all.size() * scale).toSize().expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
  image.fill(palette().color(QPalette::Base));
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  FView->scene()->render(&painter, image.rect(), all);
  return image;
}

void TChartPane::CopyPicture() { QGuiApplication::clipboard()->setImage(ToImage(devicePixelRatioF())); }

void TChartPane::SaveTo(const QString& file) {
  const QString format = QFileInfo(file).suffix().toLower();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (format == QLatin1String("svg")) {
    Draw();
    const QRectF all = FView->scene()->sceneRect();
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(all.size().toSize());
    generator.setViewBox(QRectF(QPointF(), all.size()));
    generator.setTitle(FTitle);
    QPainter painter(&generator);
    FView->scene()->render(&painter, QRectF(QPointF(), all.size()), all);
  } else if (format == QLatin1String("png")) {
    ToImage(2).save(&buffer, "PNG");
  } else {
    Raise(tr("The file \"%1\" must end with .png or .svg.").arg(file));
  }
  QSaveFile target(file);
  if (!target.open(QIODevice::WriteOnly) || target.write(bytes) != bytes.size() || !target.commit()) {
    Raise(tr("The file \"%1\" cannot be written: %2").arg(file, target.errorString()));
  }
}

void TChartPane::SaveByDialog() {
  const QString key = QStringLiteral("chart.folder");
  QFileDialog dialog(this, tr("Save picture"), FMemory.Get ? FMemory.Get(key).toString() : QString());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters({tr("Picture (*.png)"), tr("Drawing (*.svg)")});
  dialog.setDefaultSuffix(QStringLiteral("png"));
  connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
    dialog.setDefaultSuffix(filter.contains(QLatin1String("svg")) ? QStringLiteral("svg") : QStringLiteral("png"));
  });
  dialog.selectFile(FileNameOf(FTitle));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  const QString file = dialog.selectedFiles().constFirst();
  if (FMemory.Set) FMemory.Set(key, QFileInfo(file).absolutePath());
  try {
    SaveTo(file);
  } catch (const EFileError& error) {
    QMessageBox box(QMessageBox::Critical, tr("Save picture"), ToQString(error.Message()), QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
  }
}

void TChartPane::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange) return;
  FIsDrawn = false;
  if (isVisible()) FTimer.start();
}

void TChartPane::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Draw();
}

void TChartPane::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FIsDrawn = false;
  if (isVisible()) FTimer.start();
}

}  // namespace tolvi
