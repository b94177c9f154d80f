#include <algorithm>
#include <cctype>
#include <cstddef>
#include <vector>

#include <tolvi/foundation/text.h>
#include <tolvi/model/sqlformats.h>
#include <tolvi/panel/rfldformula.h>

namespace tolvi {
namespace {

constexpr std::string_view Place = "@1", Distinct = "distinct";

struct TAggregateRow {
  TRFAggregate Aggregate;
  std::string_view Title, Pattern;
};

constexpr TAggregateRow Aggregates[] = {
    {agAsIs, "ttlAsIs", "@1"},
    {agSum, "ttlSUMCaption", "sum(@1)"},
    {agCount, "ttlCOUNTCaption", "count(@1)"},
    {agCountDistinct, "ttlCOUNTDISTINCTCaption", "count(distinct @1)"},
    {agMin, "ttlMINCaption", "min(@1)"},
    {agMax, "ttlMAXCaption", "max(@1)"},
    {agAverage, "ttlAVERAGECaption", "avg(@1)"},
    {agList, "ttlLISTCaption", {}},
};

/// Goes through what stands outside quotes: `visit(index, depth)`, with the depth of the brackets round the character;
/// it stops at false. An opening or closing bracket belongs to what is round it. Whether it came to the end, and all
/// brackets were closed.
template <typename TVisit>
bool ForEachOutside(std::string_view sql, TVisit visit) {
  std::size_t depth = 0;
  for (std::size_t at = 0; at < sql.size(); ++at) {
    const char c = sql[at];
    if (c == ')' && depth-- == 0) return false;
    if (!visit(at, depth)) return false;
    if (c == '(') ++depth;
    if (const char closer = c == '[' ? ']' : c; c == '\'' || c == '"' || c == '`' || c == '[') {
      at = sql.find(closer, at + 1);
      if (at == std::string_view::npos) return false;
    }
  }
  return depth == 0;
}

/// Whether the text can be the one argument of a call.
bool IsOneValue(std::string_view sql) {
  const bool isClosed =
      ForEachOutside(sql, [sql](std::size_t at, std::size_t depth) { return depth > 0 || sql[at] != ','; });
  return isClosed && !AsciiSameText(sql.substr(0, Distinct.size() + 1), std::string(Distinct) + " ");
}

/// What stands at all places of the pattern alike.
std::optional<std::string> TextAtPlaces(std::string_view formula, std::string_view pattern) {
  std::vector<std::string_view> pieces{GetBeforeSep(pattern, Place)};
  for (std::string_view rest = pattern; CXPos(Place, rest) != std::string_view::npos;) {
    rest = GetAfterSep(rest, Place);
    pieces.push_back(GetBeforeSep(rest, Place));
  }
  const std::size_t places = pieces.size() - 1, fixed = pattern.size() - places * Place.size();
  if (places == 0 || formula.size() <= fixed || (formula.size() - fixed) % places != 0) return std::nullopt;
  const std::size_t length = (formula.size() - fixed) / places;
  const std::string_view inner = formula.substr(pieces.front().size(), length);
  std::size_t at = 0;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (!AsciiSameText(formula.substr(at, pieces[i].size()), pieces[i])) return std::nullopt;
    at += pieces[i].size();
    if (i == places) break;
    if (formula.substr(at, length) != inner) return std::nullopt;
    at += length;
  }
  return std::string(Trim(inner));
}

bool IsOperandChar(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 0x80 || std::isalnum(byte) != 0 || std::string_view("_@.$'\"`[]()#").find(c) != std::string_view::npos;
}

}  // namespace

std::string_view AggregateTitle(TRFAggregate aggregate) { return Aggregates[aggregate].Title; }

std::string AggregatePattern(TRFAggregate aggregate, const TSQLFormats& formats) {
  if (aggregate != agList) return std::string(Aggregates[aggregate].Pattern);
  const std::string& list = formats.GetListFunction();
  return list.find(Place) != std::string::npos ? list : std::string();
}

TRFAggregated SplitAggregate(std::string_view formula, const TSQLFormats& formats) {
  formula = Trim(formula);
  for (const TAggregateRow& row : Aggregates) {
    if (row.Aggregate == agAsIs) continue;
    std::optional<std::string> inner = TextAtPlaces(formula, AggregatePattern(row.Aggregate, formats));
    if (!inner || inner->empty()) continue;
    if (IsOneValue(*inner)) return {row.Aggregate, std::move(*inner)};
  }
  return {agAsIs, std::string(formula)};
}

std::string WithAggregate(TRFAggregate aggregate, std::string_view inner, const TSQLFormats& formats) {
  return ReplaceStr(AggregatePattern(aggregate, formats), Place, inner);
}

TRFBinding BindingOf(std::string_view sql) {
  sql = Trim(sql);
  TRFBinding binding = bdOperand;
  // Two operands with a blank between them are parts of something larger: "case when", "a and b".
  bool inOperand = false, afterOperand = false;
  const bool isClosed = ForEachOutside(sql, [&](std::size_t at, std::size_t depth) {
    const char c = sql[at];
    if (depth > 0) return true;
    if (IsOperandChar(c)) {
      if (!inOperand && afterOperand) return false;
      inOperand = true;
      return true;
    }
    afterOperand = c == ' ' || c == '\t' ? afterOperand || inOperand : false;
    inOperand = false;
    if (c == '+' || c == '-') {
      binding = std::min(binding, bdSum);
    } else if (c == '*' || c == '/') {
      binding = std::min(binding, bdProduct);
    } else if (c != ' ' && c != '\t') {
      return false;
    }
    return true;
  });
  return isClosed ? binding : bdLoose;
}

std::string Joined(TRFOperation operation, std::string_view left, TRFBinding leftBinding, std::string_view right,
                   TRFBinding rightBinding) {
  constexpr std::string_view signs[] = {" + ", " - ", " * ", " / "};
  const TRFBinding own = operation == opAdd || operation == opSubtract ? bdSum : bdProduct;
  const auto side = [](std::string_view text, bool needsBrackets) {
    return needsBrackets ? "(" + std::string(text) + ")" : std::string(text);
  };
  return side(left, leftBinding < own).append(signs[operation]).append(side(right, rightBinding <= own));
}

}  // namespace tolvi
