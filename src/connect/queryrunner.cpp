#include <QSqlField>
#include <QSqlRecord>
#include <algorithm>

#include <tolvi/connect/boundsql.h>
#include <tolvi/connect/queryrunner.h>
#include <tolvi/connect/sqlaccess.h>
#include <tolvi/connect/sqlwatch.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/paramvalues.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {
namespace {

bool IsComplete(const TBoundStatement& statement) {
  return std::none_of(statement.Values.begin(), statement.Values.end(),
                      [](const TBoundValue& value) { return value.IsMissing; });
}

/// Makes `copy` say what the query says, with the host's settings.
void CopyQuery(TJQueryPanel& panel, TJQueryPanel& copy) {
  copy.SetDBStruct(panel.GetDBStruct());
  copy.SetFormatSettings(panel.GetFormatSettings());
  copy.SetAllowSQLFragments(panel.GetAllowSQLFragments());
  copy.OnBuildSQL = panel.OnBuildSQL;
  const bool isModified = panel.GetModified();
  TStrings lines;
  panel.SaveToStrings(lines);
  panel.SetModified(isModified);
  copy.LoadFromStrings(lines);
  copy.SetSQLOptions(panel.GetSQLOptions());
  copy.SetSQLSyntax(panel.GetSQLSyntax());
  if (panel.GetQueryTopClause().empty()) copy.SetSQLTopClause(panel.GetSQLTopClause());
  if (panel.GetQueryLimitClause().empty()) copy.SetSQLLimitClause(panel.GetSQLLimitClause());
  copy.SetActive(panel.GetActive());
}

/// The statement with values for the parameters that have none.
class TCompletion final {
 public:
  TCompletion(TJQueryPanel& panel, const TJQueryRunner::TParamRequestEvent& onRequest)
      : FOnRequest(onRequest), FParams(ListParams(panel)) {
    CopyQuery(panel, FCopy);
  }

  TBoundStatement Complete(const TBoundStatement& statement) {
    for (const TBoundValue& value : statement.Values) {
      if (value.IsMissing && !FGiven.contains(value.Name)) Ask(value);
    }
    TBoundStatement result = FCopy.GetBoundStatement();
    TakeEmptyTexts(result, FCopy, FGiven);
    for (const TBoundValue& value : result.Values) {
      if (value.IsMissing) Refuse(value.Name);
    }
    return result;
  }

 private:
  [[noreturn]] static void Refuse(std::string_view name) {
    throw EConnectError("The parameter \"%s\" has no value: give it one to run the query", {name});
  }

  static const TParamInfo* Find(const std::vector<TParamInfo>& params, std::string_view name) {
    const auto found = std::find_if(params.begin(), params.end(),
                                    [name](const TParamInfo& info) { return SameText(info.Name, name); });
    return found == params.end() ? nullptr : &*found;
  }

  void Ask(const TBoundValue& value) {
    const TParamInfo* param = Find(FParams, value.Name);
    const std::string displayName = param == nullptr ? value.Name : param->DisplayName;
    const auto given = FOnRequest ? FOnRequest(value.Name, displayName, value.Type) : std::nullopt;
    if (!given) Refuse(displayName);
    FGiven.insert(value.Name);
    SetParamValue(FCopy, value.Name, *given);
  }

  const TJQueryRunner::TParamRequestEvent& FOnRequest;
  // Those of the query itself: its text, and so the copy, knows no display names.
  std::vector<TParamInfo> FParams;
  TJQueryPanel FCopy;
  TParamNames FGiven;
};

}  // namespace

struct TJQueryRunner::TState {
  using TClock = std::chrono::steady_clock;

  explicit TState(std::string_view connectionName) : ConnectionName(connectionName) {}

  void Begin(const TBoundStatement& statement, bool quotedBooleans) {
    Close();
    const TSqlSession session = SessionOf(ConnectionName);
    Sql = SqlOf(statement, session.Kind);
    const QVariantList values = ValuesOf(statement, session.Kind, quotedBooleans);
    {
      const std::lock_guard lock(Mutex);
      Watch = std::make_unique<TSqlWatch>(session);
    }
    Timed([&] {
      Watch->Begin();
      Query = RunSql(session.Database, Sql, values);
    });
    const QSqlRecord record = Query->record();
    for (int i = 0; i < record.count(); ++i) {
      Columns.push_back(FromQString(record.fieldName(i)));
      TextKinds.push_back(KindOfTexts(session.Kind, record.field(i).typeID()));
    }
  }

  bool Next() {
    HasRow = false;
    if (!Watch) return false;
    Timed([this] {
      if (Watch->IsCancelled()) throw EConnectError("");
      HasRow = NextRow(*Query, Sql);
    });
    if (HasRow) {
      ++RowCount;
    } else {
      Stop();
    }
    return HasRow;
  }

  /// Adds the time that the database takes. A failure is the end of the statement.
  template <typename TCall>
  void Timed(TCall call) {
    const TClock::time_point start = TClock::now();
    try {
      call();
    } catch (const EConnectError&) {
      Time += std::chrono::duration_cast<std::chrono::microseconds>(TClock::now() - start);
      const bool isCancelled = Watch->IsCancelled();
      Stop();
      if (isCancelled) throw ECancelledError("The statement was cancelled after %d rows", {RowCount});
      throw;
    }
    Time += std::chrono::duration_cast<std::chrono::microseconds>(TClock::now() - start);
  }

  /// Frees the connection; columns, counts and times stay.
  void Stop() {
    HasRow = false;
    Query.reset();
    const std::lock_guard lock(Mutex);
    Watch.reset();
  }

  void Close() {
    Stop();
    Columns.clear();
    TextKinds.clear();
    RowCount = 0;
    Time = {};
    Sql.clear();
  }

  void Cancel() {
    const std::lock_guard lock(Mutex);
    if (Watch) Watch->Cancel();
  }

  std::string ConnectionName, Sql;
  std::vector<std::string> Columns;
  std::vector<TSqlValueKind> TextKinds;
  std::size_t RowCount = 0;
  std::chrono::microseconds Time{};
  bool HasRow = false;
  // Guards that there is a watch; which statement it watches, it knows itself.
  std::mutex Mutex;
  std::unique_ptr<TSqlWatch> Watch;
  std::optional<QSqlQuery> Query;
};

TJQueryRunner::TJQueryRunner(std::string_view connectionName) : FState(std::make_unique<TState>(connectionName)) {}

TJQueryRunner::~TJQueryRunner() { FState->Stop(); }

void TJQueryRunner::Run(TJQueryPanel& panel) {
  TBoundStatement statement = panel.GetBoundStatement();
  if (!IsComplete(statement)) statement = TCompletion(panel, OnParamRequest).Complete(statement);
  const TJCustomDBStructure* model = panel.GetDBStruct();
  Run(statement, model != nullptr && model->SQLFormats().GetQuoteBool());
}

void TJQueryRunner::Run(const TBoundStatement& statement, bool quotedBooleans) {
  FState->Begin(statement, quotedBooleans);
}

bool TJQueryRunner::Next() { return FState->Next(); }

void TJQueryRunner::Close() { FState->Close(); }

void TJQueryRunner::Cancel() { FState->Cancel(); }

const std::vector<std::string>& TJQueryRunner::Columns() const { return FState->Columns; }

TSqlValue TJQueryRunner::Value(std::size_t column) const {
  if (column >= FState->Columns.size()) throw EListError::OutOfBounds(static_cast<std::int64_t>(column));
  if (!FState->HasRow) return {};
  const int index = static_cast<int>(column);
  return ToSqlValue(FState->Query->value(index), FState->Query->isNull(index), FState->TextKinds[column]);
}

std::size_t TJQueryRunner::GetRowCount() const { return FState->RowCount; }

std::chrono::microseconds TJQueryRunner::GetTime() const { return FState->Time; }

const std::string& TJQueryRunner::GetSQL() const { return FState->Sql; }

}  // namespace tolvi
