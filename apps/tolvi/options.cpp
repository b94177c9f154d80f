#include "apps/tolvi/options.h"

#include <algorithm>
#include <array>
#include <cctype>

#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

constexpr TOptionInfo OptionTable[] = {
    {"model", "FILE", "the data model", "", false},
    {"query", "FILE", "the query", "", false},
    {"sql", "FILE", "the SELECT statement", "", false},
    {"db", "DB", "the database, which is only read: an SQLite file, postgresql://... or mysql://...", "", false},
    {"store", "STORE", "where the queries are: a folder, or the URL of a database", "", false},
    {"to", "FORMAT", "how the model is written: text (default) or xml", "xml|text", false},
    {"merge", "FILE", "the data model to add to; what is in it stays as it is", "", false},
    {"table", "NAME", "only this table or view; may be repeated", "", true},
    {"no-views", "", "no views", "", false},
    {"outer-links", "", "keep the rows that a foreign key leads nowhere from", "", false},
    {"links-from-names", "", "link columns that are called like the key of another table, too", "", false},
    {"changed-types", "", "take over types that have changed", "", false},
    {"revision", "R", "only if the query is of this revision", "", false},
    {"syntax", "SYNTAX", "how the statement is written: sql1, sql2 (default), oracle, access or nexusdb",
     "sql1|sql2|oracle|access|nexusdb", false},
    {"top", "T", "only the first rows, as TOP: a number, or \"10 PERCENT\"", "", false},
    {"limit", "L", "only the first rows, as LIMIT: a number, \"10 OFFSET 20\" or \"20,10\"", "", false},
    {"bound", "STYLE", "values as markers \"?\", \":name\" or \"$1\", and the list of the values below", "?|:name|$1",
     false},
    {"param", "NAME=VALUE", "the value of a parameter; may be repeated", "", true},
    {"format", "FORMAT", "table (default), csv or json", "table|csv|json", false},
    {"strict", "", "exit status 1 if there is any warning", "", false},
    {"faithful", "", "keep all that the statement says, or refuse it", "", false},
    {"no-fragments", "", "refuse what only a row that holds SQL could keep", "", false},
    {"approximate", "", "leave out or replace what cannot be kept, and warn", "", false},
    {"fragments", "", "allow rows that hold SQL, which reaches the database as it is", "", false},
};

constexpr TCommandInfo CommandTable[] = {
    {"sql", "", "print the SELECT statement of a query", 0, 0, false, "model query", "syntax top limit bound fragments",
     R"help(  tolvi sql --model shop.model --query late.qry
      prints the statement with JOIN and dates in single quotes.
  tolvi sql --model shop.model --query late.qry --syntax oracle
      prints it with joins in WHERE, " (+)" for outer joins, and TO_DATE.
  tolvi sql --model shop.model --query late.qry --limit 10
      adds LIMIT 10.
  tolvi sql --model shop.model --query late.qry --bound :name
      prints the statement with a marker for each value, then each value in a line of its own:
      -- NUMBER NAME KIND TYPE TEXT
      KIND is value, param (a parameter of the query) or missing (a parameter without a value, and no TEXT follows).
      TEXT is all that follows the blank; a line break in it is written \n, a carriage return \r, a backslash \\.
)help"},
    {"filters", "", "print the conditions of each table", 0, 0, false, "model query", "syntax fragments",
     R"help(  tolvi filters --model shop.model --query late.qry
      prints a line for each table on which the query has conditions: alias, tab, conditions. What belongs to no table
      has an empty alias.
)help"},
    {"path", "A B", "print the chain of linked tables from alias A to alias B", 2, 2, false, "model", "",
     R"help(  tolvi path --model shop.model Customers Products
      prints the aliases of the shortest chain, both ends included, with a blank between them.
)help"},
    {"model", "MODEL", "print a data model in the current version of the format", 1, 1, true, "", "to",
     R"help(  tolvi model old.model >new.model
  tolvi model --to xml shop.model >shop.xml
      prints the model as XML, which all commands read as they read the text.
)help"},
    {"query", "QUERY", "print a query in the current version of the format", 1, 1, true, "model", "",
     R"help(  tolvi query --model shop.model old.qry >new.qry
      What the query names and the model lacks is kept, and told on standard error.
)help"},
    {"explain", "", "print a query in sentences", 0, 0, false, "model query", "",
     R"help(  tolvi explain --model shop.model --query late.qry
      prints the conditions as the query panel shows them, two blanks more for each bracket, then the result columns
      and the sorting. Rows that are switched off begin with "(off)".
)help"},
    {"check", "[QUERY...]", "print what is wrong or suspicious in a model and in queries", 0,
     static_cast<std::size_t>(-1), true, "model", "fragments",
     R"help(  tolvi check --model shop.model
      checks the model.
  tolvi check --model shop.model queries/*.qry
      checks queries against it, too. Each finding is a line FILE:LINE: error: ... or FILE:LINE: warning: ...; the exit
      status is 1 if there is an error.
)help"},
    {"init-model", "", "make a data model of a database", 0, 0, false, "db",
     "merge table no-views outer-links links-from-names changed-types",
     R"help(  tolvi init-model --db shop.sqlite >shop.model
      makes a model of all tables and views, with SQL formats for that database. What is in it stands on standard error.
  tolvi init-model --db postgresql://anna@server/shop --table orders --table customers >shop.model
      makes one of two tables. The password comes from PGPASSWORD (MYSQL_PWD for mysql://), or is asked for.
  tolvi init-model --db shop.sqlite --merge shop.model >new.model
      adds what is new in the database to a model. What has vanished is told and stays.
)help"},
    {"run", "", "run a query on a database and print the rows", 0, 0, false, "model query db",
     "param format limit syntax fragments",
     R"help(  tolvi run --model shop.model --query late.qry --db shop.sqlite
      prints the rows as a table; the widths of its columns are those of the first 100 rows.
  tolvi run --model shop.model --query since.qry --db shop.sqlite --param Since=2025-04-01
      gives a parameter its value. On a terminal, values that are missing are asked for.
  tolvi run --model shop.model --query late.qry --db shop.sqlite --format csv >late.csv
      prints comma separated values (RFC 4180, lines ended by LF); NULL is an empty field, an empty text "".
  tolvi run --model shop.model --query late.qry --db shop.sqlite --format json
      prints an array of objects, one in a line; NULL is null, bytes are written as hexadecimal digits.
)help"},
    {"store", "list | show NAME | save NAME | delete NAME", "keep queries in a folder or a database", 1, 2, false,
     "store", "query format revision",
     R"help(  tolvi store list --store queries
      prints the queries in the folder, with their descriptions and revisions.
  tolvi store show "Late orders" --store sqlite:shop.sqlite
      prints the text of a query that is kept in a database.
  tolvi store save "Late orders" --store queries --query late.qry
      stores a new query; without --query, it is read from standard input.
  tolvi store save "Late orders" --store queries --query late.qry --revision R
      replaces the query, unless somebody else has changed it since it was of revision R.
  tolvi store delete "Late orders" --store queries
)help"},
    {"parse", "", "print what is understood of an SQL statement", 0, 0, false, "sql", "",
     R"help(  tolvi parse --sql late.sql
      prints a JSON object: the fields of the select list with their sorting, the tables, and the conditions as a tree.
      Join conditions, GROUP BY and what follows the last clause are not in it. If the statement is wrong, the message
      and the line stand on standard error, and the exit status is 1.
)help"},
    {"import", "", "print the query that an SQL statement stands for", 0, 0, false, "model sql",
     "strict faithful no-fragments approximate",
     R"help(  tolvi import --model shop.model --sql late.sql >late.qry
      makes a query of the statement. What it cannot keep is told on standard error as FILE:LINE: warning: ...
  tolvi import --model shop.model --sql late.sql --strict >late.qry
      does the same; any warning makes the exit status 1.
  tolvi import --model shop.model --sql late.sql --faithful >late.qry
      makes a query that says exactly what the statement says, or refuses it as FILE:LINE:COLUMN: ... A condition that
      no operator of the model says becomes a row that holds its SQL; other commands take such queries with --fragments.
  tolvi import --model shop.model --sql late.sql --faithful --no-fragments >late.qry
      makes no such rows.
  tolvi import --model shop.model --sql late.sql --faithful --approximate >late.qry
      warns of what cannot be kept instead of refusing the statement.
)help"},
};

bool IsListed(std::string_view names, std::string_view name) {
  while (!names.empty()) {
    const std::string_view word = names.substr(0, names.find(' '));
    if (word == name) return true;
    names.remove_prefix(std::min(names.size(), word.size() + 1));
  }
  return false;
}

const TCommandInfo& FindCommand(std::string_view name) {
  for (const TCommandInfo& command : CommandTable) {
    if (command.Name == name) return command;
  }
  throw EUsageError("there is no command \"" + std::string(name) + "\"; `tolvi --help` lists them");
}

const TOptionInfo& FindOption(const TCommandInfo& command, std::string_view name) {
  for (const TOptionInfo* option : OptionsOf(command)) {
    if (option->Name == name) return *option;
  }
  throw EUsageError(std::string(command.Name) + " has no option --" + std::string(name));
}

void CheckChoice(const TOptionInfo& option, std::string_view value) {
  if (option.Choices.empty()) return;
  for (const std::string& choice : SplitWords(option.Choices, "|")) {
    if (choice == value) return;
  }
  throw EUsageError("--" + std::string(option.Name) + " is one of " + std::string(option.Choices) + ", not \"" +
                    std::string(value) + "\"");
}

/// What can be seen only when all arguments are there.
void CheckWhole(const TArguments& arguments) {
  const TCommandInfo& command = *arguments.Command;
  const std::string name(command.Name);
  for (const TOptionInfo* option : OptionsOf(command)) {
    if (IsRequired(command, *option) && !arguments.Has(option->Name)) {
      throw EUsageError(name + " needs " + Spelled(*option));
    }
  }
  if (arguments.Operands.size() < command.MinOperands) {
    throw EUsageError(name + " needs " + std::string(command.Operands));
  }
  if (arguments.Operands.size() > command.MaxOperands) {
    throw EUsageError(name + " takes no \"" + arguments.Operands[command.MaxOperands] + "\"");
  }
  auto stdinCount = 0;
  for (const std::string_view file : {"model", "query", "sql", "merge"})
    stdinCount += arguments.Value(file) == "-" ? 1 : 0;
  if (command.OperandsAreFiles) {
    stdinCount += static_cast<int>(std::count(arguments.Operands.begin(), arguments.Operands.end(), "-"));
  }
  if (stdinCount > 1) throw EUsageError("only one file can be standard input (\"-\")");
}

std::string Padded(std::string_view text, std::size_t width) {
  return std::string(text) + std::string(text.size() < width ? width - text.size() : 1, ' ');
}

bool IsNumber(std::string_view text) {
  return !text.empty() && text.size() <= 18 &&
         std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// Words separated by blanks; a comma is a word.
std::vector<std::string> Words(std::string_view text) {
  std::vector<std::string> words;
  bool open = false;
  for (const char c : text) {
    if (c == ' ' || c == ',') {
      open = false;
      if (c == ',') words.emplace_back(",");
      continue;
    }
    if (!open) words.emplace_back();
    open = true;
    words.back() += c;
  }
  return words;
}

}  // namespace

std::span<const TCommandInfo> Commands() { return CommandTable; }
std::span<const TOptionInfo> Options() { return OptionTable; }

std::vector<const TOptionInfo*> OptionsOf(const TCommandInfo& command) {
  std::vector<const TOptionInfo*> options;
  for (const TOptionInfo& option : OptionTable) {
    if (IsRequired(command, option) || IsListed(command.Optional, option.Name)) options.push_back(&option);
  }
  return options;
}

bool IsRequired(const TCommandInfo& command, const TOptionInfo& option) {
  return IsListed(command.Required, option.Name);
}

std::string Spelled(const TOptionInfo& option) {
  return "--" + std::string(option.Name) + (option.Argument.empty() ? "" : " ") + std::string(option.Argument);
}

std::vector<std::string> SplitWords(std::string_view text, std::string_view separator) {
  std::vector<std::string> words;
  while (!text.empty()) {
    words.emplace_back(text.substr(0, text.find(separator)));
    text.remove_prefix(std::min(text.size(), words.back().size() + separator.size()));
  }
  return words;
}

const std::string* TArguments::Find(std::string_view option) const {
  for (const auto& [name, value] : FOptions) {
    if (name == option) return &value;
  }
  return nullptr;
}

std::string_view TArguments::Value(std::string_view option, std::string_view byDefault) const {
  const std::string* value = Find(option);
  return value ? std::string_view(*value) : byDefault;
}

std::vector<std::string_view> TArguments::Values(std::string_view option) const {
  std::vector<std::string_view> values;
  for (const auto& [name, value] : FOptions) {
    if (name == option) values.emplace_back(value);
  }
  return values;
}

TArguments ParseArguments(std::span<const std::string> arguments) {
  TArguments result;
  bool onlyOperands = false;
  for (std::size_t at = 0; at < arguments.size(); ++at) {
    const std::string_view argument = arguments[at];
    const bool isOption = !onlyOperands && argument.size() > 1 && argument.front() == '-';
    if (isOption && (argument == "--help" || argument == "-h")) {
      result.Help = true;
      return result;
    }
    if (isOption && !result.Command && argument == "--version") {
      result.Version = true;
      return result;
    }
    if (isOption && argument == "--") {
      onlyOperands = true;
    } else if (!result.Command) {
      if (isOption) throw EUsageError("the command comes first, not " + std::string(argument));
      result.Command = &FindCommand(argument);
    } else if (!isOption) {
      result.Operands.emplace_back(argument);
    } else {
      if (!argument.starts_with("--")) throw EUsageError("options begin with \"--\", not " + std::string(argument));
      const auto [name, value] = GetNameAndValueSep(argument.substr(2), "=");
      const TOptionInfo& option = FindOption(*result.Command, name);
      const bool isFlag = option.Argument.empty();
      const bool hasValue = argument.find('=') != std::string_view::npos;
      if (isFlag && hasValue) throw EUsageError("--" + std::string(name) + " takes no argument");
      if (!isFlag && !hasValue && at + 1 == arguments.size()) {
        throw EUsageError("--" + std::string(name) + " needs " + std::string(option.Argument));
      }
      const std::string_view given = hasValue || isFlag ? value : std::string_view(arguments[++at]);
      if (result.Has(name) && !option.Repeatable) throw EUsageError("--" + std::string(name) + " is given twice");
      CheckChoice(option, given);
      result.Add(name, given);
    }
  }
  if (!result.Command) throw EUsageError("a command is missing; `tolvi --help` lists them");
  CheckWhole(result);
  return result;
}

std::string HelpText() {
  std::string text =
      "usage: tolvi COMMAND ...\n\n"
      "Makes SQL from a data model and a query written in its words, and runs it.\n\n";
  for (const TCommandInfo& command : CommandTable) {
    text += "  " + Padded(command.Name, 12) + std::string(command.Summary) + "\n";
  }
  text +=
      "\nFor example:\n"
      "  tolvi explain --model shop.model --query late.qry\n"
      "  tolvi sql --model shop.model --query late.qry\n"
      "  tolvi run --model shop.model --query late.qry --db shop.sqlite\n\n"
      "`tolvi COMMAND --help` shows more. Files are UTF-8; \"-\" is standard input. The exit status is 0 when all is\n"
      "well, 1 when the input is at fault, 2 for wrong usage.\n";
  return text;
}

std::string UsageText(const TCommandInfo& command) {
  std::string usage(command.Name);
  for (const TOptionInfo* option : OptionsOf(command)) {
    usage += IsRequired(command, *option) ? " " + Spelled(*option) : " [" + Spelled(*option) + "]";
    if (option->Repeatable) usage += "...";
  }
  return command.Operands.empty() ? usage : usage + " " + std::string(command.Operands);
}

std::string HelpText(const TCommandInfo& command) {
  std::string list;
  for (const TOptionInfo* option : OptionsOf(command)) {
    list += "  " + Padded(Spelled(*option), 20) + std::string(option->Help) + "\n";
  }
  std::string summary(command.Summary);
  summary.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(summary.front())));
  if (!list.empty()) list = "\n" + list;
  return "usage: tolvi " + UsageText(command) + "\n\n" + summary + ".\n" + list + "\n" + std::string(command.Help);
}

std::string TopClause(std::string_view argument) {
  const std::vector<std::string> words = Words(argument);
  const bool isPercent = words.size() == 2 && AsciiSameText(words[1], "PERCENT");
  if (words.empty() || !IsNumber(words[0]) || (words.size() != 1 && !isPercent)) {
    throw EUsageError("--top is a number or \"N PERCENT\", not \"" + std::string(argument) + "\"");
  }
  return words[0] + (isPercent ? " PERCENT" : "");
}

std::string LimitClause(std::string_view argument) {
  const std::vector<std::string> words = Words(argument);
  const bool isPair = words.size() == 3 && (words[1] == "," || AsciiSameText(words[1], "OFFSET")) && IsNumber(words[2]);
  if (words.empty() || !IsNumber(words[0]) || (words.size() != 1 && !isPair)) {
    throw EUsageError("--limit is a number, \"N OFFSET M\" or \"M,N\", not \"" + std::string(argument) + "\"");
  }
  if (!isPair) return words[0];
  return words[1] == "," ? words[0] + "," + words[2] : words[0] + " OFFSET " + words[2];
}

}  // namespace tolvi
