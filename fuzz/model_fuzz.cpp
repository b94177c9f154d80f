#include <string>
#include <string_view>

#include "fuzz/targets.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/modelcheck.h>

namespace tolvi {

void FuzzModel(std::string_view text) {
  TJDBStructure model;
  const std::string before = model.GetStructString();
  try {
    model.SetStructString(text);
  } catch (const EException&) {
    Require(model.GetStructString() == before, "a model that cannot be read changes nothing");
    return;
  }
  const std::string written = model.GetStructString();
  TJDBStructure copy;
  copy.SetStructString(written);
  Require(copy.GetStructString() == written, "a model that was written reads as the same model");
  CheckModel(model);
}

}  // namespace tolvi
