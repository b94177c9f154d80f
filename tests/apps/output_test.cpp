#include "apps/tolvi/output.h"

#include <sstream>

#include <gtest/gtest.h>

namespace tolvi {
namespace {

constexpr std::string_view Bytes("\x00\xFF", 2);

std::string Rows(std::string_view format, const std::vector<std::string>& columns,
                 const std::vector<std::vector<TCell>>& rows) {
  std::ostringstream out;
  const auto writer = MakeRowWriter(format, out);
  writer->Begin(columns);
  for (const std::vector<TCell>& row : rows) writer->Row(row);
  writer->End();
  return out.str();
}

TEST(Output, TableAlignsByDisplayWidthAndKeepsLinesWhole) {
  EXPECT_EQ(Rows("table", {"Name", "Sum"},
                 {{{ckText, "高橋 e\u0301"}, {ckNumber, "12.5"}},
                  {{ckText, "two\nlines\x1b[0m"}, {ckNull, {}}},
                  {{ckText, "\xC3("}, {ckBytes, Bytes}}}),
            "Name           Sum\n"
            "-------------  ----\n"
            "高橋 e\u0301         12.5\n"
            "two lines [0m  NULL\n"
            "\uFFFD(             00ff\n"
            "(3 rows)\n");
  EXPECT_EQ(Rows("table", {"A"}, {}), "A\n-\n(0 rows)\n");
  EXPECT_EQ(DisplayWidth("日本 ok \U0001F600"), 10U);
}

TEST(Output, TableTakesItsWidthsFromTheFirstRowsOnly) {
  std::vector<std::vector<TCell>> rows(100, {{ckNumber, "1"}, {ckText, "x"}});
  rows.push_back({{ckNumber, "12345"}, {ckText, "y"}});
  const std::string text = Rows("table", {"No", "T"}, rows);
  EXPECT_TRUE(text.starts_with("No  T\n--  -\n 1  x\n")) << text;
  EXPECT_TRUE(text.ends_with(" 1  x\n12345  y\n(101 rows)\n")) << text;
}

TEST(Output, CsvQuotesWhatItMustAndTellsNullFromEmpty) {
  EXPECT_EQ(Rows("csv", {"a,b", "c"}, {{{ckText, "say \"hi\"\r\n"}, {ckText, ""}}, {{ckNull, {}}, {ckBytes, Bytes}}}),
            "\"a,b\",c\n\"say \"\"hi\"\"\r\n\",\"\"\n,00ff\n");
}

TEST(Output, JsonIsValidWhateverTheTextHolds) {
  EXPECT_EQ(Rows("json", {"a", "a"},
                 {{{ckText, "\"\\\n\t\x7F\xC3é"}, {ckNumber, "1.5"}}, {{ckNull, {}}, {ckNumber, "-Inf"}}}),
            "[\n{\"a\": \"\\\"\\\\\\n\\u0009\\u007f\uFFFDé\", \"a_2\": 1.5},\n{\"a\": null, \"a_2\": null}\n]\n");
  EXPECT_EQ(Rows("json", {"a"}, {}), "[\n]\n");
}

}  // namespace
}  // namespace tolvi
