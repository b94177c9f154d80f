#include "apps/workbench/window/program.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QStandardPaths>

#include "apps/workbench/connection/connectiondlg.h"
#include "apps/workbench/connection/passworddlg.h"
#include "apps/workbench/window/languages.h"
#include "apps/workbench/window/mainwindow.h"
#include "apps/workbench/window/notebar.h"
#include "apps/workbench/window/openingdlg.h"
#include "apps/workbench/window/themes.h"
#include "apps/workbench/workspace/sample.h"
#include <tolvi/foundation/numbers.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

QString DataFolder(const QString& home) {
  return home.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) : home;
}

QString SettingsFile(const QString& home) {
  const QString folder = home.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) : home;
  return QDir(folder).filePath(QStringLiteral("settings.json"));
}

// What notes that stay are about.
constexpr QLatin1String NotOpened("notopened"), Offered("offered"), BrokenSettings("settings"), NotKept("notkept");

}  // namespace

TProgram::TProgram(const TOptions& options)
    : FData(DataFolder(options.Home)),
      FOptions(options),
      FSettingsFile(SettingsFile(options.Home)),
      FRecovery(QDir(FData).filePath(QStringLiteral("unsaved"))) {
  connect(&FKeep, &QTimer::timeout, this, &TProgram::Keep);
}

TProgram::~TProgram() = default;

QString TProgram::SampleFolder() const { return QDir(FData).filePath(QStringLiteral("sample")); }

void TProgram::Start() {
  UseTheme(Settings().Theme, Settings().FontSize);
  MakeWindow();
  if (FOptions.Source && !FOptions.Password.empty()) {
    FSecrets.KeepInSession(ParseConnectionUrl(FOptions.Source->Url), FOptions.Password);
  }
  if (const QString note = FSettingsFile.GetNote(); !note.isEmpty()) {
    TellLasting(BrokenSettings, [this, note] { FWindow->Tell(note, {}, BrokenSettings); });
  }
  const std::optional<TUnsavedWork> work = FRecovery.Find();
  try {
    const std::optional<TSource> named = NamedSource();
    const bool isOther = named && work && work->Source != *named;
    if (work && !isOther) {
      OpenWith(*work);
    } else {
      OpenFirst(named ? *named : LastSource());
    }
    if (isOther) Offer(*work);
  } catch (const std::exception& error) {
    FWindow->Tell(QString::fromUtf8(error.what()));
  }
  FKeep.start(KeepMilliseconds);
}

std::optional<TSource> TProgram::NamedSource() const {
  if (FOptions.OpensSample) return UnpackSample(SampleFolder());
  return FOptions.Source;
}

TSource TProgram::LastSource() {
  return Settings().Recent.empty() ? UnpackSample(SampleFolder()) : Settings().Recent.front();
}

void TProgram::OpenFirst(const TSource& source) {
  try {
    if (auto workspace = Opened(source)) return Show(std::move(workspace));
    TellNotOpened(source, WhyNotOpen(source));
  } catch (const std::exception& error) {
    TellNotOpened(source, QString::fromUtf8(error.what()));
  }
}

QString TProgram::WhyNotOpen(const TSource& source) const {
  return FRefusal.isEmpty() ? tr("%1 is not open.").arg(ToQString(source.Url)) : FRefusal;
}

void TProgram::TellNotOpened(const TSource& source, const QString& why) {
  TellLasting(NotOpened, [this, source, why] {
    FWindow->SetWorkspace(nullptr, why);
    FWindow->Tell(why,
                  {{tr("Try again"), [this, source] { OpenFirst(source); }},
                   {tr("Open another one..."), [this] { Connect(); }},
                   {tr("Open the sample"), [this] { OpenSample(); }}},
                  NotOpened);
  });
}

void TProgram::TellLasting(const QString& topic, std::function<void()> tell) {
  tell();
  FLasting[topic] = std::move(tell);
}

void TProgram::MakeWindow() {
  // Undo steps end here; what is open and not saved goes on, and the places of the former window are those of the next.
  std::unique_ptr<TWorkspace> workspace = FWindow ? FWindow->TakeWorkspace() : nullptr;
  const QString language = tolvi::UseLanguage(Settings().Language);
  auto window = std::make_unique<TMainWindow>(Settings(), language);
  window->Requests = {[this] { Connect(); },
                      [this] { OpenSample(); },
                      [this] { RestoreSample(); },
                      [this] { Quit(); },
                      [this](const TSource& source) { Open(source); },
                      [this](const QString& code) { UseLanguage(code); },
                      [this] { UseTheme(Settings().Theme, Settings().FontSize); }};
  if (workspace) window->SetWorkspace(std::move(workspace));
  // The program would end with its last window.
  window->show();
  const QStringList topics = FWindow ? FWindow->Note().GetTopics() : QStringList();
  FWindow = std::move(window);
  for (const QString& topic : topics) FLasting.at(topic)();
}

void TProgram::UseLanguage(const QString& code) {
  Settings().Language = code;
  MakeWindow();
}

std::unique_ptr<TWorkspace> TProgram::Opened(const TSource& source, std::optional<TGivenPassword> given) {
  // A keychain may ask its user; one that does not answer is not waited for.
  constexpr int keychainPatience = 5'000;
  const TConnectionUrl url = ParseConnectionUrl(source.Url);
  FRefusal.clear();
  while (true) {
    std::string password;
    if (given) {
      password = given->Password;
    } else if (url.Kind != dkSQLite) {
      password = FSecrets.WaitFor(url, keychainPatience).value_or(std::string());
    }
    try {
      auto workspace = OpenWorkspace(FWindow.get(), source, password, FolderOf(source, FData), SystemFormats());
      if (workspace && given) {
        KeepPassword(FSecrets, url, *given, [this](const QString& words) { FWindow->Tell(words); });
      }
      return workspace;
    } catch (const EPasswordError& error) {
      // That there was none is no fault of a user who was not asked.
      if (given || !password.empty()) FRefusal = QString::fromUtf8(error.what());
    }
    given = AskPassword(FWindow.get(), url, FSecrets, FRefusal, given);
    if (!given) return nullptr;
  }
}

bool TProgram::Open(const TSource& source, const std::optional<TGivenPassword>& given) {
  if (!FWindow->MayLeaveQuery() || !FWindow->MayLeaveModel()) return false;
  try {
    auto workspace = Opened(source, given);
    if (!workspace) return false;
    Show(std::move(workspace));
    return true;
  } catch (const std::exception& error) {
    FWindow->TellFault(QString::fromUtf8(error.what()));
    return false;
  }
}

void TProgram::Show(std::unique_ptr<TWorkspace> workspace) {
  Settings().Remember(workspace->GetSource());
  TJStoredQueryBase& store = workspace->Store();
  const QString last = Settings().LastQueries.value(SourceKey(workspace->GetSource())).toString();
  QString notes = ToQString(workspace->GetNotes().Joined(" "));
  if (const int index = store.IndexByName(FromQString(last)); index > 0) {
    try {
      store.SetItemIndex(index);
    } catch (const EException& error) {
      if (!notes.isEmpty()) notes += u' ';
      notes += ToQString(error.Message());
    }
  }
  FWindow->SetWorkspace(std::move(workspace));
  FWindow->Note().Withdraw(NotOpened);
  if (!notes.isEmpty()) FWindow->Tell(notes);
}

void TProgram::Connect() {
  T_dlgConnection dialog(FSecrets, FWindow.get());
  std::vector<TConnectionUrl> recent;
  for (const TSource& source : Settings().Recent) recent.push_back(ParseConnectionUrl(source.Url));
  dialog.SetRecent(std::move(recent));
  if (dialog.exec() != QDialog::Accepted) return;
  const TConnectionUrl url = dialog.GetUrl();
  TSource source{url.Shown()};
  for (const TSource& known : Settings().Recent) {
    if (known.Url == source.Url) source = known;
  }
  Open(source, dialog.GetGiven());
}

void TProgram::OpenSample() {
  try {
    Open(UnpackSample(SampleFolder()));
  } catch (const EException& error) {
    FWindow->TellFault(QString::fromUtf8(error.what()));
  }
}

void TProgram::RestoreSample() {
  if (!FWindow->MayLeaveQuery() || !FWindow->MayLeaveModel()) return;
  try {
    // Its files are closed first.
    FWindow->SetWorkspace(nullptr);
    const QString kept = tolvi::RestoreSample(SampleFolder());
    OpenSample();
    if (!kept.isEmpty())
      FWindow->Tell(tr("The sample is as good as new. The former one is in %1.").arg(QDir::toNativeSeparators(kept)));
  } catch (const EException& error) {
    FWindow->TellFault(QString::fromUtf8(error.what()));
  }
}

bool TProgram::PutBack(const TUnsavedWork& work) {
  auto workspace = Opened(work.Source);
  if (!workspace) return false;
  Show(std::move(workspace));
  if (!FWindow->Restore(work)) return false;
  FIsPutBack = true;
  Keep();
  return true;
}

void TProgram::OpenWith(const TUnsavedWork& work) {
  QString why;
  try {
    if (PutBack(work)) return;
    why = WhyNotOpen(work.Source);
  } catch (const std::exception& error) {
    why = QString::fromUtf8(error.what());
  }
  if (FWindow->GetWorkspace() == nullptr) TellNotOpened(work.Source, why);
  Offer(work);
}

void TProgram::TakeOffer(const TUnsavedWork& work) {
  try {
    if (FWindow->MayLeaveQuery() && FWindow->MayLeaveModel() && PutBack(work)) return;
  } catch (const std::exception& error) {
    FWindow->TellFault(QString::fromUtf8(error.what()));
  }
  Offer(work);
}

void TProgram::Offer(const TUnsavedWork& work) {
  TellLasting(Offered, [this, work] {
    const QString source = SourceName(work.Source);
    const QString words =
        work.QueryText
            ? tr("The program ended before changes of “%1” in %2 were saved. They are kept until you take them or "
                 "discard them.")
                  .arg(ToQString(work.QueryName), source)
            : tr("The program ended before changes of the data model of %1 were saved. They are kept until you take "
                 "them or discard them.")
                  .arg(source);
    FWindow->Tell(words,
                  {{tr("Open %1 with them").arg(source), [this, work] { TakeOffer(work); }},
                   {tr("Discard"), [this] { FRecovery.Drop(); }}},
                  Offered);
  });
}

void TProgram::Keep() {
  try {
    if (const std::optional<TUnsavedWork> work = FWindow->Unsaved()) {
      FRecovery.Keep(*work);
      if (std::exchange(FIsPutBack, false)) FRecovery.Drop();
    }
    FSettingsFile.Save();
    if (std::exchange(FKeepFailed, false)) FWindow->Note().Withdraw(NotKept);
  } catch (const std::exception& error) {
    if (!std::exchange(FKeepFailed, true)) {
      const QString why = QString::fromUtf8(error.what());
      TellLasting(NotKept, [this, why] {
        FWindow->Tell(tr("Unsaved work cannot be kept for the case that the program ends: %1").arg(why), {}, NotKept);
      });
    }
  }
}

void TProgram::Quit() {
  FKeep.stop();
  Keep();
  QApplication::quit();
}

TFormatSettings SystemFormats() {
  TFormatSettings formats;
  const QLocale locale;
  const QString point = locale.decimalPoint();
  if (point == QStringLiteral(",")) formats.DecimalSeparator = ',';
  return formats;
}

}  // namespace tolvi
