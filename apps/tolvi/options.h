#pragma once

#include <cstddef>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tolvi {

/// Wrong usage of the command line: exit status 2.
class EUsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An option of the command line.
struct TOptionInfo {
  /// `Argument` is empty for an option without one.
  std::string_view Name, Argument, Help;
  /// The arguments that are allowed, separated by "|"; empty for any.
  std::string_view Choices;
  bool Repeatable = false;
};

/// A command: what stands after its name, what it does, and examples.
struct TCommandInfo {
  std::string_view Name, Operands, Summary;
  std::size_t MinOperands, MaxOperands;
  /// Whether the operands name files ("-" is standard input then).
  bool OperandsAreFiles;
  /// Names separated by blanks.
  std::string_view Required, Optional;
  std::string_view Help;
};

std::span<const TCommandInfo> Commands();
std::span<const TOptionInfo> Options();
/// Those that the command takes, in the order of the table.
std::vector<const TOptionInfo*> OptionsOf(const TCommandInfo& command);
bool IsRequired(const TCommandInfo& command, const TOptionInfo& option);

/// The option as it is typed, with the name of its argument: "--query FILE".
std::string Spelled(const TOptionInfo& option);
/// The parts between separators; none of an empty text.
std::vector<std::string> SplitWords(std::string_view text, std::string_view separator);

/// A command line in parts, checked against the tables.
class TArguments {
 public:
  /// Null when help on all commands is wanted.
  const TCommandInfo* Command = nullptr;
  bool Help = false, Version = false;
  std::vector<std::string> Operands;

  void Add(std::string_view option, std::string_view value) { FOptions.emplace_back(option, value); }
  bool Has(std::string_view option) const { return Find(option) != nullptr; }
  /// The argument of the option, `byDefault` when it was not given.
  std::string_view Value(std::string_view option, std::string_view byDefault = {}) const;
  /// The arguments of an option that may be repeated.
  std::vector<std::string_view> Values(std::string_view option) const;

 private:
  const std::string* Find(std::string_view option) const;
  std::vector<std::pair<std::string, std::string>> FOptions;
};

/// "--name ARGUMENT" and "--name=ARGUMENT" may stand before and after operands; after "--" all are operands. Raises
/// `EUsageError` for what the tables do not allow, and when "-" stands for more than one file.
TArguments ParseArguments(std::span<const std::string> arguments);

/// What follows the name of the program: "query [--model FILE] QUERY".
std::string UsageText(const TCommandInfo& command);
/// The help on all commands, on one.
std::string HelpText();
std::string HelpText(const TCommandInfo& command);

/// Clauses of a statement made from arguments of which only digits and the words here pass: "10" or "10 PERCENT";
/// "10", "10 OFFSET 20" or "20,10". Raise `EUsageError`.
std::string TopClause(std::string_view argument);
std::string LimitClause(std::string_view argument);

}  // namespace tolvi
