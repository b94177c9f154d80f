#include <utility>

#include <tolvi/foundation/format.h>
#include <tolvi/sqlimport/selectsources.h>
#include <tolvi/sqlimport/selectwords.h>

namespace tolvi {

namespace {

constexpr std::size_t MaxTables = 1000;

using TSource = std::unique_ptr<TSelectSource>;

struct TJoinWord {
  TSelectWord Word;
  TSelectJoinKind Kind;
  // Whether "outer" may follow.
  bool MayBeOuter;
};
constexpr TJoinWord JoinWords[] = {
    {swJoin, sjInner, false}, {swInner, sjInner, false}, {swLeft, sjLeft, true},        {swRight, sjRight, true},
    {swFull, sjFull, true},   {swCross, sjCross, false}, {swNatural, sjNatural, false},
};

const TJoinWord* FindJoinWord(TSelectWord word) {
  for (const TJoinWord& join : JoinWords) {
    if (join.Word == word) return &join;
  }
  return nullptr;
}

// A join whose right side or condition is still to come.
struct TOpenJoin {
  TSource Left;
  TSelectJoinKind Kind;
  std::size_t Token;
};

class TSourceReader {
 public:
  explicit TSourceReader(TSelectStatement& statement) : FStatement(statement) {}

  // Sources with commas between them.
  TSource ReadList(TSelectCursor& at) {
    TSource source = ReadJoined(at);
    while (at.Word() == swComma) {
      TOpenJoin join{std::move(source), sjComma, at.At()};
      at.Next();
      source = Close(std::move(join), ReadJoined(at));
    }
    return source;
  }

 private:
  // A source and what is joined to it. A condition belongs to the last join that has none yet.
  TSource ReadJoined(TSelectCursor& at) {
    std::vector<TOpenJoin> open;
    TSource source = ReadOperand(at);
    for (;;) {
      if (at.Word() == swOn || at.Word() == swUsing) {
        if (open.empty()) at.FailUnexpected();
        TOpenJoin join = std::move(open.back());
        open.pop_back();
        source = Close(std::move(join), std::move(source));
        ReadJoinCondition(at, *source);
      } else if (FindJoinWord(at.Word()) != nullptr) {
        const std::size_t token = at.At();
        const TSelectJoinKind kind = ReadJoinWords(at);
        TOpenJoin join{std::move(source), kind, token};
        source = ReadOperand(at);
        if (kind == sjCross || kind == sjNatural) {
          source = Close(std::move(join), std::move(source));
        } else {
          open.push_back(std::move(join));
        }
      } else {
        break;
      }
    }
    if (!open.empty()) {
      at.Text().Fail(open.back().Token, ShownWord(at.Text()[open.back().Token]) +
                                            ": the join has no ON; say how its tables belong together");
    }
    return source;
  }

  static TSource Close(TOpenJoin join, TSource right) {
    auto source = std::make_unique<TSelectSource>();
    source->Join = join.Kind;
    source->Token = join.Token;
    source->Left = std::move(join.Left);
    source->Right = std::move(right);
    return source;
  }

  // From "natural left outer join" and the like.
  static TSelectJoinKind ReadJoinWords(TSelectCursor& at) {
    const TJoinWord* const first = FindJoinWord(at.Word());
    const TJoinWord* last = first;
    if (first->Word == swNatural) {
      at.Next();
      last = FindJoinWord(at.Word());
    }
    if (last != nullptr && last->Word != swJoin) at.Next();
    if (last != nullptr && last->MayBeOuter) at.Pass(swOuter);
    if (!at.Pass(swJoin)) at.Fail("JOIN is missing here");
    return first->Kind;
  }

  static void ReadJoinCondition(TSelectCursor& at, TSelectSource& join) {
    if (at.Pass(swOn)) {
      join.On = ReadSelectCondition(at.Text(), at.TakeExpression());
      return;
    }
    at.Next();
    if (at.Word() != swOpen) at.Fail("USING needs columns in brackets");
    TSelectCursor inside(at.Text(), at.TakeBrackets());
    do join.Using.push_back(ReadName(inside, "A column is missing here"));
    while (inside.Pass(swComma));
    if (!inside.AtEnd()) inside.FailUnexpected();
  }

  static std::string ReadName(TSelectCursor& at, const char* missing) {
    if (!at.Token().IsName()) at.Fail(missing);
    std::string name = at.Token().Name();
    if (name.empty()) at.Fail("The name between the quotes is empty");
    at.Next();
    return name;
  }

  // A table, or sources in brackets.
  TSource ReadOperand(TSelectCursor& at) {
    if (at.Word() != swOpen) return ReadTable(at);
    TSelectCursor inside(at.Text(), at.TakeBrackets());
    TSource source = ReadList(inside);
    if (!inside.AtEnd()) inside.FailUnexpected();
    if (at.Word() == swAs || at.Token().IsName()) at.Fail("Joins in brackets take no alias: give one to each table");
    return source;
  }

  TSource ReadTable(TSelectCursor& at) {
    TSelectTable table;
    table.Range.Begin = at.At();
    CheckTable(at);
    table.Names.push_back(ReadName(at, "A table is missing here"));
    while (at.Pass(swPoint)) {
      // The middle of "Shop..Orders" is what the database takes for itself.
      if (at.Word() != swPoint) table.Names.push_back(ReadName(at, "A name is missing behind the point"));
    }
    table.Range.End = at.At();
    if (at.Word() == swOpen) {
      at.Text().Fail(table.Range.Begin,
                     ShownToken(at.Text()[table.Range.Begin]) +
                         ": a function in FROM is no table; put what it gives into a table or a view");
    }
    if (at.Pass(swAs)) {
      table.Alias = ReadName(at, "A name is missing after AS");
    } else if (at.Token().IsName()) {
      table.Alias = ReadName(at, "");
    }
    if (FStatement.Tables.size() == MaxTables) {
      at.Text().Fail(table.Range.Begin, Format("FROM has more than %d tables: use fewer of them", {MaxTables}));
    }
    auto source = std::make_unique<TSelectSource>();
    source->Table = FStatement.Tables.size();
    source->Token = table.Range.Begin;
    FStatement.Tables.push_back(std::move(table));
    return source;
  }

  static void CheckTable(const TSelectCursor& at) {
    if (at.Word() == swSelect) {
      at.Fail("A SELECT in FROM is no table of a query: make it a view, or join its tables here");
    }
    if (IsNameText(at.Token(), "values") && at.Word(1) == swOpen) {
      at.Fail("VALUES in FROM are no table of a query: put them into a table");
    }
  }

  TSelectStatement& FStatement;
};

}  // namespace

void ReadSelectSources(TSelectCursor& at, TSelectStatement& statement) {
  statement.From = TSourceReader(statement).ReadList(at);
}

}  // namespace tolvi
