#include <tolvi/model/sqlformats.h>

namespace tolvi {

TSQLFormats& TSQLFormats::operator=(const TSQLFormats& other) {
  Set(FSettings, other.FSettings);
  return *this;
}

void TSQLFormats::SetQuoteBool(bool on) {
  TFieldTypes types = FSettings.quotedTypes;
  SetQuotedTypes(types.Assign(ftBoolean, on));
}

void TSQLFormats::SetQuoteDate(bool on) {
  SetQuotedTypes(on ? FSettings.quotedTypes + DateFieldTypes : FSettings.quotedTypes - DateFieldTypes);
}

void TSQLFormats::AppendQuoted(std::string& out, std::string_view name) const {
  const char open = FSettings.quote1;
  const char close = FSettings.quote2;
  if (open != '\0') out += open;
  for (const char character : name) {
    out += character;
    if (close != '\0' && character == close) out += close;
  }
  if (close != '\0') out += close;
}

TDMOptions& TDMOptions::operator=(const TDMOptions& other) {
  Set(FSettings, other.FSettings);
  return *this;
}

}  // namespace tolvi
