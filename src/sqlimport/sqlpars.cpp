#include <algorithm>
#include <limits>
#include <utility>

#include <tolvi/foundation/consts.h>
#include <tolvi/sqlimport/sqlpars.h>

namespace tolvi {

TJSQLParser::TJSQLParser() {
  FScanner.SetSourceStyle(ssSQL);
  for (const std::string_view word : {"select", "from", "join", "where", "order", "group", "by"}) {
    FScanner.Keywords().Add(word);
  }
}

void TJSQLParser::SetSQL(std::string_view text) {
  Forget();
  FScanner.SetSource(text);
}

void TJSQLParser::SetSQL(const TStrings& lines) {
  Forget();
  FScanner.SetSource(lines);
}

// What refers to the statement goes with it.
void TJSQLParser::Forget() {
  FResult.Clear();
  FLineStarts.clear();
  FWord = wdEnd;
}

TStrings TJSQLParser::GetSQL() const {
  TStrings lines;
  lines.SetText(GetText());
  return lines;
}

void TJSQLParser::Parse() {
  FResult.Clear();
  FDepth = 0;
  FScanner.FirstToken();
  Enter();
  ProcessSelect();
  ProcessFrom();
  if (FWord == wdWhere) ProcessWhere();
  if (FWord == wdGroup) ProcessGroupBy();
  if (FWord == wdOrder) ProcessOrderBy();
  if (FWord != wdEnd) FResult.AddDropped({sdRest, FScanner.GetTokPos(), GetText().size()});
}

int TJSQLParser::LineAt(std::size_t pos) const {
  if (FLineStarts.empty()) {
    const std::string_view text = GetText();
    FLineStarts.push_back(0);
    for (std::size_t at = text.find('\n'); at != std::string_view::npos; at = text.find('\n', at + 1)) {
      FLineStarts.push_back(at + 1);
    }
  }
  return static_cast<int>(std::upper_bound(FLineStarts.begin(), FLineStarts.end(), pos) - FLineStarts.begin());
}

// ---- Tokens ---------------------------------------------------------------------------------------------------------

void TJSQLParser::NextToken() {
  if (FWord == wdEnd) return;
  FScanner.NextToken();
  Enter();
}

void TJSQLParser::Enter() {
  FWord = SQLWordOf(FScanner.GetTokType(), FScanner.GetRealStr());
  if (FWord == wdSemicolon && FScanner.GetToken(1).Type == ttUnknown) FWord = wdEnd;
}

// Passes a token of an expression or value.
void TJSQLParser::SkipToken() {
  if (FWord == wdQuote && FWholeQuotedNames) {
    do NextToken();
    while (FWord != wdEnd && FWord != wdQuote);
  }
  NextToken();
}

void TJSQLParser::Error(std::string_view message) const { throw ESQLParserError(message, FScanner.GetTokLine()); }

void TJSQLParser::Expect(TSQLWord word) {
  if (FWord != word) Error(SWrongSQLStatement);
  NextToken();
}

std::string_view TJSQLParser::PieceFrom(std::size_t pos) const {
  const std::size_t end = FScanner.GetBookmark().EndOfPrevious;
  return pos < end ? GetText().substr(pos, end - pos) : std::string_view();
}

void TJSQLParser::AddDropped(TSQLDropKind kind, std::size_t pos) {
  FResult.AddDropped({kind, pos, pos + PieceFrom(pos).size()});
}

// ---- Expressions and names ------------------------------------------------------------------------------------------

std::string_view TJSQLParser::ProcessSQLExpr() {
  const std::size_t begin = FScanner.GetTokPos();
  std::ptrdiff_t depth = 0;
  for (; FWord != wdEnd; SkipToken()) {
    if (depth == 0 && (FScanner.GetTokType() == ttKeyword || FWord == wdComma || FWord == wdAs)) break;
    if (FWord == wdOpen) ++depth;
    if (FWord == wdClose) --depth;
  }
  return PieceFrom(begin);
}

TSQLText TJSQLParser::ProcessIdentifier() {
  if (FWord != wdQuote) return ProcessAlias();
  const std::size_t begin = FScanner.GetTokPos();
  const std::string_view name = ProcessAlias().Get();
  // Blanks at the quotes are left out.
  const std::string_view written = PieceFrom(begin);
  if (written.size() == name.size() + 2) return TSQLText::ViewOf(written);
  return "\"" + std::string(name) + "\"";
}

TSQLText TJSQLParser::ProcessAlias() {
  if (FWord == wdEnd) Error(SWrongSQLStatement);
  if (FWord != wdQuote) {
    const std::string_view name = FScanner.GetRealStr();
    NextToken();
    return TSQLText::ViewOf(name);
  }
  NextToken();
  const std::size_t begin = FScanner.GetTokPos();
  while (FWord != wdEnd && FWord != wdQuote) NextToken();
  if (FWord == wdEnd) Error(SWrongSQLStatement);
  const std::string_view name = PieceFrom(begin);
  NextToken();
  return TSQLText::ViewOf(name);
}

// Identifiers joined by points, so many at most.
TSQLText TJSQLParser::ProcessQualifiedName(std::size_t parts) {
  TSQLText first = ProcessIdentifier();
  if (FWord != wdPoint) return first;
  std::string name(first.Get());
  for (; parts > 1 && FWord == wdPoint; --parts) {
    NextToken();
    name.append(".").append(ProcessIdentifier().Get());
  }
  return name;
}

// ---- SELECT and FROM ------------------------------------------------------------------------------------------------

void TJSQLParser::ProcessSelect() {
  Expect(wdSelect);
  if (FWord == wdDistinct) {
    FResult.SetDistinct(true);
    NextToken();
  }
  if (FWord == wdStar) {
    FResult.ResultFields().SetJustSorting(true);
    FResult.SetAllRFields(true);
    NextToken();
    return;
  }
  ProcessResultField();
  while (FWord == wdComma) {
    NextToken();
    ProcessResultField();
  }
}

void TJSQLParser::ProcessResultField() {
  auto field = std::make_unique<TSQLResultField>();
  field->SetPos(FScanner.GetTokPos());
  field->SetSQLExpr(TSQLText::ViewOf(ProcessSQLExpr()));
  if (FWord == wdAs) {
    NextToken();
    field->SetAlias(ProcessAlias());
  }
  FResult.ResultFields().Add(std::move(field));
}

void TJSQLParser::ProcessFrom() {
  Expect(wdFrom);
  ProcessTable();
  while (FWord == wdComma) {
    NextToken();
    ProcessTable();
  }
}

std::unique_ptr<TSQLTable> TJSQLParser::ReadTable() {
  auto table = std::make_unique<TSQLTable>();
  table->SetPos(FScanner.GetTokPos());
  table->SetTableName(ProcessQualifiedName(std::numeric_limits<std::size_t>::max()));
  return table;
}

void TJSQLParser::ProcessTable() {
  while (FWord == wdOpen) NextToken();
  TSQLTable& table = FResult.Tables().Add(ReadTable());
  while (FWord == wdClose) NextToken();
  if (!EndsTable(FWord) && !BeginsJoin(FWord)) table.SetAliasName(ProcessIdentifier());
  ProcessTableJoins();
}

void TJSQLParser::ProcessTableJoins() {
  while (BeginsJoin(FWord)) {
    if (FWord != wdJoin) {
      const bool mayBeOuter = FWord != wdInner;
      NextToken();
      if (mayBeOuter && FWord == wdOuter) NextToken();
    }
    Expect(wdJoin);
    auto table = ReadTable();
    if (FWord != wdOn) table->SetAliasName(ProcessIdentifier());
    Expect(wdOn);
    const std::size_t begin = FScanner.GetTokPos();
    ProcessBoolExpr().reset();
    AddDropped(sdJoinCondition, begin);
    FResult.Tables().Add(std::move(table));
    while (FWord == wdClose) NextToken();
  }
}

// ---- GROUP BY -------------------------------------------------------------------------------------------------------

void TJSQLParser::ProcessGroupBy() {
  Expect(wdGroup);
  Expect(wdBy);
  const std::size_t begin = FScanner.GetTokPos();
  static_cast<void>(ProcessSQLExpr());
  while (FWord == wdComma) {
    NextToken();
    static_cast<void>(ProcessSQLExpr());
  }
  AddDropped(sdGroupBy, begin);
}

}  // namespace tolvi
