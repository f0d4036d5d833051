// The one failure that ends the program.
#pragma once

#include <stdexcept>

namespace talvora {

/// Thrown where the program cannot go on (a missing file at start, a fixed table overrun). The
/// message names the file and the record. A front catches it at the event that led there, tells it
/// to the user and ends the program with exit code 1.
class FatalFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

} // namespace talvora
