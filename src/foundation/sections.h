#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/foundation/text.h>

namespace tolvi {

/// Sectioned text: header lines, each a name in square brackets, followed by key=value lines or by free lines. The
/// model text, the query text and the titles are written so.

/// The key=value lines of the section of that name (the first one, ignoring case), up to the next header.
TOLVI_CORE_API TStrings XReadSLSectionValues(const TStrings& lines, std::string_view section);

/// The section names of the lines, in order.
TOLVI_CORE_API TStrings ReadSLSections(const TStrings& lines);

/// Whether the line is a header: its first character is "[" and its last "]".
TOLVI_CORE_API bool IsSectionHeader(std::string_view line);

/// One section of a `TSectionedText`. The views point into the text.
class TOLVI_CORE_API TSection {
 public:
  TSection(std::string_view name, std::string_view body, std::size_t headerLine)
      : FName(name), FBody(body), FHeaderLine(headerLine) {}

  std::string_view Name() const { return FName; }
  /// Number of the header's line in the text, from 1.
  std::size_t HeaderLine() const { return FHeaderLine; }

  /// The value of the first line with that key (ignoring ASCII case), as it stands in the text; nothing when the key
  /// is missing. Keys asked for in the order in which they stand are found without a search.
  std::optional<std::string_view> Find(std::string_view key) const;

  /// The value of the key, empty when it is missing, with line breaks put back (see `TSectionWriter::Key`).
  std::string Value(std::string_view key) const;

  /// Values of other types. A missing or empty value gives the default; one that is no such value raises
  /// `EConvertError` naming section, key, line and text.
  std::int64_t Integer(std::string_view key, std::int64_t byDefault) const;
  bool Boolean(std::string_view key, bool byDefault) const;

  /// Line number of the key, or of the header when it is missing.
  std::size_t LineOf(std::string_view key) const;
  /// How messages name a place: 'Line 12, section "Main", key "Version"'.
  std::string Where(std::string_view key) const;

 private:
  struct TEntry {
    std::size_t line = 0;
    std::string_view value;
  };
  std::optional<TEntry> FindEntry(std::string_view key) const;

  std::string_view FName, FBody;
  std::size_t FHeaderLine;
  /// Where the next key is expected, and a mask of the hashes of the keys before that place: a key that is not in it
  /// need not be searched for there.
  mutable std::size_t FNext = 0;
  mutable std::uint64_t FPassed = 0;
};

/// Splits a sectioned text into its sections, over one buffer that the caller keeps alive.
///
/// Lines end with LF or CR LF; a leading byte order mark is skipped. A free section (SQL, a description) ends only at a
/// header for which `isHeader` is true; a key=value section ends at any header.
class TOLVI_CORE_API TSectionedText {
 public:
  using THeaderTest = bool (*)(std::string_view name);

  TSectionedText(std::string_view text, THeaderTest isHeader);

  /// The first section of that name (ignoring case) in the whole text.
  std::optional<TSection> First(std::string_view name) const;

  /// The next section of that name at or after the place where the previous `Next` ended, moving that place behind
  /// it; nothing, and the place unmoved, when there is none.
  std::optional<TSection> Next(std::string_view name);
  void Rewind() { FCursor = 0; }

  /// The lines of the free section of that name, searched like `Next` or from the start: escaped header lines put
  /// back, one blank line before the following header left out. Nothing when there is no such section.
  std::optional<TStrings> NextFree(std::string_view name);
  std::optional<TStrings> FirstFree(std::string_view name) const;

  /// Names of all sections, in order.
  std::vector<std::string_view> Names() const;

 private:
  struct THeader {
    std::string_view name;
    std::size_t start, bodyStart, line;
    bool known;
  };
  std::optional<std::size_t> FindFrom(std::string_view name, std::size_t header) const;
  std::size_t KnownHeaderAfter(std::size_t header) const;
  TSection SectionAt(std::size_t header) const;
  TStrings FreeLinesAt(std::size_t header) const;

  std::string_view FText;
  THeaderTest FIsHeader;
  std::vector<THeader> FHeaders;
  std::size_t FCursor = 0;
  /// Hash of the name and place of every header, in that order; made by the first search that needs it.
  mutable std::vector<std::pair<std::size_t, std::size_t>> FIndex;
};

/// Writes sectioned text into one growing buffer with CR LF line breaks.
class TOLVI_CORE_API TSectionWriter {
 public:
  explicit TSectionWriter(TSectionedText::THeaderTest isHeader) : FIsHeader(isHeader) {}

  void Header(std::string_view name) { Line("[", name, "]"); }
  /// Writes "key=value". A value that holds a line break is written with each line break replaced by a blank, and
  /// again, whole, in the line "key:escaped=" with CR, LF and backslash escaped.
  void Key(std::string_view key, std::string_view value);
  void Key(std::string_view key, std::int64_t value);
  /// Writes the lines as they stand; one that reads as a header of the format gets one more blank before it, and one
  /// that holds line breaks becomes several.
  void FreeLines(const TStrings& lines);
  void Line(std::string_view a, std::string_view b = {}, std::string_view c = {}) {
    FText.append(a).append(b).append(c).append(CrLf);
  }

  const std::string& Text() const& { return FText; }
  std::string Text() && { return std::move(FText); }
  void Reserve(std::size_t size) { FText.reserve(size); }

 private:
  TSectionedText::THeaderTest FIsHeader;
  std::string FText;
};

}  // namespace tolvi
