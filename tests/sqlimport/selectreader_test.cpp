#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <tolvi/foundation/errors.h>
#include <tolvi/sqlimport/selectreader.h>

namespace tolvi {
namespace {

// ---- A statement as a compact text ----------------------------------------------------------------------------------

class TPrinter {
 public:
  explicit TPrinter(const TSelectText& text) : FText(text) {}

  std::string Statement(const TSelectStatement& statement) const {
    std::string out = statement.Distinct ? "distinct " : "";
    if (!statement.Top.Empty()) out += "top " + Text(statement.Top) + " ";
    if (statement.AllColumns) out += "*";
    for (const TSelectColumn& column : statement.Columns) {
      if (&column != &statement.Columns.front()) out += ", ";
      out += Text(column.Expr);
      if (!column.Alias.empty()) out += (column.AliasQuoted ? " AS " : " as ") + column.Alias;
    }
    out += " from " + Source(*statement.From, statement);
    if (statement.Where) out += " where " + Condition(*statement.Where);
    for (const TTokenRange& term : statement.GroupBy) out += " group " + Text(term);
    if (statement.Having) out += " having " + Condition(*statement.Having);
    for (const TSelectOrder& order : statement.OrderBy)
      out += (order.Descending ? " down " : " up ") + Text(order.Expr);
    if (!statement.Limit.Empty()) out += " limit " + Text(statement.Limit);
    return out;
  }

  // The operation stands in braces.
  std::string Condition(const TSelectCondition& condition) const {
    std::string out = condition.Negated ? "not " : "";
    if (condition.Kind == TSelectCondition::ckPredicate) {
      EXPECT_TRUE(condition.Nodes.empty());
      out += Text(condition.Left);
      if (condition.Operation.empty()) return out;
      return out + (condition.NotInside ? " {not " : " {") + condition.Operation + "} " + Text(condition.Right);
    }
    EXPECT_GE(condition.Nodes.size(), 2U);
    out += condition.Kind == TSelectCondition::ckAll ? "all(" : "any(";
    for (const TSelectCondition& node : condition.Nodes) {
      EXPECT_TRUE(condition.Range.Begin <= node.Range.Begin && node.Range.End <= condition.Range.End);
      if (&node != &condition.Nodes.front()) out += "; ";
      out += Condition(node);
    }
    return out + ")";
  }

 private:
  std::string Text(TTokenRange range) const {
    EXPECT_TRUE(range.Begin < range.End && range.End <= FText.Count());
    return std::string(FText.TextOf(range));
  }

  std::string Source(const TSelectSource& source, const TSelectStatement& statement) const {
    if (source.Left == nullptr) {
      const TSelectTable& table = statement.Tables.at(source.Table);
      std::string out = table.Names.front();
      for (std::size_t i = 1; i < table.Names.size(); ++i) out += "." + table.Names[i];
      return table.Alias.empty() ? out : out + " " + table.Alias;
    }
    static constexpr const char* Joins[] = {", ", " inner ", " left ", " right ", " full ", " cross ", " natural "};
    std::string out = "(" + Source(*source.Left, statement) + Joins[source.Join] + Source(*source.Right, statement);
    if (source.On) out += " on " + Condition(*source.On);
    for (const std::string& name : source.Using) out += " using " + name;
    return out + ")";
  }

  const TSelectText& FText;
};

std::string Read(std::string_view sql, std::vector<std::string>* skipped = nullptr) {
  try {
    const TSelectText text(sql);
    std::vector<TSelectSkipped> left;
    const std::string out =
        TPrinter(text).Statement(ReadSelect(text, text.All(), skipped != nullptr ? &left : nullptr));
    for (const TSelectSkipped& item : left) {
      skipped->push_back(std::string(text.TextOf(item.Range)) + " | " + item.Reason);
    }
    return out;
  } catch (const ESQLImportError& error) {
    return error.Message();
  }
}

std::string ReadCondition(std::string_view sql) {
  try {
    const TSelectText text(sql);
    return TPrinter(text).Condition(ReadSelectCondition(text, text.All()));
  } catch (const ESQLImportError& error) {
    return error.Message();
  }
}

struct TCase {
  std::string Sql, Expected;
};

// ---- Conditions -----------------------------------------------------------------------------------------------------

TEST(SelectReader, KeepsTheStructureOfConditions) {
  const TCase cases[] = {
      {"a = 1", "a {=} 1"},
      {"a = 1 and b <> 2 or not c", "any(all(a {=} 1; b {<>} 2); not c)"},
      {"not (a = 1 or b <> 2)", "not any(a {=} 1; b {<>} 2)"},
      {"not (not a = 1)", "a {=} 1"},
      {"not ((not not (a = 1)))", "not a {=} 1"},
      {"(a and b) and (c or (d))", "all(all(a; b); any(c; d))"},
      {"not (not a and b)", "not all(not a; b)"},
      {"(a + b) * 2 > c", "(a + b) * 2 {>} c"},
      {"(a, b) in ((1, 2))", "(a, b) {in} ((1, 2))"},
      {"(a) = (b) and (a = 1) is true", "all((a) {=} (b); (a = 1) {is} true)"},
      {"(select 1) and ((select max(x) from t)) > 5", "all((select 1); ((select max(x) from t)) {>} 5)"},
      {"exists (select 1 from t where a or b) and not exists(select 2)",
       "all(exists (select 1 from t where a or b); not exists(select 2))"},
      {"a between 1 and 2 and b not between :x and :y or c",
       "any(all(a {between} 1 and 2; b {not between} :x and :y); c)"},
      {"a is null and b is not null", "all(a {is} null; b {not is} null)"},
      {"a is distinct from b and c is not distinct from d", "all(a {is} distinct from b; c {not is} distinct from d)"},
      {"a not in (1, 2) or a in (select x from t)", "any(a {not in} (1, 2); a {in} (select x from t))"},
      {"a LIKE 'x!%' escape '!' and b not like :p", "all(a {like} 'x!%' escape '!'; b {not like} :p)"},
      {"case when a = 1 and b then 1 else 2 end = 1 and c", "all(case when a = 1 and b then 1 else 2 end {=} 1; c)"},
      {"a = 1 = 2", "a {=} 1 = 2"},
      {"x collate nocase like 'y'", "x collate nocase {like} 'y'"},
      {"a GLOB 'x*' and b not ilike upper('y') and c similar to 'z'",
       "all(a {glob} 'x*'; b {not ilike} upper('y'); c {similar} to 'z')"},
      {"x collate nocase glob 'y'", "x collate nocase {glob} 'y'"},
      {"a + b regexp -c", "a + b {regexp} -c"},
      {"f(x) over (order by y) and a mod 2 and t at time zone 'utc'",
       "all(f(x) over (order by y); a mod 2; t at time zone 'utc')"},
      {"d > date '2020-01-01' + interval '1' day", "d {>} date '2020-01-01' + interval '1' day"},
      {"a = any (select 1) and \"or\" <=> b and c->>'x' = 'y' and p @> q",
       "all(a {=} any (select 1); \"or\" {<=>} b; c->>'x' {=} 'y'; p @> q)"},
      {"a = .5 and b = -1 and c = not d and e >= (select 1)",
       "all(a {=} .5; b {=} -1; c {=} not d; e {>=} (select 1))"},
      {"left(a, 1) = 'x' and t.order = [1,2] and percentile() within group (order by x) > 1",
       "all(left(a, 1) {=} 'x'; t.order {=} [1,2]; percentile() within group (order by x) {>} 1)"},
      {"not (a && b)", "not a && b"},
  };
  for (const auto& [sql, expected] : cases) EXPECT_EQ(ReadCondition(sql), expected) << sql;
}

TEST(SelectReader, RefusesConditionsThatAreNotComplete) {
  const TCase cases[] = {
      {"", "Line 1, column 1: A condition is missing here"},
      {"a = 1 or", "Line 1, column 9: A condition is missing here"},
      {"and a", "Line 1, column 1: A condition is missing here"},
      {"a and not or b", "Line 1, column 11: A condition is missing here"},
      {"a and ( )", "Line 1, column 9: A condition is missing here"},
      {"a =\n", "Line 1, column 4: A value is missing after \"=\""},
      {"(a =) and b", "Line 1, column 5: A value is missing after \"=\""},
      {"a = = 1", "Line 1, column 5: A value is missing after \"=\""},
      {"a is not", "Line 1, column 9: A value is missing after \"is\""},
      {"b and\r\n <> 1", "Line 2, column 2: A value is missing before \"<>\""},
      {"a not = 1", "Line 1, column 7: A value is missing before \"=\""},
      {"not like 'x'", "Line 1, column 5: A value is missing before \"like\""},
      {"a between 1 or b", "Line 1, column 3: BETWEEN has no AND between its two values"},
      {"a between and 1", "Line 1, column 11: A value is missing before \"and\""},
      {"a between 1 and", "Line 1, column 16: A value is missing after \"and\""},
      {"a = 1, b = 2", "Line 1, column 6: \",\" does not belong here"},
      {"(a, b)", "Line 1, column 3: \",\" does not belong here"},
      {"a = 1 where b", "Line 1, column 7: \"where\" does not belong here"},
      {"a = 1 xor b", "Line 1, column 7: XOR: a query joins conditions by AND and OR alone; write it with them"},
      {"a = 1 && b", "Line 1, column 7: \"&&\" can be read in several ways: write AND, or put brackets round it"},
      {"not a && b", "Line 1, column 7: \"&&\" can be read in several ways: write AND, or put brackets round it"},
  };
  for (const auto& [sql, expected] : cases) EXPECT_EQ(ReadCondition(sql), expected) << sql;
}

// ---- Statements -----------------------------------------------------------------------------------------------------

TEST(SelectReader, KeepsEveryClause) {
  const TCase cases[] = {
      {"select * from t", "* from t"},
      {"((SELECT ALL * FROM t));", "* from t"},
      {"select distinct top 5 percent a from t", "distinct top 5 percent a from t"},
      {"select top (5) percent, top from t", "top (5) percent, top from t"},
      {"select t.*, count(*) from t group by a, f(b, c) having count(*) > 1 and b",
       "t.*, count(*) from t group a group f(b, c) having all(count(*) {>} 1; b)"},
      {"select a from t where b order by 1, c desc, d asc, desc limit 10",
       "a from t where b up 1 down c up d up desc limit 10"},
      {"select a from t limit 10 offset 5", "a from t limit 10 offset 5"},
      {"select a from t limit 5, 10", "a from t limit 5, 10"},
      {"select substring(a from 2 for 3), (select b from u limit 1) from t",
       "substring(a from 2 for 3), (select b from u limit 1) from t"},
      {"select a is distinct from b same, c > 1 and d both from t",
       "a is distinct from b as same, c > 1 and d as both from t"},
      {"select limit, offset, end, left, t.from from window where all = 1 order by desc",
       "limit, offset, end, left, t.from from window where all {=} 1 up desc"},
  };
  for (const auto& [sql, expected] : cases) EXPECT_EQ(Read(sql), expected) << sql;
}

TEST(SelectReader, TellsAliasesFromExpressions) {
  const TCase cases[] = {
      {"price total", "price as total"},
      {"count(*) n", "count(*) as n"},
      {"a.b \"My \"\"name\"\"\"", "a.b AS My \"name\""},
      {"'x' kind", "'x' as kind"},
      {"(a+b) sum2", "(a+b) as sum2"},
      {"case when a then b end x", "case when a then b end as x"},
      {"a as date", "a as date"},
      {"a AS 'It''s'", "a AS It's"},
      {"null x", "null as x"},
      {"a[1] x", "a[1] as x"},
      {"a limit", "a as limit"},
      {"cast(a as int) i", "cast(a as int) as i"},
      {"a::int i", "a::int as i"},
      {"t.order", "t.order"},
      {"a || b", "a || b"},
      {"a * b", "a * b"},
      {"- b", "- b"},
      {"x collate nocase", "x collate nocase"},
      {"x collate nocase y", "x collate nocase as y"},
      {"now() + interval 1 day", "now() + interval 1 day"},
      {"interval '1' day d", "interval '1' day as d"},
      {"date '2020-01-01'", "date '2020-01-01'"},
      {"sum(x) over w", "sum(x) over w"},
      {"sum(x) over w s", "sum(x) over w as s"},
      {"t at time zone z", "t at time zone z"},
      {"a mod b", "a mod b"},
      {"x is null", "x is null"},
      {"x is true", "x is true"},
      {"not x", "not x"},
      {"x isnull", "x isnull"},
      {"0xFF", "0xFF"},
  };
  for (const auto& [item, expected] : cases) EXPECT_EQ(Read("select " + item + " from t"), expected + " from t");
}

TEST(SelectReader, KeepsJoinsAndTheirBrackets) {
  const TCase cases[] = {
      {"A, dbo.B as x, \"C d\".e..f", "((A, dbo.B x), C d.e.f)"},
      {"A a join B b on a.x = b.y", "(A a inner B b on a.x {=} b.y)"},
      {"A left outer join B on x right join C on y full join D on z", "(((A left B on x) right C on y) full D on z)"},
      {"A inner join B using (x, \"y z\") where a", "(A inner B using x using y z) where a"},
      {"A, B left join C on x, D", "((A, (B left C on x)), D)"},
      {"A left join (B join C on x) on y", "(A left (B inner C on x) on y)"},
      {"A left join B inner join C on x on y", "(A left (B inner C on x) on y)"},
      {"A left join B cross join C on y", "(A left (B cross C) on y)"},
      {"((A) left join B on x and (y or z)), (C)", "((A left B on all(x; any(y; z))), C)"},
      {"A natural left join B cross join C natural join D", "(((A natural B) cross C) natural D)"},
      {"left left join right on left(left.a, 1) = right.b", "(left left right on left(left.a, 1) {=} right.b)"},
  };
  for (const auto& [from, expected] : cases) EXPECT_EQ(Read("select * from " + from), "* from " + expected);
}

// ---- Refusals -------------------------------------------------------------------------------------------------------

TEST(SelectReader, RefusesWhatAQueryCannotSay) {
  const std::string oneSelect = "a query is one SELECT; import each of them on its own";
  const std::string leaveOut = ": a query cannot say this; leave it out";
  const TCase cases[] = {
      {" ", "1, column 1: There is no statement here"},
      {"insert into t", "1, column 1: \"insert\" begins no query: write a SELECT"},
      {"with x as (select 1) select 2",
       "1, column 1: WITH: a query has no named sub-queries; write each of them where it is used"},
      {"select distinct on (a) b from t",
       "1, column 17: DISTINCT ON: a query leaves out equal rows alone; write DISTINCT or GROUP BY"},
      {"select top (@n) a from t", "1, column 13: TOP: a query limits its rows by a whole number; write one"},
      {"select top 5 with ties a from t",
       "1, column 14: WITH TIES: a query limits its rows by a number alone; leave it out"},
      {"select first 10 skip 5 a from t", "1, column 8: FIRST" + leaveOut},
      {"select a into b from t", "1, column 10: INTO" + leaveOut},
      {"select a from t with (nolock)", "1, column 17: WITH" + leaveOut},
      {"select *, a from t", "1, column 8: \"*\" can only stand alone: write the columns, or put a table before it"},
      {"select a, * from t", "1, column 11: \"*\" can only stand alone: write the columns, or put a table before it"},
      {"select t.* x from t", "1, column 12: \"x\": all columns of a table take no alias"},
      {"select a,, b from t", "1, column 10: A column is missing here"},
      {"select from t", "1, column 8: A column is missing here"},
      {"select a,\r\n from t", "2, column 2: A column is missing here"},
      {"select a as from t", "1, column 13: A name is missing after AS"},
      {"select a as \"\" from t", "1, column 13: The name between the quotes is empty"},
      {"select a as b c from t", "1, column 15: \"c\" does not belong here"},
      {"select a t.* from t", "1, column 10: \"t\" does not belong here"},
      {"select 1", "1, column 9: FROM is missing: a query shows columns of tables"},
      {"select 1 union select 2", "1, column 10: UNION: " + oneSelect},
      {"(select a from t) minus (select b from u)", "1, column 19: MINUS: " + oneSelect},
      {"select a from", "1, column 14: A table is missing here"},
      {"select a from t,", "1, column 17: A table is missing here"},
      {"select a from (select 1) x",
       "1, column 16: A SELECT in FROM is no table of a query: make it a view, or join its tables here"},
      {"select a from f(1)",
       "1, column 15: \"f\": a function in FROM is no table; put what it gives into a table or a view"},
      {"select a from (values (1))", "1, column 16: VALUES in FROM are no table of a query: put them into a table"},
      {"select a from t join u", "1, column 17: JOIN: the join has no ON; say how its tables belong together"},
      {"select a from t left join u, v on x",
       "1, column 17: LEFT: the join has no ON; say how its tables belong together"},
      {"select a from t cross join u on x", "1, column 30: \"on\" does not belong here"},
      {"select a from t cross apply f(x)", "1, column 23: JOIN is missing here"},
      {"select a from (t join u on x) y", "1, column 31: Joins in brackets take no alias: give one to each table"},
      {"select a from t join u using (x y)", "1, column 33: \"y\" does not belong here"},
      {"select a from t where a = 1, b", "1, column 28: \",\" does not belong here"},
      {"select a from t where group by b", "1, column 23: A condition is missing here"},
      {"select a from t group by rollup(b)", "1, column 26: ROLLUP: a query has no subtotals; group by columns alone"},
      {"select a from t group b", "1, column 23: BY is missing after GROUP"},
      {"select a from t order by a, limit 5", "1, column 35: \"5\" does not belong here"},
      {"select a from t order by a b", "1, column 28: \"b\" does not belong here"},
      {"select a from t where a = 1 allow filtering", "1, column 35: \"filtering\" does not belong here"},
      {"select a from t order by", "1, column 25: An expression is missing here"},
      {"select a from t order by a where b", "1, column 28: \"where\" does not belong here"},
      {"select a from t limit :n", "1, column 23: LIMIT: a query limits its rows by whole numbers; write them"},
      {"select a from t for update", "1, column 17: FOR: a query only reads; leave this clause out"},
      {"select a from t window w as (order by b)",
       "1, column 17: WINDOW: a query has no named windows; write the window behind each OVER"},
      {"select a from t fetch first row only",
       "1, column 17: FETCH: a query limits its rows by LIMIT or TOP; write one of them"},
      {"select a from t; drop table t",
       "1, column 16: Only one statement can be read: import what follows \";\" on its own"},
      {"select a from t 'xxxxxxxxx xxxxxxxxx xxxxxxxxx xxxxxxxxxé'",
       "1, column 17: 'xxxxxxxxx xxxxxxxxx xxxxxxxxx xxxxxxxxx... does not belong here"},
  };
  for (const auto& [sql, expected] : cases) EXPECT_EQ(Read(sql), "Line " + expected) << sql;
}

TEST(SelectReader, PassesOverWhatFollowsOnDemand) {
  std::vector<std::string> skipped;
  EXPECT_EQ(Read("select a from t order by a desc nulls last, b offset 5 rows for update", &skipped),
            "a from t down a up b");
  EXPECT_EQ(Read("(select a from t limit ?)\n union select b", &skipped), "a from t");
  EXPECT_EQ(Read("select a from t order by a, b limit 5 wrong", &skipped), "a from t up a up b limit 5");
  EXPECT_EQ(skipped, (std::vector<std::string>{
                         "nulls last | NULLS LAST: a query leaves the place of NULL to the database; leave it out",
                         "offset 5 rows for update | OFFSET: a query leaves out rows only together with LIMIT; write "
                         "LIMIT n OFFSET m",
                         "limit ? | LIMIT: a query limits its rows by whole numbers; write them",
                         "union select b | UNION: a query is one SELECT; import each of them on its own",
                         "wrong | \"wrong\" does not belong here",
                     }));
  EXPECT_EQ(Read("select a from t order by a nulls first"),
            "Line 1, column 28: NULLS FIRST: a query leaves the place of NULL to the database; leave it out");
  EXPECT_EQ(Read("select a from t where", &skipped), "Line 1, column 22: A condition is missing here");
}

// ---- Any text -------------------------------------------------------------------------------------------------------

std::string Repeated(std::string_view part, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += part;
  return text;
}

TEST(SelectReader, ReadsLongAndDeepStatementsInLinearTime) {
  constexpr std::size_t many = 100'000;
  const std::string head = "select a from t where ";
  const std::string deep = Repeated("(", 999) + "a" + Repeated(")", 999);
  for (const std::string& sql :
       {head + Repeated("not ", many) + "a", head + Repeated("a and ", many) + "a",
        head + Repeated("a or ", many) + "a", head + Repeated("a + ", many) + "a",
        head + Repeated("case ", many) + Repeated("end ", many),
        head + Repeated("not (a or ", 999) + "a" + Repeated(")", 999),
        "select a from " + Repeated("(", 999) + "t" + Repeated(")", 999),
        "select " + Repeated("a b,", many) + "a from t", head + Repeated("~", many) + "a",
        Repeated("(", 999) + "select a from t" + Repeated(")", 999), head + Repeated(deep + " and ", 100) + "a",
        "select a from t" + Repeated(", t", 999)}) {
    EXPECT_TRUE(Read(sql).find(" from ") != std::string::npos) << sql.substr(0, 60);
  }
  for (const std::string& sql : {"select a from t" + Repeated(" join t on a", many), head + Repeated("(", many),
                                 head + Repeated("a between ", many), Repeated("/*", many),
                                 "select a from t" + Repeated(" join t", many), Repeated("'", many + 1)}) {
    EXPECT_TRUE(Read(sql).starts_with("Line 1, column ")) << sql.substr(0, 60);
  }
  EXPECT_EQ(Read("select a from t" + Repeated(",\nt", 1000)),
            "Line 1001, column 1: FROM has more than 1000 tables: use fewer of them");
}

TEST(SelectReader, ReadsOrRefusesAnySequenceOfWords) {
  constexpr std::string_view words[] = {
      "select", "from", "where",    "group by", "order by", "having", "limit", "offset", "top",   "distinct", "all",
      "union",  "join", "left",     "natural",  "cross",    "on",     "using", "as",     "and",   "or",       "not",
      "is",     "null", "like",     "in",       "between",  "exists", "case",  "end",    "minus", "into",     "with",
      "a",      "b",    "t",        "1",        "'x'",      ":p",     "?",     "\"q\"",  "(",     ")",        "(",
      ")",      ",",    ".",        "*",        "=",        "<>",     "&&",    ";",      "desc",  "nulls",    "first",
      "[",      "]",    "interval", "collate",  "xor",      "for",    "fetch", "window", "\r\n",  "--\n",     "@",
  };
  int read = 0;
  for (unsigned seed = 0; seed < 5000; ++seed) {
    std::mt19937 random(seed);
    const auto soup = [&random, &words](std::size_t longest) {
      std::string text;
      for (std::size_t i = random() % longest; i > 0; --i) (text += words[random() % std::size(words)]) += ' ';
      return text;
    };
    // The printer looks at every range.
    const std::string sql =
        seed % 4 == 0 ? soup(30) : "select a from t where a " + soup(6) + (seed % 2 ? "limit 1" : "");
    std::vector<std::string> skipped;
    const std::string strict = Read(sql);
    const std::string lenient = Read(sql, &skipped);
    if (strict.starts_with("Line ")) continue;
    ++read;
    EXPECT_EQ(strict, lenient) << "seed " << seed << ": " << sql;
    EXPECT_TRUE(skipped.empty()) << "seed " << seed << ": " << sql;
  }
  EXPECT_GT(read, 500);
}

}  // namespace
}  // namespace tolvi
