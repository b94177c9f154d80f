#pragma once

#include <string>
#include <string_view>

#include <tolvi/model/dbstruc.h>

namespace tolvi {

std::string WriteModelXml(const TJCustomDBStructure& model);

/// Reads a document into `model`, which is empty (as after `ClearStructure`) and is left half read when reading fails.
void ReadModelXml(std::string_view xml, TJCustomDBStructure& model);

}  // namespace tolvi
