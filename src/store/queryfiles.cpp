#include <algorithm>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <unordered_set>
#include <utility>

#include <tolvi/foundation/text.h>
#include <tolvi/store/queryfiles.h>

namespace tolvi {
namespace {

constexpr std::string_view Extension = ".qry", TemporaryExtension = ".tmp", Unnamed = "unnamed";
constexpr std::string_view ForbiddenCharacters = "/\\:*?\"<>|%", EndCharacters = ". ", Digits = "0123456789";

// Windows takes a file for a device whatever follows the first point of its name.
constexpr std::string_view Devices[] = {"con", "prn", "aux", "nul", "conin$", "conout$"};
constexpr std::string_view Ports[] = {"com", "lpt"};
constexpr std::string_view PortNumbers[] = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "¹", "²", "³"};

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

bool Contains(std::string_view characters, char c) { return characters.find(c) != std::string_view::npos; }

bool EndsWith(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && AsciiSameText(text.substr(text.size() - end.size()), end);
}

bool IsDevice(std::string_view name) {
  const std::string_view stem = Trim(GetBeforeSep(name, "."));
  const auto isPort = [stem](std::string_view port) {
    return stem.size() > port.size() && AsciiSameText(stem.substr(0, port.size()), port) &&
           std::find(std::begin(PortNumbers), std::end(PortNumbers), stem.substr(port.size())) != std::end(PortNumbers);
  };
  return std::any_of(std::begin(Devices), std::end(Devices),
                     [stem](std::string_view device) { return AsciiSameText(stem, device); }) ||
         std::any_of(std::begin(Ports), std::end(Ports), isPort);
}

void AppendEncoded(std::string& file, char c) {
  constexpr std::string_view HexDigits = "0123456789ABCDEF";
  const auto byte = static_cast<unsigned char>(c);
  file += '%';
  file += HexDigits[byte / 16];
  file += HexDigits[byte % 16];
}

std::string Decoded(std::string_view stem) {
  std::string name;
  for (std::size_t at = 0; at < stem.size(); ++at) {
    unsigned char byte = 0;
    const char* digits = stem.data() + at + 1;
    if (stem[at] == '%' && at + 2 < stem.size() && std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
      name += static_cast<char>(byte);
      at += 2;
    } else {
      name += stem[at];
    }
  }
  return IsValidUtf8(name) ? name : std::string(stem);
}

std::string QueryNameOf(std::string_view file) {
  std::string name = Decoded(file.substr(0, file.size() - Extension.size()));
  std::replace_if(name.begin(), name.end(), IsControl, ' ');
  const std::string_view trimmed = Trim(name);
  return std::string(trimmed.empty() ? Unnamed : trimmed);
}

}  // namespace

std::string QueryFileName(std::string_view name) {
  std::string file;
  const bool isDevice = IsDevice(name);
  for (std::size_t at = 0; at < name.size(); ++at) {
    const char c = name[at];
    const bool isAtEnd = at == 0 || at + 1 == name.size();
    if (IsControl(c) || Contains(ForbiddenCharacters, c) || (isAtEnd && Contains(EndCharacters, c)) ||
        (at == 0 && isDevice)) {
      AppendEncoded(file, c);
    } else {
      file += c;
    }
  }
  return file.append(Extension);
}

bool IsQueryFile(std::string_view file) { return EndsWith(file, Extension) && !file.starts_with('.'); }

bool IsQueryRemnant(std::string_view file) {
  if (!file.ends_with(TemporaryExtension)) return false;
  file.remove_suffix(TemporaryExtension.size());
  const std::size_t number = file.find_last_not_of(Digits) + 1;
  return number > 0 && number < file.size() && file[number - 1] == '.' &&
         EndsWith(file.substr(0, number - 1), Extension);
}

std::vector<TQueryFile> NameQueryFiles(std::vector<std::string> files) {
  std::sort(files.begin(), files.end());
  std::vector<TQueryFile> result;
  std::vector<std::size_t> doubles;
  std::unordered_set<std::string, TFoldedHash, TFoldedEqual> taken;
  for (std::string& file : files) {
    std::string name = QueryNameOf(file);
    if (!taken.insert(name).second) doubles.push_back(result.size());
    result.push_back({.File = std::move(file), .Name = std::move(name)});
  }
  // Names that files have by themselves come first: a second "a" must not take the name of "a (2).qry".
  for (const std::size_t index : doubles) {
    const std::string name = std::move(result[index].Name);
    for (int number = 2;; ++number) {
      result[index].Name = name + " (" + std::to_string(number) + ")";
      if (taken.insert(result[index].Name).second) break;
    }
  }
  return result;
}

std::filesystem::path TextPath(std::string_view text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

std::string PathText(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

}  // namespace tolvi
