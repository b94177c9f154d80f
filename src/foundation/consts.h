#pragma once

#include <span>
#include <string_view>

#include <tolvi/foundation/api.h>

namespace tolvi {

/// A message shown to people: its name in code and its English text. "%s" and "%d" are placeholders for `Format`.
struct TMessage {
  std::string_view Name;
  std::string_view Text;
  constexpr operator std::string_view() const { return Text; }
};

inline constexpr TMessage SError{"SError", "Error"};
inline constexpr TMessage SDeleteTable{"SDeleteTable", "Delete table?"};
inline constexpr TMessage SDeleteField{"SDeleteField", "Delete field?"};
inline constexpr TMessage SDeleteLink{"SDeleteLink", "Delete Link?"};
inline constexpr TMessage SDeleteOperator{"SDeleteOperator", "Delete operator?"};
inline constexpr TMessage SDeleteCondition{"SDeleteCondition", "Delete condition?"};
inline constexpr TMessage SDeleteAllOperators{"SDeleteAllOperators", "Delete all operators?"};
inline constexpr TMessage SDeleteGroup{"SDeleteGroup", "Delete group?"};
inline constexpr TMessage SClearStructure{"SClearStructure", "Clear Structure?"};
inline constexpr TMessage SSEENoTable{"SSEENoTable", "Can't locate table"};
inline constexpr TMessage SAndConj{"SAndConj", "and"};
inline constexpr TMessage SDBSEInvalidTableIndex{"SDBSEInvalidTableIndex", "Invalid table index %d"};
inline constexpr TMessage SDBSEInvalidLinkIndex{"SDBSEInvalidLinkIndex", "Invalid link index %d"};
inline constexpr TMessage SDBSEInvalidOperatorIndex{"SDBSEInvalidOperatorIndex", "Invalid operator index %d"};
inline constexpr TMessage SDBSENoTable{"SDBSENoTable", "No such table %s"};
inline constexpr TMessage SDBSENoPath{"SDBSENoPath", "Can not find path between tables"};
inline constexpr TMessage SDBSEOperatorNotFound{"SDBSEOperatorNotFound", "Operator not found: %s"};
inline constexpr TMessage SDBSEAssignVirtFldName{"SDBSEAssignVirtFldName",
                                                 "Can not assign field name to virtual field"};
inline constexpr TMessage SDBSEAssignExpr{"SDBSEAssignExpr", "Can not assign expression to data field"};
inline constexpr TMessage SDBSECantFindSection{"SDBSECantFindSection", "Can not find section %s"};
inline constexpr TMessage SDBSECantFindFieldInTbl{"SDBSECantFindFieldInTbl",
                                                  "Can not find field \"%s\" in table \"%s\""};
inline constexpr TMessage SDBSEDbInfoNotSpecified{"SDBSEDbInfoNotSpecified", "DatabaseInfo is not specified"};
inline constexpr TMessage SUnrecognizedField{"SUnrecognizedField", "Unrecognized field"};
inline constexpr TMessage SUnrecognizedOperator{"SUnrecognizedOperator", "Unrecognized operator"};
inline constexpr TMessage SUnrecognizedCondition{"SUnrecognizedCondition", "Unrecognized condition"};
inline constexpr TMessage ERRStructNotSpecified{"ERRStructNotSpecified", "Structure is not specified"};
inline constexpr TMessage ERRDBInfoNotSpecified{"ERRDBInfoNotSpecified", "Database info component is not specified"};
inline constexpr TMessage SNotConnected{"SNotConnected", "<Not connected>"};
inline constexpr TMessage STableNotFound{"STableNotFound", "<Table not found>"};
inline constexpr TMessage SFullScreenMode{"SFullScreenMode", "Full screen mode"};
inline constexpr TMessage SEditLink{"SEditLink", "Edit link"};
inline constexpr TMessage STableViewListCaption{"STableViewListCaption", "Tables/Views list"};
inline constexpr TMessage SDBListCaption{"SDBListCaption", "Databases"};
inline constexpr TMessage SFieldsListCaption{"SFieldsListCaption", "Fields"};

inline constexpr TMessage SDatabaseNotConnected{"SDatabaseNotConnected", "Database not connected"};
inline constexpr TMessage SWrongSQLStatement{"SWrongSQLStatement", "Wrong SQL statement"};
inline constexpr TMessage SLostBracket{"SLostBracket", "Lost bracket"};
inline constexpr TMessage SNotEnoughInfo{"SNotEnoughInfo", "Not enough information for building query"};
inline constexpr TMessage SWrongLink{"SWrongLink", "Can't add result table: wrong link"};
inline constexpr TMessage SDBStructNotSpecified{"SDBStructNotSpecified", "DBStruct is not specified"};
inline constexpr TMessage SInvalidFilterTitle{"SInvalidFilterTitle", "Invalid filter title"};
inline constexpr TMessage SInvalidStringFormat{"SInvalidStringFormat", "Invalid string format"};
inline constexpr TMessage SUnrecognizedFieldName{"SUnrecognizedFieldName", "Unrecognized field \"%s\""};
inline constexpr TMessage SUnrecognizedOperatorName{"SUnrecognizedOperatorName", "Unrecognized operator \"%s\""};
inline constexpr TMessage SQueryNotBuilt{"SQueryNotBuilt", "Query was not built properly"};
inline constexpr TMessage SDBStructureNotSpecified{"SDBStructureNotSpecified", "DBStructure is not specified"};
inline constexpr TMessage SStructureIsEmpty{"SStructureIsEmpty", "Structure is empty"};
/// The second placeholder is "$s", so the second name is never shown: programs compare the text.
inline constexpr TMessage SNoPathBetween{"SNoPathBetween", "No path between table \"%s\" and \"$s\""};

/// Every message, in the order above.
TOLVI_CORE_API std::span<const TMessage> AllMessages();

}  // namespace tolvi
