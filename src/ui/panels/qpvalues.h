// The labels by which the values of conditions are edited.
#pragma once

#include <QString>
#include <cstdint>

#include <tolvi/query/rowphrase.h>
#include <tolvi/query/rows.h>
#include <tolvi/ui/api.h>
#include <tolvi/ui/controls/ddlabel.h>

namespace tolvi {

/// How a value is edited: as a line of text, items divided by commas, lines of text, a date, a time, both, true or
/// false, an item of a list, several of them, the same fetched by SQL, by the host, as a query of its own, as a
/// parameter.
enum class TQPValueKind : std::uint8_t {
  qvText,
  qvTextList,
  qvMemo,
  qvDate,
  qvTime,
  qvDateTime,
  qvBoolean,
  qvItem,
  qvItems,
  qvFetchedItem,
  qvFetchedItems,
  qvHost,
  qvQuery,
  qvParam,
};

/// By the value's kind, the field's editor, and the type.
TOLVI_WIDGETS_API TQPValueKind ValueKindOf(const TFilterCond& condition, int index);

/// A label whose editor is a window of the host's or the view's.
class TOLVI_WIDGETS_API TQPActionLabel final : public TDropDownLabel {
  Q_OBJECT

 public:
  explicit TQPActionLabel(QWidget* parent);

  /// Called from the event loop instead of opening an editor.
  std::function<void()> OnOpen;

 protected:
  QWidget* CreateEditor(QWidget*) override { return nullptr; }
  bool TakeFromEditor(QWidget&) override { return false; }
};

/// A label for name and prompt of a parameter.
class TOLVI_WIDGETS_API TQPParamLabel final : public TDropDownLabel {
  Q_OBJECT

 public:
  using TDropDownLabel::TDropDownLabel;

  QString Name, Prompt;

 protected:
  QWidget* CreateEditor(QWidget* parent) override;
  bool TakeFromEditor(QWidget& editor) override;
  bool TabMovesInEditor() const override { return true; }
  /// Not while the name is none.
  bool AcceptsByKey(const QKeyEvent& key) const override;

 private:
  class TEditor;
};

/// A label of that kind without a value. The caller sets its events.
TOLVI_WIDGETS_API TDropDownLabel* MakeValueLabel(TQPValueKind kind, QWidget* parent);
/// Shows the value, worded as in the row's sentence, with what is wrong with it.
TOLVI_WIDGETS_API void ShowValue(TDropDownLabel& label, TQPValueKind kind, const TFilterCond& condition, int index,
                                 const TPhrasePart& part);
/// The value as the label keeps it.
TOLVI_WIDGETS_API QString LabelValue(TQPValueKind kind, const TFilterCond& condition, int index);
/// Whether two values of a label are the same; for several items, in whatever order.
TOLVI_WIDGETS_API bool IsSameValue(TQPValueKind kind, const QString& value, const QString& other);
/// What the label offers, set when it opens; the default value where there is none. Lists fetched by SQL are marked as
/// busy until `ShowFetched`.
TOLVI_WIDGETS_API void PrepareLabel(TDropDownLabel& label, TQPValueKind kind, const TFilterCond& condition, int index);
TOLVI_WIDGETS_API void ShowFetched(TDropDownLabel& label, const TFilterCond& condition, int index,
                                   const QString& fault);
/// Gives the condition the value that the user has chosen. Raises `EJQueryPanelError` for a parameter's name that is
/// none.
TOLVI_WIDGETS_API void TakeValue(const TDropDownLabel& label, TQPValueKind kind, TFilterCond& condition, int index);

/// Why the text cannot be a value of the condition; empty when it can.
TOLVI_WIDGETS_API QString FaultOfText(const TFilterCond& condition, int index, const QString& text);
/// The same of one value of a list.
TOLVI_WIDGETS_API QString FaultOfItem(const TFilterCond& condition, int index, const QString& item);

}  // namespace tolvi
