#include <unordered_set>

#include <gtest/gtest.h>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

using TLines = std::vector<std::string>;

TEST(Format, FillsPlaceholdersAndLeavesTheRest) {
  EXPECT_EQ(Format("No such table %s", {"Orders"}), "No such table Orders");
  EXPECT_EQ(Format("index %d of %s", {-7, std::string("%s")}), "index -7 of %s");
  EXPECT_EQ(Format("\"%s\" and \"$s\"", {"A", "B"}), "\"A\" and \"$s\"");
  EXPECT_EQ(Format("100%% of %s %d%", {"it"}), "100% of it %d%");
}

TEST(FoldCase, IgnoresCaseAlikeInFoldingComparisonAndHash) {
  using TPair = std::pair<std::string_view, std::string_view>;
  const TPair same[] = {{"OrderID", "ORDERid"},
                        {"a long name of a field Z", "A LONG NAME OF A FIELD z"},
                        {"ZAŻÓŁĆ GĘŚLĄ JAŹŃ", "zażółć gęślą jaźń"},
                        {"ΣΊΣΥΦΟΣ ДЁ", "σίσυφος дё"},                 // a final sigma too
                        {"\u212Aelvin and more", "kelvin AND MORE"},  // the Kelvin sign: other lengths, one text
                        {"\u1E9E\U00010400\u13A0", "ß\U00010428\uAB70"},
                        {"\xC3(A", "\xC3(a"}};  // bytes that are not UTF-8 stand for themselves
  const TPair different[] = {{"Customers", "Customer"},
                             {"abcdefg[", "abcdefg{"},
                             {"[name]@`", "{name}`@"},
                             {"STRASSE", "straße"},
                             {"I", "ı"},
                             {"kelvin no", "\u212Aelvin yes"},
                             {"\xC3", "\xE3"},
                             {"", "x"},
                             {"abcdefgh\xFF", "ABCDEFGH\xFE"}};
  const auto expect = [](const TPair& pair, bool equal) {
    const auto& [a, b] = pair;
    SCOPED_TRACE(a);
    EXPECT_EQ(SameText(a, b), equal);
    EXPECT_EQ(SameText(b, a), equal);
    EXPECT_EQ(FoldCase(a) == FoldCase(b), equal);
    EXPECT_EQ(FoldedHash(a) == FoldedHash(b), equal);
  };
  for (const TPair& pair : same) expect(pair, true);
  for (const TPair& pair : different) expect(pair, false);
  EXPECT_EQ(FoldCase("Żółw \xFF\u212A"), "żółw \xFFk");
}

TEST(FoldCase, HashAgreesAtEveryLengthAndSpreadsNumberedNames) {
  std::string upper, lower;
  for (char c = 'A'; c <= 'Z'; ++c) {
    upper += c;
    lower += static_cast<char>(c + 32);
    EXPECT_EQ(FoldedHash(upper), FoldedHash(lower));
    EXPECT_EQ(FoldedHash(upper + "K"), FoldedHash(lower + "\u212A"));
    EXPECT_TRUE(SameText(upper, lower));
    EXPECT_FALSE(SameText(upper, lower + '\0'));
  }
  std::unordered_set<std::size_t> hashes;
  for (int i = 0; i < 20000; ++i) hashes.insert(FoldedHash("Field" + std::to_string(i)));
  EXPECT_EQ(hashes.size(), 20000u);
}

TEST(AsciiCase, LeavesLettersOutsideAsciiAlone) {
  EXPECT_EQ(AsciiLower("SELECT Ż [Z]"), "select Ż [z]");
  EXPECT_TRUE(AsciiSameText("WHERE", "where"));
  EXPECT_FALSE(AsciiSameText("Ż", "ż") || AsciiSameText("as", "asc"));
}

TEST(Utf8, RefusesWhatIsNotWellFormed) {
  for (const auto* good : {"", "plain", "Ż€\U0010FFFF", "\u0800\uD7FF\uE000"}) EXPECT_TRUE(IsValidUtf8(good)) << good;
  for (const auto* bad : {"\x80", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
                          "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "a\xE2\x82", "\xE2\x82z", "\xFF"}) {
    EXPECT_FALSE(IsValidUtf8(bad));
  }
}

TEST(ReduceToAscii, KeepsPlainLettersAndDropsTheRest) {
  EXPECT_EQ(ReduceToAscii("Żółć, naïve Ångström"), "Zoc, naive Angstrom");  // the stroke of "ł" is no accent
  EXPECT_EQ(ReduceToAscii("e\u0301\u1EA4\u212A€日本\xFF≠!"), "eAK!");
}

TEST(Separators, SplitAtTheFirstOccurrence) {
  using TPair = std::pair<std::string_view, std::string_view>;
  EXPECT_EQ(GetNameAndValueSep("a=b=c", "="), TPair("a", "b=c"));
  EXPECT_EQ(GetNameAndValueSep("a -> b", " -> "), TPair("a", "b"));
  EXPECT_EQ(GetNameAndValueSep("abc", "="), TPair("abc", ""));
  EXPECT_EQ(GetNameAndValueSep("abc", ""), TPair("abc", ""));
}

TEST(ReplaceStr, ScansTheOriginalTextOnce) {
  EXPECT_EQ(ReplaceStr("aaa", "a", "aa"), "aaaaaa");
  EXPECT_EQ(ReplaceStr("aaa", "aa", "b"), "ba");
  EXPECT_EQ(ReplaceStr("text", "", "x"), "text");
  EXPECT_EQ(ReplaceStr("@F=@f", "@f", "x"), "@F=x");
  EXPECT_EQ(XReplaceStr("\u212A ŻK Żk", "żk", "Żk", true), "\u212A Żk Żk");
}

TEST(CXPos, FindsFromAPositionOn) {
  constexpr auto None = std::string_view::npos;
  EXPECT_EQ(CXPos("b", "abcb", 2), 3u);
  EXPECT_EQ(CXPos("AND", "x and y"), None);
  EXPECT_EQ(CXPos("AND", "x and y", 0, true), 2u);
  EXPECT_EQ(CXPos("and", "x an", 0, true), None);
  EXPECT_EQ(CXPos("b", "ab", 9, true), None);
  EXPECT_EQ(CXPos("", "ab"), None);
}

TEST(SmallTexts, AreComparedTrimmedAndCounted) {
  EXPECT_EQ(Trim("\t a b \r\n"), "a b");
  EXPECT_EQ(Trim(" \n"), "");
  EXPECT_TRUE(StrInList("and", {"or", "and"}) && !StrInList("AND", {"or", "and"}));
  EXPECT_TRUE(EqualToSpaces(" a =\r\n b", "a=b\t"));
  EXPECT_FALSE(EqualToSpaces("a=b", "a=bc") || EqualToSpaces("a", "A"));
  EXPECT_EQ(CharCount("a.b.c", '.'), 2u);
}

TEST(QuotedString, DoublesInnerQuotesAndBack) {
  for (const auto* text : {"", "it's", "''", "'", "plain"}) EXPECT_EQ(UnquotedString(QuotedString(text)), text);
  EXPECT_EQ(QuotedString("it's"), "'it''s'");
  for (const auto* other : {"", "'", "'''", "'a'b'", "'a", "a'", "\"a\""}) EXPECT_EQ(UnquotedString(other), other);
}

TEST(CommaText, ReadsBackWhatItWrote) {
  const std::pair<TLines, std::string_view> cases[] = {
      {{}, ""}, {{""}, "\"\""}, {{"a b", "c,d", "", "e\"f", "g\nh"}, "\"a b\",\"c,d\",\"\",\"e\"\"f\",\"g\nh\""}};
  for (const auto& [items, text] : cases) {
    EXPECT_EQ(ComposeCommaText(items), text);
    EXPECT_EQ(SplitCommaText(text), items);
  }
}

TEST(CommaText, SplitsAtCommasAndBlanks) {
  const std::pair<std::string_view, TLines> cases[] = {
      {"a b , c", {"a", "b", "c"}},       {" a,, b,", {"a", "", "b", ""}}, {",", {"", ""}}, {"  ", {}}, {"\"a", {"a"}},
      {"\"a\"b c\"d", {"a", "b", "c\"d"}}};
  for (const auto& [text, items] : cases) EXPECT_EQ(SplitCommaText(text), items) << text;
}

TEST(SplitLines, TakesEveryLineBreak) {
  const std::vector<std::string_view> expected{"a", "b", "", "c", "", "d"};
  EXPECT_EQ(SplitLines("a\nb\r\n\r\nc\r\rd"), expected);
  EXPECT_EQ(SplitLines("a\nb\r\n\r\nc\r\rd\n"), expected);
  EXPECT_EQ(SplitLines("\n").size(), 1u);
  EXPECT_TRUE(SplitLines("").empty());
}

TEST(LineBreaks, AreEscapedAndBack) {
  EXPECT_EQ(EscapeLineBreaks("a\r\nb\\n"), "a\\r\\nb\\\\n");
  for (const auto* text : {"a\r\nb", "\\n", "\\\\r\n", "end\\"}) {
    EXPECT_EQ(UnescapeLineBreaks(EscapeLineBreaks(text)), text);
  }
  EXPECT_EQ(UnescapeLineBreaks("C:\\temp\\"), "C:\\temp\\");
}

}  // namespace
}  // namespace tolvi
