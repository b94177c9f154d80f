#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <ctime>

#include <tolvi/foundation/datepattern.h>
#include <tolvi/foundation/datetime.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr std::int64_t MSecsPerDay = std::int64_t{24} * 60 * 60 * 1000;
constexpr sys_days DayZero = std::chrono::year(1899) / 12 / 30;
constexpr std::string_view MonthNames[] = {"January", "February", "March",     "April",   "May",      "June",
                                           "July",    "August",   "September", "October", "November", "December"};
constexpr std::string_view DayNames[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

year_month_day CalendarDay(const TDateTimeParts& parts) {
  return std::chrono::year(parts.year) / std::chrono::month(static_cast<unsigned>(parts.month)) /
         std::chrono::day(static_cast<unsigned>(parts.day));
}

// ---- Writing --------------------------------------------------------------------------------------------------------

class TDateTimeWriter {
 public:
  TDateTimeWriter(TDateTime value, const TFormatSettings& settings)
      : FParts(DecodeDateTime(value)), FSettings(settings) {}

  void Write(std::string_view pattern) {
    const TPattern items = ParsePattern(pattern);
    const bool halfDays = HasHalfDays(items);
    for (const TPatternItem& item : items) WriteItem(item, halfDays);
  }

  void WriteGeneral() {
    if (FNested) return;
    WriteNested(FSettings.ShortDateFormat);
    if (FParts.hour == 0 && FParts.minute == 0 && FParts.second == 0 && FParts.millisecond == 0) return;
    FText += ' ';
    WriteNested(FSettings.LongTimeFormat);
  }

  std::string Take() { return std::move(FText); }

 private:
  void WriteItem(const TPatternItem& item, bool halfDays) {
    const std::size_t count = item.Count();
    switch (item.Kind) {
      case pkLiteral:
        FText += item.Text;
        break;
      case pkYear:
        count <= 2 ? WriteNumber(FParts.year % 100, 2) : WriteNumber(FParts.year, 4);
        break;
      case pkMonth:
        WriteNumberOrName(FParts.month, count, MonthNames[FParts.month - 1]);
        break;
      case pkDay:
        WriteDay(count);
        break;
      case pkHour:
        WriteNumber(halfDays ? (FParts.hour + 11) % 12 + 1 : FParts.hour, std::min<std::size_t>(count, 2));
        break;
      case pkMinute:
        WriteNumber(FParts.minute, std::min<std::size_t>(count, 2));
        break;
      case pkSecond:
        WriteNumber(FParts.second, std::min<std::size_t>(count, 2));
        break;
      case pkMSec:
        WriteNumber(FParts.millisecond, std::min<std::size_t>(count, 3));
        break;
      case pkShortTime:
        WriteNested(count == 1 ? FSettings.ShortTimeFormat : FSettings.LongTimeFormat);
        break;
      case pkGeneral:
        WriteGeneral();
        break;
      case pkAmPm:
        FText += HalfDayText(item.Text, FParts.hour >= 12);
        break;
      case pkDateSep:
        FText += FSettings.DateSeparator;
        break;
      case pkTimeSep:
        FText += FSettings.TimeSeparator;
        break;
    }
  }

  void WriteNumber(int number, std::size_t digits) {
    const std::string text = std::to_string(number);
    if (text.size() < digits) FText.append(digits - text.size(), '0');
    FText += text;
  }

  void WriteNumberOrName(int number, std::size_t count, std::string_view name) {
    if (count <= 2) return WriteNumber(number, count);
    FText += count == 3 ? name.substr(0, 3) : name;
  }

  void WriteDay(std::size_t count) {
    if (count >= 5) return WriteNested(FSettings.ShortDateFormat);
    const std::chrono::weekday day{sys_days{CalendarDay(FParts)}};
    WriteNumberOrName(FParts.day, count, DayNames[day.c_encoding()]);
  }

  /// Formats of the settings that stand for formats of the settings again would never end: those write nothing.
  void WriteNested(std::string_view pattern) {
    if (FNested) return;
    FNested = true;
    Write(pattern);
    FNested = false;
  }

  TDateTimeParts FParts;
  const TFormatSettings& FSettings;
  std::string FText;
  bool FNested = false;
};

// ---- Reading --------------------------------------------------------------------------------------------------------

int CurrentYear() { return DecodeDateTime(Now()).year; }

/// The year with these last two digits in the hundred years that begin 50 years before the current one.
int FullYear(int lastDigits) {
  const int first = CurrentYear() - 50;
  return first + (lastDigits - first % 100 + 100) % 100;
}

class TDateTimeReader {
 public:
  TDateTimeReader(std::string_view text, char dateSeparator, char timeSeparator)
      : FRest(text), FDateSeparator(dateSeparator), FTimeSeparator(timeSeparator) {}

  std::optional<TDateTime> Read(std::string_view pattern) {
    const TPattern items = ParsePattern(pattern);
    for (const TPatternItem& item : items) {
      if (!ReadItem(item)) return std::nullopt;
    }
    if (!FRest.empty()) return std::nullopt;
    return Result(HasHalfDays(items));
  }

 private:
  bool ReadItem(const TPatternItem& item) {
    const std::size_t count = item.Count();
    switch (item.Kind) {
      case pkLiteral:
        return ReadText(item.Text);
      case pkYear:
        return ReadYear(count);
      case pkMonth:
        return count <= 2 ? ReadNumber(FMonth, 1, 2) : ReadMonthName(count);
      case pkDay:
        return count <= 2 ? ReadNumber(FDay, 1, 2) : ReadDayName(count);
      case pkHour:
        return ReadNumber(FHour, 1, 2);
      case pkMinute:
        return ReadNumber(FMinute, 1, 2);
      case pkSecond:
        return ReadNumber(FSecond, 1, 2);
      case pkMSec:
        return ReadNumber(FMSec, std::min<std::size_t>(count, 3), 3);
      case pkAmPm:
        return ReadHalfDay(item.Text);
      case pkDateSep:
        return ReadText({&FDateSeparator, 1});
      case pkTimeSep:
        return ReadText({&FTimeSeparator, 1});
      case pkShortTime:
      case pkGeneral:
        return false;
    }
    return false;
  }

  bool ReadText(std::string_view expected) {
    if (!FRest.starts_with(expected)) return false;
    FRest.remove_prefix(expected.size());
    return true;
  }

  bool ReadName(std::string_view name) {
    if (!AsciiSameText(FRest.substr(0, name.size()), name)) return false;
    FRest.remove_prefix(name.size());
    return true;
  }

  bool ReadNumber(std::optional<int>& number, std::size_t minDigits, std::size_t maxDigits) {
    std::size_t digits = 0;
    int value = 0;
    for (; digits < std::min(maxDigits, FRest.size()) && FRest[digits] >= '0' && FRest[digits] <= '9'; ++digits) {
      value = value * 10 + (FRest[digits] - '0');
    }
    if (digits < minDigits) return false;
    FRest.remove_prefix(digits);
    number = value;
    return true;
  }

  bool ReadYear(std::size_t count) {
    const std::size_t digits = count <= 2 ? 2 : 4;
    if (!ReadNumber(FYear, digits, digits)) return false;
    if (count <= 2) FYear = FullYear(*FYear);
    return true;
  }

  bool ReadMonthName(std::size_t count) {
    for (int month = 1; month <= 12; ++month) {
      const std::string_view name = MonthNames[month - 1];
      if (!ReadName(count == 3 ? name.substr(0, 3) : name)) continue;
      FMonth = month;
      return true;
    }
    return false;
  }

  bool ReadDayName(std::size_t count) {
    return std::any_of(std::begin(DayNames), std::end(DayNames),
                       [&](std::string_view name) { return ReadName(count == 3 ? name.substr(0, 3) : name); });
  }

  bool ReadHalfDay(std::string_view clock) {
    FAfternoon = ReadName(HalfDayText(clock, true));
    return FAfternoon || ReadName(HalfDayText(clock, false));
  }

  std::optional<TDateTime> Result(bool halfDays) const {
    TDateTimeParts parts;
    const bool hasDate = FYear || FMonth || FDay;
    if (!hasDate && !FHour && !FMinute && !FSecond && !FMSec) return std::nullopt;
    if (hasDate) {
      parts.year = FYear ? *FYear : CurrentYear();
      parts.month = FMonth.value_or(1);
      parts.day = FDay.value_or(1);
    }
    parts.hour = FHour.value_or(0);
    parts.minute = FMinute.value_or(0);
    parts.second = FSecond.value_or(0);
    parts.millisecond = FMSec.value_or(0);
    if (halfDays && FHour) {
      if (parts.hour < 1 || parts.hour > 12) return std::nullopt;
      parts.hour = parts.hour % 12 + (FAfternoon ? 12 : 0);
    }
    return TryEncodeDateTime(parts);
  }

  std::string_view FRest;
  char FDateSeparator, FTimeSeparator;
  std::optional<int> FYear, FMonth, FDay, FHour, FMinute, FSecond, FMSec;
  bool FAfternoon = false;
};

}  // namespace

TDateTimeParts DecodeDateTime(TDateTime value) {
  const auto refuse = [value] { return EConvertError("'%s' is not a valid date and time", {FloatToStr(value)}); };
  if (!(std::fabs(value) < 1e7)) throw refuse();
  // The time of day counts forward from midnight before day zero as well: -1.25 is 29 December 1899, 6 o'clock.
  const std::int64_t total = std::llround(value * static_cast<double>(MSecsPerDay));
  const year_month_day date{DayZero + std::chrono::days(total / MSecsPerDay)};
  const int year = static_cast<int>(date.year());
  if (year < 1 || year > 9999) throw refuse();
  const int time = static_cast<int>(std::abs(total % MSecsPerDay));
  return {year,
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          time / 3600000,
          time / 60000 % 60,
          time / 1000 % 60,
          time % 1000};
}

std::optional<TDateTime> TryEncodeDateTime(const TDateTimeParts& parts) {
  const auto within = [](int value, int low, int high) { return value >= low && value <= high; };
  const bool possible = within(parts.year, 1, 9999) && within(parts.month, 1, 12) && within(parts.day, 1, 31) &&
                        within(parts.hour, 0, 23) && within(parts.minute, 0, 59) && within(parts.second, 0, 59) &&
                        within(parts.millisecond, 0, 999);
  const year_month_day date = CalendarDay(parts);
  if (!possible || !date.ok()) return std::nullopt;
  const auto days = static_cast<TDateTime>((sys_days{date} - DayZero).count());
  const int time = ((parts.hour * 60 + parts.minute) * 60 + parts.second) * 1000 + parts.millisecond;
  const TDateTime fraction = time / static_cast<TDateTime>(MSecsPerDay);
  return days < 0 ? days - fraction : days + fraction;
}

TDateTime Now() {
  const auto now = std::chrono::system_clock::now();
  const auto seconds = std::chrono::floor<std::chrono::seconds>(now);
  const std::time_t time = std::chrono::system_clock::to_time_t(seconds);
  const std::tm local = *std::localtime(&time);
  const auto rest = std::chrono::duration_cast<std::chrono::milliseconds>(now - seconds);
  return TryEncodeDateTime({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                            std::min(local.tm_sec, 59), static_cast<int>(rest.count())})
      .value_or(0);
}

std::string FormatDateTime(std::string_view pattern, TDateTime value, const TFormatSettings& settings) {
  TDateTimeWriter writer(value, settings);
  writer.Write(pattern);
  return writer.Take();
}

std::string DateToStr(TDateTime value, const TFormatSettings& settings) {
  return FormatDateTime(settings.ShortDateFormat, value, settings);
}

std::string TimeToStr(TDateTime value, const TFormatSettings& settings) {
  return FormatDateTime(settings.LongTimeFormat, value, settings);
}

std::string DateTimeToStr(TDateTime value, const TFormatSettings& settings) {
  TDateTimeWriter writer(value, settings);
  writer.WriteGeneral();
  return writer.Take();
}

std::optional<TDateTime> TryStrToDateTime(std::string_view text, const TFormatSettings& settings) {
  const std::string& date = settings.ShortDateFormat;
  const std::string& time = settings.LongTimeFormat;
  const std::string& shortTime = settings.ShortTimeFormat;
  for (const std::string& pattern : {date, date + ' ' + time, date + ' ' + shortTime, time, shortTime}) {
    TDateTimeReader reader(Trim(text), settings.DateSeparator, settings.TimeSeparator);
    if (const auto value = reader.Read(pattern)) return value;
  }
  return std::nullopt;
}

std::optional<TDateTime> TryStrToDateTimeByFormat(std::string_view text, std::string_view pattern) {
  return TDateTimeReader(text, '/', ':').Read(pattern);
}

}  // namespace tolvi
