#pragma once

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>

#include <tolvi/foundation/api.h>

namespace tolvi {

/// One argument of `Format`: a text for "%s" or a whole number for "%d".
class TOLVI_CORE_API TFormatArg {
 public:
  TFormatArg(std::string_view text) : FValue(text) {}
  TFormatArg(const std::string& text) : FValue(std::string_view(text)) {}
  TFormatArg(const char* text) : FValue(std::string_view(text)) {}
  TFormatArg(std::integral auto number) : FValue(static_cast<std::int64_t>(number)) {}

  void AppendTo(std::string& out) const;

 private:
  std::variant<std::string_view, std::int64_t> FValue;
};

/// The message with each "%s" and "%d" replaced by the next argument and "%%" by "%". Any other "%" or "$" stands for
/// itself; a placeholder without an argument is left as it is.
TOLVI_CORE_API std::string Format(std::string_view message, std::initializer_list<TFormatArg> args);

}  // namespace tolvi
