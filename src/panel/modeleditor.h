// The model editor without its dialog: a model that is being edited, with its history.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/querysteps.h>

namespace tolvi {

/// Makes changes of a model steps that can be undone.
///
/// 1. What changes the model outside an edit is a step of its own, without a name, found by the next operation here.
/// 2. Undo, redo and a failed edit make all parts of the model anew: whoever shows them finds them again by alias, ID
/// or
///    name. The model's listeners hear of it as of the loading of a model text.
/// 3. The history is kept within a bound of memory: its oldest steps go first.
class TOLVI_CORE_API TModelEditor final {
 public:
  /// The model must live as long as the editor.
  explicit TModelEditor(TJCustomDBStructure& model);
  TModelEditor(const TModelEditor&) = delete;
  TModelEditor& operator=(const TModelEditor&) = delete;

  TJCustomDBStructure& Model() const { return FModel; }

  /// Calls `edit`; all that it changes is one change for the model's listeners, and one step called `name` ("Delete
  /// table"), in the user's language. When it raises, the model is put back and the error goes on. An edit inside
  /// another one belongs to that. Returns whether anything changed.
  bool Edit(std::string_view name, const std::function<void()>& edit);
  /// For an edit that goes on for a while, as dragging: all changes between these are one step. Listeners hear of each.
  /// `Cancel` puts the model back as it was at `Begin`.
  void Begin(std::string_view name);
  void End();
  void Cancel();

  bool CanUndo();
  bool CanRedo();
  /// What would be undone, redone; empty when there is nothing, or it has no name.
  std::string UndoName();
  std::string RedoName();
  /// Nothing happens when there is nothing to undo, redo, and in the midst of an edit.
  void Undo();
  void Redo();
  /// After the model has been replaced by another one.
  void ForgetSteps();

  /// Whether the model differs from what it was when it was last called unmodified, at first when the editor was made.
  bool GetModified();
  void SetUnmodified();

  /// After each step, undo, redo, and after `ForgetSteps` and `SetUnmodified`; not in the midst of an edit. May destroy
  /// the editor.
  std::function<void()> OnChange;

 private:
  struct TStep {
    std::string Name;
    TTextChange Text;
  };

  /// Whether there is a new step.
  bool Take(std::string_view name);
  void TakeForeignChange();
  void Restore(const std::string& text);
  void Go(bool forward);
  void Tell();

  TJCustomDBStructure& FModel;
  // The text of the model at the revision.
  std::string FText, FSavedText;
  std::uint64_t FRevision;
  std::vector<TStep> FSteps;
  // How many of the steps are done; the others can be redone.
  std::size_t FDone = 0;
  std::string FName;
  int FDepth = 0;
};

}  // namespace tolvi
