#include <string>
#include <string_view>

#include "apps/tolvi/options.h"
#include "apps/tolvi/sharefiles.h"
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

constexpr std::string_view Opening = R"(.SH NAME
tolvi \- make SQL from a data model and a query written in its words, and run it
.SH SYNOPSIS
.SY tolvi
.I COMMAND
.RI [ OPTION ...]
.RI [ OPERAND ...]
.YS
.SY tolvi
.RI [ COMMAND ]
.B \-\-help
.YS
.SH DESCRIPTION
A data model describes a database in the words of those who ask it questions: tables, links between them, fields,
operators.
A query is a list of conditions and columns in these words.
.B tolvi
makes a model of a database, turns a model and a query into a SELECT statement, checks both, explains queries in
sentences, runs them on SQLite, PostgreSQL and MariaDB databases, keeps them in folders and databases, and makes queries
of SELECT statements.
.P
Files are UTF-8;
.RB \(lq \- \(rq
is standard input.
.RI \-\-name\~ VALUE
and
.RI \-\-name= VALUE
are the same; options may stand before and after operands; after \(lq\-\-\(rq all words are operands.
Errors and warnings are lines on standard error.
.SH COMMANDS
)";

constexpr std::string_view Closing = R"(.SH EXIT STATUS
.TP
.B 0
Done.
.TP
.B 1
The input is at fault, or the output cannot be written.
.TP
.B 2
Wrong usage.
.SH ENVIRONMENT
.TP
.B PGPASSWORD
The password for
.B postgresql://
databases.
.TP
.B MYSQL_PWD
The password for
.B mysql://
databases.
.P
Without them, a password that is needed is asked for if standard input is a terminal.
.SH SEE ALSO
.BR tolvi-workbench (1)
)";

/// The text as it stands.
std::string Plain(std::string_view text) {
  std::string result;
  if (!text.empty() && (text.front() == '.' || text.front() == '\'')) result = "\\&";
  for (const char c : text) {
    if (c == '\\') {
      result += "\\e";
    } else if (c == '-') {
      result += "\\-";
    } else if (c == '\'') {
      result += "\\(aq";
    } else {
      result += c;
    }
  }
  return result;
}

/// A line of a program in bold; quotes inside are part of the argument of the macro.
std::string Bold(std::string_view line) {
  std::string quoted;
  for (const char c : line) quoted += c == '"' ? std::string("\\(dq") : Plain(std::string(1, c));
  return ".B \"" + quoted + "\"\n";
}

/// Examples are lines indented by two, what they do follows, indented by six.
std::string Examples(std::string_view help) {
  std::string text;
  bool afterExample = false;
  for (const std::string_view line : SplitLines(help)) {
    const bool isExample = line.starts_with("  ") && !line.starts_with("   ");
    if (isExample) {
      text += (afterExample ? ".TQ\n" : ".TP\n") + Bold(line.substr(2));
    } else {
      const bool isLine = Trim(line).starts_with("-- ");  // output, which stays a line of its own
      text += (isLine ? ".br\n" : "") + Plain(Trim(line)) + (isLine ? "\n.br\n" : "\n");
    }
    afterExample = isExample;
  }
  return text;
}

}  // namespace

std::string ManualPage(std::string_view version) {
  std::string page = ".TH TOLVI 1 \"\" \"Tolvi " + std::string(version) + "\"\n.nh\n" + std::string(Opening);
  for (const TCommandInfo& command : Commands()) {
    page += ".SS " + Plain(command.Name) + ": " + Plain(command.Summary) + "\n" + Bold("tolvi " + UsageText(command));
    for (const TOptionInfo* option : OptionsOf(command)) {
      page += ".TP\n.B " + Plain("--" + std::string(option->Name)) + "\\~\\fI" + Plain(option->Argument) + "\\fR\n" +
              Plain(option->Help) + "\n";
    }
    page += ".P\nExamples:\n" + Examples(command.Help);
  }
  return page + std::string(Closing);
}

}  // namespace tolvi
