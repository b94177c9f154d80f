#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "databases.h"
#include "shoploader.h"
#include "support/shop_reference.h"
#include <tolvi/connect/queryrunner.h>
#include <tolvi/connect/sqldbinfo.h>
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/formatpresets.h>
#include <tolvi/model/modelfill.h>
#include <tolvi/query/querpnl.h>

// Every sample query gives the same rows, in the same order, on every kind of database: in every syntax, with bound
// values and with literals, with and without options. What is right, SQLite's answer to the bound statement with joins
// says; the tests of the samples compare that one with statements written by hand.

namespace tolvi {
namespace {

namespace fs = std::filesystem;

const fs::path Shop = fs::path(TOLVI_SOURCE_DIR) / "samples/shop";

// ---- The model for each kind ----------------------------------------------------------------------------------------

/// What a host changes in the model, which is SQLite's, for PostgreSQL and MySQL: by kind.
struct TWords {
  std::string_view Texts[3];
};
constexpr TWords Dialects[] = {
    {"julianday(date(Orders.ShippedAt))", "date(Orders.ShippedAt)", "to_days(Orders.ShippedAt)"},
    {"julianday(Orders.OrderDate)", "Orders.OrderDate", "to_days(Orders.OrderDate)"},
    {"julianday(Orders.RequiredDate)", "Orders.RequiredDate", "to_days(Orders.RequiredDate)"},
    {"cast(substr(Orders.OrderDate, 1, 4) as integer)", "cast(extract(year from Orders.OrderDate) as integer)",
     "year(Orders.OrderDate)"},
    {"substr(Orders.OrderDate, 1, 7)", "to_char(Orders.OrderDate, 'YYYY-MM')",
     "date_format(Orders.OrderDate, '%Y-%m')"},
    {"cast(substr(@f, 1, 4) as integer)", "extract(year from @f)", "year(@f)"},
    // SQLite's LIKE ignores the case of letters.
    {"@f like '", "@f ilike '", "@f collate utf8mb4_general_ci like '"},
    // PostgreSQL made "orderid" of the OrderID in CREATE TABLE, and does so wherever no quotes stand.
    {"QuoteFields=1", "QuoteFields=0", "QuoteFields=1"},
};

void LoadModel(TJDBStructure& model, TDatabaseKind kind) {
  std::string text = ReadFile(Shop / "shop.model");
  for (const TWords& words : Dialects) {
    EXPECT_NE(text.find(words.Texts[dkSQLite]), std::string::npos) << words.Texts[dkSQLite];
    text = ReplaceStr(text, words.Texts[dkSQLite], words.Texts[kind]);
  }
  model.SetStructString(text);
  ApplyFormatPreset(model.SQLFormats(), KindName(kind));
}

// ---- Answers --------------------------------------------------------------------------------------------------------

enum TAnswer : std::uint8_t { anSame, anOther, anRefused };

using TKinds = TSet<TDatabaseKind>;
constexpr TKinds AllKinds{dkSQLite, dkPostgreSQL, dkMySQL};

/// Queries, by number, that are not answered as the others are.
struct TException {
  TKinds Kinds;
  TSQLSyntax Syntax;
  bool LiteralsOnly;
  TAnswer Answer;
  std::string_view Queries;
};
constexpr std::string_view WithDates = "01 02 04 10 12 15 19 20 21 23 27 28 34 35 36 37 38";
constexpr TException Exceptions[] = {
    // Comma style keeps no rows without a partner, of which the query warns, or marks them with "(+)".
    {AllKinds, ssSQL1, false, anOther, "07"},
    {AllKinds, ssOracle, false, anRefused, "07"},
    // There is no TO_DATE; that of PostgreSQL gives days alone, which compare with no time and lack that of a
    // date-time.
    {{dkSQLite, dkMySQL}, ssOracle, true, anRefused, WithDates},
    {{dkPostgreSQL}, ssOracle, true, anRefused, "15"},
    {{dkPostgreSQL}, ssOracle, true, anOther, "27"},
    // DATE '2025-01-31' is standard SQL, which SQLite does not read.
    {{dkSQLite}, ssNexusDB, true, anRefused, WithDates},
};

TAnswer ExpectedAnswer(TDatabaseKind kind, TSQLSyntax syntax, bool hasLiterals, const std::string& query) {
  const auto* found = std::find_if(std::begin(Exceptions), std::end(Exceptions), [&](const TException& exception) {
    return exception.Kinds.Contains(kind) && exception.Syntax == syntax && (hasLiterals || !exception.LiteralsOnly) &&
           exception.Queries.find(query.substr(0, 2)) != std::string_view::npos;
  });
  return found == std::end(Exceptions) ? anSame : found->Answer;
}

/// A row is its cells, each followed by "|": numbers with ten digits, for sums of fractions, and booleans as numbers.
using TRows = std::vector<std::string>;

std::string Cell(const TSqlValue& value) {
  if (value.Kind == svNull) return "<null>";
  if (value.Kind == svBoolean) return value.Text == "true" ? "1" : "0";
  if (value.Kind != svNumber) return value.Text;
  char digits[32];
  std::snprintf(digits, sizeof digits, "%.10g", StrToFloat(value.Text));
  return digits;
}

/// A sample query whose parameters have values, on one of the databases.
class TShop final {
 public:
  explicit TShop(TDatabaseKind kind) : FConnection(ShopDatabase(kind), {.ReadOnly = true}) {
    LoadModel(FModel, kind);
    FPanel.SetDBStruct(&FModel);
  }

  TJQueryPanel& Load(const std::string& query) {
    FPanel.LoadFromFile(Shop / "queries" / (query + ".qry"));
    for (const auto& [name, value] : TReference(query).Params) FPanel.QResult().FindParameter(name)->SetValue(value);
    return FPanel;
  }

  TRows BoundRows() {
    FRunner.Run(FPanel);
    return Rows();
  }

  /// The parameters become plain values.
  TRows LiteralRows() {
    TQueryResult& result = FPanel.QResult();
    while (result.GetParamCount() > 0) result.DeleteParameter(result.GetParam(0));
    FRunner.Run(TBoundStatement{FPanel.GetQueryText(), {}});
    return Rows();
  }

 private:
  TRows Rows() {
    TRows rows;
    while (FRunner.Next()) {
      std::string& row = rows.emplace_back();
      for (std::size_t i = 0; i < FRunner.Columns().size(); ++i) row.append(Cell(FRunner.Value(i))).append("|");
    }
    return rows;
  }

  TSqlConnection FConnection;
  TJQueryRunner FRunner{FConnection.GetName()};
  TJDBStructure FModel;
  TJQueryPanel FPanel;
};

std::vector<std::string> QueryNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(Shop / "queries")) names.push_back(entry.path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

class SameAnswers : public testing::TestWithParam<TDatabaseKind> {
 protected:
  /// Asks the query that is loaded and tells how the rows compare.
  TAnswer Ask(bool hasLiterals, const TRows& expected) {
    FReport.clear();
    try {
      const TRows rows = hasLiterals ? Database.LiteralRows() : Database.BoundRows();
      if (rows == expected) return anSame;
      FReport = std::to_string(rows.size()) + " rows for " + std::to_string(expected.size());
      const auto [row, wanted] = std::mismatch(rows.begin(), rows.end(), expected.begin(), expected.end());
      if (row != rows.end()) FReport += "; first other row:\n" + *row;
      if (wanted != expected.end()) FReport += "\nexpected:\n" + *wanted;
      return anOther;
    } catch (const EConnectError& error) {
      FReport = error.Message();
      return anRefused;
    }
  }

  TShop Database{GetParam()};
  std::string FReport;
};
INSTANTIATE_TEST_SUITE_P(On, SameAnswers, testing::Values(dkSQLite, dkPostgreSQL, dkMySQL),
                         [](const auto& test) { return std::string(KindName(test.param)); });

TEST_P(SameAnswers, AreGivenToEveryQueryInEverySyntaxWithBoundValuesAndWithLiterals) {
  constexpr TSQLOptions EveryOption{soQuoteAliases, soBracketJoins, soBracketConditions, soSortByNames};
  TShop reference(dkSQLite);
  for (const std::string& query : QueryNames()) {
    reference.Load(query);
    const TRows expected = reference.BoundRows();
    for (const TSQLSyntax syntax : {ssSQL1, ssSQL2, ssOracle, ssAccess, ssNexusDB}) {
      for (const TSQLOptions options : {TSQLOptions{}, EveryOption}) {
        TJQueryPanel& panel = Database.Load(query);
        panel.SetSQLSyntax(syntax);
        panel.SetSQLOptions(panel.GetSQLOptions() + options);
        for (const bool hasLiterals : {false, true}) {
          const TAnswer answer = ExpectedAnswer(GetParam(), syntax, hasLiterals, query);
          EXPECT_EQ(Ask(hasLiterals, expected), answer)
              << query << " in syntax " << int{syntax} << ": " << FReport << "\n"
              << panel.GetQueryText();
          EXPECT_EQ(panel.QResult().Warnings().empty(), !(syntax == ssSQL1 && answer == anOther)) << query;
        }
      }
    }
  }
}

// ---- Catalogues -----------------------------------------------------------------------------------------------------

/// What a model filled from the database knows, in small letters, without the further aliases of tables.
std::set<std::string> FilledModel(TDatabaseKind kind) {
  const TSqlConnection connection(ShopDatabase(kind), {.ReadOnly = true});
  TJSqlDBInfo info(connection.GetName());
  TJDBStructure model;
  FillModel(model, info, {});
  std::set<std::string> lines;
  for (std::size_t i = 0; i < model.Fields().Count(); ++i) {
    const TDSField& field = model.GetField(i);
    TFieldType type = field.GetFieldType();
    // SQLite counts all keys that are whole numbers. Only MySQL's TEXT is no text like another.
    if (type == ftAutoInc) type = ftInteger;
    if (type == ftMemo) type = ftString;
    lines.insert(FoldCase(field.GetTable()->GetTableName() + "." + field.GetFieldExpr()) + ": " +
                 std::string(FldTypeToStr(type)) + " " + std::to_string(field.GetFieldSize()));
  }
  for (const TDSLink& link : model.Links()) {
    lines.insert(FoldCase(link.GetTable1()->GetTableName() + "." + link.GetFields1().Joined("+") + " = " +
                          link.GetTable2()->GetTableName() + "." + link.GetFields2().Joined("+")));
  }
  return lines;
}

TEST_P(SameAnswers, AreGivenByTheCatalogues) {
  const std::set<std::string> filled = FilledModel(GetParam());
  EXPECT_EQ(filled, FilledModel(dkSQLite));
  EXPECT_TRUE(filled.contains("order lines.discount: ftBCD 2"));
  EXPECT_TRUE(filled.contains("returns.orderid+lineno = order lines.orderid+lineno"));
  EXPECT_TRUE(filled.contains("orders.shippingaddressid = addresses.addressid"));
}

}  // namespace
}  // namespace tolvi
