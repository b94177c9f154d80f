#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <tolvi/foundation/errors.h>
#include <tolvi/sqlimport/selecttext.h>

namespace tolvi {
namespace {

using namespace std::string_literals;

// The tokens with blanks between, each after the letter of its kind: n and q for names, w for words, i, s, p, and none
// for symbols.
std::string Tokens(const TSelectText& text) {
  std::string tokens;
  for (std::size_t i = 0; i < text.Count(); ++i) {
    if (i > 0) tokens += ' ';
    const char kind = "enqwispy"[text[i].Kind];
    if (kind != 'y') (tokens += kind) += ':';
    tokens += text[i].Text;
  }
  return tokens;
}

std::string ErrorOf(std::string_view sql, char open = '"', char close = '"') {
  try {
    const TSelectText text(sql, open, close);
    return Tokens(text);
  } catch (const ESQLImportError& error) {
    return error.Message();
  }
}

TEST(SelectText, TellsNamesValuesAndOperators) {
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"\xEF\xBB\xBFSelect -- x\n a /* ' */ ;; ", "w:Select n:a"},
      {"a;b;", "n:a ; n:b"},
      {"\"a\"\"b\" \"--\" \"it's\" 'x''y' \"\"", "q:\"a\"\"b\" q:\"--\" q:\"it's\" s:'x''y' q:\"\""},
      {"1. 1.5e3 .5 t.5 0xFF 7x 1.from", "i:1. i:1.5e3 i:.5 n:t . i:5 i:0xFF i:7x i:1. w:from"},
      {":a :1 :from = :b-:c in:d ?,?2 $1 @p @@rows",
       "p::a p::1 p::from = p::b - p::c w:in p::d p:? , p:?2 p:$1 p:@p p:@@rows"},
      {"a::int b[1:2] [x:y] v$1 t@link 5:30 $x : a",
       "n:a : : n:int n:b [ i:1 : i:2 ] [ n:x : n:y ] n:v $ i:1 n:t @ "
       "n:link i:5 : i:30 $ n:x : n:a"},
      {"a<=>b a->>'x' a||-b a<>-1 a=+1 a!=@p a<@b a <@ b",
       "n:a <=> n:b n:a ->> s:'x' n:a || - n:b n:a <> - i:1 n:a = + "
       "i:1 n:a != p:@p n:a < p:@b n:a <@ n:b"},
      {"d>#2020-01-02#>e a#>b 2*/**/3 5- --", "n:d > # i:2020 - i:01 - i:02 # > n:e n:a #> n:b i:2 * i:3 i:5 -"},
      {"t.order t.* . select", "n:t . n:order n:t . * . n:select"},
  };
  for (const auto& [sql, tokens] : cases) EXPECT_EQ(ErrorOf(sql), tokens) << sql;
  EXPECT_EQ(ErrorOf("[a]]b].[c\"] \"d\"", '[', ']'), "q:[a]]b] . q:[c\"] q:\"d\"");
  EXPECT_EQ(ErrorOf("`a``b` [1]", '`', '`'), "q:`a``b` [ i:1 ]");
}

// Databases differ about these words: each is more than a name only where it begins something.
TEST(SelectText, ReservesWordsByTheirPlace) {
  const std::pair<std::string, std::string> cases[] = {
      {"select top 5 top, all from", "w:select w:top i:5 n:top , n:all w:from"},
      {"select all distinct top(5) top", "w:select w:all w:distinct w:top ( i:5 ) n:top"},
      {"select limit, t limit 5 offset ?", "w:select n:limit , n:t w:limit i:5 w:offset p:?"},
      {"where offset > 5 and limit = 1", "w:where n:offset > i:5 w:and n:limit = i:1"},
      {"a left join left on left(right, 1)", "n:a w:left w:join n:left w:on n:left ( n:right , i:1 )"},
      {"a full outer join b natural left join c cross d cross join e inner, outer",
       "n:a w:full w:outer w:join n:b w:natural w:left w:join n:c n:cross n:d w:cross w:join n:e n:inner , n:outer"},
      {"by desc desc, asc nulls last, nulls, first", "w:by n:desc w:desc , n:asc w:nulls n:last , n:nulls , n:first"},
      {"t fetch first 5 rows, fetch for update, for",
       "n:t w:fetch n:first i:5 n:rows , n:fetch w:for n:update , n:for"},
      {"t window w as (x), window", "n:t w:window n:w w:as ( n:x ) , n:window"},
      {"case when a then case b end end end", "w:case n:when n:a n:then w:case n:b w:end w:end n:end"},
      {"exists (x), exists", "w:exists ( n:x ) , n:exists"},
      {"a minus select b minus c", "n:a w:minus w:select n:b n:minus n:c"},
      {"a into b, into from t option (x)", "n:a w:into n:b , n:into w:from n:t w:option ( n:x )"},
      {"select unique a, unique", "w:select w:unique n:a , n:unique"},
      {"t with (nolock) x with time zone", "n:t w:with ( n:nolock ) n:x n:with n:time n:zone"},
  };
  for (const auto& [sql, tokens] : cases) EXPECT_EQ(ErrorOf(sql), tokens) << sql;
}

TEST(SelectText, RefusesWhatDoesNotEndWithItsPlace) {
  const std::pair<std::string, std::string> cases[] = {
      {"a\r\n  'b''", "Line 2, column 3: The text in quotes does not end: a \"'\" is missing"},
      {"\xEF\xBB\xBF\"b\"\"", "Line 1, column 1: The name in quotes does not end: a '\"' is missing"},
      {"a /* b", "Line 1, column 3: The comment does not end: close it with \"*/\""},
      {"(a", "Line 1, column 1: \"(\" is not closed"},
      {"a\n)", "Line 2, column 1: \")\" has no \"(\" before it"},
      {"(a]", "Line 1, column 3: \"]\" has no \"[\" before it"},
      {"(case a)", "Line 1, column 2: CASE has no END"},
      {"case a", "Line 1, column 1: CASE has no END"},
      {"$q$ or $q$", "Line 1, column 1: A text between dollar signs cannot be read: put it in single quotes"},
      {"a '\x01' \x01", "Line 1, column 7: The text holds a control character"},
      {"a\nb\0"s, "Line 2, column 2: The text holds a NUL"},
      {std::string(1001, '('), "Line 1, column 1001: Brackets are nested deeper than 1000 levels: use fewer of them"},
  };
  for (const auto& [sql, message] : cases) EXPECT_EQ(ErrorOf(sql), message) << sql;
  EXPECT_EQ(ErrorOf("[a", '[', ']'), "Line 1, column 1: The name in quotes does not end: a \"]\" is missing");
}

TEST(SelectText, KnowsPlacesPairsAndTexts) {
  const TSelectText text("a\r\n (case 'é'  end) -- x\n;\n", '"', '"', 10);
  ASSERT_EQ(text.Count(), 6U);
  EXPECT_EQ(text[1].Partner, 5U);
  EXPECT_EQ(text[5].Partner, 1U);
  EXPECT_EQ(text[2].Partner, 4U);
  EXPECT_EQ(text.TextOf({1, 99}), "(case 'é'  end)");
  EXPECT_EQ(text.TextOf({3, 3}), "");
  EXPECT_EQ(text.TextOf(text.WithoutBrackets({1, 6})), "case 'é'  end");
  EXPECT_EQ(text.WithoutBrackets({0, 6}).Begin, 0U);
  EXPECT_EQ(text[99].Kind, stkEnd);
  EXPECT_EQ(std::pair(text.LineOf(0), text.ColumnOf(0)), std::pair(10, 1));
  EXPECT_EQ(std::pair(text.LineOf(4), text.ColumnOf(4)), std::pair(11, 14));
  EXPECT_EQ(std::pair(text.LineOf(6), text.ColumnOf(6)), std::pair(11, 18));
  EXPECT_EQ(TSelectText("[a]]b]", '[', ']')[0].Name(), "a]b");
  EXPECT_EQ(TSelectText("'it''s'")[0].Name(), "it's");
}

}  // namespace
}  // namespace tolvi
