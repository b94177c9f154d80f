#include <algorithm>
#include <functional>

#include <gtest/gtest.h>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/sections.h>

using namespace tolvi;

namespace {

bool KnownHeader(std::string_view name) {
  return name == "Main" || name == "Text" || name == "End" || name.starts_with("Row");
}

std::string ErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const EConvertError& error) {
    return error.Message();
  }
  return "none";
}

TEST(SectionedText, IsReadTheSameWithEveryLineBreakAndAByteOrderMark) {
  const std::string lf = "[Main]\nA=1\nB=two=2\n\n[Row]\nA=3";
  for (const std::string& text : {lf, ReplaceStr(lf, "\n", "\r\n"), "\xEF\xBB\xBF" + lf + "\n"}) {
    TSectionedText sections(text, KnownHeader);
    const TSection main = sections.First("MAIN").value();
    EXPECT_EQ(main.Find("a"), "1");
    EXPECT_EQ(main.Find("b"), "two=2");
    EXPECT_FALSE(main.Find("C"));
    const TSection row = sections.Next("Row").value();
    EXPECT_EQ(row.HeaderLine(), 5u);
    EXPECT_EQ(row.Find("A"), "3");
    EXPECT_EQ(sections.Names(), (std::vector<std::string_view>{"Main", "Row"}));
  }
  EXPECT_FALSE(TSectionedText("", KnownHeader).First("Main"));
}

TEST(SectionedText, FindsTheFirstLineOfAKeyWhateverWasAskedForBefore) {
  const std::string text = "[Main]\nA=1\nnote\nB=2\na=3\nC=4\nB=5\n";
  const std::pair<const char*, std::string_view> expected[] = {{"A", "1"}, {"B", "2"}, {"C", "4"}};
  int order[] = {0, 1, 2, 0};
  do {
    const TSection main = TSectionedText(text, KnownHeader).First("Main").value();
    for (const int i : order) {
      EXPECT_FALSE(main.Find("missing"));
      EXPECT_EQ(main.Find(expected[i].first), expected[i].second);
    }
  } while (std::next_permutation(std::begin(order), std::end(order)));
}

TEST(SectionedText, SearchesForwardAndStaysWhereItIsWhenNothingIsFound) {
  const std::string text = "[Row1]\nN=a\n[Row2]\nN=b\n[ROW1]\nN=c\n[Row3]\n";
  TSectionedText sections(text, KnownHeader);
  const auto next = [&](std::string_view name) {
    const auto section = sections.Next(name);
    return section ? section->Value("N") : "none";
  };
  EXPECT_EQ(next("row2"), "b");
  EXPECT_EQ(next("Row2"), "none");
  EXPECT_EQ(next("Row1"), "c");
  EXPECT_EQ(next("Row1"), "none");
  sections.Rewind();
  EXPECT_EQ(next("Row1"), "a");
}

TEST(SectionedText, KeepsFreeLinesWhateverTheyHold) {
  const TStrings texts[] = {{},
                            {""},
                            {" "},
                            {"SELECT 1", "", "WHERE [a]", "[Price]", ""},
                            {"[Main]", " [Main]", "  [Text]", "[Main] ", "[]", "[", "]"},
                            {"Key=value\\n", "\t", "ż"}};
  for (const TStrings& lines : texts) {
    TSectionWriter writer(KnownHeader);
    writer.Header("Text");
    writer.FreeLines(lines);
    writer.Line("");
    writer.Header("End");
    writer.Key("A", 1);
    TSectionedText sections(writer.Text(), KnownHeader);
    EXPECT_EQ(sections.FirstFree("text"), lines);
    EXPECT_EQ(sections.NextFree("Text"), lines);
    EXPECT_EQ(sections.Next("End").value().Integer("A", 0), 1);
    EXPECT_FALSE(sections.First("Main")) << writer.Text();
  }
  TSectionWriter last(KnownHeader);
  last.Header("Text");
  last.FreeLines({"one\r\n[Main]\ntwo", ""});
  EXPECT_EQ(last.Text(), "[Text]\r\none\r\n [Main]\r\ntwo\r\n\r\n");
  EXPECT_EQ(TSectionedText(last.Text(), KnownHeader).FirstFree("Text"), (TStrings{"one", "[Main]", "two", ""}));
}

TEST(SectionedText, KeepsValuesThatHoldLineBreaks) {
  for (const std::string value : {"", "plain", "a\r\nb\\n", "a\nb\r", "\n", "[Main]\r\nA=1"}) {
    TSectionWriter writer(KnownHeader);
    writer.Header("Main");
    writer.Key("Value", value);
    writer.Key("After", "x");
    const TSection main = TSectionedText(writer.Text(), KnownHeader).First("Main").value();
    EXPECT_EQ(main.Value("Value"), value);
    EXPECT_EQ(main.Value("After"), "x");
  }
  TSectionWriter writer(KnownHeader);
  writer.Key("V", "a\r\nb");
  EXPECT_EQ(writer.Text(), "V=a b\r\nV:escaped=a\\r\\nb\r\n");
  const std::string edited = "[Main]\nV=edited\nV:escaped=a\\r\\nb\n";
  EXPECT_EQ(TSectionedText(edited, KnownHeader).First("Main").value().Value("V"), "edited");
}

TEST(SectionedText, TurnsValuesIntoNumbersAndNamesThePlaceOfABadOne) {
  const std::string text = "\n[Row1]\r\nN= 42 \r\nEmpty=\r\nYes=Yes\r\nBad=4x2\r\nBig=99999999999999999999\r\n";
  const TSection row = TSectionedText(text, KnownHeader).First("Row1").value();
  EXPECT_EQ(row.Integer("N", 7), 42);
  EXPECT_EQ(row.Integer("Empty", 7), 7);
  EXPECT_EQ(row.Integer("Missing", 7), 7);
  EXPECT_TRUE(row.Boolean("Yes", false));
  EXPECT_TRUE(row.Boolean("Empty", true));
  EXPECT_EQ(row.LineOf("Bad"), 6u);
  EXPECT_EQ(row.LineOf("Missing"), 2u);
  EXPECT_EQ(ErrorOf([&] { row.Integer("Bad", 0); }),
            "Line 6, section \"Row1\", key \"Bad\": '4x2' is not a valid integer value");
  EXPECT_EQ(ErrorOf([&] { row.Boolean("N", false); }),
            "Line 3, section \"Row1\", key \"N\": '42' is not a valid boolean value");
  EXPECT_NE(ErrorOf([&] { row.Integer("Big", 0); }), "none");
}

TEST(SectionLines, AreReadFromLineLists) {
  const TStrings lines{"x=0", "[Main]", "A=1", "", "free", "B=2", "[Row]", "A=3", "[main]", "A=4"};
  EXPECT_EQ(XReadSLSectionValues(lines, "MAIN"), (TStrings{"A=1", "B=2"}));
  EXPECT_TRUE(XReadSLSectionValues(lines, "None").Empty());
  EXPECT_EQ(ReadSLSections(lines), (TStrings{"Main", "Row", "main"}));
}

}  // namespace
