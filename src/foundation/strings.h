#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>

namespace tolvi {

/// A list of text lines. Indexes count from 0; one outside the list raises `EListError`.
class TOLVI_CORE_API TStrings {
 public:
  TStrings() = default;
  TStrings(std::initializer_list<std::string_view> lines) : FLines(lines.begin(), lines.end()) {}
  explicit TStrings(std::vector<std::string> lines) : FLines(std::move(lines)) {}

  std::size_t Count() const { return FLines.size(); }
  bool Empty() const { return FLines.empty(); }
  const std::string& operator[](std::size_t index) const;
  void SetLine(std::size_t index, std::string_view line);
  /// Appends `suffix` to a line.
  void AppendTo(std::size_t index, std::string_view suffix);

  std::size_t Add(std::string_view line);
  void Insert(std::size_t index, std::string_view line);
  void Delete(std::size_t index);
  void Clear() { FLines.clear(); }
  void Reserve(std::size_t count) { FLines.reserve(count); }
  void AddStrings(const TStrings& lines);

  /// Index of the first line equal to `line` ignoring case; -1 when there is none.
  std::ptrdiff_t IndexOf(std::string_view line) const;
  /// Index of the first name=value line of that name, ignoring case; -1 when there is none.
  std::ptrdiff_t IndexOfName(std::string_view name) const;

  /// The value of the first line "name=value" whose name equals `name` ignoring case; empty when there is none.
  std::string Value(std::string_view name) const;
  /// Replaces the value of the first such line, or adds the line.
  void SetValue(std::string_view name, std::string_view value);
  /// The parts of a line before and after its first "=" (all and nothing when it has none).
  std::string_view NameAt(std::size_t index) const;
  std::string_view ValueAt(std::size_t index) const;

  /// All lines, each followed by CR LF. Setting splits at CR LF, LF or CR.
  std::string GetText() const;
  void SetText(std::string_view text);
  /// All lines joined with `separator`, none after the last.
  std::string Joined(std::string_view separator) const;

  std::string GetCommaText() const;
  void SetCommaText(std::string_view text);

  /// Reads a UTF-8 file, a byte order mark skipped; writes through `WriteFileAtomically`. Raise `EFileError`.
  void LoadFromFile(const std::filesystem::path& file);
  void SaveToFile(const std::filesystem::path& file) const;

  const std::vector<std::string>& Lines() const { return FLines; }
  auto begin() const { return FLines.begin(); }
  auto end() const { return FLines.end(); }
  bool operator==(const TStrings&) const = default;

 private:
  std::vector<std::string> FLines;
};

using TStringList = TStrings;

}  // namespace tolvi
