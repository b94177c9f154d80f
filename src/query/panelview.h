#pragma once

#include <cstddef>

#include <tolvi/foundation/api.h>

namespace tolvi {

class TFilterBracket;
class TFilterRow;

/// What shows a query panel. Told of each completed change after the rows' indexes are up to date and before
/// `OnChange` fires. Must not throw. Every method does nothing by default.
class TOLVI_CORE_API TQueryPanelView {
 public:
  /// The row, with all that is in it, is now in its bracket.
  virtual void RowInserted(TFilterRow&) {}
  /// The row, with all that is in it, is about to be destroyed; it is no longer in its bracket.
  virtual void RowRemoved(TFilterRow&) {}
  virtual void RowMoved(TFilterRow&) {}
  /// Field, operator, values, link type or enabled state of the row have changed.
  virtual void RowChanged(TFilterRow&) {}
  /// The current row is another one; bring it into view. Null: there is none.
  virtual void CurrentRowChanged(TFilterRow*) {}
  virtual void ResultFieldsChanged() {}
  /// Words of the sentences have changed: titles, or names in the model.
  virtual void TitlesChanged() {}
  /// Let go of all rows; show the tree as it is now. Loading tells no more of the rows than this.
  virtual void ActiveChanged(bool) {}
  /// Accept or discard what is being typed.
  virtual void CloseEdit(bool) {}
  /// The texts and lists of value editors are stale.
  virtual void RefreshValueEditors(TFilterBracket&) {}

 protected:
  ~TQueryPanelView() = default;
};

}  // namespace tolvi
