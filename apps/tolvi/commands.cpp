#include "apps/tolvi/commands.h"

#include <cerrno>
#include <cstring>
#include <exception>

#include "apps/tolvi/session.h"
#include <tolvi/connect/connecturl.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/explain.h>
#include <tolvi/query/querycheck.h>
#include <tolvi/xml/modelxml.h>

namespace tolvi {
namespace {

constexpr std::string_view VersionText = "tolvi " TOLVI_VERSION "\n";

struct THandler {
  std::string_view name;
  int (*run)(TSession& session);
};
constexpr THandler Handlers[] = {
    {"sql", RunSql},     {"filters", RunFilters}, {"path", RunPath},   {"model", RunModel},
    {"query", RunQuery}, {"explain", RunExplain}, {"check", RunCheck}, {"init-model", RunInitModel},
    {"run", RunRun},     {"store", RunStore},     {"parse", RunParse}, {"import", RunImport},
};

int RunCommand(const TArguments& arguments, TStreams& streams) {
  TSession session(arguments, streams);
  if (arguments.Version) {
    session.Print(VersionText);
  } else if (arguments.Help) {
    session.Print(arguments.Command ? HelpText(*arguments.Command) : HelpText());
  } else {
    for (const THandler& handler : Handlers) {
      if (handler.name == arguments.Command->Name) return handler.run(session);
    }
  }
  return 0;
}

int Tell(TStreams& streams, std::string_view message, int status) {
  streams.Err << "tolvi: " << message << '\n';
  return status;
}

/// The message without what may be passwords in the arguments: a URL may have been given in the wrong place.
std::string WithoutPasswords(std::string message, std::span<const std::string> arguments) {
  for (const std::string& argument : arguments) {
    for (const std::string_view password : PasswordsIn(argument)) {
      // With the ":" or "=" before it.
      const std::string shown(password.data() - 1, password.size() + 1);
      message = ReplaceStr(message, shown, shown.substr(0, 1) + "***");
    }
  }
  return message;
}

std::string_view StyleKind(const TBoundValue& value) {
  return value.IsMissing ? "missing" : value.IsParam ? "param" : "value";
}

void PrintBound(TSession& session, TMarkerStyle style) {
  const TBoundStatement statement = session.Panel.GetBoundStatement(style);
  std::string text = WithLineFeeds(statement.SQL) + "\n";
  std::size_t number = 0;
  for (const TBoundValue& value : statement.Values) {
    text += "-- " + std::to_string(++number) + " " + value.Name + " " + std::string(StyleKind(value)) + " " +
            std::string(FldTypeToStr(value.Type));
    if (!value.IsMissing) text += " " + EscapeLineBreaks(value.Text);
    text += "\n";
  }
  session.Print(text);
}

void PrintFindings(TSession& session, const TSource& source, const std::vector<TCheckFinding>& findings, int& status) {
  const TPlaces places(source);
  for (const TCheckFinding& finding : findings) {
    if (finding.Severity == csError) status = 1;
    session.Print(places.Of(finding.Section) + (finding.Severity == csError ? ": error: " : ": warning: ") +
                  (finding.Place.empty() ? "" : finding.Place + ": ") + finding.Text + "\n");
  }
}

}  // namespace

int RunTolvi(std::span<const std::string> arguments, TStreams& streams) {
  try {
    const int status = RunCommand(ParseArguments(arguments), streams);
    if (!streams.Out.flush()) throw EOutputError{errno};
    return status;
  } catch (const EUsageError& error) {
    return Tell(streams, WithoutPasswords(error.what(), arguments), 2);
  } catch (const EOutputError& error) {
    // Whoever reads the output has seen enough.
    if (error.Reason == EPIPE) return 0;
    const std::string reason = error.Reason == 0 ? std::string() : std::string(": ") + std::strerror(error.Reason);
    return Tell(streams, "the output cannot be written" + reason, 1);
  } catch (const std::exception& error) {
    streams.Out.flush();
    return Tell(streams, WithoutPasswords(error.what(), arguments), 1);
  }
}

int RunSql(TSession& session) {
  constexpr std::pair<std::string_view, TMarkerStyle> Styles[] = {
      {"?", msQuestion}, {":name", msColonName}, {"$1", msDollarNumber}};
  session.LoadAll();
  session.TellWarnings(session.Panel.LoadWarnings());
  Reading(session.QuerySource, [&session, &Styles] {
    for (const auto& [name, style] : Styles) {
      if (session.Arguments.Value("bound") == name) return PrintBound(session, style);
    }
    session.Panel.BuildQuery();
    const TSQLLines& lines = session.Panel.QResult().GetSQLLines();
    for (std::size_t i = 0; i < lines.Count(); ++i) session.Print(std::string(lines.Line(i)) + "\n");
  });
  session.TellWarnings(session.Panel.QResult().Warnings());
  return 0;
}

int RunFilters(TSession& session) {
  session.LoadAll();
  session.TellWarnings(session.Panel.LoadWarnings());
  Reading(session.QuerySource, [&session] { session.Panel.BuildFilters(); });
  for (const TJTableFilter& filter : session.Panel.TableFilters()) {
    session.Print((filter.Table ? filter.Table->GetTableAlias() : std::string()) + "\t" + filter.Filter + "\n");
  }
  session.TellWarnings(session.Panel.QResult().Warnings());
  return 0;
}

int RunPath(TSession& session) {
  session.LoadModel();
  const std::string &from = session.Arguments.Operands[0], &to = session.Arguments.Operands[1];
  const TDSPath* path = Reading(session.ModelSource, [&] { return session.Model.GetPath(from, to); });
  if (!path) {
    throw EInputError(session.ModelSource.Name + ": no chain of links leads from " + from + " to " + to);
  }
  std::string line;
  for (const TDSTable* table : *path) line += (line.empty() ? "" : " ") + table->GetTableAlias();
  session.Print(line + "\n");
  return 0;
}

int RunModel(TSession& session) {
  session.LoadModel(session.Arguments.Operands[0]);
  const bool xml = session.Arguments.Value("to") == "xml";
  session.Print(xml ? ModelToXml(session.Model) : WithLineFeeds(session.Model.GetStructString()));
  return 0;
}

int RunQuery(TSession& session) {
  session.LoadModel();
  session.LoadQuery(session.Arguments.Operands[0]);
  // Titles of the query's own are not lost.
  session.Panel.SetSaveTitles(!session.Panel.Titles().IsDefault());
  session.Print(WithLineFeeds(session.Panel.SaveToText()));
  session.TellWarnings(session.Panel.LoadWarnings());
  return 0;
}

int RunExplain(TSession& session) {
  session.LoadAll();
  for (const std::string& line : Explain(session.Panel)) session.Print(line + "\n");
  session.TellWarnings(session.Panel.LoadWarnings());
  return 0;
}

int RunCheck(TSession& session) {
  int status = 0;
  // A text that cannot be read is a finding like the others.
  const auto checked = [&session, &status](const TSource& source, auto load) {
    try {
      load();
      return true;
    } catch (const EException& error) {
      session.Print(source.Located(error.Message(), "error: ") + "\n");
      status = 1;
      return false;
    }
  };
  session.ModelSource = ReadSource(std::string(session.Arguments.Value("model")), session.Streams.In);
  if (!checked(session.ModelSource, [&] { LoadModelFromAnyText(session.Model, session.ModelSource.Text); }))
    return status;
  PrintFindings(session, session.ModelSource, CheckModel(session.Model), status);
  session.Panel.SetDBStruct(&session.Model);
  session.Panel.SetAllowSQLFragments(session.Arguments.Has("fragments"));
  for (const std::string& file : session.Arguments.Operands) {
    try {
      session.QuerySource = ReadSource(file, session.Streams.In);
    } catch (const EInputError& error) {
      status = Tell(session.Streams, error.what(), 1);
      continue;
    }
    if (checked(session.QuerySource, [&] { session.Panel.LoadFromText(session.QuerySource.Text); })) {
      PrintFindings(session, session.QuerySource, CheckQuery(session.Panel), status);
    }
  }
  return status;
}

}  // namespace tolvi
