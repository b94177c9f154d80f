#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/foundation/objectlist.h>

namespace tolvi {

class TFilterCond;

/// A value of a condition that is given when the statement runs: in SQL it is ":" and the name. The query result owns
/// it; it goes with its condition.
class TOLVI_CORE_API TSQLParam final {
 public:
  /// `valueIndex` is 1 or 2.
  TSQLParam(TFilterCond& condition, int valueIndex, std::string_view name)
      : FCondition(condition), FValueIndex(valueIndex), FParamName(name) {}
  TSQLParam(const TSQLParam&) = delete;
  TSQLParam& operator=(const TSQLParam&) = delete;
  /// The value is then none of a parameter.
  ~TSQLParam();

  TFilterCond& GetCondition() const { return FCondition; }
  int GetValueIndex() const { return FValueIndex; }
  /// A new parameter is called "Param" and the smallest free number.
  const std::string& GetParamName() const { return FParamName; }
  /// Raises `EJQueryPanelError` for a text that is no name (an ASCII letter or "_", then letters, digits, "_").
  void SetParamName(std::string_view name);
  /// Whether the name is "Param" and a number.
  bool HasAutomaticName() const;
  /// What to ask a person for: the text given, else the title "ttlParameter", numbered where there are two values.
  std::string GetDisplayName() const;
  /// The text given; empty for none.
  const std::string& GetOwnDisplayName() const { return FDisplayName; }
  void SetDisplayName(std::string_view name) { FDisplayName = name; }
  /// The type of the value.
  TFieldType GetParamType() const;
  /// The value, as text of the type; kept with the condition.
  const std::string& GetValue() const;
  void SetValue(std::string_view value);
  /// How the value is put into a pattern: "@v" stands for it ("%@v%"). Empty: the value as it is. A pattern in the
  /// operator's template holds where no format is given.
  const std::string& GetValueFormat() const { return FValueFormat; }
  void SetValueFormat(std::string_view format);
  /// The value put into the format.
  std::string GetFullValue() const;

 private:
  friend class TSQLParamList;
  void Changed();

  TFilterCond& FCondition;
  int FValueIndex;
  std::string FParamName, FDisplayName, FValueFormat;
};

/// The parameters of a query, in the order in which they were made.
class TOLVI_CORE_API TSQLParamList final {
 public:
  std::size_t Count() const { return FItems.Count(); }
  TSQLParam& operator[](std::size_t index) const { return FItems[index]; }
  /// Makes a parameter with the smallest free number above `ParentParamCount`.
  TSQLParam& Add(TFilterCond& condition, int valueIndex);
  void Delete(std::size_t index);
  void Remove(const TSQLParam& param);
  void DeleteByCondition(const TFilterCond& condition);
  void Clear();
  /// Gives the automatic names anew, numbered from `startIndex`; names that a user gave stay.
  void Reindex(std::size_t startIndex);
  /// -1 when there is none; names ignore case.
  std::ptrdiff_t IndexByCondition(const TFilterCond& condition, int valueIndex) const;
  std::ptrdiff_t IndexByName(std::string_view name) const;
  std::ptrdiff_t IndexOf(const TSQLParam& param) const { return FItems.IndexOf(&param); }
  /// Numbers up to this one are taken by an outer query. Default 0.
  std::size_t GetParentParamCount() const { return FParentParamCount; }
  void SetParentParamCount(std::size_t count);

  auto begin() const { return FItems.begin(); }
  auto end() const { return FItems.end(); }

 private:
  friend class TSQLParam;
  void Take(std::string_view name);
  void GiveUp(std::string_view name);

  TJObjectList<TSQLParam> FItems;
  std::size_t FParentParamCount = 0;
  // The numbers of automatic names, each with how many parameters bear it; below the lowest free one all are taken.
  std::unordered_map<std::size_t, std::size_t> FTaken;
  std::size_t FLowestFree = 1;
};

}  // namespace tolvi
