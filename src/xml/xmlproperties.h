#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include <tolvi/model/conditions.h>
#include <tolvi/model/dbstruc.h>

namespace tolvi {

// What of each class stands in a document, as tables that reader and writer share.

/// Where a property stands: in an attribute, or, for long texts, in an element of its own. Elements of lines hold them
/// escaped.
enum class TXmlPlace : std::uint8_t { Attribute, Text, Lines };

/// A property, how it comes from an object (nothing: it need not be written) and goes to one. A property that the
/// document lacks keeps the default of a new object.
template <typename T>
struct TXmlProperty {
  std::string_view Name;
  TXmlPlace Place;
  std::optional<std::string> (*Get)(const T& object);
  void (*Set)(T& object, const std::string& text);
};

/// The properties in the order in which they are written and set.
std::span<const TXmlProperty<TJCustomDBStructure>> ModelProperties();
std::span<const TXmlProperty<TSQLFormats>> FormatProperties();
std::span<const TXmlProperty<TDMOptions>> OptionProperties();
std::span<const TXmlProperty<TDSOperator>> OperatorProperties();
std::span<const TXmlProperty<TDSTable>> TableProperties();
std::span<const TXmlProperty<TDSLink>> LinkProperties();
std::span<const TXmlProperty<TDSField>> FieldProperties();
std::span<const TXmlProperty<TDSCondition>> ConditionProperties();
std::span<const TXmlProperty<TDSValue>> ValueProperties();
std::span<const TXmlProperty<TDSTextEditor>> TextEditorProperties();
std::span<const TXmlProperty<TDSListEditor>> ListEditorProperties();
std::span<const TXmlProperty<TDSSQLEditor>> SQLEditorProperties();
std::span<const TXmlProperty<TDSCustomEditor>> CustomEditorProperties();
std::span<const TXmlProperty<TDSSubQueryEditor>> SubQueryEditorProperties();

/// Calls `action(editor, properties)` with the editor as what it is; not at all for null.
template <typename TEditor, typename TAction>
void WithXmlProperties(TEditor* editor, TAction action) {
  const auto as = [editor]<typename T>(T*) {
    return dynamic_cast<std::conditional_t<std::is_const_v<TEditor>, const T, T>*>(editor);
  };
  if (auto* text = as(static_cast<TDSTextEditor*>(nullptr))) {
    action(*text, TextEditorProperties());
  } else if (auto* sql = as(static_cast<TDSSQLEditor*>(nullptr))) {
    action(*sql, SQLEditorProperties());
  } else if (auto* list = as(static_cast<TDSListEditor*>(nullptr))) {
    action(*list, ListEditorProperties());
  } else if (auto* custom = as(static_cast<TDSCustomEditor*>(nullptr))) {
    action(*custom, CustomEditorProperties());
  } else if (auto* query = as(static_cast<TDSSubQueryEditor*>(nullptr))) {
    action(*query, SubQueryEditorProperties());
  }
}

/// Element names of editors. Sub-queries are for values of conditions only.
inline constexpr std::string_view TextEditorElement = "textEditor", ListEditorElement = "listEditor",
                                  CustomEditorElement = "customEditor", SQLEditorElement = "sqlEditor",
                                  SubQueryEditorElement = "subQueryEditor";
std::string_view EditorElement(const TDSValueEditor& editor);

/// Other names that reader and writer share.
inline constexpr std::string_view RootElement = "DataModel", FormatVersionAttribute = "formatVersion",
                                  FormatsElement = "sqlFormats", OptionsElement = "dmOptions",
                                  OperatorsElement = "operators", OperatorElement = "operator",
                                  TablesElement = "tables", TableElement = "table", LinksElement = "links",
                                  LinkElement = "link", PairElement = "pair", EntitiesElement = "entities",
                                  GroupElement = "group", FieldElement = "field", ConditionsElement = "conditions",
                                  ConditionElement = "condition", ValueElement = "value", ItemElement = "item",
                                  SpecInfoElement = "specInfo";
inline constexpr std::string_view DisplayNameAttribute = "displayName", TableAliasAttribute = "tableAlias",
                                  Table1Attribute = "table1", Table2Attribute = "table2",
                                  GroupNameAttribute = "groupName", OperatorsAttribute = "operators",
                                  PositionAttribute = "position";
/// Attributes of the rows of two lists or three.
inline constexpr std::string_view PairColumns[] = {"field1", "operator", "field2"};
inline constexpr std::string_view ItemColumns[] = {"text", "value"};

}  // namespace tolvi
