#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

std::size_t Checked(std::size_t index, std::size_t limit) {
  if (index >= limit) throw EListError::OutOfBounds(static_cast<std::int64_t>(index));
  return index;
}

std::string NameValueLine(std::string_view name, std::string_view value) {
  std::string line;
  line.reserve(name.size() + 1 + value.size());
  line.append(name).append("=").append(value);
  return line;
}

}  // namespace

const std::string& TStrings::operator[](std::size_t index) const { return FLines[Checked(index, FLines.size())]; }

void TStrings::SetLine(std::size_t index, std::string_view line) { FLines[Checked(index, FLines.size())] = line; }

void TStrings::AppendTo(std::size_t index, std::string_view suffix) {
  FLines[Checked(index, FLines.size())].append(suffix);
}

std::size_t TStrings::Add(std::string_view line) {
  FLines.emplace_back(line);
  return FLines.size() - 1;
}

void TStrings::Insert(std::size_t index, std::string_view line) {
  Checked(index, FLines.size() + 1);
  FLines.emplace(FLines.begin() + static_cast<std::ptrdiff_t>(index), line);
}

void TStrings::Delete(std::size_t index) {
  FLines.erase(FLines.begin() + static_cast<std::ptrdiff_t>(Checked(index, FLines.size())));
}

void TStrings::AddStrings(const TStrings& lines) {
  const std::size_t count = lines.Count();  // fixed, as a list may be added to itself
  FLines.reserve(FLines.size() + count);
  for (std::size_t i = 0; i < count; ++i) FLines.push_back(lines.FLines[i]);
}

std::ptrdiff_t TStrings::IndexOf(std::string_view line) const {
  for (std::size_t i = 0; i < FLines.size(); ++i)
    if (SameText(FLines[i], line)) return static_cast<std::ptrdiff_t>(i);
  return -1;
}

std::ptrdiff_t TStrings::IndexOfName(std::string_view name) const {
  for (std::size_t i = 0; i < FLines.size(); ++i) {
    const std::string_view line = FLines[i];
    const std::size_t equals = line.find('=');
    if (equals != std::string_view::npos && SameText(line.substr(0, equals), name))
      return static_cast<std::ptrdiff_t>(i);
  }
  return -1;
}

std::string TStrings::Value(std::string_view name) const {
  const std::ptrdiff_t index = IndexOfName(name);
  return index < 0 ? std::string() : std::string(ValueAt(static_cast<std::size_t>(index)));
}

void TStrings::SetValue(std::string_view name, std::string_view value) {
  const std::ptrdiff_t index = IndexOfName(name);
  if (index < 0)
    FLines.push_back(NameValueLine(name, value));
  else
    FLines[static_cast<std::size_t>(index)] = NameValueLine(NameAt(static_cast<std::size_t>(index)), value);
}

std::string_view TStrings::NameAt(std::size_t index) const { return GetBeforeSep((*this)[index], "="); }

std::string_view TStrings::ValueAt(std::size_t index) const {
  const std::string_view line = (*this)[index];
  const std::size_t equals = line.find('=');
  return equals == std::string_view::npos ? std::string_view() : line.substr(equals + 1);
}

std::string TStrings::GetText() const {
  std::size_t size = 0;
  for (const std::string& line : FLines) size += line.size() + CrLf.size();
  std::string text;
  text.reserve(size);
  for (const std::string& line : FLines) text.append(line).append(CrLf);
  return text;
}

void TStrings::SetText(std::string_view text) {
  const std::vector<std::string_view> lines = SplitLines(text);
  FLines = std::vector<std::string>(lines.begin(), lines.end());
}

std::string TStrings::Joined(std::string_view separator) const {
  std::string text;
  for (std::size_t i = 0; i < FLines.size(); ++i) {
    if (i > 0) text.append(separator);
    text.append(FLines[i]);
  }
  return text;
}

std::string TStrings::GetCommaText() const { return ComposeCommaText(FLines); }

void TStrings::SetCommaText(std::string_view text) { FLines = SplitCommaText(text); }

void TStrings::LoadFromFile(const std::filesystem::path& file) { SetText(ReadFile(file)); }

void TStrings::SaveToFile(const std::filesystem::path& file) const { WriteFileAtomically(file, GetText()); }

}  // namespace tolvi
