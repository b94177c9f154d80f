// What the tree of fields of a model editor does to a model: fields in groups, and what is set for several at once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/global.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

class TDSField;
class TDSFieldGroup;
class TDSOperator;
class TDSTable;
class TJCustomDBStructure;

using TFieldIDs = std::vector<std::int32_t>;

/// Groups go by numbers: 0 is the root group, from 1 on the named ones in the model's order.
TOLVI_CORE_API TDSFieldGroup& GroupByNumber(TJCustomDBStructure& model, std::size_t number);
TOLVI_CORE_API std::size_t NumberOfGroup(const TJCustomDBStructure& model, const TDSFieldGroup& group);
/// The numbers in the order in which menus list the groups.
TOLVI_CORE_API std::vector<std::size_t> GroupNumbers(const TJCustomDBStructure& model);

/// The fields of these IDs that the model has, in its order of groups.
TOLVI_CORE_API std::vector<TDSField*> FieldsByIDs(const TJCustomDBStructure& model, const TFieldIDs& ids);

// Adding. New fields stand at `index` of the group, and offer the operators of their type.

/// Data fields for columns, their types from the catalogue; a column that it lacks raises `EJDBStructError` 10.
TOLVI_CORE_API TFieldIDs AddColumns(TJCustomDBStructure& model, TDSTable& table, const TStrings& columns,
                                    std::size_t group, std::size_t index);
TOLVI_CORE_API std::int32_t AddExpression(TJCustomDBStructure& model, std::string_view displayName, std::size_t group,
                                          std::size_t index);
/// A group of that name or, where it is taken, with a number behind it. Returns the group's number.
TOLVI_CORE_API std::size_t AddGroup(TJCustomDBStructure& model, std::string_view name);
/// The columns of the table: those of the catalogue where it can be asked, else those that the model has.
TOLVI_CORE_API TStrings ColumnsOf(const TJCustomDBStructure& model, const TDSTable& table);
/// Those of them that no field of the model shows.
TOLVI_CORE_API TStrings UnusedColumns(const TJCustomDBStructure& model, const TDSTable& table);

// Deleting and moving.

TOLVI_CORE_API void DeleteFields(TJCustomDBStructure& model, const TFieldIDs& ids);
/// The fields of the groups go to the root group.
TOLVI_CORE_API void DeleteGroups(TJCustomDBStructure& model, std::vector<std::size_t> groups);
/// Puts the fields before the one that is at `index` of the group now, in their order.
TOLVI_CORE_API void MoveFields(TJCustomDBStructure& model, const TFieldIDs& ids, std::size_t group, std::size_t index);
/// Moves the fields one place up (`step` -1) or down (1). Where all are at the edge of their group, they go over to the
/// next one.
TOLVI_CORE_API void StepFields(TJCustomDBStructure& model, const TFieldIDs& ids, int step);
/// The same for named groups. Returns their new numbers.
TOLVI_CORE_API std::vector<std::size_t> StepGroups(TJCustomDBStructure& model, const std::vector<std::size_t>& groups,
                                                   int step);
/// Puts a named group at the place of another one.
TOLVI_CORE_API void MoveGroup(TJCustomDBStructure& model, std::size_t group, std::size_t to);

// Properties.

/// Makes a data field the expression of its column, and an expression that is just a column the field of that.
TOLVI_CORE_API void ChangeKind(TDSField& field, TJFieldKind kind);
/// The column or the expression. Whether an expression is an aggregate follows it, unless somebody has set that apart.
TOLVI_CORE_API void ChangeExpr(TDSField& field, std::string_view expr);
/// Another type; with it the operators of the type, if the field offered just those of the old one.
TOLVI_CORE_API void ChangeType(TDSField& field, TFieldType type);
/// The group of that name, made if need be; an empty name is the root group.
TOLVI_CORE_API void ChangeGroup(TJCustomDBStructure& model, const std::vector<TDSField*>& fields,
                                std::string_view groupName);

// Operators of fields.

struct TOffered {
  TDSOperator* Operator;
  /// Whether all of the fields offer it.
  bool ByAll;
};
/// Those that any of the fields offers, in the order in which they are met.
TOLVI_CORE_API std::vector<TOffered> OfferedOperators(const std::vector<TDSField*>& fields);
/// Those that not all of the fields offer, in the model's order.
TOLVI_CORE_API std::vector<TDSOperator*> MissingOperators(const TJCustomDBStructure& model,
                                                          const std::vector<TDSField*>& fields);
TOLVI_CORE_API void OfferOperators(const std::vector<TDSField*>& fields, const std::vector<TDSOperator*>& operators);
TOLVI_CORE_API void WithdrawOperators(const std::vector<TDSField*>& fields, const std::vector<TDSOperator*>& operators);
/// Moves the operators one place in each of the fields.
TOLVI_CORE_API void StepOperators(const std::vector<TDSField*>& fields, const std::vector<TDSOperator*>& operators,
                                  int step);

}  // namespace tolvi
