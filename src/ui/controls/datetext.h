// Dates and times as people type them, as they are shown, and as they are kept.
#pragma once

#include <QLocale>
#include <QString>
#include <optional>

#include <tolvi/foundation/datetime.h>
#include <tolvi/ui/controls/dddate.h>

namespace tolvi {

/// The pattern in which the value is kept.
QString IsoFormat(TDateKind kind);
/// The pattern with the order and the separators of the locale: days and months with two digits, years with four.
QString LocaleFormat(TDateKind kind, const QLocale& locale);

/// Reads what fits the pattern, the pattern with a year of two digits, or the ISO form; the time may lack, and may lack
/// its seconds. Blanks around it do not count.
std::optional<TDateTime> ReadDate(const QString& text, TDateKind kind, const QString& format);
QString WriteDate(TDateTime value, const QString& format);

}  // namespace tolvi
