#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace tolvi {

enum TCellKind : std::uint8_t { ckNull, ckNumber, ckText, ckBytes };

/// A value of a row. The text is valid until the next row is fetched.
struct TCell {
  TCellKind Kind = ckNull;
  std::string_view Text;
};

/// Writes rows in one format as they come, in constant memory. The stream must outlive it.
class TRowWriter {
 public:
  virtual ~TRowWriter() = default;
  virtual void Begin(const std::vector<std::string>& columns) = 0;
  virtual void Row(const std::vector<TCell>& cells) = 0;
  virtual void End() = 0;
};

/// "table": columns as wide as their widest cell among the first 100 rows, numbers to the right, NULL as "NULL",
/// control characters as blanks, below the number of rows. "csv": RFC 4180 with a header line, lines ended by LF, NULL
/// as an empty field, an empty text as "". "json": an array of objects, one in a line, NULL as null; equal column names
/// get
/// "_2", "_3". Bytes are hexadecimal digits in all of them. Any other format raises `std::invalid_argument`.
std::unique_ptr<TRowWriter> MakeRowWriter(std::string_view format, std::ostream& out);

/// How many columns of a terminal the UTF-8 text takes.
std::size_t DisplayWidth(std::string_view text);

}  // namespace tolvi
