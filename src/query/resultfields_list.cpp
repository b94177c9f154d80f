// The list of columns.
#include <algorithm>
#include <utility>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/resultfields.h>

namespace tolvi {
namespace {

constexpr std::string_view CaptionSeparator = " ", AliasSeparator = "_";

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

TRFieldList::~TRFieldList() {
  if (FFiring != nullptr) *FFiring = true;
}

void TRFieldList::SetDBStruct(TJCustomDBStructure* dbStruct) {
  if (dbStruct == FDBStruct) return;
  ForgetFields();
  FDBStruct = dbStruct;
  for (TResultField& field : FItems) {
    field.BindFields(FDBStruct);
    field.ResolveFields(FDBStruct);
  }
  RFieldChanged();
}

// Takes a field that has just come into the list.
void TRFieldList::Adopt(TResultField& field) {
  field.FList = this;
  field.BindFields(FDBStruct);
  field.FCaption = FCaptions.MakeUnique(field.FCaption, CaptionSeparator);
  FCaptions.Add(field.FCaption);
}

void TRFieldList::Replace(std::vector<std::unique_ptr<TResultField>> fields) {
  FItems.Clear();
  FCaptions.Clear();
  FItems.Reserve(fields.size());
  for (std::unique_ptr<TResultField>& field : fields) Adopt(FItems.Add(std::move(field)));
}

TResultField& TRFieldList::New() { return InsertRField(Count(), CreateRField()); }

TResultField& TRFieldList::Insert(std::size_t index, TDSField& field) {
  return InsertContent(index, {"@1", {&field}, {std::string()}});
}

TResultField& TRFieldList::InsertByExpression(std::size_t index, std::string_view expression) {
  return InsertContent(index, TResultField().ParseExpression(FDBStruct, expression));
}

TResultField& TRFieldList::InsertBySQLExpr(std::size_t index, std::string_view sqlExpr) {
  return InsertContent(index, TResultField::ParseSQLExpr(FDBStruct, sqlExpr));
}

TResultField& TRFieldList::InsertContent(std::size_t index, TResultField::TContent content) {
  std::unique_ptr<TResultField> field = CreateRField();
  field->Take(std::move(content));
  field->FCaption = field->MakeCaption();
  return InsertRField(index, std::move(field));
}

TResultField& TRFieldList::InsertRField(std::size_t index, std::unique_ptr<TResultField> field) {
  TResultField& inserted = FItems.Insert(index, std::move(field));
  Adopt(inserted);
  RFieldChanged();
  return inserted;
}

std::unique_ptr<TResultField> TRFieldList::Delete(std::size_t index) {
  std::unique_ptr<TResultField> field = FItems.Delete(index);
  FCaptions.Remove(field->FCaption);
  field->FList = nullptr;
  RFieldChanged();
  return field;
}

void TRFieldList::Move(std::size_t from, std::size_t to) {
  for (const std::size_t index : {from, to}) {
    if (index >= Count()) throw EListError::OutOfBounds(static_cast<std::int64_t>(index));
  }
  if (from == to) return;
  FItems.Move(from, to);
  RFieldChanged();
}

void TRFieldList::Clear() {
  if (Empty()) return;
  Replace({});
  RFieldChanged();
}

std::string TRFieldList::GetCaption() const {
  std::string captions;
  bool isFirst = true, isEmpty = true;
  for (const TResultField& field : FItems) {
    if (field.FHidden) continue;
    if (!std::exchange(isFirst, false)) captions += ", ";
    captions += field.FCaption;
    isEmpty = isEmpty && field.FCaption.empty();
  }
  return isEmpty ? "*" : captions;
}

void TRFieldList::Set(bool& setting, bool on) {
  if (setting == on) return;
  setting = on;
  RFieldChanged();
}

void TRFieldList::SetUseAliases(bool on) { Set(FUseAliases, on); }
void TRFieldList::SetQuoteAliases(bool on) { Set(FQuoteAliases, on); }
void TRFieldList::SetAsciiAliases(bool on) { Set(FAsciiAliases, on); }
void TRFieldList::SetJustSorting(bool on) { Set(FJustSorting, on); }

bool TRFieldList::GetShowsAll() const {
  return FJustSorting ||
         std::all_of(FItems.begin(), FItems.end(), [](const TResultField& field) { return field.FHidden; });
}

std::size_t TRFieldList::GetSortCount() const {
  std::size_t count = 0;
  for (const TResultField& field : FItems) count += field.FSorting != stNoSort ? 1 : 0;
  return count;
}

bool TRFieldList::CheckUniqCaption(std::string_view caption, const TResultField* except) const {
  const bool isOwn = except != nullptr && except->FList == this;
  return FCaptions.IsFree(caption, isOwn ? std::string_view(except->FCaption) : std::string_view());
}

bool TRFieldList::CheckUniqAlias(std::string_view alias, const TResultField* except) const {
  for (const TResultField& field : FItems) {
    if (&field != except && !field.FAlias.empty() && SameText(field.FAlias, alias)) return false;
  }
  return true;
}

std::string TRFieldList::GetUniqCaption(std::string_view caption, const TResultField* except) const {
  const bool isOwn = except != nullptr && except->FList == this;
  return FCaptions.MakeUnique(caption, CaptionSeparator,
                              isOwn ? std::string_view(except->FCaption) : std::string_view());
}

std::string TRFieldList::GetUniqAlias(std::string_view alias, const TResultField* except) const {
  TUniqueNames used;
  for (const TResultField& field : FItems) {
    if (&field != except) used.Add(field.FAlias);
  }
  return used.MakeUnique(alias, AliasSeparator);
}

void TRFieldList::GenerateNumbers() {
  if (FNumbersRevision == FRevision) return;
  int number = 0;
  for (TResultField& field : FItems) field.FNumber = field.FHidden ? 0 : ++number;
  FNumbersRevision = FRevision;
}

void TRFieldList::RegenerateAliases() {
  if (FAliasesRevision == FRevision) return;
  GenerateNumbers();
  TUniqueNames used;
  for (TResultField& field : FItems) {
    field.FAlias = used.MakeUnique(field.MakeAlias(), AliasSeparator);
    used.Add(field.FAlias);
  }
  FAliasesRevision = FRevision;
}

void TRFieldList::ReplaceNonAsciiAliases() {
  for (TResultField& field : FItems) {
    if (IsAscii(field.FAlias)) continue;
    GenerateNumbers();
    field.FAlias = GetUniqAlias(field.NumberedAlias(), &field);
  }
}

void TRFieldList::Fire() {
  if (!OnChange || FFiring != nullptr) return;
  bool destroyed = false;
  struct TFiring {
    bool*& firing;
    bool& destroyed;
    ~TFiring() {
      if (!destroyed) firing = nullptr;
    }
  } firing{FFiring, destroyed};
  FFiring = &destroyed;
  const std::function<void()> handler = OnChange;
  handler();
}

void TRFieldList::EndUpdate() {
  if (FUpdating == 0 || --FUpdating > 0 || !FChangePending) return;
  FChangePending = false;
  Fire();
}

void TRFieldList::RFieldChanged() {
  ++FRevision;
  FChangePending = FUpdating > 0;
  if (!FChangePending) Fire();
}

void TRFieldList::FieldRemoved(const TDSField& removed) {
  bool changed = false;
  for (TResultField& field : FItems) changed = field.ForgetFields(FDBStruct, &removed) || changed;
  if (changed) RFieldChanged();
}

void TRFieldList::ForgetFields() {
  for (TResultField& field : FItems) field.ForgetFields(FDBStruct, nullptr);
  ++FRevision;
}

void TRFieldList::ResolveFields() {
  bool changed = false;
  for (TResultField& field : FItems) changed = field.ResolveFields(FDBStruct) || changed;
  if (changed) RFieldChanged();
}

void TRFieldList::Exchange(TRFieldList& other) {
  std::swap(FItems, other.FItems);
  std::swap(FCaptions, other.FCaptions);
  std::swap(FJustSorting, other.FJustSorting);
  for (TRFieldList* list : {this, &other}) {
    ++list->FRevision;
    for (TResultField& field : list->FItems) field.FList = list;
  }
}

void TRFieldList::Assign(const TRFieldList& source) {
  if (&source == this) return;
  std::vector<std::unique_ptr<TResultField>> fields;
  fields.reserve(source.Count());
  for (const TResultField& field : source) {
    fields.push_back(CreateRField());
    fields.back()->Assign(field);
  }
  FUseAliases = source.FUseAliases;
  FQuoteAliases = source.FQuoteAliases;
  FAsciiAliases = source.FAsciiAliases;
  FJustSorting = source.FJustSorting;
  Replace(std::move(fields));
  RFieldChanged();
}

}  // namespace tolvi
