#pragma once

#include <QString>
#include <vector>

#include <tolvi/foundation/strings.h>

namespace tolvi {

/// A language of the program's texts: its code and what it calls itself.
struct TLanguage {
  QString Code, Name;
};

/// English first.
std::vector<TLanguage> Languages();

/// Makes it the language of all windows that are made from then on, also whether they are read from right to left; an
/// empty code: that of the system, or English where the program does not speak that. Returns the code.
QString UseLanguage(const QString& code);

/// The texts of the panels in that language; none for English.
TStrings PanelTitles(const QString& code);

}  // namespace tolvi
