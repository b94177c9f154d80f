// The names of query files: which file a query has in a folder, and which query a file is.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>

namespace tolvi {

/// A file of a folder and the name that its query has there.
struct TQueryFile {
  std::string File, Name;
  bool operator==(const TQueryFile&) const = default;
};

/// The name of the file for a query: its name and ".qry". What a file system forbids or takes for something else is
/// written as "%" and two hexadecimal digits a byte: / \ : * ? " < > | % and control characters, a point or blank at
/// either end, and the first letter of the names that Windows keeps for devices ("con", "com1").
TOLVI_CORE_API std::string QueryFileName(std::string_view name);

/// Whether the file is taken for a query: its name ends with ".qry" in any case and does not begin with a point, which
/// marks files that are hidden.
TOLVI_CORE_API bool IsQueryFile(std::string_view file);

/// Whether it is what a writer of a query that was killed has left behind: "Late orders.qry.1.tmp".
TOLVI_CORE_API bool IsQueryRemnant(std::string_view file);

/// Names query files, which are sorted. A "%" without two hexadecimal digits stands for itself, control characters
/// become blanks, blanks at the ends are dropped, and what is then nameless is "unnamed". Of files of the same name,
/// ignoring case, the first has it, and the others are "Late orders (2)", "Late orders (3)".
TOLVI_CORE_API std::vector<TQueryFile> NameQueryFiles(std::vector<std::string> files);

/// The path that the UTF-8 text is, on every system, and the reverse.
TOLVI_CORE_API std::filesystem::path TextPath(std::string_view text);
TOLVI_CORE_API std::string PathText(const std::filesystem::path& path);

}  // namespace tolvi
