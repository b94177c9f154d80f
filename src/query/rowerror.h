#pragma once

#include <string>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/errors.h>

namespace tolvi {

/// Building the statement failed at a row of the query; for what fails in a sub-query, at the row that holds it.
class TOLVI_CORE_API EQueryRowError final : public EJQueryPanelError {
 public:
  EQueryRowError(const EJQueryPanelError& error, std::string rowID)
      : EJQueryPanelError(error.ErrorCode(), error.Message()), FRowID(std::move(rowID)) {}

  /// As `TFilterRow::GetRowID`: ".2.1" for the first row in the second one.
  const std::string& RowID() const noexcept { return FRowID; }

 private:
  std::string FRowID;
};

}  // namespace tolvi
