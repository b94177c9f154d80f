#include <deque>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tolvi/foundation/errors.h>
#include <tolvi/model/dbstruc.h>

namespace tolvi {
namespace {

using TChain = std::vector<const TDSTable*>;

/// The search as it is defined, over partial paths and without memory of visited tables: slow, and plainly right.
TChain FindByDefinition(const TDSTable& first, const TDSTable& target) {
  std::vector<TChain> frontier{{&first}};
  while (!frontier.empty()) {
    std::vector<TChain> next;
    for (const TChain& path : frontier) {
      const TDSTable& end = *path.back();
      for (const TDSLink* link : end.Links()) {
        const TDSTable* other = link->OtherTable(end);
        if (other == &target) {
          TChain result = path;
          result.push_back(other);
          return result;
        }
        if (std::find(path.begin(), path.end(), other) != path.end()) continue;
        next.push_back(path);
        next.back().push_back(other);
      }
    }
    frontier = std::move(next);
  }
  return {};
}

std::string Text(const TChain& chain) {
  std::string result;
  for (const TDSTable* table : chain) result += table->GetTableAlias() + " ";
  return result;
}

std::string Text(const TDSPath* path) {
  TChain chain;
  if (path != nullptr) chain.assign(path->begin(), path->end());
  return Text(chain);
}

void Link(TJDBStructure& model, std::size_t a, std::size_t b) {
  auto link = std::make_unique<TDSLink>(model.GetTable(a), model.GetTable(b));
  link->AddPair("x", "=", "y");
  model.AddLinkByRef(std::move(link));
}

TEST(Path, IsTheChainOfTheDefinitionOnRandomGraphs) {
  for (unsigned seed = 0; seed < 3000; ++seed) {
    std::mt19937 random(seed);
    TJDBStructure model;
    const std::size_t tables = 1 + random() % 7;
    for (std::size_t i = 0; i < tables; ++i) model.AddTable("T" + std::to_string(i), "");
    for (std::size_t links = random() % (2 * tables + 1); links > 0; --links) {
      Link(model, random() % tables, random() % tables);
    }
    for (const TDSTable& from : model.Tables()) {
      for (const TDSTable& to : model.Tables()) {
        ASSERT_EQ(Text(model.GetPath(from, to)), Text(FindByDefinition(from, to)))
            << "seed " << seed << " " << from.GetTableAlias() << " to " << to.GetTableAlias();
      }
    }
  }
}

TEST(Path, TakesTheShortestAndAmongEqualsTheFirstInLinkOrder) {
  TJDBStructure model;
  for (const char* name : {"A", "B", "C", "D", "E"}) model.AddTable(name, "");
  Link(model, 0, 1);
  EXPECT_EQ(Text(model.GetPath("A", "B")), "A B ");
  EXPECT_EQ(Text(model.GetPath("a", "b")), "A B ") << "aliases ignore case";
  Link(model, 0, 2);
  Link(model, 2, 3);
  Link(model, 1, 3);
  EXPECT_EQ(Text(model.GetPath("A", "D")), "A B D ") << "the link A-B came before A-C";
  Link(model, 0, 3);
  EXPECT_EQ(Text(model.GetPath("A", "D")), "A D ");
  EXPECT_EQ(model.GetPath("A", "E"), nullptr);
  EXPECT_EQ(Text(model.GetPath("A", "A")), "A B A ");
  EXPECT_EQ(model.GetPath("E", "E"), nullptr);
  Link(model, 0, 0);
  EXPECT_EQ(Text(model.GetPath("A", "A")), "A A ");
}

TEST(Path, FollowsChangesOfLinksAndTables) {
  TJDBStructure model;
  for (const char* name : {"A", "B", "C"}) model.AddTable(name, "");
  Link(model, 0, 1);
  Link(model, 1, 2);
  EXPECT_EQ(Text(model.GetPath("A", "C")), "A B C ");
  model.DelTable(1);
  EXPECT_EQ(model.GetLinkCount(), 0u);
  EXPECT_EQ(model.GetPath("A", "C"), nullptr);
  Link(model, 0, 1);
  EXPECT_EQ(Text(model.GetPath("A", "C")), "A C ");
  model.ClearLinks();
  EXPECT_EQ(model.GetPath("A", "C"), nullptr);
}

TEST(Path, UnknownAliasIsAnErrorThatNamesIt) {
  TJDBStructure model;
  model.AddTable("A", "");
  try {
    model.GetPath("A", "Nowhere");
    FAIL();
  } catch (const EJDBStructError& error) {
    EXPECT_EQ(error.ErrorCode(), 4);
    EXPECT_EQ(error.Message(), "No such table Nowhere");
  }
}

}  // namespace
}  // namespace tolvi
