#pragma once

#include <tolvi/model/modelfill_plan.h>
#include <tolvi/model/modelfill_tables.h>

namespace tolvi {

/// Plans a link for each of the catalogue that no link of the model stands for, with further tables where two tables
/// are linked already; and reports the links whose columns are gone.
void PlanLinks(const TJCustomDBStructure& model, const TCatalogue& catalogue, const TFillOptions& options,
               TPlannedTables& tables, TFillPlan& plan);

}  // namespace tolvi
