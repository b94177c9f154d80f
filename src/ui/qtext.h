#pragma once

#include <QString>
#include <QStringList>
#include <filesystem>
#include <string>
#include <string_view>

#include <tolvi/foundation/strings.h>

namespace tolvi {

/// The library's texts are UTF-8.
inline QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string FromQString(const QString& text) { return text.toStdString(); }
/// The name of a file, as the library takes it on every system.
inline std::filesystem::path ToPath(const QString& file) { return std::filesystem::path(file.toStdU16String()); }

/// A tool tip that shows `text` as it stands: tips take for markup what looks like it, and wrap nothing else.
inline QString PlainToolTip(const QString& text) {
  if (text.isEmpty()) return text;
  return QStringLiteral("<p style=\"white-space:pre-wrap\">") + text.toHtmlEscaped() + QStringLiteral("</p>");
}

/// In a line of the direction, a text keeps that of its own letters: "Total (€)" must not become "(€) Total", nor dots
/// at its end come before it.
inline QString AsWritten(const QString& text, Qt::LayoutDirection direction) {
  constexpr QChar firstStrongIsolate(0x2068), popIsolate(0x2069);
  return text.isRightToLeft() == (direction == Qt::RightToLeft) ? text : firstStrongIsolate + text + popIsolate;
}

inline QStringList ToQStringList(const TStrings& lines) {
  QStringList result;
  for (const std::string& line : lines) result << ToQString(line);
  return result;
}
inline TStrings FromQStringList(const QStringList& lines) {
  TStrings result;
  for (const QString& line : lines) result.Add(FromQString(line));
  return result;
}

}  // namespace tolvi
