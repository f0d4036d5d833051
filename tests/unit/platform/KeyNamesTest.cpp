// The names of keys in scripts.
#include "platform/scripted/KeyNames.h"

#include "platform/Input.h"

#include <gtest/gtest.h>

#include <string>

namespace talvora {
namespace {

TEST(KeyNames, NamedKeysHaveTheirCodesAndCharacters) {
  EXPECT_EQ(keyNamed("Esc"), (ScriptedKey{key::Esc, '\x1B'}));
  EXPECT_EQ(keyNamed("Enter"), (ScriptedKey{key::Enter, '\r'}));
  EXPECT_EQ(keyNamed("PgDn"), (ScriptedKey{key::PgDn, 0}));
  EXPECT_EQ(keyNamed("F9"), (ScriptedKey{key::F9, 0}));
  EXPECT_EQ(keyNamed("Ctrl"), (ScriptedKey{key::Ctrl, 0}));
}

TEST(KeyNames, ALetterHasTheCodeOfItsCapital) {
  EXPECT_EQ(keyNamed("q"), (ScriptedKey{'Q', 'q'}));
  EXPECT_EQ(keyNamed("Q"), (ScriptedKey{'Q', 'Q'}));
  EXPECT_EQ(keyNamed("7"), (ScriptedKey{'7', '7'}));
}

TEST(KeyNames, NoCharacterHasTheCodeOfANamedKeyWithoutCharacter) {
  for (int code = 32; code < 256; ++code) {
    const std::string name(1, static_cast<char>(code));
    const auto found = keyNamed(name);
    ASSERT_TRUE(found) << code;
    EXPECT_EQ(found->character, name.front());
    for (const char* other : {"Left", "Up", "Right", "Down", "Home", "End", "PgUp", "PgDn",
                              "Delete", "F2", "F6", "F9", "Ctrl", "Shift"}) {
      EXPECT_NE(found->code, keyNamed(other)->code) << name << " and " << other;
    }
  }
}

TEST(KeyNames, AControlCharacterIsTheKeyThatGivesIt) {
  EXPECT_EQ(keyNamed("\r"), keyNamed("Enter"));
  EXPECT_EQ(keyNamed("\t"), keyNamed("Tab"));
  EXPECT_EQ(keyNamed(" "), keyNamed("Space"));
}

TEST(KeyNames, OtherNamesAreNoKeys) {
  EXPECT_FALSE(keyNamed(""));
  EXPECT_FALSE(keyNamed("F7"));
  EXPECT_FALSE(keyNamed("esc"));
  EXPECT_FALSE(keyNamed("\n"));
  EXPECT_FALSE(keyNamed("ab"));
}

TEST(KeyNames, ACodeGivesItsNameBack) {
  for (const char* name : {"Esc", "Home", "End", "Shift", "F6", "A", "5", ";"}) {
    EXPECT_EQ(keyName(keyNamed(name)->code), name);
  }
  EXPECT_EQ(keyName(115), "#115");
}

} // namespace
} // namespace talvora
