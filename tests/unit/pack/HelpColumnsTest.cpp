// Whatever letters help has, it stands in columns.
#include "pack/HelpColumns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace talvora::pack {
namespace {

/// Where each description begins, in letters.
std::vector<std::size_t> columnsOf(const std::string& help) {
  std::vector<std::size_t> columns;
  std::istringstream lines(help);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t at = line.find("tells");
    if (at == std::string::npos) continue;
    const auto letters = std::count_if(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(at),
                                       [](char byte) { return (byte & 0xC0) != 0x80; });
    columns.push_back(static_cast<std::size_t>(letters));
  }
  return columns;
}

TEST(HelpColumns, HoldForLettersOfSeveralBytes) {
  CLI::App application("Tries.", "try");
  application.formatter(std::make_shared<HelpColumns>());
  application.get_formatter()->label("TEXT", "CHỮ");
  std::string text;
  bool flag = false;
  application.add_option("--pack", text, "tells of a text");
  application.add_flag("--quick", flag, "tells of a flag");
  application.add_option("--one-whose-name-is-long-and-longer", text, "tells below it");
  const auto columns = columnsOf(application.help());
  ASSERT_EQ(columns.size(), 3U);
  EXPECT_EQ(columns[0], columns[1]);
  EXPECT_EQ(columns[0], columns[2]);
}

} // namespace
} // namespace talvora::pack
