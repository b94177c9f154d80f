#include "apps/tolvi/session.h"

#include <algorithm>
#include <cerrno>

#include <tolvi/xml/modelxml.h>

namespace tolvi {
namespace {

struct TSyntaxName {
  std::string_view name;
  TSQLSyntax syntax;
};
constexpr TSyntaxName Syntaxes[] = {
    {"sql1", ssSQL1}, {"sql2", ssSQL2}, {"oracle", ssOracle}, {"access", ssAccess}, {"nexusdb", ssNexusDB}};

TSQLSyntax SyntaxOf(std::string_view name) {
  const auto found = std::find_if(std::begin(Syntaxes), std::end(Syntaxes),
                                  [name](const TSyntaxName& entry) { return entry.name == name; });
  return found == std::end(Syntaxes) ? ssSQL2 : found->syntax;
}

}  // namespace

void TSession::LoadModel(const std::string& file) {
  ModelSource = ReadSource(file, Streams.In);
  Reading(ModelSource, [this] { LoadModelFromAnyText(Model, ModelSource.Text); });
  Panel.SetDBStruct(&Model);
}

void TSession::LoadQuery(const std::string& file) {
  QuerySource = ReadSource(file, Streams.In);
  Reading(QuerySource, [this] { Panel.LoadFromText(QuerySource.Text); });
}

void TSession::LoadAll() {
  const std::string top = Arguments.Has("top") ? TopClause(Arguments.Value("top")) : std::string();
  const std::string limit = Arguments.Has("limit") ? LimitClause(Arguments.Value("limit")) : std::string();
  LoadModel();
  Panel.SetAllowSQLFragments(Arguments.Has("fragments"));
  LoadQuery(std::string(Arguments.Value("query")));
  Panel.SetSQLSyntax(SyntaxOf(Arguments.Value("syntax", "sql2")));
  // Otherwise those of the query stay.
  if (!top.empty()) Panel.SetSQLTopClause(top);
  if (!limit.empty()) Panel.SetSQLLimitClause(limit);
}

void TSession::Print(std::string_view text) {
  Streams.Out << text;
  CheckOutput();
}

void TSession::CheckOutput() {
  if (!Streams.Out) throw EOutputError{errno};
}

void TSession::TellWarnings(const std::vector<TQueryWarning>& warnings) {
  if (warnings.empty()) return;
  const TPlaces places(QuerySource);
  for (const TQueryWarning& warning : warnings) {
    // Warnings about columns begin with their section.
    const std::string section =
        warning.RowID.empty() ? warning.Text.substr(0, warning.Text.find(": ")) : "Row" + warning.RowID;
    Streams.Err << "tolvi: " << places.Of(section) << ": warning: " << warning.Text << '\n';
  }
}

}  // namespace tolvi
