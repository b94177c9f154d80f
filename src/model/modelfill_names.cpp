#include <algorithm>
#include <iterator>
#include <utility>

#include <tolvi/model/modelfill_names.h>

namespace tolvi {
namespace {

/// Words that no engine, or not every one, takes as a plain name; in the order of the alphabet.
constexpr std::string_view ReservedWords[] = {
    "access",       "add",          "all",          "alter",
    "analyze",      "and",          "any",          "array",
    "as",           "asc",          "audit",        "authorization",
    "backup",       "begin",        "between",      "both",
    "break",        "by",           "call",         "cascade",
    "case",         "cast",         "check",        "cluster",
    "collate",      "column",       "comment",      "commit",
    "compress",     "condition",    "connect",      "constraint",
    "continue",     "convert",      "create",       "cross",
    "current",      "current_date", "current_time", "current_timestamp",
    "current_user", "cursor",       "database",     "date",
    "declare",      "default",      "deferrable",   "delete",
    "desc",         "describe",     "distinct",     "do",
    "double",       "drop",         "else",         "end",
    "escape",       "except",       "exclusive",    "exec",
    "execute",      "exists",       "exit",         "false",
    "fetch",        "file",         "float",        "for",
    "force",        "foreign",      "from",         "full",
    "function",     "grant",        "group",        "groups",
    "having",       "identified",   "if",           "immediate",
    "in",           "increment",    "index",        "inner",
    "insert",       "integer",      "intersect",    "interval",
    "into",         "is",           "isnull",       "join",
    "key",          "keys",         "kill",         "leading",
    "left",         "level",        "like",         "limit",
    "lock",         "long",         "match",        "minus",
    "mode",         "modify",       "natural",      "not",
    "notnull",      "null",         "number",       "of",
    "off",          "offline",      "offset",       "on",
    "online",       "only",         "open",         "option",
    "or",           "order",        "outer",        "over",
    "partition",    "percent",      "plan",         "primary",
    "prior",        "privileges",   "procedure",    "public",
    "range",        "rank",         "raw",          "read",
    "real",         "references",   "rename",       "replace",
    "resource",     "restrict",     "return",       "revoke",
    "right",        "rollback",     "row",          "rowid",
    "rownum",       "rows",         "rule",         "schema",
    "select",       "session",      "session_user", "set",
    "share",        "show",         "size",         "smallint",
    "some",         "start",        "statistics",   "synonym",
    "system",       "table",        "then",         "time",
    "timestamp",    "to",           "top",          "trailing",
    "transaction",  "trigger",      "true",         "truncate",
    "uid",          "union",        "unique",       "unlock",
    "update",       "usage",        "use",          "user",
    "using",        "validate",     "values",       "varchar",
    "view",         "when",         "whenever",     "where",
    "while",        "window",       "with",         "write",
    "year",
};
static_assert(std::is_sorted(std::begin(ReservedWords), std::end(ReservedWords)));

/// Words that keep their spelling wherever they stand; by their lower case, in the order of the alphabet.
constexpr std::pair<std::string_view, std::string_view> Abbreviations[] = {
    {"bic", "BIC"}, {"ean", "EAN"}, {"eur", "EUR"}, {"gps", "GPS"},   {"guid", "GUID"}, {"iban", "IBAN"},
    {"id", "ID"},   {"ids", "IDs"}, {"ip", "IP"},   {"isbn", "ISBN"}, {"iso", "ISO"},   {"pdf", "PDF"},
    {"sku", "SKU"}, {"url", "URL"}, {"usd", "USD"}, {"uuid", "UUID"}, {"vat", "VAT"},
};

constexpr std::string_view TablePrefixes[] = {"tbl", "tab", "t", "vw", "v", "view"};
constexpr std::string_view KeySuffixes[] = {"id", "no", "nr", "num", "number", "code", "key", "fk", "ref"};

bool IsUpper(char c) { return c >= 'A' && c <= 'Z'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) { return IsUpper(c) || (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80; }
bool IsLower(char c) { return IsLetter(c) && !IsUpper(c); }
bool HasPlainLower(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}
bool HasUpper(std::string_view text) { return std::any_of(text.begin(), text.end(), IsUpper); }
bool IsReserved(std::string_view name) {
  return std::binary_search(std::begin(ReservedWords), std::end(ReservedWords), std::string_view(AsciiLower(name)));
}

/// Digits behind fewer letters belong to them ("B2B").
constexpr std::size_t LettersBeforeNumber = 3;

/// Whether a new word begins at `pos`, the character before which belongs to `word`. Only a name in mixed case has
/// words that a capital begins.
bool BeginsWord(std::string_view name, std::size_t pos, std::string_view word, bool mixedCase) {
  const char before = word.back();
  const char now = name[pos];
  if (IsDigit(now)) return word.size() >= LettersBeforeNumber && IsLetter(before);
  if (!mixedCase || !IsUpper(now)) return false;
  if (IsLower(before)) return true;
  // The last of several capitals begins a word ("VATRate"), unless it only has a plural behind it ("IDs").
  const std::string_view rest = name.substr(pos + 1);
  const bool plural = rest.starts_with('s') && (rest.size() == 1 || !IsLower(rest[1]));
  return !rest.empty() && IsLower(rest[0]) && !plural;
}

std::string_view FirstCharacter(std::string_view text) {
  std::size_t size = 1;
  while (size < text.size() && (static_cast<unsigned char>(text[size]) & 0xC0U) == 0x80U) ++size;
  return text.substr(0, size);
}

std::string ReadableWord(const std::string& word, bool first, bool mixedCase) {
  const std::string lower = AsciiLower(word);
  const auto* abbreviation = std::find_if(std::begin(Abbreviations), std::end(Abbreviations),
                                          [&lower](const auto& entry) { return entry.first == lower; });
  if (abbreviation != std::end(Abbreviations)) return std::string(abbreviation->second);
  // In mixed case, capitals alone are meant so; in a name of nothing but capitals they mean nothing.
  const bool meant = mixedCase && IsUpper(word[0]) && std::count_if(word.begin(), word.end(), IsUpper) > 1;
  if (meant) return word;
  std::string result = HasUpper(word) ? FoldCase(word) : word;
  if (!first) return result;
  const std::string_view initial = FirstCharacter(word);
  if (initial.size() == 1) {
    if (result[0] >= 'a' && result[0] <= 'z') result[0] = static_cast<char>(result[0] - 'a' + 'A');
  } else {
    result.replace(0, FirstCharacter(result).size(), initial);
  }
  return result;
}

}  // namespace

std::vector<std::string> NameParts(std::string_view name) {
  constexpr std::string_view Openers = "\"[`", Closers = "\"]`";
  std::vector<std::string> parts(1);
  for (std::size_t pos = 0; pos < name.size(); ++pos) {
    const std::size_t quote = parts.back().empty() ? Openers.find(name[pos]) : std::string_view::npos;
    const char closer = quote == std::string_view::npos ? '\0' : Closers[quote];
    if (closer != '\0' && name.find(closer, pos + 1) != std::string_view::npos) {
      while (++pos < name.size()) {
        if (name[pos] == closer && (pos + 1 == name.size() || name[pos + 1] != closer)) break;
        if (name[pos] == closer) ++pos;
        parts.back() += name[pos];
      }
    } else if (name[pos] == '.') {
      parts.emplace_back();
    } else {
      parts.back() += name[pos];
    }
  }
  return parts;
}

std::string WithDots(const std::vector<std::string>& parts, std::size_t count) {
  std::string text;
  for (std::size_t index = 0; index < count; ++index) text.append(index > 0 ? "." : "").append(parts[index]);
  return text;
}

std::string PlainName(std::string_view name) {
  const std::vector<std::string> parts = NameParts(name);
  return WithDots(parts, parts.size());
}

std::vector<std::string> NameWords(std::string_view name) {
  const bool mixedCase = HasPlainLower(name);
  std::vector<std::string> words;
  bool begins = true;
  for (std::size_t pos = 0; pos < name.size(); ++pos) {
    if (!IsLetter(name[pos]) && !IsDigit(name[pos])) {
      begins = true;
      continue;
    }
    if (begins || BeginsWord(name, pos, words.back(), mixedCase)) words.emplace_back();
    begins = false;
    words.back() += name[pos];
  }
  return words;
}

std::string_view WithoutTablePrefix(std::string_view name) {
  for (const std::string_view prefix : TablePrefixes) {
    if (name.size() <= prefix.size() || !AsciiSameText(name.substr(0, prefix.size()), prefix)) continue;
    std::string_view rest = name.substr(prefix.size());
    // One letter may as well begin a word: only "_" tells.
    const bool capital = prefix.size() > 1 && !HasUpper(name.substr(0, prefix.size())) && IsUpper(rest[0]);
    if (!capital && rest[0] != '_') continue;
    rest.remove_prefix(std::min(rest.find_first_not_of('_'), rest.size()));
    if (!rest.empty() && IsLetter(rest[0])) return rest;
  }
  return name;
}

std::string JoinedWords(const std::vector<std::string>& words) {
  std::string joined;
  for (const std::string& word : words) joined += word;
  return FoldCase(joined);
}

std::string ReadableName(std::string_view name) {
  const bool mixedCase = HasPlainLower(name);
  std::string result;
  for (const std::string& word : NameWords(name)) {
    const bool first = result.empty();
    if (!first) result += ' ';
    result += ReadableWord(word, first, mixedCase);
  }
  return result.empty() ? std::string(name) : result;
}

std::string ReadableTableName(std::string_view name) { return ReadableName(WithoutTablePrefix(name)); }

std::string RoleOfColumn(std::string_view column) {
  const std::vector<std::string> words = NameWords(column);
  if (words.size() < 2) return std::string(column);
  const std::string last = AsciiLower(words.back());
  if (std::find(std::begin(KeySuffixes), std::end(KeySuffixes), last) == std::end(KeySuffixes)) {
    return std::string(column);
  }
  std::string_view role = column.substr(0, column.rfind(words.back()));
  while (!IsLetter(role.back()) && !IsDigit(role.back())) role.remove_suffix(1);
  return std::string(role);
}

std::string Singular(std::string_view word) {
  struct TEnding {
    std::string_view Plural, Singular;
  };
  constexpr TEnding Endings[] = {{"ies", "y"},   {"sses", "ss"}, {"xes", "x"}, {"ches", "ch"},
                                 {"shes", "sh"}, {"ss", "ss"},   {"us", "us"}, {"s", ""}};
  const std::string lower = AsciiLower(word);
  for (const TEnding& ending : Endings) {
    if (lower.size() > ending.Plural.size() + 1 && lower.ends_with(ending.Plural)) {
      return std::string(word.substr(0, word.size() - ending.Plural.size())).append(ending.Singular);
    }
  }
  return std::string(word);
}

bool NeedsQuotes(std::string_view name, bool mixedCase) {
  if (name.empty()) return false;
  const bool plain = std::all_of(name.begin(), name.end(), [](char c) {
    return static_cast<unsigned char>(c) < 0x80 && (IsLetter(c) || IsDigit(c) || c == '_');
  });
  return !plain || IsDigit(name[0]) || IsReserved(name) || (mixedCase && HasUpper(name) && HasPlainLower(name));
}

std::string PlainIdentifier(std::string_view name) {
  std::string result;
  for (const char c : ReduceToAscii(name)) result += IsLetter(c) || IsDigit(c) ? c : '_';
  if (result.find_first_not_of('_') == std::string::npos) return "T";
  if (!IsLetter(result[0])) result.insert(0, "T");
  if (IsReserved(result)) result += '_';
  return result;
}

std::string TNamePool::Take(std::string_view name, std::string_view separator) {
  const auto [entry, added] = FNext.try_emplace(std::string(name), 2);
  if (added) return entry->first;
  // The reference stays good when the map grows, the iterator does not.
  std::size_t& number = entry->second;
  for (;;) {
    std::string numbered = std::string(name).append(separator).append(std::to_string(number++));
    if (FNext.try_emplace(numbered, 2).second) return numbered;
  }
}

}  // namespace tolvi
