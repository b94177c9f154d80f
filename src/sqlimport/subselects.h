// Selects in brackets that stay SQL: they have names of their own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/text.h>
#include <tolvi/sqlimport/selecttext.h>

namespace tolvi {

/// Where the select in brackets that begins at the token ends, behind its closing bracket; the token for any other.
[[nodiscard]] TOLVI_CORE_API std::size_t EndOfSubSelect(const TSelectText& text, std::size_t token);

/// Which tables the selects in a range have in their FROM, by their aliases or, without one, by their names.
class TOLVI_CORE_API TSubSelects final {
 public:
  TSubSelects(const TSelectText& text, TTokenRange range);

  /// What the name before a point means: a table of a select round it, or of one that a UNION joins to such a one, so
  /// that it cannot be told; or none of these.
  enum TQualifier : std::uint8_t { sqOuter, sqOwn, sqUnsure };

  /// Goes through the range: `onQualifier(token, meaning)` for each name before a point within a select,
  /// `onOther(token)` for all other tokens.
  void ForEach(const std::function<void(std::size_t, TQualifier)>& onQualifier,
               const std::function<void(std::size_t)>& onOther) const;

  /// Whether any of the selects has a table of that name.
  [[nodiscard]] bool Declares(const std::string& name) const { return FAll.contains(name); }

 private:
  using TNames = std::unordered_set<std::string, TFoldedHash, TFoldedEqual>;
  // Where in a select: before FROM or behind its tables; among them; in the condition of a join.
  enum TPlace : std::uint8_t { spOther, spFrom, spOn };
  struct TSelect {
    TNames Names;
    TPlace Place = spOther;
    int Depth = 0;
    bool HasUnion = false;
  };
  static void Enter(TSelect& select, TSelectWord word);
  [[nodiscard]] TQualifier MeaningOf(std::size_t token, const std::vector<const TSelect*>& open) const;

  const TSelectText& FText;
  const TTokenRange FRange;
  // By their opening brackets.
  std::unordered_map<std::size_t, TSelect> FSelects;
  TNames FAll;
};

}  // namespace tolvi
