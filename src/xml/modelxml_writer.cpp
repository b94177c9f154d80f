#include <QByteArray>
#include <QString>
#include <QXmlStreamWriter>
#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <unordered_map>
#include <vector>

#include <tolvi/foundation/listtext.h>
#include <tolvi/xml/modelxml.h>
#include <tolvi/xml/modelxml_parts.h>
#include <tolvi/xml/xmlproperties.h>
#include <tolvi/xml/xmltext.h>

namespace tolvi {
namespace {

QString ToQt(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

class TModelXmlWriter final {
 public:
  explicit TModelXmlWriter(const TJCustomDBStructure& model) : FModel(model), FWriter(&FXml) {}

  std::string Write() {
    FWriter.setAutoFormatting(true);
    FWriter.setAutoFormattingIndent(2);
    FWriter.writeStartDocument();
    Start(RootElement);
    Attribute(FormatVersionAttribute, std::to_string(CurrentModelXmlVersion));
    WriteProperties(FModel, ModelProperties());
    WriteSettings(FormatsElement, FModel.SQLFormats(), FormatProperties());
    WriteSettings(OptionsElement, FModel.DMOptions(), OptionProperties());
    WriteAll(OperatorsElement, FModel.Operators(), [this](const TDSOperator& op) {
      Start(OperatorElement);
      WriteProperties(op, OperatorProperties());
      End();
    });
    WriteAll(TablesElement, FModel.Tables(), [this](const TDSTable& table) {
      Start(TableElement);
      WriteProperties(table, TableProperties());
      End();
    });
    WriteAll(LinksElement, FModel.Links(), [this](const TDSLink& link) { WriteLink(link); });
    WriteEntities();
    WriteAll(ConditionsElement, FModel.Conditions(), [this](const TDSCondition& condition) {
      Start(ConditionElement);
      WriteProperties(condition, ConditionProperties());
      for (const TDSValue& value : condition.Values()) WriteValue(value);
      End();
    });
    if (FModel.DMOptions().GetStoreDBInfo() && !FModel.GetSpecInfo().Empty()) {
      Text(SpecInfoElement, LinesToXml(FModel.GetSpecInfo()));
    }
    FWriter.writeEndDocument();
    return FXml.toStdString();
  }

 private:
  void Start(std::string_view name) { FWriter.writeStartElement(ToQt(name)); }
  void End() { FWriter.writeEndElement(); }
  void Attribute(std::string_view name, std::string_view text) {
    FWriter.writeAttribute(ToQt(name), ToQt(EscapeForXml(text)));
  }

  /// An element with a text that is escaped already. A carriage return would be read as a line feed if it stood there
  /// as it is.
  void Text(std::string_view name, std::string_view text) {
    Start(name);
    for (;;) {
      const std::size_t end = std::min(text.find('\r'), text.size());
      FWriter.writeCharacters(ToQt(text.substr(0, end)));
      if (end == text.size()) break;
      FWriter.writeEntityReference(QStringLiteral("#13"));
      text.remove_prefix(end + 1);
    }
    End();
  }

  template <typename T>
  void WriteAttributes(const T& object, std::span<const TXmlProperty<T>> properties) {
    for (const TXmlProperty<T>& property : properties) {
      if (property.Place != TXmlPlace::Attribute) continue;
      if (const std::optional<std::string> text = property.Get(object)) Attribute(property.Name, *text);
    }
  }

  template <typename T>
  void WriteChildren(const T& object, std::span<const TXmlProperty<T>> properties) {
    for (const TXmlProperty<T>& property : properties) {
      if (property.Place == TXmlPlace::Attribute) continue;
      const std::optional<std::string> text = property.Get(object);
      if (text) Text(property.Name, property.Place == TXmlPlace::Lines ? *text : EscapeForXml(*text));
    }
  }

  template <typename T>
  void WriteProperties(const T& object, std::span<const TXmlProperty<T>> properties) {
    WriteAttributes(object, properties);
    WriteChildren(object, properties);
  }

  template <typename T>
  void WriteSettings(std::string_view name, const T& settings, std::span<const TXmlProperty<T>> properties) {
    if (settings == T()) return;
    Start(name);
    WriteProperties(settings, properties);
    End();
  }

  template <typename TList, typename TWrite>
  void WriteAll(std::string_view name, const TList& list, TWrite write) {
    if (list.Count() == 0) return;
    Start(name);
    for (const auto& each : list) write(each);
    End();
  }

  /// Lists side by side, an element for each index; a list that is shorter lacks its attribute in the last ones.
  template <std::size_t Count>
  void WriteRows(std::string_view element, const std::string_view (&names)[Count],
                 const std::array<const TStrings*, Count>& columns) {
    std::size_t rows = 0;
    for (const TStrings* column : columns) rows = std::max(rows, column->Count());
    for (std::size_t row = 0; row < rows; ++row) {
      Start(element);
      for (std::size_t i = 0; i < Count; ++i) {
        if (row < columns[i]->Count()) Attribute(names[i], (*columns[i])[row]);
      }
      End();
    }
  }

  void WriteLink(const TDSLink& link) {
    Start(LinkElement);
    Attribute(Table1Attribute, link.GetTable1()->GetTableAlias());
    Attribute(Table2Attribute, link.GetTable2()->GetTableAlias());
    WriteProperties(link, LinkProperties());
    WriteRows(PairElement, PairColumns, {&link.GetFields1(), &link.GetOperators(), &link.GetFields2()});
    End();
  }

  void WriteEditor(const TDSValueEditor* editor) {
    WithXmlProperties(editor, [this]<typename TEditor>(const TEditor& typed, const auto& properties) {
      Start(EditorElement(typed));
      WriteProperties(typed, properties);
      if constexpr (std::is_same_v<TEditor, TDSListEditor>) {
        WriteRows(ItemElement, ItemColumns, {&typed.Items(), &typed.Values()});
      }
      End();
    });
  }

  void WriteValue(const TDSValue& value) {
    Start(ValueElement);
    WriteProperties(value, ValueProperties());
    WriteEditor(value.GetValueEditor());
    End();
  }

  // The tree of groups and fields

  /// A group, or a field of the root group.
  struct TEntity {
    const TDSFieldGroup* Group;
    const TDSField* Field;
  };

  /// Groups and fields each in their order, and as far as possible with the fields in the order of the model's list.
  std::vector<TEntity> Entities() {
    std::vector<const TDSField*> rootFields(FModel.RootGroup().begin(), FModel.RootGroup().end());
    std::size_t index = 0;
    for (const TDSField& field : FModel.Fields()) {
      FIndexes[&field] = index++;
      if (field.GetGroup() == nullptr) rootFields.push_back(&field);
    }
    std::vector<TEntity> entities;
    auto next = rootFields.begin();
    const auto addFieldsBefore = [&](std::size_t end) {
      for (; next != rootFields.end() && FIndexes[*next] < end; ++next) entities.push_back({nullptr, *next});
    };
    for (const TDSFieldGroup& group : FModel.FieldGroups()) {
      if (!group.Empty()) addFieldsBefore(FIndexes[&group[0]]);
      entities.push_back({&group, nullptr});
    }
    addFieldsBefore(std::numeric_limits<std::size_t>::max());
    return entities;
  }

  /// Whether the tree lists the fields as the model does.
  bool IsInOrder(const std::vector<TEntity>& entities) const {
    std::size_t index = 0;
    const auto isNext = [&](const TDSField* field) { return FIndexes.at(field) == index++; };
    return std::all_of(entities.begin(), entities.end(), [&](const TEntity& entity) {
      if (entity.Group == nullptr) return isNext(entity.Field);
      return std::all_of(entity.Group->begin(), entity.Group->end(), isNext);
    });
  }

  void WriteEntities() {
    const std::vector<TEntity> entities = Entities();
    if (entities.empty()) return;
    const bool positions = !IsInOrder(entities);
    Start(EntitiesElement);
    for (const TEntity& entity : entities) {
      if (entity.Group == nullptr) {
        WriteField(*entity.Field, positions);
        continue;
      }
      Start(GroupElement);
      Attribute(GroupNameAttribute, entity.Group->GetGroupName());
      for (const TDSField* field : *entity.Group) WriteField(*field, positions);
      End();
    }
    End();
  }

  void WriteField(const TDSField& field, bool position) {
    Start(FieldElement);
    if (position) Attribute(PositionAttribute, std::to_string(FIndexes[&field] + 1));
    WriteAttributes(field, FieldProperties());
    if (field.GetFieldKind() == jfkData && field.GetTable() != nullptr) {
      Attribute(TableAliasAttribute, field.GetTable()->GetTableAlias());
    }
    std::string operators;
    for (const TDSOperator* op : field.Operators()) AppendListItem(operators, op->GetName());
    if (!operators.empty()) Attribute(OperatorsAttribute, operators);
    WriteChildren(field, FieldProperties());
    WriteEditor(field.GetValueEditor());
    End();
  }

  const TJCustomDBStructure& FModel;
  QByteArray FXml;
  QXmlStreamWriter FWriter;
  std::unordered_map<const TDSField*, std::size_t> FIndexes;
};

}  // namespace

std::string WriteModelXml(const TJCustomDBStructure& model) { return TModelXmlWriter(model).Write(); }

}  // namespace tolvi
