#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <tolvi/query/sqlmapping.h>
#include <tolvi/sqlimport/selecttext.h>

namespace tolvi {

/// What a faithful import does with what a query cannot say: it refuses the statement or, if told to approximate,
/// warns.
class TSelectLog final {
 public:
  TSelectLog(const TSelectText& text, bool approximate) : FText(text), FApproximate(approximate) {}

  [[nodiscard]] bool GetApproximate() const { return FApproximate; }
  [[nodiscard]] const std::vector<TImportWarning>& Warnings() const { return FWarnings; }

  /// Raises `ESQLImportError` at the beginning of the range; when approximating, tells the reason as what was done.
  void Refuse(TTokenRange range, const std::string& reason, std::string_view action = "left out") {
    if (!FApproximate) FText.Fail(range.Begin, reason);
    Warn(range, std::string(action) + ": " + reason);
  }
  void Warn(TTokenRange range, std::string action) {
    TImportWarning warning{FText.LineOf(range.Begin), std::string(FText.TextOf(range)), std::move(action)};
    if (std::find(FWarnings.begin(), FWarnings.end(), warning) == FWarnings.end())
      FWarnings.push_back(std::move(warning));
  }
  void Add(const std::vector<TImportWarning>& warnings) {
    FWarnings.insert(FWarnings.end(), warnings.begin(), warnings.end());
  }

 private:
  const TSelectText& FText;
  const bool FApproximate;
  std::vector<TImportWarning> FWarnings;
};

}  // namespace tolvi
