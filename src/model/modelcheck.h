#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tolvi {

class TJCustomDBStructure;

/// An error makes statements wrong or impossible; a warning tells of what is legal but hardly meant.
enum TCheckSeverity : std::uint8_t { csError, csWarning };

/// One thing that is wrong or suspicious.
struct TCheckFinding {
  TCheckSeverity Severity = csError;
  /// The section of the model or query text in which it stands ("Table:3", "Row.1"); empty: the text as a whole.
  std::string Section;
  /// The same for people: 'Table "Orders"'; may be empty.
  std::string Place;
  std::string Text;
};

/// Everything that is wrong or suspicious in a model, in the order of its text: names, IDs and aliases that are missing
/// or stand twice, templates with gaps in their placeholders, links that join nothing, fields that nobody can use,
/// tables that no link reaches. Reads the model only; time linear in its size.
std::vector<TCheckFinding> CheckModel(const TJCustomDBStructure& model);

}  // namespace tolvi
