#include <algorithm>

#include <tolvi/foundation/errors.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/link.h>

namespace tolvi {
namespace {

constexpr std::string_view LinkTypeNames[] = {"Inner", "Left", "Right", "Full"};
constexpr std::string_view ColumnPrefix = "fld:";
constexpr std::string_view OuterMark = " (+)";
constexpr std::string_view FullJoinWithMarks =
    "The full outer join of tables \"%s\" and \"%s\" cannot be written with \"(+)\": choose another SQL syntax, or a "
    "left, right or inner join";

std::string NameOf(const TDSTable* table) { return table ? table->GetTableName() : std::string(); }
std::string DisplayNameOf(const TDSTable* table) { return table ? table->GetDisplayName() : std::string(); }

// One side of a comparison.
struct TSide {
  const TDSTable* table;
  const TSQLFormats* quotes;  // null: columns as they are
  bool marked;

  void Append(std::string& out, std::string_view entry) const {
    const bool constant = IsLinkConstant(entry);
    entry = LinkEntryText(entry);
    if (constant) {
      out += entry;
      return;
    }
    if (table) {
      table->AppendWhereExpr(out);
      out += '.';
    }
    if (quotes) {
      quotes->AppendQuoted(out, entry);
    } else {
      out += entry;
    }
    if (marked) out += OuterMark;
  }
};

}  // namespace

std::string_view LinkTypeToStr(TDSLinkType linkType) { return LinkTypeNames[linkType]; }

bool IsLinkConstant(std::string_view entry) { return entry.starts_with(LinkConstantPrefix); }

std::string_view LinkEntryText(std::string_view entry) {
  for (const std::string_view prefix : {ColumnPrefix, LinkConstantPrefix}) {
    if (entry.starts_with(prefix)) return entry.substr(prefix.size());
  }
  return entry;
}

void TDSLink::SetTables(TDSTable& table1, TDSTable& table2) {
  FTable1 = &table1;
  FTable2 = &table2;
  Modified();
}

void TDSLink::SetFields1(const TStrings& fields) {
  if (FFields1 == fields) return;
  FFields1 = fields;
  Modified();
}

void TDSLink::SetFields2(const TStrings& fields) {
  if (FFields2 == fields) return;
  FFields2 = fields;
  Modified();
}

void TDSLink::SetOperators(const TStrings& symbols) {
  if (FOperators == symbols) return;
  FOperators = symbols;
  Modified();
}

void TDSLink::AddPair(std::string_view field1, std::string_view symbol, std::string_view field2) {
  FFields1.Add(field1);
  FFields2.Add(field2);
  FOperators.Add(symbol);
  Modified();
}

void TDSLink::ApplyDefOperator() {
  FOperators.Clear();
  for (std::size_t index = 0; index < FFields1.Count(); ++index) FOperators.Add("=");
  Modified();
}

void TDSLink::SetLinkType(TDSLinkType linkType) {
  if (FLinkType == linkType) return;
  FLinkType = linkType;
  Modified();
}

void TDSLink::SetQuoteFields(bool quote) {
  if (FQuoteFields == quote) return;
  FQuoteFields = quote;
  Modified();
}

bool TDSLink::ContainsTableEx(const TDSTable& table, bool& leftJoin) const {
  leftJoin = &table == FTable1;
  return ContainsTable(table);
}

std::string TDSLink::GetSQLExpr(TLinkExprMode mode) const {
  const bool marks = mode == lemOuterMarks;
  if (marks && FLinkType == ltOuterFull) {
    throw EJQueryPanelError(0, FullJoinWithMarks, {NameOf(FTable1), NameOf(FTable2)});
  }
  // One that is not yet in the model of its tables is written like those that are.
  const TJCustomDBStructure* model = FDBStruct == nullptr && FTable1 ? FTable1->GetDBStruct() : FDBStruct;
  const TSQLFormats* quotes = FQuoteFields ? &FormatsOf(model) : nullptr;
  const TSide left{FTable1, quotes, marks && FLinkType == ltOuterRight};
  const TSide right{FTable2, quotes, marks && FLinkType == ltOuterLeft};

  std::string expr;
  const std::size_t count = std::min(FFields1.Count(), FFields2.Count());
  for (std::size_t index = 0; index < count; ++index) {
    if (index > 0) expr += " and ";
    left.Append(expr, FFields1[index]);
    expr += ' ';
    expr += index < FOperators.Count() ? std::string_view(FOperators[index]) : "=";
    expr += ' ';
    right.Append(expr, FFields2[index]);
  }
  return expr;
}

std::string TDSLink::GetDisplayName() const {
  return DisplayNameOf(FTable1) + " -> " + DisplayNameOf(FTable2) + ": " + GetSQLExpr();
}

void TDSLink::Modified() {
  if (FDBStruct) FDBStruct->LinksModified();
}

}  // namespace tolvi
