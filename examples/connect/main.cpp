// Opens a database, fills a model from it, loads a query from a folder, runs it and prints its rows:
//   connect sqlite:shop.sqlite examples/connect/queries "Customers per city"
// A program that lives longer keeps the model, too, and fills it again when the database has changed.
#include <iostream>

#include <tolvi/connect/queryrunner.h>
#include <tolvi/connect/sqlconnection.h>
#include <tolvi/connect/sqldbinfo.h>
#include <tolvi/model/formatpresets.h>
#include <tolvi/model/modelfill.h>
#include <tolvi/query/qpbaselink.h>
#include <tolvi/store/fileqrybase.h>

using namespace tolvi;

int main(int argc, char** argv) try {
  if (argc != 4) throw EException("usage: connect URL FOLDER QUERY");
  const TSqlConnection connection(ParseConnectionUrl(argv[1]), {.ReadOnly = true});

  TJSqlDBInfo catalogue(connection.GetName());
  TJDBStructure model;
  ApplyFormatPreset(model.SQLFormats(), FormatPresetOf(connection.GetKind()));
  FillModel(model, catalogue, FillOptionsFor(connection.GetKind()));

  TJQueryPanel panel;
  panel.SetDBStruct(&model);
  panel.SetActive(true);
  TJQPBaseLink link(panel);  // the current query of the store comes into the panel
  TJFileQueryBase store;
  store.SetFolder(argv[2]);
  link.SetQueryBase(&store);
  store.Open();
  const int query = store.IndexByName(argv[3]);
  if (query < 0) throw EException("There is no query \"%s\" in %s", {argv[3], argv[2]});
  store.SetItemIndex(query);

  TJQueryRunner runner(connection.GetName());
  runner.Run(panel);
  while (runner.Next()) {
    for (std::size_t i = 0; i < runner.Columns().size(); ++i) std::cout << (i ? "\t" : "") << runner.Value(i).Text;
    std::cout << '\n';
  }
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return 1;
}
