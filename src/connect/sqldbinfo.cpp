#include <QSqlRecord>
#include <optional>

#include <tolvi/connect/catalogue.h>
#include <tolvi/connect/sqldbinfo.h>
#include <tolvi/connect/sqllimits.h>
#include <tolvi/connect/sqlwatch.h>

namespace tolvi {
namespace {

/// Runs the statement and adds its values and captions; stops at the limit. `sql` was made of `madeOf`.
void ReadValues(const TSqlSession& session, std::string_view sql, std::string_view madeOf, std::size_t maxRows,
                TStrings& values, TStrings& items) {
  QSqlQuery query = RunSql(session.Database, sql, {}, madeOf);
  const int columns = query.record().count();
  std::size_t count = 0;
  while ((maxRows == 0 || count < maxRows) && NextRow(query, madeOf)) {
    const TSqlValue value = ToSqlValue(query.value(0), query.isNull(0));
    if (value.Kind == svNull) continue;
    const TSqlValue caption = columns > 1 ? ToSqlValue(query.value(1), query.isNull(1)) : value;
    values.Add(value.Text);
    items.Add(caption.Kind == svNull ? value.Text : caption.Text);
    ++count;
  }
}

}  // namespace

TFillOptions FillOptionsFor(TDatabaseKind kind) {
  TFillOptions options;
  options.QuoteMixedCase = kind == dkPostgreSQL;
  options.LinksFromNames = kind == dkODBC;
  return options;
}

TJSqlDBInfo::TJSqlDBInfo(std::string_view connectionName) : FConnectionName(connectionName) {}

TJSqlDBInfo::~TJSqlDBInfo() = default;

void TJSqlDBInfo::SetConnectionName(std::string_view name) {
  if (name == FConnectionName) return;
  FConnectionName = name;
  ConnectionChanged();
}

bool TJSqlDBInfo::GetConnected() const { return QSqlDatabase::database(ToQString(FConnectionName), false).isOpen(); }

void TJSqlDBInfo::Update() {
  FCatalogue.reset();
  ForgetFields();
}

void TJSqlDBInfo::DatabaseChanged() { Update(); }

void TJSqlDBInfo::ConnectionChanged() { Update(); }

const TSqlCatalogue& TJSqlDBInfo::Catalogue() {
  if (!FCatalogue) {
    FCatalogue = std::make_unique<TSqlCatalogue>(ReadCatalogue(SessionOf(FConnectionName), GetCurrentDBName()));
  }
  return *FCatalogue;
}

void TJSqlDBInfo::AvailableDatabases(TStrings& list) { list.AddStrings(ReadSchemaNames(SessionOf(FConnectionName))); }

void TJSqlDBInfo::TablesByDatabase(TStrings& list) {
  Update();
  for (const TSqlTable& table : Catalogue().Tables()) {
    if (table.Name != QueryTable) list.Add(ShownName(table));
  }
}

void TJSqlDBInfo::ViewsByDatabase(TStrings& list) {
  for (const TSqlTable& table : Catalogue().Tables()) {
    if (table.IsView) list.Add(ShownName(table));
  }
}

void TJSqlDBInfo::LinksByDatabase(TStrings& list) {
  for (const TSqlForeignKey& key : Catalogue().ForeignKeys()) list.Add(ShownLink(Catalogue(), key));
}

void TJSqlDBInfo::FieldsByTable(std::string_view tableName, TDBFieldList& fieldList) {
  const TSqlTable* table = Catalogue().ByShownName(tableName);
  if (table == nullptr) return;
  for (const TSqlColumn& column : table->Columns) fieldList.Add(column.Name, column.Type.Type, column.Type.Size);
}

void TJSqlDBInfo::KeysByTable(std::string_view tableName, TStrings& list) {
  if (const TSqlTable* table = Catalogue().ByShownName(tableName)) {
    for (const std::string& column : table->Key) list.Add(column);
  }
}

bool TJSqlDBInfo::GetSQLValues(std::string_view sql, TStrings& values, TStrings& items) {
  const TSqlSession session = SessionOf(FConnectionName);
  const TSqlLimits limits(session, FTimeout, FMaxRows);
  TSqlWatch watch(session);
  watch.Begin(FTimeout);
  TStrings newValues, newItems;
  try {
    ReadValues(session, limits.Limited(sql), sql, FMaxRows, newValues, newItems);
  } catch (const EConnectError& error) {
    if (!watch.IsLate()) throw;
    throw EConnectError("The statement took longer than %d milliseconds: %s", {FTimeout.count(), error.what()});
  }
  values.AddStrings(newValues);
  items.AddStrings(newItems);
  return true;
}

}  // namespace tolvi
