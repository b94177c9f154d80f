#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace tolvi {

/// The library's texts are UTF-8.
inline QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string FromQString(const QString& text) { return text.toStdString(); }

}  // namespace tolvi
