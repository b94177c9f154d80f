#include <algorithm>
#include <iterator>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/operators.h>

namespace tolvi {
namespace {

constexpr std::string_view ValueKindNames[] = {"vkScalar", "vkList", "vkSubQuery"};

constexpr TFieldTypes G = GeneralFieldTypes;
constexpr TFieldTypes O = OrderedFieldTypes;
constexpr TFieldTypes N = NullableFieldTypes;
constexpr TFieldTypes T = TextFieldTypes;
constexpr std::string_view And = SAndConj.Text;

constexpr TDefOperator DefOperators[] = {
    {"Equal", "@f = '@1'", "is equal to", G, vkScalar, "", {}},
    {"NotEqual", "@f <> '@1'", "is not equal to", G, vkScalar, "", {}},
    {"LessThan", "@f < '@1'", "is less than", O, vkScalar, "", {}},
    {"LessOrEqual", "@f <= '@1'", "is less than or equal to", O, vkScalar, "", {}},
    {"GreaterThan", "@f >'@1'", "is greater than", O, vkScalar, "", {}},
    {"GreaterOrEqual", "@f >= '@1'", "is greater than or equal to", O, vkScalar, "", {}},
    {"IsNull", "@f is null", "is null", N, vkScalar, "", {}},
    {"InList", "@f in (@1)", "is in list", G, vkList, "", xoInList},
    {"NotInList", "NOT (@f in (@1))", "is not in list", G, vkList, "", xoInList},
    {"StartsWith", "@f like '@1%'", "starts with", T, vkScalar, "", xoStartsWith},
    {"NotStartsWith", "not(@f like '@1%')", "does not start with", T, vkScalar, "", xoStartsWith},
    {"Contains", "@f like '%@1%'", "contains", T, vkScalar, "", xoContains},
    {"NotContains", "not(@f like '%@1%')", "does not contain", T, vkScalar, "", xoContains},
    {"Between", "@f between '@1' and '@2'", "is between", O, vkScalar, And, xoBetween},
    {"NotBetween", "NOT (@f between '@1' and '@2')", "is not between", O, vkScalar, And, xoBetween},
};

}  // namespace

std::string_view ValueKindToStr(TValueKind kind) { return ValueKindNames[kind]; }

std::optional<TValueKind> TryStrToValueKind(std::string_view text) {
  const auto found = std::find_if(std::begin(ValueKindNames), std::end(ValueKindNames),
                                  [text](std::string_view name) { return AsciiSameText(name, text); });
  if (found == std::end(ValueKindNames)) return {};
  return static_cast<TValueKind>(found - std::begin(ValueKindNames));
}

void TDSOperator::SetSQLExpr(std::string_view expr) {
  FParamCount = TemplateParamCount(expr);
  Set(FSQLExpr, expr);
}

void TDSOperator::Modified() {
  if (FDBStruct) FDBStruct->OperatorsModified();
}

std::size_t TemplateParamCount(std::string_view sqlTemplate) {
  std::size_t count = 0;
  while (sqlTemplate.find("@" + std::to_string(count + 1)) != std::string_view::npos) ++count;
  return count;
}

std::span<const TDefOperator> DefaultOperators() { return DefOperators; }

}  // namespace tolvi
