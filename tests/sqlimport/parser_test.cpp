#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include <tolvi/foundation/files.h>
#include <tolvi/foundation/text.h>
#include <tolvi/sqlimport/sqljson.h>
#include <tolvi/sqlimport/sqlpars.h>

namespace tolvi {
namespace {

// ---- Cases in files -------------------------------------------------------------------------------------------------

struct TExpectation {
  std::string What, Lines;
};

struct TCase {
  std::string Place, Title, Statement;
  std::vector<TExpectation> Expectations;
};

/// All cases in tests/sqlimport/cases; select.txt there tells how they are written.
std::vector<TCase> Cases() {
  std::vector<TCase> cases;
  for (const auto& entry : std::filesystem::directory_iterator(TOLVI_SOURCE_DIR "/tests/sqlimport/cases")) {
    const std::string text = ReadFile(entry.path());
    std::string* lines = nullptr;
    int number = 0;
    for (const std::string_view line : SplitLines(text)) {
      ++number;
      if (line.starts_with("=== ")) {
        const std::string place = entry.path().filename().string() + ":" + std::to_string(number);
        lines = &cases.emplace_back(TCase{place, std::string(line.substr(4)), {}, {}}).Statement;
      } else if (line.starts_with("--> ")) {
        lines = &cases.back().Expectations.emplace_back(TExpectation{std::string(line.substr(4)), {}}).Lines;
      } else if (lines) {
        lines->append(line).append("\n");
      }
    }
  }
  return cases;
}

/// JSON without the white space outside of texts.
std::string Compact(std::string_view json) {
  std::string result;
  bool inText = false;
  for (std::size_t i = 0; i < json.size(); ++i) {
    if (json[i] == '"') inText = !inText;
    if (inText && json[i] == '\\') result += json[i++];
    if (inText || (json[i] != ' ' && json[i] != '\n')) result += json[i];
  }
  return result;
}

/// The value of a member of the outermost object.
std::string Member(const std::string& json, const std::string& name) {
  const std::string start = "\n  \"" + name + "\": ";
  const std::size_t begin = json.find(start);
  if (begin == std::string::npos) return "no member " + name;
  const std::size_t end = std::min(json.find(",\n  \"", begin), json.rfind("\n}"));
  return json.substr(begin + start.size(), end - begin - start.size());
}

std::string DroppedLines(const TJSQLParser& parser) {
  constexpr std::string_view Kinds[] = {"joinCondition", "groupBy", "sortWord", "rest"};
  std::string lines;
  for (const auto& [kind, pos, end] : parser.ParserResult().Dropped()) {
    lines.append(Kinds[kind]).append(" ").append(std::to_string(parser.LineAt(pos))).append(": ");
    lines.append(Trim(parser.GetText().substr(pos, end - pos))).append("\n");
  }
  return lines;
}

/// What the parser makes of a statement in place of an expectation.
std::string Actual(std::string_view statement, const std::string& what) {
  TJSQLParser parser;
  parser.SetSQL(statement);
  try {
    parser.Parse();
  } catch (const EException& error) {
    return error.Message();
  }
  if (what == "dropped") return DroppedLines(parser);
  if (what == "flattened") parser.ParserResult().GetWhereClause()->DeleteEmptyBrackets();
  const std::string json = SQLResultToJson(parser.ParserResult());
  return what == "result" ? json : Member(json, what == "flattened" ? "where" : what);
}

TEST(Parser, ReadsStatementsAsTheCasesTell) {
  const std::vector<TCase> cases = Cases();
  EXPECT_GT(cases.size(), 40U);
  for (const TCase& test : cases) {
    EXPECT_FALSE(test.Expectations.empty()) << test.Place;
    for (const auto& [what, lines] : test.Expectations) {
      const bool isText = what == "error" || what == "dropped";
      for (const std::string& statement : {test.Statement, ReplaceStr(test.Statement, "\n", CrLf)}) {
        std::string actual = ReplaceStr(Actual(statement, what), CrLf, "\n");
        if (!isText) actual = Compact(ReplaceStr(actual, "\\u000d", ""));
        const std::string_view expected = Trim(lines);
        EXPECT_EQ(Trim(actual), isText ? std::string(expected) : Compact(expected))
            << test.Place << ": " << test.Title << " (" << what << ")";
      }
    }
  }
}

/// Parses whatever it is given and looks at all of the result.
void ExpectNoHarm(std::string_view statement) {
  TJSQLParser parser;
  parser.SetSQL(statement);
  try {
    parser.Parse();
    EXPECT_FALSE(SQLResultToJson(parser.ParserResult()).empty());
    if (TSQLBracket* where = parser.ParserResult().GetWhereClause()) where->DeleteEmptyBrackets();
    for (const TSQLDropped& dropped : parser.ParserResult().Dropped()) EXPECT_LE(dropped.End, statement.size());
  } catch (const ESQLParserError& error) {
    EXPECT_GE(error.Line(), 1);
    EXPECT_LE(static_cast<std::size_t>(error.Line()), CharCount(statement, '\n') + 1);
  } catch (const EListError&) {
  }
}

TEST(Parser, SurvivesStatementsThatEndAnywhereAndTokensThatAreMissing) {
  for (const TCase& test : Cases()) {
    for (std::size_t at = 0; at < test.Statement.size(); ++at) {
      ExpectNoHarm(std::string_view(test.Statement).substr(0, at));
      std::string holed = test.Statement;
      ExpectNoHarm(holed.erase(at, 1 + at % 5));
    }
  }
}

// ---- Limits ---------------------------------------------------------------------------------------------------------

std::string Times(std::size_t count, std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < count; ++i) result += text;
  return result;
}

TEST(Parser, BoundsTheDepthOfBracketsInConditionsOnly) {
  constexpr std::string_view TooDeep = "Brackets are nested more than 1000 levels deep\r\nLine:1";
  for (const std::string start : {"select a from t where ", "select a from t join u on "}) {
    const auto nested = [&start](std::size_t depth, std::string_view bracket) {
      return Actual(start + Times(depth, bracket) + "a = 1" + Times(depth, ")"), "distinct");
    };
    EXPECT_EQ(nested(1000, "("), "false");
    EXPECT_EQ(nested(1001, "("), TooDeep);
    EXPECT_EQ(nested(100000, "b = 1 and not ("), TooDeep);
    EXPECT_EQ(Actual(start + Times(100000, "("), "distinct"), TooDeep);
  }
  const std::string deep = Times(100000, "(") + Times(100000, ")");
  EXPECT_EQ(Actual("select f" + deep + " from " + deep.substr(0, 100000) + "t where a in (" + deep + ")", "distinct"),
            "false");
}

TEST(Parser, ReadsLongListsInLinearTime) {
  std::string names = "a.b", fields = "0 as n0", sorting = "n0";
  for (int i = 1; i < 50000; ++i) {
    names += ".c";
    fields += ", t.x as n" + std::to_string(i);
    sorting.insert(0, "N" + std::to_string(i) + ", ");
  }
  TJSQLParser parser;
  parser.SetSQL("select " + fields + " from " + names + " where a in (" + fields + ") order by " + sorting);
  parser.Parse();
  EXPECT_EQ(parser.ParserResult().ResultFields()[0].GetSortOrder(), 50000);
  EXPECT_EQ(parser.ParserResult().ResultFields()[49999].GetSortOrder(), 1);
  EXPECT_EQ(parser.ParserResult().Tables()[0].GetTableName().size(), names.size());
}

// ---- The parser and its result --------------------------------------------------------------------------------------

TEST(Parser, KeepsWhatClearingDoesNotReset) {
  TJSQLParser parser;
  parser.SetSQL(TStrings{"select distinct * from t join u on a = b", "where a = 1"});
  EXPECT_EQ(parser.GetSQL(), (TStrings{"select distinct * from t join u on a = b", "where a = 1"}));
  parser.Parse();
  parser.SetSQL("select a from v order by b");
  EXPECT_TRUE(parser.ParserResult().Tables().Empty());  // they referred to the statement before
  parser.Parse();
  const TJParserResult& result = parser.ParserResult();
  EXPECT_TRUE(result.GetDistinct() && result.GetAllRFields() && result.ResultFields().GetJustSorting());
  EXPECT_EQ(result.Tables().Count(), 1U);
  EXPECT_EQ(result.ResultFields().Count(), 2U);
  EXPECT_EQ(result.GetWhereClause(), nullptr);
  EXPECT_TRUE(result.Dropped().empty());
  parser.SetSQL("select a from");
  EXPECT_THROW(parser.Parse(), ESQLParserError);
  EXPECT_EQ(parser.ParserResult().ResultFields().Count(), 1U);
}

TEST(Parser, TakesQuotedNamesWholeOnRequest) {
  TJSQLParser parser;
  parser.SetWholeQuotedNames(true);
  parser.SetSQL(
      "select \"Order Date\" as \"x y\", \"a, (b\" from t where \"not in\" = \"a and b\" and c = \"from\" order by \"X "
      "Y\"");
  parser.Parse();
  const TSQLResultFieldList& fields = parser.ParserResult().ResultFields();
  EXPECT_EQ(fields.Count(), 2U);
  EXPECT_EQ(fields[1].GetSQLExpr(), "\"a, (b\"");
  EXPECT_EQ(fields[0].GetSorting(), 1);
  const TSQLConditionNodeList& nodes = parser.ParserResult().GetWhereClause()->Nodes();
  EXPECT_EQ(nodes[0].AsCondition()->GetSQLExpr(), "\"not in\" = 'a and b'");
  EXPECT_EQ(nodes[1].AsCondition()->GetSQLExpr(), "c = 'from'");
  parser.SetSQL("select \"a from t");
  EXPECT_THROW(parser.Parse(), ESQLParserError);
}

TEST(Parser, TellsNegationsThatItPassesOverAndWhereNodesStand) {
  TJSQLParser parser;
  parser.SetSQL(
      "select a from t\nwhere a not like 'x' and not (b is not null) and\n(not c = 1) and not d = 1\nand e = 1");
  parser.Parse();
  std::string told;
  for (const TSQLNode& node : parser.ParserResult().GetWhereClause()->Nodes()) {
    told += std::to_string(parser.LineAt(node.GetPos())) + (node.GetNegative() ? " not" : " -") +
            (node.GetWrittenNegative() ? " not" : " -") + " " + node.AsCondition()->GetSQLExpr() + "\n";
  }
  EXPECT_EQ(told, "2 - not a like 'x'\n2 not - not(b is null)\n3 - not c = 1\n3 not not not(d = 1)\n4 - - e = 1\n");
}

TEST(Parser, KeepsParentsRightWhateverIsDoneToNodes) {
  TSQLBracket root("and"), other("or");
  EXPECT_FALSE(root.GetFirstNOT());
  auto& inner = static_cast<TSQLBracket&>(root.Nodes().Add(std::make_unique<TSQLBracket>("or")));
  auto& deep = static_cast<TSQLBracket&>(inner.Nodes().Add(std::make_unique<TSQLBracket>()));
  TSQLNode& condition = deep.Nodes().Add(std::make_unique<TSQLCondition>());
  deep.SetWrittenNegative(true);
  EXPECT_EQ(condition.GetParentBracket(), &deep);
  root.DeleteEmptyBrackets();
  EXPECT_EQ(root.Nodes().Count(), 1U);
  EXPECT_EQ(&root.Nodes()[0], &condition);
  EXPECT_EQ(condition.GetParentBracket(), &root);
  EXPECT_TRUE(condition.GetWrittenNegative());
  EXPECT_FALSE(condition.GetNegative());
  auto taken = root.Nodes().Replace(0, std::make_unique<TSQLCondition>());
  EXPECT_EQ(taken.get(), &condition);
  EXPECT_EQ(condition.GetParentBracket(), nullptr);
  EXPECT_EQ(root.Nodes()[0].GetParentBracket(), &root);
  EXPECT_EQ(other.Nodes().Insert(0, std::move(taken)).GetParentBracket(), &other);
  EXPECT_EQ(other.Nodes().Delete(0)->GetParentBracket(), nullptr);
}

TEST(Parser, MakesTheAliasOfATableFromItsFirstName) {
  TSQLTable table;
  table.SetTableName("A");
  table.SetTableName("B");
  EXPECT_EQ(table.GetAliasName(), "A");
  TSQLResultFieldList fields;
  fields.Add(std::make_unique<TSQLResultField>()).SetSQLExpr("X.y");
  EXPECT_EQ(fields.IndexByExpr("x.Y"), 0);
  EXPECT_EQ(fields.IndexByAlias("x.Y"), -1);
  EXPECT_EQ(fields.IndexByAlias(""), 0);
}

/// Reads a clause in a way of its own.
class TGroupReader final : public TJSQLParser {
 public:
  std::string Group;

 protected:
  void ProcessGroupBy() override {
    const std::size_t begin = Scanner().GetTokPos();
    while (Word() != wdEnd && Word() != wdOrder) NextToken();
    Group = PieceFrom(begin);
    if (Group == "group") Error("Nothing to group by");
  }
};

TEST(Parser, LetsDerivedClassesReadClauses) {
  TGroupReader parser;
  parser.SetSQL("select a from t group by a, b order by a");
  parser.Parse();
  EXPECT_EQ(parser.Group, "group by a, b");
  EXPECT_EQ(parser.ParserResult().ResultFields()[0].GetSorting(), 1);
  parser.SetSQL("select a from t\ngroup");
  try {
    parser.Parse();
    ADD_FAILURE();
  } catch (const ESQLParserError& error) {
    EXPECT_EQ(error.Message(), "Nothing to group by\r\nLine:2");
    EXPECT_EQ(error.Line(), 2);
    EXPECT_EQ(parser.GetLine(), 2);
  }
}

TEST(SQLJson, WritesEachPartOnALineAndEveryTextSafely) {
  TJSQLParser parser;
  parser.SetSQL("select '\"\\\x01\xFF\xC5\xBB\t' as a from t where (b = 1 or c = 2) and d = 3");
  parser.Parse();
  EXPECT_EQ(SQLResultToJson(parser.ParserResult()), R"({
  "distinct": false,
  "allFields": false,
  "justSorting": false,
  "fields": [
    {"expr": "'\"\\\u0001)"
                                                    "\xEF\xBF\xBD"
                                                    R"(Ż\u0009'", "alias": "a", "caption": "'\"\\\u0001)"
                                                    "\xEF\xBF\xBD"
                                                    R"(Ż\u0009'", "sorting": 0, "sortOrder": 0}
  ],
  "tables": [
    {"name": "t", "alias": "t"}
  ],
  "where": {"kind": "bracket", "op": "and", "negative": false, "nodes": [
    {"kind": "bracket", "op": "or", "negative": false, "nodes": [
      {"kind": "condition", "left": "b", "op": "=", "right": "1", "negative": false, "subQuery": false},
      {"kind": "condition", "left": "c", "op": "=", "right": "2", "negative": false, "subQuery": false}
    ]},
    {"kind": "condition", "left": "d", "op": "=", "right": "3", "negative": false, "subQuery": false}
  ]}
}
)");
}

}  // namespace
}  // namespace tolvi
