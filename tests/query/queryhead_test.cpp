#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/query/querpnl.h>
#include <tolvi/query/queryhead.h>

namespace tolvi {
namespace {

std::string WithHead(std::string_view text, const TQueryHead& head) {
  TStrings lines;
  lines.SetText(text);
  return WithQueryHead(lines, head).Joined("\n");
}

TEST(QueryHead, ChangesNothingButNameAndDescription) {
  constexpr std::string_view Text =
      "[PanelTitles]\n [Main]\n[main]\nVersion=3.6\nqueryname=a b\nQueryName:escaped=a\\nb\nOptions=2\n\n"
      "[Description]\nold\n [Row]\n[free]\n\n[UserData]\nQueryName=mine\n\n[Row]\nRowType=1";
  EXPECT_EQ(ReadQueryHead(Text), (TQueryHead{.Name = "a\nb", .Description = "old\n[Row]\n[free]"}));
  const TQueryHead head{.Name = "New", .Description = "[Main]\nsecond"};
  const std::string changed = WithHead(Text, head);
  EXPECT_EQ(changed,
            "[PanelTitles]\n [Main]\n[main]\nQueryName=New\nVersion=3.6\nOptions=2\n\n"
            "[Description]\n [Main]\nsecond\n\n[UserData]\nQueryName=mine\n\n[Row]\nRowType=1");
  EXPECT_EQ(ReadQueryHead(changed), head);
  EXPECT_EQ(WithHead(changed, head), changed);
}

TEST(QueryHead, AddsADescriptionWhereThereIsNone) {
  EXPECT_EQ(WithHead("[Main]\nVersion=3.6\n[Row]\nRowType=1", {.Name = "x", .Description = ""}),
            "[Main]\nQueryName=x\nVersion=3.6\n[Row]\nRowType=1");
  EXPECT_EQ(WithHead("[Main]\nVersion=3.6\n[Row]\nRowType=1", {.Name = "x", .Description = "y"}),
            "[Main]\nQueryName=x\nVersion=3.6\n\n[Description]\ny\n\n[Row]\nRowType=1");
  EXPECT_EQ(ReadQueryHead(WithHead("[Main]", {.Name = "a\\b\nc", .Description = "y"})),
            (TQueryHead{.Name = "a\\b\nc", .Description = "y"}));
}

TEST(QueryHead, MakesAnEmptyQueryOfABlankTextAndLeavesOthersAlone) {
  const auto model = OrdersModel();
  TJQueryPanel panel;
  panel.SetDBStruct(model.get());
  panel.LoadFromText(WithHead(" \n", {.Name = "Empty", .Description = "yet"}));
  EXPECT_TRUE(panel.LoadWarnings().empty());
  EXPECT_EQ(panel.GetQueryName(), "Empty");
  EXPECT_EQ(panel.GetDescription(), TStrings{"yet"});
  EXPECT_EQ(panel.RootBracket().GetRowCount(), 0u);
  EXPECT_EQ(WithHead("no query\n[Description]", {.Name = "x", .Description = "y"}), "no query\n[Description]");
  EXPECT_EQ(ReadQueryHead("no query\n[Description]\nx"), TQueryHead{});
}

}  // namespace
}  // namespace tolvi
