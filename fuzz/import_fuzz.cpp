#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "fuzz/targets.h"
#include "support/models.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {
namespace {

/// The model of orders; Customers also stand as "Payers", and more conditions can be found by their SQL.
std::unique_ptr<TJDBStructure> ImportModel() {
  std::unique_ptr<TJDBStructure> model = OrdersModel();
  TDSTable& payers = model->GetTable(model->AddTable("Customers", "Payers"));
  payers.SetTableAlias("Payers");
  model->AddField(jfkData, "Company", "Payer", &payers);
  model->AddField(jfkData, "PayerNo", "Payer no", model->TableByName(tnAlias, "Orders"));
  model->AddLinkByExpr("Orders.PayerNo = Payers.CustNo", ltOuterLeft);
  const std::size_t anyCase = model->AddOperator("EqualAnyCase", "is", "@f = '@1'", "", GeneralFieldTypes);
  model->GetOperator(anyCase).SetCaseInsensative(true);
  const std::size_t inYear = model->AddOperator("InYear", "is in the year", "extract(year from @f) = @1", "", {ftDate});
  model->GetOperator(inYear).SetExprType(ftInteger);
  for (const auto& [format, expr] : {std::pair("Small or early", "(Orders.Total < 5 or Orders.OrderNo < 5)"),
                                     std::pair("Not both", "not (Orders.Total = 1 and Orders.OrderNo = 1)")}) {
    auto condition = std::make_unique<TDSCondition>(model.get());
    condition->SetDisplayFormat(format);
    condition->SetSQLExpr(expr);
    model->Conditions().Add(std::move(condition));
  }
  return model;
}

struct TImported {
  bool Done = false;
  std::string Text, Statement;
};

class TImporter {
 public:
  explicit TImporter(bool fragments) {
    static TJDBStructure& model = *ImportModel().release();
    panel.SetDBStruct(&model);
    panel.SetActive(true);
    panel.SetAllowSQLFragments(fragments);
  }

  TImported Faithful(std::string_view sql, bool approximate = false) {
    const std::string before = panel.SaveToText();
    TSQLImportOptions options;
    options.Faithful = true;
    options.Approximate = approximate;
    try {
      panel.ParseSQL(sql, options);
    } catch (const ESQLImportError& error) {
      Require(error.Line() >= 1 && error.Column() >= 1 && !error.Reason().empty(), "errors name a place and a reason");
      Require(panel.SaveToText() == before, "a statement that is refused changes nothing");
      return {};
    }
    Require(approximate || panel.ImportWarnings().empty(), "what is kept needs no warning");
    return {panel.ImportWarnings().empty(), panel.SaveToText(), approximate ? "" : panel.GetQueryText()};
  }

  TJQueryPanel panel;
};

/// Whether the query keeps SQL as it stands, which may be anything: a row of SQL, or a column that is no field.
bool HoldsSQL(std::string_view text) {
  constexpr std::string_view Row = "RowType=3", Formula = "Formula=";
  if (text.find(Row) != std::string_view::npos) return true;
  for (std::size_t at = text.find(Formula); at != std::string_view::npos; at = text.find(Formula, at)) {
    text.remove_prefix(at + Formula.size());
    at = 0;
    if (!text.starts_with("@1\r\n") && !text.starts_with("count(@1)")) return true;
  }
  return false;
}

void ImportPlainly(std::string_view sql) {
  TImporter importer(false);
  try {
    importer.panel.ParseSQL(sql);
  } catch (const ESQLParserError&) {
    return;
  } catch (const EListError&) {
    return;
  } catch (const EConvertError&) {
    return;
  }
  const std::string written = importer.panel.SaveToText();
  importer.panel.LoadFromText(written);
  Require(importer.panel.SaveToText() == written, "what was imported reads as the same query");
}

void ImportFaithfully(std::string_view sql, bool fragments) {
  TImporter importer(fragments);
  const TImported first = importer.Faithful(sql);
  const TImported approximated = TImporter(fragments).Faithful(sql, true);
  Require(approximated.Done == first.Done, "approximating warns of what would be refused, and of nothing else");
  if (!first.Done) return;
  Require(approximated.Text == first.Text, "approximating changes nothing that can be kept");

  importer.panel.LoadFromText(first.Text);
  Require(importer.panel.SaveToText() == first.Text, "what was imported reads as the same query");
  Require(importer.panel.GetQueryText() == first.Statement, "it builds the same statement");
  const TImported again = importer.Faithful(first.Statement);
  if (!HoldsSQL(first.Text)) {
    Require(again.Done, "the statement of a query can be imported");
    Require(again.Statement == first.Statement, "imported again, it builds the same statement");
  } else if (again.Done) {
    const TImported third = importer.Faithful(again.Statement);
    Require(!third.Done || third.Statement == again.Statement, "imported a third time, it builds the same statement");
  }
}

}  // namespace

void FuzzImport(std::string_view sql) {
  ImportPlainly(sql);
  ImportFaithfully(sql, false);
  ImportFaithfully(sql, true);
}

}  // namespace tolvi
