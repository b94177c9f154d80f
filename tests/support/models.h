#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <tuple>
#include <utility>

#include <tolvi/model/dbstruc.h>

namespace tolvi {

/// A model of four tables in a chain, Customers - Orders - Order Details - Products, with the default operators and one
/// on sub-queries, "InQuery". The fields below get the IDs 1, 2, ... in their order; the conditions the IDs 1 and 2.
inline std::unique_ptr<TJDBStructure> OrdersModel() {
  struct TFieldRow {
    std::string_view table, expr, displayName;
    TFieldType type;
    int size;
  };
  constexpr TFieldRow Fields[] = {
      {"Customers", "CustNo", "Customer no", ftInteger, 0},
      {"Customers", "Company", "Company", ftString, 40},
      {"Customers", "City", "City", ftString, 20},
      {"Customers", "Active", "Active", ftBoolean, 0},
      {"Customers", "Notes", "Notes", ftMemo, 0},
      {"Orders", "OrderNo", "Order no", ftInteger, 0},
      {"Orders", "CustNo", "Customer", ftInteger, 0},
      {"Orders", "SaleDate", "Sale date", ftDate, 0},
      {"Orders", "SaleTime", "Sale time", ftTime, 0},
      {"Orders", "ShipDate", "Shipped", ftDateTime, 0},
      {"Orders", "Total", "Total", ftCurrency, 0},
      {"Order_Details", "OrderNo", "Order", ftInteger, 0},
      {"Order_Details", "PartNo", "Part", ftInteger, 0},
      {"Order_Details", "Qty", "Quantity", ftSmallint, 0},
      {"Order_Details", "Discount", "Discount", ftFloat, 0},
      {"Products", "PartNo", "Part no", ftInteger, 0},
      {"Products", "Description", "Product", ftString, 30},
      {"Products", "Price", "Price", ftBCD, 0},
      // Virtual fields.
      {"", "Order_Details.Qty * Products.Price", "Item price", ftFloat, 0},
      {"", "sum(Order_Details.Qty)", "Quantity sold", ftInteger, 0},
  };
  auto model = std::make_unique<TJDBStructure>();
  const std::size_t inQuery = model->AddOperator("InQuery", "is in the sub-query", "@f in (@1)", "", GeneralFieldTypes);
  model->GetOperator(inQuery).SetValueKind(vkSubQuery);
  for (const std::string_view table : {"Customers", "Orders", "Order Details", "Products"}) {
    model->AddTable(table, table);
  }
  for (const TFieldRow& row : Fields) {
    TDSTable* table = row.table.empty() ? nullptr : model->TableByName(tnAlias, row.table);
    const std::size_t index =
        model->AddField(table != nullptr ? jfkData : jfkVirtual, row.expr, row.displayName, table);
    TDSField& field = model->GetField(index);
    field.SetFieldType(row.type);
    field.SetFieldSize(row.size);
    field.SetIsAggregate(TJCustomDBStructure::CheckIfAggregate(row.expr));
    field.AddAppliedOperators();
  }
  model->AddLinkByExpr("Orders.CustNo = Customers.CustNo");
  model->AddLinkByExpr("Order_Details.OrderNo = Orders.OrderNo");
  model->AddLinkByExpr("Order_Details.PartNo = Products.PartNo");
  for (const auto& [format, expr, type] :
       {std::tuple("Orders that have not been shipped", "Orders.ShipDate is null", ftUnknown),
        std::tuple("Sold between @ and @", "Orders.SaleDate between @1 and @2", ftDate)}) {
    auto condition = std::make_unique<TDSCondition>(model.get());
    condition->SetDisplayFormat(format);
    condition->SetSQLExpr(expr);
    for (TDSValue& value : condition->Values()) value.SetDataType(type);
    model->Conditions().Add(std::move(condition));
  }
  return model;
}

/// The field of that full name, or of that display name where it is a virtual one.
inline TDSField& FieldOf(const TJCustomDBStructure& model, std::string_view name) {
  TDSField* field = model.FieldByName(fnFullName, name);
  if (field == nullptr) field = model.FieldByName(fnDisplayName, name);
  if (field == nullptr) throw EListError("the test model has no field \"%s\"", {name});
  return *field;
}

inline TDSOperator& OperatorOf(const TJCustomDBStructure& model, std::string_view name) {
  TDSOperator* op = model.OperatorByName(name);
  if (op == nullptr) throw EListError("the test model has no operator \"%s\"", {name});
  return *op;
}

}  // namespace tolvi
