#pragma once

#include <functional>
#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/fieldtypes.h>

namespace tolvi {

/// How a database wants names and values written. Each setter tells the model that owns the formats, which fires
/// `OnChange`. Copying copies all settings and leaves the target's owner as it is (`AssignTo` is assignment).
class TOLVI_CORE_API TSQLFormats final {
 public:
  /// Called after each change of a setting.
  using TChanged = std::function<void()>;

  explicit TSQLFormats(TChanged changed = {}) : FChanged(std::move(changed)) {}
  TSQLFormats(const TSQLFormats& other) : FSettings(other.FSettings) {}
  TSQLFormats& operator=(const TSQLFormats& other);

  /// Patterns of date, time and date-time literals, with their own quotes. Default empty, which means
  /// 'yyyy-mm-dd', 'hh:nn:ss' and 'yyyy-mm-dd hh:nn:ss' in single quotes.
  const std::string& GetDate() const { return FSettings.date; }
  void SetDate(std::string_view pattern) { Set(FSettings.date, pattern); }
  const std::string& GetTime() const { return FSettings.time; }
  void SetTime(std::string_view pattern) { Set(FSettings.time, pattern); }
  const std::string& GetDateTime() const { return FSettings.dateTime; }
  void SetDateTime(std::string_view pattern) { Set(FSettings.dateTime, pattern); }

  /// Opening and closing quote of names. Default the double quote.
  char GetQuoteSymbol1() const { return FSettings.quote1; }
  void SetQuoteSymbol1(char symbol) { Set(FSettings.quote1, symbol); }
  char GetQuoteSymbol2() const { return FSettings.quote2; }
  void SetQuoteSymbol2(char symbol) { Set(FSettings.quote2, symbol); }

  /// SQL text of the boolean values. Default "false" and "true".
  const std::string& GetFalseValue() const { return FSettings.falseValue; }
  void SetFalseValue(std::string_view text) { Set(FSettings.falseValue, text); }
  const std::string& GetTrueValue() const { return FSettings.trueValue; }
  void SetTrueValue(std::string_view text) { Set(FSettings.trueValue, text); }

  /// Template of a qualified table name, in which DB, OWNER and TABLE are replaced. Default "DB.OWNER.TABLE".
  const std::string& GetFullTableName() const { return FSettings.fullTableName; }
  void SetFullTableName(std::string_view text) { Set(FSettings.fullTableName, text); }

  /// Types whose literals are written in quotes. Default: the text types, boolean, and the four date and time types.
  TFieldTypes GetQuotedTypes() const { return FSettings.quotedTypes; }
  void SetQuotedTypes(TFieldTypes types) { Set(FSettings.quotedTypes, types); }
  /// Whether `ftBoolean` is among the quoted types.
  bool GetQuoteBool() const { return FSettings.quotedTypes.Contains(ftBoolean); }
  void SetQuoteBool(bool on);
  /// Whether `ftDate` is among the quoted types. Setting adds or removes all four date and time types.
  bool GetQuoteDate() const { return FSettings.quotedTypes.Contains(ftDate); }
  void SetQuoteDate(bool on);

  /// Whether outer joins are written with the word OUTER. Default true.
  bool GetUseOuterKeyword() const { return FSettings.useOuterKeyword; }
  void SetUseOuterKeyword(bool on) { Set(FSettings.useOuterKeyword, on); }
  /// The function for comparisons that ignore case. Default "LOWER".
  const std::string& GetLowerFunc() const { return FSettings.lowerFunc; }
  void SetLowerFunc(std::string_view name) { Set(FSettings.lowerFunc, name); }
  /// The wildcard of LIKE patterns; replaces the percent signs of operator templates. Default the percent sign.
  char GetWildcardChar() const { return FSettings.wildcard; }
  void SetWildcardChar(char symbol) { Set(FSettings.wildcard, symbol); }
  /// Whether " AS" stands before a table alias in FROM. Default false.
  bool GetUseAsInFrom() const { return FSettings.useAsInFrom; }
  void SetUseAsInFrom(bool on) { Set(FSettings.useAsInFrom, on); }

  /// The aggregate that lists the values of a group in one text, with "@1" (once or more often) in the place of what is
  /// listed; empty where the database has none. Default "list(@1)".
  const std::string& GetListFunction() const { return FSettings.listFunction; }
  void SetListFunction(std::string_view text) { Set(FSettings.listFunction, text); }

  /// Appends a name in the quote symbols, closing ones inside it doubled. The only place that quotes identifiers.
  void AppendQuoted(std::string& out, std::string_view name) const;

  /// Whether all settings are equal.
  bool operator==(const TSQLFormats& other) const { return FSettings == other.FSettings; }

 private:
  struct TSettings {
    std::string date, time, dateTime;
    char quote1 = '"', quote2 = '"';
    std::string falseValue = "false", trueValue = "true", fullTableName = "DB.OWNER.TABLE";
    TFieldTypes quotedTypes = TextFieldTypes + DateFieldTypes + TFieldTypes{ftBoolean};
    bool useOuterKeyword = true;
    std::string lowerFunc = "LOWER";
    char wildcard = '%';
    bool useAsInFrom = false;
    std::string listFunction = "list(@1)";
    bool operator==(const TSettings&) const = default;
  };
  template <typename T, typename V>
  void Set(T& setting, const V& value) {
    if (setting == value) return;
    setting = value;
    if (FChanged) FChanged();
  }

  TSettings FSettings;
  TChanged FChanged;
};

/// Which database and owner the tables' names are written for. Setters tell the model, which fires `OnChange`.
class TOLVI_CORE_API TDMOptions final {
 public:
  explicit TDMOptions(std::function<void()> changed = {}) : FChanged(std::move(changed)) {}
  TDMOptions(const TDMOptions& other) : FSettings(other.FSettings) {}
  TDMOptions& operator=(const TDMOptions& other);

  /// Whether table names may be qualified by their database. Default false.
  bool GetMultiDB() const { return FSettings.multiDB; }
  void SetMultiDB(bool on) { Set(FSettings.multiDB, on); }
  /// The owner written before table names. Default empty.
  const std::string& GetDefaultDBOwner() const { return FSettings.owner; }
  void SetDefaultDBOwner(std::string_view name) { Set(FSettings.owner, name); }
  /// Tables of this database are not qualified. Default empty.
  const std::string& GetDefaultDatabase() const { return FSettings.database; }
  void SetDefaultDatabase(std::string_view name) { Set(FSettings.database, name); }
  /// Whether the database-specific information is stored with the model. Default true.
  bool GetStoreDBInfo() const { return FSettings.storeDBInfo; }
  void SetStoreDBInfo(bool on) { Set(FSettings.storeDBInfo, on); }

  bool operator==(const TDMOptions& other) const { return FSettings == other.FSettings; }

 private:
  struct TSettings {
    bool multiDB = false;
    std::string owner, database;
    bool storeDBInfo = true;
    bool operator==(const TSettings&) const = default;
  };
  template <typename T, typename V>
  void Set(T& setting, const V& value) {
    if (setting == value) return;
    setting = value;
    if (FChanged) FChanged();
  }

  TSettings FSettings;
  std::function<void()> FChanged;
};

/// User name and password for a connection.
struct TDMCustomInfo {
  std::string UserName;
  std::string Password;
};

}  // namespace tolvi
