#pragma once

#include <QAction>
#include <QFrame>
#include <QImage>
#include <QPointer>
#include <QStringList>
#include <QVariantAnimation>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include <tolvi/foundation/components.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/panel/stdsgeometry.h>
#include <tolvi/panel/stdshints.h>
#include <tolvi/ui/api.h>
#include <tolvi/ui/panels/stdsarea.h>
#include <tolvi/ui/panels/stdslink.h>
#include <tolvi/ui/panels/stdstable.h>

class QLabel;
class QMenu;
class QPainter;
class QPrinter;
class QToolButton;

namespace tolvi {

class TDesignGestures;
class TJStructDesignPanel;

/// The adding of a link has ended; `newLink` is null when it was cancelled.
using TAddLinkFinishEvent = std::function<void(TJStructDesignPanel& sender, TLinkRep* newLink)>;
using TDesignEvent = std::function<void(TJStructDesignPanel& sender)>;

/// The tables of a model as boxes, and its links as lines between the linked fields: the developer selects tables and
/// links, moves and adds them.
///
/// 1. The boxes' places are those that the model stores. When a table has none, all are placed in rows; the model hears
///    of that with the first edit, looking at it changes nothing.
/// 2. Every edit is one step that can be undone, of the history given by `SetEditor`, else of the panel's own.
/// 3. Fields are those of the model's database information while that is connected.
/// 4. The panel follows the model: what others add, change and delete there shows at once. New tables are placed by
///    themselves.
/// 5. Handlers may destroy the panel.
///
/// Mouse: a box is moved by its title and sized by its edges, several at once after a rubber band or clicks with Ctrl;
/// a field dragged onto a field of a box adds a link; the wheel scrolls the fields under it, with Ctrl it zooms. Keys:
/// Tab goes through the boxes; arrows move them, by single pixels with Ctrl, and size them with Shift; PageUp and
/// PageDown scroll the fields, with Ctrl they go through the links; Enter edits the link, Delete deletes what was
/// selected last; while a link is added, Up and Down choose a field and Enter takes it. The menu has the other keys.
class TOLVI_WIDGETS_API TJStructDesignPanel final : public QFrame, private TDSListener {
  Q_OBJECT
  Q_PROPERTY(bool showActionHints READ GetShowActionHints WRITE SetShowActionHints)
  Q_PROPERTY(bool showFullScreenButton READ GetShowFullScreenButton WRITE SetShowFullScreenButton)
  Q_PROPERTY(bool showMinimap READ GetShowMinimap WRITE SetShowMinimap)
  Q_PROPERTY(QStringList actionHints READ GetActionHintLines WRITE SetActionHintLines)

 public:
  explicit TJStructDesignPanel(QWidget* parent = nullptr);
  ~TJStructDesignPanel() override;

  /// Keys that come to the design area; a handler that returns true has taken the key.
  std::function<bool(TJStructDesignPanel& sender, QKeyEvent& key)> OnKeyPress;
  TDesignEvent OnAddLinkStart, OnSelectTable, OnSelectLink;
  TAddLinkFinishEvent OnAddLinkFinish;
  /// What the user tried cannot be done. Without a handler a message box says why.
  std::function<void(TJStructDesignPanel& sender, const QString& message)> OnError;

  // What is shown

  /// The model, not owned; null once it is destroyed. Setting another one deactivates.
  TJCustomDBStructure* GetDBStruct() const { return FDBStruct.Get(); }
  void SetDBStruct(TJCustomDBStructure* dbStruct);
  /// A history to share with other editors of its model, not owned; it must live as long as the panel shows that. Null:
  /// a history of the panel's own.
  void SetEditor(TModelEditor* editor);

  /// Default false. Activating makes boxes and lines, and the first of each the active one; without a model it raises
  /// `EStructureDesignError` "Structure is not specified". Deactivating takes them away.
  bool GetActive() const { return FActive; }
  void SetActive(bool active);
  void Activate();
  void Deactivate();

  const TTableRepList& GetTablesRep() const { return FTablesRep; }
  const TLinkRepList& GetLinksRep() const { return FLinksRep; }
  /// Whether every table had a stored place when the panel was activated.
  bool GetDesignPositionsDefined() const { return FDesignPositionsDefined; }
  /// Null when there is none.
  TTableRep* FindTblRepByDSTable(const TDSTable* table) const;
  TLinkRep* FindLinkRepByDSLink(const TDSLink* link) const;

  /// The box, the line that commands work on; null for none. Setting fires `OnSelectTable`, `OnSelectLink`.
  TTableRep* GetActiveTable() const { return FActiveTable; }
  void SetActiveTable(TTableRep* box);
  TLinkRep* GetActiveLink() const { return FActiveLink; }
  void SetActiveLink(TLinkRep* link);
  /// The line under the mouse.
  TLinkRep* GetCurrentLink() const { return FCurrentLink; }
  /// The boxes that are moved together.
  std::vector<TTableRep*> ChosenBoxes() const;
  void ChooseOnly(TTableRep* box);

  // Edits. Those that cannot be done do nothing.

  /// Lets the user choose tables of the catalogue; the new ones are placed beside the others, the last one becomes the
  /// active table. `autoAddFields` is what the dialog begins with. Whether OK was chosen.
  bool AddTablesDlg(TSimpleDSTableList& newTables, bool autoAddFields);
  bool AddTablesDlg();
  /// Deletes the table from the model, with its links and data fields; the next box becomes the active one, else the
  /// previous one. Users are asked first, programs are not.
  void DeleteActiveTable();

  /// Begins to add a link: the user clicks a field in one box, then a field in another one, and edits the link.
  void StartAddLink();
  void CancelAddLink();
  TAddLinkStage GetAddLinkStage() const { return FAddLinkStage; }
  TLinkRep* GetNewLink() const { return FNewLink.get(); }
  bool EditActiveLink();
  void DeleteActiveLink();

  /// Sets and stores places; one step.
  void MoveBoxes(const std::vector<std::pair<TTableRep*, TDesignRect>>& places, const QString& stepName);
  /// Places all boxes in rows, as wide as the panel.
  void RearrangeTables();
  /// Places linked tables near each other, so that few lines cross.
  void LayOutByLinks();
  /// Makes the chosen boxes as high as their fields need.
  void FitHeights();
  void SetArrangeSettings(const TArrangeSettings& settings) { FArrange = settings; }

  void Undo();
  void Redo();

  /// Takes boxes and lines off the area; the model stays.
  void Clear();
  /// Finds the ends of all lines anew.
  void InvalidateLinks();
  /// Asks the catalogue for the fields again.
  void RefreshFields();

  // The view

  TJDesignArea& DesignArea() const { return *FDesignArea; }
  double GetZoom() const { return FDesignArea->GetZoom(); }
  void SetZoom(double zoom) { FDesignArea->SetZoom(zoom); }

  /// A line below the area that says what a click does. Default false.
  bool GetShowActionHints() const { return FStaticText != nullptr; }
  void SetShowActionHints(bool show);
  QString GetActionHint() const;
  /// Lines "key=text": "SelectTableHint", "SelectLinkHint", "IdleHint", "AddLinkStage1Hint", "AddLinkStage2Hint". Keys
  /// that are missing or empty keep the default text, others are dropped.
  const TStrings& GetActionHints() const { return FActionHints; }
  void SetActionHints(const TStrings& hints);
  QStringList GetActionHintLines() const;
  void SetActionHintLines(const QStringList& lines);

  /// A button in the corner of the area. Default false.
  bool GetShowFullScreenButton() const { return FShowFullScreenButton; }
  void SetShowFullScreenButton(bool show);
  /// Shows the panel's content in a window that covers the screen; Escape or the button bring it back.
  bool GetFullScreenMode() const { return FMaxForm != nullptr; }
  void SetFullScreenMode(bool on);
  bool GetShowMinimap() const { return FDesignArea->GetShowMinimap(); }
  void SetShowMinimap(bool show) { FDesignArea->SetShowMinimap(show); }

  // Pictures: all of the diagram, whatever is seen of it

  /// At that many pixels for one of the content, less where it would be larger than pictures can be.
  QImage ToImage(double scale = 1);
  void CopyPicture();
  /// Writes PNG, SVG or PDF, by the end of the name. Raises `EStructureDesignError` when the file cannot be written or
  /// the end is another one.
  void ExportTo(const QString& file, double scale = 1);
  /// On as many pages as keep it readable.
  void Print(QPrinter& printer);
  void PrintPreview();

  /// The commands, for menus and tool bars of hosts; enabled by what is possible.
  QList<QAction*> GetActions() const { return FActions; }
  QAction* GetAction(const QString& name) const;

 protected:
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  friend class TDesignGestures;

  // The model.
  void ModelChanged() override;
  void TablesChanging() override;
  void StructureClearing() override;
  void StructureLoaded() override;
  bool EditModel(const QString& name, const std::function<void()>& edit);
  // A step that goes on for a while; it is ended at the latest when the panel lets go of the model.
  void BeginStep(const QString& name);
  void EndStep();
  void CancelStep();
  bool ShowLinkDialog(TDSLink& link);
  void Sync();
  void SyncWhenStale();
  void StorePlaces();
  void Step(void (TModelEditor::*step)());
  void Guarded(const std::function<void()>& operation);
  // Events come when an operation is complete: their handlers may destroy the panel.
  class THeldEvents {
   public:
    explicit THeldEvents(TJStructDesignPanel& panel) : FPanel(&panel) { ++panel.FHeldEvents; }
    THeldEvents(const THeldEvents&) = delete;
    THeldEvents& operator=(const THeldEvents&) = delete;
    ~THeldEvents() {
      if (FPanel && --FPanel->FHeldEvents == 0) FPanel->FireHeldEvents();
    }

   private:
    const QPointer<TJStructDesignPanel> FPanel;
  };
  void FireHeldEvents();

  // Boxes and lines.
  void BuildReps();
  void Remember();
  void PlaceBoxes();
  TTableRep& AddBox(TDSTable& table);
  void FillFieldsList(TTableRep& box);
  void AddLinks();
  void DropLink(std::size_t index);
  void DropBox(std::size_t index);
  void RefreshLinkedMarks();
  void PlaceNewBox(TTableRep& box);
  void BoxMoved(TTableRep& box);
  void ContentChanged();
  void ArrangeAll();
  void GoTo(const std::vector<TDesignPoint>& places, const QString& stepName);
  void StopAnimation();
  std::vector<TDesignSize> BoxSizes() const;
  bool IsConnected() const;

  // Adding a link.
  void FirstFieldClick(TTableRep& box);
  void SecondFieldClick(TTableRep& box);
  void FinishAddLink(TLinkRep* added);
  void BindFieldClicks();

  // The view.
  void SetCurrentLink(TLinkRep* link);
  void ShowHint(TDesignTarget target);
  void BuildActions();
  QAction* ActionOf(const QKeyEvent& key) const;
  void RefreshActions();
  void ShowActions();
  void OpenMenu(QPoint globalPos, QPoint inViewport, bool byKey);
  void ShowMenu(const char* first, const char* second, QPoint globalPos);
  void AskToDelete();
  QRectF PictureRect();
  void PaintAll(QPainter& painter, const QRectF& target, const QRectF& source);
  void ExportByDialog();
  void PlaceMaxButton();
  void RefreshAccessibleText();

  TRef<TJCustomDBStructure> FDBStruct;
  TModelEditor* FEditor = nullptr;
  std::unique_ptr<TModelEditor> FOwnEditor;
  QPointer<QWidget> FMaxForm;
  QWidget* FMaxPanel;
  TJDesignArea* FDesignArea;
  QLabel* FStaticText = nullptr;
  QToolButton* FMaxButton;
  TDesignStyle FStyle;
  TTableRepList FTablesRep;
  TLinkRepList FLinksRep;
  std::unordered_map<const TDSTable*, TTableRep*> FBoxOf;
  std::unordered_map<const TTableRep*, std::vector<TLinkRep*>> FLinksOf;
  TLinkRep* FCurrentLink = nullptr;
  TTableRep* FActiveTable = nullptr;
  TLinkRep* FActiveLink = nullptr;
  // Declared before the line that refers to it.
  std::unique_ptr<TDSLink> FNewDSLink;
  std::unique_ptr<TLinkRep> FNewLink;
  TAddLinkStage FAddLinkStage = alsIdle;
  TStrings FActionHints = DefaultActionHints();
  TArrangeSettings FArrange;
  std::unique_ptr<TDesignGestures> FGestures;
  QPointer<QVariantAnimation> FAnimation;
  QList<QAction*> FActions;

  // What boxes looked like before the model was exchanged, by alias.
  struct TMemory {
    std::size_t TopIndex = 0;
    bool Chosen = false;
  };
  std::map<std::string, TMemory, std::less<>> FMemory;
  // Where boxes stand whose tables have no stored place, by alias.
  std::map<std::string, TDesignRect, std::less<>> FUnstored;
  std::string FActiveAlias;
  std::ptrdiff_t FActiveLinkIndex = -1;

  int FHeldEvents = 0;
  bool FTableEventDue = false, FLinkEventDue = false, FFinishEventDue = false;
  TLinkRep* FFinishedLink = nullptr;
  int FOpenSteps = 0;
  // A dialog that edits a link goes with the link.
  QPointer<QWidget> FLinkDialogParent;
  bool FActive = false, FDesignPositionsDefined = false, FShowFullScreenButton = false;
  bool FStale = false, FMoving = false, FArrangeWhenShown = false, FLinkSelectedLast = false, FCatalogueFails = false,
       FActionsDue = false;
};

}  // namespace tolvi
