#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/valueeditors.h>

namespace tolvi {

void TDSListEditor::ClearList() {
  FItems.Clear();
  FValues.Clear();
}

void TDSSQLEditor::SetSQLParams(const TStrings& params) {
  if (FSQLParams == params) return;
  FSQLParams = params;
  SetOpened(false);
}

bool TDSSQLEditor::HasParameter(std::string_view name) const {
  return FSQL.GetText().find(":" + std::string(name)) != std::string::npos;
}

std::string TDSSQLEditor::ApplyParams(std::string_view text) const {
  std::string result(text);
  for (const std::string& line : FSQLParams) {
    const auto [name, value] = GetNameAndValueSep(line, "=");
    if (name.empty() || name.size() == line.size()) continue;  // no parameter
    result = ReplaceStr(result, ":" + std::string(name), value);
  }
  return result;
}

void TDSSQLEditor::SetOpened(bool opened) {
  if (opened == FOpened) return;
  TStrings values, items;
  if (opened) {
    TJDBInfo* info = FDBStruct ? FDBStruct->GetDatabaseInfo() : nullptr;
    if (!info) throw EJDBStructError(11, SDBSEDbInfoNotSpecified, {});
    info->RunQuery(GetSQLText(), values, items);
  }
  Values() = std::move(values);
  Items() = std::move(items);
  FOpened = opened;
}

void TDSSQLEditor::Refresh() {
  SetOpened(false);
  SetOpened(true);
}

std::unique_ptr<TDSValueEditor> CreateValueEditor(TDSEditType editType, TJCustomDBStructure* dbStruct) {
  switch (editType) {
    case etEdit:
      return std::make_unique<TDSTextEditor>();
    case etList:
      return std::make_unique<TDSListEditor>();
    case etCustom:
      return std::make_unique<TDSCustomEditor>();
    case etSQL:
      return std::make_unique<TDSSQLEditor>(dbStruct);
    case etAuto:
      break;
  }
  return nullptr;
}

}  // namespace tolvi
