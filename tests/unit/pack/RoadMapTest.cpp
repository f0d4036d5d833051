// The road map of the course names each lesson once, by the number that the list shows.
#include "pack/LessonSource.h"
#include "pack/SourceFile.h"
#include "text/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {
namespace {

constexpr int FirstTable = 352; // they are for every level

/// The numbers behind ">> " in a line "Động từ: >> 1 đến 3, 9": 1, 2, 3 and 9; none in other lines.
std::vector<int> numbersIn(std::string_view line) {
  const std::size_t arrow = std::min(line.find(">> "), line.size());
  std::vector<int> numbers;
  for (const std::string& range : split(std::string(line.substr(arrow)).erase(0, 3), ',')) {
    std::istringstream words(range);
    int first = 0;
    if (!(words >> first)) continue;
    std::string until;
    int last = first;
    words >> until >> last;
    for (; first <= last; ++first)
      numbers.push_back(first);
  }
  return numbers;
}

TEST(RoadMap, NamesEachLessonOnceByItsNumberInTheList) {
  Problems problems;
  const auto folder = std::filesystem::path(TALVORA_CONTENT) / "lessons";
  const LessonSource source = readLessons(folder, problems);
  ASSERT_TRUE(problems.none());
  std::map<int, int> named;
  const std::string map = readText(folder / "357-road-map-a1-to-b2.txt", problems);
  for (const SourceLine& line : linesOf(map)) {
    for (const int number : numbersIn(line.text))
      ++named[number];
  }
  int headings = 0;
  for (int slot = 1; slot < FirstTable; ++slot) {
    headings += static_cast<int>(source.headings.count(slot));
    if (!source.lessons.contains(slot)) continue;
    EXPECT_EQ(named[slot - headings], 1) << "lesson " << slot << ", shown as " << slot - headings;
    named.erase(slot - headings);
  }
  EXPECT_TRUE(named.empty()) << "no lesson is shown as " << named.begin()->first;
}

} // namespace
} // namespace talvora::pack
