#include <algorithm>
#include <iterator>
#include <optional>

#include <tolvi/connect/connecturl.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

struct TScheme {
  std::string_view Name;
  TDatabaseKind Kind;
};
/// The first name of a kind is the one that is shown.
constexpr TScheme Schemes[] = {{"sqlite", dkSQLite}, {"postgresql", dkPostgreSQL}, {"postgres", dkPostgreSQL},
                               {"mysql", dkMySQL},   {"mariadb", dkMySQL},         {"odbc", dkODBC}};

constexpr std::string_view Forms[] = {
    "sqlite:FILE", "postgresql://[USER[:PASSWORD]@][HOST][:PORT]/DATABASE[?schema=NAME]",
    "mysql://[USER[:PASSWORD]@][HOST][:PORT]/DATABASE", "odbc:SOURCE[;ATTRIBUTE=VALUE...]"};

/// By `TDatabaseKind`.
constexpr std::string_view Presets[] = {"sqlite", "postgresql", "mysql", "generic"};

constexpr int MaxPort = 65535;

const TScheme* SchemeOf(std::string_view url) {
  const std::size_t colon = url.find(':');
  if (colon == std::string_view::npos) return nullptr;
  const std::string_view name = url.substr(0, colon);
  const auto* found = std::find_if(std::begin(Schemes), std::end(Schemes),
                                   [name](const TScheme& scheme) { return AsciiSameText(scheme.Name, name); });
  return found == std::end(Schemes) ? nullptr : found;
}

/// An attribute of ODBC: a name, and a value as it stands, with the braces that it may be in.
struct TAttribute {
  std::string_view Whole, Name, Value;
  bool IsOpen = false;
};

/// Where a value that begins at `pos` ends; one in braces holds whatever it likes, a closing brace doubled.
std::size_t EndOfValue(std::string_view text, std::size_t pos, bool& isOpen) {
  const std::size_t first = std::min(text.find_first_not_of(' ', pos), text.size());
  isOpen = text.substr(first, 1) == "{";
  for (pos = first; isOpen && ++pos < text.size();) {
    if (text[pos] != '}') continue;
    if (text.substr(pos + 1, 1) == "}") {
      ++pos;
    } else {
      isOpen = false;
    }
  }
  return std::min(text.find(';', pos), text.size());
}

std::vector<TAttribute> AttributesOf(std::string_view text) {
  std::vector<TAttribute> attributes;
  for (std::size_t begin = 0, end; begin < text.size(); begin = end + 1) {
    const std::size_t equals = text.find_first_of("=;", begin);
    const bool isNamed = equals != std::string_view::npos && text[equals] == '=';
    TAttribute attribute;
    end = isNamed ? EndOfValue(text, equals + 1, attribute.IsOpen) : std::min(equals, text.size());
    attribute.Whole = Trim(text.substr(begin, end - begin));
    if (attribute.Whole.empty()) continue;
    if (isNamed) {
      attribute.Name = Trim(text.substr(begin, equals - begin));
      attribute.Value = Trim(text.substr(equals + 1, end - equals - 1));
    }
    attributes.push_back(attribute);
  }
  return attributes;
}

bool IsPassword(const TAttribute& attribute) {
  return AsciiSameText(attribute.Name, "pwd") || AsciiSameText(attribute.Name, "password");
}

bool IsUser(const TAttribute& attribute) {
  return AsciiSameText(attribute.Name, "uid") || AsciiSameText(attribute.Name, "user");
}

std::string WithoutBraces(std::string_view value) {
  if (!value.starts_with('{') || !value.ends_with('}')) return std::string(value);
  return ReplaceStr(value.substr(1, value.size() - 2), "}}", "}");
}

std::string WithoutPasswords(std::string_view url) {
  std::string text;
  const char* rest = url.data();
  for (const std::string_view password : PasswordsIn(url)) {
    text.append(rest, password.data()).append("***");
    rest = password.data() + password.size();
  }
  return text.append(rest, url.data() + url.size());
}

[[noreturn]] void Refuse(std::string_view url, std::string_view reason) {
  std::string forms;
  for (const std::string_view form : Forms) forms.append(forms.empty() ? "" : ", or ").append(form);
  throw EConnectError("\"%s\" %s. A database is given as %s", {WithoutPasswords(url), reason, forms});
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

std::optional<std::string> TryDecode(std::string_view text) {
  std::string result;
  for (std::size_t pos = 0; pos < text.size(); ++pos) {
    if (text[pos] != '%') {
      result += text[pos];
      continue;
    }
    const int high = pos + 2 < text.size() ? HexDigit(text[pos + 1]) : -1;
    const int low = pos + 2 < text.size() ? HexDigit(text[pos + 2]) : -1;
    if (high < 0 || low < 0 || (high == 0 && low == 0)) return std::nullopt;
    result += static_cast<char>(high * 16 + low);
    pos += 2;
  }
  return result;
}

void AppendEncoded(std::string& out, std::string_view text, std::string_view special) {
  constexpr std::string_view Digits = "0123456789ABCDEF";
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (code > ' ' && c != '%' && special.find(c) == std::string_view::npos) {
      out += c;
    } else {
      ((out += '%') += Digits[code / 16]) += Digits[code % 16];
    }
  }
}

class TUrlReader {
 public:
  explicit TUrlReader(std::string_view url) : FUrl(url) {}

  TConnectionUrl Read() {
    const TScheme* scheme = SchemeOf(FUrl);
    if (scheme == nullptr) Refuse(FUrl, "names no kind of database that is known");
    FResult.Kind = scheme->Kind;
    std::string_view rest = FUrl.substr(scheme->Name.size() + 1);
    if (FResult.Kind == dkODBC) {
      ReadAttributes(rest);
      return std::move(FResult);
    }
    const bool hasSlashes = rest.starts_with("//");
    if (hasSlashes) rest.remove_prefix(2);
    if (FResult.Kind == dkSQLite) {
      FResult.Database = Decoded(rest);
      if (FResult.Database.empty()) Refuse(FUrl, "names no file");
    } else {
      if (!hasSlashes) Refuse(FUrl, "lacks the \"//\"");
      ReadServer(rest);
    }
    return std::move(FResult);
  }

 private:
  void ReadAttributes(std::string_view text) {
    for (const TAttribute& attribute : AttributesOf(text)) {
      if (attribute.IsOpen) Refuse(FUrl, "has a \"{\" without its \"}\"");
      if (IsPassword(attribute)) {
        FResult.Password = WithoutBraces(attribute.Value);
      } else if (IsUser(attribute)) {
        FResult.User = WithoutBraces(attribute.Value);
      } else if (attribute.Name.empty() && !FResult.Database.empty()) {
        Refuse(FUrl, "has an attribute without a \"=\"");
      } else {
        FResult.Database.append(FResult.Database.empty() ? "" : ";").append(attribute.Whole);
      }
    }
    if (FResult.Database.empty()) Refuse(FUrl, "names no data source");
  }

  void ReadServer(std::string_view text) {
    const auto [place, options] = GetNameAndValueSep(text, "?");
    const auto [server, database] = GetNameAndValueSep(place, "/");
    const std::size_t at = server.rfind('@');
    if (at != std::string_view::npos) {
      const auto [user, password] = GetNameAndValueSep(server.substr(0, at), ":");
      FResult.User = Decoded(user);
      FResult.Password = Decoded(password);
    }
    ReadHost(at == std::string_view::npos ? server : server.substr(at + 1));
    if (database.find('@') != std::string_view::npos) {
      Refuse(FUrl, "has a \"/\" before an \"@\": within a name or password, they are written \"%2F\" and \"%40\"");
    }
    if (database.find('/') != std::string_view::npos) {
      Refuse(FUrl, "has a \"/\" too many: within a name, it is written \"%2F\"");
    }
    FResult.Database = Decoded(database);
    if (FResult.Database.empty()) Refuse(FUrl, "names no database");
    if (!options.empty()) ReadOptions(options);
  }

  void ReadHost(std::string_view text) {
    std::size_t colon = text.find(':');
    if (text.starts_with('[')) {
      const std::size_t close = text.find(']');
      if (close == std::string_view::npos) Refuse(FUrl, "has a \"[\" without its \"]\"");
      FResult.Host = text.substr(1, close - 1);
      colon = text.find(':', close);
      if (colon != close + 1 && close + 1 != text.size()) Refuse(FUrl, "has something between \"]\" and the port");
    } else {
      FResult.Host = Decoded(text.substr(0, colon));
    }
    if (colon == std::string_view::npos) return;
    const auto port = TryStrToInt(text.substr(colon + 1));
    if (!port || *port < 1 || *port > MaxPort) Refuse(FUrl, "has a port that is no number from 1 to 65535");
    FResult.Port = static_cast<int>(*port);
  }

  void ReadOptions(std::string_view options) {
    const auto [name, value] = GetNameAndValueSep(options, "=");
    if (name != "schema" || value.find('&') != std::string_view::npos) {
      Refuse(FUrl, "has an option other than \"schema\"");
    }
    if (FResult.Kind != dkPostgreSQL) Refuse(FUrl, "has a schema, which is the database itself there");
    FResult.Schema = Decoded(value);
    if (FResult.Schema.empty()) Refuse(FUrl, "has an empty schema");
  }

  std::string Decoded(std::string_view text) const {
    auto result = TryDecode(text);
    if (!result) Refuse(FUrl, "has a \"%\" without the two digits of a character: a \"%\" itself is written \"%25\"");
    return *std::move(result);
  }

  std::string_view FUrl;
  TConnectionUrl FResult;
};

}  // namespace

std::string_view FormatPresetOf(TDatabaseKind kind) { return Presets[kind]; }

std::string OdbcValue(std::string_view value) {
  const bool isPlain = value.find_first_of("{};=") == std::string_view::npos && Trim(value).size() == value.size();
  return isPlain ? std::string(value) : "{" + ReplaceStr(value, "}", "}}") + "}";
}

std::string TConnectionUrl::Shown() const {
  constexpr std::string_view Special = "/?#@:[]";
  const auto* scheme =
      std::find_if(std::begin(Schemes), std::end(Schemes), [this](const TScheme& known) { return known.Kind == Kind; });
  std::string result(scheme->Name);
  result += ':';
  if (Kind == dkODBC) {
    result += Database;
    return User.empty() ? result : result + ";UID=" + OdbcValue(User);
  }
  if (Kind == dkSQLite) {
    AppendEncoded(result, Database, {});
    return result;
  }
  result += "//";
  if (!User.empty()) {
    AppendEncoded(result, User, Special);
    result += '@';
  }
  if (Host.find(':') != std::string::npos) {
    result.append("[").append(Host).append("]");
  } else {
    AppendEncoded(result, Host, Special);
  }
  if (Port != 0) result.append(":").append(std::to_string(Port));
  AppendEncoded(result += '/', Database, Special);
  if (!Schema.empty()) AppendEncoded(result += "?schema=", Schema, "&#");
  return result;
}

bool IsConnectionUrl(std::string_view text) {
  if (SchemeOf(text) != nullptr) return true;
  const std::size_t colon = text.find("://");
  // One letter is a drive.
  if (colon == std::string_view::npos || colon < 2) return false;
  return std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(colon), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '+' || c == '-' ||
           c == '.';
  });
}

std::vector<std::string_view> PasswordsIn(std::string_view url) {
  constexpr std::string_view Option = "password=", Digits = "0123456789";
  constexpr std::size_t None = std::string_view::npos;
  std::vector<std::string_view> passwords;
  const auto add = [&passwords](std::string_view text) {
    if (!text.empty()) passwords.push_back(text);
  };
  if (const TScheme* scheme = SchemeOf(url); scheme != nullptr && scheme->Kind == dkODBC) {
    for (const TAttribute& attribute : AttributesOf(url.substr(scheme->Name.size() + 1))) {
      // Behind a brace that is open, there may be one.
      if (IsPassword(attribute) || attribute.IsOpen) add(attribute.Value);
    }
    return passwords;
  }
  const std::size_t slashes = url.find("//");
  const std::size_t start = slashes == None ? url.find(':') + 1 : slashes + 2;
  const std::size_t colon = url.find(':', start), at = url.rfind('@');
  if (colon != None && at != None && at > colon) {
    add(url.substr(colon + 1, at - colon - 1));
  } else if (colon != None && slashes != None && url[start] != '[') {
    const std::string_view port = url.substr(colon + 1, url.find_first_of("/?#", colon) - colon - 1);
    if (port.find_first_not_of(Digits) != None) add(port);
  }
  if (const std::size_t option = url.find(Option, at == None ? start : at); option != None) {
    const std::string_view value = url.substr(option + Option.size());
    add(value.substr(0, value.find('&')));
  }
  return passwords;
}

TConnectionUrl ParseConnectionUrl(std::string_view url) { return TUrlReader(url).Read(); }

}  // namespace tolvi
