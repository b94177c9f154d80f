#include <algorithm>
#include <memory>
#include <utility>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/valueentry.h>

namespace tolvi {
namespace {

// Index by index; a text without a value stands for itself.
std::vector<TEntryItem> JoinItems(const TStrings& texts, const TStrings& values) {
  std::vector<TEntryItem> items;
  const std::size_t count = std::max(texts.Count(), values.Count());
  items.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const std::string& value = i < values.Count() ? values[i] : texts[i];
    items.push_back({i < texts.Count() ? texts[i] : value, value});
  }
  return items;
}

void ReadEditor(const TDSValueEditor* editor, TValueEntry& entry) {
  entry.Way = ewAuto;
  if (const auto* text = dynamic_cast<const TDSTextEditor*>(editor)) {
    entry.Way = ewText;
    entry.DefaultValue = text->GetDefaultValue();
    entry.EditMask = text->GetEditMask();
    entry.Kind = text->GetKind();
    entry.LetterCase = text->GetAutoUpperCase() ? lcUpper : text->GetAutoLowerCase() ? lcLower : lcAny;
    entry.ValueType = text->GetValueType();
    entry.UseFormattedValue = text->GetUseFormattedValue();
  } else if (const auto* sql = dynamic_cast<const TDSSQLEditor*>(editor)) {
    entry.Way = ewSQL;
    entry.SQL = sql->GetSQL();
    entry.SQLParams = sql->GetSQLParams();
  } else if (const auto* list = dynamic_cast<const TDSListEditor*>(editor)) {
    entry.Way = ewList;
    entry.Items = JoinItems(list->Items(), list->Values());
  } else if (const auto* custom = dynamic_cast<const TDSCustomEditor*>(editor)) {
    entry.Way = ewCustom;
    entry.Data = custom->Data();
  } else if (const auto* query = dynamic_cast<const TDSSubQueryEditor*>(editor)) {
    entry.Way = ewSubQuery;
    entry.QueryData = query->QueryData();
  }
}

void WriteItems(TDSListEditor& list, const std::vector<TEntryItem>& items) {
  list.ClearList();
  const bool same =
      std::all_of(items.begin(), items.end(), [](const TEntryItem& item) { return item.Text == item.Value; });
  for (const TEntryItem& item : items) {
    list.Items().Add(item.Text);
    if (!same) list.Values().Add(item.Value);
  }
}

void WriteEditor(TDSValueEditor* editor, const TValueEntry& entry) {
  if (auto* text = dynamic_cast<TDSTextEditor*>(editor)) {
    text->SetDefaultValue(entry.DefaultValue);
    text->SetEditMask(entry.EditMask);
    text->SetKind(entry.Kind);
    text->SetAutoUpperCase(entry.LetterCase == lcUpper);
    text->SetAutoLowerCase(entry.LetterCase == lcLower);
    text->SetValueType(entry.ValueType);
    text->SetUseFormattedValue(entry.UseFormattedValue);
  } else if (auto* sql = dynamic_cast<TDSSQLEditor*>(editor)) {
    sql->SetOpened(false);
    sql->SetSQL(entry.SQL);
    sql->SetSQLParams(entry.SQLParams);
  } else if (auto* list = dynamic_cast<TDSListEditor*>(editor)) {
    WriteItems(*list, entry.Items);
  } else if (auto* custom = dynamic_cast<TDSCustomEditor*>(editor)) {
    custom->Data() = entry.Data;
  } else if (auto* query = dynamic_cast<TDSSubQueryEditor*>(editor)) {
    query->QueryData() = entry.QueryData;
  }
}

TDSEditType EditTypeOf(TEntryWay way) {
  constexpr TDSEditType types[EntryWayCount] = {etAuto, etEdit, etList, etCustom, etSQL, etAuto};
  return types[way];
}

}  // namespace

void ReadEntry(const TDSField& field, TValueEntry& entry) { ReadEditor(field.GetValueEditor(), entry); }

void ReadEntry(const TDSValue& value, TValueEntry& entry) { ReadEditor(value.GetValueEditor(), entry); }

void WriteEntry(TDSField& field, const TValueEntry& entry) {
  if (entry.Way == ewSubQuery) {
    throw EJDBStructError(0, "The values of a field cannot be a stored sub-query: choose another way", {});
  }
  field.SetEditType(EditTypeOf(entry.Way));
  WriteEditor(field.GetValueEditor(), entry);
  if (TJCustomDBStructure* model = field.GetDBStruct()) model->Changed();
}

void WriteEntry(TDSValue& value, TJCustomDBStructure& model, const TValueEntry& entry) {
  std::unique_ptr<TDSValueEditor> editor = entry.Way == ewSubQuery ? std::make_unique<TDSSubQueryEditor>()
                                                                   : CreateValueEditor(EditTypeOf(entry.Way), &model);
  WriteEditor(editor.get(), entry);
  value.SetValueEditor(std::move(editor));
  model.Changed();
}

std::vector<TEntryItem> ItemsFromTable(std::string_view text) {
  std::vector<TEntryItem> items;
  for (const std::string_view line : SplitLines(text)) {
    const std::size_t tab = line.find('\t');
    const std::string_view shown = Trim(line.substr(0, tab));
    const std::string_view value = tab == std::string_view::npos ? shown : line.substr(tab + 1);
    const std::string_view cell = Trim(value.substr(0, value.find('\t')));
    if (shown.empty() && cell.empty()) continue;
    items.push_back({std::string(shown.empty() ? cell : shown), std::string(cell.empty() ? shown : cell)});
  }
  return items;
}

TQueriedItems RunEntry(TJCustomDBStructure& model, const TValueEntry& entry, std::size_t limit) {
  TDSSQLEditor editor(&model);
  WriteEditor(&editor, entry);
  editor.SetOpened(true);
  TQueriedItems result{JoinItems(editor.Items(), editor.Values()), 0};
  result.Count = result.Items.size();
  result.Items.resize(std::min(limit, result.Count));
  return result;
}

}  // namespace tolvi
