// What a model reads out of SQL expressions: the tables that one mentions, and the link that a join condition means.
#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/exprnames.h>

namespace tolvi {

void TJCustomDBStructure::ExcludeTablesBySQLExpr(std::string_view expr, TSimpleDSTableList& tables,
                                                 TStrings& references) const {
  TExprReader reader(expr, FSQLFormats);
  while (!reader.AtEnd()) {
    const TColumnName name = reader.ReadNames();
    if (name.Names.empty()) {
      reader.Scanner().NextToken();
      continue;
    }
    // "table.*" mentions a table and no column; what an opening bracket follows is a function.
    if (reader.At(".") && reader.Scanner().GetToken(1).Text == "*") {
      TColumnName all = name;
      all.Names.emplace_back();
      if (TDSTable* table = FindTable(*this, all)) tables.AddOnce(*table);
      continue;
    }
    TDSTable* table = name.Names.size() < 2 || reader.At("(") ? nullptr : FindTable(*this, name);
    if (!table) continue;
    tables.AddOnce(*table);
    const std::string reference = name.TableText(true) + "." + std::string(name.Last().Written);
    const auto& lines = references.Lines();
    if (std::find(lines.begin(), lines.end(), reference) == lines.end()) references.Add(reference);
  }
}

namespace {

// A comparison symbol and the one that says the same with the sides exchanged.
struct TComparison {
  std::string_view Symbol, Mirrored;
};

constexpr TComparison Comparisons[] = {{"=", "="}, {"<>", "<>"}, {"!=", "!="}, {"<", ">"},
                                       {">", "<"}, {"<=", ">="}, {">=", "<="}};

constexpr std::string_view Example = "\"table1.column1 = table2.column2\"";

// A column of a table or, without a table, a constant as written.
struct TLinkSide {
  TDSTable* Table = nullptr;
  TColumnName Column;
  std::string_view Constant;
  bool OuterMark = false;
};

struct TLinkPair {
  TLinkSide Left, Right;
  const TComparison* Comparison = nullptr;
  int Line = 0, TextColumn = 0;
};

[[noreturn]] void Fail(int line, int column, const std::string& reason) {
  throw EJDBStructError(0, "Join condition, line %d, column %d: %s", {line, column, reason});
}

// Reads "left symbol right [and ...]", each comparison or the whole in brackets if one likes.
class TJoinReader {
 public:
  TJoinReader(std::string_view expr, const TJCustomDBStructure& model)
      : FModel(model), FReader(expr, model.SQLFormats()) {}

  std::vector<TLinkPair> Read() {
    if (FReader.AtEnd()) {
      throw EJDBStructError(0, "The join condition is empty: write it as %s", {Example});
    }
    std::vector<TLinkPair> pairs;
    int depth = 0;
    do {
      while (FReader.Skip("(")) ++depth;
      pairs.push_back(ReadPair());
      while (depth > 0 && FReader.Skip(")")) --depth;
    } while (SkipAnd());
    if (!FReader.AtEnd()) Unexpected(depth > 0 ? "\"and\" or \")\"" : "\"and\" or the end");
    if (depth > 0) Unexpected("\")\"");
    return pairs;
  }

 private:
  [[noreturn]] void Unexpected(std::string_view expected) {
    const TJScanner& scanner = FReader.Scanner();
    const std::string found = FReader.AtEnd() ? "the text ends" : "found \"" + std::string(scanner.GetRealStr()) + "\"";
    Fail(scanner.GetTokLine(), scanner.GetTokColumn(), found + " where " + std::string(expected) + " is expected");
  }

  bool SkipAnd() {
    if (FReader.AtEnd() || !AsciiSameText(FReader.Scanner().GetRealStr(), "and")) return false;
    FReader.Scanner().NextToken();
    return true;
  }

  TLinkPair ReadPair() {
    TLinkPair pair;
    pair.Line = FReader.Scanner().GetTokLine();
    pair.TextColumn = FReader.Scanner().GetTokColumn();
    pair.Left = ReadSide();
    const auto* comparison = std::find_if(std::begin(Comparisons), std::end(Comparisons),
                                          [this](const TComparison& entry) { return FReader.At(entry.Symbol); });
    if (comparison == std::end(Comparisons)) Unexpected("a comparison (= <> != < > <= >=)");
    pair.Comparison = comparison;
    FReader.Scanner().NextToken();
    pair.Right = ReadSide();
    return pair;
  }

  TLinkSide ReadSide() {
    TLinkSide side;
    side.Column = FReader.ReadNames();
    if (side.Column.Names.empty()) {
      side.Constant = ReadConstant();
      return side;
    }
    if (side.Column.Names.size() == 1) {
      const std::string name(side.Column.Last().Written);
      Fail(side.Column.Line, side.Column.Column,
           "the column " + name + " lacks its table: write it as \"table." + name + "\"");
    }
    side.Table = FindTable(FModel, side.Column);
    if (!side.Table) throw EJDBStructError(4, SDBSENoTable, {side.Column.TableText(false)});
    side.OuterMark = FReader.SkipOuterMark();
    return side;
  }

  // A number, which may have a sign, or a literal.
  std::string_view ReadConstant() {
    TJScanner& scanner = FReader.Scanner();
    const std::size_t start = scanner.GetTokPos();
    const bool sign = FReader.Skip("-") || FReader.Skip("+");
    const TTokenType type = scanner.GetTokType();
    const bool number = type == ttInteger || type == ttReal;
    if (!number && (sign || type != ttString || scanner.Unterminated())) Unexpected("a column or a constant");
    const std::size_t end = scanner.GetTokEnd();
    scanner.NextToken();
    return scanner.GetSource().substr(start, end - start);
  }

  const TJCustomDBStructure& FModel;
  TExprReader FReader;
};

// Makes one link of the pairs.
class TLinkMaker {
 public:
  explicit TLinkMaker(std::vector<TLinkPair> pairs) : FPairs(std::move(pairs)) {}

  std::unique_ptr<TDSLink> Make(TDSLinkType linkType) {
    FindTables();
    for (TLinkPair& pair : FPairs) TurnRound(pair);
    FQuote = EveryColumnIsQuoted();
    auto link = std::make_unique<TDSLink>(*FTable1, *FTable2);
    link->SetQuoteFields(FQuote);
    for (const TLinkPair& pair : FPairs) link->AddPair(Entry(pair.Left), pair.Comparison->Symbol, Entry(pair.Right));
    link->SetLinkType(LinkType(linkType));
    return link;
  }

 private:
  // The first comparison of two columns tells which tables the link joins.
  void FindTables() {
    for (const TLinkPair& pair : FPairs) {
      if (!pair.Left.Table && !pair.Right.Table) {
        Fail(pair.Line, pair.TextColumn, "both sides are constants: compare a column with one");
      }
      if (!FTable1 && pair.Left.Table && pair.Right.Table) {
        FTable1 = pair.Left.Table;
        FTable2 = pair.Right.Table;
      }
    }
    if (!FTable1) {
      Fail(FPairs[0].Line, FPairs[0].TextColumn,
           "no comparison joins two tables: add one such as " + std::string(Example));
    }
  }

  // Brings the column of the first table to the left.
  void TurnRound(TLinkPair& pair) const {
    if (Fits(pair.Left, FTable1) && Fits(pair.Right, FTable2)) return;
    if (!Fits(pair.Left, FTable2) || !Fits(pair.Right, FTable1)) {
      Fail(pair.Line, pair.TextColumn,
           "the comparison does not have one column of table \"" + FTable1->GetTableName() + "\" and one of table \"" +
               FTable2->GetTableName() + "\": a link joins these two");
    }
    std::swap(pair.Left, pair.Right);
    const std::string_view symbol = pair.Comparison->Mirrored;
    pair.Comparison = std::find_if(std::begin(Comparisons), std::end(Comparisons),
                                   [symbol](const TComparison& entry) { return entry.Symbol == symbol; });
  }

  static bool Fits(const TLinkSide& side, const TDSTable* table) { return !side.Table || side.Table == table; }

  bool EveryColumnIsQuoted() const {
    return std::all_of(FPairs.begin(), FPairs.end(), [](const TLinkPair& pair) {
      return (!pair.Left.Table || pair.Left.Column.Last().Quoted) &&
             (!pair.Right.Table || pair.Right.Column.Last().Quoted);
    });
  }

  std::string Entry(const TLinkSide& side) const {
    if (!side.Table) return "val:" + std::string(side.Constant);
    const TExprName& name = side.Column.Last();
    return FQuote ? name.Text : std::string(name.Written);
  }

  // "(+)" marks the columns whose rows may be missing, which must be all those of one table.
  TDSLinkType LinkType(TDSLinkType asked) const {
    const auto marks = [this](TLinkSide TLinkPair::*side, bool marked) {
      return std::any_of(FPairs.begin(), FPairs.end(),
                         [&](const TLinkPair& pair) { return (pair.*side).Table && (pair.*side).OuterMark == marked; });
    };
    const bool left = marks(&TLinkPair::Left, true);
    const bool right = marks(&TLinkPair::Right, true);
    if (!left && !right) return asked;
    const TDSLinkType marked = left ? ltOuterRight : ltOuterLeft;
    if ((left && right) || marks(left ? &TLinkPair::Left : &TLinkPair::Right, false) ||
        (asked != ltInner && asked != marked)) {
      Fail(FPairs[0].Line, FPairs[0].TextColumn,
           "the marks \"(+)\" disagree with each other or with the kind of join: mark every column of one table, or "
           "none");
    }
    return marked;
  }

  std::vector<TLinkPair> FPairs;
  TDSTable* FTable1 = nullptr;
  TDSTable* FTable2 = nullptr;
  bool FQuote = false;
};

}  // namespace

std::size_t TJCustomDBStructure::AddLinkByExpr(std::string_view expr, TDSLinkType linkType) {
  TJoinReader reader(expr, *this);
  return AddLinkByRef(TLinkMaker(reader.Read()).Make(linkType));
}

}  // namespace tolvi
