#include "apps/workbench/workspace/settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <algorithm>
#include <utility>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/files.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr std::size_t MaxRecent = 12;
constexpr QLatin1String Themes[] = {QLatin1String("system"), QLatin1String("light"), QLatin1String("dark")};

QString Base64(const QByteArray& bytes) { return QString::fromLatin1(bytes.toBase64()); }

QJsonObject ToJson(const TSettings& settings) {
  QJsonArray recent;
  for (const TSource& source : settings.Recent) recent.append(ToJson(source));
  return {{QStringLiteral("language"), settings.Language},
          {QStringLiteral("theme"), Themes[settings.Theme]},
          {QStringLiteral("fontSize"), settings.FontSize},
          {QStringLiteral("preview"), settings.Preview},
          {QStringLiteral("previewRows"), settings.PreviewRows},
          {QStringLiteral("maxRows"), static_cast<qint64>(settings.MaxRows)},
          {QStringLiteral("allowSQLFragments"), settings.AllowSQLFragments},
          {QStringLiteral("recent"), recent},
          {QStringLiteral("lastQueries"), settings.LastQueries},
          {QStringLiteral("geometry"), Base64(settings.Geometry)},
          {QStringLiteral("layout"), Base64(settings.Layout)},
          {QStringLiteral("exportFolder"), settings.ExportFolder},
          {QStringLiteral("exportFormat"), settings.ExportFormat},
          {QStringLiteral("orders"), settings.Orders},
          {QStringLiteral("syntaxes"), settings.Syntaxes},
          {QStringLiteral("params"), settings.Params}};
}

/// What is missing or out of range keeps its default.
TSettings FromJson(const QJsonObject& json) {
  TSettings settings;
  const auto text = [&json](QLatin1String key) { return json.value(key).toString(); };
  const auto bytes = [&text](QLatin1String key) { return QByteArray::fromBase64(text(key).toLatin1()); };
  const auto number = [&json](QLatin1String key, qint64 low, qint64 high, qint64 otherwise) {
    const qint64 value = json.value(key).toInteger(otherwise);
    return value < low || value > high ? otherwise : value;
  };
  settings.Language = text(QLatin1String("language"));
  const auto theme = std::find(std::begin(Themes), std::end(Themes), text(QLatin1String("theme")));
  if (theme != std::end(Themes)) settings.Theme = static_cast<TTheme>(theme - std::begin(Themes));
  settings.FontSize = static_cast<int>(number(QLatin1String("fontSize"), 6, 48, 0));
  settings.Preview = json.value(QLatin1String("preview")).toBool(settings.Preview);
  settings.PreviewRows = static_cast<int>(number(QLatin1String("previewRows"), 1, 10'000, settings.PreviewRows));
  settings.MaxRows = number(QLatin1String("maxRows"), 0, INT32_MAX, settings.MaxRows);
  settings.AllowSQLFragments = json.value(QLatin1String("allowSQLFragments")).toBool();
  for (const QJsonValueRef source : json.value(QLatin1String("recent")).toArray()) {
    if (TSource known = SourceFromJson(source.toObject()); !known.Url.empty())
      settings.Recent.push_back(std::move(known));
  }
  settings.LastQueries = json.value(QLatin1String("lastQueries")).toObject();
  settings.Geometry = bytes(QLatin1String("geometry"));
  settings.Layout = bytes(QLatin1String("layout"));
  settings.ExportFolder = text(QLatin1String("exportFolder"));
  settings.ExportFormat = text(QLatin1String("exportFormat"));
  settings.Orders = json.value(QLatin1String("orders")).toObject();
  settings.Syntaxes = json.value(QLatin1String("syntaxes")).toObject();
  settings.Params = json.value(QLatin1String("params")).toArray();
  return settings;
}

// What two programs change in one file: `base` is what both began with, `mine` wins where both have changed the same.

QJsonObject Merged(const QJsonObject& base, const QJsonObject& mine, const QJsonObject& theirs) {
  QJsonObject merged = theirs;
  for (const QString& key : base.keys()) {
    if (!mine.contains(key)) merged.remove(key);
  }
  for (auto entry = mine.begin(); entry != mine.end(); ++entry) {
    const QString key = entry.key();
    const QJsonValue was = base.value(key), own = entry.value(), other = theirs.value(key);
    if (own == was && theirs.contains(key)) continue;
    merged.insert(key, own.isObject() && other.isObject()
                           ? QJsonValue(Merged(was.toObject(), own.toObject(), other.toObject()))
                           : own);
  }
  return merged;
}

/// Lists in the order of their use, items of `size` values: mine first, then what is new among the others.
QJsonArray MergedList(const QJsonArray& base, const QJsonArray& mine, const QJsonArray& theirs, qsizetype size) {
  const auto has = [size](const QJsonArray& list, const QJsonValue& item) {
    for (qsizetype i = 0; i < list.size(); i += size) {
      if (list.at(i) == item) return true;
    }
    return false;
  };
  QJsonArray merged = mine;
  for (qsizetype i = 0; i + size <= theirs.size(); i += size) {
    if (has(base, theirs.at(i)) || has(mine, theirs.at(i))) continue;
    for (qsizetype part = 0; part < size; ++part) merged.append(theirs.at(i + part));
  }
  return merged;
}

}  // namespace

void TSettings::Remember(const TSource& source) {
  // Another model or folder for a database takes the place of the former one.
  Recent.erase(
      std::remove_if(Recent.begin(), Recent.end(), [&source](const TSource& known) { return known.Url == source.Url; }),
      Recent.end());
  Recent.insert(Recent.begin(), source);
  if (Recent.size() > MaxRecent) Recent.resize(MaxRecent);
}

TSettingsFile::TSettingsFile(QString file) : FFile(std::move(file)) {
  QFile stored(FFile);
  if (!stored.open(QIODevice::ReadOnly)) return;
  QJsonParseError error;
  const QJsonDocument json = QJsonDocument::fromJson(stored.readAll(), &error);
  if (json.isObject()) {
    Settings = FromJson(json.object());
    FSaved = ToJson(Settings);
    return;
  }
  const QString broken = FFile + QStringLiteral(".broken");
  QFile::remove(broken);
  QFile::rename(FFile, broken);
  FNote = QCoreApplication::translate("tolvi::TSettingsFile",
                                      "The settings could not be read (%1): they are the default ones now. The file "
                                      "is kept as %2.")
              .arg(error.errorString(), QDir::toNativeSeparators(broken));
}

void TSettingsFile::Save() {
  const QJsonObject mine = ToJson(Settings);
  if (mine == FSaved) return;
  QJsonObject all = mine;
  if (QFile stored(FFile); stored.open(QIODevice::ReadOnly)) {
    const QJsonObject theirs = QJsonDocument::fromJson(stored.readAll()).object();
    all = Merged(FSaved, mine, theirs);
    for (const auto& [key, size] : {std::pair{QLatin1String("recent"), 1}, {QLatin1String("params"), 2}}) {
      all.insert(key,
                 MergedList(FSaved.value(key).toArray(), mine.value(key).toArray(), theirs.value(key).toArray(), size));
    }
  }
  QDir().mkpath(QFileInfo(FFile).absolutePath());
  const QByteArray text = QJsonDocument(all).toJson();
  WriteFileAtomically(ToPath(FFile), std::string_view(text.constData(), static_cast<std::size_t>(text.size())));
  Settings = FromJson(all);
  FSaved = ToJson(Settings);
}

}  // namespace tolvi
