#include "apps/workbench/export/chartpane.h"

#include <QBuffer>
#include <QChartView>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QSvgGenerator>
#include <QVBoxLayout>
#include <algorithm>

#include "apps/workbench/controls/wraplayout.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// Milliseconds from a change of size to drawing.
constexpr int Delay = 30;

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
