#include "apps/workbench/results/celltext.h"

#include <QCoreApplication>
#include <algorithm>
#include <optional>

#include <tolvi/ui/controls/datetext.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

QString Tr(const char* text, int count = -1) {
  return QCoreApplication::translate("tolvi::TCellText", text, nullptr, count);
}

constexpr std::size_t lineBytes = 1200;
constexpr qsizetype lineLetters = 300;
constexpr TFieldTypes DecimalTypes{ftCurrency, ftBCD, ftFMTBcd};
constexpr std::size_t moneyDecimals = 2, mostDecimals = 6;

/// The beginning of a text that does not end within a letter.
std::string_view Beginning(std::string_view text, std::size_t bytes) {
  if (text.size() <= bytes) return text;
  while (bytes > 0 && (static_cast<unsigned char>(text[bytes]) & 0xC0) == 0x80) --bytes;
  return text.substr(0, bytes);
}

QString OneLine(std::string_view text) {
  const std::string_view beginning = Beginning(text, lineBytes);
  QString line = ToQString(beginning);
  const bool isCut = beginning.size() < text.size() || line.size() > lineLetters;
  line.truncate(lineLetters);
  line.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  for (QChar& letter : line) {
    if (letter == u'\n' || letter == u'\r') {
      letter = QChar(0x21B5);
    } else if (letter.category() == QChar::Other_Control) {
      letter = u' ';
    }
  }
  return isCut ? line + QChar(0x2026) : line;
}

/// The decimals of a number without an exponent.
std::optional<std::size_t> DecimalsOf(std::string_view number) {
  if (number.empty() || number.find_first_not_of("+-.0123456789") != std::string_view::npos) return {};
  const std::size_t point = number.find('.');
  return point == std::string_view::npos ? 0 : number.size() - point - 1;
}

}  // namespace

std::size_t ShownDecimals(const TResultRows& rows, std::size_t column) {
  const TFieldType type = rows.Known(column).Type;
  if (!DecimalTypes.Contains(type)) return 0;
  std::size_t most = type == ftCurrency ? moneyDecimals : 0;
  for (std::size_t row = 0; row < std::min(rows.GetRowCount(), RowsLookedInto); ++row) {
    const TCellView cell = rows.Cell(row, column);
    const auto decimals = cell.Kind == svNumber ? DecimalsOf(cell.Text) : std::nullopt;
    // One long value, as of a division, would fill the others with zeros.
    if (decimals && *decimals <= mostDecimals) most = std::max(most, *decimals);
  }
  return most;
}

TCellText::TCellText(const QLocale& locale)
    : FPoint(locale.decimalPoint()),
      FMinus(locale.negativeSign()),
      FPlus(locale.positiveSign()),
      FDateFormat(LocaleFormat(TDateKind::dkDate, locale)),
      FZero(locale.zeroDigit().isEmpty() ? QChar(u'0') : locale.zeroDigit().front()),
      FNull(QStringLiteral("NULL")),
      FYes(Tr("Yes")),
      FNo(Tr("No")) {}

QString TCellText::Number(std::string_view text) const {
  QString result;
  result.reserve(static_cast<qsizetype>(text.size()));
  for (const char letter : text) {
    if (letter >= '0' && letter <= '9') {
      result += QChar(FZero.unicode() + (letter - '0'));
    } else if (letter == '.') {
      result += FPoint;
    } else if (letter == '-') {
      result += FMinus;
    } else if (letter == '+') {
      result += FPlus;
    } else {
      result += QLatin1Char(letter);
    }
  }
  return result;
}

QString TCellText::Day(std::string_view text) const {
  const std::size_t dayAt = text.rfind('-');
  const std::size_t monthAt = dayAt == std::string_view::npos || dayAt == 0 ? dayAt : text.rfind('-', dayAt - 1);
  if (dayAt == std::string_view::npos || monthAt == std::string_view::npos || monthAt == 0) return ToQString(text);
  QString day = FDateFormat;
  day.replace(QLatin1String("yyyy"), ToQString(text.substr(0, monthAt)));
  day.replace(QLatin1String("mm"), ToQString(text.substr(monthAt + 1, dayAt - monthAt - 1)));
  day.replace(QLatin1String("dd"), ToQString(text.substr(dayAt + 1)));
  return day;
}

QString TCellText::Whole(const TCellView& cell) const {
  switch (cell.Kind) {
    case svNull:
      return {};
    case svNumber:
      return Number(cell.Text);
    case svBoolean:
      return cell.Text == "true" ? FYes : FNo;
    case svDate:
      return Day(cell.Text);
    case svDateTime: {
      const std::size_t blank = std::min(cell.Text.find(' '), cell.Text.size());
      return Day(cell.Text.substr(0, blank)) + ToQString(cell.Text.substr(blank));
    }
    case svBytes:
      return QLatin1String("0x") +
             QString::fromLatin1(
                 QByteArray::fromRawData(cell.Text.data(), static_cast<qsizetype>(cell.Text.size())).toHex());
    case svTime:
    case svText:
      break;
  }
  return ToQString(cell.Text);
}

QString TCellText::Line(const TCellView& cell, std::size_t decimals) const {
  switch (cell.Kind) {
    case svNull:
      return FNull;
    case svNumber: {
      const std::size_t given = DecimalsOf(cell.Text).value_or(decimals);
      if (given >= decimals) return Whole(cell);
      const bool hasPoint = cell.Text.find('.') != std::string_view::npos;
      return Number(std::string(cell.Text) + (hasPoint ? "" : ".") + std::string(decimals - given, '0'));
    }
    case svText:
      return OneLine(cell.Text);
    case svBytes:
      return cell.Text.size() == 1 ? Tr("1 byte") : Tr("%Ln bytes", static_cast<int>(cell.Text.size()));
    default:
      return Whole(cell);
  }
}

}  // namespace tolvi
