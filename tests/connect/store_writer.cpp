// Writes to the query of a store, for tests that kill it or run two of it:
//
//   store_writer URL NAME alternate LENGTH    texts of LENGTH letters, "a" for even revisions, "b" for odd ones,
//   without
//                                             end; says so after the first one
//   store_writer URL NAME append WORD COUNT   the lines "WORD 1", "WORD 2", ...
#include <cstdio>
#include <string>

#include <tolvi/connect/sqlconnection.h>
#include <tolvi/connect/sqlqrybase.h>

namespace {

using namespace tolvi;

void Alternate(TJStoredQuery& query, std::size_t length) {
  for (bool isFirst = true;;) {
    const bool isOdd = std::stoll(query.Entry().Revision) % 2 == 0;
    try {
      query.SaveContent({std::string(length, isOdd ? 'b' : 'a')});
      if (isFirst) {
        std::puts("saved");
        std::fflush(stdout);
      }
      isFirst = false;
    } catch (const EQueryConflictError& conflict) {
      // A server still does what one that was killed has sent.
      query.Accept(conflict);
    }
  }
}

void Append(TJStoredQuery& query, const std::string& word, int count) {
  for (int number = 1; number <= count;) {
    TStrings lines;
    query.LoadContent(lines);
    lines.Add(word + " " + std::to_string(number));
    try {
      query.SaveContent(lines);
      ++number;
    } catch (const EQueryConflictError&) {
      // Once more, with what is stored now.
    }
  }
}

}  // namespace

int main(int count, char** arguments) {
  try {
    if (count < 5) return 2;
    const TSqlConnection connection(ParseConnectionUrl(arguments[1]));
    TJSqlQueryBase base(connection.GetName());
    base.Open();
    TJStoredQuery& query = base.GetStoredQuery(base.IndexByName(arguments[2]));
    if (std::string_view(arguments[3]) == "alternate") Alternate(query, std::stoul(arguments[4]));
    if (count < 6) return 2;
    Append(query, arguments[4], std::stoi(arguments[5]));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
