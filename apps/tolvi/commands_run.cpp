#include <algorithm>

#include "apps/rowformats/rowwriter.h"
#include "apps/tolvi/database.h"
#include "apps/tolvi/session.h"
#include <tolvi/connect/queryrunner.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/paramvalues.h>

// The command "run": values for the parameters, then the rows.

namespace tolvi {
namespace {

std::string Joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
  return text;
}

/// Sets the values of --param; returns the names that got one.
TParamNames SetGivenValues(TSession& session) {
  TParamNames given;
  for (const std::string_view argument : session.Arguments.Values("param")) {
    const std::size_t sign = argument.find('=');
    if (sign == std::string_view::npos || sign == 0) {
      throw EUsageError("--param is NAME=VALUE, not \"" + std::string(argument) + "\"");
    }
    const std::string name(argument.substr(0, sign));
    if (!given.insert(name).second) throw EUsageError("--param gives " + name + " two values");
    if (!SetParamValue(session.Panel, name, argument.substr(sign + 1))) {
      std::vector<std::string> names;
      for (const TParamInfo& param : ListParams(session.Panel)) names.push_back(param.Name);
      throw EInputError(session.QuerySource.Name + ": there is no parameter \"" + name + "\"; " +
                        (names.empty() ? "the query has none" : "the query has " + Joined(names)));
    }
  }
  return given;
}

/// The names of the values that are missing, each once.
std::vector<std::string> MissingNames(const TBoundStatement& statement) {
  std::vector<std::string> names;
  for (const TBoundValue& value : statement.Values) {
    if (value.IsMissing && std::find(names.begin(), names.end(), value.Name) == names.end())
      names.push_back(value.Name);
  }
  return names;
}

/// Asks for the values that are missing.
void Ask(TSession& session, const std::vector<std::string>& names, const std::vector<TParamInfo>& params) {
  for (const std::string& name : names) {
    const auto param = std::find_if(params.begin(), params.end(),
                                    [&name](const TParamInfo& info) { return SameText(info.Name, name); });
    session.Streams.Err << name;
    if (param != params.end()) session.Streams.Err << " (" << param->Sentence << ")";
    session.Streams.Err << ": " << std::flush;
    std::string value;
    if (!std::getline(session.Streams.In, value)) return;
    SetParamValue(session.Panel, name, value);
  }
}

TBoundStatement CompleteStatement(TSession& session) {
  TParamNames given = SetGivenValues(session);
  const auto bind = [&session, &given] {
    TBoundStatement statement = session.Panel.GetBoundStatement(msQuestion);
    TakeEmptyTexts(statement, session.Panel, given);
    return statement;
  };
  TBoundStatement statement = bind();
  if (std::vector<std::string> names = MissingNames(statement); !names.empty() && session.Streams.CanAsk) {
    Ask(session, names, ListParams(session.Panel));
    given.insert(names.begin(), names.end());
    statement = bind();
  }
  if (const std::vector<std::string> names = MissingNames(statement); !names.empty()) {
    throw EInputError(session.QuerySource.Name + ": no value for " + Joined(names) + ": give --param " + names.front() +
                      "=VALUE");
  }
  return statement;
}

void PrintRows(TSession& session, TJQueryRunner& runner) {
  const auto writer = MakeRowWriter(session.Arguments.Value("format", "table"), session.Streams.Out);
  const std::size_t count = runner.Columns().size();
  std::vector<TSqlValue> values(count);
  std::vector<TCell> cells(count);
  // The first row shows whether the statement runs at all, before anything is printed.
  bool isRow = runner.Next();
  writer->Begin(runner.Columns());
  for (; isRow; isRow = runner.Next()) {
    for (std::size_t i = 0; i < count; ++i) {
      values[i] = runner.Value(i);
      cells[i] = {values[i].Kind, values[i].Text};
    }
    writer->Row(cells);
    session.CheckOutput();
  }
  writer->End();
}

}  // namespace

int RunRun(TSession& session) {
  session.LoadAll();
  session.TellWarnings(session.Panel.LoadWarnings());
  const TBoundStatement statement = Reading(session.QuerySource, [&session] { return CompleteStatement(session); });
  session.TellWarnings(session.Panel.QResult().Warnings());
  const TSqlConnection connection = OpenDatabase(session, session.Arguments.Value("db"));
  Using(connection.GetUrl().Shown(), [&] {
    TJQueryRunner runner(connection.GetName());
    runner.Run(statement, session.Model.SQLFormats().GetQuoteBool());
    PrintRows(session, runner);
  });
  return 0;
}

}  // namespace tolvi
