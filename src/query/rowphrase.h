#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/text.h>

namespace tolvi {

class TDSField;
class TFilterBracket;
class TFilterRow;
class TJCustomDBStructure;

/// What a part of a row's sentence shows: words that stay as they are; the link word of a bracket ("all"); field and
/// operator of a condition; a value as text, as parameter, as sub-query; a row of SQL.
enum TPhraseKind : std::uint8_t { pkText, pkLinkWord, pkField, pkOperator, pkValue, pkParameter, pkSubQuery, pkSQL };

/// A part of a row's sentence. The text is one line: line breaks in values are blanks.
struct TPhrasePart {
  TPhraseKind Kind = pkText;
  /// 1 or 2 for a value of whatever kind, else 0.
  int ValueIndex = 0;
  std::string Text;
  /// Whether a blank stands before the part. Titles and formats decide it: not every language writes blanks.
  bool SpaceBefore = false;
  /// Whether the text stands for a value that is missing.
  bool IsPlaceholder = false;
  /// Whether the text stands for what the model lacks.
  bool IsUnknown = false;
};
using TPhrase = std::vector<TPhrasePart>;

/// How people tell the fields of a model apart: by their display names; a field whose display name is not the only one
/// is called by its compound name. Holds while the model stays as it is (`GetRevision`).
class TOLVI_CORE_API TFieldNames final {
 public:
  /// `model` may be null.
  explicit TFieldNames(const TJCustomDBStructure* model);
  std::string Of(const TDSField& field) const;

 private:
  std::unordered_map<std::string_view, int, TFoldedHash, TFoldedEqual> FCounts;
};

/// The sentence of a row of a query panel, in the order in which it is read. The panel's titles say it for the root
/// ("ttlFilter") and other brackets ("ttlBracket", the link word in the place of each "@"); a condition on a field is
/// field, operator and values with the operator's `ValFormat` between them; a predefined condition its display format
/// with a value in the place of each "@".
///
/// A parameter is shown as <Name>, with its value (<Name: 42>) where it has one; a value without text as <empty>; what
/// the model lacks as the query names it, in angle brackets.
TOLVI_CORE_API TPhrase RowPhrase(const TFilterRow& row, const TFieldNames& names);

/// The text with blanks for its line breaks and tabs.
TOLVI_CORE_API std::string OneLine(std::string_view text);

/// The parts as one line.
TOLVI_CORE_API std::string PhraseText(const TPhrase& phrase);

/// The sentences of the bracket's rows as one line, divided by "; ", with those of inner brackets in round ones. Rows
/// that are off or hidden are left out; it ends with "…" where it would get longer than about `limit` bytes.
TOLVI_CORE_API std::string RowsText(const TFilterBracket& bracket, const TFieldNames& names, std::size_t limit);

}  // namespace tolvi
