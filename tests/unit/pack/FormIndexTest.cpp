// Forms come back with the numbers that they were added with, however they share their places.
#include "pack/FormIndex.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace talvora::pack {
namespace {

class Forms {
 public:
  explicit Forms(std::size_t most) : index_(most) {}

  void add(const std::string& form) {
    index_.add(form, forms_.size());
    forms_.push_back(form);
  }
  [[nodiscard]] std::optional<std::size_t> find(const std::string& form) const {
    return index_.find(
        form, [this](std::size_t number) -> const std::string& { return forms_.at(number); });
  }

 private:
  FormIndex index_;
  std::vector<std::string> forms_;
};

TEST(FormIndex, FindsWhatWasAddedAndNothingElse) {
  constexpr std::size_t Most = 5000;
  Forms forms(Most);
  for (std::size_t number = 0; number < Most; ++number)
    forms.add("form" + std::to_string(number));
  for (std::size_t number = 0; number < Most; ++number) {
    EXPECT_EQ(forms.find("form" + std::to_string(number)), number);
    EXPECT_EQ(forms.find("other" + std::to_string(number)), std::nullopt);
  }
}

TEST(FormIndex, AnswersWhenItHasNoRoomForAnything) {
  const Forms forms(0);
  EXPECT_EQ(forms.find("form"), std::nullopt);
}

} // namespace
} // namespace talvora::pack
