#pragma once

#include <QIcon>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <tolvi/foundation/components.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/store/storedqueries.h>
class QAction;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QListView;
class QMenu;
class QTimer;
class QToolButton;

namespace tolvi {

class TNameEditor;
class TStoreModel;
class TStoreNote;

/// The queries of a store: searched, chosen, named, described, copied, put in order. The one chosen in the list becomes
/// the current query of the base, which brings it into the views that are linked to the base.
///
/// Changes of the base are shown from the event loop; keys and menus work on the newest state always.
class TStorePane final : public QWidget {
  Q_OBJECT

 public:
  explicit TStorePane(QWidget* parent = nullptr);
  ~TStorePane() override;

  /// Not owned; null, the default, for none. When the base goes, so do its queries from the list.
  TJStoredQueryBase* GetQueryBase() const;
  void SetQueryBase(TJStoredQueryBase* base);
  /// What conflicts are explained with; not owned, may be null: then texts are shown as they are. Default null.
  void SetDBStruct(TJCustomDBStructure* model);

  /// Whether the current query has changes that are not stored. Default false.
  bool GetModified() const;
  void SetModified(bool modified);

  /// The user's own order: IDs, also of queries that are in another store. Queries that it does not name come at the
  /// end, by name. Default empty.
  QStringList GetOrder() const;
  void SetOrder(const QStringList& ids);

  /// Asks whether the query in the views may be left; the host offers to save it, or says no. Default: yes.
  std::function<bool()> OnMayLeave;
  /// The text of the query in the views, with its changes, for copying it. Default: `NeedContent` of the base, for
  /// which a query panel gives up being `Modified`.
  std::function<TStrings()> OnShownText;
  /// The user has put the queries in another order, or one of them has got another ID.
  std::function<void()> OnOrderChange;
  /// What could not be done, for people. Without a handler, it is shown in the pane.
  std::function<void(const QString& words)> OnError;
  /// The views show another text than before though the query is the same one, or the store has it now: the user has
  /// settled a conflict.
  std::function<void()> OnSettled;

  /// "store.new", ".rename", ".duplicate", ".delete", ".describe", ".refresh", ".copy", ".paste", ".up", ".down": for
  /// menus. Null for another name.
  QAction* Action(const QString& name) const;
  QLineEdit& SearchLine() const;
  QListView& List() const;

  /// What the actions do.
  void NewQuery();
  void Rename();
  void Duplicate();
  void Erase();
  void Describe();
  void Refresh();
  void CopyText();
  void PasteText();
  /// Moves the selected query by one place.
  void MoveUp() { Move(-1); }
  void MoveDown() { Move(1); }
  /// What is wrong, as a note that the user can close.
  void ShowNote(const QString& words);

 private:
  class TLink;
  friend class TLink;
  /// A query that was deleted, and the order of the list before.
  struct TErased {
    QString Id;
    std::string Name;
    TStrings Text;
    QStringList Order;
  };

  void MakeActions();
  QAction* AddAction(const char* name, const QString& text, const QIcon& icon, const QKeySequence& key,
                     void (TStorePane::*run)());
  QToolButton* MakeButton(QAction* action);
  void MakeTools();
  void MakeList();
  void ShowMenu(const QPoint& at);
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool SearchKey(const QKeyEvent& key);

  void Move(int step);

  // Changes of the base are gathered and shown at once, soon or now.
  void NeedRead();
  // The same where only the current query is another one.
  void NeedSync();
  void Sync();
  QString EmptyText() const;
  void ShowEnabled();
  void IdsChanged(TQBOperation operation, int index);
  void IdChanged(int index);
  // The query that is selected, by its number in the base; -1 for none.
  int SelectedIndex();
  int IndexOfId(const QString& id) const;
  void SelectId(const QString& id);
  // Makes the selected query the current one, unless the user wants to stay; `Soon` waits for the last of several keys.
  void ActivateSoon();
  void Activate();
  bool MayLeave();
  void Show(int index);

  // Runs what may fail; false when it did, which is told.
  bool Try(const std::function<void()>& run);
  // The same with a change of a query of the store: asks what to do when somebody else has changed it, too.
  bool TryOn(int index, const std::function<void(int index)>& run,
             bool (TStorePane::*settle)(int, const EQueryConflictError&) = &TStorePane::Settle);
  // True to do it again.
  bool Settle(int index, const EQueryConflictError& conflict);
  bool SettleErasing(int index, const EQueryConflictError& conflict);
  void TellError(const QString& words);
  // The text of a query, as the views show it or as it is stored.
  TStrings TextOf(int index);
  bool CanBeRead(int index);
  std::string FreeName(const QString& name, const std::function<QString(int number)>& next) const;
  int Add(const std::string& name, const TStrings& text, const QString& behind = {});
  QString TakeName(const QString& id, const QString& name);
  // Offers to bring back what was deleted last, then what was before it.
  void ShowErased();
  void BringBack();
  // In the orders of before: a query that was brought back, or renamed, may have another ID.
  void ReplaceErasedId(const QString& former, const QString& id);
  void PutInOrder(const QString& id, const TErased& erased);

  std::unique_ptr<TLink> FLink;
  TRef<TJCustomDBStructure> FModel;
  TStoreModel* FRows;
  QLineEdit* FSearch;
  QListView* FList;
  QLabel* FEmpty;
  TStoreNote* FNote;
  QHBoxLayout* FTools;
  QMenu* FMenu;
  QPointer<TNameEditor> FNameEditor;
  QString FEditedId;
  // As long as the note about them is open.
  std::vector<TErased> FErased;
  QTimer *FSyncTimer, *FActivateTimer;
  // The IDs of the base's queries, to notice when one changes.
  QStringList FIds;
  bool FNeedsRead = true, FSyncing = false, FPressed = false, FAsking = false;
};

}  // namespace tolvi
