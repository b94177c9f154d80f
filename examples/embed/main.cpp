// A model of two linked tables, a query on it, and the statement. Exits with 1 when the statement is another one.
#include <iostream>

#include <tolvi/query/querpnl.h>

using namespace tolvi;

int main() {
  TJDBStructure model;
  TDSTable& customers = model.GetTable(model.AddTable("Customers", "Customers"));
  TDSTable& orders = model.GetTable(model.AddTable("Orders", "Orders"));
  model.AddLinkByExpr("Orders.CustomerID = Customers.CustomerID");
  TDSField& company = model.GetField(model.AddField(jfkData, "Company", "Company", &customers));
  TDSField& total = model.GetField(model.AddField(jfkData, "Total", "Total", &orders));
  total.SetFieldType(ftCurrency);

  TJQueryPanel query;
  query.SetDBStruct(&model);
  query.SetActive(true);
  query.RFields().Add(company);
  query.AddSimpleCond(query.RootBracket(), total, *model.OperatorByName("GreaterThan"), "1000");

  const std::string sql = query.GetSQL().Joined("\n");
  std::cout << sql << '\n';
  return sql == "SELECT Customers.Company\n"
                "FROM \n"
                "     Customers INNER JOIN  Orders ON Orders.CustomerID = Customers.CustomerID\n"
                "WHERE\n"
                "(\n"
                "Orders.Total >1000\n"
                ")"
             ? 0
             : 1;
}
