#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <vector>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/params.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/sqlbuilder.h>

namespace tolvi {
namespace {

constexpr std::string_view AutomaticName = "Param";
constexpr std::string_view ValuePlace = "@v";

bool IsName(std::string_view text) {
  const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; };
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  return !text.empty() && isLetter(text.front()) &&
         std::all_of(text.begin(), text.end(), [&](char c) { return isLetter(c) || isDigit(c); });
}

// The number in an automatic name, in any case; nothing for other names.
std::optional<std::size_t> AutomaticNumber(std::string_view name) {
  if (name.size() <= AutomaticName.size() || !AsciiSameText(name.substr(0, AutomaticName.size()), AutomaticName)) {
    return std::nullopt;
  }
  const std::string_view digits = name.substr(AutomaticName.size());
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  const bool whole = error == std::errc() && end == digits.data() + digits.size() && digits.front() != '0';
  return whole ? std::optional(number) : std::nullopt;
}

std::string NumberedName(std::size_t number) { return std::string(AutomaticName) + std::to_string(number); }

}  // namespace

TSQLParam::~TSQLParam() {
  TFilterCond::TSlot& slot = FCondition.Slot(FValueIndex);
  if (slot.param == this) slot.param = nullptr;
}

void TSQLParam::SetParamName(std::string_view name) {
  if (name == FParamName) return;
  if (!IsName(name)) {
    throw EJQueryPanelError(0, "\"%s\" is no parameter name: use letters A to Z, digits and \"_\", a letter first",
                            {name});
  }
  FParamName = name;
  Changed();
}

void TSQLParam::Changed() { FCondition.Changed(); }

bool TSQLParam::HasAutomaticName() const { return AutomaticNumber(FParamName).has_value(); }

std::string TSQLParam::GetDisplayName() const {
  if (!FDisplayName.empty()) return FDisplayName;
  return FCondition.GetQueryPanel().QResult().GenerateParamDisplayName(*this);
}

TFieldType TSQLParam::GetParamType() const { return FCondition.GetValueType(FValueIndex); }

const std::string& TSQLParam::GetValue() const { return FCondition.GetValue(FValueIndex); }

void TSQLParam::SetValue(std::string_view value) { FCondition.SetValue(FValueIndex, value); }

void TSQLParam::SetValueFormat(std::string_view format) {
  if (format == FValueFormat) return;
  FValueFormat = format;
  Changed();
}

std::string TSQLParam::GetFullValue() const {
  const std::string format = FValueFormat.empty() ? TemplateValueFormat(FCondition, FValueIndex) : FValueFormat;
  return format.empty() ? GetValue() : ReplaceStr(format, ValuePlace, GetValue());
}

TSQLParam& TSQLParamList::Add(TFilterCond& condition, int valueIndex) {
  // Among the first Count() + 1 numbers, one is free.
  std::vector<bool> taken(FItems.Count() + 1, false);
  for (const TSQLParam& param : FItems) {
    const std::optional<std::size_t> number = AutomaticNumber(param.FParamName);
    if (number && *number > FParentParamCount && *number - FParentParamCount <= taken.size()) {
      taken[*number - FParentParamCount - 1] = true;
    }
  }
  const auto free = static_cast<std::size_t>(std::find(taken.begin(), taken.end(), false) - taken.begin());
  return FItems.Add(std::make_unique<TSQLParam>(condition, valueIndex, NumberedName(FParentParamCount + free + 1)));
}

void TSQLParamList::Delete(std::size_t index) { const std::unique_ptr<TSQLParam> deleted = FItems.Delete(index); }

void TSQLParamList::DeleteByCondition(const TFilterCond& condition) {
  for (std::size_t index = FItems.Count(); index-- > 0;) {
    if (&FItems[index].FCondition == &condition) Delete(index);
  }
}

void TSQLParamList::Reindex(std::size_t startIndex) {
  TSQLParam* changed = nullptr;
  for (TSQLParam& param : FItems) {
    if (!param.HasAutomaticName()) continue;
    std::string name = NumberedName(startIndex++);
    if (name == param.FParamName) continue;
    param.FParamName = std::move(name);
    changed = &param;
  }
  if (changed != nullptr) changed->Changed();
}

std::ptrdiff_t TSQLParamList::IndexByCondition(const TFilterCond& condition, int valueIndex) const {
  std::ptrdiff_t index = 0;
  for (const TSQLParam& param : FItems) {
    if (&param.FCondition == &condition && param.FValueIndex == valueIndex) return index;
    ++index;
  }
  return -1;
}

std::ptrdiff_t TSQLParamList::IndexByName(std::string_view name) const {
  std::ptrdiff_t index = 0;
  for (const TSQLParam& param : FItems) {
    if (SameText(param.FParamName, name)) return index;
    ++index;
  }
  return -1;
}

}  // namespace tolvi
