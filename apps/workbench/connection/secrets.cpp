#include "apps/workbench/connection/secrets.h"

#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <utility>

#include <tolvi/ui/controls/waitcursor.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// What tells whether there is a keychain at all; nothing is stored there.
QString ProbeKey() { return QStringLiteral("probe"); }

QString KeyOf(const TConnectionUrl& url) { return ToQString(url.Shown()); }

}  // namespace

TSecrets::TSecrets(std::unique_ptr<TKeychain> keychain, QObject* parent)
    : QObject(parent), FKeychain(std::move(keychain)) {
  FKeychain->Read(ProbeKey(), Guarded([this](const TKeychainAnswer& answer) {
                    FState = answer.Fault.isEmpty() ? kcReady : kcNone;
                    FKeychainFault = answer.Fault;
                    if (const auto handler = OnKeychain) handler();
                  }));
}

TKeychain::TAnswered TSecrets::Guarded(TKeychain::TAnswered answered) {
  return [self = QPointer(this), answered = std::move(answered)](const TKeychainAnswer& answer) {
    if (self) answered(answer);
  };
}

TSecrets::TKeychainState TSecrets::WaitForKeychain(int milliseconds) {
  if (FState != kcUnknown) return FState;
  const QPointer<TSecrets> self = this;
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  const auto handler = std::exchange(OnKeychain, {});
  OnKeychain = [&loop] { loop.quit(); };
  {
    const TWaitCursor wait;
    loop.exec(QEventLoop::ExcludeUserInputEvents);
  }
  if (!self) return kcNone;
  OnKeychain = handler;
  if (FState != kcUnknown && handler) handler();
  return self ? FState : kcNone;
}

bool TSecrets::IsInKeychain(const TConnectionUrl& url) const { return FInKeychain.count(url.Shown()) != 0; }

std::optional<std::string> TSecrets::InSession(const TConnectionUrl& url) const {
  const auto found = FSession.find(url.Shown());
  return found == FSession.end() ? std::nullopt : std::optional(found->second);
}

void TSecrets::Find(const TConnectionUrl& url, TFound found) {
  if (const auto password = InSession(url); password || FState == kcNone) {
    QMetaObject::invokeMethod(
        this, [found = std::move(found), password] { found(password); }, Qt::QueuedConnection);
    return;
  }
  FKeychain->Read(KeyOf(url), Guarded([this, url, found = std::move(found)](const TKeychainAnswer& answer) {
                    if (answer.IsKnown) FInKeychain.insert(url.Shown());
                    // One that was typed meanwhile is the newer one.
                    if (const auto typed = InSession(url)) return found(typed);
                    if (!answer.IsKnown) return found(std::nullopt);
                    const std::string password = FromQString(answer.Password);
                    KeepInSession(url, password);
                    found(password);
                  }));
}

std::optional<std::string> TSecrets::WaitFor(const TConnectionUrl& url, int milliseconds) {
  // Outlives this call, should the keychain answer later.
  struct TWait {
    std::optional<std::string> Password;
    QPointer<QEventLoop> Loop;
  };
  QEventLoop loop;
  const auto wait = std::make_shared<TWait>();
  wait->Loop = &loop;
  Find(url, [wait](std::optional<std::string> password) {
    wait->Password = std::move(password);
    if (wait->Loop) wait->Loop->quit();
  });
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  const TWaitCursor cursor;
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  return wait->Password;
}

void TSecrets::KeepInSession(const TConnectionUrl& url, const std::string& password) {
  FSession[url.Shown()] = password;
}

void TSecrets::KeepInKeychain(const TConnectionUrl& url, const std::string& password, TDone done) {
  KeepInSession(url, password);
  FKeychain->Write(KeyOf(url), ToQString(password),
                   Guarded([this, url, done = std::move(done)](const TKeychainAnswer& answer) {
                     if (answer.Fault.isEmpty()) FInKeychain.insert(url.Shown());
                     if (done) done(answer.Fault);
                   }));
}

void TSecrets::Forget(const TConnectionUrl& url, TDone done) {
  FSession.erase(url.Shown());
  FInKeychain.erase(url.Shown());
  FKeychain->Delete(KeyOf(url), Guarded([this, done = std::move(done)](const TKeychainAnswer& answer) {
                      if (done) done(FState == kcNone ? QString() : answer.Fault);
                    }));
}

}  // namespace tolvi
