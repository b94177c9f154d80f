// The result fields editor without its dialog: the columns that are being edited, and what can be done to them.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/components.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/rfldformula.h>
#include <tolvi/query/resultfields.h>
#include <tolvi/query/titles.h>

namespace tolvi {

/// Edits a copy of the columns of a query.
///
/// 1. Operations without an index are those on the current column. Every change is a step of the history; characters
///    typed one after the other into one text are one step.
/// 2. An expression that is wrong is kept as typed until it is mended; the column keeps its former formula so long.
/// 3. The sorted columns have the sort orders 1, 2, 3, ...
/// 4. A caption that is made from the fields follows them; one that the user has typed stays.
/// 5. Fields that go from the model become unknown ones; the history is empty then. A model that is destroyed takes the
///    columns with it.
class TOLVI_CORE_API TRFieldEditor final : private TDSListener {
 public:
  TRFieldEditor(const TRFieldList& fields, TTitles titles);
  TRFieldEditor(const TRFieldEditor&) = delete;
  TRFieldEditor& operator=(const TRFieldEditor&) = delete;
  ~TRFieldEditor();

  const TRFieldList& Fields() const { return *FState.Fields; }
  const TTitles& Titles() const { return FTitles; }
  /// Null without a model, and when it is destroyed.
  TJCustomDBStructure* GetModel() const { return FModel.Get(); }
  /// Called after every change of what is told here.
  std::function<void()> OnChange;

  /// None without columns.
  std::optional<std::size_t> GetCurrent() const { return FState.Current; }
  void SetCurrent(std::size_t index);

  /// Adds columns of one field each behind the current one; the last becomes the current one.
  void Create(std::span<TDSField* const> fields);
  /// Adds a column behind the current one, whose expression must be filled in.
  void New();
  void Delete();
  /// Whether the column holds work of the user's that more than a click would bring back.
  bool HasOwnFormula() const;
  void Move(std::size_t to);
  void SetHidden(std::size_t index, bool hidden);

  /// Why the fields cannot be joined to the column; empty when they can.
  std::string JoinFault() const;
  /// Adds the fields to the column, or subtracts them and so on; inside the aggregate function, unless the fields are
  /// aggregates. Returns why it could not be done.
  [[nodiscard]] std::string Join(TRFOperation operation, std::span<TDSField* const> fields);

  TRFAggregate GetAggregate() const;
  /// Why the column cannot stand in that function; empty when it can.
  std::string AggregateFault(TRFAggregate aggregate) const;
  void SetAggregate(TRFAggregate aggregate);

  /// With field names in braces; as typed while that is wrong.
  std::string GetExpression(std::size_t index) const;
  /// What is wrong with it, as a sentence; empty when nothing is. An expression that was given is no fault.
  std::string GetFault(std::size_t index) const;
  /// What keeps a statement from being built, though the column may stay as it is: a field that the model lacks, or
  /// what is wrong with a given expression.
  std::string GetWarning(std::size_t index) const;
  /// The fault, else the warning.
  std::string GetProblem(std::size_t index) const;
  void SetExpression(std::string_view text);
  /// The first column with a fault.
  std::optional<std::size_t> FirstFault() const;
  /// The field as it stands in an expression: its name in braces.
  std::string ReferenceTo(TDSField& field) const;

  /// An equal caption of another column gets a number; an empty one is made from the fields.
  void SetCaption(std::string_view caption);
  /// The name of the column in SQL, in quotes where needed; empty for none. It is made from the caption whenever a
  /// statement is built, so that there is no use in setting it.
  std::string GetAlias(std::size_t index) const { return Fields()[index].GetSQLAlias(); }

  /// The columns that sort, the first sort key first.
  std::vector<std::size_t> Sorted() const;
  /// A column that did not sort becomes the last sort key.
  void SetSorting(std::size_t index, TSortingType sorting);
  /// Moves a sort key among the sorted columns.
  void MoveSorted(std::size_t from, std::size_t to);
  void SetJustSorting(bool on);

  bool CanUndo() const { return !FUndo.empty(); }
  bool CanRedo() const { return !FRedo.empty(); }
  void Undo();
  void Redo();

 private:
  struct TTyped {
    std::string Text, Fault;
  };
  struct TState {
    std::unique_ptr<TRFieldList> Fields;
    // For each column what was typed; none where that is no fault.
    std::vector<std::optional<TTyped>> Typed;
    std::optional<std::size_t> Current;
  };

  void FieldRemoved(TDSField& field) override;
  void StructureClearing() override;
  void StructureLoaded() override;
  void ModelChanged() override;
  void ModelDestroyed();

  TResultField& Column() const { return (*FState.Fields)[*FState.Current]; }
  std::unique_ptr<TRFieldList> EmptyList() const;
  TState Copy() const;
  void Change(std::string_view step, const std::function<void()>& change);
  void ChangeFormula(std::string_view step, const std::function<void()>& change);
  void Finish();
  void Step(std::vector<TState>& from, std::vector<TState>& to);
  void Insert(std::unique_ptr<TResultField> column);
  bool IsGiven(const TResultField& column) const { return FGiven.contains(column.GetFormula()); }
  std::string FormulaFaultOf(const TResultField& column, bool allowSelects) const;
  bool AllowsSelects() const;
  TTyped Checked(const TResultField& column, std::string_view text) const;
  void CheckTypedAnew();
  std::string MadeCaption(const TResultField& column) const;
  bool HasMadeCaption(const TResultField& column) const;
  void Renumber(const std::vector<std::size_t>& sorted);

  const TTitles FTitles;
  TRef<TJCustomDBStructure> FModel;
  TState FState;
  std::vector<TState> FUndo, FRedo;
  std::string FLastStep;
  // The formulas of the columns that were given; the query may allow what this editor cannot know of.
  std::set<std::string> FGiven;
  bool FModelChanges = false;
};

}  // namespace tolvi
