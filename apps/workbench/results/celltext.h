// Values of rows as people read them.
#pragma once

#include <QLocale>
#include <QString>

#include "apps/workbench/results/resultrows.h"

namespace tolvi {

/// How many rows tell what a column holds.
constexpr std::size_t RowsLookedInto = 200;

/// With how many decimals at least the numbers of a column are shown, so that their points stand below each other: as
/// many as its first rows have, and two for money. 0 unless its type is one of decimals.
std::size_t ShownDecimals(const TResultRows& rows, std::size_t column);

/// Writes values in the manner of a locale: numbers with its point and all their digits, as they come, days in its
/// order of day, month and year, booleans as "Yes" and "No".
class TCellText final {
 public:
  explicit TCellText(const QLocale& locale = QLocale());

  /// The whole value: empty for NULL, bytes as "0x" and hexadecimal digits.
  QString Whole(const TCellView& cell) const;
  /// One line for a grid: "NULL", "12 bytes", and breaks of lines as signs; what is too long to be seen is cut. Numbers
  /// get zeros up to so many decimals, and keep those that they have.
  QString Line(const TCellView& cell, std::size_t decimals = 0) const;

 private:
  QString Number(std::string_view text) const;
  QString Day(std::string_view text) const;

  QString FPoint, FMinus, FPlus, FDateFormat;
  QChar FZero;
  QString FNull, FYes, FNo;
};

/// Whether values of the kind stand at the right.
inline bool IsRightAligned(TSqlValueKind kind) { return kind == svNumber; }

}  // namespace tolvi
