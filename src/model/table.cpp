#include <algorithm>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/table.h>

namespace tolvi {

void TDSTable::SetTableAlias(std::string_view alias) { Set(FAlias, ReplaceStr(alias, " ", "_")); }

void TDSTable::AddLinkRef(TDSLink& link) {
  if (std::find(FLinks.begin(), FLinks.end(), &link) != FLinks.end()) return;
  FLinks.push_back(&link);
  LinksModified();
}

void TDSTable::DelLink(std::size_t index) {
  GetLink(index);
  FLinks.erase(FLinks.begin() + static_cast<std::ptrdiff_t>(index));
  LinksModified();
}

void TDSTable::LinksModified() {
  if (FDBStruct != nullptr) FDBStruct->LinksModified();
}

TDSLink& TDSTable::GetLink(std::size_t index) const {
  if (index >= FLinks.size()) throw EListError::OutOfBounds(static_cast<std::int64_t>(index));
  return *FLinks[index];
}

TDSLink* TDSTable::LinkByTable(const TDSTable& table) const {
  for (TDSLink* link : FLinks) {
    if (link->OtherTable(*this) == &table) return link;
  }
  return nullptr;
}

TDSLink* TDSTable::LinkByTableAlias(std::string_view alias) const {
  for (TDSLink* link : FLinks) {
    if (SameText(link->OtherTable(*this)->GetTableAlias(), alias)) return link;
  }
  return nullptr;
}

std::string TDSTable::GetFullName() const {
  if (FDBStruct == nullptr || FDBStruct->DMOptions().GetDefaultDBOwner().empty()) return FTableName;
  return FDBStruct->DMOptions().GetDefaultDBOwner() + "." + FTableName;
}

std::string TDSTable::GetCompoundName() const {
  return FDatabaseName.empty() ? FTableName : FDatabaseName + "." + FTableName;
}

std::string TDSTable::GetMainExpr() const {
  std::string result;
  AppendMainExpr(result);
  return result;
}

std::string TDSTable::GetFromExpr() const {
  std::string result = GetMainExpr();
  if (!FAlias.empty() && FAlias != FTableName) {
    if (FDBStruct != nullptr && FDBStruct->SQLFormats().GetUseAsInFrom()) result += " AS";
    result.append(" ").append(FAlias);
  }
  if (!FTableHints.empty()) result.append(" WITH ").append(FTableHints);
  return result;
}

std::string TDSTable::GetWhereExpr() const {
  std::string result;
  AppendWhereExpr(result);
  return result;
}

void TDSTable::AppendWhereExpr(std::string& out) const {
  if (!FAlias.empty() && FAlias != FTableName) {
    out += FAlias;
  } else {
    AppendMainExpr(out);
  }
}

void TDSTable::Modified() {
  if (FDBStruct != nullptr) FDBStruct->TablesModified();
}

// The replacements run one after the other over the whole text: a database name that holds "OWNER" or "TABLE" is
// itself changed by the later ones.
std::string TDSTable::GetFullSQLExpr(std::string_view name) const {
  const std::string& pattern = FDBStruct->SQLFormats().GetFullTableName();
  if (pattern.empty()) return std::string(name);
  const std::string withDatabase = ReplaceStr(pattern, "DB", FDatabaseName);
  return ReplaceStr(ReplaceStr(withDatabase, "OWNER", FDBStruct->DMOptions().GetDefaultDBOwner()), "TABLE", name);
}

void TDSTable::AppendMainExpr(std::string& out) const {
  const bool quote = FQuoted && !FTableName.empty() && FTableName.front() != '"';
  const bool qualify = FDBStruct != nullptr && FDBStruct->DMOptions().GetMultiDB() && !FDatabaseName.empty() &&
                       FDatabaseName != FDBStruct->DMOptions().GetDefaultDatabase();
  if (!quote && !qualify) {
    out += FTableName;
    return;
  }
  std::string name;
  if (quote) {
    FormatsOf(FDBStruct).AppendQuoted(name, FTableName);
  } else {
    name = FTableName;
  }
  out += qualify ? GetFullSQLExpr(name) : name;
}

TDSTable& TSimpleDSTableList::operator[](std::size_t index) const {
  if (index >= FTables.size()) throw EListError::OutOfBounds(static_cast<std::int64_t>(index));
  return *FTables[index];
}

void TSimpleDSTableList::AddOnce(TDSTable& table) {
  if (!Contains(table)) Add(table);
}

void TSimpleDSTableList::Erase(std::size_t index) {
  if (index >= FTables.size()) throw EListError::OutOfBounds(static_cast<std::int64_t>(index));
  FTables.erase(FTables.begin() + static_cast<std::ptrdiff_t>(index));
}

void TSimpleDSTableList::Remove(const TDSTable& table) { std::erase(FTables, &table); }

bool TSimpleDSTableList::Contains(const TDSTable& table) const {
  return std::find(FTables.begin(), FTables.end(), &table) != FTables.end();
}

std::string TSimpleDSTableList::GetCommaText() const {
  std::vector<std::string> names;
  for (const TDSTable* table : FTables) names.push_back(table->GetTableName());
  return ComposeCommaText(names);
}

}  // namespace tolvi
