#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/text.h>

namespace tolvi {

class TDSValueEditor;
class TJQueryPanel;
struct TBoundStatement;

/// A parameter that a program gives a value before it runs the statement. `Sentence` is the condition in words,
/// `FullValue` the value in its format.
struct TParamInfo {
  std::string Name, DisplayName, Sentence, Value, FullValue;
  TFieldType Type = ftUnknown;
  /// Whether the value is a comma text of several ones.
  bool IsList = false;
  /// What the value belongs to, as its errors name it.
  std::string ValueName = {};
  /// How the value is entered; the model's. Null: by its type.
  TDSValueEditor* Editor = nullptr;
  /// The words or the name that somebody has given the parameter; empty when it has only what it was given by itself.
  std::string Prompt = {};
  /// The sentence with "…" in the place of the value.
  std::string Question = {};
};

/// The parameters of a query and of the sub-queries that take part in its statement, by the names that the statement
/// gives them. Raises `EJQueryPanelError` or `EConvertError` for a sub-query that cannot be read.
TOLVI_CORE_API std::vector<TParamInfo> ListParams(TJQueryPanel& panel);

/// Gives all parameters of that name, ignoring case, the value; those of a sub-query by writing its text anew. False
/// when there is none.
TOLVI_CORE_API bool SetParamValue(TJQueryPanel& panel, std::string_view name, std::string_view value);

/// Raises `EJQueryPanelError` for a text that no parameter can be called.
TOLVI_CORE_API void CheckParamName(std::string_view name);

using TParamNames = std::unordered_set<std::string, TFoldedHash, TFoldedEqual>;

/// In a statement of the query, parameters of a text type are not missing when they were given an empty text; other
/// types have no empty value. Raises as `ListParams`.
TOLVI_CORE_API void TakeEmptyTexts(TBoundStatement& statement, TJQueryPanel& panel, const TParamNames& given);

}  // namespace tolvi
