#include "apps/rowformats/rowwriter.h"

#include <sstream>

#include <gtest/gtest.h>

#include "apps/rowformats/celldisplay.h"

namespace tolvi {
namespace {

constexpr std::string_view Bytes("\x00\xFF", 2);

template <typename TMake>
std::string RowsOf(TMake make, const std::vector<std::string>& columns, const std::vector<std::vector<TCell>>& rows) {
  std::ostringstream out;
  const auto writer = make(out);
  writer->Begin(columns);
  for (const std::vector<TCell>& row : rows) writer->Row(row);
  writer->End();
  return out.str();
}

std::string Rows(std::string_view format, const std::vector<std::string>& columns,
                 const std::vector<std::vector<TCell>>& rows) {
  return RowsOf([format](std::ostream& out) { return MakeRowWriter(format, out); }, columns, rows);
}

TEST(RowWriter, TableAlignsByDisplayWidthAndKeepsLinesWhole) {
  EXPECT_EQ(Rows("table", {"Name", "Sum"},
                 {{{svText, "高橋 e\u0301"}, {svNumber, "12.5"}},
                  {{svText, "two\nlines\x1b[0m"}, {svNull, {}}},
                  {{svText, "\xC3("}, {svBytes, Bytes}}}),
            "Name           Sum\n"
            "-------------  ----\n"
            "高橋 e\u0301         12.5\n"
            "two lines [0m  NULL\n"
            "\uFFFD(             00ff\n"
            "(3 rows)\n");
  EXPECT_EQ(Rows("table", {"A"}, {}), "A\n-\n(0 rows)\n");
  EXPECT_EQ(DisplayWidth("日本 ok \U0001F600"), 10U);
}

TEST(RowWriter, TableTakesItsWidthsFromTheFirstRowsOnly) {
  std::vector<std::vector<TCell>> rows(100, {{svNumber, "1"}, {svText, "x"}});
  rows.push_back({{svNumber, "12345"}, {svText, "y"}});
  const std::string text = Rows("table", {"No", "T"}, rows);
  EXPECT_TRUE(text.starts_with("No  T\n--  -\n 1  x\n")) << text;
  EXPECT_TRUE(text.ends_with(" 1  x\n12345  y\n(101 rows)\n")) << text;
}

TEST(RowWriter, CsvQuotesWhatItMustAndTellsNullFromEmpty) {
  EXPECT_EQ(Rows("csv", {"a,b", "c"}, {{{svText, "say \"hi\"\r\n"}, {svText, ""}}, {{svNull, {}}, {svBytes, Bytes}}}),
            "\"a,b\",c\n\"say \"\"hi\"\"\r\n\",\"\"\n,00ff\n");
}

TEST(RowWriter, JsonIsValidWhateverTheTextHolds) {
  EXPECT_EQ(Rows("json", {"a", "a"},
                 {{{svText, "\"\\\n\t\x7F\xC3é"}, {svNumber, "1.5"}}, {{svNull, {}}, {svNumber, "-Inf"}}}),
            "[\n{\"a\": \"\\\"\\\\\\n\\u0009\\u007f\uFFFDé\", \"a_2\": 1.5},\n{\"a\": null, \"a_2\": \"-Inf\"}\n]\n");
  EXPECT_EQ(Rows("json", {"a"}, {}), "[\n]\n");
}

TEST(RowWriter, CsvForSpreadsheetsHasItsOwnSeparatorAndMark) {
  const TCsvOptions options{.Separator = ';', .LineEnd = "\r\n", .ByteOrderMark = true};
  EXPECT_EQ(RowsOf([&options](std::ostream& out) { return MakeCsvWriter(out, options); }, {"a;b", "c,d"},
                   {{{svText, "=1+1"}, {svText, "x;y"}}, {{svBoolean, "true"}, {svNumber, "-0.50"}}}),
            "\xEF\xBB\xBF\"a;b\";c,d\r\n=1+1;\"x;y\"\r\ntrue;-0.50\r\n");
}

TEST(RowWriter, JsonKeepsBooleansAndAllDigits) {
  EXPECT_EQ(Rows("json", {"a", "b"}, {{{svBoolean, "true"}, {svNumber, "12345678901234567890.10"}}}),
            "[\n{\"a\": true, \"b\": 12345678901234567890.10}\n]\n");
}

TEST(RowWriter, JsonWritesTheNumbersOfDriversAsItsOwn) {
  const std::pair<const char*, const char*> cases[] = {
      {".5", "0.5"},      {"-.50", "-0.50"},      {"+1", "1"},        {"1.", "1"},
      {"-0", "-0"},       {"1e5", "1e5"},         {"1E+05", "1E+05"}, {".5e-3", "0.5e-3"},
      {"007", "7"},       {"000.10", "0.10"},     {"0,5", "\"0,5\""}, {"1,234.5", "\"1,234.5\""},
      {"NaN", "\"NaN\""}, {"", "\"\""},           {".", "\".\""},     {"1e", "\"1e\""},
      {"--1", "\"--1\""}, {"1.2.3", "\"1.2.3\""}, {"$1", "\"$1\""}};
  for (const auto& [text, written] : cases) {
    EXPECT_EQ(Rows("json", {"n"}, {{{svNumber, text}}}), std::string("[\n{\"n\": ") + written + "}\n]\n") << text;
  }
}

TEST(RowWriter, CsvOfOneColumnHasALineForEachRow) {
  EXPECT_EQ(Rows("csv", {"n"}, {{{svNull, {}}}, {{svText, ""}}, {{svNumber, "1"}}}), "n\n\"\"\n\"\"\n1\n");
  EXPECT_EQ(Rows("csv", {""}, {{{svNull, {}}}}), "\"\"\n\"\"\n");
}

TEST(RowWriter, MarkdownIsAlignedAndShowsTextsAsTheyAre) {
  EXPECT_EQ(RowsOf(MakeMarkdownWriter, {"first_name", "N"},
                   {{{svText, "a|b *c* _d_"}, {svNull, {}}},
                    {{svText, "line\r\nnext <b>"}, {svNumber, "-1.5"}},
                    {{svText, "日本\\"}, {svNumber, "10"}}}),
            "| first_name        |    N |\n"
            "| ----------------- | ---: |\n"
            "| a\\|b \\*c\\* \\_d\\_  |      |\n"
            "| line<br>next \\<b> | -1.5 |\n"
            "| 日本\\\\            |   10 |\n");
}

}  // namespace
}  // namespace tolvi
