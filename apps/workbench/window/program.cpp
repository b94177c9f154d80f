#include "apps/workbench/window/program.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QLocale>
#include <QMessageBox>
#include <QStandardPaths>

#include "apps/workbench/connection/connectiondlg.h"
#include "apps/workbench/store/storepane.h"
#include "apps/workbench/window/languages.h"
#include "apps/workbench/window/mainwindow.h"
#include "apps/workbench/window/themes.h"
#include "apps/workbench/workspace/sample.h"
#include <tolvi/foundation/numbers.h>
#include <tolvi/ui/controls/waitcursor.h>
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
  if (!Recover()) {
    bool isOpen = false;
    if (FOptions.Source) isOpen = Open(*FOptions.Source);
    if (!FOptions.Source && !FOptions.OpensSample && !Settings().Recent.empty())
      isOpen = Open(Settings().Recent.front());
    if (!isOpen && FWindow->GetWorkspace() == nullptr) OpenSample();
  }
  if (!FSettingsFile.GetNote().isEmpty()) FWindow->Tell(FSettingsFile.GetNote());
  FKeep.start(KeepMilliseconds);
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
  FWindow = std::move(window);
}

void TProgram::UseLanguage(const QString& code) {
  Settings().Language = code;
  MakeWindow();
}

std::optional<std::string> TProgram::KnownPassword(const TConnectionUrl& url) {
  if (url.Kind == dkSQLite) return std::string();
  // Outlives this call, should the keychain answer later.
  struct TAnswer {
    std::optional<std::string> Password;
    bool IsThere = false;
  };
  const auto answer = std::make_shared<TAnswer>();
  FSecrets.Find(url, [answer](std::optional<std::string> password) { *answer = {std::move(password), true}; });
  // A keychain may ask its user; one that does not answer is not waited for.
  QEventLoop loop;
  const QDeadlineTimer patience(5'000);
  while (!answer->IsThere && !patience.hasExpired()) {
    loop.processEvents(QEventLoop::ExcludeUserInputEvents, 50);
  }
  return answer->Password;
}

bool TProgram::Open(const TSource& source) {
  if (!FWindow->MayLeaveQuery() || !FWindow->MayLeaveModel()) return false;
  try {
    const TConnectionUrl url = ParseConnectionUrl(source.Url);
    std::string password = KnownPassword(url).value_or(std::string());
    while (true) {
      QString fault;
      try {
        const TWaitCursor wait;
        Show(std::make_unique<TWorkspace>(source, password, FolderOf(source, FData), SystemFormats()));
        return true;
      } catch (const EConnectError& error) {
        // A server may want another password; nothing else can be mended by one.
        if (url.Kind == dkSQLite) throw;
        fault = QString::fromUtf8(error.what());
      }
      const std::optional<std::string> given = AskPassword(FWindow.get(), url, FSecrets, fault);
      if (!given) return false;
      password = *given;
    }
  } catch (const std::exception& error) {
    FWindow->TellFault(QString::fromUtf8(error.what()));
    return false;
  }
}

void TProgram::Show(std::unique_ptr<TWorkspace> workspace) {
  Settings().Remember(workspace->GetSource());
  TJStoredQueryBase& store = workspace->Store();
  const QString last = Settings().LastQueries.value(SourceKey(workspace->GetSource())).toString();
  if (const int index = store.IndexByName(FromQString(last)); index > 0) {
    try {
      store.SetItemIndex(index);
    } catch (const EException&) {
      // It cannot be shown any more: the first one is.
    }
  }
  FWindow->SetWorkspace(std::move(workspace));
}

void TProgram::Connect() {
  T_dlgConnection dialog(FSecrets, FWindow.get());
  std::vector<TConnectionUrl> recent;
  for (const TSource& source : Settings().Recent) recent.push_back(ParseConnectionUrl(source.Url));
  dialog.SetRecent(std::move(recent));
  if (dialog.exec() != QDialog::Accepted) return;
  const TConnectionUrl url = dialog.GetUrl();
  if (!url.Password.empty()) FSecrets.KeepInSession(url, url.Password);
  TSource source{url.Shown()};
  for (const TSource& known : Settings().Recent) {
    if (known.Url == source.Url) source = known;
  }
  Open(source);
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
      FWindow->Tell(tr("The sample is as new. The former one is in %1.").arg(QDir::toNativeSeparators(kept)));
  } catch (const EException& error) {
    FWindow->TellFault(QString::fromUtf8(error.what()));
  }
}

bool TProgram::Recover() {
  const std::optional<TUnsavedWork> work = FRecovery.Find();
  if (!work) return false;
  const QString file = QDir::toNativeSeparators(FRecovery.FoundFile());
  if (!Open(work->Source) || !FWindow->Restore(*work)) {
    FRecovery.Leave();
    FWindow->TellFault(
        tr("Changes that were not saved cannot be put back now. They stay in %1, and the next start tries "
           "it again.")
            .arg(file));
    return FWindow->GetWorkspace() != nullptr;
  }
  Keep();
  FRecovery.Drop();
  return true;
}

void TProgram::Keep() {
  try {
    if (const std::optional<TUnsavedWork> work = FWindow->Unsaved()) FRecovery.Keep(*work);
    FSettingsFile.Save();
    FKeepFailed = false;
  } catch (const std::exception& error) {
    if (!std::exchange(FKeepFailed, true)) {
      FWindow->Tell(tr("Unsaved work cannot be kept for the case that the program ends: %1")
                        .arg(QString::fromUtf8(error.what())));
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
