#include "apps/workbench/connection/keychain.h"

#include <QObject>
#include <utility>

#include <qt6keychain/keychain.h>

namespace tolvi {
namespace {

TKeychainAnswer AnswerOf(const QKeychain::Job& job) {
  const bool isKnown = job.error() == QKeychain::NoError;
  return {isKnown || job.error() == QKeychain::EntryNotFound ? QString() : job.errorString(), isKnown};
}

class TSystemKeychain final : public TKeychain {
 public:
  void Read(const QString& key, TAnswered answered) override {
    auto* job = Make<QKeychain::ReadPasswordJob>(key);
    QObject::connect(job, &QKeychain::Job::finished, job, [answered = std::move(answered)](QKeychain::Job* done) {
      TKeychainAnswer answer = AnswerOf(*done);
      if (answer.IsKnown) answer.Password = static_cast<QKeychain::ReadPasswordJob*>(done)->textData();
      answered(answer);
    });
    job->start();
  }

  void Write(const QString& key, const QString& password, TAnswered answered) override {
    auto* job = Make<QKeychain::WritePasswordJob>(key);
    job->setTextData(password);
    Start(job, std::move(answered));
  }

  void Delete(const QString& key, TAnswered answered) override {
    Start(Make<QKeychain::DeletePasswordJob>(key), std::move(answered));
  }

 private:
  template <typename TJob>
  static TJob* Make(const QString& key) {
    auto* job = new TJob(QStringLiteral("tolvi-workbench"));
    job->setAutoDelete(true);
    job->setInsecureFallback(false);
    job->setKey(key);
    return job;
  }

  static void Start(QKeychain::Job* job, TAnswered answered) {
    QObject::connect(job, &QKeychain::Job::finished, job,
                     [answered = std::move(answered)](const QKeychain::Job* done) { answered(AnswerOf(*done)); });
    job->start();
  }
};

}  // namespace

std::unique_ptr<TKeychain> SystemKeychain() { return std::make_unique<TSystemKeychain>(); }

}  // namespace tolvi
