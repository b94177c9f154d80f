#include "apps/tolvi/session.h"
#include <tolvi/foundation/text.h>

// The command that makes a query of an SQL statement.

namespace tolvi {

int RunImport(TSession& session) {
  session.LoadModel();
  session.QuerySource = ReadSource(std::string(session.Arguments.Value("sql")), session.Streams.In);
  const TSource& source = session.QuerySource;
  Reading(source, [&session, &source] {
    try {
      session.Panel.ParseSQL(source.Text);
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
