#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include <tolvi/model/conditions.h>
#include <tolvi/model/field.h>
#include <tolvi/model/link.h>
#include <tolvi/model/modeltext_keys.h>
#include <tolvi/model/operators.h>
#include <tolvi/model/table.h>

namespace tolvi {

// The sections and keys of model texts.

/// Sections. Those with a prefix are numbered from 1, except for links.
inline constexpr std::string_view MainSection = "Main", RootGroupSection = "RootGroup", SpecInfoSection = "DBSpecInfo";
inline constexpr std::string_view OperatorPrefix = "Operator:", TablePrefix = "Table:", LinkPrefix = "Link:";
inline constexpr std::string_view FieldPrefix = "Field:", GroupPrefix = "FieldGroup", ConditionPrefix = "Cond:";
/// Behind the name of a field's section: the query of its editor.
inline constexpr std::string_view SQLSuffix = ".SQL";

std::string NumberedName(std::string_view prefix, std::size_t number);
std::string LinkName(std::string_view alias1, std::string_view alias2);
/// Whether the format itself writes a header of that name.
bool IsModelHeader(std::string_view name);

/// Keys that stand outside the tables below.
inline constexpr std::string_view VersionKey = "Version", OperatCountKey = "OperatCount", TableCountKey = "TableCount",
                                  FieldCountKey = "FieldCount", CondCountKey = "CondCount",
                                  GroupCountKey = "FieldGroups", MainTableKey = "DefaultMainTable",
                                  RootFieldsFirstKey = "RootFieldsFirst", NameKey = "Name",
                                  DisplayNameKey = "DisplayName", AliasKey = "Alias", LinksKey = "Links",
                                  FieldExprKey = "FieldExpr", TableAliasKey = "TableAlias", OperatorsKey = "Operators",
                                  GroupNameKey = "GroupName", FieldsKey = "Fields";

std::span<const TModelKey<TDSOperator>> OperatorKeys();
/// Followed by `LinksKey`.
std::span<const TModelKey<TDSTable>> TableKeys();
std::span<const TModelKey<TDSLink>> LinkKeys();
/// Followed, for a data field, by `TableAliasKey`; then come the type keys, `OperatorsKey` and the editor's keys.
std::span<const TModelKey<TDSField>> FieldNameKeys();
std::span<const TModelKey<TDSField>> FieldTypeKeys();
/// Followed by the editors of the values.
std::span<const TModelKey<TDSCondition>> ConditionKeys();

}  // namespace tolvi
