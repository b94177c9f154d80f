#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/global.h>
#include <tolvi/model/operators.h>

namespace tolvi {

class TDSCondition;
class TDSField;
class TDSFieldGroup;
class TDSTable;
class TJCustomDBStructure;

/// An error makes statements wrong or impossible; a warning tells of what is legal but hardly meant.
enum TCheckSeverity : std::uint8_t { csError, csWarning };

/// One thing that is wrong or suspicious.
struct TCheckFinding {
  TCheckSeverity Severity = csError;
  /// The section of the model or query text in which it stands ("Table:3", "Row.1"); empty: the text as a whole.
  std::string Section;
  /// The same for people: 'Table "Orders"'; may be empty.
  std::string Place;
  std::string Text;
};

/// Everything that is wrong or suspicious in a model, in the order of its text: names, IDs and aliases that are missing
/// or stand twice, templates with gaps in their placeholders, links that join nothing, fields that nobody can use,
/// tables that no link reaches. Reads the model only; time linear in its size.
TOLVI_CORE_API std::vector<TCheckFinding> CheckModel(const TJCustomDBStructure& model);

// Texts as they are typed: what would be wrong if they stood in the model. `self` is the part that they belong to; null
// for a new one.

struct TTextFinding {
  TCheckSeverity Severity = csError;
  std::string Text;
  bool operator==(const TTextFinding&) const = default;
};
using TTextFindings = std::vector<TTextFinding>;

TOLVI_CORE_API TTextFindings CheckTableName(std::string_view name);
TOLVI_CORE_API TTextFindings CheckTableAlias(const TJCustomDBStructure& model, const TDSTable* self,
                                             std::string_view alias);
TOLVI_CORE_API TTextFindings CheckFieldDisplayName(const TDSField& self, std::string_view name);
/// The column name of a data field, else the expression.
TOLVI_CORE_API TTextFindings CheckFieldExpr(const TJCustomDBStructure& model, TJFieldKind kind, bool isAggregate,
                                            std::string_view expr);
TOLVI_CORE_API TTextFindings CheckGroupName(const TJCustomDBStructure& model, const TDSFieldGroup* self,
                                            std::string_view name);
TOLVI_CORE_API TTextFindings CheckOperatorName(const TJCustomDBStructure& model, const TDSOperator* self,
                                               std::string_view name);
TOLVI_CORE_API TTextFindings CheckOperatorTemplate(TValueKind kind, std::string_view sql);
TOLVI_CORE_API TTextFindings CheckConditionFormat(std::string_view sql, std::string_view displayFormat);
TOLVI_CORE_API TTextFindings CheckConditionSQL(const TJCustomDBStructure& model, std::string_view sql);

}  // namespace tolvi
