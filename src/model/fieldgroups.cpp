#include <algorithm>

#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/fieldgroups.h>

namespace tolvi {

void TDSFieldGroup::SetGroupName(std::string_view name) {
  if (FGroupName == name) return;
  FGroupName = name;
  if (FDBStruct != nullptr) FDBStruct->Changed();
}

TDSField& TDSFieldGroup::operator[](std::size_t index) const {
  if (index >= FFields.size()) throw EListError::OutOfBounds(static_cast<std::int64_t>(index));
  return *FFields[index];
}

void TDSFieldGroup::Add(TDSField& field) { Insert(FFields.size(), field); }

void TDSFieldGroup::Insert(std::size_t index, TDSField& field) {
  if (index > FFields.size()) throw EListError::OutOfBounds(static_cast<std::int64_t>(index));
  if (field.FGroup != nullptr) {
    std::vector<TDSField*>& old = field.FGroup->FFields;
    const auto found = std::find(old.begin(), old.end(), &field);
    if (field.FGroup == this && found - old.begin() < static_cast<std::ptrdiff_t>(index)) --index;
    if (found != old.end()) old.erase(found);
  }
  FFields.insert(FFields.begin() + static_cast<std::ptrdiff_t>(index), &field);
  field.FGroup = this;
  if (FDBStruct != nullptr) FDBStruct->Changed();
}

void TDSFieldGroup::Delete(std::size_t index) {
  (*this)[index].FGroup = nullptr;
  FFields.erase(FFields.begin() + static_cast<std::ptrdiff_t>(index));
  if (FDBStruct != nullptr) FDBStruct->Changed();
}

std::ptrdiff_t TDSFieldGroup::IndexOf(const TDSField& field) const {
  const auto found = std::find(FFields.begin(), FFields.end(), &field);
  return found == FFields.end() ? -1 : found - FFields.begin();
}

TDSField* TDSFieldGroup::GetFirstResultField() const {
  const auto found =
      std::find_if(FFields.begin(), FFields.end(), [](const TDSField* field) { return field->GetUseInResult(); });
  return found == FFields.end() ? nullptr : *found;
}

TDSFieldGroup& TDSFieldGroupList::AddGroup(std::string_view groupName) {
  TDSFieldGroup& group = FItems.Add(std::make_unique<TDSFieldGroup>(&FDBStruct, groupName));
  FDBStruct.Changed();
  return group;
}

TDSFieldGroup* TDSFieldGroupList::FindByName(std::string_view groupName) const {
  for (TDSFieldGroup& group : FItems) {
    if (SameText(group.GetGroupName(), groupName)) return &group;
  }
  return nullptr;
}

TDSFieldGroup* TDSFieldGroupList::FindByField(const TDSField& field, std::size_t& index) const {
  TDSFieldGroup* group = field.GetGroup();
  if (group == nullptr || FItems.IndexOf(group) < 0) return nullptr;
  index = static_cast<std::size_t>(group->IndexOf(field));
  return group;
}

void TDSFieldGroupList::Delete(std::size_t index) {
  const std::unique_ptr<TDSFieldGroup> group = FItems.Delete(index);
  TDSFieldGroup& root = FDBStruct.RootGroup();
  for (TDSField* field : group->FFields) {
    field->FGroup = &root;
    root.FFields.push_back(field);
  }
  FDBStruct.Changed();
}

void TDSFieldGroupList::Move(std::size_t from, std::size_t to) {
  FItems.Move(from, to);
  FDBStruct.Changed();
}

void TDSFieldGroupList::GetGroupNames(TStrings& names) const {
  names.Clear();
  for (const TDSFieldGroup& group : FItems) names.Add(group.GetGroupName());
}

}  // namespace tolvi
