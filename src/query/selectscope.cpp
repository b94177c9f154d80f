#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/resultformula.h>
#include <tolvi/query/selectscope.h>
#include <tolvi/sqlimport/scanner.h>
#include <tolvi/sqlimport/subselects.h>

// Names: which column a name means, and SQL written in the names of the model. Tables are in selecttables.cpp.

namespace tolvi {

namespace {

// Words that stand between operands, so that a name may follow them.
constexpr std::string_view ConnectingWords[] = {"when", "then",  "else", "glob", "ilike",  "similar",
                                                "to",   "match", "div",  "mod",  "regexp", "rlike"};

template <std::size_t Size>
bool IsOneOf(std::string_view word, const std::string_view (&words)[Size]) {
  return std::any_of(std::begin(words), std::end(words),
                     [word](std::string_view entry) { return AsciiSameText(entry, word); });
}

bool IsPlainName(std::string_view name) {
  return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
    return static_cast<unsigned char>(c) >= 0x80 || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') ||
           (c >= 'A' && c <= 'Z') || c == '_';
  });
}

}  // namespace

std::string SQLKey(std::string_view sql) {
  std::string key;
  TJScanner scanner;
  scanner.SetSource(sql);
  const std::string_view text = scanner.GetSource();
  scanner.FirstToken();
  while (!scanner.EOS()) {
    std::string token(scanner.GetTokStr());
    const std::size_t close = token == "\"" || token == "`" ? text.find(token, scanner.GetTokEnd()) : text.npos;
    if (close != text.npos) {
      const std::string_view name = text.substr(scanner.GetTokEnd(), close - scanner.GetTokEnd());
      token = IsPlainName(name) ? FoldCase(name) : "\"" + FoldCase(name) + "\"";
      scanner.SkipTo(close + 1);
    } else {
      scanner.NextToken();
    }
    if (token != "." && !key.ends_with('.') && !key.empty()) key += ' ';
    key += token;
  }
  return key;
}

TDSField* TSelectScope::ColumnOf(const TDSTable& table, std::string_view column) const {
  std::string name;
  table.AppendWhereExpr(name);
  return FModel.FieldByName(fnSQLExpr, name.append(".").append(column));
}

// ---- Names ----------------------------------------------------------------------------------------------------------

// What is called like a column but cannot be one: a type before a literal ("date '2020-01-01'") or behind "as", a
// collation, a unit, and other words behind an operand.
bool TSelectScope::MayBeColumn(std::size_t token, std::size_t end, std::size_t begin) const {
  if (FText[end].Kind == stkString) return false;
  if (token == begin) return true;
  const TSelectToken& before = FText[token - 1];
  if (before.Text.ends_with(':') || before.Word == swAs || before.Kind == stkNumber || before.Kind == stkString ||
      before.Word == swClose)
    return false;
  if (before.IsName() && !IsOneOf(before.Text, ConnectingWords)) return false;
  const bool isUnit = before.Word == swOpen && FText[end].Word == swFrom && token > 1 &&
                      AsciiSameText(FText[token - 2].Text, "extract");
  return !isUnit;
}

TSelectName TSelectScope::NameOf(TTokenRange range) const {
  if (range.Empty()) return {};
  const TSelectName name = NameAt(range.Begin, range.Begin);
  return name.Count == range.Count() ? name : TSelectName();
}

TSelectName TSelectScope::NameAt(std::size_t token, std::size_t begin) const {
  if (!FText[token].IsName() || (token > 0 && FText[token - 1].Word == swPoint)) return {};
  std::size_t parts = 1, end = token + 1;
  bool isAll = false;
  for (; !isAll && FText[end].Word == swPoint; end += 2, ++parts) {
    isAll = FText[end + 1].Word == swStar;
    if (!isAll && FText[end + 1].Word == swPoint) return {};
    if (!isAll && !FText[end + 1].IsName()) FText.Fail(end, "A name is missing behind the point");
  }
  if (FText[end].Word == swOpen) return {};
  if (parts > 1) return Qualified(token, parts, isAll);
  return MayBeColumn(token, end, begin) ? Unqualified(token) : TSelectName();
}

TSelectName TSelectScope::Qualified(std::size_t token, std::size_t parts, bool isAll) const {
  const std::size_t table = TableFor(token, parts - 1);
  TSelectName name{.Count = parts * 2 - 1, .IsAll = isAll};
  if (table < FTables.size()) {
    name.Table = FTables[table];
    const std::string column = isAll ? std::string() : FText[token + name.Count - 1].Name();
    if (name.Table != nullptr && !isAll) name.Field = ColumnOf(*name.Table, column);
    return name;
  }
  const std::string qualifier(FText.TextOf({token, token + name.Count - 2}));
  const bool isOuter = FOuter != nullptr && FOuter->TableFor(token, parts - 1) < FOuter->FTables.size();
  FLog.Refuse({token, token + name.Count},
              Format(isOuter ? "\"%s\" is a table of the statement round the sub-query, which a query cannot refer to"
                             : "\"%s\" is no table of the statement",
                     {qualifier}),
              "kept word for word");
  return name;
}

void TSelectScope::CollectUsing(const TSelectSource& source) {
  if (source.Left == nullptr) return;
  FUsing.insert(source.Using.begin(), source.Using.end());
  FOuterUsing = FOuterUsing || (!source.Using.empty() && source.Join != sjInner);
  CollectUsing(*source.Left);
  CollectUsing(*source.Right);
}

TSelectName TSelectScope::Unqualified(std::size_t token) const {
  const std::string column = FText[token].Name();
  TSelectName name{.Count = 1};
  for (TDSTable* table : FTables) {
    TDSField* field = table != nullptr ? ColumnOf(*table, column) : nullptr;
    if (field == nullptr) continue;
    if (name.Field != nullptr && name.Table != table) {
      FLog.Refuse({token, token + 1},
                  Format("\"%s\" is a column of \"%s\" and of \"%s\": write its table before it",
                         {column, name.Table->GetWhereExpr(), table->GetWhereExpr()}),
                  "taken as that of the first table");
      return name;
    }
    name.Table = table;
    name.Field = field;
  }
  if (FUsing.contains(column) && (name.Field == nullptr || FOuterUsing)) {
    FLog.Refuse({token, token + 1},
                Format("\"%s\" stands after USING and belongs to both tables: write its table before it", {column}),
                "kept word for word");
  }
  if (name.Field == nullptr && FOuter != nullptr && FOuter->Unqualified(token).Field != nullptr) {
    FLog.Refuse(
        {token, token + 1},
        Format("\"%s\" is a column of the statement round the sub-query, which a query cannot refer to", {column}),
        "kept word for word");
  }
  return name;
}

TDSField* TSelectScope::FieldOf(TTokenRange range) const {
  range = FText.WithoutBrackets(range);
  // A sub-query has names of its own.
  const bool isSelect = FText[range.Begin].Word == swSelect || EndOfSubSelect(FText, range.Begin) > range.Begin;
  if (range.Empty() || isSelect) return nullptr;
  if (const TSelectName name = NameOf(range); name.Count > 0) {
    const TTokenRange expr = ExprOfAlias(range.Begin, name);
    if (expr.Empty()) return name.Field;
    // An alias in the expression of another one means a column.
    FAliasesKnown = false;
    TDSField* field = FieldOf(expr);
    FAliasesKnown = true;
    return field;
  }
  if (!FVirtualsKnown) {
    FVirtualsKnown = true;
    for (TDSField& field : FModel.Fields()) {
      if (field.GetFieldKind() == jfkVirtual) FVirtuals.try_emplace(SQLKey(field.GetSQLExpr()), &field);
    }
  }
  if (FVirtuals.empty()) return nullptr;
  const auto found = FVirtuals.find(SQLKey(Resolved(range)));
  return found == FVirtuals.end() ? nullptr : found->second;
}

std::size_t TSelectScope::ColumnByAlias(std::string_view alias) const {
  if (FAliases.empty()) {
    for (std::size_t i = 0; i < FStatement.Columns.size(); ++i) {
      FAliases.try_emplace(FStatement.Columns[i].Alias, i);
    }
  }
  const auto found = alias.empty() ? FAliases.end() : FAliases.find(std::string(alias));
  return found == FAliases.end() ? FStatement.Columns.size() : found->second;
}

// The database may know columns that the model lacks; those by which it joins are known.
bool TSelectScope::IsColumnOfModel(std::string_view name) const {
  if (FModel.FieldByName(fnFieldExpr, name) != nullptr) return true;
  const auto isSide = [name](const TStrings& fields) {
    return std::any_of(fields.Lines().begin(), fields.Lines().end(), [name](std::string_view field) {
      return SameText(field.starts_with("fld:") ? field.substr(4) : field, name);
    });
  };
  return std::any_of(FModel.Links().begin(), FModel.Links().end(),
                     [&isSide](const TDSLink& link) { return isSide(link.GetFields1()) || isSide(link.GetFields2()); });
}

// What an alias of the select list stands for; empty for what is none. An expression that holds its own alias means a
// column.
TTokenRange TSelectScope::ExprOfAlias(std::size_t token, const TSelectName& name) const {
  if (!FAliasesKnown || name.Count != 1 || name.Field != nullptr) return {};
  const std::size_t index = ColumnByAlias(FText[token].Name());
  if (index == FStatement.Columns.size()) return {};
  const TTokenRange expr = FStatement.Columns[index].Expr;
  if (token >= expr.Begin && token < expr.End) return {};
  CheckAlias({token, token + 1}, index);
  return expr;
}

void TSelectScope::CheckAlias(TTokenRange range, std::size_t column) const {
  const TTokenRange expr = FStatement.Columns[column].Expr;
  const std::string& alias = FStatement.Columns[column].Alias;
  const bool isOwn = NameOf(expr).Count > 0 && SameText(FText[expr.End - 1].Name(), alias);
  if (isOwn || !IsColumnOfModel(alias)) return;
  FLog.Refuse(range,
              Format("\"%s\" is an alias here and may be a column of the database, too: give the column another alias",
                     {FText[range.Begin].Name()}),
              "taken as the alias");
}

bool TSelectScope::IsCall(TTokenRange expr) const {
  return expr.Count() > 2 && FText[expr.Begin].IsName() && FText[expr.Begin + 1].Word == swOpen &&
         FText[expr.Begin + 1].Partner + 1U == expr.End;
}

// ---- SQL in the names of the model ----------------------------------------------------------------------------------

void TSelectScope::Walk(TTokenRange range, const TTextHandler& onText, const TFieldHandler& onField) const {
  const std::string_view listCall = ListCall(FModel.SQLFormats());
  const std::string_view listFunction = listCall.substr(0, listCall.size() - (listCall.empty() ? 0 : 1));
  for (std::size_t at = range.Begin; at < range.End;) {
    const TSelectToken& token = FText[at];
    if (at > range.Begin) {
      const TSelectToken& before = FText[at - 1];
      const bool isCall = token.Word == swOpen && before.IsName() &&
                          (IsOneOf(before.Text, AggregateFunctions) || AsciiSameText(before.Text, listFunction));
      if (NeedsBlank(at) && !isCall) onText(" ");
    }
    if (const std::size_t end = EndOfSubSelect(FText, at); end > at) {
      AppendSubQuery({at, end}, onText);
      at = end;
      continue;
    }
    const TSelectName name = NameAt(at, range.Begin);
    if (const TTokenRange expr = ExprOfAlias(at, name); !expr.Empty()) {
      const bool isOperand = range.Count() == 1 || expr.Count() == 1 || IsCall(expr);
      if (!isOperand) onText("(");
      FAliasesKnown = false;
      Walk(expr, onText, onField);
      FAliasesKnown = true;
      if (!isOperand) onText(")");
    } else if (name.Field != nullptr) {
      onField(*name.Field);
    } else if (name.Table != nullptr) {
      onText(name.Table->GetWhereExpr() + "." + std::string(FText[at + name.Count - 1].Text));
    } else {
      if (name.Count == 1) FKeptNames.insert(FText[at].Name());
      onText(FText.TextOf({at, at + std::max<std::size_t>(name.Count, 1)}));
    }
    at += std::max<std::size_t>(name.Count, 1);
  }
}

// Between the token and the one before: where there is one, and where a name loses the quotes that keep it from a word.
bool TSelectScope::NeedsBlank(std::size_t token) const {
  const TSelectToken &before = FText[token - 1], &after = FText[token];
  const auto isWord = [](const TSelectToken& entry) {
    return entry.IsName() || entry.Kind == stkWord || entry.Kind == stkNumber;
  };
  return before.Pos + before.Text.size() < after.Pos ||
         ((before.Kind == stkQuotedName || after.Kind == stkQuotedName) && isWord(before) && isWord(after));
}

std::string TSelectScope::Resolved(TTokenRange range) const {
  std::string sql;
  Walk(
      range, [&sql](std::string_view text) { sql += text; }, [&sql](TDSField& field) { sql += field.GetSQLExpr(); });
  return sql;
}

std::size_t TSelectScope::FindParam(TTokenRange range) const {
  for (std::size_t at = range.Begin; at < range.End; ++at) {
    if (FText[at].Kind == stkParam) return at;
  }
  return range.End;
}

bool TSelectScope::HasNames(TTokenRange range) const {
  for (std::size_t at = range.Begin; at < range.End; ++at) {
    if (const std::size_t end = EndOfSubSelect(FText, at); end > at) {
      at = end - 1;
    } else if (NameAt(at, range.Begin).Count > 0) {
      return true;
    }
  }
  return false;
}

}  // namespace tolvi
