#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>

namespace tolvi {

/// The content of a file, without a leading UTF-8 byte order mark. Raises `EFileError` naming the file and the reason.
TOLVI_CORE_API std::string ReadFile(const std::filesystem::path& file);

/// Writes to a temporary file beside the target, flushes it to the disk and renames it over the target: after a crash
/// the file holds the old or the new content, whole. Raises `EFileError`; the old file is then untouched and no
/// temporary file is left.
TOLVI_CORE_API void WriteFileAtomically(const std::filesystem::path& file, std::string_view content);

}  // namespace tolvi
