#pragma once

#include <any>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/objectlist.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/model/operators.h>
#include <tolvi/model/table.h>
#include <tolvi/query/sqltypes.h>

namespace tolvi {

class TDSCondition;
class TDSField;
class TDSValueEditor;
class TFilterBracket;
class TJQueryPanel;
class TSQLParam;

/// Kinds of rows. The ordinals are stored in query texts.
enum TFilterRowType : std::uint8_t { frtSimpleCondition, frtBracket, frtCustomCondition, frtSQLFragment };
/// How a bracket joins its rows: all (AND), any (OR), none (NOT of OR), not all (NOT of AND). The ordinals are stored.
enum TFilterLinkType : std::uint8_t { fltAll, fltAny, fltNone, fltNotAll };
using TFilterLinkTypes = TSet<TFilterLinkType>;
enum TRowState : std::uint8_t { rsNormal, rsDestroying };

/// The deepest level of a row.
inline constexpr int MaxRowLevel = 1000;

/// A row of the condition tree. Its bracket owns it; the root belongs to the panel. Every change that a setter makes
/// tells the panel's view and fires the panel's `OnChange`.
class TOLVI_CORE_API TFilterRow {
 public:
  TFilterRow(const TFilterRow&) = delete;
  TFilterRow& operator=(const TFilterRow&) = delete;
  virtual ~TFilterRow();

  TFilterRowType GetRowType() const { return FRowType; }
  TRowState GetRowState() const { return FRowState; }
  TJQueryPanel& GetQueryPanel() const { return FQueryPanel; }
  /// A number that no other row of the panel has or had, also not one of an earlier query.
  std::uint64_t GetSerial() const { return FSerial; }
  /// Null for the root.
  TFilterBracket* GetParentBracket() const { return FParentBracket; }
  /// Index in the parent, 0 for the root.
  std::size_t GetRowIndex() const;
  /// The parent's ID, "." and the 1-based index; empty for the root.
  std::string GetRowID() const;
  /// 0 for the root.
  int GetRowLevel() const;
  /// The row's number in display order: the root is 0, each row follows the row above it.
  int GetRowNum() const;

  /// Whether the row takes part in the statement. Default true. Setting switches brackets around it on or off when
  /// their first row goes on or their last one off, and all rows of a bracket with it.
  bool GetEnabled() const { return FEnabled; }
  void SetEnabled(bool enabled);
  /// Whether the row belongs to HAVING: a condition on an aggregate field; SQL of which that is told; a bracket whose
  /// first condition is one.
  virtual bool GetIsHavingRow() const = 0;
  /// Whether views hide the row. Default false.
  bool GetHidden() const { return FHidden; }
  void SetHidden(bool hidden);
  /// Whether the panel is active and neither the row nor a bracket around it is hidden.
  bool GetVisible() const;

  /// Moves the row before (behind) the row before (behind) it in its bracket; out of its bracket to the place behind
  /// it; to the end of the bracket that stands before it. False when there is no such place.
  bool MoveUp();
  bool MoveDown();
  bool MoveLeft();
  bool MoveRight();
  /// Moves the row into a bracket of the same panel, so that it stands there before the row that now has the index (at
  /// the end for the number of rows). False, and nothing moves, for the root, a place within the row itself, the place
  /// where it stands, one beyond the bracket's rows or deeper than `MaxRowLevel`.
  bool MoveInto(TFilterBracket& bracket, std::size_t index);
  bool CanMoveInto(const TFilterBracket& bracket, std::size_t index) const;
  /// Whether the row is `outer` or stands in it at any depth.
  bool IsWithin(const TFilterRow& outer) const;

  /// An object of the host's own; not stored.
  const std::any& GetOleObject() const { return FOleObject; }
  void SetOleObject(std::any object) { FOleObject = std::move(object); }

 protected:
  TFilterRow(TFilterRowType rowType, TJQueryPanel& panel);
  virtual void ApplyEnabled(bool) {}
  /// Whether the row is part of the panel's tree.
  bool IsPlaced() const;
  /// The panel's view, for a row that it knows; else null.
  class TQueryPanelView* Viewer() const;
  /// Tells the panel that the shape of the statement may be another one.
  void Changed();

 private:
  friend class TFilterBracket;
  friend class TJQueryPanel;
  friend class TQueryReader;
  void StoreEnabled(bool enabled);
  bool MoveTo(TFilterBracket& bracket, std::size_t index);
  bool FitsBelow(const TFilterBracket& bracket) const;

  TFilterRowType FRowType;
  TRowState FRowState = rsNormal;
  bool FEnabled = true, FHidden = false;
  TJQueryPanel& FQueryPanel;
  std::uint64_t FSerial;
  TFilterBracket* FParentBracket = nullptr;
  mutable std::size_t FIndex = 0;
  mutable int FRowNum = 0;
  std::any FOleObject;
};

/// A group of rows. Owns them.
class TOLVI_CORE_API TFilterBracket final : public TFilterRow {
 public:
  explicit TFilterBracket(TJQueryPanel& panel) : TFilterRow(frtBracket, panel) {}
  ~TFilterBracket() override;

  bool IsRoot() const { return GetParentBracket() == nullptr; }
  TFilterLinkType GetLinkType() const { return FLinkType; }
  void SetLinkType(TFilterLinkType linkType);
  /// The word for the link type in the panel's titles ("all", "any", "none", "not all").
  std::string GetBracketKind() const;
  bool GetIsHavingRow() const override;

  std::size_t GetRowCount() const { return FRows.Count(); }
  /// An index outside the rows raises `EListError`.
  TFilterRow& GetRow(std::size_t index) const { return FRows[index]; }
  auto begin() const { return FRows.begin(); }
  auto end() const { return FRows.end(); }
  TFilterRow* FirstRow() const { return FRows.Empty() ? nullptr : &FRows[0]; }
  TFilterRow* LastRow() const { return FRows.Empty() ? nullptr : &FRows.Last(); }
  /// The number of the last row in the bracket, at any depth; the bracket's own number when it is empty.
  int GetLastRowNum() const;
  /// The first condition among the bracket's own rows; null when there is none.
  class TFilterCond* GetFirstCondition() const;
  /// -1 when the row is not one of the bracket's own.
  std::ptrdiff_t IndexOf(const TFilterRow& row) const;
  /// The index of the bracket's own row with that number, -1 when there is none.
  std::ptrdiff_t IndexByRowNum(int rowNum) const;
  /// Where a row must be inserted to get that number, as nearly as the bracket allows.
  std::size_t IndexForNewRow(int rowNum) const;
  /// The row with that ID at or below the bracket; null when there is none.
  TFilterRow* RowByID(std::string_view rowID) const;

  /// Inserts a row that is in no bracket. Raises `EJQueryPanelError` beyond `MaxRowLevel`.
  TFilterRow& InsertRow(std::size_t index, std::unique_ptr<TFilterRow> row);
  TFilterRow& AddRow(std::unique_ptr<TFilterRow> row) { return InsertRow(FRows.Count(), std::move(row)); }
  TFilterBracket& AddNewBracket();
  TFilterBracket& InsertNewBracketByNum(int rowNum);
  /// A condition on the model's first field that conditions may use, with that field's first operator.
  class TSimpleCond& AddCond();
  TSimpleCond& InsertSimpleCondByNum(int rowNum);
  class TCustomCond& AddCustomCond(TDSCondition& condition);
  TCustomCond& InsertCustomCondByNum(int rowNum, TDSCondition& condition);
  /// Errors as in `TSQLFragment::SetSQLExpr`; nothing is added then.
  class TSQLFragment& AddSQLFragment(std::string_view sql);
  TSQLFragment& InsertSQLFragmentByNum(int rowNum, std::string_view sql);
  /// Destroys the row; the panel chooses another current row if it was that one.
  void DeleteRow(std::size_t index);
  void ClearRows();

  /// Switches the bracket off when none of its rows is on, and on when one is. Does nothing while the bracket itself
  /// is being switched.
  void CheckIfAllDisabled();
  /// Asks the view to accept (discard) what is being typed, to fetch again what value editors offer.
  void CloseEdit(bool accept);
  void RefreshValueEditors();

 private:
  friend class TFilterRow;
  friend class TJQueryPanel;
  void ApplyEnabled(bool enabled) override;
  template <typename TRow>
  TRow& InsertNew(std::size_t index, std::unique_ptr<TRow> row) {
    TRow& result = *row;
    InsertRow(index, std::move(row));
    return result;
  }
  std::unique_ptr<TFilterRow> TakeRow(std::size_t index);
  void RemoveRow(std::size_t index);
  void PlaceRow(std::size_t index, std::unique_ptr<TFilterRow> row);
  std::size_t IndexOfChild(const TFilterRow& row) const;
  // How many levels of rows the bracket holds.
  int Depth() const;

  TFilterLinkType FLinkType = fltAll;
  bool FEnabledChanging = false, FProcessChildren = true;
  TJObjectList<TFilterRow> FRows;
  std::size_t FEnabledCount = 0;
  // How many of the rows, from the first, know their index.
  mutable std::size_t FIndexed = 0;
};

/// Base of conditions. Values are numbered 1 and 2 and kept as text: numbers in the panel's locale or with a point,
/// dates as a day number or in the panel's locale, booleans as 0, 1, true, false, yes or no, lists as comma text.
class TOLVI_CORE_API TFilterCond : public TFilterRow {
 public:
  /// An index other than 1 or 2 raises `EListError`, here and below.
  const std::string& GetValue(int index) const { return Slot(index).value; }
  void SetValue(int index, std::string_view value);
  /// What views show for the value; empty means the value itself.
  const std::string& GetCaption(int index) const { return Slot(index).caption; }
  void SetCaption(int index, std::string_view caption);
  const std::string& GetHint(int index) const { return Slot(index).hint; }
  void SetHint(int index, std::string_view hint) { Slot(index).hint = hint; }
  /// The value in words: its caption, else its text, dates in the panel's locale.
  std::string GetValueCaption(int index) const;

  /// Whether the value is a parameter. Setting makes or deletes the parameter.
  bool GetValueIsParam(int index) const { return Slot(index).param != nullptr; }
  void SetValueIsParam(int index, bool isParam);
  /// Null for a value that is no parameter; owned by the query result.
  TSQLParam* GetParam(int index) const { return Slot(index).param; }

  /// Lines of the query text that is the value of an operator on sub-queries, and the options of its statement.
  const TStrings& GetSubQuery() const { return FSubQuery; }
  void SetSubQuery(const TStrings& lines);
  TSQLOptions GetSubQueryOptions() const { return FSubQueryOptions; }
  void SetSubQueryOptions(TSQLOptions options);

  /// The SQL template.
  virtual const std::string& GetSQLExpr() const = 0;
  /// The model's tables that the condition refers to.
  virtual const TSimpleDSTableList& GetTables() const = 0;
  virtual int GetValueCount() const = 0;
  virtual TValueKind GetValueKind(int index) const = 0;
  virtual TFieldType GetValueType(int index) const = 0;
  virtual int GetValueSize(int index) const = 0;
  /// What errors and prompts call the value: the field or the condition.
  virtual std::string GetValueName(int index) const = 0;
  /// How the value is entered; null for the automatic way.
  virtual TDSValueEditor* GetValueEditor(int index) const = 0;
  /// The error that says what the model lacks, or an empty text.
  virtual std::string GetMissing() const = 0;

 protected:
  using TFilterRow::TFilterRow;
  ~TFilterCond() override;
  void ClearValues();
  void ValueChanged();
  /// The text of the condition in the statement has to be made anew.
  void ForgetText() { FTextStamp = 0; }

 private:
  friend class TJQueryPanel;
  friend class TQueryReader;
  friend class TQueryResult;
  friend class TSQLBuilder;
  friend class TSQLParam;
  struct TSlot {
    std::string value, caption, hint;
    TSQLParam* param = nullptr;
  };
  TSlot& Slot(int index);
  const TSlot& Slot(int index) const;
  // Looks up in the model what is missing; replaces a part of the model that goes (null: all parts) by its placeholder,
  // whether it named that part.
  virtual void Resolve() = 0;
  virtual bool Forget(const void* part) = 0;

  std::array<TSlot, 2> FSlots;
  TStrings FSubQuery;
  TSQLOptions FSubQueryOptions;
  // The condition's text in the last statement, kept while `FTextStamp` is the builder's.
  mutable std::string FText;
  mutable std::uint64_t FTextStamp = 0;
};

/// A condition on a field of the model.
class TOLVI_CORE_API TSimpleCond final : public TFilterCond {
 public:
  explicit TSimpleCond(TJQueryPanel& panel);

  /// The model's `NullField` when a query text names a field that the model lacks.
  TDSField& GetField() const { return *FField; }
  /// Keeps the operator if the field offers it, else takes the field's first one; empties the values when their type
  /// is another one.
  void SetField(TDSField& field);
  TDSOperator& GetDSOperator() const { return *FOperator; }
  /// Keeps the values that the operator has too.
  void SetOperator(TDSOperator& op);
  /// The type of the compared values: the operator's, or the field's where it has none.
  TFieldType GetExprType() const;
  /// The ID and the operator's name as a query text stores them, also of what the model lacks.
  std::int32_t GetFieldID() const;
  const std::string& GetOperatorName() const;
  /// Writes the values anew in the form of their type, where they can be read.
  void ReformatValue();
  /// An object of the host's own; not stored.
  const std::any& GetCustomData() const { return FCustomData; }
  void SetCustomData(std::any data) { FCustomData = std::move(data); }

  bool GetIsHavingRow() const override;
  const std::string& GetSQLExpr() const override;
  const TSimpleDSTableList& GetTables() const override;
  int GetValueCount() const override;
  TValueKind GetValueKind(int index) const override;
  TFieldType GetValueType(int index) const override;
  int GetValueSize(int index) const override;
  std::string GetValueName(int index) const override;
  TDSValueEditor* GetValueEditor(int index) const override;
  std::string GetMissing() const override;

 private:
  friend class TJQueryPanel;
  friend class TQueryReader;
  void Resolve() override;
  bool Forget(const void* part) override;
  void ClearUnfitValues(TFieldType oldType, TValueKind oldKind);

  TDSField* FField;
  TDSOperator* FOperator;
  // What the query text names and the model lacks.
  std::int32_t FMissingFieldID = 0;
  std::string FMissingFieldName, FMissingOperator;
  std::any FCustomData;
};

/// A predefined condition of the model.
class TOLVI_CORE_API TCustomCond final : public TFilterCond {
 public:
  TCustomCond(TJQueryPanel& panel, TDSCondition& condition);

  /// The model's `NullCondition` when a query text names one that the model lacks.
  TDSCondition& GetDSCondition() const { return *FCondition; }
  void SetDSCondition(TDSCondition& condition);
  /// The ID as a query text stores it.
  std::int32_t GetConditionID() const;

  bool GetIsHavingRow() const override { return false; }
  const std::string& GetSQLExpr() const override;
  const TSimpleDSTableList& GetTables() const override;
  int GetValueCount() const override;
  TValueKind GetValueKind(int index) const override;
  TFieldType GetValueType(int index) const override;
  int GetValueSize(int index) const override;
  std::string GetValueName(int index) const override;
  TDSValueEditor* GetValueEditor(int index) const override;
  std::string GetMissing() const override;

 private:
  friend class TJQueryPanel;
  friend class TQueryReader;
  void Resolve() override;
  bool Forget(const void* part) override;

  TDSCondition* FCondition;
  std::int32_t FMissingID = 0;
};

/// A condition as SQL, written into the statement as it stands: no values, nothing replaced. Only panels that allow it
/// (`AllowSQLFragments`) build statements with it.
class TOLVI_CORE_API TSQLFragment final : public TFilterCond {
 public:
  explicit TSQLFragment(TJQueryPanel& panel) : TFilterCond(frtSQLFragment, panel) {}

  const std::string& GetSQLExpr() const override { return FSQLExpr; }
  /// Blanks at both ends are cut off. Raises `EJQueryPanelError` for what is not one closed expression: an empty text,
  /// brackets or quotes that do not pair, a comment, a ";", a clause or comma outside brackets, a place for a value
  /// ("?", ":Name", "$1", "@Name").
  void SetSQLExpr(std::string_view sql);
  /// Whether the row belongs to HAVING. Default false.
  bool GetHaving() const { return FHaving; }
  void SetHaving(bool having);
  /// Why no statement can be built with the row: a query text gave it a text that `SetSQLExpr` would refuse, or the
  /// panel does not allow SQL. Empty when one can.
  std::string GetFault() const;

  bool GetIsHavingRow() const override { return FHaving; }
  /// Those that the text mentions, but for what a select within it has in its own FROM.
  const TSimpleDSTableList& GetTables() const override;
  int GetValueCount() const override { return 0; }
  TValueKind GetValueKind(int) const override { return vkScalar; }
  TFieldType GetValueType(int) const override { return ftString; }
  int GetValueSize(int) const override { return 0; }
  std::string GetValueName(int) const override { return "SQL"; }
  TDSValueEditor* GetValueEditor(int) const override { return nullptr; }
  std::string GetMissing() const override { return {}; }

 private:
  friend class TQueryReader;
  friend class TSQLBuilder;
  void Resolve() override { FTablesRevision = 0; }
  bool Forget(const void* part) override;
  void StoreSQLExpr(std::string_view sql);
  // The model's quote symbol for names.
  char OpenQuote() const;
  std::string TextFault() const;

  std::string FSQLExpr;
  bool FHaving = false;
  // The tables, kept for one revision of the model; 0 for none.
  mutable TSimpleDSTableList FTables;
  mutable std::uint64_t FTablesRevision = 0;
};

}  // namespace tolvi
