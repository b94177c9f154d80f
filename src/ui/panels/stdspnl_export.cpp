// The structure designer: pictures of the whole diagram.
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QSaveFile>
#include <QSvgGenerator>
#include <algorithm>
#include <cmath>

#include <tolvi/foundation/errors.h>
#include <tolvi/ui/panels/stdspnl.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// Of a picture: its longer side, in pixels, and all of them.
constexpr double MaxSide = 30000, MaxPixels = 120e6;
/// Of a PDF page, in points of 1/72 inch; and of a pixel at 96 to the inch.
constexpr double MaxPage = 14000, PointsPerPixel = 0.75;
/// Paper shows the diagram at least at this size.
constexpr double LeastPrintScale = 0.5;
constexpr int Air = 12;

[[noreturn]] void Raise(const QString& text) { throw EStructureDesignError(FromQString(text)); }

void Write(const QString& file, const QByteArray& bytes) {
  QSaveFile target(file);
  if (!target.open(QIODevice::WriteOnly) || target.write(bytes) != bytes.size() || !target.commit()) {
    Raise(TJStructDesignPanel::tr("The file \"%1\" cannot be written: %2").arg(file, target.errorString()));
  }
}

}  // namespace

void TJStructDesignPanel::PaintAll(QPainter& painter, const QRectF& target, const QRectF& source) {
  FStyle.ForExport = true;
  FDesignArea->scene()->render(&painter, target, source, Qt::IgnoreAspectRatio);
  FStyle.ForExport = false;
}

QRectF TJStructDesignPanel::PictureRect() {
  SyncWhenStale();
  StopAnimation();
  return FDesignArea->scene()->itemsBoundingRect().adjusted(-Air, -Air, Air, Air);
}

QImage TJStructDesignPanel::ToImage(double scale) {
  const QRectF all = PictureRect();
  scale = std::min(
      {scale, MaxSide / std::max(all.width(), all.height()), std::sqrt(MaxPixels / (all.width() * all.height()))});
  const QSize size = (all.size() * scale).toSize().expandedTo(QSize(1, 1));
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  if (image.isNull())
    Raise(tr("There is no memory for a picture of %1 x %2 pixels.").arg(size.width()).arg(size.height()));
  image.fill(palette().color(QPalette::Base));
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing, scale < 1);
  PaintAll(painter, QRectF(QPointF(), size), all);
  return image;
}

void TJStructDesignPanel::CopyPicture() {
  Guarded([this] { QGuiApplication::clipboard()->setImage(ToImage(devicePixelRatioF())); });
}

void TJStructDesignPanel::ExportTo(const QString& file, double scale) {
  const QString format = QFileInfo(file).suffix().toLower();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (format == QLatin1String("png")) {
    ToImage(scale).save(&buffer, "PNG");
  } else if (format == QLatin1String("svg")) {
    const QRectF all = PictureRect();
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize((all.size() * scale).toSize());
    generator.setViewBox(QRectF(QPointF(), all.size() * scale));
    generator.setTitle(tr("Diagram of tables and links"));
    QPainter painter(&generator);
    painter.fillRect(QRectF(QPointF(), all.size() * scale), palette().color(QPalette::Base));
    PaintAll(painter, QRectF(QPointF(), all.size() * scale), all);
  } else if (format == QLatin1String("pdf")) {
    const QRectF all = PictureRect();
    const double points = std::min(scale * PointsPerPixel, MaxPage / std::max(all.width(), all.height()));
    QPdfWriter writer(&buffer);
    writer.setTitle(tr("Diagram of tables and links"));
    writer.setPageSize(QPageSize(all.size() * points, QPageSize::Point));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    QPainter painter(&writer);
    PaintAll(painter, QRectF(0, 0, writer.width(), writer.height()), all);
  } else {
    Raise(tr("The file \"%1\" must end with .png, .svg or .pdf.").arg(file));
  }
  Write(file, bytes);
}

void TJStructDesignPanel::ExportByDialog() {
  const QPointer<TJStructDesignPanel> guard(this);
  QString kind, file = QFileDialog::getSaveFileName(FMaxPanel, tr("Export Diagram"), {},
                                                    tr("Pictures (*.png *.svg);;Documents (*.pdf)"), &kind);
  if (!guard || file.isEmpty()) return;
  const bool isDocument = kind.contains(QLatin1String("*.pdf"));
  if (QFileInfo(file).suffix().isEmpty()) file += isDocument ? QStringLiteral(".pdf") : QStringLiteral(".png");
  Guarded([&] { ExportTo(file); });
}

void TJStructDesignPanel::Print(QPrinter& printer) {
  const QRectF all = PictureRect();
  QPainter painter(&printer);
  const QSizeF page = printer.pageLayout().paintRectPixels(printer.resolution()).size();
  const double toPaper = printer.resolution() / 96.0;
  const double fit = std::min(page.width() / all.width(), page.height() / all.height());
  const double scale = std::clamp(fit, LeastPrintScale * toPaper, toPaper);
  const QSizeF part = page / scale;
  bool isFirst = true;
  for (double top = all.top(); top < all.bottom(); top += part.height()) {
    for (double left = all.left(); left < all.right(); left += part.width()) {
      if (!std::exchange(isFirst, false)) printer.newPage();
      const QRectF source = QRectF(QPointF(left, top), part) & all;
      PaintAll(painter, QRectF(QPointF(), source.size() * scale), source);
    }
  }
}

void TJStructDesignPanel::PrintPreview() {
  if (!FActive) return;
  QPrinter printer(QPrinter::HighResolution);
  const QRectF all = PictureRect();
  printer.setPageOrientation(all.width() > all.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
  QPrintPreviewDialog preview(&printer, FMaxPanel);
  connect(&preview, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* paper) { Print(*paper); });
  preview.exec();
}

}  // namespace tolvi
