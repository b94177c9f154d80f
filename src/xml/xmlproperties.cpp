#include <array>
#include <iterator>
#include <limits>
#include <type_traits>

#include <tolvi/foundation/enumnames.h>
#include <tolvi/foundation/global.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/xml/xmlproperties.h>
#include <tolvi/xml/xmltext.h>

namespace tolvi {
namespace {

constexpr TEnumName<bool> BooleanNames[] = {{false, "false"}, {true, "true"}, {false, "0"}, {true, "1"}};
constexpr TEnumName<TValueKind> ValueKindNames[] = {
    {vkScalar, "vkScalar"}, {vkList, "vkList"}, {vkSubQuery, "vkSubQuery"}};
constexpr TEnumName<TJFieldKind> FieldKindNames[] = {{jfkData, "jfkData"}, {jfkVirtual, "jfkVirtual"}};
constexpr TEnumName<TDSLinkType> LinkTypeNames[] = {
    {ltInner, "ltInner"}, {ltOuterLeft, "ltOuterLeft"}, {ltOuterRight, "ltOuterRight"}, {ltOuterFull, "ltOuterFull"}};
constexpr TEnumName<TTextEditorKind> EditorKindNames[] = {
    {tekSimple, "tekSimple"}, {tekMask, "tekMask"}, {tekDate, "tekDate"}, {tekTime, "tekTime"}};

/// A value as text, and the reverse, which raises an exception of the library.
template <typename V>
struct TXmlValue;

template <typename V, const auto& Names>
struct TXmlEnum {
  static std::string ToText(V value) { return std::string(EnumToName(value, Names)); }
  static V FromText(const std::string& text) { return NameToEnum(Trim(text), Names); }
};
template <>
struct TXmlValue<bool> : TXmlEnum<bool, BooleanNames> {};
template <>
struct TXmlValue<TValueKind> : TXmlEnum<TValueKind, ValueKindNames> {};
template <>
struct TXmlValue<TJFieldKind> : TXmlEnum<TJFieldKind, FieldKindNames> {};
template <>
struct TXmlValue<TDSLinkType> : TXmlEnum<TDSLinkType, LinkTypeNames> {};
template <>
struct TXmlValue<TTextEditorKind> : TXmlEnum<TTextEditorKind, EditorKindNames> {};

template <>
struct TXmlValue<std::string> {
  static const std::string& ToText(const std::string& value) { return value; }
  static const std::string& FromText(const std::string& text) { return text; }
};

template <>
struct TXmlValue<TStrings> {
  static std::string ToText(const TStrings& lines) { return LinesToXml(lines); }
  static TStrings FromText(const std::string& text) { return LinesFromXml(text); }
};

template <>
struct TXmlValue<std::int32_t> {
  static std::string ToText(std::int32_t value) { return std::to_string(value); }
  static std::int32_t FromText(const std::string& text) {
    const std::optional<std::int64_t> value = TryStrToInt(Trim(text));
    if (!value || *value != static_cast<std::int32_t>(*value)) {
      throw EConvertError("'%s' is no integer of up to 32 bits", {text});
    }
    return static_cast<std::int32_t>(*value);
  }
};

/// One character; an empty text is none, which is the character 0.
template <>
struct TXmlValue<char> {
  static std::string ToText(char value) { return std::string(value == '\0' ? 0 : 1, value); }
  static char FromText(const std::string& text) {
    if (text.size() > 1) throw EConvertError("'%s' is no single character", {text});
    return text.empty() ? '\0' : text.front();
  }
};

template <>
struct TXmlValue<TFieldType> {
  static std::string ToText(TFieldType value) { return std::string(FldTypeToStr(value)); }
  static TFieldType FromText(std::string_view text) {
    const std::optional<TFieldType> type = TryStrToFldType(Trim(text));
    if (!type) throw EConvertError("'%s' is no field type such as ftString", {text});
    return *type;
  }
};

/// Types by identifier, with blanks between them.
template <>
struct TXmlValue<TFieldTypes> {
  static std::string ToText(TFieldTypes types) {
    std::string text;
    for (int ordinal = 0; ordinal < FieldTypeCount; ++ordinal) {
      const auto type = static_cast<TFieldType>(ordinal);
      if (!types.Contains(type)) continue;
      if (!text.empty()) text += ' ';
      text += FldTypeToStr(type);
    }
    return text;
  }
  static TFieldTypes FromText(std::string_view text) {
    TFieldTypes types;
    while (!(text = Trim(text)).empty()) {
      const std::string_view item = text.substr(0, text.find_first_of(" \t\r\n"));
      types.Include(TXmlValue<TFieldType>::FromText(item));
      text.remove_prefix(item.size());
    }
    return types;
  }
};

/// A property with getter and setter, written when it differs from that of a new object.
template <auto TGet, auto TSet, typename T, typename V>
constexpr TXmlProperty<T> MakeProperty(std::string_view name, TXmlPlace place) {
  return {name, place,
          [](const T& object) -> std::optional<std::string> {
            static const V byDefault = [] {
              const T fresh = [] {
                if constexpr (std::is_default_constructible_v<T>) {
                  return T();
                } else {
                  return T(nullptr);
                }
              }();
              return (fresh.*TGet)();
            }();
            const V& value = (object.*TGet)();
            if (value == byDefault) return std::nullopt;
            return TXmlValue<V>::ToText(value);
          },
          [](T& object, const std::string& text) { (object.*TSet)(TXmlValue<V>::FromText(text)); }};
}

template <typename TGetter>
struct TGetterParts;
template <typename T, typename V>
struct TGetterParts<V (T::*)() const> {
  using TObject = T;
  using TValue = std::remove_cvref_t<V>;
};

template <auto TGet, auto TSet, typename TParts = TGetterParts<decltype(TGet)>>
constexpr TXmlProperty<typename TParts::TObject> Property(std::string_view name,
                                                          TXmlPlace place = TXmlPlace::Attribute) {
  return MakeProperty<TGet, TSet, typename TParts::TObject, typename TParts::TValue>(name, place);
}

/// A list of lines that the object hands out by reference.
template <typename T, TStrings& (T::*TLines)(), const TStrings& (T::*TConstLines)() const>
constexpr TXmlProperty<T> LinesProperty(std::string_view name) {
  return {name, TXmlPlace::Lines,
          [](const T& object) -> std::optional<std::string> {
            const TStrings& lines = (object.*TConstLines)();
            if (lines.Empty()) return std::nullopt;
            return LinesToXml(lines);
          },
          [](T& object, const std::string& text) { (object.*TLines)() = LinesFromXml(text); }};
}

/// A display name, which is written when it is not the name.
template <auto TName, typename T = typename TGetterParts<decltype(TName)>::TObject>
constexpr TXmlProperty<T> DisplayNameProperty() {
  return {DisplayNameAttribute, TXmlPlace::Attribute,
          [](const T& object) -> std::optional<std::string> {
            if (object.GetDisplayName() == (object.*TName)()) return std::nullopt;
            return object.GetDisplayName();
          },
          [](T& object, const std::string& text) { object.SetDisplayName(text); }};
}

/// One number of a table's place in the designer.
template <int TDesignPositions::*TPart>
constexpr TXmlProperty<TDSTable> PositionProperty(std::string_view name) {
  return {name, TXmlPlace::Attribute,
          [](const TDSTable& table) -> std::optional<std::string> {
            const int value = table.GetDesignPositions().*TPart;
            if (value == 0) return std::nullopt;
            return std::to_string(value);
          },
          [](TDSTable& table, const std::string& text) {
            TDesignPositions positions = table.GetDesignPositions();
            positions.*TPart = TXmlValue<std::int32_t>::FromText(text);
            table.SetDesignPositions(positions);
          }};
}

// A new model costs too much to ask it for its defaults.
constexpr TXmlProperty<TJCustomDBStructure> ModelTable[] = {
    {"defaultMainTable", TXmlPlace::Attribute,
     [](const TJCustomDBStructure& model) -> std::optional<std::string> {
       if (model.GetDefaultMainTable().empty()) return std::nullopt;
       return model.GetDefaultMainTable();
     },
     [](TJCustomDBStructure& model, const std::string& text) { model.SetDefaultMainTable(text); }},
    {"rootFieldsFirst", TXmlPlace::Attribute,
     [](const TJCustomDBStructure& model) -> std::optional<std::string> {
       if (!model.GetRootFieldsFirst()) return std::nullopt;
       return "true";
     },
     [](TJCustomDBStructure& model, const std::string& text) {
       model.SetRootFieldsFirst(TXmlValue<bool>::FromText(text));
     }},
};

constexpr TXmlProperty<TSQLFormats> FormatTable[] = {
    Property<&TSQLFormats::GetDate, &TSQLFormats::SetDate>("date"),
    Property<&TSQLFormats::GetTime, &TSQLFormats::SetTime>("time"),
    Property<&TSQLFormats::GetDateTime, &TSQLFormats::SetDateTime>("dateTime"),
    Property<&TSQLFormats::GetQuoteSymbol1, &TSQLFormats::SetQuoteSymbol1>("quoteSymbol1"),
    Property<&TSQLFormats::GetQuoteSymbol2, &TSQLFormats::SetQuoteSymbol2>("quoteSymbol2"),
    Property<&TSQLFormats::GetFalseValue, &TSQLFormats::SetFalseValue>("falseValue"),
    Property<&TSQLFormats::GetTrueValue, &TSQLFormats::SetTrueValue>("trueValue"),
    Property<&TSQLFormats::GetFullTableName, &TSQLFormats::SetFullTableName>("fullTableName"),
    Property<&TSQLFormats::GetQuotedTypes, &TSQLFormats::SetQuotedTypes>("quotedTypes"),
    Property<&TSQLFormats::GetUseOuterKeyword, &TSQLFormats::SetUseOuterKeyword>("useOuterKeyword"),
    Property<&TSQLFormats::GetLowerFunc, &TSQLFormats::SetLowerFunc>("lowerFunc"),
    Property<&TSQLFormats::GetWildcardChar, &TSQLFormats::SetWildcardChar>("wildcardChar"),
    Property<&TSQLFormats::GetUseAsInFrom, &TSQLFormats::SetUseAsInFrom>("useAsInFrom"),
    Property<&TSQLFormats::GetListFunction, &TSQLFormats::SetListFunction>("listFunction"),
};

constexpr TXmlProperty<TDMOptions> OptionTable[] = {
    Property<&TDMOptions::GetMultiDB, &TDMOptions::SetMultiDB>("multiDB"),
    Property<&TDMOptions::GetDefaultDBOwner, &TDMOptions::SetDefaultDBOwner>("defaultDBOwner"),
    Property<&TDMOptions::GetDefaultDatabase, &TDMOptions::SetDefaultDatabase>("defaultDatabase"),
    Property<&TDMOptions::GetStoreDBInfo, &TDMOptions::SetStoreDBInfo>("storeDBInfo"),
};

constexpr TXmlProperty<TDSOperator> OperatorTable[] = {
    Property<&TDSOperator::GetName, &TDSOperator::SetName>("name"),
    DisplayNameProperty<&TDSOperator::GetName>(),
    Property<&TDSOperator::GetSQLExpr, &TDSOperator::SetSQLExpr>("sqlExpr"),
    Property<&TDSOperator::GetValFormat, &TDSOperator::SetValFormat>("valFormat"),
    Property<&TDSOperator::GetExprType, &TDSOperator::SetExprType>("exprType"),
    Property<&TDSOperator::GetAppliedTypes, &TDSOperator::SetAppliedTypes>("appliedTypes"),
    Property<&TDSOperator::GetValueKind, &TDSOperator::SetValueKind>("valueKind"),
    Property<&TDSOperator::GetCaseInsensative, &TDSOperator::SetCaseInsensative>("caseInsensative"),
};

constexpr TXmlProperty<TDSTable> TableTable[] = {
    Property<&TDSTable::GetDatabaseName, &TDSTable::SetDatabaseName>("databaseName"),
    Property<&TDSTable::GetTableName, &TDSTable::SetTableName>("tableName"),
    DisplayNameProperty<&TDSTable::GetTableName>(),
    {TableAliasAttribute, TXmlPlace::Attribute,
     [](const TDSTable& table) -> std::optional<std::string> {
       if (table.GetTableAlias() == ReplaceStr(table.GetTableName(), " ", "_")) return std::nullopt;
       return table.GetTableAlias();
     },
     [](TDSTable& table, const std::string& text) { table.SetTableAlias(text); }},
    Property<&TDSTable::GetQuoted, &TDSTable::SetQuoted>("quoted"),
    Property<&TDSTable::GetTableHints, &TDSTable::SetTableHints>("tableHints"),
    PositionProperty<&TDesignPositions::Left>("left"),
    PositionProperty<&TDesignPositions::Top>("top"),
    PositionProperty<&TDesignPositions::Width>("width"),
    PositionProperty<&TDesignPositions::Height>("height"),
};

constexpr TXmlProperty<TDSLink> LinkTable[] = {
    Property<&TDSLink::GetLinkType, &TDSLink::SetLinkType>("linkType"),
    Property<&TDSLink::GetQuoteFields, &TDSLink::SetQuoteFields>("quoteFields"),
};

/// The kind first: it tells which of column and expression a field has.
constexpr TXmlProperty<TDSField> FieldTable[] = {
    Property<&TDSField::GetID, &TDSField::SetID>("id"),
    Property<&TDSField::GetFieldKind, &TDSField::SetFieldKind>("fieldKind"),
    {"fieldName", TXmlPlace::Attribute,
     [](const TDSField& field) -> std::optional<std::string> {
       if (field.GetFieldKind() != jfkData) return std::nullopt;
       return field.GetFieldName();
     },
     [](TDSField& field, const std::string& text) { field.SetFieldName(text); }},
    DisplayNameProperty<&TDSField::GetFieldExpr>(),
    Property<&TDSField::GetFieldType, &TDSField::SetFieldType>("fieldType"),
    Property<&TDSField::GetFieldSize, &TDSField::SetFieldSize>("fieldSize"),
    Property<&TDSField::GetQuoted, &TDSField::SetQuoted>("quoted"),
    Property<&TDSField::GetUseInResult, &TDSField::SetUseInResult>("useInResult"),
    Property<&TDSField::GetUseInConditions, &TDSField::SetUseInConditions>("useInConditions"),
    Property<&TDSField::GetIsAggregate, &TDSField::SetIsAggregate>("isAggregate"),
    {"sqlExpr", TXmlPlace::Text,
     [](const TDSField& field) -> std::optional<std::string> {
       if (field.GetFieldKind() != jfkVirtual) return std::nullopt;
       return field.GetFieldExpr();
     },
     [](TDSField& field, const std::string& text) { field.SetSQLExpr(text); }},
};

constexpr TXmlProperty<TDSCondition> ConditionTable[] = {
    Property<&TDSCondition::GetID, &TDSCondition::SetID>("id"),
    Property<&TDSCondition::GetDisplayFormat, &TDSCondition::SetDisplayFormat>("displayFormat"),
    Property<&TDSCondition::GetSQLExpr, &TDSCondition::SetSQLExpr>("sqlExpr", TXmlPlace::Text),
};

/// Always written: a condition should tell what its values are.
constexpr TXmlProperty<TDSValue> ValueTable[] = {
    {"dataType", TXmlPlace::Attribute,
     [](const TDSValue& value) -> std::optional<std::string> {
       return TXmlValue<TFieldType>::ToText(value.GetDataType());
     },
     [](TDSValue& value, const std::string& text) { value.SetDataType(TXmlValue<TFieldType>::FromText(text)); }},
    Property<&TDSValue::GetDataKind, &TDSValue::SetDataKind>("dataKind"),
};

constexpr TXmlProperty<TDSTextEditor> TextEditorTable[] = {
    Property<&TDSTextEditor::GetDefaultValue, &TDSTextEditor::SetDefaultValue>("defaultValue"),
    Property<&TDSTextEditor::GetKind, &TDSTextEditor::SetKind>("kind"),
    Property<&TDSTextEditor::GetValueType, &TDSTextEditor::SetValueType>("valueType"),
    Property<&TDSTextEditor::GetEditMask, &TDSTextEditor::SetEditMask>("editMask"),
    Property<&TDSTextEditor::GetUseFormattedValue, &TDSTextEditor::SetUseFormattedValue>("useFormattedValue"),
    Property<&TDSTextEditor::GetOptions, &TDSTextEditor::SetOptions>("options"),
};

constexpr TXmlProperty<TDSSQLEditor> SQLEditorTable[] = {
    Property<&TDSSQLEditor::GetSQL, &TDSSQLEditor::SetSQL>("sql", TXmlPlace::Lines),
    Property<&TDSSQLEditor::GetSQLParams, &TDSSQLEditor::SetSQLParams>("sqlParams", TXmlPlace::Lines),
};

constexpr TXmlProperty<TDSCustomEditor> CustomEditorTable[] = {
    LinesProperty<TDSCustomEditor, &TDSCustomEditor::Data, &TDSCustomEditor::Data>("data"),
};

constexpr TXmlProperty<TDSSubQueryEditor> SubQueryEditorTable[] = {
    LinesProperty<TDSSubQueryEditor, &TDSSubQueryEditor::QueryData, &TDSSubQueryEditor::QueryData>("queryData"),
};

}  // namespace

std::span<const TXmlProperty<TJCustomDBStructure>> ModelProperties() { return ModelTable; }
std::span<const TXmlProperty<TSQLFormats>> FormatProperties() { return FormatTable; }
std::span<const TXmlProperty<TDMOptions>> OptionProperties() { return OptionTable; }
std::span<const TXmlProperty<TDSOperator>> OperatorProperties() { return OperatorTable; }
std::span<const TXmlProperty<TDSTable>> TableProperties() { return TableTable; }
std::span<const TXmlProperty<TDSLink>> LinkProperties() { return LinkTable; }
std::span<const TXmlProperty<TDSField>> FieldProperties() { return FieldTable; }
std::span<const TXmlProperty<TDSCondition>> ConditionProperties() { return ConditionTable; }
std::span<const TXmlProperty<TDSValue>> ValueProperties() { return ValueTable; }
std::span<const TXmlProperty<TDSTextEditor>> TextEditorProperties() { return TextEditorTable; }
std::span<const TXmlProperty<TDSListEditor>> ListEditorProperties() { return {}; }
std::span<const TXmlProperty<TDSSQLEditor>> SQLEditorProperties() { return SQLEditorTable; }
std::span<const TXmlProperty<TDSCustomEditor>> CustomEditorProperties() { return CustomEditorTable; }
std::span<const TXmlProperty<TDSSubQueryEditor>> SubQueryEditorProperties() { return SubQueryEditorTable; }

std::string_view EditorElement(const TDSValueEditor& editor) {
  if (dynamic_cast<const TDSTextEditor*>(&editor)) return TextEditorElement;
  if (dynamic_cast<const TDSSQLEditor*>(&editor)) return SQLEditorElement;
  if (dynamic_cast<const TDSListEditor*>(&editor)) return ListEditorElement;
  if (dynamic_cast<const TDSCustomEditor*>(&editor)) return CustomEditorElement;
  return SubQueryEditorElement;
}

}  // namespace tolvi
