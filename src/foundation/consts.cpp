#include <tolvi/foundation/consts.h>

namespace tolvi {
namespace {

constexpr TMessage Messages[] = {
    SError,
    SDeleteTable,
    SDeleteField,
    SDeleteLink,
    SDeleteOperator,
    SDeleteCondition,
    SDeleteAllOperators,
    SDeleteGroup,
    SClearStructure,
    SSEENoTable,
    SAndConj,
    SDBSEInvalidTableIndex,
    SDBSEInvalidLinkIndex,
    SDBSEInvalidOperatorIndex,
    SDBSENoTable,
    SDBSENoPath,
    SDBSEOperatorNotFound,
    SDBSEAssignVirtFldName,
    SDBSEAssignExpr,
    SDBSECantFindSection,
    SDBSECantFindFieldInTbl,
    SDBSEDbInfoNotSpecified,
    SUnrecognizedField,
    SUnrecognizedOperator,
    SUnrecognizedCondition,
    ERRStructNotSpecified,
    ERRDBInfoNotSpecified,
    SNotConnected,
    STableNotFound,
    SFullScreenMode,
    SEditLink,
    STableViewListCaption,
    SDBListCaption,
    SFieldsListCaption,
    SDatabaseNotConnected,
    SWrongSQLStatement,
    SLostBracket,
    SNotEnoughInfo,
    SWrongLink,
    SDBStructNotSpecified,
    SInvalidFilterTitle,
    SInvalidStringFormat,
    SUnrecognizedFieldName,
    SUnrecognizedOperatorName,
    SQueryNotBuilt,
    SDBStructureNotSpecified,
    SStructureIsEmpty,
    SNoPathBetween,
};

}  // namespace

std::span<const TMessage> AllMessages() { return Messages; }

}  // namespace tolvi
