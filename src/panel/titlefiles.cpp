#include <algorithm>
#include <cstddef>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/sections.h>
#include <tolvi/foundation/text.h>
#include <tolvi/panel/titlefiles.h>
#include <tolvi/query/titles.h>

namespace tolvi {
namespace {

constexpr std::string_view Places[] = {"@", "%s"};

std::size_t CountOf(std::string_view part, std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + part.size())) ++count;
  return count;
}

/// The number of bytes of the UTF-8 letter that begins with `first`.
std::size_t LetterSize(char first) {
  const auto byte = static_cast<unsigned char>(first);
  return byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

}  // namespace

std::vector<std::string> Accelerators(std::string_view caption) {
  std::vector<std::string> letters;
  for (std::size_t at = caption.find('&'); at < caption.size() && at + 1 < caption.size(); at = caption.find('&', at)) {
    const std::string_view letter = caption.substr(at + 1, LetterSize(caption[at + 1]));
    if (letter != "&" && letter != " ") letters.push_back(FoldCase(letter));
    at += 1 + letter.size();
  }
  return letters;
}

std::string TitleFault(std::string_view byDefault, std::string_view text) {
  for (const std::string_view place : Places) {
    const std::size_t wanted = CountOf(place, byDefault), found = CountOf(place, text);
    if (found < wanted) return Format("\"%s\" is missing.", {place});
    if (found > wanted && wanted > 0) return Format("\"%s\" is there too often.", {place});
  }
  return Accelerators(text).size() > 1 ? "More than one \"&\"." : "";
}

TStrings TitlesFromFile(const TStrings& defaults, const TStrings& file) {
  TStrings titles;
  if (!ReadSLSections(file).Empty()) {
    LoadTitlesFromStrings(defaults, titles, file);
    return titles;
  }
  TStrings given;
  for (const std::string& line : defaults) {
    if (!IsSectionHeader(line)) continue;
    given.Add(line);
    given.AddStrings(file);
  }
  LoadTitlesFromStrings(defaults, titles, given.Empty() ? file : given);
  return titles;
}

TStrings ChangedTitles(const TStrings& defaults, const TStrings& titles) {
  TStrings changed;
  for (const std::string& line : titles) {
    if (std::find(defaults.begin(), defaults.end(), line) == defaults.end()) changed.Add(line);
  }
  return changed;
}

TStrings TitlesForFile(const TStrings& titles, const TStrings& file) {
  TStrings lines = titles, known = ReadSLSections(titles);
  if (known.IndexOf("Query Panel") >= 0) known.Add("PanelTitles");
  bool keep = false;
  for (const std::string& line : file) {
    if (IsSectionHeader(line)) {
      const bool kept = keep;
      keep = known.IndexOf(std::string_view(line).substr(1, line.size() - 2)) < 0;
      if (keep && !kept) lines.Add("");
    }
    if (keep) lines.Add(line);
  }
  while (!lines.Empty() && Trim(lines[lines.Count() - 1]).empty()) lines.Delete(lines.Count() - 1);
  return lines;
}

}  // namespace tolvi
