#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "apps/workbench/connection/passworddlg.h"
#include "apps/workbench/connection/secrets.h"
#include "apps/workbench/workspace/recovery.h"
#include "apps/workbench/workspace/settings.h"

namespace tolvi {

class TMainWindow;
class TWorkspace;
struct TFormatSettings;

/// The workbench as a whole: its settings, the passwords it knows, what it keeps of unsaved work, and its window, which
/// is made anew when another language is chosen.
class TProgram final : public QObject {
  Q_OBJECT

 public:
  struct TOptions {
    /// Where settings, unsaved work, the sample and the models and queries of its own are; empty for the user's usual
    /// places.
    QString Home = {};
    /// What to open; nothing: what was open the last time, at first the sample.
    std::optional<TSource> Source = {};
    /// Whether it is the sample, in any case.
    bool OpensSample = false;
    /// Of that source; kept until the program ends, nowhere else.
    std::string Password = {};
  };

  explicit TProgram(const TOptions& options);
  ~TProgram() override;

  /// Shows the window, opens the source, brings unsaved work of a program that was killed back. A source that cannot be
  /// opened is told in the window, which is empty then: nobody asked for another one. Unsaved work of another source
  /// than the one that was named is only offered.
  void Start();
  /// False when it could not be opened, which is told, or the user gave up; the former source is then still open.
  /// A password that is given is kept as its user wants once it has proved right.
  bool Open(const TSource& source, const std::optional<TGivenPassword>& given = {});
  TMainWindow& Window() const { return *FWindow; }
  TSettings& Settings() { return FSettingsFile.Settings; }
  TSecrets& Secrets() { return FSecrets; }

  /// How often unsaved work is kept.
  static constexpr int KeepMilliseconds = 2000;

 private:
  void MakeWindow();
  void Show(std::unique_ptr<TWorkspace> workspace);
  // Null: the user gave up. Raises why it cannot be opened.
  std::unique_ptr<TWorkspace> Opened(const TSource& source, std::optional<TGivenPassword> given = {});
  // Both raise `EFileError`, for the sample.
  std::optional<TSource> NamedSource() const;
  TSource LastSource();
  void OpenFirst(const TSource& source);
  // Tells a note that stays, in the language of the window, now and in windows that are made later.
  void TellLasting(const QString& topic, std::function<void()> tell);
  QString WhyNotOpen(const TSource& source) const;
  void TellNotOpened(const TSource& source, const QString& why);
  void UseLanguage(const QString& code);
  void Connect();
  void OpenSample();
  void RestoreSample();
  void Keep();
  void Quit();
  // Opens the source of the work and shows the work in it; false or as `Opened` raises when that cannot be.
  bool PutBack(const TUnsavedWork& work);
  // The same for the first source; what cannot be opened is told, and the work is offered.
  void OpenWith(const TUnsavedWork& work);
  void Offer(const TUnsavedWork& work);
  void TakeOffer(const TUnsavedWork& work);
  QString SampleFolder() const;

  const QString FData;
  const TOptions FOptions;
  TSettingsFile FSettingsFile;
  TRecovery FRecovery;
  TSecrets FSecrets;
  std::unique_ptr<TMainWindow> FWindow;
  QTimer FKeep;
  // What was found is shown again; its file goes once the work is kept in this program's own.
  bool FIsPutBack = false;
  // What the server said to the last password of the source that was opened last.
  QString FRefusal;
  // Those that stay, by their topics.
  std::map<QString, std::function<void()>> FLasting;
  // A failure to keep unsaved work is told once.
  bool FKeepFailed = false;
};

/// The user's locale, as the panels read and show values.
TFormatSettings SystemFormats();

}  // namespace tolvi
