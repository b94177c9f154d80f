#include "apps/designer/panelexamples.h"

#include <QObject>

#include <tolvi/model/dbstruc.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/panels/rfldpnl.h>
#include <tolvi/ui/panels/stdspnl.h>

namespace tolvi {
namespace {

class TExample final : public QObject {
 public:
  explicit TExample(QObject* parent) : QObject(parent) {
    setObjectName(QStringLiteral("example"));
    TDSTable& table = Model.GetTable(Model.AddTable("Orders", "Orders"));
    AddField(table, "City", ftString);
    AddField(table, "Company", ftString);
    AddField(table, "Total", ftCurrency);
  }

  TDSField& Field(std::string_view name) const { return *Model.FieldByName(fnDisplayName, name); }
  TDSOperator& Operator(std::string_view name) const { return *Model.OperatorByName(name); }

  TJDBStructure Model;
  TJQueryPanel Panel;

 private:
  void AddField(TDSTable& table, std::string_view name, TFieldType type) {
    TDSField& field = Model.GetField(Model.AddField(jfkData, name, name, &table));
    field.SetFieldType(type);
    field.AddAppliedOperators();
  }
};

}  // namespace

void ShowQueryExample(QWidget& panel) {
  auto* example = new TExample(&panel);
  TJQueryPanel& query = example->Panel;
  query.SetDBStruct(&example->Model);
  query.SetActive(true);
  TFilterBracket& root = query.RootBracket();
  query.AddSimpleCond(root, example->Field("City"), example->Operator("Equal"), "Vienna");
  TFilterBracket& bracket = query.AddBracket(root);
  query.AddSimpleCond(bracket, example->Field("Total"), example->Operator("GreaterThan"), "1000");
  query.AddSimpleCond(bracket, example->Field("Company"), example->Operator("StartsWith"), "A");
  query.SetCurrentRow(nullptr);
  static_cast<TJQueryPanelView&>(panel).SetQueryPanel(&query);
}

void ShowColumnsExample(QWidget& widget) {
  auto& panel = static_cast<TJResultFieldsPanel&>(widget);
  auto* example = new TExample(&panel);
  TRFieldList columns(&example->Model);
  columns.Add(example->Field("Company"));
  TResultField& total = columns.Add(example->Field("Total"));
  total.SetFormula("sum(@1)");
  total.SetSorting(stDescending);
  panel.SetDBStruct(&example->Model);
  panel.SetActive(true);
  panel.SetResultFields(columns);
  panel.GetAppearance().OnChange = [&panel] { panel.Refresh(); };
}

void ShowDiagramExample(QWidget& widget) {
  auto& panel = static_cast<TJStructDesignPanel&>(widget);
  auto* example = new TExample(&panel);
  example->Model.AddTable("Customers", "Customers");
  example->Model.AddLinkByExpr("Orders.CustNo = Customers.CustNo");
  panel.SetDBStruct(&example->Model);
  panel.SetActive(true);
}

}  // namespace tolvi
