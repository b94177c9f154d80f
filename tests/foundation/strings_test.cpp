#include <functional>
#include <set>

#include <gtest/gtest.h>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/strings.h>

using namespace tolvi;

namespace {

TEST(Strings, SplitTextAtEveryKindOfLineBreakAndJoinItWithCrLf) {
  TStrings lines;
  lines.SetText("a\r\n\nb\rc");
  EXPECT_EQ(lines, (TStrings{"a", "", "b", "c"}));
  EXPECT_EQ(lines.GetText(), "a\r\n\r\nb\r\nc\r\n");
  EXPECT_EQ(lines.Joined(", "), "a, , b, c");
  lines.SetText("");
  EXPECT_TRUE(lines.Empty());
}

TEST(Strings, KeepCommaTextThroughARoundTrip) {
  const std::pair<TStrings, std::string> cases[] = {
      {{}, ""},
      {{""}, "\"\""},
      {{"a", "b c", "d,e", "f\"g", "", "h"}, "a,\"b c\",\"d,e\",\"f\"\"g\",\"\",h"},
      {{"SELECT 1", "\tx"}, "\"SELECT 1\",\"\tx\""},
  };
  for (const auto& [lines, text] : cases) {
    EXPECT_EQ(lines.GetCommaText(), text);
    TStrings read{"old"};
    read.SetCommaText(text);
    EXPECT_EQ(read, lines);
  }
  TStrings loose;
  loose.SetCommaText("a b,c");
  EXPECT_EQ(loose, (TStrings{"a", "b", "c"}));
}

TEST(Strings, FindAndReplaceValuesByNameIgnoringCase) {
  TStrings lines{"ŻÓŁW", "Name=a=b", "NAME=second", "żółw=turtle"};
  EXPECT_EQ(lines.Value("name"), "a=b");
  EXPECT_EQ(lines.Value("ŻÓŁW"), "turtle") << "a line without \"=\" has no name";
  EXPECT_EQ(lines.Value("missing"), "");
  EXPECT_EQ(lines.IndexOf("żółw"), 0);
  EXPECT_EQ(lines.IndexOfName("a"), -1);
  lines.SetValue("name", "new");
  lines.SetValue("Added", "");
  EXPECT_EQ(lines, (TStrings{"ŻÓŁW", "Name=new", "NAME=second", "żółw=turtle", "Added="}));
  EXPECT_EQ(lines.NameAt(0), "ŻÓŁW");
  EXPECT_EQ(lines.ValueAt(0), "");
}

TEST(Strings, RefuseIndexesOutsideTheListAndMayBeAddedToThemselves) {
  TStrings lines{"a", "b"};
  lines.AddStrings(lines);
  EXPECT_EQ(lines, (TStrings{"a", "b", "a", "b"}));
  lines.Insert(4, "end");
  EXPECT_EQ(lines[4], "end");
  const std::function<void()> faults[] = {[&] { lines[5]; }, [&] { lines.Delete(5); }, [&] { lines.SetLine(5, ""); }};
  for (const auto& fault : faults) {
    try {
      fault();
      ADD_FAILURE();
    } catch (const EListError& error) {
      EXPECT_EQ(error.Message(), "List index out of bounds (5)");
    }
  }
}

TEST(Messages, AreListedOnceEach) {
  std::set<std::string_view> names;
  for (const TMessage& message : AllMessages()) EXPECT_TRUE(names.insert(message.Name).second) << message.Name;
  EXPECT_EQ(names.size(), 48u);
  EXPECT_EQ(AllMessages().front().Text, "Error");
  EXPECT_EQ(AllMessages().back().Text, SNoPathBetween.Text);
}

}  // namespace
