#include "platform/scripted/KeyNames.h"

#include "platform/Input.h"
#include "text/Bytes.h"
#include "text/Text.h"

#include <algorithm>
#include <array>

namespace talvora {

namespace {

struct NamedKey {
  std::string_view name;
  ScriptedKey key;
};

constexpr std::array<NamedKey, 19> namedKeys = {{
    {"Esc", {key::Esc, chr(27)}},
    {"Enter", {key::Enter, chr(13)}},
    {"Space", {key::Space, ' '}},
    {"Tab", {key::Tab, chr(9)}},
    {"Backspace", {key::Backspace, chr(8)}},
    {"Delete", {key::Delete, 0}},
    {"Left", {key::Left, 0}},
    {"Right", {key::Right, 0}},
    {"Up", {key::Up, 0}},
    {"Down", {key::Down, 0}},
    {"Home", {key::Home, 0}},
    {"End", {key::End, 0}},
    {"PgUp", {key::PgUp, 0}},
    {"PgDn", {key::PgDn, 0}},
    {"F2", {key::F2, 0}},
    {"F6", {key::F6, 0}},
    {"F9", {key::F9, 0}},
    {"Ctrl", {key::Ctrl, 0}},
    {"Shift", {key::Shift, 0}},
}};

/// A key of the main block with the characters that it gives without and with Shift.
struct CharacterKey {
  int code;
  char plain;
  char shifted;
};

constexpr std::array<CharacterKey, 21> characterKeys = {{
    {'0', '0', ')'},  {'1', '1', '!'}, {'2', '2', '@'}, {'3', '3', '#'},  {'4', '4', '$'},
    {'5', '5', '%'},  {'6', '6', '^'}, {'7', '7', '&'}, {'8', '8', '*'},  {'9', '9', '('},
    {186, ';', ':'},  {187, '=', '+'}, {188, ',', '<'}, {189, '-', '_'},  {190, '.', '>'},
    {191, '/', '?'},  {192, '`', '~'}, {219, '[', '{'}, {220, '\\', '|'}, {221, ']', '}'},
    {222, '\'', '"'},
}};

/// The code of a character that no key of the keyboard gives: an input method sends it.
constexpr int packetCode = 231;

bool isLetter(char character) {
  return lower(character) >= 'a' && lower(character) <= 'z';
}

std::optional<ScriptedKey> keyOfCharacter(char character) {
  if (isLetter(character)) {
    return ScriptedKey{asc(lower(character)) - 'a' + 'A', character};
  }
  for (const NamedKey& each : namedKeys) {
    if (each.key.character != 0 && each.key.character == character) return each.key;
  }
  for (const CharacterKey& each : characterKeys) {
    if (each.plain == character || each.shifted == character) {
      return ScriptedKey{each.code, character};
    }
  }
  if (asc(character) < 32) return std::nullopt;
  return ScriptedKey{packetCode, character};
}

} // namespace

std::optional<ScriptedKey> keyNamed(std::string_view name) {
  if (name.size() == 1) return keyOfCharacter(name.front());
  const auto found = std::find_if(namedKeys.begin(), namedKeys.end(),
                                  [&](const NamedKey& each) { return each.name == name; });
  if (found == namedKeys.end()) return std::nullopt;
  return found->key;
}

ScriptedKey keyOfCode(int code) {
  return keyNamed(keyName(code)).value_or(ScriptedKey{code, 0});
}

std::string keyName(int code) {
  for (const NamedKey& each : namedKeys) {
    if (each.key.code == code) return std::string(each.name);
  }
  for (const CharacterKey& each : characterKeys) {
    if (each.code == code) return std::string(1, each.plain);
  }
  if (code >= 'A' && code <= 'Z') return std::string(1, chr(code));
  return "#" + std::to_string(code);
}

} // namespace talvora
