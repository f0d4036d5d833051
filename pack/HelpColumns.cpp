#include "pack/HelpColumns.h"

#include <algorithm>

namespace talvora::pack {

std::string HelpColumns::make_option(const CLI::Option* option, bool positional) const {
  const std::string name = "  " + make_option_name(option, positional) + make_option_opts(option);
  const auto letters = static_cast<std::size_t>(
      std::ranges::count_if(name, [](char byte) { return (byte & 0xC0) != 0x80; }));
  const std::size_t column = get_column_width();
  const bool fits = letters < column;
  return name + (fits ? "" : "\n") + std::string(column - (fits ? letters : 0), ' ') +
         make_option_desc(option) + "\n";
}

} // namespace talvora::pack
