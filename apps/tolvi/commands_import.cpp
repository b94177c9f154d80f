#include "apps/tolvi/session.h"
#include <tolvi/foundation/text.h>

// The command that makes a query of an SQL statement.

namespace tolvi {

namespace {

TSQLImportOptions OptionsOf(const TArguments& arguments) {
  TSQLImportOptions options;
  options.Faithful = arguments.Has("faithful");
  options.Approximate = arguments.Has("approximate");
  for (const std::string_view name : {"no-fragments", "approximate"}) {
    if (arguments.Has(name) && !options.Faithful) throw EUsageError("--" + std::string(name) + " needs --faithful");
  }
  return options;
}

}  // namespace

int RunImport(TSession& session) {
  const TSQLImportOptions options = OptionsOf(session.Arguments);
  session.LoadModel();
  session.Panel.SetAllowSQLFragments(options.Faithful && !session.Arguments.Has("no-fragments"));
  session.QuerySource = ReadSource(std::string(session.Arguments.Value("sql")), session.Streams.In);
  const TSource& source = session.QuerySource;
  Reading(source, [&session, &source, &options] {
    try {
      session.Panel.ParseSQL(source.Text, options);
    } catch (const ESQLImportError& error) {
      throw EInputError(source.Name + ":" + std::to_string(error.Line()) + ":" + std::to_string(error.Column()) + ": " +
                        error.Reason());
    } catch (const ESQLParserError& error) {
      const std::string message = error.Message();
      throw EInputError(source.Name + ":" + std::to_string(error.Line()) + ": " +
                        std::string(GetBeforeSep(message, CrLf)));
    }
  });
  session.Print(WithLineFeeds(session.Panel.SaveToText()));
  const std::vector<TImportWarning>& warnings = session.Panel.ImportWarnings();
  for (const TImportWarning& warning : warnings) {
    session.Streams.Err << "tolvi: " << source.Name << ':' << warning.Line << ": warning: " << warning.Message()
                        << '\n';
  }
  return session.Arguments.Has("strict") && !warnings.empty() ? 1 : 0;
}

}  // namespace tolvi
