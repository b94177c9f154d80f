#pragma once

#include <cstdint>
#include <initializer_list>
#include <type_traits>

namespace tolvi {

/// A set of the members of a small enumeration (ordinals 0 to 63).
template <typename E>
requires std::is_enum_v<E>
class TSet {
 public:
  constexpr TSet() = default;
  constexpr TSet(std::initializer_list<E> members) {
    for (E member : members) Include(member);
  }

  constexpr bool Contains(E member) const { return (FBits & Bit(member)) != 0; }
  constexpr bool Empty() const { return FBits == 0; }
  constexpr TSet& Include(E member) {
    FBits |= Bit(member);
    return *this;
  }
  constexpr TSet& Exclude(E member) {
    FBits &= ~Bit(member);
    return *this;
  }
  constexpr TSet& Assign(E member, bool on) { return on ? Include(member) : Exclude(member); }

  friend constexpr TSet operator+(TSet a, TSet b) { return TSet(a.FBits | b.FBits); }
  friend constexpr TSet operator-(TSet a, TSet b) { return TSet(a.FBits & ~b.FBits); }
  friend constexpr TSet operator*(TSet a, TSet b) { return TSet(a.FBits & b.FBits); }
  friend constexpr bool operator==(TSet a, TSet b) = default;

 private:
  constexpr explicit TSet(std::uint64_t bits) : FBits(bits) {}
  static constexpr std::uint64_t Bit(E member) { return std::uint64_t{1} << static_cast<unsigned>(member); }

  std::uint64_t FBits = 0;
};

}  // namespace tolvi
