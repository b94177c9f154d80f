#include "apps/tolvi/database.h"
#include <tolvi/connect/sqldbinfo.h>
#include <tolvi/model/formatpresets.h>
#include <tolvi/model/modelfill.h>
#include <tolvi/panel/stdsplaces.h>

// The command "init-model": a model made from what a database tells of itself.

namespace tolvi {
namespace {

void Tell(TSession& session, const TFillReport& report) {
  for (const std::string& line : report.ToStrings()) session.Streams.Err << "tolvi: " << line << '\n';
}

TFillOptions FillOptionsOf(const TSession& session, TDatabaseKind kind) {
  TFillOptions options = FillOptionsFor(kind);
  for (const std::string_view table : session.Arguments.Values("table")) options.Tables.Add(table);
  options.Views = !session.Arguments.Has("no-views");
  if (session.Arguments.Has("links-from-names")) options.LinksFromNames = true;
  if (session.Arguments.Has("outer-links")) options.LinkType = ltOuterLeft;
  options.TakeChangedTypes = session.Arguments.Has("changed-types");
  return options;
}

/// What was added to a model that had nothing needs no lines of its own.
void TellSummary(TSession& session, TFillReport report) {
  struct TCount {
    std::string_view One, Many;
    TStrings TFillReport::*List;
  };
  constexpr TCount Counts[] = {{"table", "tables", &TFillReport::AddedTables},
                               {"field", "fields", &TFillReport::AddedFields},
                               {"list of values", "lists of values", &TFillReport::AddedLists},
                               {"link", "links", &TFillReport::AddedLinks}};
  std::string summary;
  for (const TCount& count : Counts) {
    const std::size_t number = (report.*count.List).Count();
    summary += (summary.empty() ? "" : ", ") + std::to_string(number) + " ";
    summary += number == 1 ? count.One : count.Many;
    (report.*count.List).Clear();
  }
  report.AddedGroups.Clear();
  session.Streams.Err << "tolvi: " << summary << '\n';
  Tell(session, report);
}

}  // namespace

int RunInitModel(TSession& session) {
  const bool merge = session.Arguments.Has("merge");
  if (merge) session.LoadModel(std::string(session.Arguments.Value("merge")));
  const TSqlConnection connection = OpenDatabase(session, session.Arguments.Value("db"));
  const TFillReport report = Using(connection.GetUrl().Shown(), [&] {
    TJSqlDBInfo info(connection.GetName());
    if (!merge) ApplyFormatPreset(session.Model.SQLFormats(), FormatPresetOf(connection.GetKind()));
    TFillReport filled = FillModel(session.Model, info, FillOptionsOf(session, connection.GetKind()));
    // A model that has been arranged in the designer keeps its arrangement.
    PlaceNewTables(session.Model);
    return filled;
  });
  if (merge) {
    Tell(session, report);
  } else {
    TellSummary(session, report);
    if (report.AddedTables.Empty()) throw EInputError(connection.GetUrl().Shown() + ": there is no table to take");
  }
  session.Print(WithLineFeeds(session.Model.GetStructString()));
  return 0;
}

}  // namespace tolvi
