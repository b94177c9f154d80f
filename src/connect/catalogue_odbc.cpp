#include <QMetaType>
#include <QSqlDriver>
#include <QSqlField>
#include <QSqlIndex>
#include <QSqlRecord>
#include <QStringList>

#include <tolvi/connect/catalogue.h>

namespace tolvi {
namespace {

class TReader final {
 public:
  explicit TReader(const QSqlDatabase& database) : FDatabase(database) {}

  TSqlCatalogue Read() {
    ReadTables(QSql::Tables, false);
    ReadTables(QSql::Views, true);
    return std::move(FResult);
  }

 private:
  void ReadTables(QSql::TableType type, bool isView) {
    QStringList names = FDatabase.tables(type);
    names.sort(Qt::CaseInsensitive);
    for (const QString& name : names) ReadTable(name, isView);
  }

  void ReadTable(const QString& name, bool isView) {
    const std::size_t count = FResult.Tables().size();
    const std::size_t number = FResult.AddTable({}, FromQString(name), isView, false);
    // Of another schema.
    if (number < count) return;
    // Names may hold what parts of a name are divided by.
    const bool isClear = !name.contains(QLatin1Char('.'));
    const QSqlRecord record =
        FDatabase.record(isClear ? name : FDatabase.driver()->escapeIdentifier(name, QSqlDriver::TableName));
    TSqlTable& table = FResult.Table(number);
    for (int i = 0; i < record.count(); ++i) {
      const QSqlField field = record.field(i);
      table.Columns.push_back({FromQString(field.name()),
                               OdbcColumnType(field.typeID(), field.metaType(), field.length(), field.precision())});
    }
    if (isView) return;
    const QSqlIndex key = FDatabase.primaryIndex(name);
    for (int i = 0; i < key.count(); ++i) table.Key.push_back(FromQString(key.fieldName(i)));
  }

  const QSqlDatabase FDatabase;
  TSqlCatalogue FResult;
};

}  // namespace

TSqlCatalogue ReadOdbcCatalogue(const QSqlDatabase& database, std::string_view) { return TReader(database).Read(); }

}  // namespace tolvi
