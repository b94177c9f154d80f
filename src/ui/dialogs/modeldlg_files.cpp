#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QUrl>
#include <exception>
#include <filesystem>
#include <utility>

#include <tolvi/foundation/consts.h>
#include <tolvi/model/modelfill.h>
#include <tolvi/model/modeltext.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/dialogs/askbox.h>
#include <tolvi/ui/dialogs/filldlg.h>
#include <tolvi/ui/dialogs/modeldlg.h>
#include <tolvi/ui/dialogs/modelpage.h>
#include <tolvi/ui/dialogs/modelsettings.h>
#include <tolvi/ui/qtext.h>

// The commands of the model editor: files, the database, and how it is closed.

namespace tolvi {
namespace {}  // namespace

bool T_dlgModelEdit::Try(const QString& failure, const std::function<void()>& operation) {
  QString fault;
  try {
    operation();
    return true;
  } catch (const std::exception& error) {
    fault = ToQString(error.what());
  }
  Ask(*this, QMessageBox::Warning, failure, fault, QMessageBox::Ok);
  return false;
}

// Files

QString T_dlgModelEdit::FileFilters() const {
  QStringList filters{tr("Data models (*.model)")};
  for (const TModelFormat& format : FFormats) filters << format.Name + QStringLiteral(" (*.") + format.Suffix + u')';
  filters << tr("All files (*)");
  return filters.join(QStringLiteral(";;"));
}

const TModelFormat* T_dlgModelEdit::FormatOf(const QString& file) const {
  const QString suffix = QFileInfo(file).suffix();
  for (const TModelFormat& format : FFormats) {
    if (format.Suffix.compare(suffix, Qt::CaseInsensitive) == 0) return &format;
  }
  return nullptr;
}

bool T_dlgModelEdit::LoadFromFile(const QString& file) {
  const QPointer<QWidget> alive(this);
  CommitEdits();
  const TModelFormat* format = FormatOf(file);
  const QString failure = tr("The file %1 cannot be opened. The model stays as it was.").arg(file);
  const bool worked = Try(failure, [&] {
    FEditor->Edit(FromQString(tr("Open")), [&] {
      if (format != nullptr) {
        format->Load(file, FCopy);
      } else {
        FCopy.LoadFromFile(ToPath(file));
      }
    });
  });
  if (!alive) return worked;
  if (worked) FFile = file;
  RefreshNow();
  return worked;
}

bool T_dlgModelEdit::SaveToFile(const QString& file) {
  CommitEdits();
  const TModelFormat* format = FormatOf(file);
  const QPointer<QWidget> alive(this);
  const bool worked = Try(tr("The model cannot be saved in the file %1.").arg(file), [&] {
    if (format != nullptr) {
      format->Save(file, FCopy);
    } else {
      FCopy.SaveToFile(ToPath(file));
    }
  });
  if (alive && worked) FFile = file;
  return worked;
}

void T_dlgModelEdit::Open() {
  const QPointer<QWidget> alive(this);
  const QString start = FFile.isEmpty() ? ToQString(FCopy.GetInitialSEPath()) : FFile;
  const QString file = QFileDialog::getOpenFileName(this, tr("Open Model"), start, FileFilters());
  if (alive && !file.isEmpty()) LoadFromFile(file);
}

void T_dlgModelEdit::Save() {
  const QPointer<QWidget> alive(this);
  const QString start = FFile.isEmpty() ? ToQString(FCopy.GetInitialSEPath()) : FFile;
  QString chosen;
  QString file = QFileDialog::getSaveFileName(this, tr("Save Model"), start, FileFilters(), &chosen);
  if (!alive || file.isEmpty()) return;
  if (QFileInfo(file).suffix().isEmpty()) {
    QString suffix = QStringLiteral("model");
    for (const TModelFormat& format : FFormats) {
      if (chosen.contains(QStringLiteral("*.") + format.Suffix)) suffix = format.Suffix;
    }
    file += u'.' + suffix;
    // The file dialog has asked for the name without the ending.
    const int answer = !QFileInfo::exists(file) ? QMessageBox::Yes
                                                : Ask(*this, QMessageBox::Question, tr("Replace %1?").arg(file), {},
                                                      QMessageBox::Yes | QMessageBox::No);
    if (!alive || answer != QMessageBox::Yes) return;
  }
  SaveToFile(file);
}

// The database and the whole model

// The handler sees the model that it was given to; it may destroy that, and the dialog with it.
void T_dlgModelEdit::Connect() {
  CommitEdits();
  const TJCustomDBStructure::TModelEvent handler = FOriginal ? FOriginal->OnConnectClick : nullptr;
  const QPointer<T_dlgModelEdit> alive(this);
  if (handler && !Try(tr("The database cannot be connected."), [&] { handler(*FOriginal.Get()); })) return;
  if (!alive || !FOriginal) return;
  FCopy.SetDatabaseInfo(FOriginal->GetDatabaseInfo());
  Refresh();
}

void T_dlgModelEdit::Fill() {
  CommitEdits();
  const QPointer<QWidget> alive(this);
  if (FillFromDatabase(this, *FEditor, TFillOptions()) && alive) RefreshNow();
}

void T_dlgModelEdit::EditSettings() {
  CommitEdits();
  const QPointer<QWidget> alive(this);
  if (EditModelSettings(this, *FEditor) && alive) RefreshNow();
}

void T_dlgModelEdit::Help() {
  CommitEdits();
  const TJCustomDBStructure::TModelEvent handler = FOriginal ? FOriginal->OnSEHelpClick : nullptr;
  if (handler) {
    Try(tr("There is no help."), [&] { handler(*FOriginal.Get()); });
    return;
  }
  const QString name = ToQString(FCopy.GetHelpFileName());
  const QUrl place = QUrl::fromUserInput(name, {}, QUrl::AssumeLocalFile);
  Try(tr("The help cannot be shown."), [&] {
    if (!QDesktopServices::openUrl(place)) throw EException("%s cannot be opened", {FCopy.GetHelpFileName()});
  });
}

void T_dlgModelEdit::Clear() {
  CommitEdits();
  const QPointer<QWidget> alive(this);
  const int answer =
      Ask(*this, QMessageBox::Question, ToQString(SClearStructure.Text), {}, QMessageBox::Yes | QMessageBox::No);
  if (!alive || answer != QMessageBox::Yes) return;
  FEditor->Edit(FromQString(tr("Clear model")), [this] { FCopy.ClearStructure(); });
  RefreshNow();
}

// Closing

namespace {

/// What the host has hung on parts of the model, which no model text holds.
void CarryHostObjects(const TJCustomDBStructure& from, const TJCustomDBStructure& to) {
  for (const TDSField& old : from.Fields()) {
    TDSField* field = to.FieldByID(old.GetID());
    if (field == nullptr) continue;
    field->SetOleObject(old.GetOleObject());
    field->SetUserData(old.GetUserData());
  }
  for (const TDSOperator& old : from.Operators()) {
    if (TDSOperator* op = to.OperatorByName(old.GetName())) op->SetOleObject(old.GetOleObject());
  }
}

}  // namespace

void T_dlgModelEdit::HandBack(TJCustomDBStructure& model) {
  // The parts are exchanged: a further copy, so that the pages keep theirs.
  TJDBStructure result;
  result.SQLFormats() = FCopy.SQLFormats();
  result.DMOptions() = FCopy.DMOptions();
  result.SetStructString(WriteModelText(FCopy));
  result.SetSpecInfo(FCopy.GetSpecInfo());
  model.AsOneChange([&] {
    if (model.GetExOperators() != FCopy.GetExOperators()) model.SetExOperators(FCopy.GetExOperators());
    if (model.GetDefOperators() != FCopy.GetDefOperators()) model.SetDefOperators(FCopy.GetDefOperators());
    model.TakeContent(result);
    CarryHostObjects(result, model);
  });
}

void T_dlgModelEdit::accept() {
  const QPointer<QWidget> alive(this);
  CommitEdits();
  // What was typed may have raised an error, which is told, and another window may have closed this one meanwhile.
  if (!alive || !isVisible()) return;
  if (FOriginal && FEditor->GetModified()) HandBack(*FOriginal.Get());
  if (alive) Close(Accepted);
}

void T_dlgModelEdit::reject() {
  const QPointer<QWidget> alive(this);
  CommitEdits();
  if (!alive || !isVisible()) return;
  if (!FEditor->GetModified()) return Close(Rejected);
  const int answer =
      Ask(*this, QMessageBox::Question, tr("The model has been changed."), tr("Do you want to keep the changes?"),
          QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
  if (!alive || !isVisible()) return;
  if (answer == QMessageBox::Save) accept();
  if (answer == QMessageBox::Discard) Close(Rejected);
}

bool EditModel(QWidget* parent, TJCustomDBStructure& model, std::vector<TModelFormat> formats) {
  // Whoever is closed meanwhile takes the dialog with it, and perhaps the model.
  const QPointer<T_dlgModelEdit> dialog = new T_dlgModelEdit(model, std::move(formats), parent);
  const bool accepted = dialog->exec() == QDialog::Accepted;
  delete dialog;
  return accepted;
}

}  // namespace tolvi
