#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/connect/sqlvalue.h>

namespace tolvi {

/// A value of a row, as in `TSqlValue`. The text is valid until the next row is fetched.
struct TCell {
  TSqlValueKind Kind = svNull;
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

// Bytes are hexadecimal digits in all formats.

/// Columns as wide as their widest cell among the first 100 rows, numbers to the right, NULL as "NULL", control
/// characters as blanks, below the number of rows.
std::unique_ptr<TRowWriter> MakeTableWriter(std::ostream& out);

struct TCsvOptions {
  char Separator = ',';
  std::string_view LineEnd = "\n";
  bool ByteOrderMark = false;
};
/// RFC 4180, but for the options, with a header line; NULL as an empty field, an empty text as "". In rows of one
/// column both are "", as readers take an empty line for none.
std::unique_ptr<TRowWriter> MakeCsvWriter(std::ostream& out, const TCsvOptions& options = {});

/// An array of objects, one in a line. NULL is null. Numbers have the digits that they come with; one that JSON cannot
/// say ("Inf", "0,5") is a text. Equal column names get "_2", "_3".
std::unique_ptr<TRowWriter> MakeJsonWriter(std::ostream& out);

/// A table of Markdown with columns as in the table above. What would be markup is escaped, line breaks are <br>.
std::unique_ptr<TRowWriter> MakeMarkdownWriter(std::ostream& out);

/// "table", "csv", "json". Any other format raises `std::invalid_argument`.
std::unique_ptr<TRowWriter> MakeRowWriter(std::string_view format, std::ostream& out);

}  // namespace tolvi
