// Reads a SELECT statement in full. Unlike TJSQLParser, which takes the common core of SQL and passes over the rest,
// this refuses what it does not understand, and keeps the structure of all else. Expressions stay ranges of tokens.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/sqlimport/selecttext.h>

namespace tolvi {

/// A condition: a predicate, or conditions of which all or any apply.
struct TOLVI_CORE_API TSelectCondition {
  enum TKind : std::uint8_t { ckAll, ckAny, ckPredicate };

  TKind Kind = ckPredicate;
  /// Whether all "not" before it, and before brackets round it, together negate it. Those within a predicate are not
  /// among them.
  bool Negated = false;
  /// Without "not" before it and brackets round it.
  TTokenRange Range;
  /// At least two. A bracket round a single condition is none of its own; a bracket of the same kind inside another
  /// one stays.
  std::vector<TSelectCondition> Nodes;
  /// The conditions that must all apply: those of "a and b", itself for any other.
  [[nodiscard]] std::vector<const TSelectCondition*> Terms() const;

  // Of a predicate: `Left Operation Right`, or `Left not Operation Right`.

  /// All of it if there is no operation, as in "exists (...)" or "Active".
  TTokenRange Left;
  /// One token in lower case: a comparison symbol, "like", "in", "is", "between", or another word between two operands
  /// ("glob", "similar", ...). Empty for none. Of several, the first.
  std::string Operation;
  /// "not like", "not in", "not between", "is not".
  bool NotInside = false;
  /// Of "between", both bounds and the "and" between them.
  TTokenRange Right;
};

/// An item of the select list.
struct TSelectColumn {
  TTokenRange Expr;
  /// Without quotes; empty for none.
  std::string Alias;
  bool AliasQuoted = false;
  std::size_t AliasToken = 0;
};

/// How a table is joined to what stands before it.
enum TSelectJoinKind : std::uint8_t { sjComma, sjInner, sjLeft, sjRight, sjFull, sjCross, sjNatural };

/// A table of the FROM clause.
struct TSelectTable {
  /// The name and what qualifies it, without quotes: {"dbo", "Orders"}.
  std::vector<std::string> Names;
  /// Without quotes; empty for none.
  std::string Alias;
  /// Of the name and its qualifiers.
  TTokenRange Range;
};

/// A table, or two sources joined.
struct TSelectSource {
  /// Of a table: its index among the statement's tables.
  std::size_t Table = 0;
  /// Of a join: both sides. Null for a table.
  std::unique_ptr<TSelectSource> Left, Right;
  TSelectJoinKind Join = sjComma;
  std::optional<TSelectCondition> On;
  /// The columns after USING, without quotes.
  std::vector<std::string> Using;
  /// Of a join: its first word or comma.
  std::size_t Token = 0;
};

/// A term of ORDER BY.
struct TSelectOrder {
  TTokenRange Expr;
  bool Descending = false;
};

/// A statement. Ranges are those of the text that it was read from.
struct TSelectStatement {
  TTokenRange Range;
  bool Distinct = false;
  /// What follows TOP (a number or a bracket, and "percent") and LIMIT (numbers, "offset", ","); empty for none.
  TTokenRange Top, Limit;
  /// Whether the select list is "*".
  bool AllColumns = false;
  std::vector<TSelectColumn> Columns;
  /// In the order in which they stand there.
  std::vector<TSelectTable> Tables;
  std::unique_ptr<TSelectSource> From;
  std::optional<TSelectCondition> Where, Having;
  std::vector<TTokenRange> GroupBy;
  std::vector<TSelectOrder> OrderBy;
};

/// What is no part of a query but may stand in a statement, and was passed over on demand.
struct TSelectSkipped {
  TTokenRange Range;
  std::string Reason;
};

/// Reads the statement in `range`, which may be a select in brackets within another statement (without the brackets).
/// Raises `ESQLImportError` for what is no SELECT, and for what a query cannot say: WITH, UNION and the like, a select
/// or a function in FROM, OFFSET, FETCH, FOR, WINDOW, DISTINCT ON, NULLS FIRST, LIMIT other than with numbers. With
/// `skipped`, what follows the last clause that can be read, and NULLS FIRST, goes there instead.
TOLVI_CORE_API TSelectStatement ReadSelect(const TSelectText& text, TTokenRange range,
                                           std::vector<TSelectSkipped>* skipped = nullptr);

/// Reads a condition on its own, such as the SQL of a link.
TOLVI_CORE_API TSelectCondition ReadSelectCondition(const TSelectText& text, TTokenRange range);

}  // namespace tolvi
