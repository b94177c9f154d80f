#include <functional>
#include <string>
#include <string_view>
#include <variant>

#include <gtest/gtest.h>

#include <tolvi/foundation/errors.h>
#include <tolvi/model/sqlformats.h>
#include <tolvi/query/values.h>

namespace tolvi {
namespace {

TFormatSettings German() { return {',', '.', ':', "dd.mm.yyyy", "hh:nn:ss", "hh:nn"}; }

/// The literal, or the message of the error.
std::string Outcome(const std::function<void(std::string&)>& append) {
  std::string out;
  try {
    append(out);
  } catch (const EJQueryPanelError& error) {
    return error.Message();
  }
  return out;
}

class Values : public testing::Test {
 protected:
  std::string Literal(std::string_view value, TFieldType type, std::string_view before = {},
                      std::string_view after = {}) {
    return Outcome([&](std::string& out) { AppendLiteral(out, value, type, context, before, after); });
  }
  TBoundValue Bound(std::string_view value, TFieldType type, std::string_view before = {},
                    std::string_view after = {}) {
    return ToBoundValue(value, type, context, before, after);
  }

  TSQLFormats formats;
  TFormatSettings settings;
  TValueContext context{formats, settings, ssSQL2, "F"};
};

TEST_F(Values, BecomeOneLiteralOfTheirType) {
  const struct {
    TFieldType type;
    std::string_view value, literal;
  } cases[] = {
      {ftString, "O'Hara", "'O''Hara'"},
      {ftString, "'", "''''"},
      {ftString, "", "''"},
      {ftString, "żółw\r\n\\--", "'żółw\r\n\\--'"},
      {ftGuid, "{0}", "'{0}'"},
      {ftUnknown, "1 or 1=1", "'1 or 1=1'"},
      {ftInteger, "", "0"},
      {ftInteger, " +007 ", "7"},
      {ftSmallint, "-32768", "-32768"},
      {ftSmallint, "1 or 1=1", "Field \"F\": \"1 or 1=1\" is not a whole number from -32768 to 32767"},
      {ftWord, "-1", "Field \"F\": \"-1\" is not a whole number from 0 to 65535"},
      {ftByte, "256", "Field \"F\": \"256\" is not a whole number from 0 to 255"},
      {ftShortint, "-129", "Field \"F\": \"-129\" is not a whole number from -128 to 127"},
      {ftLongWord, "4294967295", "4294967295"},
      {ftAutoInc, "2147483648", "Field \"F\": \"2147483648\" is not a whole number from -2147483648 to 2147483647"},
      {ftLargeint, "-9223372036854775808", "-9223372036854775808"},
      {ftFloat, "-00.50", "-0.50"},
      {ftFloat, ".5e+07", "0.5E7"},
      {ftFloat, "-0.0", "0.0"},
      {ftFloat, "1.2.3", "Field \"F\": \"1.2.3\" is not a number such as 12.5"},
      {ftFloat, "nan", "Field \"F\": \"nan\" is not a number such as 12.5"},
      {ftExtended, "1e999", "Field \"F\": \"1e999\" is not a number whose size is 0 or from 2.2E-308 to 1.7E308"},
      {ftSingle, "1e39", "Field \"F\": \"1e39\" is not a number whose size is 0 or from 1.2E-38 to 3.4E38"},
      {ftBCD, "", "0"},
      {ftFMTBcd, "+12345678901234567890.12345678901234567890", "12345678901234567890.12345678901234567890"},
      {ftBCD, "1e5", "Field \"F\": \"1e5\" is not a number such as 12.5"},
      {ftCurrency, "-922337203685477.5807", "-922337203685477.5807"},
      {ftCurrency, "922337203685477.5808",
       "Field \"F\": \"922337203685477.5808\" is not an amount from -922337203685477.5807 to 922337203685477.5807"},
      {ftBoolean, "", "'false'"},
      {ftBoolean, " YES ", "'true'"},
      {ftBoolean, "perhaps", "Field \"F\": \"perhaps\" is neither true nor false"},
      {ftDate, "", "'1899-12-30'"},
      {ftDate, "36526", "'2000-01-01'"},
      {ftTime, "13:45", "'13:45:00'"},
      {ftTimeStamp, "2000-01-01 06:00:00", "'2000-01-01 06:00:00'"},
      {ftDate, "1e9", "Field \"F\": \"1e9\" is not a date such as 1999-12-31"},
      {ftTime, "noon", "Field \"F\": \"noon\" is not a time such as 12:00:00"},
      {ftDateTime, "?", "Field \"F\": \"?\" is not a date and time such as 1999-12-31 12:00:00"},
  };
  for (const auto& [type, value, literal] : cases) EXPECT_EQ(Literal(value, type), literal) << FldTypeToStr(type);
}

TEST_F(Values, FollowTheLocaleAndTheFormats) {
  settings = German();
  EXPECT_EQ(Literal("-1,5", ftFloat) + Literal("1.5", ftCurrency), "-1.51.5");
  EXPECT_EQ(Literal("1.000,5", ftFloat), "Field \"F\": \"1.000,5\" is not a number such as 12,5");
  EXPECT_EQ(Literal("31.12.2020", ftDate) + Literal("0,5", ftTime), "'2020-12-31''12:00:00'");
  EXPECT_EQ(Literal("31/12/2020", ftDate), "Field \"F\": \"31/12/2020\" is not a date such as 31.12.1999");
  formats.SetTrueValue("it's");
  EXPECT_EQ(Literal("IT'S", ftBoolean), "'it''s'");
  formats.SetDate("#mm/dd/yyyy#");
  formats.SetTime("\"'\"hh:mm\"'\"");
  formats.SetDateTime("'yyyymmdd hhmm'");
  EXPECT_EQ(Literal("44196.75", ftDate) + Literal("44196.75", ftTime) + Literal("44196.75", ftDateTime),
            "#12/31/2020#'18:00''20201231 1800'")
      << "separators do not come from the locale";
  formats.SetQuotedTypes({ftInteger});
  EXPECT_EQ(Literal("5", ftInteger) + Literal("a", ftString) + Literal("no", ftBoolean), "'5''a'false")
      << "text is quoted whatever the formats say";
}

TEST_F(Values, DatesFollowTheSyntax) {
  formats.SetDate("#mm/dd/yyyy#");
  const std::string all = "36526.25";
  context.Syntax = ssOracle;
  for (const TFieldType type : {ftDate, ftTime, ftDateTime, ftTimeStamp}) {
    EXPECT_EQ(Literal(all, type), "TO_DATE('01-01-2000 06:00:00', 'dd-mm-yyyy hh24:mi:ss')");
  }
  EXPECT_EQ(
      Literal("1", ftDate, "%"),
      "Field \"F\": \"1\" becomes TO_DATE('31-12-1899 00:00:00', 'dd-mm-yyyy hh24:mi:ss'), which cannot be part of "
      "a text: choose another operator for the date");
  EXPECT_EQ(Bound(all, ftDateTime).Text, "2000-01-01 06:00:00");
  context.Syntax = ssNexusDB;
  EXPECT_EQ(Literal(all, ftDate) + Literal(all, ftTime) + Literal(all, ftDateTime) + Literal(all, ftTimeStamp),
            "DATE '2000-01-01'TIME '06:00:00'TIMESTAMP '2000-01-01 06:00:00'TIMESTAMP '2000-01-01 06:00:00'");
}

TEST_F(Values, StandInOneLiteralWithTheTextBesideThem) {
  EXPECT_EQ(Literal("O'Hara", ftString, "''%", "%"), "'''%O''Hara%'");
  EXPECT_EQ(Literal("05", ftInteger, "%", "%") + Literal("", ftBoolean, "", "%") + Literal("1", ftDate, "%", "%"),
            "'%5%''false%''%1899-12-31%'");
  const TBoundValue bound = Bound("O'Hara", ftMemo, "''%", "%");
  EXPECT_EQ(std::get<std::string>(bound.Value), "'%O'Hara%");
  EXPECT_EQ(bound.Text, "'%O'Hara%");
  EXPECT_EQ(bound.Type, ftMemo);
  EXPECT_EQ(Bound("05", ftInteger, "", "%").Text, "5%");
  EXPECT_EQ(Bound("05", ftInteger, "", "%").Type, ftString);
}

TEST_F(Values, NeverBeginACommentWithAMinusBeforeThem) {
  std::string out = "a-";
  AppendLiteral(out, "-1", ftInteger, context);
  EXPECT_EQ(out, "a- -1");
}

TEST_F(Values, BoundOnesAreTyped) {
  EXPECT_EQ(std::get<std::int64_t>(Bound("+5", ftWord).Value), 5);
  EXPECT_EQ(std::get<double>(Bound(".5", ftFloat).Value), 0.5);
  EXPECT_EQ(std::get<std::string>(Bound("0.10", ftCurrency).Value), "0.10");
  EXPECT_EQ(std::get<bool>(Bound("Y", ftBoolean).Value), true);
  EXPECT_EQ(Bound("Y", ftBoolean).Text, "true");
  EXPECT_EQ(std::get<double>(Bound("36526.5", ftDate).Value), 36526.5);
  EXPECT_EQ(Bound("36526.5", ftDate).Text, "2000-01-01");
  EXPECT_THROW(Bound("x", ftDate), EJQueryPanelError);
  formats.SetDate("#mm/dd/yyyy#");
  EXPECT_EQ(Bound("36526", ftDate).Text, "01/01/2000");
}

TEST_F(Values, OfAListAreLiteralsOfTheirOwn) {
  const auto list = [&](std::string_view text, TFieldType type, std::string_view beside) {
    return Outcome([&](std::string& out) { AppendLiteralList(out, text, type, context, beside, beside); });
  };
  EXPECT_EQ(list("Paris,\"New York\",\"\"\"Q\"\"\"", ftString, ""), "'Paris','New York','\"Q\"'");
  EXPECT_EQ(list("1, 02", ftInteger, ""), "1,2");
  EXPECT_EQ(list("a,b'", ftString, "%"), "'%a%','%b''%'");
  EXPECT_EQ(list("", ftString, ""), "Field \"F\": the list is empty, give at least one value");
}

TEST_F(Values, OfTextThatNoSQLCanHoldAreRefusedWithAReadableMessage) {
  using namespace std::string_view_literals;
  EXPECT_EQ(Literal("a\0b\n"sv, ftString),
            "Field \"F\": \"a?b?\" holds a NUL character, which SQL cannot hold: take it out");
  EXPECT_EQ(Literal("\xC3\xA9\xC3(\xF0\x9F", ftBlob),
            "Field \"F\": \"é?(??\" holds bytes that are no UTF-8 text: enter it anew");
  const std::string kept(59, 'x');
  EXPECT_EQ(Literal(kept + "éé", ftInteger),
            "Field \"F\": \"" + kept + "...\" is not a whole number from -2147483648 to 2147483647");
}

TEST(ValueTexts, AreWrittenForPeopleAndForStoring) {
  const TFormatSettings german = German();
  EXPECT_EQ(ValueToDisplay("44196.5", ftDateTime, german), "31.12.2020 12:00:00");
  EXPECT_EQ(ValueToDisplay("0.5", ftTime, german), "12:00:00");
  EXPECT_EQ(ValueToDisplay("", ftDate, german) + ValueToDisplay("soon", ftDate, german), "soon");
  EXPECT_EQ(NormalizeValue("31.12.2020 12:00", ftDateTime, german), "44196.5");
  EXPECT_EQ(NormalizeValue("+1,50", ftFloat, german) + NormalizeValue(" 07", ftInteger, german), "1.507");
  EXPECT_EQ(NormalizeValue("y", ftBoolean, german) + NormalizeValue("1x", ftByte, german), "True1x");
}

}  // namespace
}  // namespace tolvi
