// Rows that hold SQL: what may stand in them, and how they come into statements.
#include <functional>
#include <random>
#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/explain.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/querycheck.h>
#include <tolvi/query/sqlfragment.h>

namespace tolvi {
namespace {

using namespace std::string_view_literals;

TEST(SQLFragments, AreOneClosedExpression) {
  const std::string_view fine[] = {
      "a = 1",
      "lower(o.City) like '%it''s; -- (?)%' escape '\\'",
      "\"a (b\" = 1 and \"it's\"\"\" <> ''",
      "[Order (old)].x = arr[1]",
      "`Order (old)` = 1",
      "x::int = 1 and y :: text = 'a'",
      "exists (select 1, 2 from t where t.a = o.a group by t.b order by t.c)",
      "case when a then (b) else c end = 1",
      "d > {d '2024-01-01'} and n = n'x' and b = x'41' and e = e'\\n'",
      "v$session.x = T.a$1 and t.order <> t.where",
      "day between #2024-01-31# and #12/31/2024 10:30#",
      "tsv @@ q and a @> b and 1 = 1.5e3",
      "(a, b) in ((1, 2))",
      "Größe = 'Łódź'",
  };
  for (const std::string_view sql : fine) EXPECT_EQ(FragmentFault(sql), "") << sql;
  const std::pair<std::string_view, std::string_view> faults[] = {
      {"", "it is empty"},
      {" \n ", "it is empty"},
      {"a = (1", "a ( is not closed"},
      {"a = 1)", "a ) closes nothing"},
      {"(a = 1]", "a ] closes nothing"},
      {"1 = 1) or (1 = 1", "a ) closes nothing"},
      {"a = 'x", "a ' is not closed"},
      {"a = \"x", "a \" is not closed"},
      {"a = `x", "a ` is not closed"},
      {"a = [x", "a [ is not closed"},
      {"a = 1 -- and", "it holds a comment: take it out"},
      {"a /* */ = 1", "it holds a comment: take it out"},
      {"a = 1 /*", "it holds a comment: take it out"},
      {"a = 1; drop table t", "it holds a \";\""},
      {"a = 1, b = 2", "it holds a comma outside brackets"},
      {"a = ?", "it holds a place for a value, ?: write the value itself"},
      {"a = :Name", "it holds a place for a value, :Name: write the value itself"},
      {"a = :1", "it holds a place for a value, :1: write the value itself"},
      {"a:::b", "it holds a place for a value, :b: write the value itself"},
      {"a = $1", "it holds a place for a value, $1: write the value itself"},
      {"a = @Name", "it holds a place for a value, @Name: write the value itself"},
      {"a = @@version", "it holds a place for a value, @version: write the value itself"},
      {"a = $$ ) $$", "it holds a \"$\", which quotes in some databases"},
      {"a = $tag$ ) $tag$", "it holds a \"$\", which quotes in some databases"},
      {"a = 1 # and", "it holds a \"#\", which begins a comment in some databases"},
      {"a = #1#\n", "it holds a \"#\", which begins a comment in some databases"},
      {"a = ## and b", "it holds a \"#\", which begins a comment in some databases"},
      {"a = 1 union select b", "it holds \"union\", which is no part of a condition"},
      {"select 1", "it holds \"select\", which is no part of a condition"},
      {"a = 1 Order By b", "it holds \"By\", which is no part of a condition"},
      {"a = q'!x!'", "it holds a literal with q before it: write it in single quotes alone, doubled inside"},
      {"a = E'\\''' or b = ''", "it holds a literal with E before it: write it in single quotes alone, doubled inside"},
      {"a = '\0'"sv, "it holds a zero byte"},
      {"`a \"b` = c\"", "a \" is not closed"},
      {"[it's] = 1", "a ' is not closed"},
  };
  for (const auto& [sql, fault] : faults) EXPECT_EQ(FragmentFault(sql), fault) << sql;
  EXPECT_EQ(FragmentFault("[it's] = 1", '['), "") << "the model tells that it is a name";
  EXPECT_EQ(FragmentFault("`it's` = 1", '`'), "");
  EXPECT_NE(FragmentFault(std::string(100000, '(')), "");
  EXPECT_EQ(FragmentFault(std::string(100000, '(') + "1" + std::string(100000, ')')), "");
}

/// Whether the text leaves brackets and quotes as it found them, read by the rules of one database.
struct TDialect {
  bool backticks, brackets, hashComments;

  bool Closes(std::string_view sql) const {
    int depth = 0;
    for (std::size_t at = 0; at < sql.size(); ++at) {
      const char c = sql[at];
      char closer = c == '\'' || c == '"' ? c : '\0';
      if (c == '`' && backticks) closer = '`';
      if (c == '[' && brackets) closer = ']';
      if (c == ';' || sql.substr(at, 2) == "--" || sql.substr(at, 2) == "/*") return false;
      if (c == '#' && hashComments) at = std::min(sql.find('\n', at), sql.size());
      if (c == '(') ++depth;
      if (c == ')' && --depth < 0) return false;
      if (closer == '\0') continue;
      do {
        at = sql.find(closer, at + 1);
        if (at == std::string_view::npos) return false;
      } while (at + 1 < sql.size() && sql[at + 1] == closer && ++at > 0);
    }
    // What a comment cut off at the end is an error to the database, not another statement.
    return depth == 0 || (hashComments && sql.find('#') != std::string_view::npos);
  }
};

TEST(SQLFragments, ThatPassAreClosedToEveryDatabase) {
  constexpr std::string_view pieces[] = {"a", "=",  "1",    " ",  "'",  "''", "\"", "`", "[", "]",  "(",
                                         ")", "--", " or ", "/*", "*/", "#",  "\n", ";", "{", "\\", "x"};
  const unsigned seed = std::random_device()();
  std::mt19937 random(seed);
  int passed = 0;
  for (int run = 0; run < 20000; ++run) {
    std::string sql = "a";
    for (std::size_t count = random() % 9 + 1; count > 0; --count) sql += pieces[random() % std::size(pieces)];
    if (!FragmentFault(sql).empty()) continue;
    ++passed;
    for (int dialect = 0; dialect < 8; ++dialect) {
      ASSERT_TRUE((TDialect{(dialect & 1) != 0, (dialect & 2) != 0, (dialect & 4) != 0}.Closes(sql)))
          << "seed " << seed << ", dialect " << dialect << ": " << sql;
    }
  }
  EXPECT_GT(passed, 300);
}

class SQLRow : public testing::Test {
 protected:
  SQLRow() {
    panel.SetDBStruct(model.get());
    panel.SetActive(true);
    panel.SetAllowSQLFragments(true);
    panel.RFields().Add(FieldOf(*model, "Customers.Company"));
  }
  TSQLFragment& Add(std::string_view sql) { return panel.RootBracket().AddSQLFragment(sql); }
  TSimpleCond& AddCity() {
    return panel.AddSimpleCond(panel.RootBracket(), FieldOf(*model, "Customers.City"), OperatorOf(*model, "Equal"),
                               "x");
  }
  /// What follows WHERE, or the error.
  std::string Where() {
    std::string text;
    const std::string error = ErrorOf([&] { text = panel.GetQueryText(); });
    if (!error.empty()) return error;
    return ReplaceStr(text.substr(std::min(text.find("WHERE"), text.size())), CrLf, "|");
  }
  static std::string ErrorOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const EJQueryPanelError& error) {
      return error.Message();
    }
    return {};
  }
  std::string Findings() {
    std::string lines;
    for (const TCheckFinding& finding : CheckQuery(panel)) {
      lines += (finding.Severity == csError ? "error " : "warning ") + finding.Place + ": " + finding.Text + "\n";
    }
    return lines;
  }

  std::unique_ptr<TJDBStructure> model = OrdersModel();
  TJQueryPanel panel;
};

TEST_F(SQLRow, StandsInTheStatementAsWritten) {
  TSQLFragment& fragment = panel.AddSQLFragment(panel.RootBracket(), " '@1' <> '@f@t@m' \n");
  EXPECT_EQ(panel.GetCurrentRow(), &fragment);
  AddCity();
  EXPECT_EQ(Where(), "WHERE|(|'@1' <> '@f@t@m' AND|Customers.City = 'x'|)");
  const TBoundStatement bound = panel.GetBoundStatement();
  EXPECT_NE(bound.SQL.find("'@1' <> '@f@t@m' AND\r\nCustomers.City = ?"), std::string::npos) << bound.SQL;
  EXPECT_EQ(bound.Values.size(), 1U);
  fragment.SetSQLExpr("Orders.Total > 5");
  EXPECT_EQ(Where(), "WHERE|(|Orders.Total > 5 AND|Customers.City = 'x'|)");
  panel.OnBuildSQL = [](TFilterCond& condition, std::string& sql) {
    if (condition.GetRowType() == frtSQLFragment) sql = "not " + sql;
  };
  panel.SetSQLOptions({soBracketConditions, soFilter});
  EXPECT_EQ(Where(), "WHERE|(|(not Orders.Total > 5) AND|(Customers.City = 'x')|)");
}

TEST_F(SQLRow, IsBracketedWhereItWouldMixWithItsNeighbours) {
  const std::pair<std::string_view, bool> cases[] = {
      {"1 = 1 or 1 = 2", true},
      {"1 = 1 XOR 1 = 2", true},
      {"a || b = 'x'", true},
      {"x between 1", true},
      {"case when 1 = 1 then 1", true},
      {"x between 1 and 2 or y", true},
      {"(1 = 1 or 1 = 2)", false},
      {"x between 1 and 2 and y between 3 and 4", false},
      {"case when a or b then 1 end = 1", false},
      {"'a or b' = \"c or d\"", false},
      {"t.or = 1 and orders = 2", false},
  };
  TSQLFragment& fragment = Add("1 = 1");
  for (const auto& [sql, brackets] : cases) {
    fragment.SetSQLExpr(sql);
    const std::string text(sql);
    EXPECT_EQ(Where(), "WHERE|(|" + (brackets ? "(" + text + ")" : text) + "|)") << sql;
  }
}

TEST_F(SQLRow, BringsTheTablesThatItMentions) {
  TSQLFragment& fragment = Add("1 = 1");
  EXPECT_TRUE(fragment.GetTables().Empty());
  EXPECT_EQ(fragment.GetValueCount(), 0);
  fragment.SetSQLExpr("Products.Price > Orders.Total");
  EXPECT_EQ(fragment.GetTables().GetCommaText(), "Products,Orders");
  EXPECT_EQ(Where(), "WHERE|(|Products.Price > Orders.Total|)");
  EXPECT_EQ(panel.QResult().RTables().Count(), 4U) << "with the one on the way";
  panel.BuildFilters();
  ASSERT_EQ(panel.TableFilters().Count(), 1U);
  EXPECT_EQ(panel.TableFilters()[0].Table->GetTableName(), "Products");
  const std::string sub = "exists (select 1 from Products, Customers c where c.City = Products.Price and Orders.X = 1)";
  fragment.SetSQLExpr("Customers.City = 'x' or " + sub);
  EXPECT_EQ(fragment.GetTables().GetCommaText(), "Customers,Orders") << "not those of the select";
  fragment.SetSQLExpr("Products.Price > Orders.Total");
  // Models and their tables come and go.
  model->TableByName(tnAlias, "Orders")->SetTableAlias("o");
  EXPECT_EQ(fragment.GetTables().GetCommaText(), "Products,Orders") << "by its name";
  const auto other = OrdersModel();
  panel.SetDBStruct(other.get());
  EXPECT_TRUE(&fragment.GetTables()[0] == other->TableByName(tnAlias, "Products"));
  other->TableByName(tnAlias, "Orders")->SetTableName("Sales");
  other->TableByName(tnAlias, "Orders")->SetTableAlias("Sales");
  EXPECT_EQ(fragment.GetTables().GetCommaText(), "Products");
  other->ClearStructure();
  EXPECT_TRUE(fragment.GetTables().Empty());
}

TEST_F(SQLRow, BelongsToHavingIfTold) {
  TSQLFragment& fragment = Add("sum(Orders.Total) > 5 or 1 = 2");
  AddCity();
  fragment.SetHaving(true);
  EXPECT_TRUE(fragment.GetIsHavingRow());
  EXPECT_EQ(Where(), "WHERE|(|Customers.City = 'x'|)|HAVING ( (sum(Orders.Total) > 5 or 1 = 2) )");
}

TEST_F(SQLRow, IsBuiltOnlyWhereItIsAllowed) {
  Add("1 = 1");
  TFilterBracket& bracket = panel.AddBracket(panel.RootBracket());
  TSQLFragment& inner = bracket.AddSQLFragment("Orders.Total > 5");
  panel.RootBracket().GetRow(0).SetEnabled(false);
  panel.BuildQuery();
  EXPECT_EQ(Findings(),
            "warning Row .1: holds SQL: it is not bound, and the statement depends on the database\n"
            "warning Row .2.1: holds SQL: it is not bound, and the statement depends on the database\n");
  EXPECT_EQ(Explain(panel)[1] + "|" + Explain(panel)[3], "  (off) SQL: 1 = 1|    SQL: Orders.Total > 5");
  panel.SetAllowSQLFragments(false);
  const std::string error =
      "SQL \"Orders.Total > 5\" is not allowed here: allow SQL in queries, or replace the row by conditions";
  EXPECT_EQ(Where(), error);
  EXPECT_EQ(ErrorOf([&] { panel.GetBoundStatement(); }), error);
  EXPECT_EQ(ErrorOf([&] { panel.BuildFilters(); }), error);
  EXPECT_EQ(Findings(),
            "warning Row .1: " + ReplaceStr(error, "Orders.Total > 5", "1 = 1") + "\nerror Row .2.1: " + error + "\n");
  inner.SetEnabled(false);
  EXPECT_EQ(Where(), "");
}

TEST_F(SQLRow, OfASubQueryIsAllowedWithTheQueryRoundIt) {
  TJQueryPanel inner;
  inner.SetDBStruct(model.get());
  inner.RFields().Add(FieldOf(*model, "Orders.CustNo"));
  inner.AddSQLFragment(inner.RootBracket(), "Orders.Total > 5");
  TStrings lines;
  inner.SaveToStrings(lines);
  panel.AddSimpleCond(panel.RootBracket(), FieldOf(*model, "Customers.CustNo"), OperatorOf(*model, "InQuery"), "q")
      .SetSubQuery(lines);
  EXPECT_NE(Where().find("Orders.Total > 5"), std::string::npos) << Where();
  EXPECT_EQ(Findings(),
            "warning Row .1, sub-query, Row .1: holds SQL: it is not bound, and the statement depends on the "
            "database\n");
  panel.SetAllowSQLFragments(false);
  EXPECT_EQ(Where(),
            "SQL \"Orders.Total > 5\" is not allowed here: allow SQL in queries, or replace the row by "
            "conditions");
}

TEST_F(SQLRow, RefusesWhatIsNoCondition) {
  TSQLFragment& fragment = Add("1 = 1");
  const std::string error = "SQL \"1 = 1) or (1 = 1\" is no condition: a ) closes nothing";
  const std::string sql = " 1 = 1) or (1 = 1 ";
  for (const std::function<void()>& action : std::initializer_list<std::function<void()>>{
           [&] { fragment.SetSQLExpr(sql); }, [&] { panel.AddSQLFragment(panel.RootBracket(), sql); },
           [&] { panel.RootBracket().InsertSQLFragmentByNum(1, sql); }}) {
    EXPECT_EQ(ErrorOf(action), error);
  }
  EXPECT_EQ(ErrorOf([&] { fragment.SetSQLExpr(" "); }), "SQL \"\" is no condition: it is empty");
  EXPECT_EQ(panel.RootBracket().GetRowCount(), 1U);
  EXPECT_EQ(fragment.GetSQLExpr(), "1 = 1");
  panel.RootBracket().InsertSQLFragmentByNum(1, "2 = 2");
  EXPECT_EQ(Where(), "WHERE|(|2 = 2 AND|1 = 1|)");
}

TEST_F(SQLRow, IsStoredInTheQueryText) {
  Add("a = 'x'\r\nor b = '\\n'").SetEnabled(false);
  Add("sum(Orders.Total) > 5").SetHaving(true);
  const std::string text = panel.SaveToText();
  EXPECT_EQ(text.substr(text.find("[Row.1]")),
            "[Row.1]\r\nRowType=3\r\nEnabled=0\r\nSQL=a = 'x' or b = '\\n'\r\n"
            "SQL:escaped=a = 'x'\\r\\nor b = '\\\\n'\r\n\r\n"
            "[Row.2]\r\nRowType=3\r\nEnabled=1\r\nSQL=sum(Orders.Total) > 5\r\nHaving=1\r\n\r\n");
  const std::string sql = panel.GetQueryText();
  panel.LoadFromText(text);
  EXPECT_EQ(panel.SaveToText(), text);
  EXPECT_EQ(panel.GetQueryText(), sql);
  EXPECT_TRUE(panel.LoadWarnings().empty());
}

TEST_F(SQLRow, OfATextThatIsNoConditionIsKeptAndNeverBuilt) {
  const std::string text =
      "[Main]\r\nVersion=3.6\r\n[Row]\r\nRowType=1\r\nRowCount=2\r\n[Row.1]\r\nRowType=3\r\nSQL=1 = 1) or (1 = 1\r\n"
      "[Row.2]\r\nRowType=3\r\n";
  panel.LoadFromText(text);
  const std::string error = "SQL \"1 = 1) or (1 = 1\" is no condition: a ) closes nothing";
  ASSERT_EQ(panel.LoadWarnings().size(), 2U);
  EXPECT_EQ(panel.LoadWarnings()[0].RowID + " " + panel.LoadWarnings()[0].Text, ".1 " + error);
  EXPECT_EQ(panel.LoadWarnings()[1].Text, "SQL \"\" is no condition: it is empty");
  EXPECT_EQ(Where(), error);
  EXPECT_EQ(Findings(), "error Row .1: " + error + "\nerror Row .2: SQL \"\" is no condition: it is empty\n");
  EXPECT_NE(panel.SaveToText().find("SQL=1 = 1) or (1 = 1\r\n"), std::string::npos);
  auto& fragment = static_cast<TSQLFragment&>(panel.RootBracket().GetRow(0));
  EXPECT_EQ(ErrorOf([&] { fragment.SetSQLExpr(fragment.GetSQLExpr()); }), error);
  fragment.SetSQLExpr("Orders.Total > 1");
  panel.RootBracket().GetRow(1).SetEnabled(false);
  EXPECT_EQ(Where(), "WHERE|(|Orders.Total > 1|)");
}

}  // namespace
}  // namespace tolvi
