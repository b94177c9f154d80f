#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QMetaType>
#include <QSqlDriver>
#include <algorithm>
#include <charconv>
#include <clocale>
#include <cstdint>
#include <iterator>

#include <tolvi/connect/sqlaccess.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

struct TDriver {
  QLatin1String Name;
  TDatabaseKind Kind;
};
/// The first driver of a kind is the one to open.
const TDriver Drivers[] = {{QLatin1String("QSQLITE"), dkSQLite},
                           {QLatin1String("QPSQL"), dkPostgreSQL},
                           {QLatin1String("QMYSQL"), dkMySQL},
                           {QLatin1String("QMARIADB"), dkMySQL},
                           {QLatin1String("QODBC"), dkODBC}};

/// By the numbers that the databases give their types.
struct TTypeAsText {
  TDatabaseKind Kind;
  int TypeId;
  TSqlValueKind ValueKind;
};
constexpr TTypeAsText TypesAsText[] = {
    {dkPostgreSQL, 1700, svNumber},  // numeric
    {dkMySQL, 0, svNumber},          // decimal of old servers
    {dkMySQL, 246, svNumber},        // decimal
    {dkMySQL, 4, svNumber},          // float
    {dkMySQL, 5, svNumber},          // double
    {dkMySQL, 11, svTime},           // time, which is more than a time of day
    {dkODBC, 2, svNumber},           // numeric
    {dkODBC, 3, svNumber},           // decimal
    {dkODBC, 6, svNumber},           // float
    {dkODBC, 7, svNumber},           // real
    {dkODBC, 8, svNumber},           // double
};

std::string DoubleText(double number) {
  std::string text = FloatToStr(number);
  if (TryStrToFloat(text) == number) return text;
  char buffer[32];
  return {buffer, std::to_chars(buffer, std::end(buffer), number).ptr};
}

std::string TimeText(const QTime& time) {
  return FromQString(time.toString(time.msec() != 0 ? QStringLiteral("hh:mm:ss.zzz") : QStringLiteral("hh:mm:ss")));
}

std::string DateText(const QDate& date) { return FromQString(date.toString(QStringLiteral("yyyy-MM-dd"))); }

/// Of values that are there, so that an empty one is no NULL.
TSqlValue ToTypedValue(const QVariant& value) {
  switch (value.metaType().id()) {
    case QMetaType::Bool:
      return {svBoolean, value.toBool() ? "true" : "false"};
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
      return {svNumber, std::to_string(value.toLongLong())};
    case QMetaType::UChar:
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
      return {svNumber, std::to_string(value.toULongLong())};
    case QMetaType::Float:
    case QMetaType::Double:
      return {svNumber, DoubleText(value.toDouble())};
    case QMetaType::QDate:
      return {svDate, DateText(value.toDate())};
    case QMetaType::QTime:
      return {svTime, TimeText(value.toTime())};
    case QMetaType::QDateTime: {
      const QDateTime dateTime = value.toDateTime();
      if (!dateTime.isValid()) return {svDateTime, {}};
      return {svDateTime, DateText(dateTime.date()) + ' ' + TimeText(dateTime.time())};
    }
    case QMetaType::QByteArray:
      return {svBytes, value.toByteArray().toStdString()};
    default:
      return {svText, FromQString(value.toString())};
  }
}

}  // namespace

QString ToQString(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

std::string FromQString(const QString& text) { return text.toUtf8().toStdString(); }

void EnsureApplication() {
  if (QCoreApplication::instance() != nullptr) return;
  static int count = 1;
  static char name[] = "tolvi";
  static char* arguments[] = {name, nullptr};
  // It takes the system's locale for the whole process and complains where that is no UTF-8: neither is wanted here.
  const std::string locale = std::setlocale(LC_ALL, nullptr);
  const QtMessageHandler handler = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  // Never destroyed: connections may be closed later than any static object is.
  static QCoreApplication* const application = new QCoreApplication(count, arguments);
  qInstallMessageHandler(handler);
  std::setlocale(LC_ALL, locale.c_str());
  static_cast<void>(application);
}

QString DriverOf(TDatabaseKind kind) {
  return std::find_if(std::begin(Drivers), std::end(Drivers),
                      [kind](const TDriver& driver) { return driver.Kind == kind; })
      ->Name;
}

TSqlSession SessionOf(std::string_view connectionName) {
  const QSqlDatabase database = QSqlDatabase::database(ToQString(connectionName), false);
  if (!database.isValid()) {
    throw EConnectError(
        "There is no connection \"%s\" in this thread: open it first, and use it in the thread that opened it",
        {connectionName});
  }
  if (!database.isOpen()) {
    throw EConnectError("The connection \"%s\" is closed: open it first", {connectionName});
  }
  const QString name = database.driverName();
  const auto* found = std::find_if(std::begin(Drivers), std::end(Drivers),
                                   [&name](const TDriver& driver) { return driver.Name == name; });
  if (found == std::end(Drivers)) {
    throw EConnectError("The connection \"%s\" uses the driver %s; only SQLite, PostgreSQL, MySQL and ODBC are known",
                        {connectionName, FromQString(name)});
  }
  return {database, found->Kind};
}

std::string WordsOf(const QSqlError& error) {
  const std::string words = FromQString(error.databaseText().isEmpty() ? error.driverText() : error.databaseText());
  return std::string(Trim(words));
}

void RaiseStatementError(const QSqlError& error, std::string_view sql) {
  throw EConnectError("%s\r\nStatement: %s", {WordsOf(error), sql});
}

QSqlQuery RunSql(const QSqlDatabase& database, std::string_view sql, const QVariantList& values,
                 std::string_view madeOf) {
  QSqlQuery query(database);
  query.setForwardOnly(true);
  query.setNumericalPrecisionPolicy(QSql::HighPrecision);
  const QString text = ToQString(sql);
  bool isDone = false;
  if (values.isEmpty()) {
    isDone = query.exec(text);
  } else if (query.prepare(text)) {
    for (const QVariant& value : values) query.addBindValue(value);
    isDone = query.exec();
  }
  if (!isDone) RaiseStatementError(query.lastError(), madeOf.empty() ? sql : madeOf);
  return query;
}

bool NextRow(QSqlQuery& query, std::string_view sql) {
  if (query.next()) return true;
  if (query.lastError().isValid()) RaiseStatementError(query.lastError(), sql);
  return false;
}

std::string TextAt(const QSqlQuery& query, int column) { return FromQString(query.value(column).toString()); }

std::string QuotedName(std::string_view name, TDatabaseKind kind) {
  return QuotedString(name, kind == dkMySQL ? '`' : '"');
}

TSqlValueKind KindOfTexts(TDatabaseKind kind, int typeId) {
  const auto* found = std::find_if(std::begin(TypesAsText), std::end(TypesAsText),
                                   [=](const TTypeAsText& type) { return type.Kind == kind && type.TypeId == typeId; });
  return found == std::end(TypesAsText) ? svText : found->ValueKind;
}

TSqlValue ToSqlValue(const QVariant& value, bool isNull, TSqlValueKind kindOfTexts) {
  if (isNull || !value.isValid()) return {};
  TSqlValue result = ToTypedValue(value);
  if (result.Kind == svText) result.Kind = kindOfTexts;
  return result;
}

}  // namespace tolvi
