#include <tolvi/foundation/format.h>
#include <tolvi/sqlimport/selectcursor.h>
#include <tolvi/sqlimport/selectwords.h>

namespace tolvi {

namespace {

constexpr std::size_t LongestShown = 40;

std::string_view Shortened(std::string_view text) {
  if (text.size() <= LongestShown) return text;
  std::size_t size = LongestShown;
  while (size > 0 && (static_cast<unsigned char>(text[size]) & 0xC0U) == 0x80U) --size;
  return text.substr(0, size);
}

}  // namespace

bool TSelectCursor::EndsExpression() const {
  if (AtEnd()) return true;
  const TSelectToken& token = Token();
  switch (token.Word) {
    case swNone:
      return token.Text == ";";
    case swAnd:
    case swOr:
    case swNot:
    case swIs:
    case swNull:
    case swLike:
    case swIn:
    case swBetween:
    case swExists:
    case swCase:
    case swEnd:
    case swOpen:
    case swPoint:
    case swStar:
    case swCompare:
      return false;
    // "is distinct from", "is not distinct from"
    case swDistinct:
      return Before(1) != swIs && (Before(1) != swNot || Before(2) != swIs);
    case swFrom:
      return Before(1) != swDistinct || (Before(2) != swIs && Before(2) != swNot);
    case swGroup:
      return FAt == FBegin || !IsNameText(FText[FAt - 1], "within");
    default:
      return true;
  }
}

TTokenRange TSelectCursor::TakeExpression() {
  const std::size_t begin = FAt;
  for (; !EndsExpression(); Jump()) {
    if (FAt > begin && IsStrayNumber()) FailUnexpected();
  }
  return {begin, FAt};
}

// As in "limit 5" where no limit can be. "interval 5" and "a mod 5" are something else.
bool TSelectCursor::IsStrayNumber() const {
  const TSelectToken& before = FText[FAt - 1];
  if (Token().Kind != stkNumber || before.Kind != stkName || TakesNameBehind(before)) return false;
  return !IsNameText(before, "interval") && (FAt < FBegin + 2 || !FText[FAt - 2].EndsOperand());
}

void TSelectCursor::FailUnexpected() const { Fail(ShownToken(Token()) + " does not belong here"); }

bool EndsInStrayName(const TSelectText& text, TTokenRange expression) {
  if (expression.Count() < 2) return false;
  const TSelectToken& last = text[expression.End - 1];
  const TSelectToken& before = text[expression.End - 2];
  if (!last.IsName() || IsNameText(last, "isnull") || IsNameText(last, "notnull")) return false;
  // Behind all columns of a table.
  if (before.Word == swStar) return expression.Count() > 3 && text[expression.End - 3].Word == swPoint;
  if (!before.EndsOperand() || TakesNameBehind(before)) return false;
  // "interval 1 day"
  return expression.Count() < 3 || !IsNameText(text[expression.End - 3], "interval");
}

std::string ShownToken(const TSelectToken& token) {
  const std::string_view shown = Shortened(token.Text);
  const std::string_view rest = shown.size() < token.Text.size() ? "..." : "";
  const std::string_view quote = token.Kind == stkQuotedName || token.Kind == stkString ? "" : "\"";
  return Format("%s%s%s%s", {quote, shown, rest, quote});
}

std::string ShownWord(const TSelectToken& token) {
  std::string text(Shortened(token.Text));
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - ('a' - 'A'));
  }
  return text;
}

}  // namespace tolvi
