// The kinds of damage that a file may have taken: what a disk, a broken download, another program
// or somebody's hand does to it.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace talvora::damage {

using Bytes = std::vector<unsigned char>;

/// The largest file that anybody hands to the program.
inline constexpr std::size_t LargestFile = std::size_t{50} << 20;

struct Kind {
  std::string name;
  /// Gives the damaged bytes; `seed` chooses among damages of that kind.
  std::function<Bytes(Bytes bytes, std::uint64_t seed)> change;
};

/// All of them that change what is in a file, in a fixed order.
[[nodiscard]] std::span<const Kind> kinds();

} // namespace talvora::damage
