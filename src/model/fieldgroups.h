#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/objectlist.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

class TDSField;
class TJCustomDBStructure;

/// A named list of fields, as menus show them. Refers to the model's fields.
class TOLVI_CORE_API TDSFieldGroup final {
 public:
  explicit TDSFieldGroup(TJCustomDBStructure* dbStruct = nullptr, std::string_view name = {})
      : FDBStruct(dbStruct), FGroupName(name) {}
  TDSFieldGroup(const TDSFieldGroup&) = delete;
  TDSFieldGroup& operator=(const TDSFieldGroup&) = delete;

  /// Empty for the root group.
  const std::string& GetGroupName() const { return FGroupName; }
  void SetGroupName(std::string_view name);

  std::size_t Count() const { return FFields.size(); }
  bool Empty() const { return FFields.empty(); }
  /// An index outside the list raises `EListError`.
  TDSField& operator[](std::size_t index) const;
  /// Takes the field out of its old group and lists it here, last or at `index`.
  void Add(TDSField& field);
  void Insert(std::size_t index, TDSField& field);
  /// Takes the field at `index` off the list; it then belongs to no group.
  void Delete(std::size_t index);
  /// -1 when the field is not in the group.
  std::ptrdiff_t IndexOf(const TDSField& field) const;
  /// The first field that result columns may use; null when there is none.
  TDSField* GetFirstResultField() const;

  auto begin() const { return FFields.begin(); }
  auto end() const { return FFields.end(); }

 private:
  friend class TJCustomDBStructure;
  friend class TDSFieldGroupList;
  TJCustomDBStructure* FDBStruct;
  std::string FGroupName;
  std::vector<TDSField*> FFields;
};

/// The named groups of a model, owned.
class TOLVI_CORE_API TDSFieldGroupList final {
 public:
  explicit TDSFieldGroupList(TJCustomDBStructure& dbStruct) : FDBStruct(dbStruct) {}

  std::size_t Count() const { return FItems.Count(); }
  TDSFieldGroup& operator[](std::size_t index) const { return FItems[index]; }
  TDSFieldGroup& AddGroup(std::string_view groupName);
  /// The first group of that name, ignoring case; null when there is none.
  TDSFieldGroup* FindByName(std::string_view groupName) const;
  /// The group that lists the field, with its index there; null when none of these groups does.
  TDSFieldGroup* FindByField(const TDSField& field, std::size_t& index) const;
  /// Fields of the group go to the root group.
  void Delete(std::size_t index);
  void Move(std::size_t from, std::size_t to);
  void GetGroupNames(TStrings& names) const;

  auto begin() const { return FItems.begin(); }
  auto end() const { return FItems.end(); }

 private:
  friend class TJCustomDBStructure;
  TJCustomDBStructure& FDBStruct;
  TJObjectList<TDSFieldGroup> FItems;
};

}  // namespace tolvi
