#pragma once

#include <QMenu>
#include <QScrollArea>
#include <QStringList>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include <tolvi/foundation/components.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/resultfields.h>
#include <tolvi/query/titles.h>
#include <tolvi/ui/api.h>
#include <tolvi/ui/dialogs/rfldedlg.h>
#include <tolvi/ui/panels/linklabel.h>
#include <tolvi/ui/panels/rfldappearance.h>
#include <tolvi/ui/panels/rfldrow.h>

namespace tolvi {

class TJResultFieldsPanel;

using TRFPanelChangeEvent = std::function<void(TJResultFieldsPanel& sender)>;

/// The columns of a query, one row a column: the user adds, deletes and moves them, and chooses field and sorting. The
/// panel edits a list of columns of its own, over a model that it is given.
///
/// 1. A new model means a new, empty list; the rows stay as they are until they are refreshed.
/// 2. Every change by the user, and `ClearAll`, ends in `OnChange`. Changes that its handler makes fire nothing. The
///    handler may destroy the panel.
/// 3. Rows count from 0 here, from 1 on the screen.
///
/// Keys: Tab, Left and Right go through the elements of a row, Up, Down, Home and End from row to row; Space, Enter or
/// the menu key open the row menu on a button; Delete deletes the row, Alt+Up and Alt+Down on its button move it.
class TOLVI_WIDGETS_API TJResultFieldsPanel final : public QScrollArea, private TDSListener {
  Q_OBJECT
  Q_PROPERTY(QStringList titles READ GetTitleLines WRITE SetTitleLines)
  Q_PRIVATE_PROPERTY(FAppearance, int leftMargin READ GetLeftMargin WRITE SetLeftMargin)
  Q_PRIVATE_PROPERTY(FAppearance, int topMargin READ GetTopMargin WRITE SetTopMargin)
  Q_PRIVATE_PROPERTY(FAppearance, int rowSpace READ GetRowSpace WRITE SetRowSpace)
  Q_PRIVATE_PROPERTY(FAppearance, int elemSpace READ GetElemSpace WRITE SetElemSpace)
  Q_PRIVATE_PROPERTY(FAppearance, QColor sortColor READ GetSortColor WRITE SetSortColor RESET ResetSortColor)
  Q_PRIVATE_PROPERTY(FAppearance, QColor fieldColor READ GetFieldColor WRITE SetFieldColor RESET ResetFieldColor)
  Q_PRIVATE_PROPERTY(FAppearance, tolvi::TRFPAppearance::TRFPAppearanceOptions options READ GetOptions WRITE SetOptions)
  Q_PRIVATE_PROPERTY(FAppearance, QString nameSeparator READ GetNameSeparator WRITE SetNameSeparator)

 public:
  explicit TJResultFieldsPanel(QWidget* parent = nullptr);
  ~TJResultFieldsPanel() override;

  TRFPanelChangeEvent OnChange;
  /// What the user tried cannot be done. Without a handler a message box says why.
  std::function<void(TJResultFieldsPanel& sender, const QString& message)> OnError;

  /// The model, not owned; null once it is destroyed. Setting another one discards the columns.
  TJCustomDBStructure* GetDBStruct() const { return FDBStruct.Get(); }
  void SetDBStruct(TJCustomDBStructure* dbStruct);

  /// The columns, owned; null without a model. Whoever changes them refreshes the panel.
  TRFieldList* GetResultFields() const { return FResultFields.get(); }
  /// Copies the columns, and shows them. Raises `ERFPanelError` "DBStructure is not specified" without a model.
  void SetResultFields(const TRFieldList& fields);

  /// The texts, lines "key=text". Setting starts from the default texts: missing and empty ones keep these, unknown
  /// keys are dropped. In a list with sections the panel's is "[Result Fields Panel]". Rows and menu take the texts
  /// when they are made.
  const TStrings& GetTitles() const { return FTitles; }
  void SetTitles(const TStrings& titles);
  QString GetTitle(std::string_view key) const;
  /// Lets the user edit them; whether OK was chosen.
  bool EditTitles();
  void SetTitle(std::string_view key, const QString& text) { FTitles.SetValue(key, text.toStdString()); }
  /// Only the texts that are not the default ones. Setting shows them at once.
  QStringList GetTitleLines() const;
  void SetTitleLines(const QStringList& lines);

  TRFPAppearance& GetAppearance() const { return *FAppearance; }
  void SetAppearance(const TRFPAppearance& appearance) { FAppearance->Assign(appearance); }

  /// Whether the user can edit. Default false. Activating raises `ERFPanelError` "DBStructure is not specified" without
  /// a model. Deactivating hides what can be clicked.
  bool GetActive() const { return FActive; }
  void SetActive(bool active);
  void Activate();
  void Deactivate();

  TResultFieldRows& GetRows() { return FRows; }
  const TResultFieldRows& GetRows() const { return FRows; }
  /// Null when there is none. The current row is the one whose button was clicked last.
  TResultFieldRow* GetCurrentRow() const { return FCurrentRow; }
  TResultFieldRow* GetFirstRow() const { return FRows.Empty() ? nullptr : &FRows[0]; }
  TResultFieldRow* GetLastRow() const { return FRows.Empty() ? nullptr : &FRows[FRows.Count() - 1]; }
  /// Whether the rows are being made anew from the columns.
  bool GetRefreshing() const { return FRefreshing; }

  /// Lets the user edit the columns in a dialog; whether OK was chosen. After a change the rows are made anew and
  /// `OnChange` is fired once. Raises `ERFPanelError` "DBStructure is not specified" without a model. Users get there
  /// with Ctrl+E, and by the menu that the right mouse button opens below the rows.
  bool EditFields();
  /// The texts of the dialog are those of "[Result Fields Editor]". Default: English.
  const TTitles& GetEditorTitles() const { return FEditorTitles; }
  void SetEditorTitles(const TTitles& titles) { FEditorTitles = titles; }
  /// The dialog's help button is clicked; without a handler there is none.
  TRFHelpEvent OnEditorHelp;

  /// Makes the rows anew from the columns. The focus stays at its place.
  void Refresh();
  void ClearAll();
  /// A new column at the end, as `AppendResultField` makes it, with its errors.
  void AddEmptyRow();
  void DeleteRow(std::size_t index);
  /// Moves the row and its column; the sorted columns then sort in the order of the rows.
  void MoveRow(std::size_t from, std::size_t to);
  /// Places the rows from that one on, and the label that appends a row.
  void PlaceRows(std::size_t from);

  /// The row menu: actions with the numbers 2 (delete), 3 (move up), 4 (move down) as data. Null before activation.
  QMenu* GetRowMenu() const { return FRowPopup; }
  TLinkLabel& GetAddRowLabel() const { return *FAddRowLabel; }

 protected:
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  friend class TResultFieldRow;

  // For the rows.
  void Changed();
  void RowEdited(TResultFieldRow& row, TRFRowPart part);
  void OpenPanelMenu(const QPoint& globalPos);
  void RowButtonClick(TResultFieldRow& row);
  void PutAt(QWidget& widget, TRFPoint place, int width, int height);
  const std::vector<TDropDownItem>& FieldItems();

  void FieldRemoved(TDSField& field) override;
  void StructureClearing() override;
  void StructureLoaded() override;
  void ModelChanged() override;
  void HoldColumns();

  void ClearRows();
  void RefreshFieldsList();
  void BuildRowMenu();
  void ReleaseRowMenu();
  void MenuItemClick(TRFMenuTag tag);
  void ShowAddRowLabel();
  void ArrangeAll();
  void ChainTabs(std::size_t from);
  void FitContent();
  void Mirror();
  bool HasFocusElsewhere() const;
  void FocusPart(QWidget& part);
  std::optional<std::pair<std::size_t, TRFRowPart>> FocusedPlace() const;
  void FocusRow(std::size_t index);
  bool MoveFocus(int key);
  bool EditByKey(const QKeyEvent& event);
  void Guarded(const std::function<void()>& operation);

  TRef<TJCustomDBStructure> FDBStruct;
  std::unique_ptr<TRFieldList> FResultFields;
  std::unique_ptr<TRFPAppearance> FAppearance;
  TTitles FEditorTitles;
  TStrings FTitles;
  TResultFieldRows FRows;
  TResultFieldRow* FCurrentRow = nullptr;
  QMenu* FRowPopup = nullptr;
  TLinkLabel* FAddRowLabel;
  bool FActive = false, FRefreshing = false, FInsideEventHandler = false, FColumnsHeld = false, FMenuItemRuns = false;
  // The content's width for which its widgets are placed where they mirror.
  int FMirroredWidth = 0;
  std::vector<TDropDownItem> FFieldItems;
  std::uint64_t FFieldItemsRevision = 0;
};

}  // namespace tolvi
