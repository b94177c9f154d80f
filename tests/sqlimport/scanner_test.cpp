#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include <tolvi/foundation/strings.h>
#include <tolvi/sqlimport/scanner.h>

namespace tolvi {
namespace {

using namespace std::string_literals;

TJScanner ScannerOf(std::string_view text) {
  TJScanner scanner;
  for (const std::string_view word : {"select", "FROM", "größe"}) scanner.Keywords().Add(word);
  scanner.SetSource(text);
  scanner.FirstToken();
  return scanner;
}

// Each token as the letter of its type and its folded text: i, k, d, s, r, c, n for the types from 1 on.
std::vector<std::string> Tokens(TJScanner scanner) {
  std::vector<std::string> tokens;
  for (scanner.FirstToken(); !scanner.EOS(); scanner.NextToken()) {
    tokens.push_back("?ikdsrcn"[scanner.GetTokType()] + (":" + std::string(scanner.GetTokStr())));
  }
  return tokens;
}

TEST(Scanner, SplitsTextIntoTypedTokens) {
  struct {
    std::string Text;
    std::vector<std::string> Tokens;
  } const cases[] = {
      {"", {}},
      {" \t\r\n\f\v", {}},
      {"SELECT Name From_ FROM", {"k:select", "i:name", "i:from_", "k:from"}},
      {"_a1 sel select1", {"i:_a1", "i:sel", "i:select1"}},
      {"ŻÓŁW GRÖSSE GRÖßE", {"i:żółw", "i:grösse", "k:größe"}},
      {"a<>b a != b >=<= < = >", {"i:a", "d:<>", "i:b", "i:a", "d:!=", "i:b", "d:>=", "d:<=", "d:<", "d:=", "d:>"}},
      {"(,.*+-/;?@[!|", {"d:(", "d:,", "d:.", "d:*", "d:+", "d:-", "d:/", "d:;", "d:?", "d:@", "d:[", "d:!", "d:|"}},
      {"12 1.5 1. .5 t1.2 1e5 1.5E-3 1e+ 7x",
       {"n:12", "r:1.5", "n:1", "d:.", "d:.", "n:5", "i:t1", "d:.", "n:2", "r:1e5", "r:1.5E-3", "n:1", "i:e", "d:+",
        "n:7", "i:x"}},
      {"'it''s (x)' '' '''' 'a'b", {"s:'it''s (x)'", "s:''", "s:''''", "s:'a'", "i:b"}},
      {"'FROM -- /*\r\nX'", {"s:'FROM -- /*\r\nX'"}},
      {"\"Order Details\"", {"d:\"", "i:order", "i:details", "d:\""}},
      {"\"Customer's\" = 'x', \"a--b\"",
       {"d:\"", "i:customer", "d:'", "i:s", "d:\"", "d:=", "s:'x'", "d:,", "d:\"", "i:a", "d:-", "d:-", "i:b", "d:\""}},
      {"\"a 'b)' c\" 'd\"e'", {"d:\"", "i:a", "s:'b)'", "i:c", "d:\"", "s:'d\"e'"}},
      {"a -- x ' \" \r\n b - - c/* FROM '\n */d", {"i:a", "i:b", "d:-", "d:-", "i:c", "i:d"}},
      {"\xEF\xBB\xBFselect", {"k:select"}},
      {"a\0b\x01"s, {"i:a", "d:\0"s, "i:b", "d:\x01"}},
      {"a\xFF\xC3(\x80", {"i:a\xFF\xC3", "d:(", "i:\x80"}},
  };
  for (const auto& [text, expected] : cases) EXPECT_EQ(Tokens(ScannerOf(text)), expected) << text;
}

TEST(Scanner, TellsWhatTheTextEndsInside) {
  for (const std::string_view text : {"'abc", "'a''", "'", "a 'b\r\n"}) {
    TJScanner scanner = ScannerOf(text);
    while (scanner.GetTokType() != ttString) scanner.NextToken();
    EXPECT_TRUE(scanner.Unterminated()) << text;
    EXPECT_EQ(scanner.GetTokEnd(), text.size());
  }
  EXPECT_FALSE(ScannerOf("'abc'").Unterminated());
  const TJScanner comment = ScannerOf("/* a *");
  EXPECT_TRUE(comment.EOS());
  EXPECT_TRUE(comment.Unterminated());
}

TEST(Scanner, ReportsCommentsOnRequest) {
  TJScanner scanner = ScannerOf("a--b\r\n/**/c/*/--");
  scanner.SetSkipComments(false);
  EXPECT_EQ(Tokens(scanner), (std::vector<std::string>{"i:a", "c:--b", "c:/**/", "i:c", "c:/*/--"}));
}

TEST(Scanner, CountsLinesAndColumnsFromOneAndStaysOnTheLastToken) {
  TJScanner scanner;
  EXPECT_TRUE(scanner.EOS());
  scanner.SetSource(TStrings{"a", "", "'x", "y' b", ""});
  scanner.FirstToken();
  std::vector<std::pair<int, int>> places;
  for (int i = 0; i < 5; ++i, scanner.NextToken()) places.emplace_back(scanner.GetTokLine(), scanner.GetTokColumn());
  EXPECT_EQ(places, (std::vector<std::pair<int, int>>{{1, 1}, {3, 1}, {4, 4}, {4, 4}, {4, 4}}));
  EXPECT_EQ(scanner.GetTokStr(), "");
  EXPECT_EQ(scanner.GetRealStr(), "");
  scanner.FirstToken();
  EXPECT_EQ(scanner.GetTokLine(), 1);
  scanner.SetSource("");
  scanner.FirstToken();
  EXPECT_TRUE(scanner.EOS());
  EXPECT_EQ(scanner.GetTokLine(), 1);
}

TEST(Scanner, LooksAtTokensAnyDistanceAwayWithoutMoving) {
  const std::string text = "\xEF\xBB\xBFSELECT \"it's\", /* c */ Bb.'c', 1 -- d\n from t";
  std::vector<std::string> all;
  for (TJScanner scanner = ScannerOf(text); !scanner.EOS(); scanner.NextToken()) all.emplace_back(scanner.GetRealStr());
  const auto count = static_cast<int>(all.size());
  ASSERT_EQ(count, 14);
  TJScanner scanner = ScannerOf(text);
  for (int at = 0; at <= count; ++at, scanner.NextToken()) {
    for (int other = -2; other < count + 2; ++other) {
      const bool exists = other >= 0 && other < count;
      const TJScannerToken token = scanner.GetToken(other - at);
      EXPECT_EQ(token.Text, exists ? all[static_cast<std::size_t>(other)] : "") << at << " to " << other;
      EXPECT_EQ(token.Type == ttUnknown, !exists) << at << " to " << other;
    }
  }
}

TEST(Scanner, ExtractsPiecesAsWritten) {
  TJScanner scanner = ScannerOf(" \"Order  Details\" AS\r\n X ");
  std::vector<TJScannerBookmark> marks;
  for (; !scanner.EOS(); scanner.NextToken()) marks.push_back(scanner.GetBookmark());
  marks.push_back(scanner.GetBookmark());
  ASSERT_EQ(marks.size(), 7U);
  EXPECT_EQ(scanner.ExtractPiece(marks[1], marks[3], false), "Order  Details");
  EXPECT_EQ(scanner.ExtractPiece(marks[1], marks[3], true), "Order  Details\"");
  EXPECT_EQ(scanner.ExtractPiece(marks[0], marks[6], false), "\"Order  Details\" AS\r\n X");
  for (const TJScannerBookmark& mark : marks) EXPECT_EQ(scanner.ExtractPiece(mark, mark, false), "");
  EXPECT_EQ(scanner.ExtractPiece(marks[4], marks[4], true), "AS");
  EXPECT_EQ(scanner.ExtractPiece(marks[5], marks[2], true), "");
}

// Together the tokens and the white space between them are the whole text, whatever its bytes.
TEST(Scanner, CoversEveryTextWithoutGapsOrOverlaps) {
  constexpr std::string_view bytes("aZ_09.eE+- \r\n'\"/*<>=!(\0\xC3\x9F\xFF", 26);
  for (std::uint32_t seed = 1; seed <= 3000; ++seed) {
    std::string text;
    for (std::uint32_t state = seed; text.size() < seed % 40;) {
      state = state * 1664525U + 1013904223U;
      text.push_back(bytes[(state >> 16) % bytes.size()]);
    }
    TJScanner scanner = ScannerOf(text);
    scanner.SetSkipComments(false);
    std::size_t end = 0;
    for (scanner.FirstToken(); !scanner.EOS(); scanner.NextToken()) {
      const std::string_view gap = std::string_view(text).substr(end, scanner.GetTokPos() - end);
      ASSERT_EQ(gap.find_first_not_of(" \r\n"), std::string_view::npos) << "seed " << seed;
      ASSERT_LT(scanner.GetTokPos(), scanner.GetTokEnd()) << "seed " << seed;
      end = scanner.GetTokEnd();
    }
    ASSERT_EQ(text.find_first_not_of(" \r\n", end), std::string::npos) << "seed " << seed;
  }
}

}  // namespace
}  // namespace tolvi
