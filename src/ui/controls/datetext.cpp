#include <string>
#include <vector>

#include <tolvi/ui/controls/datetext.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

namespace {

constexpr QLatin1String isoDate("yyyy-mm-dd"), isoTime("hh:nn:ss"), shortTime("hh:nn");

/// The pattern of a locale names months "M" and may leave leading zeros out. Those with names of months do not count.
QString LocaleDateFormat(const QLocale& locale) {
  const QString given = locale.dateFormat(QLocale::ShortFormat);
  if (given.contains(QLatin1String("MMM"))) return isoDate;
  QString format;
  QChar last;
  for (const QChar letter : given) {
    const bool part = letter == u'd' || letter == u'M' || letter == u'y';
    const bool repeated = letter == last;
    if (letter.category() == QChar::Other_Format || letter == u'\'') continue;
    last = letter;
    if (!part)
      format += letter.unicode() < 0x80 ? letter : QChar(u' ');
    else if (!repeated)
      format += letter == u'd' ? QLatin1String("dd") : letter == u'M' ? QLatin1String("mm") : QLatin1String("yyyy");
  }
  const QString trimmed = format.trimmed();
  return WriteDate(0, trimmed).contains(QLatin1String("1899")) ? trimmed : QString(isoDate);
}

QString WithShortYear(QString format) { return format.replace(QLatin1String("yyyy"), QLatin1String("yy")); }

}  // namespace

QString IsoFormat(TDateKind kind) {
  if (kind == TDateKind::dkDate) return isoDate;
  return kind == TDateKind::dkTime ? QString(isoTime) : isoDate + u' ' + isoTime;
}

QString LocaleFormat(TDateKind kind, const QLocale& locale) {
  if (kind == TDateKind::dkTime) return isoTime;
  const QString date = LocaleDateFormat(locale);
  return kind == TDateKind::dkDate ? date : date + u' ' + isoTime;
}

std::optional<TDateTime> ReadDate(const QString& text, TDateKind kind, const QString& format) {
  std::vector<QString> patterns{format, WithShortYear(format)};
  if (kind == TDateKind::dkTime) {
    patterns.insert(patterns.end(), {isoTime, shortTime});
  } else {
    // The date of a pattern for both stands before the first blank that an hour follows.
    const QString date = format.section(QLatin1String(" h"), 0, 0);
    for (const QString& form : {date, WithShortYear(date), QString(isoDate)}) {
      patterns.push_back(form);
      if (kind == TDateKind::dkDateTime)
        patterns.insert(patterns.end(), {form + u' ' + isoTime, form + u' ' + shortTime});
    }
  }
  const std::string typed = FromQString(text.trimmed());
  for (const QString& pattern : patterns)
    if (const auto value = TryStrToDateTimeByFormat(typed, FromQString(pattern))) return value;
  return std::nullopt;
}

QString WriteDate(TDateTime value, const QString& format) {
  return ToQString(FormatDateTime(FromQString(format), value));
}

}  // namespace tolvi
