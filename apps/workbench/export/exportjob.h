#pragma once

#include <QObject>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

#include "apps/workbench/export/rowfiles.h"

namespace tolvi {

/// Writes rows to a file in a thread of its own. Events come in the thread of the object. The destructor stops the
/// writing and waits for its end, which comes soon, but for the packing of a large rfXlsx; an unfinished file is not
/// left behind.
class TExportJob final : public QObject {
  Q_OBJECT

 public:
  /// `order` as in `TSortedRows`. The rows must be complete: nobody adds to them while they are written.
  TExportJob(std::shared_ptr<const TResultRows> rows, std::vector<std::uint32_t> order, QObject* parent = nullptr);
  ~TExportJob() override;

  /// Once.
  void Start(const QString& file, TRowFileFormat format);
  void Cancel() { FCancelled = true; }

  std::size_t GetRowCount() const { return FRows->GetRowCount(); }
  /// How many rows have been written, now and then.
  std::function<void(std::size_t rows)> OnProgress;
  /// Last. `fault` is empty when the file was written or the job cancelled.
  std::function<void(bool written, const QString& fault)> OnEnd;

 private:
  void Write(const QString& file, TRowFileFormat format);

  std::shared_ptr<const TResultRows> FRows;
  std::vector<std::uint32_t> FOrder;
  std::atomic<bool> FCancelled = false;
  std::thread FThread;
};

}  // namespace tolvi
