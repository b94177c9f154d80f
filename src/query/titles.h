#pragma once

#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

/// Makes `titles` the lines of `defaults`, in that order, each key's text replaced by the one that `given` has for it
/// in the section of the same name (anywhere, when the defaults have no sections), unless that is empty. Line breaks in
/// texts become blanks, keys that only `given` holds are dropped. The section "[PanelTitles]" is read as the older name
/// of "[Query Panel]". The lists may be the same ones.
TOLVI_CORE_API void LoadTitlesFromStrings(const TStrings& defaults, TStrings& titles, const TStrings& given);

/// The texts of the query panel and of the result fields editor: lines "key=text" in two sections, which a host may
/// replace or translate. "@" marks the place of a link word, "%s" that of a field name, "&" a menu accelerator.
class TOLVI_CORE_API TTitles final {
 public:
  /// Starts with the default texts.
  TTitles() { LoadDefTitles(); }

  /// Back to the default texts (English).
  void LoadDefTitles();
  /// The text of that key, ignoring case; empty when there is none.
  std::string GetTitle(std::string_view name) const;
  /// Replaces the text of a key; an unknown key is ignored.
  void SetTitle(std::string_view name, std::string_view text);
  const TStrings& Lines() const { return FLines; }
  /// Default texts, replaced by those of `lines` (`LoadTitlesFromStrings`).
  void Assign(const TStrings& lines);
  /// The older form: keys and texts without a division into sections, over the present texts.
  void AssignOld(const TStrings& lines);
  bool IsDefault() const { return FLines == DefaultLines(); }
  static const TStrings& DefaultLines();

 private:
  TStrings FLines;
};

}  // namespace tolvi
