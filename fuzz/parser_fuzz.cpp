#include <cstddef>
#include <string_view>

#include "fuzz/targets.h"
#include <tolvi/foundation/text.h>
#include <tolvi/sqlimport/sqljson.h>
#include <tolvi/sqlimport/sqlpars.h>

namespace tolvi {
namespace {

constexpr std::size_t LongText = 10'000;

void Scan(std::string_view text, bool skipComments) {
  TJScanner scanner;
  scanner.SetSkipComments(skipComments);
  scanner.Keywords().Add("select");
  scanner.SetSource(text);
  const TJScannerBookmark none;
  std::size_t end = 0;
  for (scanner.FirstToken(); !scanner.EOS(); scanner.NextToken()) {
    Require(scanner.GetTokPos() >= end && scanner.GetTokEnd() > scanner.GetTokPos(), "a token follows the one before");
    end = scanner.GetTokEnd();
    Require(scanner.GetRealStr() == text.substr(scanner.GetTokPos(), end - scanner.GetTokPos()), "the real text");
    Require(scanner.GetTokType() == ttIdentifier || scanner.GetTokType() == ttKeyword ||
                scanner.GetTokStr() == scanner.GetRealStr(),
            "only words change");
    // A column takes the time of its line: not for every token of a very long one.
    Require(scanner.GetTokLine() >= 1 && (text.size() > LongText || scanner.GetTokColumn() >= 1),
            "lines and columns count from 1");
    Require(scanner.GetToken(-1).Pos <= scanner.GetTokPos(), "the token before stands before");
  }
  Require(end <= text.size(), "tokens end with the text");
  Require(scanner.ExtractPiece(none, scanner.GetBookmark(), false).size() <= text.size(),
          "a piece is part of the text");
}

void Parse(std::string_view text, bool wholeQuotedNames) {
  TJSQLParser parser;
  parser.SetWholeQuotedNames(wholeQuotedNames);
  parser.SetSQL(text);
  try {
    parser.Parse();
  } catch (const ESQLParserError& error) {
    Require(error.Line() >= 1 && error.Line() <= parser.LineAt(text.size()), "errors name a line of the text");
    return;
  } catch (const EListError&) {
    return;
  }
  Require(IsValidUtf8(SQLResultToJson(parser.ParserResult())), "JSON is UTF-8");
  for (const TSQLDropped& dropped : parser.ParserResult().Dropped()) {
    Require(dropped.Pos <= dropped.End && dropped.End <= text.size(), "what is dropped is part of the text");
  }
  if (TSQLBracket* where = parser.ParserResult().GetWhereClause()) where->DeleteEmptyBrackets();
}

}  // namespace

void FuzzParser(std::string_view text) {
  Scan(text, true);
  Scan(text, false);
  Parse(text, false);
  Parse(text, true);
}

}  // namespace tolvi
