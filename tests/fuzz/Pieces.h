// Several texts out of one input: each but the last ends at a line that holds "%%" alone.
#pragma once

#include <cstddef>
#include <string_view>

namespace talvora::fuzz {

class Pieces {
 public:
  explicit Pieces(std::string_view input) : rest_(input) {}

  /// The next one; empty when there is none any more.
  std::string_view next() {
    constexpr std::string_view Mark = "\n%%\n";
    const std::size_t end = rest_.find(Mark);
    const std::string_view piece = rest_.substr(0, end);
    rest_ = end == std::string_view::npos ? std::string_view() : rest_.substr(end + Mark.size());
    return piece;
  }

 private:
  std::string_view rest_;
};

} // namespace talvora::fuzz
