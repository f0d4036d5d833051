// Help in columns of letters: Vietnamese ones have several bytes.
#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace talvora::pack {

/// Formats help as the library does, whose own columns are of bytes.
class HelpColumns : public CLI::Formatter {
 public:
  [[nodiscard]] std::string make_option(const CLI::Option* option, bool positional) const override;
};

} // namespace talvora::pack
