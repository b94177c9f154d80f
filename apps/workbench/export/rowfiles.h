#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "apps/workbench/results/resultrows.h"

namespace tolvi {

enum TRowFileFormat : std::uint8_t { rfCsv, rfCsvSemicolon, rfTsv, rfJson, rfXlsx, rfMarkdown };

/// A format and how users read it.
struct TRowFileKind {
  TRowFileFormat Format;
  /// "CSV, separated by commas".
  QString Caption;
  /// Without the point.
  QString Suffix;
};
/// All formats, in the order of a list.
std::vector<TRowFileKind> RowFileKinds();

/// How many rows have been written; false stops. Called in the thread that writes, about every thousand rows.
using TRowFileProgress = std::function<bool(std::size_t rows)>;

/// Writes rows to a file, by way of a temporary one: a file of that name is replaced at the end, whole or not at all.
/// False when `progress` stopped it. Nobody may add rows meanwhile. May run in any thread.
///
/// rfCsv           RFC 4180 with a header line, UTF-8; NULL is an empty field, an empty text "". In a table of one
///                 column both are "", as readers take an empty line for none.
/// rfCsvSemicolon  the same with ";" and a byte order mark at the beginning.
/// rfTsv           the same as rfCsv with tabs, lines end with LF.
/// rfJson          an array of objects with the columns in their order; equal names get "_2", "_3". Numbers are written
///                 with all their digits; one that JSON cannot say ("Inf") is a text.
/// rfXlsx          one sheet: the head is bold, stays in sight and filters; numbers, dates and booleans are such, but a
///                 number of more than 15 digits, which a sheet would round, and a date before 1900 are texts.
/// rfMarkdown      an aligned table; what would be markup is escaped, line breaks are <br>.
///
/// Texts are data and written as they are: one that begins with "=", "+", "-" or "@" may be taken for a formula by a
/// program that opens a CSV or TSV file, but not in rfXlsx. Bytes are hexadecimal digits.
///
/// Raises `EFileError` naming the file and the reason: it cannot be written, or cannot hold the rows (rfXlsx: 1,048,575
/// rows, 16,384 columns, 32,767 letters in a cell). The old file is then untouched.
bool WriteRowFile(const QString& file, TRowFileFormat format, const TSortedRows& rows,
                  const TRowFileProgress& progress = {});

}  // namespace tolvi
