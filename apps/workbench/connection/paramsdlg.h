#pragma once

#include <QString>
#include <map>
#include <optional>
#include <string_view>
class QWidget;

namespace tolvi {

class TJQueryPanel;

/// The values that parameters were given last, by query and parameter, ignoring the case of names. Texts of values are
/// the same in every language: dates in ISO form, numbers with a point, "1" and "0".
class TParamMemory final {
 public:
  static QString KeyOf(std::string_view queryName, std::string_view paramName);

  /// Null when there is none.
  const QString* Get(const QString& key) const;
  void Set(const QString& key, const QString& value) { FValues[key] = value; }
  void Clear() { FValues.clear(); }
  /// To be kept in a file, and read from it by `Set`.
  const std::map<QString, QString>& Values() const { return FValues; }

 private:
  std::map<QString, QString> FValues;
};

/// Asks for the values of all parameters of the query, each by its sentence, and gives them to the panel. A parameter
/// begins with its own value, or else with the last one. True without asking when there are none; false when the user
/// gives up: nothing is changed then. Raises as `ListParams`.
bool AskParams(QWidget* parent, TJQueryPanel& panel, TParamMemory& last);

}  // namespace tolvi
