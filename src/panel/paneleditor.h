#pragma once

#include <any>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/components.h>
#include <tolvi/panel/querysteps.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {

/// A place for a row: before the row of the bracket that now has the index, or at the end.
struct TRowPlace {
  TFilterBracket* Bracket;
  std::size_t Index;
};

/// Behind the row; null bracket for the root. At the end of the bracket; null for what is none. Where a row is added by
/// default: inside a bracket, behind another row, at the end of the panel for none.
TOLVI_CORE_API TRowPlace PlaceAfter(const TFilterRow& row);
TOLVI_CORE_API TRowPlace PlaceInside(TFilterRow& row);
TOLVI_CORE_API TRowPlace DefaultPlace(TJQueryPanel& panel, TFilterRow* row);

/// What an end user does with the conditions of a query panel: whole operations with undo and redo, copies of rows as
/// text, rows that the host has locked, brackets that are collapsed.
///
/// 1. An operation that `Can...` denies does nothing.
/// 2. Each operation is one step of undo and fires the panel's `OnChange` once, as the last. Its handler may destroy
///    panel and editor.
/// 3. Undo and redo load the query anew: every row is then another object. What the query text does not hold follows
///    the row all the same: current row, locked, collapsed, hidden, prompts and hints, the host's objects. A panel that
///    a failed import has left inactive becomes active again.
class TOLVI_CORE_API TPanelEditor final {
 public:
  using TRowEvent = std::function<void(TFilterRow&)>;

  /// The panel is not owned; when it goes, the editor is empty. History begins with the query as it is.
  explicit TPanelEditor(TJQueryPanel& panel);
  TPanelEditor(const TPanelEditor&) = delete;
  TPanelEditor& operator=(const TPanelEditor&) = delete;
  /// Ends the steps that are open, so that the panel's events do not wait for ever.
  ~TPanelEditor();
  TJQueryPanel* GetPanel() const { return FPanel.Get(); }
  /// Whether there is an active panel.
  bool IsActive() const { return FPanel && FPanel->GetActive(); }

  // Undo

  /// To be called after each completed change that was not made through the editor, of whatever kind (import and load,
  /// too): it becomes a step. Does nothing when the query is the same.
  void NoteChange();
  /// Changes between these become one step; pairs may be nested. The panel's events wait until the last `EndStep`.
  void BeginStep();
  void EndStep();
  bool CanUndo() const { return FDepth == 0 && IsUsable() && FPosition > 0; }
  bool CanRedo() const { return FDepth == 0 && IsUsable() && FPosition < FSteps.size(); }
  std::size_t GetUndoCount() const { return FPosition; }
  std::size_t GetRedoCount() const { return FSteps.size() - FPosition; }
  void Undo() { Travel(false); }
  void Redo() { Travel(true); }
  /// Forgets the steps. For a host that has set up a query which the user cannot take back.
  void ClearHistory();
  /// To be called after the query was stored: coming back to it by undo or redo leaves the panel unmodified.
  void NoteSaved() { FSavedPosition = FPosition; }

  // Locked and collapsed rows

  /// A locked row is shown, but can neither be changed, deleted nor moved, with all that is in it; brackets round it
  /// keep their place, link word and state. Only the host locks; the steps before, which could take the row away, are
  /// forgotten then. Default: none.
  bool IsLocked(const TFilterRow& row) const;
  void SetLocked(TFilterRow& row, bool locked);
  /// For users who may lock: undo goes on.
  void ToggleLock(TFilterRow& row) { SetMark(FLocked, row, !HasMark(FLocked, row)); }
  /// Whether the row is locked or a row in it is.
  bool HoldsLocked(const TFilterRow& row) const;
  /// Whether users may lock and unlock rows by command. Default false.
  bool GetAllowLocking() const { return FAllowLocking; }
  void SetAllowLocking(bool allow) { FAllowLocking = allow; }
  /// A collapsed bracket is shown without its rows. The current row is never in one. Default: none.
  bool IsCollapsed(const TFilterRow& row) const;
  void SetCollapsed(TFilterRow& row, bool collapsed);
  /// The rows that are to be seen, in display order: neither hidden nor in a collapsed or hidden bracket.
  std::vector<TFilterRow*> VisibleRows() const;
  /// After a row was locked, collapsed or the opposite, also by undo and redo.
  TRowEvent OnRowStateChange;

  // Rows

  bool CanEdit(const TFilterRow& row) const { return IsActive() && !HoldsLocked(row); }
  bool CanAdd(const TRowPlace& place) const;
  bool CanDelete(const TFilterRow& row) const { return row.GetParentBracket() != nullptr && CanEdit(row); }
  /// Whether `Move` would move the row; see `TFilterRow::MoveInto`.
  bool CanMove(const TFilterRow& row, const TRowPlace& place) const;
  bool CanDuplicate(const TFilterRow& row) const;
  bool CanWrap(const TFilterRow& row) const;
  bool CanUngroup(const TFilterRow& row) const;

  /// Added rows become the current one; a condition has the model's default field and operator.
  void AddCondition(const TRowPlace& place);
  void AddBracket(const TRowPlace& place);
  void AddCustomCondition(const TRowPlace& place, TDSCondition& condition);
  void Delete(TFilterRow& row);
  void SetEnabled(TFilterRow& row, bool enabled);
  void SetValueIsParam(TFilterCond& condition, int index, bool isParam);
  void Move(TFilterRow& row, const TRowPlace& place);
  /// The places to which the row goes with keys: past its next visible neighbour, out of its bracket to behind it, into
  /// the bracket that stands before it or else behind it. Null bracket when there is none.
  TRowPlace PlaceAbove(const TFilterRow& row) const;
  TRowPlace PlaceBelow(const TFilterRow& row) const;
  TRowPlace PlaceOutside(const TFilterRow& row) const;
  TRowPlace PlaceInNeighbour(const TFilterRow& row) const;
  /// A copy behind the row, which becomes the current row.
  void Duplicate(TFilterRow& row);
  /// Puts the row into a new bracket in its place.
  void Wrap(TFilterRow& row);
  /// Puts the rows of the bracket into its place.
  void Ungroup(TFilterRow& row);

  // Copies

  /// A row as a query text; all rows for the root.
  std::string CopyText(const TFilterRow& row) const;
  /// Copies the row to the clipboard and deletes it.
  void Cut(TFilterRow& row);
  static bool CanPasteText(std::string_view text);
  /// Inserts the rows of a query text, also one that another program wrote; the last becomes the current row. Returns
  /// what the model lacks: such rows are kept as unknown ones. Raises `EJQueryPanelError` for any other text, and
  /// errors as `TJQueryPanel::InsertRowsFromText`; nothing changes then.
  std::vector<TQueryWarning> PasteText(std::string_view text, const TRowPlace& place);
  /// The clipboard of the system. Without these the editor has one of its own.
  std::function<std::string()> OnReadClipboard;
  std::function<void(const std::string&)> OnWriteClipboard;
  std::string GetClipboard() const { return OnReadClipboard ? OnReadClipboard() : FClipboard; }
  void SetClipboard(const std::string& text);

 private:
  /// What a row has besides its query text, but for what it has by default.
  struct TExtras {
    bool Hidden = false;
    std::any OleObject, CustomData;
    std::array<std::string, 2> Prompts, Hints;
    bool Empty() const;
  };

  bool IsUsable() const { return FPanel && FPanel->GetDBStruct() != nullptr; }
  template <typename TCall>
  void AsStep(TCall call);
  TFilterBracket& AddNewBracket(const TRowPlace& place);
  TRowKey FindKey(const TFilterRow& row) const;
  TRowKey TakeKey(const TFilterRow& row);
  bool HasMark(const std::unordered_set<TRowKey>& marks, const TFilterRow& row) const;
  void SetMark(std::unordered_set<TRowKey>& marks, TFilterRow& row, bool on);
  TQueryState TakeState();
  TRowKey CurrentKey() const;
  void Record(bool byEditor);
  void Travel(bool forward);
  void Restore(const TQueryState& state, TRowKey current, bool active);
  void KeepExtras();
  void GiveExtras(TFilterRow& row, const TExtras& extras);
  void ShowCurrentRow();

  TRef<TJQueryPanel> FPanel;
  // The query after the last step; what the panel made of it, if loading changed it.
  TQueryState FState;
  std::optional<TQueryState> FLoadedState;
  // What the query text does not hold, as last seen.
  TRowKey FCurrent = NoRowKey;
  bool FActive = false;
  std::vector<TQueryStep> FSteps;
  std::size_t FPosition = 0;
  std::optional<std::size_t> FSavedPosition;
  int FDepth = 0;
  // Keys of the rows by their serial numbers.
  std::unordered_map<std::uint64_t, TRowKey> FKeys;
  TRowKey FLastKey = RootKey;
  std::unordered_set<TRowKey> FLocked, FCollapsed;
  std::unordered_map<TRowKey, TExtras> FExtras;
  bool FAllowLocking = false;
  std::string FClipboard;
};

}  // namespace tolvi
