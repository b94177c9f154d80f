#pragma once

#include <QString>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>
class QWidget;

namespace tolvi {

class TJQueryPanel;

/// The values that parameters were given last, by database, query and parameter, ignoring the case of names. Texts of
/// values are the same in every language: dates in ISO form, numbers with a point, "1" and "0", several items as a
/// comma text. Of many, those that were given last are kept.
class TParamMemory final {
 public:
  static constexpr std::size_t Most = 300;

  static QString KeyOf(const QString& source, std::string_view queryName, std::string_view paramName);

  /// Null when there is none.
  const QString* Get(const QString& key) const;
  void Set(const QString& key, const QString& value);
  /// Key and value, the last one given first: to be kept in a file, and read from it by `Set` from the end.
  const std::vector<std::pair<QString, QString>>& Values() const { return FValues; }

 private:
  std::vector<std::pair<QString, QString>> FValues;
};

/// Asks for the values of all parameters of the query, each by its prompt and its sentence, and gives them to the
/// panel. A parameter begins with its own value, or else with the last one in the database of that key. True without
/// asking when there are none; false when the user gives up: nothing is changed then. Raises as `ListParams`.
bool AskParams(QWidget* parent, TJQueryPanel& panel, TParamMemory& last, const QString& source);

}  // namespace tolvi
