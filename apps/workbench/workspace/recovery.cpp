#include "apps/workbench/workspace/recovery.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QUuid>

#include <tolvi/foundation/files.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr QLatin1String Ending(".work"), LockEnding(".lock");

QByteArray ToJson(const TUnsavedWork& work) {
  QJsonObject json{{QStringLiteral("source"), ToJson(work.Source)},
                   {QStringLiteral("queryId"), ToQString(work.QueryId)},
                   {QStringLiteral("queryName"), ToQString(work.QueryName)},
                   {QStringLiteral("revision"), ToQString(work.Revision)}};
  if (work.QueryText) json.insert(QStringLiteral("query"), ToQString(*work.QueryText));
  if (work.ModelText) json.insert(QStringLiteral("model"), ToQString(*work.ModelText));
  return QJsonDocument(json).toJson();
}

std::optional<TUnsavedWork> FromJson(const QByteArray& text) {
  const QJsonObject json = QJsonDocument::fromJson(text).object();
  const auto part = [&json](QLatin1String key) -> std::optional<std::string> {
    const QJsonValue value = json.value(key);
    return value.isString() ? std::optional(FromQString(value.toString())) : std::nullopt;
  };
  TUnsavedWork work{SourceFromJson(json.value(QLatin1String("source")).toObject()),
                    part(QLatin1String("queryId")).value_or(std::string()),
                    part(QLatin1String("queryName")).value_or(std::string()),
                    part(QLatin1String("revision")).value_or(std::string()),
                    part(QLatin1String("query")),
                    part(QLatin1String("model"))};
  if (work.IsEmpty()) return std::nullopt;
  return work;
}

/// A lock is only the mark of a program that runs: it never grows old.
std::unique_ptr<QLockFile> LockOf(const QString& file) {
  auto lock = std::make_unique<QLockFile>(file + LockEnding);
  lock->setStaleLockTime(0);
  return lock;
}

}  // namespace

TRecovery::TRecovery(QString folder) : FFolder(std::move(folder)) {
  QDir().mkpath(FFolder);
  FFile = QDir(FFolder).filePath(QUuid::createUuid().toString(QUuid::WithoutBraces) + Ending);
  FLock = LockOf(FFile);
  FLock->tryLock();
}

TRecovery::~TRecovery() = default;

void TRecovery::Keep(const TUnsavedWork& work) {
  if (FKept && *FKept == work) return;
  if (work.IsEmpty()) {
    QFile::remove(FFile);
  } else {
    const QByteArray text = ToJson(work);
    WriteFileAtomically(ToPath(FFile), std::string_view(text.constData(), static_cast<std::size_t>(text.size())));
  }
  FKept = work;
}

std::optional<TUnsavedWork> TRecovery::Find() {
  const QDir folder(FFolder);
  for (const QString& name : folder.entryList({u'*' + Ending}, QDir::Files, QDir::Time)) {
    const QString path = folder.filePath(name);
    auto lock = LockOf(path);
    QFile file(path);
    if (path == FFile || !lock->tryLock() || !file.open(QIODevice::ReadOnly)) continue;
    if (std::optional<TUnsavedWork> work = FromJson(file.readAll())) {
      FFound = path;
      FFoundLock = std::move(lock);
      return work;
    }
  }
  return std::nullopt;
}

void TRecovery::Drop() {
  if (!FFound.isEmpty()) QFile::remove(FFound);
  FFound.clear();
  FFoundLock.reset();
}

}  // namespace tolvi
