#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include <tolvi/foundation/text.h>
#include <tolvi/model/modeltext_editors.h>
#include <tolvi/model/modeltext_keys.h>

namespace tolvi {
namespace {

constexpr TModelKey<TDSTextEditor> TextEditorKeys[] = {
    TextKey<&TDSTextEditor::GetDefaultValue, &TDSTextEditor::SetDefaultValue>("DefValue"),
    OrdinalKey<&TDSTextEditor::GetKind, &TDSTextEditor::SetKind, tekTime>("EditKind"),
    OrdinalKey<&TDSTextEditor::GetValueType, &TDSTextEditor::SetValueType, ftSingle>("ValType"),
    // The mask and its setting are written only where there is something to say.
    {"EditMask",
     [](TSectionWriter& writer, std::string_view key, const TDSTextEditor& editor) {
       if (!editor.GetEditMask().empty()) writer.Key(key, editor.GetEditMask());
     },
     [](const TSection& section, std::string_view key, TDSTextEditor& editor) {
       editor.SetEditMask(section.Value(key));
     }},
    {"FmtVal",
     [](TSectionWriter& writer, std::string_view key, const TDSTextEditor& editor) {
       if (!editor.GetEditMask().empty() || editor.GetUseFormattedValue()) {
         writer.Key(key, std::int64_t{editor.GetUseFormattedValue()});
       }
     },
     [](const TSection& section, std::string_view key, TDSTextEditor& editor) {
       editor.SetUseFormattedValue(section.Boolean(key, false));
     }},
    IntegerKey<&TDSTextEditor::GetOptions, &TDSTextEditor::SetOptions>("Options"),
};

/// A list of lines that the editor hands out by reference.
template <typename T, TStrings& (T::*Lines)(), const TStrings& (T::*ConstLines)() const>
constexpr TModelKey<T> EditorLinesKey(std::string_view name) {
  return {name,
          [](TSectionWriter& writer, std::string_view key, const T& editor) {
            writer.Key(key, (editor.*ConstLines)().GetCommaText());
          },
          [](const TSection& section, std::string_view key, T& editor) {
            (editor.*Lines)().SetCommaText(section.Value(key));
          }};
}

constexpr TModelKey<TDSListEditor> ListEditorKeys[] = {
    EditorLinesKey<TDSListEditor, &TDSListEditor::Items, &TDSListEditor::Items>("Items"),
    EditorLinesKey<TDSListEditor, &TDSListEditor::Values, &TDSListEditor::Values>("Values"),
};

constexpr TModelKey<TDSCustomEditor> CustomEditorKeys[] = {
    EditorLinesKey<TDSCustomEditor, &TDSCustomEditor::Data, &TDSCustomEditor::Data>("CustomData"),
};

constexpr TModelKey<TDSSQLEditor> SQLEditorKeys[] = {
    {"SQLParams",
     [](TSectionWriter& writer, std::string_view key, const TDSSQLEditor& editor) {
       if (!editor.GetSQLParams().Empty()) writer.Key(key, editor.GetSQLParams().GetCommaText());
     },
     [](const TSection& section, std::string_view key, TDSSQLEditor& editor) {
       editor.SetSQLParams(TStrings(SplitCommaText(section.Value(key))));
     }},
};

constexpr TModelKey<TDSSubQueryEditor> SubQueryEditorKeys[] = {
    EditorLinesKey<TDSSubQueryEditor, &TDSSubQueryEditor::QueryData, &TDSSubQueryEditor::QueryData>("QueryData"),
};

constexpr std::string_view EditorsKey = "Editors", EditTypeKey = "EditType", SQLKey = "SQL";
/// Stands for a sub-query's editor, which no field can have.
constexpr int SubQueryEditType = etSQL + 1;

template <typename T, typename TEditor>
auto* As(TEditor* editor) {
  return dynamic_cast<std::conditional_t<std::is_const_v<TEditor>, const T, T>*>(editor);
}

/// Calls `action(editor, keys)` with the editor as what it is. A list filled by a query is stored as the query.
template <typename TEditor, typename TAction>
void WithKeys(TEditor* editor, TAction action) {
  if (auto* text = As<TDSTextEditor>(editor)) {
    action(*text, TextEditorKeys);
  } else if (auto* sql = As<TDSSQLEditor>(editor)) {
    action(*sql, SQLEditorKeys);
  } else if (auto* list = As<TDSListEditor>(editor)) {
    action(*list, ListEditorKeys);
  } else if (auto* custom = As<TDSCustomEditor>(editor)) {
    action(*custom, CustomEditorKeys);
  } else if (auto* query = As<TDSSubQueryEditor>(editor)) {
    action(*query, SubQueryEditorKeys);
  }
}

int EditTypeOf(const TDSValueEditor* editor) {
  if (dynamic_cast<const TDSTextEditor*>(editor)) return etEdit;
  if (dynamic_cast<const TDSSQLEditor*>(editor)) return etSQL;
  if (dynamic_cast<const TDSListEditor*>(editor)) return etList;
  if (dynamic_cast<const TDSCustomEditor*>(editor)) return etCustom;
  return dynamic_cast<const TDSSubQueryEditor*>(editor) ? SubQueryEditType : etAuto;
}

/// The lines of an editor of a value; nothing for the automatic way.
std::string EditorToText(const TDSValueEditor* editor) {
  const int type = EditTypeOf(editor);
  if (type == etAuto) return {};
  TSectionWriter writer([](std::string_view) { return false; });
  writer.Key(EditTypeKey, std::int64_t{type});
  WriteEditorKeys(writer, editor);
  if (const auto* sql = dynamic_cast<const TDSSQLEditor*>(editor)) writer.Key(SQLKey, sql->GetSQL().GetCommaText());
  return std::move(writer).Text();
}

std::unique_ptr<TDSValueEditor> ReadEditor(const TSection& lines, TJCustomDBStructure& model) {
  const int type = ReadInt32(lines, EditTypeKey, etAuto, etAuto, SubQueryEditType, "ordinal");
  std::unique_ptr<TDSValueEditor> editor = type == SubQueryEditType
                                               ? std::make_unique<TDSSubQueryEditor>()
                                               : CreateValueEditor(static_cast<TDSEditType>(type), &model);
  ReadEditorKeys(lines, editor.get());
  if (auto* sql = dynamic_cast<TDSSQLEditor*>(editor.get())) {
    sql->SetSQL(TStrings(SplitCommaText(lines.Value(SQLKey))));
  }
  return editor;
}

}  // namespace

void WriteEditorKeys(TSectionWriter& writer, const TDSValueEditor* editor) {
  WithKeys(editor, [&writer](const auto& typed, const auto& keys) { WriteKeys(writer, keys, typed); });
}

void ReadEditorKeys(const TSection& section, TDSValueEditor* editor) {
  WithKeys(editor, [&section](auto& typed, const auto& keys) { ReadKeys(section, keys, typed); });
}

void WriteValueEditors(TSectionWriter& writer, const TDSValueList& values) {
  std::vector<std::string> items;
  bool any = false;
  for (const TDSValue& value : values) {
    items.push_back(EditorToText(value.GetValueEditor()));
    any = any || !items.back().empty();
  }
  if (any) writer.Key(EditorsKey, ComposeCommaText(items));
}

void ReadValueEditors(const TSection& section, TDSValueList& values, TJCustomDBStructure& model) {
  const std::vector<std::string> items = SplitCommaText(section.Value(EditorsKey));
  if (items.empty()) return;
  if (items.size() > values.Count()) RaiseWrongValue(section, EditorsKey, items.back(), "editor: it has no value");
  const std::size_t line = section.LineOf(EditorsKey);
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (!items[i].empty()) values[i].SetValueEditor(ReadEditor(TSection(section.Name(), items[i], line), model));
  }
}

}  // namespace tolvi
