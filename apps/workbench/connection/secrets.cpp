#include "apps/workbench/connection/secrets.h"

#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <utility>

#include <qt6keychain/keychain.h>

#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

QString Service() { return QStringLiteral("tolvi-workbench"); }

/// What tells whether there is a keychain at all; nothing is stored there.
QString ProbeKey() { return QStringLiteral("probe"); }

template <typename TJob>
TJob* MakeJob(const QString& key) {
  auto* job = new TJob(Service());
  job->setAutoDelete(true);
  job->setInsecureFallback(false);
  job->setKey(key);
  return job;
}

QString KeyOf(const TConnectionUrl& url) { return ToQString(url.Shown()); }

QString FaultOf(const QKeychain::Job& job) {
  return job.error() == QKeychain::NoError || job.error() == QKeychain::EntryNotFound ? QString() : job.errorString();
}

}  // namespace

TSecrets::TSecrets(QObject* parent) : QObject(parent) {
  auto* job = MakeJob<QKeychain::ReadPasswordJob>(ProbeKey());
  connect(job, &QKeychain::Job::finished, this, [this](const QKeychain::Job* done) {
    const QString fault = FaultOf(*done);
    Known(done->error() == QKeychain::NoError || done->error() == QKeychain::EntryNotFound ? kcReady : kcNone, fault);
  });
  job->start();
}

void TSecrets::Known(TKeychain keychain, const QString& fault) {
  FKeychain = keychain;
  FKeychainFault = fault;
  if (const auto handler = OnKeychain) handler();
}

TSecrets::TKeychain TSecrets::WaitForKeychain(int milliseconds) {
  if (FKeychain != kcUnknown) return FKeychain;
  const QPointer<TSecrets> self = this;
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  const auto handler = std::exchange(OnKeychain, {});
  OnKeychain = [&loop] { loop.quit(); };
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  if (!self) return kcNone;
  OnKeychain = handler;
  if (FKeychain != kcUnknown && handler) handler();
  return self ? FKeychain : kcNone;
}

std::optional<std::string> TSecrets::InSession(const TConnectionUrl& url) const {
  const auto found = FSession.find(url.Shown());
  return found == FSession.end() ? std::nullopt : std::optional(found->second);
}

void TSecrets::Find(const TConnectionUrl& url, TFound found) {
  if (const auto password = InSession(url); password || FKeychain == kcNone) {
    QMetaObject::invokeMethod(
        this, [found = std::move(found), password] { found(password); }, Qt::QueuedConnection);
    return;
  }
  auto* job = MakeJob<QKeychain::ReadPasswordJob>(KeyOf(url));
  connect(job, &QKeychain::Job::finished, this, [this, url, found = std::move(found)](QKeychain::Job* done) {
    if (done->error() != QKeychain::NoError) return found(std::nullopt);
    const std::string password = FromQString(static_cast<QKeychain::ReadPasswordJob*>(done)->textData());
    KeepInSession(url, password);
    found(password);
  });
  job->start();
}

void TSecrets::KeepInSession(const TConnectionUrl& url, const std::string& password) {
  FSession[url.Shown()] = password;
}

void TSecrets::KeepInKeychain(const TConnectionUrl& url, const std::string& password, TDone done) {
  KeepInSession(url, password);
  auto* job = MakeJob<QKeychain::WritePasswordJob>(KeyOf(url));
  job->setTextData(ToQString(password));
  connect(job, &QKeychain::Job::finished, this, [done = std::move(done)](const QKeychain::Job* job) {
    if (done) done(FaultOf(*job));
  });
  job->start();
}

void TSecrets::Forget(const TConnectionUrl& url, TDone done) {
  FSession.erase(url.Shown());
  auto* job = MakeJob<QKeychain::DeletePasswordJob>(KeyOf(url));
  connect(job, &QKeychain::Job::finished, this, [this, done = std::move(done)](const QKeychain::Job* job) {
    if (done) done(FKeychain == kcNone ? QString() : FaultOf(*job));
  });
  job->start();
}

}  // namespace tolvi
