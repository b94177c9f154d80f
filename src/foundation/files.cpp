#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

#include <tolvi/foundation/files.h>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

constexpr int MaxTemporaryNames = 1000;

struct TCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using TFileHandle = std::unique_ptr<std::FILE, TCloser>;

EFileError Failed(std::string_view message, const std::filesystem::path& file, const std::error_code& reason) {
  return EFileError(message, {file.string(), reason.message()});
}

EFileError ReadFailed(const std::filesystem::path& file, int reason) {
  return Failed("Cannot read the file %s: %s", file, std::error_code(reason, std::generic_category()));
}

EFileError WriteFailed(const std::filesystem::path& file, const std::error_code& reason) {
  return Failed("Cannot write the file %s: %s", file, reason);
}

EFileError WriteFailed(const std::filesystem::path& file, int reason) {
  return WriteFailed(file, std::error_code(reason, std::generic_category()));
}

bool FlushToDisk(std::FILE* file) {
  if (std::fflush(file) != 0) return false;
#ifdef _WIN32
  return _commit(_fileno(file)) == 0;
#else
  return fsync(fileno(file)) == 0;
#endif
}

/// A new file beside the target, removed again unless it was renamed over the target.
class TTemporaryFile {
 public:
  explicit TTemporaryFile(const std::filesystem::path& target) : FTarget(target) {
    for (int number = 1; !FHandle && number <= MaxTemporaryNames; ++number) {
      FPath = target;
      FPath += "." + std::to_string(number) + ".tmp";
      errno = 0;
      FHandle.reset(std::fopen(FPath.string().c_str(), "wbx"));
      if (!FHandle && errno != EEXIST) break;
    }
    if (!FHandle) throw WriteFailed(target, errno);
  }
  TTemporaryFile(const TTemporaryFile&) = delete;
  TTemporaryFile& operator=(const TTemporaryFile&) = delete;
  ~TTemporaryFile() {
    FHandle.reset();
    std::error_code ignored;
    if (!FRenamed) std::filesystem::remove(FPath, ignored);
  }

  void Write(std::string_view content) {
    errno = 0;
    if (std::fwrite(content.data(), 1, content.size(), FHandle.get()) != content.size() || !FlushToDisk(FHandle.get()))
      throw WriteFailed(FTarget, errno);
    if (std::fclose(FHandle.release()) != 0) throw WriteFailed(FTarget, errno);
  }

  void RenameToTarget() {
    std::error_code error;
    const std::filesystem::file_status old = std::filesystem::status(FTarget, error);
    if (std::filesystem::exists(old)) std::filesystem::permissions(FPath, old.permissions(), error);
    std::filesystem::rename(FPath, FTarget, error);
    if (error) throw WriteFailed(FTarget, error);
    FRenamed = true;
  }

 private:
  std::filesystem::path FTarget, FPath;
  TFileHandle FHandle;
  bool FRenamed = false;
};

}  // namespace

std::string ReadFile(const std::filesystem::path& file) {
  errno = 0;
  const TFileHandle handle(std::fopen(file.string().c_str(), "rb"));
  if (!handle) throw ReadFailed(file, errno);

  std::string content;
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  if (!error && size < content.max_size()) content.reserve(static_cast<std::size_t>(size));
  std::array<char, 65536> block;
  while (const std::size_t count = std::fread(block.data(), 1, block.size(), handle.get()))
    content.append(block.data(), count);
  if (std::ferror(handle.get()) != 0) throw ReadFailed(file, errno);

  if (content.starts_with(ByteOrderMark)) content.erase(0, ByteOrderMark.size());
  return content;
}

void WriteFileAtomically(const std::filesystem::path& file, std::string_view content) {
  // A symbolic link stays one: the file that it names is replaced.
  std::error_code error;
  const std::filesystem::path linked = std::filesystem::canonical(file, error);
  TTemporaryFile temporary(error ? file : linked);
  temporary.Write(content);
  temporary.RenameToTarget();
}

}  // namespace tolvi
