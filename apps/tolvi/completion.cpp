#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "apps/tolvi/options.h"
#include "apps/tolvi/sharefiles.h"

namespace tolvi {
namespace {

enum TWordKind { wkNone, wkFile, wkFolder, wkChoice };

struct TWords {
  TWordKind Kind = wkNone;
  std::vector<std::string> Choices;
};

/// What can stand after an option.
TWords ArgumentOf(const TOptionInfo& option) {
  if (!option.Choices.empty()) return {wkChoice, SplitWords(option.Choices, "|")};
  if (option.Argument == "FILE" || option.Argument == "DB") return {wkFile, {}};
  return {option.Argument == "STORE" ? wkFolder : wkNone, {}};
}

/// What can be an operand: of "list | show NAME", the first words.
TWords OperandsOf(const TCommandInfo& command) {
  if (command.OperandsAreFiles) return {wkFile, {}};
  TWords words;
  for (const std::string& way : SplitWords(command.Operands, " | ")) {
    const std::string first = way.substr(0, way.find(' '));
    if (std::all_of(first.begin(), first.end(), [](char c) { return c >= 'a' && c <= 'z'; })) {
      words.Choices.push_back(first);
    }
  }
  words.Kind = words.Choices.empty() ? wkNone : wkChoice;
  return words;
}

/// The text with a backslash before each of `special`.
std::string Escaped(std::string_view text, std::string_view special) {
  std::string result;
  for (const char c : text) {
    if (special.find(c) != std::string_view::npos) result += '\\';
    result += c;
  }
  return result;
}

/// In the single quotes of all three shells; of quotes inside, the shell sees what bash and zsh write so.
std::string Quoted(std::string_view text) {
  std::string result = "'";
  for (const char c : text) result += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return result + "'";
}

bool IsPlain(std::string_view word) {
  return std::all_of(word.begin(), word.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-';
  });
}

/// A call of `_tolvi_words` with words as they are typed: in quotes if the shell would change them.
std::string BashWords(const std::vector<std::string>& words) {
  std::string call = "_tolvi_words";
  for (const std::string& word : words) call += ' ' + (IsPlain(word) ? word : Quoted(Quoted(word)));
  return call;
}

std::string BashCall(const TWords& words) {
  switch (words.Kind) {
    case wkFile:
      return "_tolvi_paths -f";
    case wkFolder:
      return "_tolvi_paths -d";
    case wkChoice:
      return BashWords(words.Choices);
    case wkNone:
      break;
  }
  return ":";
}

/// How `_arguments` is told what follows.
std::string ZshAction(const TWords& words) {
  std::string list;
  switch (words.Kind) {
    case wkFile:
      return "_files";
    case wkFolder:
      return "_files -/";
    case wkChoice:
      for (const std::string& word : words.Choices) {
        list += (list.empty() ? "" : " ") + (IsPlain(word) ? word : Escaped(word, "?:$"));
      }
      return "(" + list + ")";
    case wkNone:
      break;
  }
  return " ";
}

std::string ZshOption(const TOptionInfo& option) {
  std::string spec = (option.Repeatable ? "*--" : "--") + std::string(option.Name);
  if (!option.Argument.empty()) spec += "=";
  spec += "[" + Escaped(option.Help, "[]\\:") + "]";
  if (!option.Argument.empty()) spec += ":" + std::string(option.Argument) + ":" + ZshAction(ArgumentOf(option));
  return Quoted(spec);
}

/// The options of `complete` that say what can stand there.
std::string FishAction(const TWords& words) {
  std::string list;
  switch (words.Kind) {
    case wkFile:
      return " -F";
    case wkFolder:
      return " -x -a '(__fish_complete_directories)'";
    case wkChoice:
      // In the list, once more a command line, words are quoted again.
      for (const std::string& word : words.Choices) {
        list += (list.empty() ? "" : " ") + (IsPlain(word) ? word : "\"" + Escaped(word, "$") + "\"");
      }
      return " -x -a '" + list + "'";
    case wkNone:
      break;
  }
  return " -x";
}

std::string FishText(std::string_view text) { return "'" + Escaped(text, "\\'") + "'"; }

constexpr std::string_view BashFrame =
    R"(# What `tolvi` understands, for bash. Made of its tables of commands and options.

# The words among the arguments that begin as the one at the cursor does.
_tolvi_words() {
  local each
  for each; do [[ $each == "$word"* ]] && COMPREPLY+=("$each"); done
}

_tolvi_paths() {
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen "$1" -- "$word")
}

# Options that are there already are not offered again.
_tolvi_options() {
  local each
  for each; do
    case $each in
      )";

}  // namespace

std::string BashCompletion() {
  std::string repeatable, commands, arguments;
  std::vector<std::string> names;
  for (const TOptionInfo& option : Options()) {
    if (option.Repeatable) repeatable += (repeatable.empty() ? "--" : " | --") + std::string(option.Name);
    if (option.Argument.empty()) continue;
    arguments += "    --" + std::string(option.Name) + ") " + BashCall(ArgumentOf(option)) + "; return ;;\n";
  }
  for (const TCommandInfo& command : Commands()) {
    names.emplace_back(command.Name);
    std::string options;
    for (const TOptionInfo* option : OptionsOf(command)) options += " --" + std::string(option->Name);
    commands += "    " + std::string(command.Name) + ")\n      if [[ $word == -* ]]; then _tolvi_options" + options +
                " --help; else " + BashCall(OperandsOf(command)) + "; fi\n      ;;\n";
  }
  names.insert(names.end(), {"--help", "--version"});
  return std::string(BashFrame) + repeatable + R"() ;;
      *) [[ " ${COMP_WORDS[*]:2:COMP_CWORD-2} " == *" $each "* ]] && continue ;;
    esac
    _tolvi_words "$each"
  done
}

_tolvi() {
  local word=${COMP_WORDS[COMP_CWORD]} last=${COMP_WORDS[COMP_CWORD - 1]}
  COMPREPLY=()
  if ((COMP_CWORD == 1)); then
    )" + BashWords(names) +
         R"(
    return
  fi
  # The shell takes --name=VALUE for three words.
  if [[ $word == = ]]; then
    word=
  elif [[ $last == = ]]; then
    last=${COMP_WORDS[COMP_CWORD - 2]}
  fi
  case $last in
)" + arguments +
         "  esac\n  case ${COMP_WORDS[1]} in\n" + commands + "  esac\n}\ncomplete -F _tolvi tolvi\n";
}

std::string ZshCompletion() {
  std::string commands, cases;
  for (const TCommandInfo& command : Commands()) {
    commands += "    " + Quoted(std::string(command.Name) + ":" + std::string(command.Summary)) + "\n";
    cases += "    " + std::string(command.Name) + ")\n      _arguments -S";
    for (const TOptionInfo* option : OptionsOf(command)) cases += " \\\n        " + ZshOption(*option);
    cases += " \\\n        '--help[show help]'";
    const TWords operands = OperandsOf(command);
    if (operands.Kind == wkFile) cases += " \\\n        '*:file:_files'";
    if (operands.Kind == wkChoice) cases += " \\\n        " + Quoted("1:what:" + ZshAction(operands)) + " '2:name: '";
    cases += "\n      ;;\n";
  }
  return "#compdef tolvi\n# What `tolvi` understands, for zsh. Made of its tables of commands and options.\n\n"
         "_tolvi() {\n  local -a commands\n  commands=(\n" +
         commands +
         "  )\n  if ((CURRENT == 2)); then\n    _describe -t commands command commands\n"
         "    _arguments '--help[show help]' '--version[show the version]'\n    return\n  fi\n"
         "  shift words\n  ((CURRENT--))\n  case $words[1] in\n" +
         cases + "  esac\n}\n\n_tolvi \"$@\"\n";
}

std::string FishCompletion() {
  std::string text =
      "# What `tolvi` understands, for fish. Made of its tables of commands and options.\n\n"
      "complete -c tolvi -f\ncomplete -c tolvi -l help -d 'show help'\n"
      "complete -c tolvi -n __fish_use_subcommand -l version -d 'show the version'\n";
  for (const TCommandInfo& command : Commands()) {
    const std::string name(command.Name);
    text += "\ncomplete -c tolvi -n __fish_use_subcommand -a " + name + " -d " + FishText(command.Summary) + "\n";
    const std::string begin = "complete -c tolvi -n '__fish_seen_subcommand_from " + name + "'";
    const TWords operands = OperandsOf(command);
    if (operands.Kind != wkNone) text += begin + FishAction(operands) + "\n";
    for (const TOptionInfo* option : OptionsOf(command)) {
      text += begin + " -l " + std::string(option->Name);
      if (!option->Argument.empty()) text += " -r" + FishAction(ArgumentOf(*option));
      text += " -d " + FishText(option->Help) + "\n";
    }
  }
  return text;
}

}  // namespace tolvi
