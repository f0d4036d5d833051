#include "Kinds.h"

#include "formats/Integers.h"

#include <algorithm>
#include <limits>
#include <random>
#include <utility>

namespace talvora::damage {

namespace {

using Random = std::mt19937_64;
using Change = std::function<Bytes(Bytes, std::uint64_t)>;

std::size_t below(Random& random, std::size_t limit) {
  return limit == 0 ? 0 : random() % limit;
}

void put(Bytes& bytes, std::size_t offset, std::int32_t value) {
  const auto integer = bytesOf(value);
  if (offset + integer.size() <= bytes.size())
    std::copy(integer.begin(), integer.end(), bytes.begin() + static_cast<std::ptrdiff_t>(offset));
}

// -- Its length.

Change cutTo(std::size_t size) {
  return [size](Bytes bytes, std::uint64_t) {
    bytes.resize(std::min(size, bytes.size()));
    return bytes;
  };
}

Change cutBy(std::size_t count) {
  return [count](Bytes bytes, std::uint64_t) {
    bytes.resize(bytes.size() - std::min(count, bytes.size()));
    return bytes;
  };
}

Change cutToPart(std::size_t part, std::size_t of) {
  return [part, of](Bytes bytes, std::uint64_t) {
    bytes.resize(bytes.size() / of * part);
    return bytes;
  };
}

Bytes cutSomewhere(Bytes bytes, std::uint64_t seed) {
  Random random(seed);
  bytes.resize(below(random, bytes.size() + 1));
  return bytes;
}

Bytes withoutHead(Bytes bytes, std::uint64_t seed) {
  Random random(seed);
  bytes.erase(bytes.begin(),
              bytes.begin() + static_cast<std::ptrdiff_t>(
                                  below(random, std::min<std::size_t>(bytes.size(), 4000) + 1)));
  return bytes;
}

Change withInFront(Bytes head) {
  return [head = std::move(head)](Bytes bytes, std::uint64_t) {
    bytes.insert(bytes.begin(), head.begin(), head.end());
    return bytes;
  };
}

Change grownWith(unsigned char byte) {
  return [byte](Bytes bytes, std::uint64_t) {
    bytes.resize(LargestFile, byte);
    return bytes;
  };
}

Bytes repeatedToTheLargest(Bytes bytes, std::uint64_t) {
  if (bytes.empty()) return bytes;
  const std::size_t length = bytes.size();
  bytes.resize(std::max(length, LargestFile));
  for (std::size_t at = length; at < bytes.size(); ++at)
    bytes[at] = bytes[at - length];
  return bytes;
}

Bytes doubled(Bytes bytes, std::uint64_t) {
  Bytes twice = bytes;
  twice.insert(twice.end(), bytes.begin(), bytes.end());
  return twice;
}

// -- Its bytes.

Change filledWith(unsigned char byte) {
  return [byte](Bytes bytes, std::uint64_t) {
    std::fill(bytes.begin(), bytes.end(), byte);
    return bytes;
  };
}

Bytes allRandom(Bytes bytes, std::uint64_t seed) {
  Random random(seed);
  for (unsigned char& byte : bytes)
    byte = static_cast<unsigned char>(random());
  return bytes;
}

/// One byte in so many becomes another.
Change sprinkled(std::size_t oneIn) {
  return [oneIn](Bytes bytes, std::uint64_t seed) {
    Random random(seed);
    for (std::size_t change = bytes.size() / oneIn + 1; change > 0 && !bytes.empty(); --change)
      bytes[below(random, bytes.size())] = static_cast<unsigned char>(random());
    return bytes;
  };
}

Bytes bitsTurned(Bytes bytes, std::uint64_t seed) {
  Random random(seed);
  for (int change = 0; change < 20 && !bytes.empty(); ++change)
    bytes[below(random, bytes.size())] ^= static_cast<unsigned char>(1U << below(random, 8));
  return bytes;
}

/// A sector of a disk has been lost.
Change sectorLost(unsigned char byte) {
  return [byte](Bytes bytes, std::uint64_t seed) {
    constexpr std::size_t Sector = 4096;
    Random random(seed);
    const std::size_t from = below(random, bytes.size() / Sector + 1) * Sector;
    for (std::size_t at = from; at < std::min(from + Sector, bytes.size()); ++at)
      bytes[at] = byte;
    return bytes;
  };
}

Bytes piecesSwapped(Bytes bytes, std::uint64_t seed) {
  Random random(seed);
  std::rotate(bytes.begin(),
              bytes.begin() + static_cast<std::ptrdiff_t>(below(random, bytes.size() + 1)),
              bytes.end());
  return bytes;
}

Bytes backwards(Bytes bytes, std::uint64_t) {
  std::reverse(bytes.begin(), bytes.end());
  return bytes;
}

Bytes headRepeated(Bytes bytes, std::uint64_t) {
  constexpr std::size_t Head = 24;
  for (std::size_t at = Head; at < bytes.size(); ++at)
    bytes[at] = bytes[at - Head];
  return bytes;
}

Change replaced(unsigned char byte, unsigned char by) {
  return [byte, by](Bytes bytes, std::uint64_t) {
    std::replace(bytes.begin(), bytes.end(), byte, by);
    return bytes;
  };
}

Change dropped(unsigned char byte) {
  return [byte](Bytes bytes, std::uint64_t) {
    std::erase(bytes, byte);
    return bytes;
  };
}

Bytes widened(Bytes bytes, std::uint64_t) {
  Bytes wide;
  wide.reserve(2 * bytes.size());
  for (const unsigned char byte : bytes) {
    wide.push_back(byte);
    wide.push_back(0);
  }
  return wide;
}

Bytes withoutMarks(Bytes bytes, std::uint64_t seed) {
  Random random(seed);
  // What the formats mean by a mark, more or less: one kind of them is lost.
  static constexpr std::string_view marks = "`@_~|#^{}\\\t*;";
  const auto lost = static_cast<unsigned char>(marks[below(random, marks.size())]);
  std::erase(bytes, lost);
  return bytes;
}

Bytes marksEverywhere(Bytes bytes, std::uint64_t seed) {
  Random random(seed);
  static constexpr std::string_view marks = "`@_~|#^{}\\\t*;\r\n";
  for (std::size_t at = 0; at < bytes.size(); at += 1 + below(random, 40))
    bytes[at] = static_cast<unsigned char>(marks[below(random, marks.size())]);
  return bytes;
}

// -- Its integers, as a table of positions has them.

Change everyInteger(std::int32_t value) {
  return [value](Bytes bytes, std::uint64_t) {
    for (std::size_t at = 0; at + IntegerSize <= bytes.size(); at += IntegerSize)
      put(bytes, at, value);
    return bytes;
  };
}

Change someIntegers(std::int32_t value) {
  return [value](Bytes bytes, std::uint64_t seed) {
    Random random(seed);
    for (int change = 0; change < 30; ++change)
      put(bytes, below(random, bytes.size() / IntegerSize + 1) * IntegerSize, value);
    return bytes;
  };
}

Bytes integersMoved(Bytes bytes, std::uint64_t seed) {
  Random random(seed);
  for (std::size_t at = 0; at + IntegerSize <= bytes.size(); at += IntegerSize) {
    const auto by = static_cast<std::uint32_t>(below(random, 2000)) - 1000U;
    put(bytes, at,
        static_cast<std::int32_t>(static_cast<std::uint32_t>(integerAt(&bytes[at])) + by));
  }
  return bytes;
}

Bytes integersBackwards(Bytes bytes, std::uint64_t) {
  const Bytes before = bytes;
  const std::size_t count = bytes.size() / IntegerSize;
  for (std::size_t each = 0; each < count; ++each)
    put(bytes, each * IntegerSize, integerAt(&before[(count - 1 - each) * IntegerSize]));
  return bytes;
}

std::vector<Kind> allKinds() {
  constexpr auto Largest = std::numeric_limits<std::int32_t>::max();
  constexpr auto Smallest = std::numeric_limits<std::int32_t>::min();
  return {
      {"is empty", cutTo(0)},
      {"has one byte", cutTo(1)},
      {"has three bytes", cutTo(3)},
      {"ends after a record", cutTo(4)},
      {"ends within the second record", cutTo(7)},
      {"lacks its last byte", cutBy(1)},
      {"lacks its last record", cutBy(4)},
      {"is half", cutToPart(1, 2)},
      {"lacks a tenth", cutToPart(9, 10)},
      {"ends somewhere", cutSomewhere},
      {"lacks its head", withoutHead},
      {"has a byte in front", withInFront({'x'})},
      {"has a byte order mark", withInFront({0xEF, 0xBB, 0xBF})},
      {"stands twice", doubled},
      {"goes on with zeros", grownWith(0)},
      {"goes on with letters", grownWith('a')},
      {"goes on with line ends", grownWith('\r')},
      {"goes on over and over", repeatedToTheLargest},
      {"is all zeros", filledWith(0)},
      {"is all ones", filledWith(0xFF)},
      {"is all letters", filledWith('e')},
      {"is all line ends", filledWith('\r')},
      {"is all chance", allRandom},
      {"has a byte in ten changed", sprinkled(10)},
      {"has a byte in a thousand changed", sprinkled(1000)},
      {"has bits turned", bitsTurned},
      {"has lost a sector", sectorLost(0)},
      {"has another's sector", sectorLost(0xE5)},
      {"has pieces swapped", piecesSwapped},
      {"stands backwards", backwards},
      {"is its head over and over", headRepeated},
      {"has other line ends", replaced('\r', '\n')},
      {"has no line ends", dropped('\r')},
      {"is in wide characters", widened},
      {"has lost a mark", withoutMarks},
      {"has marks everywhere", marksEverywhere},
      {"counts zeros", everyInteger(0)},
      {"counts ones", everyInteger(1)},
      {"counts below zero", everyInteger(-1)},
      {"counts the largest", everyInteger(Largest)},
      {"counts the smallest", everyInteger(Smallest)},
      {"counts the largest here and there", someIntegers(Largest)},
      {"counts the smallest here and there", someIntegers(Smallest)},
      {"counts beyond the end here and there", someIntegers(1 << 30)},
      {"counts a little beside", integersMoved},
      {"counts backwards", integersBackwards},
  };
}

} // namespace

std::span<const Kind> kinds() {
  static const std::vector<Kind> all = allKinds();
  return all;
}

} // namespace talvora::damage
