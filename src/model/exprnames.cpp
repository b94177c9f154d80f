#include <utility>

#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/exprnames.h>

namespace tolvi {
namespace {

TDSTable* FindByAliasOrName(const TJCustomDBStructure& model, std::string_view name) {
  TDSTable* table = model.TableByName(tnAlias, name);
  return table ? table : model.TableByName(tnName, name);
}

}  // namespace

std::string TColumnName::TableText(bool written) const {
  std::string text;
  for (std::size_t index = 0; index + 1 < Names.size(); ++index) {
    if (index > 0) text += '.';
    text += written ? Names[index].Written : std::string_view(Names[index].Text);
  }
  return text;
}

TExprReader::TExprReader(std::string_view expr, const TSQLFormats& formats)
    : FOpen(formats.GetQuoteSymbol1()), FClose(formats.GetQuoteSymbol2()) {
  FScanner.SetSource(expr);
  FScanner.FirstToken();
}

bool TExprReader::Skip(std::string_view symbol) {
  if (!At(symbol)) return false;
  FScanner.NextToken();
  return true;
}

bool TExprReader::SkipOuterMark() {
  if (!At("(") || FScanner.GetToken(1).Text != "+" || FScanner.GetToken(2).Text != ")") return false;
  for (int i = 0; i < 3; ++i) FScanner.NextToken();
  return true;
}

TColumnName TExprReader::ReadNames() {
  TColumnName result;
  result.Line = FScanner.GetTokLine();
  result.Column = FScanner.GetTokColumn();
  while (std::optional<TExprName> name = ReadName()) {
    result.Names.push_back(*std::move(name));
    if (!At(".") || !BeginsName(FScanner.GetToken(1))) break;
    FScanner.NextToken();
  }
  return result;
}

char TExprReader::CloserOf(std::string_view token) const {
  if (token.size() != 1) return '\0';
  if (FOpen != '\0' && FClose != '\0' && token[0] == FOpen) return FClose;
  return token[0] == '"' ? '"' : '\0';
}

bool TExprReader::BeginsName(const TJScannerToken& token) const {
  return token.Type == ttIdentifier || (token.Type == ttDelimiter && CloserOf(token.Text) != '\0');
}

std::optional<TExprName> TExprReader::ReadName() {
  if (FScanner.GetTokType() == ttIdentifier) {
    const std::string_view word = FScanner.GetRealStr();
    FScanner.NextToken();
    return TExprName{std::string(word), word, false};
  }
  const char closer = FScanner.GetTokType() == ttDelimiter ? CloserOf(FScanner.GetRealStr()) : '\0';
  return closer == '\0' ? std::nullopt : ReadQuoted(closer);
}

// The scanner knows no quoted names, so one is cut out of the text, whatever it holds.
std::optional<TExprName> TExprReader::ReadQuoted(char closer) {
  const std::string_view source = FScanner.GetSource();
  const std::size_t start = FScanner.GetTokPos();
  TExprName name;
  name.Quoted = true;
  for (std::size_t pos = start + 1; pos < source.size(); ++pos) {
    if (source[pos] == closer) {
      if (pos + 1 == source.size() || source[pos + 1] != closer) {
        name.Written = source.substr(start, pos + 1 - start);
        FScanner.SkipTo(pos + 1);
        return name;
      }
      ++pos;
    }
    name.Text += source[pos];
  }
  return std::nullopt;
}

TDSTable* FindTable(const TJCustomDBStructure& model, const TColumnName& name) {
  if (TDSTable* table = FindByAliasOrName(model, name.TableText(false))) return table;
  if (name.Names.size() == 2) return nullptr;
  const std::string written = name.TableText(true);
  for (const TTableNameKind kind : {tnFullName, tnCompoundName, tnFromExpr}) {
    if (TDSTable* table = model.TableByName(kind, written)) return table;
  }
  for (TDSTable& table : model.Tables()) {
    if (SameText(table.GetMainExpr(), written)) return &table;
  }
  return FindByAliasOrName(model, name.Names[name.Names.size() - 2].Text);
}

}  // namespace tolvi
