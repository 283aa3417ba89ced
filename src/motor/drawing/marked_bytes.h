#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace motor {

// Rows of bytes most of which are zero, looked through a group at a time.
using MarkGroup = std::uint64_t;

// How many bytes the groups have that hold at least `bytes`.
[[nodiscard]] constexpr std::size_t wholeGroups(std::size_t bytes) {
  return (bytes + sizeof(MarkGroup) - 1) / sizeof(MarkGroup) * sizeof(MarkGroup);
}

// Calls `visit` with the place and the value of each byte that is not zero, in order, and sets it to zero. `count` is
// that of whole groups.
template <typename Visit>
void takeMarked(std::uint8_t* bytes, std::size_t count, const Visit& visit) {
  static_assert(std::endian::native == std::endian::little, "the first byte of a group is its lowest");
  constexpr int kBitsOfByte = 8;
  for (std::size_t first = 0; first < count; first += sizeof(MarkGroup)) {
    MarkGroup group = 0;
    std::memcpy(&group, bytes + first, sizeof group);
    if (group == 0) continue;
    std::memset(bytes + first, 0, sizeof group);
    while (group != 0) {
      const int shift = std::countr_zero(group) / kBitsOfByte * kBitsOfByte;
      visit(first + static_cast<std::size_t>(shift / kBitsOfByte), static_cast<std::uint8_t>(group >> shift));
      group &= ~(MarkGroup{0xFF} << shift);
    }
  }
}

}  // namespace motor
