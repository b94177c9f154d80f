#include <algorithm>
#include <cctype>
#include <memory>
#include <utility>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/resultfields.h>
#include <tolvi/query/resultformula.h>

namespace tolvi {
namespace {

// What stands for an unknown field in a list without a model. Nobody changes it.
TDSField& NoField() {
  static const std::unique_ptr<TDSField> field = [] {
    auto unknown = std::make_unique<TDSField>();
    unknown->SetFieldName(SUnrecognizedField);
    unknown->SetDisplayName(SUnrecognizedField);
    return unknown;
  }();
  return *field;
}

TDSField& PlaceholderOf(const TJCustomDBStructure* model) {
  return model != nullptr ? model->GetNullField() : NoField();
}

bool IsPlaceholder(const TDSField& field) {
  const TJCustomDBStructure* model = field.GetDBStruct();
  return &field == (model != nullptr ? &model->GetNullField() : &NoField());
}

}  // namespace

// Fields and formula

TJCustomDBStructure* TResultField::GetModel() const {
  if (FList != nullptr) return FList->FDBStruct;
  return FDSFields.empty() ? nullptr : FDSFields.front()->GetDBStruct();
}

TJQueryPanel* TResultField::GetQueryPanel() const { return FList != nullptr ? FList->FQueryPanel : nullptr; }

void TResultField::Changed() {
  if (FList != nullptr) FList->RFieldChanged();
}

void TResultField::CheckIndex(std::size_t index) const {
  if (index >= FDSFields.size()) throw EListError::OutOfBounds(static_cast<std::int64_t>(index));
}

void TResultField::SetFormula(std::string_view formula) {
  if (formula == FFormula) return;
  FFormula = formula;
  Changed();
}

void TResultField::AddDSField(TDSField& field) {
  FDSFields.push_back(&field);
  FMissing.emplace_back();
  BindFields(GetModel());
  Changed();
}

void TResultField::SetDSField(std::size_t index, TDSField& field) {
  CheckIndex(index);
  if (FDSFields[index] == &field) return;
  FDSFields[index] = &field;
  FMissing[index].clear();
  BindFields(GetModel());
  Changed();
}

void TResultField::DelDSField(std::size_t index) {
  CheckIndex(index);
  std::string formula;
  ForEachPlaceholder(
      FFormula, FDSFields.size(), [&formula](std::string_view text) { formula += text; },
      [&formula, index](std::size_t place) {
        if (place != index) formula.append("@").append(std::to_string(place > index ? place : place + 1));
      });
  FFormula = std::move(formula);
  FDSFields.erase(FDSFields.begin() + static_cast<std::ptrdiff_t>(index));
  FMissing.erase(FMissing.begin() + static_cast<std::ptrdiff_t>(index));
  Changed();
}

// Fields of no or another model become those with the same ID, or unknown ones.
void TResultField::BindFields(const TJCustomDBStructure* model) {
  for (std::size_t i = 0; i < FDSFields.size(); ++i) {
    if (FMissing[i].empty()) {
      const TDSField& field = *FDSFields[i];
      if (!IsPlaceholder(field) && (model == nullptr || field.GetDBStruct() == model)) continue;
      FMissing[i] = std::to_string(field.GetID());
      if (FindField(model, i)) continue;
    }
    FDSFields[i] = &PlaceholderOf(model);
  }
}

// Looks the unknown field up. Whether the model has it.
bool TResultField::FindField(const TJCustomDBStructure* model, std::size_t index) {
  TDSField* field = model != nullptr ? FindStoredField(*model, FMissing[index]) : nullptr;
  if (field == nullptr) return false;
  FDSFields[index] = field;
  FMissing[index].clear();
  return true;
}

// Looks all unknown fields up. Whether any was found.
bool TResultField::ResolveFields(const TJCustomDBStructure* model) {
  bool found = false;
  for (std::size_t i = 0; i < FDSFields.size(); ++i) {
    if (!FMissing[i].empty() && FindField(model, i)) found = true;
  }
  return found;
}

// Makes `field`, or all fields, unknown. Whether there was one.
bool TResultField::ForgetFields(const TJCustomDBStructure* model, const TDSField* field) {
  bool forgotten = false;
  for (std::size_t i = 0; i < FDSFields.size(); ++i) {
    if (!FMissing[i].empty() || (field != nullptr && FDSFields[i] != field)) continue;
    FMissing[i] = std::to_string(FDSFields[i]->GetID());
    FDSFields[i] = &PlaceholderOf(model);
    forgotten = true;
  }
  return forgotten;
}

void TResultField::CheckNoneMissing() const {
  for (const std::string& missing : FMissing) {
    if (!missing.empty()) throw EJQueryPanelError(0, SUnrecognizedFieldName, {missing});
  }
}

// SQL

// Placeholders are replaced one after the other in the whole text, so that one which comes in with a field's SQL is
// replaced, too. Where no field's SQL can hold one, that is the same as replacing all at once.
template <typename TTextOf>
void TResultField::AppendSQL(std::string& out, TTextOf textOf) const {
  CheckNoneMissing();
  const std::size_t count = std::min(CharCount(FFormula, '@'), FDSFields.size());
  const std::size_t start = out.size();
  bool isPlain = FFormula.find("@@") == std::string::npos;
  if (isPlain) {
    ForEachPlaceholder(
        FFormula, count, [&out](std::string_view text) { out += text; },
        [&](std::size_t index) {
          const auto& text = textOf(*FDSFields[index]);
          if (count > 1 && text.find('@') != std::string::npos) isPlain = false;
          out += text;
        });
  }
  if (isPlain) return;
  out.resize(start);
  std::string text = FFormula;
  for (std::size_t i = 0; i < count; ++i) text = ReplaceStr(text, "@" + std::to_string(i + 1), textOf(*FDSFields[i]));
  out += text;
}

void TResultField::AppendSQLExpr(std::string& out) const {
  AppendSQL(out, [](const TDSField& field) -> const std::string& { return field.GetSQLExpr(); });
}

std::string TResultField::GetSQLExpr() const {
  std::string sql;
  AppendSQLExpr(sql);
  return sql;
}

std::string TResultField::GetNormalSQLExpr() const {
  std::string sql;
  AppendSQL(sql, [](const TDSField& field) { return field.GetNormalSQLExpr(); });
  return sql;
}

void TResultField::AppendSelectExpr(std::string& out) const {
  AppendSQLExpr(out);
  if (FAlias.empty()) return;
  if (IsPlainField() && SameText(FDSFields.front()->GetFieldName(), FAlias)) return;
  out += " as ";
  if (FList != nullptr && FList->FQuoteAliases) {
    FormatsOf(GetModel()).AppendQuoted(out, FAlias);
  } else {
    out += FAlias;
  }
}

std::string TResultField::GetSelectExpr() const {
  std::string sql;
  AppendSelectExpr(sql);
  return sql;
}

bool TResultField::GetAgregate() const {
  if (!FDSFields.empty() && FDSFields.front()->GetIsAggregate()) return true;
  const std::string_view formula = FFormula;
  for (std::size_t at = formula.find('('); at != std::string_view::npos; at = formula.find('(', at + 1)) {
    for (const std::string_view name : AggregateFunctions) {
      if (at >= name.size() && AsciiSameText(formula.substr(at - name.size(), name.size()), name)) return true;
    }
  }
  // Other names may end like that of the list function: "pricelist(".
  const std::string_view list = ListCall(FormatsOf(GetModel()));
  for (std::size_t at = CXPos(list, formula, 0, true); !list.empty() && at != std::string_view::npos;
       at = CXPos(list, formula, at + 1, true)) {
    const auto before = static_cast<unsigned char>(at > 0 ? formula[at - 1] : ' ');
    if (before < 0x80 && std::isalnum(before) == 0 && before != '_') return true;
  }
  return false;
}

// Caption and alias

void TResultField::SetCaption(std::string_view caption) {
  std::string unique = FList != nullptr ? FList->GetUniqCaption(caption, this) : std::string(caption);
  if (unique == FCaption) return;
  if (FList != nullptr) {
    FList->FCaptions.Remove(FCaption);
    FList->FCaptions.Add(unique);
  }
  FCaption = std::move(unique);
  Changed();
}

std::string TResultField::MakeCaption() const {
  if (FDSFields.empty()) return FFormula;
  std::string caption;
  for (std::size_t i = 0; i < FDSFields.size(); ++i) {
    if (i > 0) caption += ", ";
    caption += FMissing[i].empty() ? FDSFields[i]->GetDisplayName() : FMissing[i];
  }
  return caption;
}

void TResultField::GenerateCaption() { SetCaption(MakeCaption()); }

void TResultField::SetAlias(std::string_view alias) {
  if (alias == FAlias) return;
  FAlias = alias;
  Changed();
}

std::string TResultField::MakeAlias() const {
  if (FList == nullptr || !FList->FUseAliases || FHidden || FCaption.empty()) return {};
  std::string name = FList->FQuoteAliases ? MakeQuotableName(FCaption)
                                          : MakeSQLName(FList->FAsciiAliases ? ReduceToAscii(FCaption) : FCaption);
  return name.empty() ? NumberedAlias() : name;
}

void TResultField::GenerateAlias() {
  if (FList != nullptr) FList->GenerateNumbers();
  FAlias = MakeAlias();
  if (FList != nullptr) FAlias = FList->GetUniqAlias(FAlias, this);
}

std::string TResultField::GetSQLAlias() const {
  if (FList == nullptr || !FList->FQuoteAliases) return FAlias;
  std::string quoted;
  FormatsOf(GetModel()).AppendQuoted(quoted, FAlias);
  return quoted;
}

char TResultField::GetQuoteSymbol(int which) const {
  const TSQLFormats& formats = FormatsOf(GetModel());
  return which == 1 ? formats.GetQuoteSymbol1() : formats.GetQuoteSymbol2();
}

void TResultField::SetSorting(TSortingType sorting) {
  if (sorting == FSorting) return;
  FSorting = sorting;
  Changed();
}

void TResultField::SetHidden(bool hidden) {
  if (hidden == FHidden) return;
  FHidden = hidden;
  Changed();
}

void TResultField::SetSortOrder(int order) {
  if (order == FSortOrder) return;
  FSortOrder = order;
  Changed();
}

void TResultField::Assign(const TResultField& source) {
  if (&source == this) return;
  FDSFields = source.FDSFields;
  FMissing = source.FMissing;
  FFormula = source.FFormula;
  FAlias = source.FAlias;
  FSorting = source.FSorting;
  FHidden = source.FHidden;
  FSortOrder = source.FSortOrder;
  FOleObject = source.FOleObject;
  if (FList == nullptr) {
    FCaption = source.FCaption;
    return;
  }
  BindFields(FList->FDBStruct);
  FList->BeginUpdate();
  SetCaption(source.FCaption);
  Changed();
  FList->EndUpdate();
}

}  // namespace tolvi
