#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <vector>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/params.h>
#include <tolvi/query/paramvalues.h>
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

void CheckParamName(std::string_view name) {
  if (IsName(name)) return;
  throw EJQueryPanelError(0, "\"%s\" is no parameter name: use letters A to Z, digits and \"_\", a letter first",
                          {name});
}

TSQLParam::~TSQLParam() {
  TFilterCond::TSlot& slot = FCondition.Slot(FValueIndex);
  if (slot.param == this) slot.param = nullptr;
}

void TSQLParam::SetParamName(std::string_view name) {
  if (name == FParamName) return;
  CheckParamName(name);
  TSQLParamList& list = FCondition.GetQueryPanel().QResult().Params();
  list.GiveUp(FParamName);
  FParamName = name;
  list.Take(FParamName);
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
  FLowestFree = std::max(FLowestFree, FParentParamCount + 1);
  while (FTaken.contains(FLowestFree)) ++FLowestFree;
  TSQLParam& param = FItems.Add(std::make_unique<TSQLParam>(condition, valueIndex, NumberedName(FLowestFree)));
  Take(param.FParamName);
  return param;
}

void TSQLParamList::Delete(std::size_t index) {
  const std::unique_ptr<TSQLParam> deleted = FItems.Delete(index);
  GiveUp(deleted->FParamName);
}

// From the end: rows are cleared from the last to the first.
void TSQLParamList::Remove(const TSQLParam& param) {
  for (std::size_t index = FItems.Count(); index-- > 0;) {
    if (&FItems[index] == &param) {
      Delete(index);
      return;
    }
  }
}

void TSQLParamList::DeleteByCondition(const TFilterCond& condition) {
  for (std::size_t index = FItems.Count(); index-- > 0;) {
    if (&FItems[index].FCondition == &condition) Delete(index);
  }
}

void TSQLParamList::Clear() {
  while (!FItems.Empty()) Delete(FItems.Count() - 1);
}

void TSQLParamList::SetParentParamCount(std::size_t count) {
  FParentParamCount = count;
  FLowestFree = 1;
}

void TSQLParamList::Take(std::string_view name) {
  if (const std::optional<std::size_t> number = AutomaticNumber(name)) ++FTaken[*number];
}

void TSQLParamList::GiveUp(std::string_view name) {
  const std::optional<std::size_t> number = AutomaticNumber(name);
  if (!number) return;
  const auto taken = FTaken.find(*number);
  if (taken == FTaken.end() || --taken->second > 0) return;
  FTaken.erase(taken);
  FLowestFree = std::min(FLowestFree, *number);
}

void TSQLParamList::Reindex(std::size_t startIndex) {
  TSQLParam* changed = nullptr;
  for (TSQLParam& param : FItems) {
    if (!param.HasAutomaticName()) continue;
    std::string name = NumberedName(startIndex++);
    if (name == param.FParamName) continue;
    GiveUp(param.FParamName);
    param.FParamName = std::move(name);
    Take(param.FParamName);
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
