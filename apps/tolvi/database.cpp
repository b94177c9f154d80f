#include "apps/tolvi/database.h"

#include <optional>
#include <string>

#include <tolvi/foundation/text.h>

namespace tolvi {

TSqlConnection OpenDatabase(TSession& session, std::string_view urlOrFile, TDatabaseUse use) {
  try {
    const TConnectionUrl url = IsConnectionUrl(urlOrFile)
                                   ? ParseConnectionUrl(urlOrFile)
                                   : TConnectionUrl{.Kind = dkSQLite, .Database = std::string(urlOrFile)};
    TSqlConnectOptions options{.ReadOnly = use == duRead, .MustExist = use != duCreate};
    if (session.Streams.AskSecret) {
      options.OnPasswordRequest = [&session](const TConnectionUrl& asked) {
        return session.Streams.AskSecret("Password for " + asked.Shown() + ": ");
      };
    }
    return TSqlConnection(url, options);
  } catch (const EException& error) {
    throw DatabaseError({}, error);
  }
}

EInputError DatabaseError(std::string_view place, const EException& error) {
  std::string line(place);
  std::string_view separator = place.empty() ? "" : ": ";
  const std::string message = error.Message();
  for (const std::string_view words : SplitLines(message)) {
    if (words.starts_with("Statement: ")) break;
    if (Trim(words).empty()) continue;
    line.append(separator).append(Trim(words));
    separator = " ";
  }
  return EInputError(line);
}

}  // namespace tolvi
