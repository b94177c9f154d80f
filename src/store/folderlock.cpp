#include <algorithm>
#include <cerrno>
#include <system_error>
#include <thread>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

#include <tolvi/store/folderlock.h>
#include <tolvi/store/queryfiles.h>
#include <tolvi/store/storedqueries.h>

namespace tolvi {
namespace {

constexpr std::intptr_t NoFile = -1;
constexpr const char* LockFileName = ".lock";
constexpr std::chrono::milliseconds FirstPause{1}, LongestPause{16};

enum TAccess : std::uint8_t { accRead, accWrite };
enum TOutcome : std::uint8_t { outLocked, outBusy, outFailed };

#ifdef _WIN32

HANDLE HandleOf(std::intptr_t file) { return reinterpret_cast<HANDLE>(file); }

std::error_code LastError() { return {static_cast<int>(GetLastError()), std::system_category()}; }

std::intptr_t OpenLockFile(const std::filesystem::path& path, TAccess access) {
  const DWORD rights = access == accWrite ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ;
  const DWORD disposition = access == accWrite ? OPEN_ALWAYS : OPEN_EXISTING;
  const HANDLE handle = CreateFileW(path.c_str(), rights, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, disposition,
                                    FILE_ATTRIBUTE_HIDDEN, nullptr);
  return handle == INVALID_HANDLE_VALUE ? NoFile : reinterpret_cast<std::intptr_t>(handle);
}

TOutcome TryLock(std::intptr_t file, TAccess access) {
  OVERLAPPED start{};
  const DWORD flags = LOCKFILE_FAIL_IMMEDIATELY | (access == accWrite ? LOCKFILE_EXCLUSIVE_LOCK : 0);
  if (LockFileEx(HandleOf(file), flags, 0, 1, 0, &start)) return outLocked;
  return GetLastError() == ERROR_LOCK_VIOLATION || GetLastError() == ERROR_IO_PENDING ? outBusy : outFailed;
}

void Unlock(std::intptr_t file) {
  OVERLAPPED start{};
  UnlockFileEx(HandleOf(file), 0, 1, 0, &start);
}

void CloseLockFile(std::intptr_t file) { CloseHandle(HandleOf(file)); }

#else

std::error_code LastError() { return {errno, std::generic_category()}; }

// A pipe of that name would be waited for.
constexpr int OpenFlags = O_CLOEXEC | O_NONBLOCK;

int Descriptor(std::intptr_t file) { return static_cast<int>(file); }

std::intptr_t OpenLockFile(const std::filesystem::path& path, TAccess access) {
  if (access == accRead) return open(path.c_str(), O_RDONLY | OpenFlags);
  const int file = open(path.c_str(), O_RDWR | O_CREAT | OpenFlags, 0666);
  if (file >= 0 || errno != EACCES) return file;
  // In a folder that several people write in, the lock file belongs to the first of them; reading it is enough.
  const int readOnly = open(path.c_str(), O_RDONLY | OpenFlags);
  if (readOnly < 0) errno = EACCES;
  return readOnly;
}

TOutcome TryLock(std::intptr_t file, TAccess access) {
  if (flock(Descriptor(file), (access == accWrite ? LOCK_EX : LOCK_SH) | LOCK_NB) == 0) return outLocked;
  return errno == EWOULDBLOCK || errno == EINTR ? outBusy : outFailed;
}

// Closing would not do: a process that was forked meanwhile has the file open, too.
void Unlock(std::intptr_t file) { flock(Descriptor(file), LOCK_UN); }

void CloseLockFile(std::intptr_t file) { close(Descriptor(file)); }

#endif

struct TLocked {
  std::intptr_t File = NoFile;
  std::error_code Error;
};

TLocked Lock(const std::filesystem::path& folder, TAccess access, std::chrono::milliseconds wait) {
  using TClock = std::chrono::steady_clock;
  const std::filesystem::path path = folder / LockFileName;
  const TClock::time_point deadline = TClock::now() + wait;
  for (std::chrono::milliseconds pause = FirstPause;; pause = std::min(pause * 2, LongestPause)) {
    const std::intptr_t file = OpenLockFile(path, access);
    if (file == NoFile) return {.Error = LastError()};
    const TOutcome outcome = TryLock(file, access);
    const std::error_code error = LastError();
    if (outcome == outLocked) return {.File = file, .Error = {}};
    CloseLockFile(file);
    if (outcome == outFailed) return {.Error = error};
    if (TClock::now() >= deadline) return {.Error = std::make_error_code(std::errc::timed_out)};
    std::this_thread::sleep_for(pause);
  }
}

}  // namespace

TFolderLock TFolderLock::ForWriting(const std::filesystem::path& folder, std::chrono::milliseconds wait) {
  const TLocked locked = Lock(folder, accWrite, wait);
  if (locked.Error == std::errc::timed_out) {
    throw EQueryStoreError("Another program is writing in the folder %s; try again when it is done",
                           {PathText(folder)});
  }
  if (locked.Error) {
    throw EQueryStoreError("Cannot write in the folder %s: %s; allow it, or choose another folder",
                           {PathText(folder), locked.Error.message()});
  }
  return TFolderLock(locked.File);
}

TFolderLock TFolderLock::ForReading(const std::filesystem::path& folder, std::chrono::milliseconds wait) {
  return TFolderLock(Lock(folder, accRead, wait).File);
}

TFolderLock::~TFolderLock() {
  if (FFile == NoFile) return;
  Unlock(FFile);
  CloseLockFile(FFile);
}

}  // namespace tolvi
