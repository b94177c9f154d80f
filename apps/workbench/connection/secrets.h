#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "apps/workbench/connection/keychain.h"
#include <tolvi/connect/connecturl.h>

namespace tolvi {

/// Passwords of connections: in the system's keychain where there is one and the user wants it, else until the program
/// ends; never in a file of the program. A password is found by its URL without it.
///
/// Answers come from the event loop, to handlers that may destroy the object; none comes once it is destroyed.
class TSecrets final : public QObject {
  Q_OBJECT

 public:
  enum TKeychainState { kcUnknown, kcNone, kcReady };

  explicit TSecrets(QObject* parent = nullptr) : TSecrets(SystemKeychain(), parent) {}
  explicit TSecrets(std::unique_ptr<TKeychain> keychain, QObject* parent = nullptr);

  /// Asked when the object is made, known a moment later: `OnKeychain` tells.
  TKeychainState GetKeychain() const { return FState; }
  /// Why there is no keychain, for people.
  const QString& GetKeychainFault() const { return FKeychainFault; }
  std::function<void()> OnKeychain;

  /// Waits until it is known whether there is a keychain, but no longer than this; for programs without a dialog.
  TKeychainState WaitForKeychain(int milliseconds);

  using TFound = std::function<void(std::optional<std::string> password)>;
  using TDone = std::function<void(const QString& fault)>;

  /// The password of the session, or else that of the keychain; nothing when neither knows one.
  void Find(const TConnectionUrl& url, TFound found);
  /// As `Find`, but waits for the keychain, though no longer than this: it may ask its user. A later answer is kept for
  /// the session.
  std::optional<std::string> WaitFor(const TConnectionUrl& url, int milliseconds);
  /// Whether the keychain is known to have one, as it was asked for or kept.
  bool IsInKeychain(const TConnectionUrl& url) const;
  /// That of the session only.
  std::optional<std::string> InSession(const TConnectionUrl& url) const;
  /// Until the program ends.
  void KeepInSession(const TConnectionUrl& url, const std::string& password);
  /// In the session and in the keychain. `done` gets an empty text, or what the keychain says.
  void KeepInKeychain(const TConnectionUrl& url, const std::string& password, TDone done = {});
  /// Everywhere.
  void Forget(const TConnectionUrl& url, TDone done = {});

 private:
  // Called only while this object is there.
  TKeychain::TAnswered Guarded(TKeychain::TAnswered answered);

  std::unique_ptr<TKeychain> FKeychain;
  std::map<std::string, std::string> FSession;
  // By URL, as the session's.
  std::set<std::string> FInKeychain;
  TKeychainState FState = kcUnknown;
  QString FKeychainFault;
};

}  // namespace tolvi
