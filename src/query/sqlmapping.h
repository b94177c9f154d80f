#pragma once

#include <string>

#include <tolvi/foundation/api.h>

namespace tolvi {

/// Something of an SQL statement that an import dropped, guessed or replaced.
struct TOLVI_CORE_API TImportWarning {
  /// Counted from 1; 0 where it is not known.
  int Line = 0;
  /// The piece of the statement.
  std::string Text;
  /// What was done with it.
  std::string Action;

  /// Both as one line for people, a long text shortened: "limit 10": left out.
  [[nodiscard]] std::string Message() const;
  bool operator==(const TImportWarning&) const = default;
};

/// How a statement is imported.
struct TSQLImportOptions {
  /// The number of the statement's first line, for statements that are part of a longer text.
  int FirstLine = 1;
  /// Whether the query must say what the statement says. What a query cannot say is refused then (`ESQLImportError`),
  /// and the panel keeps its old query. Conditions that no operator of the model says become rows that hold their SQL,
  /// where the panel allows such rows.
  bool Faithful = false;
  /// Of a faithful import: whether what cannot be kept is left out or replaced, with a warning, instead of refused.
  bool Approximate = false;
};

}  // namespace tolvi
