// What TJSQLParser reads out of a SELECT statement: result fields, tables, and the tree of conditions. Expressions and
// values are pieces of the text as they stand there.
//
// Most texts are not copied: they are views of the parser's statement, so that a result, and whatever is taken out of
// it, must not be used after the parser's next SetSQL or its end. Every object also knows at which byte of the
// statement it was read, for TJSQLParser::LineAt.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/objectlist.h>

namespace tolvi {

class TSQLBracket;
class TSQLCondition;

/// A text of a result: a view of the statement, or a text of its own.
class TSQLText final {
 public:
  TSQLText() = default;
  TSQLText(std::string text) : FOwned(std::make_unique<const std::string>(std::move(text))), FText(*FOwned) {}
  TSQLText(const char* text) : TSQLText(std::string(text)) {}
  /// Does not copy the text, which must outlive this.
  [[nodiscard]] static TSQLText ViewOf(std::string_view text) {
    TSQLText view;
    view.FText = text;
    return view;
  }
  TSQLText(const TSQLText& other) { *this = other; }
  TSQLText(TSQLText&&) noexcept = default;
  TSQLText& operator=(const TSQLText& other) {
    return *this = other.FOwned ? TSQLText(*other.FOwned) : ViewOf(other.FText);
  }
  TSQLText& operator=(TSQLText&&) noexcept = default;

  [[nodiscard]] std::string_view Get() const { return FText; }

 private:
  std::unique_ptr<const std::string> FOwned;
  std::string_view FText;
};

/// An item of the select list, or a name that only ORDER BY has.
class TOLVI_CORE_API TSQLResultField final {
 public:
  /// The name after "as", without double quotes; empty if there is none.
  [[nodiscard]] std::string_view GetAlias() const { return FAlias.Get(); }
  void SetAlias(TSQLText alias) { FAlias = std::move(alias); }

  /// The expression as written.
  [[nodiscard]] std::string_view GetSQLExpr() const { return FSQLExpr.Get(); }
  void SetSQLExpr(TSQLText expr);

  /// Made from the expression: what follows its first point, or all of it if a round bracket opens before that.
  [[nodiscard]] std::string_view GetCaption() const { return FSQLExpr.Get().substr(FCaptionPos); }

  /// 0 is not sorted (the default), 1 ascending, 2 descending.
  [[nodiscard]] int GetSorting() const { return FSorting; }
  void SetSorting(int sorting) { FSorting = sorting; }

  /// The place in the ORDER BY list, counted from 1; 0 if it is not there.
  [[nodiscard]] int GetSortOrder() const { return FSortOrder; }
  void SetSortOrder(int order) { FSortOrder = order; }

  [[nodiscard]] std::size_t GetPos() const { return FPos; }
  void SetPos(std::size_t pos) { FPos = pos; }

 private:
  TSQLText FAlias, FSQLExpr;
  std::size_t FCaptionPos = 0;
  std::size_t FPos = 0;
  int FSorting = 0;
  int FSortOrder = 0;
};

class TOLVI_CORE_API TSQLResultFieldList final : public TJObjectList<TSQLResultField> {
 public:
  /// Whether the list holds nothing but the names in ORDER BY, as after "select *".
  [[nodiscard]] bool GetJustSorting() const { return FJustSorting; }
  void SetJustSorting(bool just) { FJustSorting = just; }

  /// The index of the first field with that alias or expression, ignoring case; -1 if there is none.
  [[nodiscard]] std::ptrdiff_t IndexByAlias(std::string_view alias) const;
  [[nodiscard]] std::ptrdiff_t IndexByExpr(std::string_view expr) const;

 private:
  bool FJustSorting = false;
};

/// A table of the FROM clause.
class TOLVI_CORE_API TSQLTable final {
 public:
  /// As written, its parts joined by "."; double quotes are kept.
  [[nodiscard]] std::string_view GetTableName() const { return FTableName.Get(); }
  /// Is the alias name too, if that is empty.
  void SetTableName(TSQLText name);

  /// The alias as written, without one the table name.
  [[nodiscard]] std::string_view GetAliasName() const { return FAliasName.Get(); }
  void SetAliasName(TSQLText name) { FAliasName = std::move(name); }

  [[nodiscard]] std::size_t GetPos() const { return FPos; }
  void SetPos(std::size_t pos) { FPos = pos; }

 private:
  TSQLText FTableName, FAliasName;
  std::size_t FPos = 0;
};

/// The tables in the order in which they were read.
using TSQLTableList = TJObjectList<TSQLTable>;

/// A bracket or a comparison.
class TOLVI_CORE_API TSQLNode {
 public:
  virtual ~TSQLNode() = default;
  TSQLNode(const TSQLNode&) = delete;
  TSQLNode& operator=(const TSQLNode&) = delete;

  /// The bracket whose list holds this node, null if none does.
  [[nodiscard]] TSQLBracket* GetParentBracket() const { return FParentBracket; }

  /// Whether a "not" stands directly before the comparison or bracket. One inside a comparison ("not like", "is not")
  /// or inside further brackets round the node does not count; see GetWrittenNegative.
  [[nodiscard]] bool GetNegative() const { return FNegative; }
  void SetNegative(bool negative) { FNegative = negative; }

  /// Whether the statement negates the node, all its "not" taken together. It differs from GetNegative where that
  /// passed one over, so that callers can tell what would be lost.
  [[nodiscard]] bool GetWrittenNegative() const { return FWrittenNegative; }
  void SetWrittenNegative(bool negative) { FWrittenNegative = negative; }

  [[nodiscard]] std::size_t GetPos() const { return FPos; }
  void SetPos(std::size_t pos) { FPos = pos; }

  /// This node as what it is; null if it is the other.
  [[nodiscard]] TSQLBracket* AsBracket();
  [[nodiscard]] const TSQLBracket* AsBracket() const;
  [[nodiscard]] TSQLCondition* AsCondition();
  [[nodiscard]] const TSQLCondition* AsCondition() const;

 private:
  friend class TSQLBracket;
  friend class TSQLCondition;
  friend class TSQLConditionNodeList;
  explicit TSQLNode(bool isBracket) : FIsBracket(isBracket) {}

  TSQLBracket* FParentBracket = nullptr;
  std::size_t FPos = 0;
  const bool FIsBracket;
  bool FNegative = false;
  bool FWrittenNegative = false;
};

/// The nodes of a bracket, which it owns. A node in the list has that bracket as its parent, one taken out has none.
class TSQLConditionNodeList final : private TJObjectList<TSQLNode> {
 public:
  explicit TSQLConditionNodeList(TSQLBracket& bracket) : FParentBracket(bracket) {}

  [[nodiscard]] TSQLBracket& GetParentBracket() const { return FParentBracket; }
  using TJObjectList::begin;
  using TJObjectList::Clear;
  using TJObjectList::Count;
  using TJObjectList::Empty;
  using TJObjectList::end;
  using TJObjectList::IndexOf;
  using TJObjectList::Last;
  using TJObjectList::Reserve;
  using TJObjectList::operator[];

  TSQLNode& Add(std::unique_ptr<TSQLNode> node) { return TJObjectList::Add(Adopted(std::move(node))); }
  TSQLNode& Insert(std::size_t index, std::unique_ptr<TSQLNode> node) {
    return TJObjectList::Insert(index, Adopted(std::move(node)));
  }
  /// The old node is handed back.
  std::unique_ptr<TSQLNode> Replace(std::size_t index, std::unique_ptr<TSQLNode> node) {
    return Released(TJObjectList::Replace(index, Adopted(std::move(node))));
  }
  /// Takes a node out and hands it back.
  [[nodiscard]] std::unique_ptr<TSQLNode> Delete(std::size_t index) { return Released(TJObjectList::Delete(index)); }

 private:
  std::unique_ptr<TSQLNode> Adopted(std::unique_ptr<TSQLNode> node) {
    node->FParentBracket = &FParentBracket;
    return node;
  }
  static std::unique_ptr<TSQLNode> Released(std::unique_ptr<TSQLNode> node) {
    node->FParentBracket = nullptr;
    return node;
  }

  TSQLBracket& FParentBracket;
};

/// Nodes joined by "and" or by "or".
class TOLVI_CORE_API TSQLBracket final : public TSQLNode {
 public:
  TSQLBracket() : TSQLNode(true), FNodes(*this) {}
  explicit TSQLBracket(std::string boolOperator) : TSQLBracket() { FBoolOperator = std::move(boolOperator); }

  /// "and" or "or"; empty for a root that only holds a single comparison.
  [[nodiscard]] const std::string& GetBoolOperator() const { return FBoolOperator; }
  void SetBoolOperator(std::string boolOperator) { FBoolOperator = std::move(boolOperator); }

  /// Free for callers; false by default, and the parser never sets it.
  [[nodiscard]] bool GetFirstNOT() const { return FFirstNOT; }
  void SetFirstNOT(bool first) { FFirstNOT = first; }

  [[nodiscard]] TSQLConditionNodeList& Nodes() { return FNodes; }
  [[nodiscard]] const TSQLConditionNodeList& Nodes() const { return FNodes; }

  /// Puts the node of each bracket below this one that holds just one in that bracket's place. The negation of a
  /// bracket that goes is dropped, but for GetWrittenNegative of its node.
  void DeleteEmptyBrackets();

 private:
  std::string FBoolOperator;
  TSQLConditionNodeList FNodes;
  bool FFirstNOT = false;
};

/// A comparison: left value, operation, right value.
class TOLVI_CORE_API TSQLCondition final : public TSQLNode {
 public:
  TSQLCondition() : TSQLNode(false) {}

  /// As written.
  [[nodiscard]] std::string_view GetLeftExpr() const { return FLeftExpr.Get(); }
  void SetLeftExpr(TSQLText expr) { FLeftExpr = std::move(expr); }

  /// One token in lower case: "=", "<>", "!=", ">", "<", ">=", "<=", "like", "in", "is", "between", or whatever stands
  /// there.
  [[nodiscard]] const std::string& GetOperation() const { return FOperation; }
  void SetOperation(std::string operation) { FOperation = std::move(operation); }

  /// As written, but a text in double quotes is in single ones, "null" is in lower case, and the two bounds of
  /// "between" are joined by " and ".
  [[nodiscard]] std::string_view GetRightExpr() const { return FRightExpr.Get(); }
  void SetRightExpr(TSQLText expr) { FRightExpr = std::move(expr); }

  /// Whether one of the values is a select.
  [[nodiscard]] bool GetContainsSubQuery() const { return FContainsSubQuery; }
  void SetContainsSubQuery(bool contains) { FContainsSubQuery = contains; }

  /// Left value, operation and right value with blanks between them; all in "not(" and ")" if GetNegative.
  [[nodiscard]] std::string GetSQLExpr() const;

 private:
  TSQLText FLeftExpr, FRightExpr;
  std::string FOperation;
  bool FContainsSubQuery = false;
};

/// What the parser passed over.
enum TSQLDropKind : std::uint8_t {
  /// The condition after ON.
  sdJoinCondition,
  /// What stands after GROUP BY.
  sdGroupBy,
  /// A word after a name in ORDER BY that is neither "asc" nor "desc".
  sdSortWord,
  /// The text after the last clause that was read.
  sdRest,
};

/// A piece of the statement that is not in the result.
struct TSQLDropped {
  TSQLDropKind Kind;
  std::size_t Pos, End;  // in bytes
};

/// All that was read of a statement.
class TOLVI_CORE_API TJParserResult final {
 public:
  [[nodiscard]] bool GetDistinct() const { return FDistinct; }
  void SetDistinct(bool distinct) { FDistinct = distinct; }

  /// Whether the select list is "*".
  [[nodiscard]] bool GetAllRFields() const { return FAllRFields; }
  void SetAllRFields(bool all) { FAllRFields = all; }

  [[nodiscard]] TSQLResultFieldList& ResultFields() { return FResultFields; }
  [[nodiscard]] const TSQLResultFieldList& ResultFields() const { return FResultFields; }

  [[nodiscard]] TSQLTableList& Tables() { return FTables; }
  [[nodiscard]] const TSQLTableList& Tables() const { return FTables; }

  /// Null if the statement has no WHERE.
  [[nodiscard]] TSQLBracket* GetWhereClause() const { return FWhereClause.get(); }
  void SetWhereClause(std::unique_ptr<TSQLBracket> where) { FWhereClause = std::move(where); }
  [[nodiscard]] std::unique_ptr<TSQLBracket> TakeWhereClause() { return std::move(FWhereClause); }

  /// In the order in which they stand in the statement.
  [[nodiscard]] const std::vector<TSQLDropped>& Dropped() const { return FDropped; }
  void AddDropped(const TSQLDropped& dropped) { FDropped.push_back(dropped); }

  /// Empties tables, fields, conditions and the list of what was dropped. `Distinct`, `AllRFields` and the fields'
  /// `JustSorting` stay as they are: what reads several statements with one parser sets them anew.
  void Clear();

 private:
  TSQLResultFieldList FResultFields;
  TSQLTableList FTables;
  std::unique_ptr<TSQLBracket> FWhereClause;
  std::vector<TSQLDropped> FDropped;
  bool FDistinct = false;
  bool FAllRFields = false;
};

}  // namespace tolvi
