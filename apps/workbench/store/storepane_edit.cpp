#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPointer>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <exception>
#include <optional>
#include <utility>

#include "apps/workbench/store/conflictdlg.h"
#include "apps/workbench/store/nameeditor.h"
#include "apps/workbench/store/storedelegate.h"
#include "apps/workbench/store/storemodel.h"
#include "apps/workbench/store/storenote.h"
#include "apps/workbench/store/storepane.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/queryhead.h>
#include <tolvi/ui/dialogs/askbox.h>
#include <tolvi/ui/qtext.h>

// What is done with queries.

namespace tolvi {
namespace {

/// The description that the user wants; nothing for giving up.
std::optional<QString> AskDescription(QWidget& parent, const QString& name, const QString& description) {
  constexpr int Columns = 60, Lines = 12;
  const QPointer<QDialog> dialog = new QDialog(&parent);
  dialog->setObjectName(QStringLiteral("store.description"));
  dialog->setWindowTitle(TStorePane::tr("Description of “%1”").arg(name));
  auto* text = new QPlainTextEdit(description, dialog);
  text->setObjectName(QStringLiteral("store.descriptionText"));
  text->setTabChangesFocus(true);
  text->selectAll();
  auto* label = new QLabel(TStorePane::tr("&What the query answers, for those who look for it:"), dialog);
  label->setBuddy(text);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
  auto* done = new QShortcut(Qt::CTRL | Qt::Key_Return, dialog);
  QObject::connect(done, &QShortcut::activated, dialog.data(), &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog.data(), &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog.data(), &QDialog::reject);
  auto* layout = new QVBoxLayout(dialog);
  layout->addWidget(label);
  layout->addWidget(text, 1);
  layout->addWidget(buttons);
  dialog->resize(Columns * text->fontMetrics().averageCharWidth(), Lines * text->fontMetrics().lineSpacing());
  const bool isTaken = dialog->exec() == QDialog::Accepted;
  if (!dialog) return std::nullopt;
  const QString result = text->toPlainText().trimmed();
  delete dialog;
  return isTaken ? std::optional(result) : std::nullopt;
}

/// What is shown when a query goes: the one below it, else the one above.
QString NeighbourOf(const TStoreModel& rows, const QString& id) {
  const int row = rows.RowOfId(id), below = row + 1 < rows.rowCount() ? row + 1 : row - 1;
  return row >= 0 && below >= 0 ? rows.Row(below).Id : QString();
}

std::function<QString(int number)> NumberedName(const QString& name) {
  return [name](int number) { return QStringLiteral("%1 %2").arg(name, QString::number(number)); };
}

bool IsQueryText(const TStrings& text) {
  constexpr std::string_view Name = "Probe";
  if (Trim(text.GetText()).empty()) return false;
  return ReadQueryHead(WithQueryHead(text, {.Name = std::string(Name), .Description = {}}).GetText()).Name == Name;
}

}  // namespace

// Errors and conflicts

void TStorePane::TellError(const QString& words) {
  if (const auto handler = OnError) return handler(words);
  ShowNote(words);
}

void TStorePane::ShowNote(const QString& words) { FNote->ShowFault(words); }

bool TStorePane::Try(const std::function<void()>& run) {
  const QPointer<TStorePane> self = this;
  QString words;
  try {
    run();
  } catch (const EException& error) {
    words = ToQString(error.Message());
  } catch (const std::exception& error) {
    words = QString::fromUtf8(error.what());
  }
  if (words.isEmpty()) return true;
  if (self) TellError(words);
  return false;
}

bool TStorePane::TryOn(int index, const std::function<void(int index)>& run,
                       bool (TStorePane::*settle)(int, const EQueryConflictError&)) {
  if (GetQueryBase() == nullptr || index < 0) return false;
  const QString id = FIds[index];
  const QPointer<TStorePane> self = this;
  std::optional<EQueryConflictError> conflict;
  const bool isDone = Try([&] {
    try {
      run(index);
    } catch (const EQueryConflictError& error) {
      conflict = error;
    }
  });
  if (!isDone || !conflict) return isDone;
  bool again = false;
  Try([&] { again = (this->*settle)(index, *conflict); });
  const int now = again && self ? IndexOfId(id) : -1;
  return now >= 0 && Try([&] { run(now); });
}

bool TStorePane::SettleErasing(int index, const EQueryConflictError& conflict) {
  const QPointer<TStorePane> self = this;
  const QString id = FIds[index];
  const QString told = ToQString(conflict.Message()).section(u';', 0, 0) + u'.';
  const int answer =
      Ask(*this, QMessageBox::Warning, told, tr("Delete it all the same?"), QMessageBox::Yes | QMessageBox::No);
  if (answer != QMessageBox::Yes || !self || IndexOfId(id) < 0) return false;
  GetQueryBase()->GetStoredQuery(IndexOfId(id)).Accept(conflict);
  return true;
}

bool TStorePane::Settle(int index, const EQueryConflictError& conflict) {
  TJStoredQueryBase& base = *GetQueryBase();
  const QPointer<TStorePane> self = this;
  const EQueryConflictError shown(base.GetQuery(index).GetQueryName(), TextOf(index).Joined("\n"),
                                  conflict.GetStored());
  const QString id = FIds[index];
  const TConflictChoice choice = AskConflict(this, shown, FModel.Get());
  if (!self || choice == ccCancel || IndexOfId(id) != index) return false;
  SettleConflict(base, index, shown, choice);
  if (!self) return false;
  Sync();
  if (const auto handler = OnSettled) handler();
  return self && choice != ccKeepBoth && IndexOfId(id) >= 0;
}

// Texts and names

TStrings TStorePane::TextOf(int index) {
  TJStoredQueryBase& base = *GetQueryBase();
  TStrings text;
  if (index == base.GetItemIndex()) {
    if (OnShownText) text = OnShownText();
    if (!text.Empty() || base.NeedContent(text)) return text;
  }
  base.GetQuery(index).LoadContent(text);
  return text;
}

bool TStorePane::CanBeRead(int index) {
  if (index == GetQueryBase()->GetItemIndex() && OnShownText && !OnShownText().Empty()) return true;
  TStrings text;
  try {
    // Not of the base: views that are asked for their text take it for saved.
    GetQueryBase()->GetQuery(index).LoadContent(text);
  } catch (const EException&) {
    return false;
  }
  return !text.Empty();
}

std::string TStorePane::FreeName(const QString& name, const std::function<QString(int number)>& next) const {
  return FreeQueryName(*GetQueryBase(), [&](int number) { return FromQString(number == 1 ? name : next(number)); });
}

int TStorePane::Add(const std::string& name, const TStrings& text, const QString& behind) {
  const QPointer<TStorePane> self = this;
  QString id;
  const bool isDone = Try([&] {
    TJStoredQueryBase& base = *GetQueryBase();
    const int index = base.AddQuery(name, text);
    // Whoever is told of it may have put another base in its place.
    if (self && GetQueryBase() == &base) id = ToQString(base.GetStoredQuery(index).Entry().Id);
  });
  if (!isDone || !self || id.isEmpty()) return -1;
  if (!behind.isEmpty()) FRows->PlaceBehind(id, behind);
  FNeedsRead = true;
  if (!FSearch->text().isEmpty()) FSearch->clear();
  Show(IndexOfId(id));
  return self ? IndexOfId(id) : -1;
}

// Actions

void TStorePane::NewQuery() {
  const QPointer<TStorePane> self = this;
  if (GetQueryBase() == nullptr || !MayLeave() || !self || GetQueryBase() == nullptr) return;
  const auto next = [](int number) { return tr("New query %1").arg(number); };
  if (Add(FreeName(tr("New query"), next), {}) >= 0 && self) Rename();
}

void TStorePane::Rename() {
  if (FNameEditor) FNameEditor->GiveUp();
  const int index = SelectedIndex();
  if (index < 0) return;
  const QModelIndex row = FList->currentIndex();
  FList->scrollTo(row);
  FEditedId = FIds[index];
  const QString name = row.data().toString();
  auto* editor = new TNameEditor(*new QLineEdit(name), FList->viewport());
  FNameEditor = editor;
  const QString id = FEditedId;
  editor->OnCheck = [this, name](const QString& typed) {
    const TJStoredQueryBase* base = GetQueryBase();
    const int other = base != nullptr ? base->IndexByName(FromQString(typed)) : -1;
    if (other < 0 || ToQString(base->GetQuery(other).GetQueryName()) == name) return QString();
    return ToQString(EQueryNameTakenError(FromQString(typed)).Message());
  };
  editor->OnTake = [this](const QString& typed) { return TakeName(FEditedId, typed); };
  editor->OnDone = [this](const QString& fault) {
    FEditedId.clear();
    if (!fault.isEmpty()) TellError(fault);
  };
  editor->move(FList->visualRect(row).topLeft());
  editor->Place();
  editor->show();
  editor->setFocus(Qt::OtherFocusReason);
}

QString TStorePane::TakeName(const QString& id, const QString& name) {
  QString taken;
  const bool isDone = TryOn(IndexOfId(id), [&](int index) {
    try {
      GetQueryBase()->RenameQuery(index, FromQString(name));
    } catch (const EQueryConflictError&) {
      throw;
    } catch (const EQueryStoreError& error) {
      taken = ToQString(error.Message());
    }
  });
  if (!isDone || !taken.isEmpty()) return taken;
  Sync();
  SelectId(FEditedId);
  return {};
}

void TStorePane::Duplicate() {
  const int index = SelectedIndex();
  if (index < 0) return;
  const QPointer<TStorePane> self = this;
  const QString id = FIds[index], name = ToQString(GetQueryBase()->GetQuery(index).GetQueryName());
  TStrings text;
  // What is shown is taken as it is shown, before the user is asked whether to store it.
  if (!Try([&] { text = TextOf(index); }) || !self || !MayLeave() || !self || GetQueryBase() == nullptr) return;
  const auto next = [&name](int number) { return tr("%1 (copy %2)").arg(name, QString::number(number)); };
  const std::string free = FreeName(tr("%1 (copy)").arg(name), next);
  if (Add(free, text, id) >= 0 && self && FRows->GetOrder().contains(id) && OnOrderChange) OnOrderChange();
}

void TStorePane::Erase() {
  const int index = SelectedIndex();
  if (index < 0) return;
  const QPointer<TStorePane> self = this;
  const QString id = FIds[index];
  const std::string name = GetQueryBase()->GetQuery(index).GetQueryName();
  const QString question = tr("Delete the query “%1”?").arg(ToQString(name));
  const bool canReturn = CanBeRead(IndexOfId(id));
  if (!self || IndexOfId(id) < 0) return;
  const QString further =
      canReturn
          ? tr("It is deleted for everybody who uses this store. You can take that back until the note about it is "
               "closed.")
          : tr("It is deleted for everybody who uses this store. It cannot be read: you cannot take that back.");
  if (Ask(*this, QMessageBox::Question, question, further, QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes ||
      !self || IndexOfId(id) < 0) {
    return;
  }
  TStrings text;
  const QStringList order = FRows->GetOrder();
  const bool isShown = IndexOfId(id) == GetQueryBase()->GetItemIndex();
  const QString neighbour = NeighbourOf(*FRows, id);
  // One that cannot be read can be deleted all the same.
  try {
    text = TextOf(IndexOfId(id));
  } catch (const EException&) {
    text.Clear();
  }
  const bool isDone =
      self && TryOn(
                  IndexOfId(id), [this](int now) { GetQueryBase()->EraseQuery(now); }, &TStorePane::SettleErasing);
  if (!self) return;
  Sync();
  if (!isDone || IndexOfId(id) >= 0) return;
  if (isShown) Show(IndexOfId(neighbour));
  if (!self || text.Empty()) return;
  FErased.push_back({id, name, text, order});
  ShowErased();
}

void TStorePane::ShowErased() {
  if (FErased.empty()) return;
  const QString name = ToQString(FErased.back().Name);
  const auto before = static_cast<int>(FErased.size()) - 1;
  const QString words = before == 0 ? tr("“%1” was deleted.").arg(name)
                                    : tr("“%1” was deleted, and %n before it.", nullptr, before).arg(name);
  FNote->ShowOffer(words, tr("&Undo"), [this] { BringBack(); });
  // The list is lower now.
  layout()->activate();
  FList->scrollTo(FList->currentIndex());
}

void TStorePane::BringBack() {
  if (FErased.empty()) return;
  const QPointer<TStorePane> self = this;
  const TErased erased = FErased.back();
  // Handlers may set another base, for which nothing was deleted.
  const auto isOffered = [&] { return self && !FErased.empty() && FErased.back().Id == erased.Id; };
  const bool mayLeave = MayLeave();
  if (!isOffered()) return;
  const QString name = ToQString(erased.Name);
  // Another query may have got its name since.
  const int index = mayLeave ? Add(FreeName(name, NumberedName(name)), erased.Text) : -1;
  if (!isOffered()) return;
  if (index < 0) {
    // Behind a fault that is told here, the offer comes when it is closed.
    if (FNote->isHidden()) ShowErased();
    return;
  }
  const QString id = FIds[index];
  FErased.pop_back();
  ReplaceErasedId(erased.Id, id);
  ShowErased();
  PutInOrder(id, erased);
}

void TStorePane::ReplaceErasedId(const QString& former, const QString& id) {
  for (TErased& erased : FErased) std::replace(erased.Order.begin(), erased.Order.end(), former, id);
}

// Behind what it stood behind.
void TStorePane::PutInOrder(const QString& id, const TErased& erased) {
  qsizetype place = erased.Order.indexOf(erased.Id);
  if (place < 0) return;
  QStringList order = FRows->GetOrder();
  order.removeAll(erased.Id);
  order.removeAll(id);
  while (--place >= 0 && (!FIds.contains(erased.Order[place]) || !order.contains(erased.Order[place]))) continue;
  order.insert(place < 0 ? 0 : order.indexOf(erased.Order[place]) + 1, id);
  SetOrder(order);
  if (const auto handler = OnOrderChange) handler();
}

void TStorePane::Describe() {
  const int index = SelectedIndex();
  if (index < 0) return;
  const QPointer<TStorePane> self = this;
  const QString id = FIds[index];
  const TJQueryItem& query = GetQueryBase()->GetQuery(index);
  const auto text = AskDescription(*this, ToQString(query.GetQueryName()), ToQString(query.GetDescription()));
  if (!text || !self) return;
  TryOn(IndexOfId(id), [&](int now) { GetQueryBase()->DescribeQuery(now, FromQString(*text)); });
  if (self) Sync();
}

void TStorePane::Refresh() {
  const QPointer<TStorePane> self = this;
  if (GetQueryBase() == nullptr) return;
  Try([this] { GetQueryBase()->Refresh(); });
  if (self) FNeedsRead = true;
  if (self) Sync();
}

void TStorePane::CopyText() {
  const int index = SelectedIndex();
  if (index < 0) return;
  TStrings text;
  if (Try([&] { text = TextOf(index); })) QApplication::clipboard()->setText(ToQString(text.Joined("\n") + "\n"));
}

void TStorePane::PasteText() {
  const QPointer<TStorePane> self = this;
  if (GetQueryBase() == nullptr) return;
  TStrings text;
  text.SetText(FromQString(QApplication::clipboard()->text()));
  if (!IsQueryText(text))
    return TellError(tr("What was copied is no query text. Statements in SQL are pasted into the SQL."));
  if (!MayLeave() || !self || GetQueryBase() == nullptr) return;
  const QString name = ToQString(ReadQueryHead(text.GetText()).Name).trimmed();
  const QString plain = name.isEmpty() ? tr("New query") : name;
  Add(FreeName(plain, NumberedName(plain)), text);
}

void TStorePane::Move(int step) {
  const int row = FList->currentIndex().row(), to = row + step;
  if (row < 0 || to < 0 || to >= FRows->rowCount() || FRows->IsSearching()) return;
  FRows->MoveRow(row, to);
  FList->scrollTo(FList->currentIndex());
  ShowEnabled();
  if (const auto handler = OnOrderChange) handler();
}

}  // namespace tolvi
