#include "apps/workbench/workspace/source.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QRegularExpression>

#include <tolvi/connect/connecturl.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

QString SourceName(const TSource& source) {
  const TConnectionUrl url = ParseConnectionUrl(source.Url);
  const QString database = ToQString(url.Database);
  if (url.Kind == dkSQLite) return QFileInfo(database).completeBaseName();
  return url.Host.empty() ? database : QStringLiteral("%1 (%2)").arg(database, ToQString(url.Host));
}

QString SourceKey(const TSource& source) {
  static const QRegularExpression others(QStringLiteral("[^A-Za-z0-9]+"));
  const QByteArray hash = QCryptographicHash::hash(QByteArray::fromStdString(source.Url), QCryptographicHash::Sha256);
  return SourceName(source).replace(others, QStringLiteral("-")).left(40) + u'-' +
         QString::fromLatin1(hash.toHex().left(8));
}

QJsonObject ToJson(const TSource& source) {
  return {{QStringLiteral("url"), ToQString(source.Url)},
          {QStringLiteral("model"), ToQString(source.ModelFile)},
          {QStringLiteral("queries"), ToQString(source.QueryFolder)},
          {QStringLiteral("queriesInDatabase"), source.QueriesInDatabase}};
}

TSource SourceFromJson(const QJsonObject& json) {
  const auto text = [&json](QLatin1String key) { return FromQString(json.value(key).toString()); };
  TSource source{{},
                 text(QLatin1String("model")),
                 text(QLatin1String("queries")),
                 json.value(QLatin1String("queriesInDatabase")).toBool()};
  try {
    source.Url = ParseConnectionUrl(text(QLatin1String("url"))).Shown();
  } catch (const EConnectError&) {
    source.Url.clear();
  }
  return source;
}

TSource SourceOf(const QString& fileOrUrl) {
  const std::string text = FromQString(fileOrUrl);
  TConnectionUrl url{.Kind = dkSQLite, .Database = text};
  if (IsConnectionUrl(text)) url = ParseConnectionUrl(text);
  if (url.Kind == dkSQLite && url.Database != ":memory:") {
    url.Database = FromQString(QFileInfo(ToQString(url.Database)).absoluteFilePath());
  }
  return {url.Shown()};
}

}  // namespace tolvi
