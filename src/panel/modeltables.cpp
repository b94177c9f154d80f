#include <algorithm>
#include <functional>

#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/exprnames.h>
#include <tolvi/model/modelfill_names.h>
#include <tolvi/panel/liststeps.h>
#include <tolvi/panel/modeltables.h>

namespace tolvi {
namespace {

/// Calls `found` for every place at which the alias names the table of a column, with the name as written.
void ForEachUse(const TJCustomDBStructure& model, std::string_view expr, const TDSTable& table,
                const std::function<void(const TExprName& name, std::size_t pos)>& found) {
  TExprReader reader(expr, model.SQLFormats());
  while (!reader.AtEnd()) {
    TColumnName column = reader.ReadNames();
    if (column.Names.empty()) {
      reader.Scanner().NextToken();
      continue;
    }
    const bool isAll = reader.At(".") && reader.Scanner().GetToken(1).Text == "*";
    if (isAll) column.Names.emplace_back();
    if (column.Names.size() != 2 || (!isAll && reader.At("("))) continue;
    const TExprName& name = column.Names.front();
    if (!SameText(name.Text, table.GetTableAlias()) || FindTable(model, column) != &table) continue;
    found(name, static_cast<std::size_t>(name.Written.data() - reader.Scanner().GetSource().data()));
  }
}

bool Uses(const TJCustomDBStructure& model, std::string_view expr, const TDSTable& table) {
  bool uses = false;
  ForEachUse(model, expr, table, [&](const TExprName&, std::size_t) { uses = true; });
  return uses;
}

}  // namespace

TDSTable& AddTableByHand(TJCustomDBStructure& model, std::string_view tableName) {
  TNamePool aliases;
  for (const TDSTable& table : model.Tables()) aliases.Reserve(table.GetTableAlias());
  auto table = std::make_unique<TDSTable>();
  const std::vector<std::string> parts = NameParts(tableName);
  table->SetTableAlias(aliases.Take(PlainIdentifier(parts.empty() ? tableName : parts.back()), "_"));
  table->SetTableName(tableName.empty() ? table->GetTableAlias() : tableName);
  table->SetDisplayName(ReadableTableName(table->GetTableName()));
  table->SetQuoted(parts.size() < 2 && NeedsQuotes(table->GetTableName(), false));
  return model.GetTable(model.AddTableRef(std::move(table)));
}

TAliasUses UsesOfAlias(const TJCustomDBStructure& model, const TDSTable& table) {
  TAliasUses uses;
  for (const TDSField& field : model.Fields()) {
    if (field.GetFieldKind() == jfkVirtual && Uses(model, field.GetSQLExpr(), table)) {
      uses.Fields.push_back(field.GetID());
    }
  }
  for (const TDSCondition& condition : model.Conditions()) {
    if (Uses(model, condition.GetSQLExpr(), table)) uses.Conditions.push_back(condition.GetID());
  }
  return uses;
}

std::string WithOtherAlias(const TJCustomDBStructure& model, std::string_view expr, const TDSTable& table,
                           std::string_view alias) {
  std::string result;
  std::size_t done = 0;
  ForEachUse(model, expr, table, [&](const TExprName& name, std::size_t pos) {
    result += expr.substr(done, pos - done);
    if (name.Quoted || NeedsQuotes(alias, false)) {
      model.SQLFormats().AppendQuoted(result, alias);
    } else {
      result += alias;
    }
    done = pos + name.Written.size();
  });
  return result += expr.substr(done);
}

void ChangeAlias(TJCustomDBStructure& model, TDSTable& table, std::string_view alias, bool inExpressions) {
  // As a table keeps it.
  const std::string newAlias = ReplaceStr(alias, " ", "_");
  std::vector<std::pair<TDSField*, std::string>> fields;
  std::vector<std::pair<TDSCondition*, std::string>> conditions;
  if (inExpressions) {
    const TAliasUses uses = UsesOfAlias(model, table);
    for (const std::int32_t id : uses.Fields) {
      TDSField* field = model.FieldByID(id);
      fields.emplace_back(field, WithOtherAlias(model, field->GetSQLExpr(), table, newAlias));
    }
    for (const std::int32_t id : uses.Conditions) {
      TDSCondition* condition = model.ConditionByID(id);
      conditions.emplace_back(condition, WithOtherAlias(model, condition->GetSQLExpr(), table, newAlias));
    }
  }
  const bool isMain = SameText(model.GetDefaultMainTable(), table.GetTableAlias()) &&
                      model.TableByName(tnAlias, table.GetTableAlias()) == &table;
  model.AsOneChange([&] {
    table.SetTableAlias(newAlias);
    if (isMain) model.SetDefaultMainTable(newAlias);
    for (const auto& [field, expr] : fields) field->SetSQLExpr(expr);
    for (const auto& [condition, expr] : conditions) condition->SetSQLExpr(expr);
  });
}

void DeleteTables(TJCustomDBStructure& model, std::vector<std::size_t> indexes) {
  std::sort(indexes.begin(), indexes.end(), std::greater<>());
  model.AsOneChange([&] {
    for (const std::size_t index : indexes) model.DelTable(index);
    if (model.TableByName(tnAlias, model.GetDefaultMainTable()) == nullptr) model.SetDefaultMainTable({});
  });
}

std::vector<std::size_t> StepTables(TJCustomDBStructure& model, std::vector<std::size_t> indexes, int step) {
  model.AsOneChange([&] {
    indexes = StepEntries(std::move(indexes), model.GetTableCount(), step,
                          [&](std::size_t from, std::size_t to) { model.MoveTable(from, to); });
  });
  return indexes;
}

}  // namespace tolvi
