#include <algorithm>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/sections.h>

namespace tolvi {
namespace {

constexpr std::string_view EscapedSuffix = ":escaped";

/// Cuts the first line off `text`: returned without its LF or CR LF.
std::string_view CutLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

std::string_view HeaderName(std::string_view line) { return line.substr(1, line.size() - 2); }

/// One of 64 bits for a key, the same for every case of its ASCII letters.
std::uint64_t KeyBit(std::string_view key) {
  unsigned hash = 0;
  for (const char c : key) hash = hash * 31 + (static_cast<unsigned char>(c) | 0x20u);
  return std::uint64_t{1} << ((hash ^ (hash >> 6)) & 63u);
}

std::string WithoutLineBreaks(std::string_view value) {
  std::string flat;
  flat.reserve(value.size());
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value[i] == '\r' && i + 1 < value.size() && value[i + 1] == '\n') continue;
    flat += value[i] == '\r' || value[i] == '\n' ? ' ' : value[i];
  }
  return flat;
}

/// Whether the line, blanks before it left out, is a header that the format itself writes.
bool ReadsAsHeader(std::string_view line, TSectionedText::THeaderTest isHeader) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  return IsSectionHeader(line) && isHeader(HeaderName(line));
}

}  // namespace

bool IsSectionHeader(std::string_view line) { return line.size() >= 2 && line.front() == '[' && line.back() == ']'; }

TStrings XReadSLSectionValues(const TStrings& lines, std::string_view section) {
  TStrings values;
  bool inside = false;
  for (const std::string& line : lines) {
    if (IsSectionHeader(line)) {
      if (inside) break;
      inside = SameText(HeaderName(line), section);
    } else if (inside && line.find('=') != std::string::npos) {
      values.Add(line);
    }
  }
  return values;
}

TStrings ReadSLSections(const TStrings& lines) {
  TStrings names;
  for (const std::string& line : lines)
    if (IsSectionHeader(line)) names.Add(HeaderName(line));
  return names;
}

std::optional<TSection::TEntry> TSection::FindEntry(std::string_view key) const {
  const std::uint64_t wanted = KeyBit(key);
  const std::size_t start = (FPassed & wanted) != 0 ? 0 : FNext;
  std::uint64_t passed = start == 0 ? 0 : FPassed;
  std::string_view rest = FBody.substr(start);
  while (!rest.empty()) {
    const std::size_t at = FBody.size() - rest.size();
    const std::string_view line = CutLine(rest);
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    const std::string_view name = line.substr(0, equals);
    passed |= KeyBit(name);
    if (name.size() != key.size() || !AsciiSameText(name, key)) continue;
    if (at >= FNext) {
      FNext = FBody.size() - rest.size();
      FPassed |= passed;
    }
    return TEntry{at, line.substr(equals + 1)};
  }
  return std::nullopt;
}

std::optional<std::string_view> TSection::Find(std::string_view key) const {
  const std::optional<TEntry> entry = FindEntry(key);
  if (!entry) return std::nullopt;
  return entry->value;
}

std::string TSection::Value(std::string_view key) const {
  const std::optional<std::string_view> value = Find(key);
  if (!value) return {};
  // The escaped form stands in the next line. One that no longer says the same (the plain line was edited by hand)
  // does not count.
  std::string_view rest = FBody.substr(static_cast<std::size_t>(value->data() + value->size() - FBody.data()));
  CutLine(rest);
  std::string_view next = CutLine(rest);
  if (next.size() > key.size() && AsciiSameText(next.substr(0, key.size()), key)) {
    next.remove_prefix(key.size());
    if (next.starts_with(EscapedSuffix) && next.substr(EscapedSuffix.size()).starts_with('=')) {
      std::string whole = UnescapeLineBreaks(next.substr(EscapedSuffix.size() + 1));
      if (WithoutLineBreaks(whole) == *value) return whole;
    }
  }
  return std::string(*value);
}

std::int64_t TSection::Integer(std::string_view key, std::int64_t byDefault) const {
  const std::string_view text = Trim(Find(key).value_or(std::string_view()));
  if (text.empty()) return byDefault;
  if (const std::optional<std::int64_t> value = TryStrToInt(text)) return *value;
  throw EConvertError("%s: '%s' is not a valid integer value", {Where(key), text});
}

bool TSection::Boolean(std::string_view key, bool byDefault) const {
  const std::string_view text = Trim(Find(key).value_or(std::string_view()));
  if (text.empty()) return byDefault;
  if (const std::optional<bool> value = TryXStrToBool(text)) return *value;
  throw EConvertError("%s: '%s' is not a valid boolean value", {Where(key), text});
}

std::size_t TSection::LineOf(std::string_view key) const {
  const std::optional<TEntry> entry = FindEntry(key);
  if (!entry) return FHeaderLine;
  const std::string_view before = FBody.substr(0, entry->line);
  return FHeaderLine + 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

std::string TSection::Where(std::string_view key) const {
  return Format("Line %d, section \"%s\", key \"%s\"", {LineOf(key), FName, key});
}

TSectionedText::TSectionedText(std::string_view text, THeaderTest isHeader) : FText(text), FIsHeader(isHeader) {
  if (FText.starts_with(ByteOrderMark)) FText.remove_prefix(ByteOrderMark.size());
  std::string_view rest = FText;
  for (std::size_t number = 1; !rest.empty(); ++number) {
    const std::size_t start = FText.size() - rest.size();
    const std::string_view line = CutLine(rest);
    if (!IsSectionHeader(line)) continue;
    const std::string_view name = HeaderName(line);
    FHeaders.push_back({name, start, FText.size() - rest.size(), number, isHeader(name)});
  }
}

std::optional<std::size_t> TSectionedText::FindFrom(std::string_view name, std::size_t header) const {
  if (header < FHeaders.size() && FHeaders[header].name == name) return header;
  if (FIndex.empty()) {
    FIndex.reserve(FHeaders.size());
    for (std::size_t i = 0; i < FHeaders.size(); ++i) FIndex.emplace_back(FoldedHash(FHeaders[i].name), i);
    std::sort(FIndex.begin(), FIndex.end());
  }
  const std::size_t hash = FoldedHash(name);
  auto at = std::lower_bound(FIndex.begin(), FIndex.end(), std::pair(hash, header));
  for (; at != FIndex.end() && at->first == hash; ++at)
    if (SameText(FHeaders[at->second].name, name)) return at->second;
  return std::nullopt;
}

std::size_t TSectionedText::KnownHeaderAfter(std::size_t header) const {
  do ++header;
  while (header < FHeaders.size() && !FHeaders[header].known);
  return header;
}

TSection TSectionedText::SectionAt(std::size_t header) const {
  const THeader& found = FHeaders[header];
  const std::size_t end = header + 1 < FHeaders.size() ? FHeaders[header + 1].start : FText.size();
  return TSection(found.name, FText.substr(found.bodyStart, end - found.bodyStart), found.line);
}

TStrings TSectionedText::FreeLinesAt(std::size_t header) const {
  const THeader& found = FHeaders[header];
  const std::size_t end = KnownHeaderAfter(header);
  const bool followed = end < FHeaders.size();
  std::string_view body =
      FText.substr(found.bodyStart, (followed ? FHeaders[end].start : FText.size()) - found.bodyStart);

  std::vector<std::string> lines;
  while (!body.empty()) {
    std::string_view line = CutLine(body);
    if (line.starts_with(' ') && ReadsAsHeader(line, FIsHeader)) line.remove_prefix(1);
    lines.emplace_back(line);
  }
  if (followed && !lines.empty() && (lines.back().empty() || lines.back() == " ")) lines.pop_back();
  return TStrings(std::move(lines));
}

std::optional<TSection> TSectionedText::First(std::string_view name) const {
  const std::optional<std::size_t> found = FindFrom(name, 0);
  if (!found) return std::nullopt;
  return SectionAt(*found);
}

std::optional<TSection> TSectionedText::Next(std::string_view name) {
  const std::optional<std::size_t> found = FindFrom(name, FCursor);
  if (!found) return std::nullopt;
  FCursor = *found + 1;
  return SectionAt(*found);
}

std::optional<TStrings> TSectionedText::NextFree(std::string_view name) {
  const std::optional<std::size_t> found = FindFrom(name, FCursor);
  if (!found) return std::nullopt;
  FCursor = KnownHeaderAfter(*found);
  return FreeLinesAt(*found);
}

std::optional<TStrings> TSectionedText::FirstFree(std::string_view name) const {
  const std::optional<std::size_t> found = FindFrom(name, 0);
  if (!found) return std::nullopt;
  return FreeLinesAt(*found);
}

std::vector<std::string_view> TSectionedText::Names() const {
  std::vector<std::string_view> names;
  names.reserve(FHeaders.size());
  for (const THeader& header : FHeaders) names.push_back(header.name);
  return names;
}

void TSectionWriter::Key(std::string_view key, std::string_view value) {
  if (value.find_first_of(CrLf) == std::string_view::npos) return Line(key, "=", value);
  Line(key, "=", WithoutLineBreaks(value));
  FText.append(key).append(EscapedSuffix);
  Line("=", EscapeLineBreaks(value));
}

void TSectionWriter::Key(std::string_view key, std::int64_t value) { Line(key, "=", std::to_string(value)); }

void TSectionWriter::FreeLines(const TStrings& lines) {
  for (const std::string& entry : lines) {
    if (entry.empty()) Line({});
    for (const std::string_view line : SplitLines(entry)) Line(ReadsAsHeader(line, FIsHeader) ? " " : "", line);
  }
}

}  // namespace tolvi
