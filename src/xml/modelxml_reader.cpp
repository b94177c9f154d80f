#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/listtext.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/text.h>
#include <tolvi/xml/modelxml.h>
#include <tolvi/xml/modelxml_parts.h>
#include <tolvi/xml/xmlcursor.h>
#include <tolvi/xml/xmlproperties.h>
#include <tolvi/xml/xmltext.h>

namespace tolvi {
namespace {

std::string InQuotes(std::string_view attribute) { return "attribute " + QuotedString(attribute, '"'); }

class TModelXmlReader final {
 public:
  TModelXmlReader(std::string_view xml, TJCustomDBStructure& model) : FCursor(xml), FModel(model) {}

  void Read() {
    // A document without a root has raised an error.
    FCursor.NextChild();
    if (!FCursor.Is(RootElement)) {
      FCursor.Element().Fail("a data model begins with <DataModel>, not with <" + FCursor.Element().Name() + ">");
    }
    TXmlElement root = FCursor.TakeElement();
    CheckVersion(root);
    ReadAttributes(root, FModel, ModelProperties());
    root.CheckAllTaken();
    ReadSections();
    FCursor.ReadEnd();
  }

 private:
  struct TSection {
    std::string_view Name;
    void (TModelXmlReader::*Read)();
  };
  /// A field of the tree; it is added to the model when all are read, in the order of their positions.
  struct TReadField {
    std::unique_ptr<TDSField> Field;
    TXmlElement Element;
    std::int64_t Position;
    /// Null for the root group.
    TDSFieldGroup* Group;
  };

  static void CheckVersion(TXmlElement& root) {
    const std::optional<std::string> text = root.Take(FormatVersionAttribute);
    if (!text) root.Fail("<DataModel> needs the attribute \"formatVersion\": formatVersion=\"1\"");
    const std::optional<std::int64_t> version = TryStrToInt(Trim(*text));
    if (!version || *version < 1) root.Fail(Format("formatVersion=\"%s\" is no version of the format", {*text}));
    if (*version > CurrentModelXmlVersion) {
      root.Fail(
          Format("the document was written in version %d of the format; this program reads versions up to %d. Use a "
                 "newer release of the program",
                 {*version, std::int64_t{CurrentModelXmlVersion}}));
    }
  }

  /// What refers to other parts stands behind them.
  void ReadSections() {
    static constexpr TSection Sections[] = {
        {FormatsElement, &TModelXmlReader::ReadFormats},       {OptionsElement, &TModelXmlReader::ReadOptions},
        {OperatorsElement, &TModelXmlReader::ReadOperators},   {TablesElement, &TModelXmlReader::ReadTables},
        {LinksElement, &TModelXmlReader::ReadLinks},           {EntitiesElement, &TModelXmlReader::ReadEntities},
        {ConditionsElement, &TModelXmlReader::ReadConditions}, {SpecInfoElement, &TModelXmlReader::ReadSpecInfo}};
    const TSection* next = Sections;
    while (FCursor.NextChild()) {
      const TSection* const section = std::find_if(std::begin(Sections), std::end(Sections),
                                                   [this](const TSection& each) { return FCursor.Is(each.Name); });
      if (section == std::end(Sections)) FCursor.FailUnknown(RootElement);
      if (section < next) {
        FCursor.Element().Fail(Format("<%s> must stand once, and before <%s>", {section->Name, std::prev(next)->Name}));
      }
      next = std::next(section);
      (this->*section->Read)();
    }
  }

  // Properties

  template <typename T>
  static void ReadAttributes(TXmlElement& element, T& object, std::span<const TXmlProperty<T>> properties) {
    for (const TXmlProperty<T>& property : properties) {
      if (property.Place != TXmlPlace::Attribute) continue;
      const std::optional<std::string> text = element.Take(property.Name);
      if (text) element.Setting(InQuotes(property.Name), [&] { property.Set(object, *text); });
    }
  }

  /// Reads the child at which the cursor is if it is one of the properties.
  template <typename T>
  bool ReadChild(T& object, std::span<const TXmlProperty<T>> properties) {
    for (const TXmlProperty<T>& property : properties) {
      if (property.Place == TXmlPlace::Attribute || !FCursor.Is(property.Name)) continue;
      const TXmlElement child = FCursor.Element();
      const std::string text = FCursor.ReadText();
      child.Setting("<" + child.Name() + ">",
                    [&] { property.Set(object, property.Place == TXmlPlace::Lines ? text : UnescapeFromXml(text)); });
      return true;
    }
    return false;
  }

  /// An element that has attributes only.
  template <typename T>
  TXmlElement ReadSimple(T& object, std::span<const TXmlProperty<T>> properties) {
    TXmlElement element = FCursor.TakeElement();
    ReadAttributes(element, object, properties);
    element.CheckAllTaken();
    FCursor.ReadNothing(element.Name());
    return element;
  }

  /// Calls `read` at each child; all must be of one name.
  template <typename TRead>
  void ReadAll(std::string_view childName, TRead read) {
    const TXmlElement parent = FCursor.TakeElement();
    parent.CheckAllTaken();
    while (FCursor.NextChild()) {
      if (!FCursor.Is(childName)) FCursor.FailUnknown(parent.Name());
      read();
    }
  }

  /// A row of lists side by side. Where it lacks an attribute, that list has ended.
  template <std::size_t Count>
  void ReadRow(const std::string_view (&names)[Count], std::array<TStrings, Count>& columns, std::size_t row) {
    TXmlElement element = FCursor.TakeElement();
    for (std::size_t i = 0; i < Count; ++i) {
      const std::optional<std::string> text = element.Take(names[i]);
      if (!text) continue;
      if (columns[i].Count() < row) {
        element.Fail(Format("%s: a <%s> before this one lacks it", {InQuotes(names[i]), element.Name()}));
      }
      columns[i].Add(*text);
    }
    element.CheckAllTaken();
    FCursor.ReadNothing(element.Name());
  }

  // Sections

  void ReadFormats() {
    TSQLFormats formats;
    ReadSimple(formats, FormatProperties());
    FModel.SQLFormats() = formats;
  }

  void ReadOptions() {
    TDMOptions options;
    ReadSimple(options, OptionProperties());
    FModel.DMOptions() = options;
  }

  void ReadOperators() {
    ReadAll(OperatorElement, [this] {
      auto op = std::make_unique<TDSOperator>();
      const TXmlElement element = ReadSimple(*op, OperatorProperties());
      if (!element.Has(DisplayNameAttribute)) op->SetDisplayName(op->GetName());
      FModel.AddOperatorRef(std::move(op));
    });
  }

  void ReadTables() {
    ReadAll(TableElement, [this] {
      auto table = std::make_unique<TDSTable>();
      const TXmlElement element = ReadSimple(*table, TableProperties());
      if (!element.Has(DisplayNameAttribute)) table->SetDisplayName(table->GetTableName());
      if (!element.Has(TableAliasAttribute)) table->SetTableAlias(table->GetTableName());
      FModel.AddTableRef(std::move(table));
    });
  }

  TDSTable& TableOf(TXmlElement& element, std::string_view attribute) const {
    const std::optional<std::string> alias = element.Take(attribute);
    if (!alias) element.Fail("<" + element.Name() + "> needs the " + InQuotes(attribute) + ", the alias of a table");
    TDSTable* const table = FModel.TableByName(tnAlias, *alias);
    if (table == nullptr) element.Fail(InQuotes(attribute) + ": no table has the alias '" + *alias + "'");
    return *table;
  }

  void ReadLinks() {
    ReadAll(LinkElement, [this] {
      TXmlElement element = FCursor.TakeElement();
      TDSTable& table1 = TableOf(element, Table1Attribute);
      TDSTable& table2 = TableOf(element, Table2Attribute);
      auto link = std::make_unique<TDSLink>(table1, table2);
      ReadAttributes(element, *link, LinkProperties());
      element.CheckAllTaken();
      std::array<TStrings, std::size(PairColumns)> columns;
      for (std::size_t row = 0; FCursor.NextChild(); ++row) {
        if (!FCursor.Is(PairElement)) FCursor.FailUnknown(LinkElement);
        ReadRow(PairColumns, columns, row);
      }
      link->SetFields1(columns[0]);
      link->SetOperators(columns[1]);
      link->SetFields2(columns[2]);
      FModel.AddLinkByRef(std::move(link));
    });
  }

  void ReadConditions() {
    ReadAll(ConditionElement, [this] {
      auto condition = std::make_unique<TDSCondition>();
      TXmlElement element = FCursor.TakeElement();
      ReadAttributes(element, *condition, ConditionProperties());
      element.CheckAllTaken();
      for (std::size_t values = 0; FCursor.NextChild();) {
        if (FCursor.Is(ValueElement)) {
          if (values == condition->Values().Count()) condition->Values().Add(std::make_unique<TDSValue>());
          ReadValue(condition->Values()[values++]);
        } else if (!ReadChild(*condition, ConditionProperties())) {
          FCursor.FailUnknown(ConditionElement);
        }
      }
      FModel.Conditions().Add(std::move(condition));
    });
  }

  void ReadSpecInfo() { FModel.SetSpecInfo(LinesFromXml(FCursor.ReadText())); }

  // Editors

  /// The type of the editor at whose start tag the cursor is; nothing when it is at another tag.
  std::optional<TDSEditType> EditorType() {
    constexpr std::pair<std::string_view, TDSEditType> Types[] = {{TextEditorElement, etEdit},
                                                                  {ListEditorElement, etList},
                                                                  {CustomEditorElement, etCustom},
                                                                  {SQLEditorElement, etSQL}};
    for (const auto& [name, type] : Types) {
      if (FCursor.Is(name)) return type;
    }
    return std::nullopt;
  }

  void ReadEditor(TDSValueEditor& editor) {
    WithXmlProperties(&editor, [this]<typename TEditor>(TEditor& typed, const auto& properties) {
      TXmlElement element = FCursor.TakeElement();
      ReadAttributes(element, typed, properties);
      element.CheckAllTaken();
      std::array<TStrings, std::size(ItemColumns)> columns;
      constexpr bool HasItems = std::is_same_v<TEditor, TDSListEditor>;
      for (std::size_t row = 0; FCursor.NextChild();) {
        if (HasItems && FCursor.Is(ItemElement)) {
          ReadRow(ItemColumns, columns, row++);
        } else if (!ReadChild(typed, properties)) {
          FCursor.FailUnknown(element.Name());
        }
      }
      if constexpr (HasItems) {
        typed.Items() = columns[0];
        typed.Values() = columns[1];
      }
    });
  }

  void ReadValue(TDSValue& value) {
    TXmlElement element = FCursor.TakeElement();
    ReadAttributes(element, value, ValueProperties());
    element.CheckAllTaken();
    while (FCursor.NextChild()) {
      CheckOnlyEditor(value.GetValueEditor());
      std::unique_ptr<TDSValueEditor> editor;
      if (const std::optional<TDSEditType> type = EditorType()) {
        editor = CreateValueEditor(*type, &FModel);
      } else if (FCursor.Is(SubQueryEditorElement)) {
        editor = std::make_unique<TDSSubQueryEditor>();
      } else {
        FCursor.FailUnknown(ValueElement);
      }
      ReadEditor(*editor);
      value.SetValueEditor(std::move(editor));
    }
  }

  void CheckOnlyEditor(const TDSValueEditor* editor) const {
    if (editor != nullptr) FCursor.Element().Fail("there is one editor already. Remove this one or the other");
  }

  // The tree of groups and fields

  void ReadEntities() {
    const TXmlElement entities = FCursor.TakeElement();
    entities.CheckAllTaken();
    while (FCursor.NextChild()) {
      if (FCursor.Is(GroupElement)) {
        ReadGroup();
      } else if (FCursor.Is(FieldElement)) {
        ReadField(nullptr);
      } else {
        FCursor.FailUnknown(entities.Name());
      }
    }
    AddFields();
  }

  void ReadGroup() {
    TXmlElement element = FCursor.TakeElement();
    TDSFieldGroup& group = FModel.FieldGroups().AddGroup(element.Take(GroupNameAttribute).value_or(std::string()));
    element.CheckAllTaken();
    while (FCursor.NextChild()) {
      if (!FCursor.Is(FieldElement)) FCursor.FailUnknown(element.Name());
      ReadField(&group);
    }
  }

  void ReadField(TDSFieldGroup* group) {
    auto field = std::make_unique<TDSField>();
    TXmlElement element = FCursor.TakeElement();
    std::int64_t position = std::numeric_limits<std::int64_t>::max();
    if (const std::optional<std::string> text = element.Take(PositionAttribute)) {
      const std::optional<std::int64_t> number = TryStrToInt(Trim(*text));
      if (!number) element.Fail(InQuotes(PositionAttribute) + ": '" + *text + "' is no whole number");
      position = *number;
    }
    ReadAttributes(element, *field, FieldProperties());
    if (field->GetFieldKind() == jfkData && element.Has(TableAliasAttribute)) {
      field->SetTable(&TableOf(element, TableAliasAttribute));
    }
    ReadFieldOperators(element, *field);
    element.CheckAllTaken();
    while (FCursor.NextChild()) {
      if (ReadChild(*field, FieldProperties())) continue;
      const std::optional<TDSEditType> type = EditorType();
      if (!type) FCursor.FailUnknown(FieldElement);
      CheckOnlyEditor(field->GetValueEditor());
      field->SetEditType(*type);
      ReadEditor(*field->GetValueEditor());
    }
    if (!element.Has(DisplayNameAttribute)) field->SetDisplayName(field->GetFieldExpr());
    FFields.push_back({std::move(field), std::move(element), position, group});
  }

  void ReadFieldOperators(TXmlElement& element, TDSField& field) const {
    const std::optional<std::string> names = element.Take(OperatorsAttribute);
    for (const std::string& name : SplitList(names.value_or(std::string()))) {
      TDSOperator* const op = FModel.OperatorByName(name);
      if (op == nullptr) element.Fail(InQuotes(OperatorsAttribute) + ": the model has no operator '" + name + "'");
      field.AddOperator(*op);
    }
  }

  void AddFields() {
    std::vector<TDSField*> fields;
    std::vector<std::size_t> order(FFields.size());
    for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
    std::stable_sort(order.begin(), order.end(),
                     [this](std::size_t a, std::size_t b) { return FFields[a].Position < FFields[b].Position; });
    for (const TReadField& read : FFields) fields.push_back(read.Field.get());
    for (const std::size_t i : order) {
      FFields[i].Element.Setting("<field>", [&] { FModel.AddFieldRef(std::move(FFields[i].Field)); });
    }
    // Taken out from the end, the fields are placed anew without a search each.
    TDSFieldGroup& root = FModel.RootGroup();
    while (!root.Empty()) root.Delete(root.Count() - 1);
    for (std::size_t i = 0; i < fields.size(); ++i) {
      (FFields[i].Group != nullptr ? *FFields[i].Group : root).Add(*fields[i]);
    }
  }

  TXmlCursor FCursor;
  TJCustomDBStructure& FModel;
  std::vector<TReadField> FFields;
};

}  // namespace

void ReadModelXml(std::string_view xml, TJCustomDBStructure& model) { TModelXmlReader(xml, model).Read(); }

}  // namespace tolvi
