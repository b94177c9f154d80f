#include <limits>

#include <gtest/gtest.h>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/numbers.h>

namespace tolvi {
namespace {

const TFormatSettings Comma{.DecimalSeparator = ','};

template <typename TCall>
std::string ErrorOf(TCall call) {
  try {
    call();
  } catch (const EConvertError& error) {
    return error.Message();
  }
  return "no error";
}

TEST(Floats, AreWrittenWithFifteenDigitsAndNoNeedlessExponent) {
  const std::pair<double, std::string_view> cases[] = {
      {0, "0"},
      {-0.0, "0"},
      {0.5, "0.5"},
      {36526, "36526"},
      {-12.25, "-12.25"},
      {0.1 + 0.2, "0.3"},
      {100, "100"},
      {1.0 / 3, "0.333333333333333"},
      {1e15, "1E15"},
      {-1.25e300, "-1.25E300"},
      {0.00001234, "0.00001234"},
      {999999999999999.9, "1000000000000000"},
  };
  for (const auto& [value, text] : cases) {
    EXPECT_EQ(FloatToStr(value), text);
    EXPECT_NEAR(StrToFloat(text), value, std::abs(value) * 1e-14);
  }
  EXPECT_EQ(FloatToStr(2.5, Comma), "2,5");
  EXPECT_EQ(FloatToStr(0.05, Comma), "0,05");
  EXPECT_EQ(XFloatToStr(3.6), "3.6");
}

TEST(Floats, AreReadWholeOrNotAtAll) {
  EXPECT_EQ(TryStrToFloat(" +3.5e2 "), 350);
  EXPECT_EQ(TryStrToFloat(".5"), 0.5);
  EXPECT_EQ(TryStrToFloat("-5."), -5);
  EXPECT_EQ(TryStrToFloat("2,5", Comma), 2.5);
  EXPECT_EQ(TryStrToFloat("2.5", Comma), std::nullopt);
  for (const auto* bad : {"", " ", ".", "-", "+-1", "1e", "1e+", "1 2", "0x10", "inf", "nan", "1e999", "1,5", "1.5x"}) {
    EXPECT_EQ(TryStrToFloat(bad), std::nullopt) << bad;
  }
  EXPECT_EQ(ErrorOf([] { StrToFloat("1,5"); }), "'1,5' is not a valid floating point value");
  EXPECT_EQ(ErrorOf([] { XStrToFloat(" x"); }), "' x' is not a valid floating point value");
}

TEST(Integers, AreReadWholeOrNotAtAll) {
  EXPECT_EQ(TryStrToInt(" -42 "), -42);
  EXPECT_EQ(TryStrToInt("+7"), 7);
  EXPECT_EQ(TryStrToInt("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
  for (const auto* bad : {"", "-", "+-7", "++7", "1.0", "0x1", "9223372036854775808", "7 8"}) {
    EXPECT_EQ(TryStrToInt(bad), std::nullopt) << bad;
    EXPECT_EQ(XStrToInt(bad, 5), 5);
  }
  EXPECT_EQ(ErrorOf([] { StrToInt("seven"); }), "'seven' is not a valid integer value");
}

TEST(Booleans, AreReadInEveryFormOfTheTextFormats) {
  for (const auto* text : {"1", "true", "TRUE", "Yes", "t", "Y"}) EXPECT_EQ(TryXStrToBool(text), true) << text;
  for (const auto* text : {"0", "false", "False", "NO", "f", "n"}) EXPECT_EQ(TryXStrToBool(text), false) << text;
  for (const auto* text : {"", "2", "on", "tru", "-1"}) EXPECT_EQ(TryXStrToBool(text), std::nullopt) << text;
  EXPECT_EQ(ErrorOf([] { XStrToBool("on"); }), "'on' is not a valid boolean value");
  EXPECT_EQ(XBoolToStr(true), "1");
  EXPECT_EQ(XBoolToStr(false), "0");
}

}  // namespace
}  // namespace tolvi
