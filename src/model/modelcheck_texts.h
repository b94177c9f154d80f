// The rules for single texts of a model, which the check of a whole model and that of a text being typed share.
#pragma once

#include <string_view>

#include <tolvi/model/modelcheck.h>

namespace tolvi::checks {

inline constexpr std::string_view NoName = "the name is empty";
inline constexpr std::string_view NoDisplayName = "the display name is empty";
inline constexpr std::string_view NoDisplayFormat = "the display format is empty";
inline constexpr std::string_view NoTableName = "the table name is empty";
inline constexpr std::string_view NoAlias = "the alias is empty: nothing can refer to the table";
inline constexpr std::string_view SameAlias = "another table has the same alias";
inline constexpr std::string_view SameOperator = "another operator has the same name";
inline constexpr std::string_view SameGroup = "another group has the same name";
inline constexpr std::string_view SameFieldInGroup = "another field of its group has the same display name";

/// What holds for every template; whether "@1", "@2" are as many as there are values is the caller's matter.
void AddTemplate(TTextFindings& findings, std::string_view sql);
void AddOperatorTemplate(TTextFindings& findings, TValueKind kind, std::string_view sql);
void AddEmptyExpr(TTextFindings& findings, TJFieldKind kind, std::string_view expr);
void AddVirtualExpr(TTextFindings& findings, bool mentionsTable, bool isAggregate, std::string_view expr);
/// The places of a display format against the number of values.
void AddPlaces(TTextFindings& findings, std::string_view displayFormat, std::size_t values);
void AddConditionTables(TTextFindings& findings, bool mentionsTable);

}  // namespace tolvi::checks
