#include <string>
#include <string_view>

#include "fuzz/targets.h"
#include "support/models.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/query/explain.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/querycheck.h>

namespace tolvi {
namespace {

/// The statement, with markers too, or why there is none.
std::string StatementOf(TJQueryPanel& panel) {
  try {
    return panel.GetQueryText() + "\n" + panel.GetBoundStatement().SQL;
  } catch (const EException& error) {
    return error.Message();
  }
}

}  // namespace

void FuzzQuery(std::string_view text) {
  static TJCustomDBStructure& model = *OrdersModel().release();
  TJQueryPanel panel;
  panel.SetDBStruct(&model);
  const std::string before = panel.SaveToText();
  try {
    panel.LoadFromText(text);
  } catch (const EException&) {
    Require(panel.SaveToText() == before, "a query that cannot be read changes nothing");
    return;
  }
  const std::string statement = StatementOf(panel);
  Explain(panel);
  CheckQuery(panel);

  panel.SetSaveTitles(true);
  const std::string written = panel.SaveToText();
  TJQueryPanel copy;
  copy.SetDBStruct(&model);
  copy.SetSaveTitles(true);
  copy.LoadFromText(written);
  Require(copy.SaveToText() == written, "a query that was written reads as the same query");
  Require(StatementOf(copy) == statement, "the copy has the same statement");
}

}  // namespace tolvi
