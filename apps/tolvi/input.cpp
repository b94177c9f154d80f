#include "apps/tolvi/input.h"

#include <iterator>

#include <tolvi/foundation/files.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

constexpr std::string_view StandardInput = "-", LinePrefix = "Line ", ColumnPrefix = ", column ";

/// Takes the prefix and the number behind it off a message. Returns the number; empty, and the message as it was, when
/// it does not begin so.
std::string_view TakeNumber(std::string_view& message, std::string_view prefix) {
  if (!message.starts_with(prefix)) return {};
  const std::string_view rest = message.substr(prefix.size());
  const std::string_view number = rest.substr(0, rest.find_first_not_of("0123456789"));
  if (!number.empty()) message = rest.substr(number.size());
  return number;
}

bool AnyHeader(std::string_view) { return true; }

}  // namespace

TPlaces::TPlaces(const TSource& source) : FSource(source), FText(source.Text, AnyHeader) {}

std::string TPlaces::Of(std::string_view section) const {
  if (section.empty()) return FSource.Name;
  const auto found = FText.First(section);
  return found ? FSource.Name + ":" + std::to_string(found->HeaderLine()) : FSource.Name;
}

std::string TSource::Located(std::string_view message, std::string_view kind) const {
  std::string place = Name;
  std::string_view rest = message;
  const std::string_view line = TakeNumber(rest, LinePrefix);
  if (!line.empty()) {
    place.append(":").append(line);
    const std::string_view column = TakeNumber(rest, ColumnPrefix);
    if (!column.empty()) place.append(":").append(column);
  }
  if (!line.empty() && (rest.starts_with(", ") || rest.starts_with(": "))) {
    return place + ": " + std::string(kind) + std::string(rest.substr(2));
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
