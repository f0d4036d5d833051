// Measuring and widening of blanks.
#include "pack/BlankWidth.h"

#include "pack/ItemText.h"

#include <algorithm>
#include <vector>

namespace talvora::pack {

namespace {

constexpr std::size_t leastCells = 10;

/// A blank in a stored text: a "*", its key and its room of "_".
struct Blank {
  std::size_t from = 0;
  std::size_t keyEnd = 0;
  std::size_t end = 0;

  [[nodiscard]] std::size_t cells() const { return end - from; }
  [[nodiscard]] std::size_t room() const { return end - keyEnd; }
};

std::vector<Blank> blanksOf(std::string_view stored) {
  std::vector<Blank> blanks;
  for (std::size_t at = stored.find('*'); at < stored.size(); at = stored.find('*', at)) {
    const std::size_t keyEnd = std::min(stored.find('_', at), stored.size());
    const std::size_t end = std::min(stored.find_first_not_of('_', keyEnd), stored.size());
    blanks.push_back({at, keyEnd, end});
    at = end;
  }
  return blanks;
}

} // namespace

std::string withEvenBlanks(std::string_view stored) {
  const auto blanks = blanksOf(stored);
  const bool byHand = std::any_of(blanks.begin(), blanks.end(),
                                  [](const Blank& blank) { return blank.room() != UsualRoom; });
  std::size_t cells = byHand ? 0 : leastCells;
  for (const Blank& blank : blanks)
    cells = std::max(cells, blank.cells());
  std::string even;
  std::size_t at = 0;
  for (const Blank& blank : blanks) {
    even += stored.substr(at, blank.end - at);
    even.append(cells - blank.cells(), '_');
    at = blank.end;
  }
  return even.append(stored.substr(at));
}

} // namespace talvora::pack
