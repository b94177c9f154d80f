#include <tuple>

#include <tolvi/foundation/errors.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/formatpresets.h>
#include <tolvi/panel/modelsettings.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {

TModelSettings SettingsOf(const TJCustomDBStructure& model) {
  return {model.SQLFormats(),         model.DMOptions(),      model.GetDefaultMainTable(),
          model.GetRootFieldsFirst(), model.GetExOperators(), model.GetDefOperators()};
}

void ApplySettings(TJCustomDBStructure& model, const TModelSettings& settings) {
  model.AsOneChange([&] {
    if (model.GetDefOperators() != settings.DefOperators) model.SetDefOperators(settings.DefOperators);
    model.SetExOperators(settings.ExOperators);
    model.SQLFormats() = settings.Formats;
    model.DMOptions() = settings.Options;
    model.SetDefaultMainTable(settings.MainTable);
    model.SetRootFieldsFirst(settings.RootFieldsFirst);
  });
}

std::string PresetOf(const TSQLFormats& formats) {
  for (const std::string& name : FormatPresetNames()) {
    TSQLFormats preset;
    ApplyFormatPreset(preset, name);
    if (preset == formats) return name;
  }
  return {};
}

namespace {

void AddSampleField(TJDBStructure& model, TDSTable& table, std::string_view name, TFieldType type) {
  TDSField& field = model.GetField(model.AddField(jfkData, name, name, &table));
  field.SetFieldType(type);
  field.SetQuoted(name.find(' ') != std::string_view::npos);
}

void BuildSampleModel(TJDBStructure& model, const TModelSettings& settings) {
  model.AddDefOperators(true);
  for (TDSOperator& op : model.Operators()) op.SetCaseInsensative(true);
  model.AddTable("Orders", "Orders");
  model.AddTable("Order items", "Order items");
  TDSTable &orders = model.GetTable(0), &items = model.GetTable(1);
  orders.SetDatabaseName("Sales");
  items.SetDatabaseName("Stock");
  AddSampleField(model, orders, "Order date", ftDate);
  AddSampleField(model, orders, "Entered", ftDateTime);
  AddSampleField(model, orders, "Paid", ftBoolean);
  AddSampleField(model, items, "Product", ftString);
  AddSampleField(model, items, "From time", ftTime);
  model.AddLinkByExpr("Orders.ID = Order_items.OrderID", ltOuterLeft);
  model.SQLFormats() = settings.Formats;
  model.DMOptions() = settings.Options;
}

}  // namespace

std::string SampleStatement(const TModelSettings& settings) {
  TJDBStructure model;
  try {
    BuildSampleModel(model, settings);
    TJQueryPanel panel;
    panel.SetDBStruct(&model);
    panel.SetActive(true);
    panel.RFields().Add(model.GetField(0));
    for (const auto& [field, op, value] :
         {std::tuple(0, "Equal", "36526"), std::tuple(1, "LessThan", "36526.5"), std::tuple(2, "Equal", "True"),
          std::tuple(3, "StartsWith", "Tea"), std::tuple(4, "GreaterThan", "0.375")}) {
      panel.AddSimpleCond(panel.RootBracket(), model.GetField(static_cast<std::size_t>(field)),
                          *model.OperatorByName(op), value);
    }
    return panel.GetQueryText();
  } catch (const EException& error) {
    return error.Message();
  }
}

}  // namespace tolvi
