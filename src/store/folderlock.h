#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>

namespace tolvi {

/// While it lives, those who write in a folder are alone there, as far as all of them take this lock: other processes
/// and other locks of this one. It is the lock of the file ".lock" in the folder, which stays. The system releases it
/// when the process ends, however that comes about.
class TFolderLock final {
 public:
  /// Waits until nobody else has the lock. Raises `EQueryStoreError` when that takes longer, and when the folder cannot
  /// be written in.
  static TFolderLock ForWriting(const std::filesystem::path& folder, std::chrono::milliseconds wait);
  /// Waits until nobody writes; readers share the lock. Raises nothing: where no lock can be had, or not in time, there
  /// is reading without one.
  static TFolderLock ForReading(const std::filesystem::path& folder, std::chrono::milliseconds wait);

  TFolderLock(const TFolderLock&) = delete;
  TFolderLock& operator=(const TFolderLock&) = delete;
  ~TFolderLock();

 private:
  explicit TFolderLock(std::intptr_t file) : FFile(file) {}

  // The system's number for the locked file; `NoFile` for none.
  std::intptr_t FFile;
};

}  // namespace tolvi
