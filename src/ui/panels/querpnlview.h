#pragma once

#include <QAbstractScrollArea>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include <tolvi/foundation/components.h>
#include <tolvi/panel/paneleditor.h>
#include <tolvi/query/rowphrase.h>
#include <tolvi/ui/api.h>
#include <tolvi/ui/controls/ddlist.h>
#include <tolvi/ui/panels/qpactions.h>
#include <tolvi/ui/panels/qpappearance.h>

namespace tolvi {

class TDSSQLEditor;
class TJQueryPanelView;
class TLinkLabel;
class TQPDrag;
class TQPRow;

/// Sizes that all rows of a view share, in pixels.
struct TQPMetrics {
  int Left = 0, Top = 0, RowSpace = 0, ElemSpace = 0, Indent = 0;
  /// Of a row with the space below it; from its top to the baseline of its texts.
  int RowHeight = 1, Baseline = 0;
  int ButtonWidth = 0;
};

/// Shows the conditions of a query panel as sentences that are edited where they stand.
///
///   TJQueryPanelView view;
///   view.SetQueryPanel(&panel);
///
/// 1. The panel is not owned; when it goes, or gets another view, the view is empty.
/// 2. Changes are shown together when the program is back in its event loop (`ShowChanges`: at once). Those that a
///    program makes become a step of undo then.
/// 3. Only the rows in sight have widgets.
/// 4. Handlers of the panel's and the view's events may destroy both.
///
/// Keys are those of the commands (`PanelCommands`). The commands are actions, too (`GetAction`), named like them.
class TOLVI_WIDGETS_API TJQueryPanelView : public QAbstractScrollArea {
  Q_OBJECT
  Q_PRIVATE_PROPERTY(FAppearance,
                     QColor linkWordColor READ GetLinkWordColor WRITE SetLinkWordColor RESET ResetLinkWordColor)
  Q_PRIVATE_PROPERTY(FAppearance, QColor fieldColor READ GetFieldColor WRITE SetFieldColor RESET ResetFieldColor)
  Q_PRIVATE_PROPERTY(FAppearance,
                     QColor operatorColor READ GetOperatorColor WRITE SetOperatorColor RESET ResetOperatorColor)
  Q_PRIVATE_PROPERTY(FAppearance, QColor valueColor READ GetValueColor WRITE SetValueColor RESET ResetValueColor)
  Q_PRIVATE_PROPERTY(FAppearance,
                     QColor parameterColor READ GetParameterColor WRITE SetParameterColor RESET ResetParameterColor)
  Q_PRIVATE_PROPERTY(FAppearance, QFont linkWordFont READ GetLinkWordFont WRITE SetLinkWordFont RESET ResetLinkWordFont)
  Q_PRIVATE_PROPERTY(FAppearance, QFont fieldFont READ GetFieldFont WRITE SetFieldFont RESET ResetFieldFont)
  Q_PRIVATE_PROPERTY(FAppearance, QFont operatorFont READ GetOperatorFont WRITE SetOperatorFont RESET ResetOperatorFont)
  Q_PRIVATE_PROPERTY(FAppearance, QFont valueFont READ GetValueFont WRITE SetValueFont RESET ResetValueFont)
  Q_PRIVATE_PROPERTY(FAppearance,
                     QFont parameterFont READ GetParameterFont WRITE SetParameterFont RESET ResetParameterFont)
  Q_PRIVATE_PROPERTY(FAppearance, int leftMargin READ GetLeftMargin WRITE SetLeftMargin)
  Q_PRIVATE_PROPERTY(FAppearance, int topMargin READ GetTopMargin WRITE SetTopMargin)
  Q_PRIVATE_PROPERTY(FAppearance, int rowSpace READ GetRowSpace WRITE SetRowSpace)
  Q_PRIVATE_PROPERTY(FAppearance, int elemSpace READ GetElemSpace WRITE SetElemSpace)
  Q_PRIVATE_PROPERTY(FAppearance, int indent READ GetIndent WRITE SetIndent)
  Q_PRIVATE_PROPERTY(FAppearance, tolvi::TQPAppearance::TQPAppearanceOptions options READ GetOptions WRITE SetOptions)
  Q_PROPERTY(QStringList commandTitles READ GetCommandTitleLines WRITE SetCommandTitleLines)
  Q_PROPERTY(bool allowLocking READ GetAllowLocking WRITE SetAllowLocking)

 public:
  explicit TJQueryPanelView(QWidget* parent = nullptr);
  ~TJQueryPanelView() override;

  /// Null once the panel is destroyed.
  TJQueryPanel* GetQueryPanel() const { return FPanel.Get(); }
  /// History begins with the query as it is.
  void SetQueryPanel(TJQueryPanel* panel);
  /// What the user does with the panel, for programs; null without a panel.
  TPanelEditor* GetEditor() const { return FEditor.get(); }

  TQPAppearance& GetAppearance() const { return *FAppearance; }
  void SetAppearance(const TQPAppearance& appearance) { FAppearance->Assign(appearance); }
  /// Texts of the commands; those of the sentences are the panel's titles.
  const TCommandTitles& GetCommandTitles() const { return FCommandTitles; }
  void SetCommandTitles(const TStrings& lines);
  /// Only the texts that are not the default ones, without a section.
  QStringList GetCommandTitleLines() const;
  void SetCommandTitleLines(const QStringList& lines);
  /// Whether users may lock and unlock rows. Default false.
  bool GetAllowLocking() const { return FAllowLocking; }
  void SetAllowLocking(bool allow);

  /// The user wants to change a value that the field's editor leaves to the host, which sets it in the condition.
  std::function<void(TJQueryPanelView& sender, TFilterCond& condition, int index)> OnCustomEdit;
  /// The user wants to change a sub-query. Without a handler a dialog with a panel of its own opens.
  std::function<void(TJQueryPanelView& sender, TFilterCond& condition, int index)> OnEditSubQuery;
  /// A list fetched by SQL is to be opened. The handler fills the editor (`TDSSQLEditor::SetOpened`), now or later, and
  /// then calls `done`, in the thread of the view, with an empty text or why it could not; until then the list shows
  /// that it is busy. Without a handler the list is fetched at once, and the program waits.
  std::function<void(TJQueryPanelView& sender, TDSSQLEditor& editor, std::function<void(const QString& fault)> done)>
      OnFetchItems;
  /// What the user tried cannot be done. Without a handler a message box says why.
  std::function<void(TJQueryPanelView& sender, const QString& message)> OnError;

  /// The action of a command, for tool bars and menus of the host.
  QAction& GetAction(TPanelCommand command) const { return FActions->Get(command); }
  /// Runs a command for the current row; see `tolvi::RunCommand` for the argument. False when that is not possible.
  bool RunCommand(TPanelCommand command, int argument = -1);
  /// Makes a change of the row as a step of undo; not for a row that cannot be edited. Errors go to `OnError`.
  void Edit(TFilterRow& row, const std::function<void()>& change);

  /// Lets the user edit the panel's titles (`T_dlgTitlesEdit`); whether OK was chosen.
  bool EditTitles();
  /// Tells the user why the statement could not be built (`OnError`). For an `EQueryRowError` the row becomes the
  /// current one, with the focus on the value at fault, and the message begins with the row's sentence.
  void ReportError(const std::exception& error);

  /// Shows what has changed since the last time.
  void ShowChanges();
  /// Scrolls until the row can be seen, and puts the focus on one of its parts (`TQPRow`).
  void FocusRow(TFilterRow& row, int part);
  /// The widget of a row; null for a row that is not in sight.
  TQPRow* RowWidget(const TFilterRow& row) const;
  /// The number of rows that have widgets.
  std::size_t GetRowWidgetCount() const { return FWidgets.size(); }
  TLinkLabel& GetAddRowLabel() const { return *FAddLabel; }
  QSize sizeHint() const override;

  // For the parts of the view.
  struct TPlacedRow {
    TFilterRow* Row;
    int Level;
  };
  const std::vector<TPlacedRow>& Rows() const { return FRows; }
  const TQPMetrics& Metrics() const { return FMetrics; }
  const TFieldNames& Names();
  /// The fields for conditions, by groups; the value is the ID.
  const std::vector<TDropDownItem>& FieldItems();
  void ShowError(const QString& message);
  void ToggleCollapsed(TFilterRow& bracket);
  /// Fills the list of the editor; `done` gets why that failed, or an empty text, and may do nothing.
  void FetchItems(TDSSQLEditor& editor, const std::function<void(const QString& fault)>& done);
  void EditCustom(TFilterCond& condition, int index);
  void EditSubQuery(TFilterCond& condition, int index);
  void EditValueList(TFilterCond& condition, int index);
  void OpenRowMenu(TQPRow& row, const QPoint& globalPos);
  void OpenValueMenu(TQPRow& row, int index, const QPoint& globalPos);
  void OpenAddMenu();
  /// The row with the part that has the focus; null for none.
  TQPRow* FocusedRow() const;
  TQPDrag& Drag() const { return *FDrag; }
  /// The view's y of a row's upper edge; the index of the row at y (the number of rows below the last).
  int TopOfRow(std::size_t index) const;
  std::size_t RowAt(int y) const;
  std::ptrdiff_t IndexOfRow(const TFilterRow& row) const;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  class TSink;

  void PanelGone();
  void Schedule();
  void ReleaseWidgets(const TFilterRow* within);
  void CollectRows();
  void Measure();
  qsizetype DigitsOfRows() const;
  void PlaceRows();
  void PlaceAddLabel();
  // The model; what is kept of another one, or of an earlier revision, is dropped.
  TJCustomDBStructure* SeenModel();
  void UpdateScrollBars();
  void RestoreFocus();
  void BringIntoView(std::size_t index);
  bool HasFocusInside() const;
  TFilterRow* TargetRow() const;
  int TargetValue() const;
  void UpdateActions();
  bool RunViewCommand(TPanelCommand command, int argument);
  bool GoToRow(TPanelCommand command);
  bool GoToPart(bool next, bool beyond);
  bool LeaveByTab(bool next);
  bool RunKey(QKeyEvent& event);
  void FocusPart(TQPRow& row, int part);
  void PartFocused(TQPRow& row, int part);
  void OpenMenu(const TPanelMenu& items, std::uint64_t serial, const QPoint& globalPos);
  TFilterRow* RowBySerial(std::uint64_t serial) const;
  // False when there is no such row, or no longer after the events that this fires.
  bool MakeCurrent(TFilterRow* row);

  std::unique_ptr<TSink> FSink;
  TRef<TJQueryPanel> FPanel;
  std::unique_ptr<TPanelEditor> FEditor;
  // Another number for each panel.
  int FSession = 0;
  std::unique_ptr<TQPAppearance> FAppearance;
  TCommandTitles FCommandTitles;
  bool FAllowLocking = false;
  TQPActions* FActions;
  TLinkLabel* FAddLabel;
  TQPDrag* FDrag;

  // The rows to be seen, up to date unless `FRowsStale`; the widgets of those in sight by their serial numbers.
  std::vector<TPlacedRow> FRows;
  std::unordered_map<std::uint64_t, TQPRow*> FWidgets;
  TQPMetrics FMetrics;
  bool FRowsStale = true, FMeasured = false, FPosted = false, FShowing = false, FReleasing = false,
       FBringCurrent = false;
  // The serial number of the row that came last, and the part of the current row that has, or had, the focus.
  std::uint64_t FNewRow = 0;
  int FPart = 0, FContentWidth = 0;
  // Of the row numbers for which there is room.
  qsizetype FDigits = 0;
  // What is kept of the model, of which revision of which model it is.
  std::unique_ptr<TFieldNames> FNames;
  std::optional<std::vector<TDropDownItem>> FFieldItems;
  TRef<TJCustomDBStructure> FSeenModel;
  std::uint64_t FSeenRevision = 0;
};

}  // namespace tolvi
