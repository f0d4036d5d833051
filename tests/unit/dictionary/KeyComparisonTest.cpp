#include "dictionary/KeyComparison.h"

#include "text/WordForm.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace talvora {
namespace {

void expectAgreement(const std::string& key, const std::string& line) {
  const auto expected = std::string_view(key) <=> std::string_view(ChuanHoaTu(line));
  ASSERT_TRUE(compareWithForm(key, line) == expected)
      << "key " << testing::PrintToString(key) << ", line " << testing::PrintToString(line);
}

TEST(KeyComparison, AgreesWithTheNormalFormOfEverySingleCharacter) {
  for (int code = 0; code < 256; ++code) {
    const std::string line(1, static_cast<char>(code));
    expectAgreement(line, line);
    expectAgreement("", line);
    expectAgreement("m", line);
    expectAgreement("am", "a" + line + "m");
    expectAgreement("a m", "a" + line + "m");
  }
}

TEST(KeyComparison, AgreesWithTheNormalFormOfRandomLines) {
  // Characters that each take a way of their own, so that short lines meet many rules.
  const std::string alphabet = "abAZ ',.-(/)123\xE0\xE9\xFF|\t";
  std::mt19937 random(20);
  const auto text = [&](std::size_t most) {
    std::string result(random() % (most + 1), '\0');
    for (char& each : result)
      each = alphabet[random() % alphabet.size()];
    return result;
  };
  for (int round = 0; round < 200000; ++round) {
    const std::string line = text(9);
    expectAgreement(text(5), line);
    const std::string form = ChuanHoaTu(line);
    expectAgreement(form, line);
    expectAgreement(form + "a", line);
    expectAgreement(form.substr(0, form.size() / 2), line);
  }
}

TEST(KeyComparison, AgreesOnLinesOfAnyBytes) {
  std::mt19937 random(7);
  for (int round = 0; round < 50000; ++round) {
    std::string line(random() % 12, '\0');
    for (char& each : line)
      each = static_cast<char>(random());
    std::string key = ChuanHoaTu(line);
    expectAgreement(key, line);
    if (!key.empty()) key[random() % key.size()] = static_cast<char>(random());
    expectAgreement(key, line);
  }
}

} // namespace
} // namespace talvora
