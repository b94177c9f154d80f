#include "apps/workbench/connection/connectiontest.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>
#include <QTimer>
#include <exception>

#include <tolvi/connect/sqlconnection.h>
#include <tolvi/connect/sqldbinfo.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

struct TAnswer {
  bool Works = false;
  int Tables = 0;
  QString Words;
};

/// In a thread of its own.
TAnswer Connect(const TConnectionUrl& url, int seconds) {
  TAnswer answer;
  try {
    const TSqlConnection connection(url, {.ReadOnly = true, .TimeoutSeconds = seconds});
    TJSqlDBInfo info(connection.GetName());
    TStrings tables;
    info.GetTableNames(tables);
    answer.Works = true;
    answer.Tables = static_cast<int>(tables.Count());
  } catch (const EException& error) {
    answer.Words = ToQString(error.Message());
  } catch (const std::exception& error) {
    answer.Words = QString::fromUtf8(error.what());
  }
  return answer;
}

}  // namespace

TConnectionTest::TConnectionTest(QObject* parent) : QObject(parent), FTimer(new QTimer(this)) {
  constexpr int MillisecondsPerSecond = 1000;
  FTimer->setSingleShot(true);
  connect(FTimer, &QTimer::timeout, this, [this] {
    End(false, tr("There was no answer within %n second(s): check host and port.", nullptr,
                  FTimer->interval() / MillisecondsPerSecond));
  });
}

bool TConnectionTest::IsRunning() const { return FTimer->isActive(); }

void TConnectionTest::Start(const TConnectionUrl& url, int seconds) {
  constexpr int MillisecondsPerSecond = 1000;
  Stop();
  FTimer->start(seconds * MillisecondsPerSecond);
  const QPointer<TConnectionTest> self = this;
  const auto tell = [self, number = FNumber](const TAnswer& answer) {
    if (!self || self->FNumber != number) return;
    self->End(answer.Works,
              answer.Works ? tr("The connection works; %n table(s) found.", nullptr, answer.Tables) : answer.Words);
  };
  // One that hangs keeps no other from starting.
  QThreadPool& pool = *QThreadPool::globalInstance();
  pool.reserveThread();
  pool.startOnReservedThread([url, seconds, tell] {
    const TAnswer answer = Connect(url, seconds);
    if (QCoreApplication* app = QCoreApplication::instance()) {
      QMetaObject::invokeMethod(
          app, [tell, answer] { tell(answer); }, Qt::QueuedConnection);
    }
  });
}

void TConnectionTest::Stop() {
  ++FNumber;
  FTimer->stop();
}

void TConnectionTest::End(bool works, const QString& words) {
  Stop();
  if (const auto handler = OnEnd) handler(works, words);
}

}  // namespace tolvi
