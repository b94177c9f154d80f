#include "apps/workbench/export/exportdlg.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QTimer>
#include <algorithm>

#include "apps/workbench/export/exportjob.h"

namespace tolvi {
namespace {

struct TTexts {
  Q_DECLARE_TR_FUNCTIONS(tolvi::TExportDialog)
};

/// Milliseconds.
constexpr int UntilProgress = 500, ProgressStep = 100;

QString FilterOf(const TRowFileKind& kind) { return QStringLiteral("%1 (*.%2)").arg(kind.Caption, kind.Suffix); }

/// The chosen format, or the one that the name of the file ends with.
TRowFileFormat FormatOf(const QString& file, const TRowFileKind& chosen) {
  const QString suffix = QFileInfo(file).suffix().toLower();
  if (suffix == chosen.Suffix) return chosen.Format;
  for (const TRowFileKind& kind : RowFileKinds()) {
    if (kind.Suffix == suffix) return kind.Format;
  }
  return chosen.Format;
}

void Tell(QWidget* parent, const QString& fault) {
  QMessageBox box(QMessageBox::Critical, TTexts::tr("Export rows"), fault, QMessageBox::Ok, parent);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

/// Waits for the end of a job. While that takes long, it shows how far the job is, and lets the user stop it.
class TExportWait final {
 public:
  explicit TExportWait(TExportJob& job) : FJob(job) {
    FJob.OnProgress = [this](std::size_t rows) { FRows = rows; };
    FJob.OnEnd = [this](bool written, const QString& fault) {
      FEnded = true;
      FWritten = written;
      FFault = fault;
      FLoop.quit();
    };
  }

  void Wait(QWidget* parent, const QString& file) {
    QTimer::singleShot(UntilProgress, &FLoop, &QEventLoop::quit);
    if (!FEnded) FLoop.exec(QEventLoop::ExcludeUserInputEvents);
    if (!FEnded) ShowProgress(parent, file);
    // A program that ends waits no more; the job's end stops it.
    while (!FEnded && FLoop.exec(QEventLoop::ExcludeUserInputEvents) >= 0) {
    }
  }

  bool IsWritten() const { return FWritten; }
  const QString& GetFault() const { return FFault; }

 private:
  void ShowProgress(QWidget* parent, const QString& file) {
    const int count = static_cast<int>(std::max<std::size_t>(FJob.GetRowCount(), 1));
    QProgressDialog dialog(TTexts::tr("Writing \"%1\"...").arg(QFileInfo(file).fileName()), TTexts::tr("Stop"), 0,
                           count, parent);
    dialog.setObjectName(QStringLiteral("export.progress"));
    for (auto* label : dialog.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
    dialog.setWindowTitle(TTexts::tr("Export rows"));
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setAutoReset(false);
    QObject::connect(&dialog, &QProgressDialog::canceled, &dialog, [this] {
      FJob.Cancel();
      FLoop.quit();
    });
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &dialog,
                     [this, &dialog, count] { dialog.setValue(std::min(static_cast<int>(FRows), count)); });
    timer.start(ProgressStep);
    dialog.show();
    FLoop.exec();
  }

  TExportJob& FJob;
  QEventLoop FLoop;
  std::size_t FRows = 0;
  bool FEnded = false, FWritten = false;
  QString FFault;
};

}  // namespace

QString FileNameOf(const QString& text) {
  constexpr qsizetype MostLetters = 100;
  QString name;
  for (const QChar letter : text) {
    const bool isRefused = letter < u' ' || QStringView(u"\\/:*?\"<>|").contains(letter);
    name += isRefused ? QChar(u'_') : letter;
  }
  name = name.left(MostLetters).trimmed();
  while (name.startsWith(u'.')) name.remove(0, 1);
  while (name.endsWith(u'.')) name.chop(1);
  return name.trimmed();
}

bool ExportRowsTo(QWidget* parent, std::shared_ptr<const TResultRows> rows, std::vector<std::uint32_t> order,
                  const QString& file, TRowFileFormat format) {
  TExportJob job(std::move(rows), std::move(order));
  TExportWait wait(job);
  job.Start(file, format);
  wait.Wait(parent, file);
  if (!wait.GetFault().isEmpty()) Tell(parent, wait.GetFault());
  return wait.IsWritten();
}

QString ExportRows(QWidget* parent, std::shared_ptr<const TResultRows> rows, std::vector<std::uint32_t> order,
                   const QString& suggestedName, const TMemory& memory) {
  if (!rows) return {};
  const std::vector<TRowFileKind> kinds = RowFileKinds();
  const QVariant folder = memory.Get ? memory.Get(QStringLiteral("export.folder")) : QVariant();
  const QVariant remembered = memory.Get ? memory.Get(QStringLiteral("export.format")) : QVariant();
  QFileDialog dialog(parent, TTexts::tr("Export rows"), folder.toString());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  QStringList filters;
  for (const TRowFileKind& kind : kinds) filters << FilterOf(kind);
  dialog.setNameFilters(filters);
  const auto chosen = [&dialog, &kinds, &filters]() -> const TRowFileKind& {
    return kinds[static_cast<std::size_t>(std::max<qsizetype>(filters.indexOf(dialog.selectedNameFilter()), 0))];
  };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                   [&dialog, &chosen] { dialog.setDefaultSuffix(chosen().Suffix); });
  for (const TRowFileKind& kind : kinds) {
    if (remembered.isValid() && kind.Format == remembered.toInt()) dialog.selectNameFilter(FilterOf(kind));
  }
  dialog.setDefaultSuffix(chosen().Suffix);
  dialog.selectFile(FileNameOf(suggestedName));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  const QString file = dialog.selectedFiles().constFirst();
  if (memory.Set) {
    memory.Set(QStringLiteral("export.folder"), QFileInfo(file).absolutePath());
    memory.Set(QStringLiteral("export.format"), int{chosen().Format});
  }
  const TRowFileFormat format = FormatOf(file, chosen());
  return ExportRowsTo(parent, std::move(rows), std::move(order), file, format) ? file : QString();
}

}  // namespace tolvi
