// Boxes stop the program until the user has answered.
#pragma once

#include <string_view>

namespace talvora {

enum class BoxAnswer { No, Yes };

class Boxes {
 public:
  virtual ~Boxes() = default;

  /// A question box with the question icon and the buttons Yes and No.
  virtual BoxAnswer ask(std::string_view text, std::string_view title, BoxAnswer byDefault) = 0;
  /// A message box with an OK button and no caption text of its own.
  virtual void tell(std::string_view text) = 0;
};

} // namespace talvora
