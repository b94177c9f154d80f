#include "apps/tolvi/input.h"

#include <iterator>

#include <tolvi/foundation/files.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

constexpr std::string_view StandardInput = "-", LinePrefix = "Line ";

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool AnyHeader(std::string_view) { return true; }

}  // namespace

TPlaces::TPlaces(const TSource& source) : FSource(source), FText(source.Text, AnyHeader) {}

std::string TPlaces::Of(std::string_view section) const {
  if (section.empty()) return FSource.Name;
  const auto found = FText.First(section);
  return found ? FSource.Name + ":" + std::to_string(found->HeaderLine()) : FSource.Name;
}

std::string TSource::Located(std::string_view message, std::string_view kind) const {
  if (message.starts_with(LinePrefix)) {
    std::size_t end = LinePrefix.size();
    while (end < message.size() && IsDigit(message[end])) ++end;
    const std::string_view number = message.substr(LinePrefix.size(), end - LinePrefix.size());
    const std::string_view rest = message.substr(end);
    if (!number.empty() && (rest.starts_with(", ") || rest.starts_with(": "))) {
      return Name + ":" + std::string(number) + ": " + std::string(kind) + std::string(rest.substr(2));
    }
  }
  return Name + ": " + std::string(kind) + std::string(message);
}

TSource ReadSource(const std::string& name, std::istream& in) {
  TSource source{name, {}};
  if (name == StandardInput) {
    source.Text.assign(std::istreambuf_iterator<char>(in), {});
    if (in.bad()) throw EInputError("standard input cannot be read");
    if (source.Text.starts_with(ByteOrderMark)) source.Text.erase(0, ByteOrderMark.size());
  } else {
    try {
      source.Text = ReadFile(name);
    } catch (const EFileError& error) {
      throw EInputError(error.Message());
    }
  }
  if (!IsValidUtf8(source.Text)) throw EInputError(name + ": the text is no UTF-8");
  return source;
}

std::string WithLineFeeds(std::string_view text) { return ReplaceStr(text, CrLf, "\n"); }

}  // namespace tolvi
