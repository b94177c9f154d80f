#include <tolvi/foundation/format.h>

namespace tolvi {

void TFormatArg::AppendTo(std::string& out) const {
  if (const auto* text = std::get_if<std::string_view>(&FValue)) {
    out += *text;
  } else {
    out += std::to_string(std::get<std::int64_t>(FValue));
  }
}

std::string Format(std::string_view message, std::initializer_list<TFormatArg> args) {
  std::string result;
  result.reserve(message.size() + 16 * args.size());
  const auto* arg = args.begin();
  for (std::size_t i = 0; i < message.size(); ++i) {
    const char next = message[i] == '%' && i + 1 < message.size() ? message[i + 1] : '\0';
    if (next == '%') {
      result += '%';
      ++i;
    } else if ((next == 's' || next == 'd') && arg != args.end()) {
      arg++->AppendTo(result);
      ++i;
    } else {
      result += message[i];
    }
  }
  return result;
}

}  // namespace tolvi
