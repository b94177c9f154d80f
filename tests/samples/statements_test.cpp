#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "shop_database.h"
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/querpnl.h>

// SQL as people and programs write it (statements/README.md). Read into a panel and built anew, a statement gives the
// rows that it gave before, unless the import refused it or warned. None may differ in silence.

namespace tolvi {
namespace {

namespace fs = std::filesystem;

const fs::path Statements = fs::path(TOLVI_SOURCE_DIR) / "tests/samples/statements";
constexpr std::size_t MostRows = 3000;

struct TStatement {
  std::string Name, SQL;
  bool Ordered = false, Empty = false;
};

/// Whether the line is "-- " and a name in kebab case of at least two words.
bool IsName(std::string_view line) {
  if (!line.starts_with("-- ") || line.find('-', 3) == line.npos || line.ends_with('-')) return false;
  const std::string_view name = line.substr(3);
  return std::all_of(name.begin(), name.end(),
                     [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-'; });
}

std::vector<TStatement> ReadStatements(const std::string& topic) {
  std::vector<TStatement> statements;
  bool inHead = true;
  const std::string text = ReadFile(Statements / (topic + ".sql"));
  for (std::string_view line : SplitLines(text)) {
    if (IsName(line)) {
      statements.push_back({.Name = std::string(line.substr(3)), .SQL = {}});
      inHead = true;
    } else if (statements.empty()) {
      throw EException(topic + ".sql: the first line is no name");
    } else if (inHead && line.starts_with("--")) {
      statements.back().Ordered |= line == "-- ordered";
      statements.back().Empty |= line == "-- empty";
    } else {
      if (!inHead) statements.back().SQL.append("\n");
      inHead = false;
      statements.back().SQL.append(line);
    }
  }
  return statements;
}

TRows Arranged(TRows rows, const TStatement& statement) {
  if (!statement.Ordered) std::sort(rows.begin(), rows.end());
  return rows;
}

/// What became of the statements in one way to import them.
struct TOutcomes {
  int Kept = 0, Warned = 0, Refused = 0, Differing = 0;
  std::string Reasons;

  int All() const { return Kept + Warned + Refused + Differing; }
  void Print(std::string_view mode) const {
    std::cout << "statements, " << mode << ": " << Kept << " kept, " << Warned << " warned, " << Refused << " refused, "
              << Differing << " differing\n";
    if (std::getenv("TOLVI_TELL_REFUSED") != nullptr) std::cout << Reasons;
  }
};

class ShopStatements : public testing::TestWithParam<std::string> {
 protected:
  static void TearDownTestSuite() {
    Plain.Print("plain");
    Faithful.Print("faithful");
    WithFragments.Print("faithful with SQL");
    // An import that refuses everything would pass too; a filter may leave only topics of which nothing can be kept.
    if (Plain.All() < 200) return;
    EXPECT_GT(Plain.Kept, 0);
    EXPECT_GT(Faithful.Kept, 220);
    EXPECT_GT(WithFragments.Kept, 370);
  }

  void SetUp() override {
    FStatements = ReadStatements(GetParam());
    FModel.LoadFromFile(fs::path(TOLVI_SOURCE_DIR) / "samples/shop/shop.model");
  }

  void Compare(const TStatement& statement, const TSQLImportOptions& options, bool fragments, TOutcomes& outcomes);
  bool Import(const TStatement& statement, const TSQLImportOptions& options, TJQueryPanel& panel, TOutcomes& outcomes);

  std::vector<TStatement> FStatements;
  TJDBStructure FModel;
  TShop FShop;
  static inline TOutcomes Plain, Faithful, WithFragments;
};

/// Whether a query came out; errors that an import does not announce pass.
bool ShopStatements::Import(const TStatement& statement, const TSQLImportOptions& options, TJQueryPanel& panel,
                            TOutcomes& outcomes) {
  try {
    TStringList lines;
    lines.SetText(statement.SQL);
    panel.ParseSQL(lines, options);
    return true;
  } catch (const ESQLImportError& error) {
    if (!options.Faithful) throw;
    outcomes.Reasons.append(statement.Name).append(": ").append(error.Message()).append("\n");
  } catch (const ESQLParserError&) {
    if (options.Faithful) throw;
  } catch (const EListError&) {
    if (options.Faithful) throw;
  }
  ++outcomes.Refused;
  return false;
}

void ShopStatements::Compare(const TStatement& statement, const TSQLImportOptions& options, bool fragments,
                             TOutcomes& outcomes) {
  TJQueryPanel panel;
  panel.SetDBStruct(&FModel);
  panel.SetActive(true);
  panel.SetAllowSQLFragments(fragments);
  if (!Import(statement, options, panel, outcomes)) return;
  std::string literal;
  TBoundStatement bound;
  try {
    if (panel.ImportWarnings().empty()) {
      literal = panel.GetQueryText();
      bound = panel.GetBoundStatement();
    }
  } catch (const EJQueryPanelError&) {
    if (options.Faithful) throw;
    ++outcomes.Refused;
    return;
  }
  if (!panel.ImportWarnings().empty() || !panel.QResult().Warnings().empty()) {
    ++outcomes.Warned;
    return;
  }
  const TRows expected = Arranged(FShop.Rows(statement.SQL), statement);
  const TRows literalRows = Arranged(FShop.Rows(literal), statement);
  const TRows boundRows = Arranged(FShop.BoundRows(bound), statement);
  (literalRows == expected && boundRows == expected ? outcomes.Kept : outcomes.Differing) += 1;
  EXPECT_EQ(literalRows, expected) << statement.SQL << "\nbecame\n" << literal;
  EXPECT_EQ(boundRows, expected) << statement.SQL << "\nbecame\n" << bound.SQL;
}

TEST_P(ShopStatements, DoNotDifferInSilence) {
  TSQLImportOptions faithful;
  faithful.Faithful = true;
  for (const TStatement& statement : FStatements) {
    SCOPED_TRACE(GetParam() + ".sql: " + statement.Name);
    try {
      Compare(statement, {}, false, Plain);
      Compare(statement, faithful, false, Faithful);
      Compare(statement, faithful, true, WithFragments);
    } catch (const std::exception& error) {
      ADD_FAILURE() << error.what();
    }
  }
}

TEST_P(ShopStatements, AreFitForComparing) {
  TShop reversed;
  reversed.ReverseUnordered();
  for (const TStatement& statement : FStatements) {
    SCOPED_TRACE(GetParam() + ".sql: " + statement.Name);
    const TRows rows = FShop.Rows(statement.SQL);
    EXPECT_EQ(rows.empty(), statement.Empty);
    EXPECT_LE(rows.size(), MostRows);
    EXPECT_EQ(Arranged(rows, statement), Arranged(reversed.Rows(statement.SQL), statement)) << "left to chance";
  }
}

std::vector<std::string> Topics() {
  std::vector<std::string> topics;
  for (const auto& entry : fs::directory_iterator(Statements)) {
    if (entry.path().extension() == ".sql") topics.push_back(entry.path().stem().string());
  }
  std::sort(topics.begin(), topics.end());
  return topics;
}

TEST(StatementNames, AreUnique) {
  std::set<std::string> names;
  for (const std::string& topic : Topics()) {
    for (const TStatement& statement : ReadStatements(topic)) {
      EXPECT_TRUE(names.insert(statement.Name).second) << topic << ".sql: " << statement.Name;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, ShopStatements, testing::ValuesIn(Topics()),
                         [](const auto& instance) { return ReplaceStr(instance.param, "-", "_"); });

}  // namespace
}  // namespace tolvi
