#pragma once

#include <QObject>
#include <QString>
#include <functional>

#include <tolvi/connect/connecturl.h>
class QTimer;

namespace tolvi {

/// Opens a connection in the background to see whether that works. The window goes on meanwhile.
class TConnectionTest final : public QObject {
  Q_OBJECT

 public:
  explicit TConnectionTest(QObject* parent = nullptr);

  /// Gives up the one that runs. After `seconds`, `OnEnd` tells that there is no answer; an answer that comes later is
  /// not heard.
  void Start(const TConnectionUrl& url, int seconds);
  /// `OnEnd` is not called.
  void Stop();
  bool IsRunning() const;
  /// That a database of that kind has not answered, and what to look at.
  static QString NoAnswer(TDatabaseKind kind, int seconds);
  /// The words are the database's when it did not work.
  std::function<void(bool works, const QString& words)> OnEnd;

 private:
  void End(bool works, const QString& words);

  QTimer* FTimer;
  TDatabaseKind FKind = dkSQLite;
  unsigned FNumber = 0;
};

}  // namespace tolvi
