#include <QAccessibleWidget>

#include <tolvi/query/querpnl.h>
#include <tolvi/ui/panels/linklabel.h>
#include <tolvi/ui/panels/qpaccess.h>
#include <tolvi/ui/panels/qprow.h>
#include <tolvi/ui/panels/querpnlview.h>

namespace tolvi {
namespace {

void AddRowState(const TQPRow& widget, QAccessible::State& state) {
  const TFilterRow* row = widget.GetRow();
  const TPanelEditor* editor = widget.GetView().GetEditor();
  if (row == nullptr || editor == nullptr) return;
  state.selectable = true;
  state.selected = row == row->GetQueryPanel().GetCurrentRow();
  state.checkable = widget.GetCheckBox() != nullptr;
  state.checked = state.checkable && row->GetEnabled();
  state.readOnly = editor->IsLocked(*row);
  state.expandable = row->GetRowType() == frtBracket;
  state.collapsed = state.expandable && editor->IsCollapsed(*row);
  state.expanded = state.expandable && !state.collapsed;
}

/// The rows in sight as items, and the label that adds to them.
class TPanelAccess final : public QAccessibleWidget {
 public:
  explicit TPanelAccess(TJQueryPanelView& view) : QAccessibleWidget(&view, QAccessible::List), FView(view) {}

  int childCount() const override { return static_cast<int>(Children().size()); }
  QAccessibleInterface* child(int index) const override {
    const QList<QWidget*> children = Children();
    return index >= 0 && index < children.size() ? QAccessible::queryAccessibleInterface(children[index]) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child != nullptr ? static_cast<int>(Children().indexOf(qobject_cast<QWidget*>(child->object()))) : -1;
  }

 private:
  QList<QWidget*> Children() const {
    QList<QWidget*> children;
    for (const TJQueryPanelView::TPlacedRow& row : FView.Rows()) {
      if (TQPRow* widget = FView.RowWidget(*row.Row)) children << widget;
    }
    if (!FView.GetAddRowLabel().isHidden()) children << &FView.GetAddRowLabel();
    return children;
  }

  TJQueryPanelView& FView;
};

class TRowAccess final : public QAccessibleWidget {
 public:
  explicit TRowAccess(TQPRow& row) : QAccessibleWidget(&row, QAccessible::ListItem), FRow(row) {}

  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&FRow.GetView()); }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? FRow.GetSentence() : QAccessibleWidget::text(kind);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    AddRowState(FRow, state);
    return state;
  }

 private:
  TQPRow& FRow;
};

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
  if (auto* view = qobject_cast<TJQueryPanelView*>(object)) return new TPanelAccess(*view);
  if (auto* row = qobject_cast<TQPRow*>(object)) return new TRowAccess(*row);
  return nullptr;
}

}  // namespace

void TellRowState(TQPRow& row, std::optional<QAccessible::State>& told) {
  QAccessible::State now, changed;
  AddRowState(row, now);
  const QAccessible::State before = told.value_or(now);
  told = now;
  changed.selected = now.selected != before.selected;
  changed.checked = now.checked != before.checked;
  changed.readOnly = now.readOnly != before.readOnly;
  changed.collapsed = now.collapsed != before.collapsed;
  changed.expanded = now.expanded != before.expanded;
  if (changed == QAccessible::State()) return;
  QAccessibleStateChangeEvent event(&row, changed);
  QAccessible::updateAccessibility(&event);
}

void InstallPanelAccess() {
  static const bool once = [] {
    QAccessible::installFactory(MakeAccess);
    return true;
  }();
  static_cast<void>(once);
}

}  // namespace tolvi
