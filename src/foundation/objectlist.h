#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <vector>

#include <tolvi/foundation/errors.h>

namespace tolvi {

/// An owning list of objects. Indexes count from 0; one outside the list raises `EListError`.
/// `Delete` takes an entry out and hands it to the caller; `Clear` destroys all entries.
template <typename T>
class TJObjectList {
 public:
  std::size_t Count() const { return FItems.size(); }
  bool Empty() const { return FItems.empty(); }
  T& operator[](std::size_t index) const { return *FItems[Checked(index)]; }
  T& Last() const { return (*this)[FItems.size() - 1]; }

  /// Replaces an entry; the old one is handed back.
  std::unique_ptr<T> Replace(std::size_t index, std::unique_ptr<T> item) {
    std::swap(FItems[Checked(index)], item);
    return item;
  }

  T& Add(std::unique_ptr<T> item) { return *FItems.emplace_back(std::move(item)); }
  /// `index` may be `Count()`.
  T& Insert(std::size_t index, std::unique_ptr<T> item) {
    if (index > FItems.size()) throw EListError::OutOfBounds(static_cast<std::int64_t>(index));
    return **FItems.insert(FItems.begin() + static_cast<std::ptrdiff_t>(index), std::move(item));
  }
  [[nodiscard]] std::unique_ptr<T> Delete(std::size_t index) {
    std::unique_ptr<T> item = std::move(FItems[Checked(index)]);
    FItems.erase(FItems.begin() + static_cast<std::ptrdiff_t>(index));
    return item;
  }
  void Move(std::size_t from, std::size_t to) {
    Checked(to);
    Insert(to, Delete(from));
  }
  /// Destroys the entries from the last to the first.
  void Clear() {
    while (!FItems.empty()) FItems.pop_back();
  }
  void Reserve(std::size_t count) { FItems.reserve(count); }

  /// Index of that very object, -1 when it is not in the list.
  std::ptrdiff_t IndexOf(const T* item) const {
    auto found = std::find_if(FItems.begin(), FItems.end(), [item](const auto& entry) { return entry.get() == item; });
    return found == FItems.end() ? -1 : found - FItems.begin();
  }

  auto begin() const { return TIterator{FItems.data()}; }
  auto end() const { return TIterator{FItems.data() + FItems.size()}; }

 private:
  struct TIterator {
    using iterator_category = std::forward_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = T*;
    using reference = T&;

    const std::unique_ptr<T>* at = nullptr;
    T& operator*() const { return **at; }
    TIterator& operator++() {
      ++at;
      return *this;
    }
    TIterator operator++(int) {
      TIterator old = *this;
      ++at;
      return old;
    }
    bool operator==(const TIterator&) const = default;
  };

  std::size_t Checked(std::size_t index) const {
    if (index >= FItems.size()) throw EListError::OutOfBounds(static_cast<std::int64_t>(index));
    return index;
  }

  std::vector<std::unique_ptr<T>> FItems;
};

}  // namespace tolvi
