// The rules that lines of the pronunciation source make.
#pragma once

#include "pack/Pronouncer.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace talvora::pack {

/// Fails the test where a line has a problem.
inline std::vector<PronunciationRule> rulesOf(std::string_view text) {
  Problems problems;
  auto rules = parsePronunciations(text, "p.txt", problems);
  EXPECT_TRUE(problems.none());
  return rules;
}

} // namespace talvora::pack
