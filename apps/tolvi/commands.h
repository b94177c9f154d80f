#pragma once

#include <functional>
#include <istream>
#include <optional>
#include <ostream>
#include <span>
#include <string>

namespace tolvi {

/// What the program is connected to.
struct TStreams {
  std::istream& In;
  std::ostream& Out;
  std::ostream& Err;
  /// Whether somebody sits at a terminal to answer questions.
  bool CanAsk = false;
  /// Asks for a text that is not shown as it is typed; nothing when there is none. Null: nobody can be asked.
  std::function<std::optional<std::string>(const std::string& question)> AskSecret = {};
};

/// The program `tolvi` with its arguments (without the program's name). Returns the exit status: 0 done, 1 the input
/// is at fault, 2 wrong usage. Raises nothing.
int RunTolvi(std::span<const std::string> arguments, TStreams& streams);

}  // namespace tolvi
