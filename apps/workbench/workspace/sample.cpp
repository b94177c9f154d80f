#include "apps/workbench/workspace/sample.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/files.h>
#include <tolvi/query/queryhead.h>
#include <tolvi/store/queryfiles.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

const QString Root = QStringLiteral(":/sample");

std::string Stored(const QString& name) {
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) throw EFileError("the program lacks its sample: " + FromQString(name));
  return file.readAll().toStdString();
}

/// The files of the samples have names for programmers; here, they are for people.
void CopyQuery(const QString& name, const QDir& folder) {
  const std::string text = Stored(name);
  WriteFileAtomically(ToPath(folder.filePath(ToQString(QueryFileName(ReadQueryHead(text).Name)))), text);
}

}  // namespace

TSource UnpackSample(const QString& folder) {
  const QDir place(folder);
  const QString database = place.filePath(QStringLiteral("shop.sqlite")),
                model = place.filePath(QStringLiteral("shop.model")),
                queries = place.filePath(QStringLiteral("queries"));
  // The database is the last: with it, the sample is whole.
  if (!QFileInfo::exists(database)) {
    if (!QDir().mkpath(queries)) {
      throw EFileError(FromQString(
          QCoreApplication::translate("tolvi::TWorkspace",
                                      "The sample cannot be put into %1: the folder cannot be made. The option --home "
                                      "names another place.")
              .arg(QDir::toNativeSeparators(folder))));
    }
    const QDir stored(Root + QStringLiteral("/queries"));
    for (const QString& name : stored.entryList()) CopyQuery(stored.filePath(name), QDir(queries));
    for (const QString& file : {model, database}) {
      WriteFileAtomically(ToPath(file), Stored(Root + u'/' + QFileInfo(file).fileName()));
    }
  }
  return {SourceOf(database).Url, FromQString(model), FromQString(queries), false};
}

QString RestoreSample(const QString& folder) {
  QString kept;
  if (QFileInfo::exists(folder)) {
    kept = folder + QDateTime::currentDateTime().toString(QStringLiteral("-yyyyMMdd-HHmmss"));
    if (!QDir().rename(folder, kept)) {
      throw EFileError(FromQString(
          QCoreApplication::translate("tolvi::TWorkspace", "The sample stays as it is: %1 cannot be renamed.")
              .arg(QDir::toNativeSeparators(folder))));
    }
  }
  UnpackSample(folder);
  return kept;
}

}  // namespace tolvi
