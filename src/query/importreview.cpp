#include <algorithm>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/importreview.h>
#include <tolvi/query/joincheck.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/sqlimport/sqlpars.h>

namespace tolvi {

namespace {

constexpr std::string_view LeftOut = "left out";

// By link type.
constexpr std::string_view JoinNames[] = {"an inner join", "a left join", "a right join", "a full join"};

}  // namespace

TImportReview::TImportReview(TJQueryPanel& panel, const TJParserResult& parsed, TImportLog& log)
    : FPanel(panel), FParsed(parsed), FLog(log) {}

void TImportReview::Run() {
  CollectTables();
  ReviewColumns();
  ReviewTables();
  ReviewJoins();
  ReviewGroupBy();
  ReviewRest();
}

std::string_view TImportReview::TextOf(const TSQLDropped& dropped) const {
  return FLog.Statement().substr(dropped.Pos, dropped.End - dropped.Pos);
}

std::size_t TImportReview::PosOfTables() const { return FParsed.Tables().Empty() ? 0 : FParsed.Tables()[0].GetPos(); }

std::size_t TImportReview::PosOf(const TDSTable* table) const {
  for (const TTable& entry : FTables) {
    if (entry.Table == table) return entry.Parsed->GetPos();
  }
  return PosOfTables();
}

// ---- Columns --------------------------------------------------------------------------------------------------------

void TImportReview::ReviewColumns() {
  const bool isDistinct = FPanel.GetSQLOptions().Contains(soSelectDistinct);
  if (FParsed.GetDistinct() != isDistinct) {
    TJScanner scanner;
    scanner.SetSource(FLog.Statement());
    scanner.FirstToken();
    if (isDistinct) FLog.Warn(scanner.GetTokPos(), "select", "\"distinct\" added, an option of the query");
    if (!isDistinct) FLog.Warn(scanner.GetToken(1).Pos, "distinct", std::string(LeftOut));
  }
  const TRFieldList& columns = FPanel.RFields();
  const TSQLResultFieldList& fields = FParsed.ResultFields();
  for (std::size_t i = 0; i < fields.Count() && i < columns.Count(); ++i) {
    const std::string_view alias = fields[i].GetAlias();
    if (alias.empty() || SameText(alias, columns[i].GetAlias())) continue;
    FLog.Warn(fields[i].GetPos(), alias, Format("not kept: the column is called \"%s\"", {columns[i].GetAlias()}));
  }
}

// ---- Tables ---------------------------------------------------------------------------------------------------------

void TImportReview::CollectTables() {
  const TSQLTableList& tables = FParsed.Tables();
  FTables.reserve(tables.Count());
  // Like the tables, in the order of the statement.
  auto dropped = FParsed.Dropped().begin();
  for (std::size_t i = 0; i < tables.Count(); ++i) {
    TTable table{&tables[i]};
    FindTable(table);
    const std::size_t pos = tables[i].GetPos();
    const std::size_t end = i + 1 < tables.Count() ? tables[i + 1].GetPos() : FLog.Statement().size();
    for (; dropped != FParsed.Dropped().end() && dropped->Pos < end; ++dropped) {
      if (dropped->Kind == sdJoinCondition && dropped->Pos > pos) table.Join = &*dropped;
    }
    if (table.Join != nullptr && i > 0) {
      const std::size_t before = tables[i - 1].GetPos();
      table.JoinType = JoinTypeBefore(FLog.Statement().substr(before, pos - before));
    }
    FTables.push_back(table);
  }
}

void TImportReview::FindTable(TTable& table) const {
  const TJCustomDBStructure& model = *FPanel.GetDBStruct();
  const TSQLFormats& formats = model.SQLFormats();
  const std::string name = UnquotedName(table.Parsed->GetTableName(), formats);
  const std::string alias = UnquotedName(table.Parsed->GetAliasName(), formats);
  const auto isNamed = [&name, &formats](const TDSTable& entry) {
    return SameText(entry.GetTableName(), name) || SameText(entry.GetFullName(), name) ||
           SameText(entry.GetCompoundName(), name) || SameText(UnquotedName(entry.GetMainExpr(), formats), name);
  };
  TDSTable* byAlias = model.TableByName(tnAlias, alias);
  if (byAlias != nullptr && (isNamed(*byAlias) || SameText(alias, name))) {
    table.Table = byAlias;
    table.SameAlias = true;
    return;
  }
  for (const TTableNameKind kind : {tnName, tnFullName, tnCompoundName}) {
    if (table.Table == nullptr) table.Table = model.TableByName(kind, name);
  }
  // Without an alias, the table is referred to by its whole name.
  table.SameAlias = table.Table != nullptr && SameText(alias, name) &&
                    SameText(UnquotedName(table.Table->GetWhereExpr(), formats), name);
}

void TImportReview::ReviewTables() {
  const TRTableList& used = FPanel.QResult().RTables();
  for (const TTable& table : FTables) {
    const std::size_t pos = table.Parsed->GetPos();
    const std::string_view alias = table.Parsed->GetAliasName();
    if (table.Table == nullptr) {
      FLog.Warn(pos, table.Parsed->GetTableName(), "left out: the model has no such table");
    } else if (!table.SameAlias) {
      FLog.Warn(pos, alias, Format("the model knows this table as \"%s\"", {table.Table->GetWhereExpr()}));
    } else if (!used.Holds(*table.Table)) {
      FLog.Warn(pos, alias, "left out: no result field or condition needs the table");
    }
  }
  for (const TResultTable& entry : used) {
    const bool isWritten = std::any_of(FTables.begin(), FTables.end(),
                                       [&entry](const TTable& table) { return table.Table == entry.Table; });
    if (!isWritten) FLog.Warn(PosOfTables(), entry.Table->GetWhereExpr(), "table added, which the query needs");
  }
}

// ---- Joins ----------------------------------------------------------------------------------------------------------

TDSLinkType TImportReview::TypeTowards(const TDSLink& link, const TDSTable& joined) {
  const TDSLinkType type = link.GetLinkType();
  if (link.GetTable2() == &joined || (type != ltOuterLeft && type != ltOuterRight)) return type;
  return type == ltOuterLeft ? ltOuterRight : ltOuterLeft;
}

void TImportReview::ReviewJoins() {
  const TSQLFormats& formats = FPanel.GetDBStruct()->SQLFormats();
  std::vector<TUsedLink> links;
  for (const TResultTable& entry : FPanel.QResult().RTables()) {
    if (entry.Link != nullptr) links.push_back({entry.Link, ComparisonsOf(entry.Link->GetSQLExpr(), formats)});
  }
  for (std::size_t i = 0; i < FTables.size(); ++i) {
    if (FTables[i].Join != nullptr) ReviewJoin(i, links);
  }
  for (const TUsedLink& link : links) {
    if (link.IsWritten) continue;
    const std::size_t pos = std::max(PosOf(link.Link->GetTable1()), PosOf(link.Link->GetTable2()));
    FLog.Warn(pos, link.Link->GetSQLExpr(),
              Format("added as %s by a link of the model", {JoinNames[link.Link->GetLinkType()]}));
  }
  ReviewOrder(links);
}

void TImportReview::ReviewJoin(std::size_t index, std::vector<TUsedLink>& links) {
  const TTable& table = FTables[index];
  const std::string_view text = WithoutJoinWords(TextOf(*table.Join));
  const std::vector<std::string> comparisons = ComparisonsOf(text, FPanel.GetDBStruct()->SQLFormats());
  const auto found = std::find_if(links.begin(), links.end(), [&](const TUsedLink& link) {
    return !link.IsWritten && table.Table != nullptr && link.Link->ContainsTable(*table.Table) &&
           link.Comparisons == comparisons;
  });
  if (found == links.end()) {
    FLog.Warn(table.Join->Pos, text, "left out: the query does not join so");
    return;
  }
  found->IsWritten = true;
  const TDSLinkType type = TypeTowards(*found->Link, *table.Table);
  if (type == table.JoinType) return;
  FLog.Warn(table.Join->Pos, text,
            Format("%s became %s, as the model's link", {JoinNames[table.JoinType], JoinNames[type]}));
}

// With outer joins, the order of several joins matters.
void TImportReview::ReviewOrder(const std::vector<TUsedLink>& links) {
  const bool anyOuter = std::any_of(links.begin(), links.end(),
                                    [](const TUsedLink& link) { return link.Link->GetLinkType() != ltInner; });
  if (!anyOuter || links.size() < 2 || IsCommaStyle(FPanel.GetSQLSyntax())) return;
  TJSQLParser parser;
  parser.SetSQL("select * " + FPanel.QResult().GetFromClause().Joined(CrLf));
  parser.Parse();
  const TSQLTableList& written = parser.ParserResult().Tables();
  std::string order;
  bool isSame = written.Count() == FTables.size();
  for (std::size_t i = 0; i < written.Count(); ++i) {
    const std::string_view alias = written[i].GetAliasName();
    isSame = isSame && SameText(alias, FTables[i].Parsed->GetAliasName());
    order.append(i > 0 ? ", " : "").append(alias);
  }
  if (isSame) return;
  std::string text;
  for (const TTable& table : FTables) {
    text.append(text.empty() ? "" : ", ").append(table.Parsed->GetAliasName());
  }
  FLog.Warn(PosOfTables(), text, Format("joined in another order: %s", {order}));
}

// ---- GROUP BY and the rest ------------------------------------------------------------------------------------------

void TImportReview::ReviewGroupBy() {
  const std::string& built = FPanel.QResult().GetGroupClause();
  const auto written = std::find_if(FParsed.Dropped().begin(), FParsed.Dropped().end(),
                                    [](const TSQLDropped& dropped) { return dropped.Kind == sdGroupBy; });
  if (written == FParsed.Dropped().end()) {
    if (!built.empty()) FLog.Warn(PosOfTables(), "group by " + built, "added, because the query has aggregates");
    return;
  }
  const TSQLFormats& formats = FPanel.GetDBStruct()->SQLFormats();
  const std::string table =
      FTables.empty() ? std::string() : UnquotedName(FTables.front().Parsed->GetAliasName(), formats);
  const std::string_view whole = TextOf(*written);
  const std::size_t having = FindHaving(whole);
  if (having < whole.size()) FLog.Warn(written->Pos + having, whole.substr(having), std::string(LeftOut));
  const std::string_view text = Trim(whole.substr(0, having));
  if (!built.empty() && ExpressionsOf(text, table, formats) == ExpressionsOf(built, table, formats)) return;
  FLog.Warn(written->Pos, "group by " + std::string(text),
            built.empty() ? std::string(LeftOut) : Format("became \"group by %s\"", {built}));
}

void TImportReview::ReviewRest() {
  for (const TSQLDropped& dropped : FParsed.Dropped()) {
    if (dropped.Kind == sdRest) FLog.Warn(dropped.Pos, Trim(TextOf(dropped)), std::string(LeftOut));
  }
}

}  // namespace tolvi
