// Reading SELECT statements into a query panel.
#include <algorithm>
#include <utility>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/format.h>
#include <tolvi/foundation/global.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/importlog.h>
#include <tolvi/query/importreview.h>
#include <tolvi/query/importvalues.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/selectimport.h>
#include <tolvi/query/sqlbuilder.h>
#include <tolvi/query/sqlmapper.h>
#include <tolvi/sqlimport/sqlpars.h>

namespace tolvi {

namespace {

constexpr std::size_t LongestText = 100, LongestAction = 300;

// On one line, cut where it is too long, never inside a character.
std::string Shortened(std::string_view text, std::size_t longest) {
  std::string line;
  for (const char c : Trim(text)) {
    const bool isBlank = static_cast<unsigned char>(c) <= ' ';
    if (!isBlank || !line.ends_with(' ')) line += isBlank ? ' ' : c;
    if (line.size() > longest + 4) break;
  }
  if (line.size() <= longest) return line;
  std::size_t end = longest;
  while (end > 0 && (static_cast<unsigned char>(line[end]) & 0xC0U) == 0x80U) --end;
  return line.substr(0, end) + "...";
}

}  // namespace

std::string TImportWarning::Message() const {
  return Format("\"%s\": %s", {Shortened(Text, LongestText), Shortened(Action, LongestAction)});
}

std::vector<TImportWarning> TImportLog::Take() {
  std::stable_sort(FWarnings.begin(), FWarnings.end(),
                   [](const TImportWarning& a, const TImportWarning& b) { return a.Line < b.Line; });
  return std::move(FWarnings);
}

// ---- Statements -----------------------------------------------------------------------------------------------------

void TJQueryPanel::ParseSQL(const TStrings& sql, const TSQLImportOptions& options) {
  ParseSQL(std::string_view(sql.Joined(CrLf)), options);
}

void TJQueryPanel::ParseSQL(std::string_view sql, const TSQLImportOptions& options) {
  if (options.Faithful) {
    ImportSelect(sql, options);
  } else {
    ImportSQL(sql, options, 0);
  }
}

void TJQueryPanel::ImportSelect(std::string_view sql, const TSQLImportOptions& options) {
  CheckIfDBStructAssigned();
  const TSQLFormats& formats = FDBStruct->SQLFormats();
  FImportWarnings.clear();
  const TSelectText text(sql, formats.GetQuoteSymbol1(), formats.GetQuoteSymbol2(), options.FirstLine);
  TSelectLog log(text, options.Approximate);
  ReplaceQuery([this, &text, &log] { TSelectImport(*this, text, text.All(), log).Run(); }, FActive);
  FImportWarnings = log.Warnings();
  std::stable_sort(FImportWarnings.begin(), FImportWarnings.end(),
                   [](const TImportWarning& a, const TImportWarning& b) { return a.Line < b.Line; });
  TellImport();
}

void TJQueryPanel::ImportSQL(std::string_view sql, const TSQLImportOptions& options, int level) {
  CheckIfDBStructAssigned();
  const bool wasActive = FActive;
  HoldBack();
  SetActive(false);
  SetCurrentRow(nullptr);
  FImportWarnings.clear();
  ++FLoading;
  try {
    ClearAll();
    TJSQLParser parser;
    parser.SetWholeQuotedNames(true);
    parser.SetSQL(sql);
    parser.Parse();
    MapSQL(parser, options, level);
  } catch (...) {
    FActive = false;
    ClearAll();
    --FLoading;
    RowsMoved();
    ShapeChanged();
    Release();
    throw;
  }
  --FLoading;
  RowsMoved();
  SetActive(wasActive);
  TellImport();
}

void TJQueryPanel::MapSQL(TJSQLParser& parser, const TSQLImportOptions& options, int level) {
  TJParserResult& parsed = parser.ParserResult();
  TImportLog log(&parser, options.FirstLine);
  TSQLMapper mapper(*this, log, level);
  mapper.MapResultFields(parsed.ResultFields());
  if (TSQLBracket* where = parsed.GetWhereClause()) {
    where->DeleteEmptyBrackets();
    mapper.MapBracket(*FRoot, *where, parsed.Tables());
  }
  if (const std::string error = BuildOutline(); !error.empty()) {
    log.Warn(parsed.Tables().Empty() ? 0 : parsed.Tables()[0].GetPos(), "from",
             Format("the query has no statement: %s", {error}));
  }
  TImportReview(*this, parsed, log).Run();
  FImportWarnings = log.Take();
}

// An inactive panel has no conditions in its statement.
std::string TJQueryPanel::BuildOutline() {
  FActive = true;
  std::string error;
  try {
    FBuilder->BuildOutline();
  } catch (const EJQueryPanelError& caught) {
    error = caught.Message();
  }
  FActive = false;
  return error;
}

// A handler may destroy the panel.
void TJQueryPanel::TellImport() {
  TRef<TJQueryPanel> alive;
  alive.Set(this);
  if (TQueryPanelView* view = Viewer()) view->ResultFieldsChanged();
  ShapeChanged();
  Release();
  if (!alive || !OnImportWarning) return;
  const std::vector<TImportWarning> warnings = FImportWarnings;
  const TImportWarningEvent handler = OnImportWarning;
  for (const TImportWarning& warning : warnings) {
    if (alive) handler(*this, warning);
  }
}

// ---- Steps ----------------------------------------------------------------------------------------------------------

void TJQueryPanel::ProcessSQLBracket(TFilterBracket& filterBracket, const TSQLBracket& sqlBracket,
                                     const TSQLTableList& tables) {
  CheckIfDBStructAssigned();
  TImportLog log(nullptr, 1);
  HoldBack();
  try {
    TSQLMapper(*this, log, 0).MapBracket(filterBracket, sqlBracket, tables);
  } catch (...) {
    Release();
    throw;
  }
  FImportWarnings = log.Take();
  Release();
}

TDSCondition* TJQueryPanel::FindCustomCondition(const TSQLCondition& condition) {
  CheckIfDBStructAssigned();
  TImportLog log(nullptr, 1);
  return TSQLMapper(*this, log, 0).FindCustomCondition(condition);
}

TDSOperator* TJQueryPanel::OperatorBySQLCond(const TSQLCondition& condition, std::string& value1, std::string& value2,
                                             TStrings& values) {
  CheckIfDBStructAssigned();
  TImportLog log(nullptr, 1);
  TOperatorMatch match = TSQLMapper(*this, log, 0).FindOperator(condition);
  values.Clear();
  if (match.Operator != nullptr && match.Operator->GetValueKind() == vkList) {
    std::string& list = match.Values[0].Text;
    if (match.Values[0].IsLiteral) list = QuotedString(list);
    for (const TSQLListItem& item : SplitSQLList(list)) values.Add(item.Text);
  }
  value1 = std::move(match.Values[0].Text);
  value2 = std::move(match.Values[1].Text);
  return match.Operator;
}

std::string TJQueryPanel::ProcessSQLDateValue(TFieldType fieldType, std::string_view text) const {
  const std::optional<TDateTime> value = TryReadSQLDate(fieldType, text, FFormatSettings);
  const bool hasDate = fieldType == ftDate || fieldType == ftDateTime || fieldType == ftTimeStamp;
  if (!value && !hasDate) throw EConvertError("'%s' is not a valid time", {text});
  return TvDateTimeToStr(value.value_or(Today()), FFormatSettings);
}

}  // namespace tolvi
