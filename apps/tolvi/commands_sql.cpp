#include "apps/tolvi/session.h"
#include <tolvi/sqlimport/sqljson.h>
#include <tolvi/sqlimport/sqlpars.h>

// The commands that read SQL.

namespace tolvi {

int RunParse(TSession& session) {
  const TSource source = ReadSource(std::string(session.Arguments.Value("sql")), session.Streams.In);
  TJSQLParser parser;
  parser.SetSQL(source.Text);
  try {
    parser.Parse();
  } catch (const ESQLParserError& error) {
    session.Streams.Err << WithLineFeeds(error.Message()) << '\n';
    return 1;
  } catch (const EListError& error) {
    session.Streams.Err << error.Message() << "\nLine:" << parser.GetLine() << '\n';
    return 1;
  }
  session.Print(SQLResultToJson(parser.ParserResult()));
  return 0;
}

}  // namespace tolvi
