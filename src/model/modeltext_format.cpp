#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <vector>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/global.h>
#include <tolvi/foundation/listtext.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/modeltext_format.h>
#include <tolvi/model/modeltext_legacy.h>
#include <tolvi/model/modeltext_settings.h>

namespace tolvi {
namespace {

constexpr std::string_view NamedSections[] = {MainSection,        RootGroupSection, SpecInfoSection,
                                              SQLFormatsSection,  DMOptionsSection, LegacyOperationsSection,
                                              LegacyTablesSection};
constexpr std::string_view NumberedSections[] = {FieldPrefix, OperatorPrefix,  TablePrefix,
                                                 GroupPrefix, ConditionPrefix, LegacyOperationPrefix};

constexpr std::string_view SameAsField = "SameAsField";

constexpr TModelKey<TDSOperator> OperatorKeyTable[] = {
    {NameKey,
     [](TSectionWriter& writer, std::string_view key, const TDSOperator& op) { writer.Key(key, op.GetName()); },
     [](const TSection& section, std::string_view key, TDSOperator& op) {
       const std::string name = section.Value(key);
       op.SetName(name == "EqualTo" ? "Equal" : name);
     }},
    TextKey<&TDSOperator::GetDisplayName, &TDSOperator::SetDisplayName>(DisplayNameKey),
    TextKey<&TDSOperator::GetSQLExpr, &TDSOperator::SetSQLExpr>("SQLName"),
    TextKey<&TDSOperator::GetValFormat, &TDSOperator::SetValFormat>("ValFormat"),
    {"ExprType",
     [](TSectionWriter& writer, std::string_view key, const TDSOperator& op) {
       writer.Key(key, op.GetExprType() == ftUnknown ? SameAsField : FldTypeToStr(op.GetExprType()));
     },
     [](const TSection& section, std::string_view key, TDSOperator& op) {
       const std::string_view text = Trim(section.Find(key).value_or(std::string_view()));
       if (text.empty() || AsciiSameText(text, SameAsField)) return;
       const std::optional<TFieldType> type = TryStrToFldType(text);
       if (!type) RaiseWrongValue(section, key, text, "field type");
       op.SetExprType(*type);
     }},
    {"AppliedTypes",
     [](TSectionWriter& writer, std::string_view key, const TDSOperator& op) {
       std::string list = TypesToList(op.GetAppliedTypes());
       if (!list.empty()) list += ',';
       writer.Key(key, list);
     },
     [](const TSection& section, std::string_view key, TDSOperator& op) {
       op.SetAppliedTypes(ReadTypes(section, key, op.GetAppliedTypes()));
     }},
    {"ValueKind",
     [](TSectionWriter& writer, std::string_view key, const TDSOperator& op) {
       writer.Key(key, ValueKindToStr(op.GetValueKind()));
     },
     [](const TSection& section, std::string_view key, TDSOperator& op) {
       const std::string_view text = Trim(section.Find(key).value_or(std::string_view()));
       if (text.empty()) return;
       const std::optional<TValueKind> kind = TryReadValueKind(text);
       if (!kind) RaiseWrongValue(section, key, text, "value kind");
       op.SetValueKind(*kind);
     }},
    BooleanKey<&TDSOperator::GetCaseInsensative, &TDSOperator::SetCaseInsensative>("CaseInsens"),
};

constexpr TModelKey<TDSTable> TableKeyTable[] = {
    TextKey<&TDSTable::GetDatabaseName, &TDSTable::SetDatabaseName>("DBName"),
    TextKey<&TDSTable::GetTableName, &TDSTable::SetTableName>(NameKey),
    TextKey<&TDSTable::GetDisplayName, &TDSTable::SetDisplayName>(DisplayNameKey),
    TextKey<&TDSTable::GetTableAlias, &TDSTable::SetTableAlias>(AliasKey),
    BooleanKey<&TDSTable::GetQuoted, &TDSTable::SetQuoted>("Quoted"),
    TextKey<&TDSTable::GetTableHints, &TDSTable::SetTableHints>("Hints"),
    {"DsgnPos",
     [](TSectionWriter& writer, std::string_view key, const TDSTable& table) {
       const TDesignPositions& at = table.GetDesignPositions();
       std::string text;
       for (const int part : {at.Left, at.Top, at.Width, at.Height}) AppendListItem(text, std::to_string(part));
       writer.Key(key, text);
     },
     [](const TSection& section, std::string_view key, TDSTable& table) {
       table.SetDesignPositions(ParseDesignPositions(section, key, section.Value(key)));
     }},
};

constexpr TDSLinkType LinkTypes[] = {ltInner, ltOuterLeft, ltOuterRight, ltOuterFull};

constexpr TModelKey<TDSLink> LinkKeyTable[] = {
    LinesKey<&TDSLink::GetFields1, &TDSLink::SetFields1>("FldName1"),
    LinesKey<&TDSLink::GetFields2, &TDSLink::SetFields2>("FldName2"),
    LinesKey<&TDSLink::GetOperators, &TDSLink::SetOperators>(OperatorsKey),
    BooleanKey<&TDSLink::GetQuoteFields, &TDSLink::SetQuoteFields>("QuoteFields"),
    {"LinkType",
     [](TSectionWriter& writer, std::string_view key, const TDSLink& link) {
       writer.Key(key, LinkTypeToStr(link.GetLinkType()));
     },
     [](const TSection& section, std::string_view key, TDSLink& link) {
       const std::string_view text = Trim(section.Find(key).value_or(std::string_view()));
       if (text.empty()) return;
       const auto type = std::find_if(std::begin(LinkTypes), std::end(LinkTypes),
                                      [text](TDSLinkType each) { return AsciiSameText(LinkTypeToStr(each), text); });
       if (type == std::end(LinkTypes)) RaiseWrongValue(section, key, text, "link type");
       link.SetLinkType(*type);
     }},
};

constexpr TModelKey<TDSField> FieldNameKeyTable[] = {
    IntegerKey<&TDSField::GetID, &TDSField::SetID>("ID"),
    {"Kind",
     [](TSectionWriter& writer, std::string_view key, const TDSField& field) {
       writer.Key(key, FldKindToStr(field.GetFieldKind()));
     },
     [](const TSection& section, std::string_view key, TDSField& field) {
       const std::string_view text = Trim(section.Find(key).value_or(std::string_view()));
       const bool isVirtual = AsciiSameText(text, FldKindToStr(jfkVirtual));
       if (!isVirtual && !text.empty() && !AsciiSameText(text, FldKindToStr(jfkData))) {
         RaiseWrongValue(section, key, text, "field kind");
       }
       field.SetFieldKind(isVirtual ? jfkVirtual : jfkData);
     }},
    {FieldExprKey,
     [](TSectionWriter& writer, std::string_view key, const TDSField& field) { writer.Key(key, field.GetFieldExpr()); },
     [](const TSection& section, std::string_view key, TDSField& field) {
       if (field.GetFieldKind() == jfkVirtual) {
         field.SetSQLExpr(section.Value(key));
       } else {
         field.SetFieldName(section.Value(key));
       }
     }},
    TextKey<&TDSField::GetDisplayName, &TDSField::SetDisplayName>(DisplayNameKey),
};
constexpr TModelKey<TDSField> FieldTypeKeyTable[] = {
    OrdinalKey<&TDSField::GetEditType, &TDSField::SetEditType, etSQL>("EditType"),
    OrdinalKey<&TDSField::GetFieldType, &TDSField::SetFieldType, ftSingle>("FieldType"),
    IntegerKey<&TDSField::GetFieldSize, &TDSField::SetFieldSize>("FieldSize"),
    BooleanKey<&TDSField::GetQuoted, &TDSField::SetQuoted>("Quoted"),
    BooleanKey<&TDSField::GetUseInResult, &TDSField::SetUseInResult>("UIR"),
    BooleanKey<&TDSField::GetUseInConditions, &TDSField::SetUseInConditions>("UIC"),
    BooleanKey<&TDSField::GetIsAggregate, &TDSField::SetIsAggregate>("Aggr"),
};

/// One item for each value: type and kind, with a colon between.
std::string ValuesToText(const TDSValueList& values) {
  std::vector<std::string> items;
  for (const TDSValue& value : values) {
    items.push_back(Format("%s:%s", {FldTypeToStr(value.GetDataType()), ValueKindToStr(value.GetDataKind())}));
  }
  return ComposeCommaText(items);
}

void ReadValues(const TSection& section, std::string_view key, TDSValueList& values) {
  const std::vector<std::string> items = SplitCommaText(section.Value(key));
  for (std::size_t i = 0; i < items.size(); ++i) {
    const auto [typeName, kindName] = GetNameAndValueSep(items[i], ":");
    const std::optional<TFieldType> type = TryStrToFldType(typeName);
    const std::optional<TValueKind> kind = TryReadValueKind(kindName);
    if (!type || !kind) RaiseWrongValue(section, key, items[i], "value type and kind");
    if (i == values.Count()) values.Add(std::make_unique<TDSValue>());
    values[i].SetDataType(*type);
    values[i].SetDataKind(*kind);
  }
}

constexpr TModelKey<TDSCondition> ConditionKeyTable[] = {
    IntegerKey<&TDSCondition::GetID, &TDSCondition::SetID>("ID"),
    TextKey<&TDSCondition::GetDisplayFormat, &TDSCondition::SetDisplayFormat>("DF"),
    TextKey<&TDSCondition::GetSQLExpr, &TDSCondition::SetSQLExpr>("SQLExpr"),
    {"Values",
     [](TSectionWriter& writer, std::string_view key, const TDSCondition& condition) {
       writer.Key(key, ValuesToText(condition.Values()));
     },
     [](const TSection& section, std::string_view key, TDSCondition& condition) {
       ReadValues(section, key, condition.Values());
     }},
};

}  // namespace

bool IsModelHeader(std::string_view name) {
  // In any case of letters, as sections are found.
  const auto hasPrefix = [name](std::string_view prefix) {
    return AsciiSameText(name.substr(0, prefix.size()), prefix);
  };
  if (hasPrefix(LinkPrefix)) return true;
  for (const std::string_view prefix : NumberedSections) {
    if (!hasPrefix(prefix)) continue;
    std::string_view number = name.substr(prefix.size());
    const std::size_t digits = number.size() - std::min(number.size(), SQLSuffix.size());
    if (prefix == FieldPrefix && AsciiSameText(number.substr(digits), SQLSuffix)) number = number.substr(0, digits);
    return !number.empty() && number.find_first_not_of("0123456789") == std::string_view::npos;
  }
  return std::any_of(std::begin(NamedSections), std::end(NamedSections),
                     [name](std::string_view each) { return SameText(each, name); });
}

std::string NumberedName(std::string_view prefix, std::size_t number) {
  return std::string(prefix).append(std::to_string(number));
}

std::string LinkName(std::string_view alias1, std::string_view alias2) {
  // A line break in an alias would end the header's line.
  std::string name;
  name.append(LinkPrefix).append(alias1).append("-").append(alias2);
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return name;
}

std::span<const TModelKey<TDSOperator>> OperatorKeys() { return OperatorKeyTable; }
std::span<const TModelKey<TDSTable>> TableKeys() { return TableKeyTable; }
std::span<const TModelKey<TDSLink>> LinkKeys() { return LinkKeyTable; }
std::span<const TModelKey<TDSField>> FieldNameKeys() { return FieldNameKeyTable; }
std::span<const TModelKey<TDSField>> FieldTypeKeys() { return FieldTypeKeyTable; }
std::span<const TModelKey<TDSCondition>> ConditionKeys() { return ConditionKeyTable; }

}  // namespace tolvi
