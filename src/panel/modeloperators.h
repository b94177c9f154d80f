// What the lists of operators and of predefined conditions of a model editor do to a model.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/fieldtypes.h>

namespace tolvi {

class TDSCondition;
class TDSField;
class TDSOperator;
class TJCustomDBStructure;

/// Field types by which people choose to what an operator applies: those of text, of numbers, of dates and times.
inline constexpr TFieldTypes TypeGroups[] = {
    TextFieldTypes + TFieldTypes{ftFixedWideChar, ftWideMemo, ftOraClob, ftGuid},
    {ftSmallint, ftInteger, ftWord, ftFloat, ftCurrency, ftBCD, ftAutoInc, ftLargeint, ftFMTBcd, ftLongWord, ftShortint,
     ftByte, ftExtended, ftSingle},
    DateFieldTypes + TFieldTypes{ftOraTimeStamp, ftTimeStampOffset},
};

/// Adds an operator "Operator1" (2, ...) with a template to begin with. Returns its index.
TOLVI_CORE_API std::size_t AddNewOperator(TJCustomDBStructure& model);
/// Copies each of the operators behind itself, with a name of its own; fields that offer it offer the copy, too.
/// Returns the indexes of the copies.
TOLVI_CORE_API std::vector<std::size_t> DuplicateOperators(TJCustomDBStructure& model,
                                                           std::vector<std::size_t> indexes);
TOLVI_CORE_API void DeleteOperators(TJCustomDBStructure& model, std::vector<std::size_t> indexes);
/// Moves the operators one place up (`step` -1) or down (1), as far as there is room. Returns where they are then.
TOLVI_CORE_API std::vector<std::size_t> StepModelOperators(TJCustomDBStructure& model,
                                                           const std::vector<std::size_t>& indexes, int step);
/// How many of the default operators that `ExOperators` enables the model lacks.
TOLVI_CORE_API std::size_t CountLackingDefaults(const TJCustomDBStructure& model);

/// Which fields have a type to which the operator applies, and which of all fields offer it.
struct TOperatorUse {
  std::size_t Applies = 0, Offers = 0;
  /// To which it applies and which do not offer it.
  std::vector<TDSField*> Lacking;
};
TOLVI_CORE_API TOperatorUse UseOfOperator(const TJCustomDBStructure& model, const TDSOperator& op);
TOLVI_CORE_API void OfferToAll(TJCustomDBStructure& model, TDSOperator& op);

/// Adds a condition without SQL whose caption no other one has. Returns its index.
TOLVI_CORE_API std::size_t AddNewCondition(TJCustomDBStructure& model);
TOLVI_CORE_API void DeleteConditions(TJCustomDBStructure& model, std::vector<std::size_t> indexes);
/// Sets the display format; values without a place go.
TOLVI_CORE_API void ChangeDisplayFormat(TDSCondition& condition, std::string_view format);

/// A row of a query as users see it, and the SQL that it means; or why there is none.
struct TSampleCondition {
  std::string Sentence, SQL, Fault;
};
/// The operator on a field that fits it: one that offers it, else one to which it applies. The operator need not be
/// the model's.
TOLVI_CORE_API TSampleCondition SampleOfOperator(TJCustomDBStructure& model, TDSOperator& op);
/// The condition need not be the model's.
TOLVI_CORE_API TSampleCondition SampleOfCondition(TJCustomDBStructure& model, TDSCondition& condition);

}  // namespace tolvi
