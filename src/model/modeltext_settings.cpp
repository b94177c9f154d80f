#include <tolvi/model/modeltext_keys.h>
#include <tolvi/model/modeltext_settings.h>

namespace tolvi {
namespace {

/// Wraps a key so that a default is not written, and a missing key not read: settings have defaults that are not empty.
template <typename T, auto Get>
void WriteIfSet(TSectionWriter& writer, const TModelKey<T>& key, const T& settings) {
  static const T byDefault;
  if ((settings.*Get)() != (byDefault.*Get)()) key.Write(writer, key.Key, settings);
}

template <typename T>
struct TSettingKey {
  TModelKey<T> Key;
  void (*Write)(TSectionWriter& writer, const TModelKey<T>& key, const T& settings);
};

template <auto Get, auto Set, typename T = TObjectOf<Get>>
constexpr TSettingKey<T> TextSetting(std::string_view name) {
  return {TextKey<Get, Set>(name), WriteIfSet<T, Get>};
}

template <auto Get, auto Set, typename T = TObjectOf<Get>>
constexpr TSettingKey<T> BooleanSetting(std::string_view name) {
  return {BooleanKey<Get, Set>(name), WriteIfSet<T, Get>};
}

/// One character; an empty text is none, which is the character 0.
template <auto Get, auto Set, typename T = TObjectOf<Get>>
constexpr TSettingKey<T> CharacterSetting(std::string_view name) {
  return {{name,
           [](TSectionWriter& writer, std::string_view key, const T& settings) {
             const char character = (settings.*Get)();
             writer.Key(key, std::string_view(&character, character == '\0' ? 0 : 1));
           },
           [](const TSection& section, std::string_view key, T& settings) {
             const std::string text = section.Value(key);
             if (text.size() > 1) RaiseWrongValue(section, key, text, "single character");
             (settings.*Set)(text.empty() ? '\0' : text.front());
           }},
          WriteIfSet<T, Get>};
}

constexpr TSettingKey<TSQLFormats> FormatKeys[] = {
    TextSetting<&TSQLFormats::GetDate, &TSQLFormats::SetDate>("Date"),
    TextSetting<&TSQLFormats::GetTime, &TSQLFormats::SetTime>("Time"),
    TextSetting<&TSQLFormats::GetDateTime, &TSQLFormats::SetDateTime>("DateTime"),
    CharacterSetting<&TSQLFormats::GetQuoteSymbol1, &TSQLFormats::SetQuoteSymbol1>("QuoteSymbol1"),
    CharacterSetting<&TSQLFormats::GetQuoteSymbol2, &TSQLFormats::SetQuoteSymbol2>("QuoteSymbol2"),
    TextSetting<&TSQLFormats::GetFalseValue, &TSQLFormats::SetFalseValue>("FalseValue"),
    TextSetting<&TSQLFormats::GetTrueValue, &TSQLFormats::SetTrueValue>("TrueValue"),
    TextSetting<&TSQLFormats::GetFullTableName, &TSQLFormats::SetFullTableName>("FullTableName"),
    {{"QuotedTypes",
      [](TSectionWriter& writer, std::string_view key, const TSQLFormats& formats) {
        writer.Key(key, TypesToList(formats.GetQuotedTypes()));
      },
      [](const TSection& section, std::string_view key, TSQLFormats& formats) {
        formats.SetQuotedTypes(ReadTypes(section, key, formats.GetQuotedTypes()));
      }},
     WriteIfSet<TSQLFormats, &TSQLFormats::GetQuotedTypes>},
    BooleanSetting<&TSQLFormats::GetUseOuterKeyword, &TSQLFormats::SetUseOuterKeyword>("UseOuterKeyword"),
    TextSetting<&TSQLFormats::GetLowerFunc, &TSQLFormats::SetLowerFunc>("LowerFunc"),
    CharacterSetting<&TSQLFormats::GetWildcardChar, &TSQLFormats::SetWildcardChar>("WildcardChar"),
    BooleanSetting<&TSQLFormats::GetUseAsInFrom, &TSQLFormats::SetUseAsInFrom>("UseAsInFrom"),
    TextSetting<&TSQLFormats::GetListFunction, &TSQLFormats::SetListFunction>("ListFunction"),
};

constexpr TSettingKey<TDMOptions> OptionKeys[] = {
    BooleanSetting<&TDMOptions::GetMultiDB, &TDMOptions::SetMultiDB>("MultiDB"),
    TextSetting<&TDMOptions::GetDefaultDBOwner, &TDMOptions::SetDefaultDBOwner>("DefaultDBOwner"),
    TextSetting<&TDMOptions::GetDefaultDatabase, &TDMOptions::SetDefaultDatabase>("DefaultDatabase"),
    BooleanSetting<&TDMOptions::GetStoreDBInfo, &TDMOptions::SetStoreDBInfo>("StoreDBInfo"),
};

template <typename TKeys, typename T>
void WriteDifferent(TSectionWriter& writer, const TKeys& keys, const T& settings) {
  for (const TSettingKey<T>& setting : keys) setting.Write(writer, setting.Key, settings);
}

template <typename T, typename TKeys>
T ReadSettings(const TSection& section, const TKeys& keys) {
  T settings;
  for (const TSettingKey<T>& setting : keys) {
    if (section.Find(setting.Key.Key)) setting.Key.Read(section, setting.Key.Key, settings);
  }
  return settings;
}

}  // namespace

void WriteSettings(TSectionWriter& writer, const TSQLFormats& formats) { WriteDifferent(writer, FormatKeys, formats); }

void WriteSettings(TSectionWriter& writer, const TDMOptions& options) { WriteDifferent(writer, OptionKeys, options); }

TSQLFormats ReadSQLFormats(const TSection& section) { return ReadSettings<TSQLFormats>(section, FormatKeys); }

TDMOptions ReadDMOptions(const TSection& section) { return ReadSettings<TDMOptions>(section, OptionKeys); }

}  // namespace tolvi
