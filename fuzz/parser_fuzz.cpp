#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include <tolvi/foundation/text.h>
#include <tolvi/sqlimport/sqljson.h>
#include <tolvi/sqlimport/sqlpars.h>

// Any bytes: the scanner must cover them, and the parser must end with a result or one of its errors.

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

void Scan(std::string_view text, bool skipComments) {
  tolvi::TJScanner scanner;
  scanner.SetSkipComments(skipComments);
  scanner.Keywords().Add("select");
  scanner.SetSource(text);
  const tolvi::TJScannerBookmark none;
  std::size_t end = 0;
  for (scanner.FirstToken(); !scanner.EOS(); scanner.NextToken()) {
    Require(scanner.GetTokPos() >= end && scanner.GetTokEnd() > scanner.GetTokPos());
    end = scanner.GetTokEnd();
    Require(scanner.GetRealStr() == text.substr(scanner.GetTokPos(), end - scanner.GetTokPos()));
    Require(scanner.GetTokType() == tolvi::ttIdentifier || scanner.GetTokType() == tolvi::ttKeyword ||
            scanner.GetTokStr() == scanner.GetRealStr());
    Require(scanner.GetTokLine() >= 1 && scanner.GetTokColumn() >= 1);
    Require(scanner.GetToken(-1).Pos <= scanner.GetTokPos());
  }
  Require(end <= text.size());
  Require(scanner.ExtractPiece(none, scanner.GetBookmark(), false).size() <= text.size());
}

void Parse(std::string_view text, bool wholeQuotedNames) {
  tolvi::TJSQLParser parser;
  parser.SetWholeQuotedNames(wholeQuotedNames);
  parser.SetSQL(text);
  try {
    parser.Parse();
  } catch (const tolvi::ESQLParserError& error) {
    Require(error.Line() >= 1 && error.Line() <= parser.LineAt(text.size()));
    return;
  } catch (const tolvi::EListError&) {
    return;
  }
  Require(tolvi::IsValidUtf8(tolvi::SQLResultToJson(parser.ParserResult())));
  for (const tolvi::TSQLDropped& dropped : parser.ParserResult().Dropped()) {
    Require(dropped.Pos <= dropped.End && dropped.End <= text.size());
  }
  if (tolvi::TSQLBracket* where = parser.ParserResult().GetWhereClause()) where->DeleteEmptyBrackets();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  Scan(text, true);
  Scan(text, false);
  Parse(text, false);
  Parse(text, true);
  return 0;
}
