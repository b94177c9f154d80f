#include "apps/workbench/export/exportjob.h"

#include <QPointer>

#include <tolvi/ui/qtext.h>

namespace tolvi {

TExportJob::TExportJob(std::shared_ptr<const TResultRows> rows, std::vector<std::uint32_t> order, QObject* parent)
    : QObject(parent), FRows(std::move(rows)), FOrder(std::move(order)) {}

TExportJob::~TExportJob() {
  FCancelled = true;
  if (FThread.joinable()) FThread.join();
}

void TExportJob::Start(const QString& file, TRowFileFormat format) {
  FThread = std::thread([this, file, format] { Write(file, format); });
}

void TExportJob::Write(const QString& file, TRowFileFormat format) {
  // Calls that wait when the object goes are dropped with it.
  const auto tell = [this](auto call) { QMetaObject::invokeMethod(this, call, Qt::QueuedConnection); };
  bool written = false;
  QString fault;
  try {
    written = WriteRowFile(file, format, {*FRows, FOrder}, [this, &tell](std::size_t rows) {
      tell([this, rows] {
        if (OnProgress) OnProgress(rows);
      });
      return !FCancelled;
    });
  } catch (const std::exception& error) {
    fault = ToQString(error.what());
  }
  tell([this, written, fault] {
    if (const auto handler = OnEnd) handler(written, fault);
  });
}

}  // namespace tolvi
