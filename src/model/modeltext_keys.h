#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/sections.h>
#include <tolvi/model/operators.h>
#include <tolvi/model/table.h>

namespace tolvi {

// The keys of model texts as tables that reader and writer share.

/// A key of a section, and how it comes from an object and goes to one. A missing key leaves the object's default.
template <typename T>
struct TModelKey {
  std::string_view Key;
  void (*Write)(TSectionWriter& writer, std::string_view key, const T& object);
  void (*Read)(const TSection& section, std::string_view key, T& object);
};

/// "Line 3, section "Table:1", key "Quoted": 'x' is not a valid boolean value", as `EConvertError`.
[[noreturn]] void RaiseWrongValue(const TSection& section, std::string_view key, std::string_view value,
                                  std::string_view what);

/// As `TSection::Integer` for numbers between two limits.
std::int32_t ReadInt32(const TSection& section, std::string_view key, std::int32_t byDefault,
                       std::int32_t min = std::numeric_limits<std::int32_t>::min(),
                       std::int32_t max = std::numeric_limits<std::int32_t>::max(),
                       std::string_view what = "integer value");

/// Types by identifier, joined by commas.
std::string TypesToList(TFieldTypes types);
/// The types that the key lists; a missing key gives `byDefault`.
TFieldTypes ReadTypes(const TSection& section, std::string_view key, TFieldTypes byDefault);

/// "left,top,width,height"; missing parts are 0.
TDesignPositions ParseDesignPositions(const TSection& section, std::string_view key, std::string_view text);

/// The kind of that name; "vtSubQuery", as old texts write it, is a sub-query.
std::optional<TValueKind> TryReadValueKind(std::string_view text);

template <typename TGetter>
struct TObjectOfGetter;
template <typename T, typename V>
struct TObjectOfGetter<V (T::*)() const> {
  using TObject = T;
};
template <auto Get>
using TObjectOf = typename TObjectOfGetter<decltype(Get)>::TObject;

/// Keys for properties that a getter and a setter hold. A text defaults to nothing, which is every object's default.
template <auto Get, auto Set, typename T = TObjectOf<Get>>
constexpr TModelKey<T> TextKey(std::string_view name) {
  return {name, [](TSectionWriter& writer, std::string_view key, const T& object) { writer.Key(key, (object.*Get)()); },
          [](const TSection& section, std::string_view key, T& object) { (object.*Set)(section.Value(key)); }};
}

template <auto Get, auto Set, typename T = TObjectOf<Get>>
constexpr TModelKey<T> BooleanKey(std::string_view name) {
  return {name,
          [](TSectionWriter& writer, std::string_view key, const T& object) {
            writer.Key(key, std::int64_t{(object.*Get)()});
          },
          [](const TSection& section, std::string_view key, T& object) {
            (object.*Set)(section.Boolean(key, (object.*Get)()));
          }};
}

template <auto Get, auto Set, typename T = TObjectOf<Get>>
constexpr TModelKey<T> IntegerKey(std::string_view name) {
  return {name,
          [](TSectionWriter& writer, std::string_view key, const T& object) {
            writer.Key(key, std::int64_t{(object.*Get)()});
          },
          [](const TSection& section, std::string_view key, T& object) {
            (object.*Set)(ReadInt32(section, key, (object.*Get)()));
          }};
}

/// An enumeration written by its ordinal, `Last` being its last member.
template <auto Get, auto Set, auto Last, typename T = TObjectOf<Get>>
constexpr TModelKey<T> OrdinalKey(std::string_view name) {
  return {name,
          [](TSectionWriter& writer, std::string_view key, const T& object) {
            writer.Key(key, std::int64_t{(object.*Get)()});
          },
          [](const TSection& section, std::string_view key, T& object) {
            (object.*Set)(static_cast<decltype(Last)>(
                ReadInt32(section, key, (object.*Get)(), 0, static_cast<std::int32_t>(Last), "ordinal")));
          }};
}

/// A list of lines written as comma text.
template <auto Get, auto Set, typename T = TObjectOf<Get>>
constexpr TModelKey<T> LinesKey(std::string_view name) {
  return {name,
          [](TSectionWriter& writer, std::string_view key, const T& object) {
            writer.Key(key, (object.*Get)().GetCommaText());
          },
          [](const TSection& section, std::string_view key, T& object) {
            (object.*Set)(TStrings(SplitCommaText(section.Value(key))));
          }};
}

template <typename TKeys, typename T>
void WriteKeys(TSectionWriter& writer, const TKeys& keys, const T& object) {
  for (const TModelKey<T>& key : keys) key.Write(writer, key.Key, object);
}

template <typename TKeys, typename T>
void ReadKeys(const TSection& section, const TKeys& keys, T& object) {
  for (const TModelKey<T>& key : keys) key.Read(section, key.Key, object);
}

}  // namespace tolvi
