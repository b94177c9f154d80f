#include <gtest/gtest.h>

#include <tolvi/foundation/datetime.h>
#include <tolvi/foundation/errors.h>

namespace tolvi {
namespace {

constexpr std::string_view Full = "yyyy-mm-dd hh:nn:ss.zzz";

TDateTime At(std::string_view text) { return TryStrToDateTimeByFormat(text, Full).value(); }

TFormatSettings German() {
  TFormatSettings settings;
  settings.DateSeparator = '.';
  settings.ShortDateFormat = "d/m/yyyy";
  settings.ShortTimeFormat = "h:nn";
  return settings;
}

TEST(DateTime, CountsDaysFromTheEndOf1899) {
  const struct {
    TDateTime Value;
    std::string_view Text;
  } cases[] = {{0, "1899-12-30 00:00:00.000"},
               {36526, "2000-01-01 00:00:00.000"},
               {36526.75, "2000-01-01 18:00:00.000"},
               {45351.999999994, "2024-02-29 23:59:59.999"},
               {45351.999999999, "2024-03-01 00:00:00.000"},  // rounding may reach the next day
               {-1.25, "1899-12-29 06:00:00.000"},            // the time counts forward on every day
               {-693593, "0001-01-01 00:00:00.000"},
               {2958465.5, "9999-12-31 12:00:00.000"}};
  for (const auto& item : cases) {
    EXPECT_EQ(FormatDateTime(Full, item.Value), item.Text);
    EXPECT_NEAR(At(item.Text), item.Value, 1e-8);
  }
}

TEST(DateTime, RefusesOtherYearsAndDaysThatDoNotExist) {
  for (const TDateTime value : {-693594.0, 2958466.0, 1e300}) EXPECT_THROW(DecodeDateTime(value), EConvertError);
  const TDateTimeParts impossible[] = {{2023, 2, 29}, {1900, 2, 29},       {0, 1, 1},
                                       {2000, 13, 1}, {2000, 1, 1, 24, 0}, {2000, 1, 1, 0, 60}};
  for (const TDateTimeParts& parts : impossible) EXPECT_EQ(TryEncodeDateTime(parts), std::nullopt);
  try {
    DecodeDateTime(2958466);
  } catch (const EConvertError& error) {
    EXPECT_EQ(error.Message(), "'2958466' is not a valid date and time");
  }
}

TEST(FormatDateTime, WritesByThePattern) {
  const TDateTime value = At("2005-07-03 14:05:09.042");  // a Sunday
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"d.m.yy", "3.7.05"},
      {"dd mmm yyyy", "03 Jul 2005"},
      {"dddd, d mmmm", "Sunday, 3 July"},
      {"ddd YYYY-MM-DD", "Sun 2005-07-03"},
      {"hh:mm mm", "14:05 07"},  // minutes only right after the hour
      {"h:n:s.z", "14:5:9.42"},
      {"h:nn am/pm A/P", "2:05 pm P"},
      {"'at' h \"o'clock\"", "at 14 o'clock"},
      {"c", "2005-07-03 14:05:09"},
      {"ddddd t", "2005-07-03 14:05"},
      {"'open", "open"},
  };
  for (const auto& [pattern, text] : cases) EXPECT_EQ(FormatDateTime(pattern, value), text) << pattern;
  EXPECT_EQ(FormatDateTime("h am/pm", 0), "12 am");
  EXPECT_EQ(FormatDateTime("h am/pm", 0.5), "12 pm");
  TFormatSettings endless;
  endless.ShortDateFormat = "yyyy c";
  EXPECT_EQ(DateToStr(36526, endless), "2000 2000 ");
}

TEST(DateTimeTexts, FollowTheSettingsAndAreReadBack) {
  const TDateTime value = At("2024-02-03 04:05:06.000");
  EXPECT_EQ(DateToStr(value, German()), "3.2.2024");
  EXPECT_EQ(TimeToStr(value, German()), "04:05:06");
  EXPECT_EQ(DateTimeToStr(value, German()), "3.2.2024 04:05:06");
  EXPECT_EQ(DateTimeToStr(36526), "2000-01-01");
  EXPECT_EQ(TryStrToDateTime(" 3.2.2024 04:05:06 ", German()), value);
  EXPECT_EQ(TryStrToDateTime("03.02.2024 4:05", German()), At("2024-02-03 04:05:00.000"));
  EXPECT_EQ(TryStrToDateTime("2000-01-01"), 36526);
  EXPECT_EQ(TryStrToDateTime("18:00"), 0.75);
  for (const auto* bad : {"", "2000-02-30", "2000-01-01x", "25:00", "3.2.2024", "36526", "2000-01-01 18"}) {
    EXPECT_EQ(TryStrToDateTime(bad), std::nullopt) << bad;
  }
  TFormatSettings names;
  names.ShortDateFormat = "ddd d mmm yyyy";
  names.LongTimeFormat = "h:nn:ss am/pm";
  for (const auto* text : {"2024-02-03 00:30:00.000", "2024-05-03 12:00:01.000", "2024-12-31 23:59:59.000"}) {
    EXPECT_EQ(TryStrToDateTime(DateTimeToStr(At(text), names), names), At(text));
  }
}

TEST(TryStrToDateTimeByFormat, FitsThePatternExactly) {
  const struct {
    std::string_view Text, Pattern, Expected;
  } cases[] = {{"03.02.2024 04:05:06", "dd.mm.yyyy hh:nn:ss", "2024-02-03 04:05:06.000"},
               {"3.2.2024 4:5:6", "dd.mm.yyyy hh:mm:ss", "2024-02-03 04:05:06.000"},
               {"20240203", "yyyymmdd", "2024-02-03 00:00:00.000"},
               {"12/2024", "mm/yyyy", "2024-12-01 00:00:00.000"},
               {"07:30", "hh:nn", "1899-12-30 07:30:00.000"},
               {"{d '2024-02-03'}", "\"{d '\"yyyy-mm-dd\"'}\"", "2024-02-03 00:00:00.000"}};
  for (const auto& item : cases) {
    const auto value = TryStrToDateTimeByFormat(item.Text, item.Pattern);
    ASSERT_TRUE(value) << item.Text;
    EXPECT_EQ(FormatDateTime(Full, *value), item.Expected);
  }
  for (const auto* misfit : {"3.2.24", "3.2.2024 ", " 3.2.2024", "3-2-2024", "31.4.2024", "3.2.20245", "2.2024", ""}) {
    EXPECT_EQ(TryStrToDateTimeByFormat(misfit, "dd.mm.yyyy"), std::nullopt) << misfit;
  }
  EXPECT_EQ(TryStrToDateTimeByFormat("1:2:3.4", "hh:nn:ss.zzz"), std::nullopt);
  EXPECT_EQ(TryStrToDateTimeByFormat("x", "'x'"), std::nullopt);
}

TEST(TryStrToDateTimeByFormat, PutsTwoDigitYearsAroundThePresent) {
  const int current = DecodeDateTime(Now()).year;
  for (const int year : {current - 50, current - 1, current, current + 49}) {
    const std::string text = FormatDateTime("yy-mm-dd", *TryEncodeDateTime({year, 6, 1}));
    EXPECT_EQ(DecodeDateTime(TryStrToDateTimeByFormat(text, "yy-mm-dd").value()).year, year);
  }
}

}  // namespace
}  // namespace tolvi
