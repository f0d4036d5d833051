// Normal forms of words and the suffix rules.
#include "text/WordForm.h"

#include "text/Bytes.h"
#include "text/CharClass.h"
#include "text/Text.h"

namespace talvora {

namespace {

using namespace literals;

constexpr CharClass kept("[a-z,A-Z,'. àáéèóõêâ]"_bytes);
constexpr CharClass droppedAhead("['-(/]");

void replaceEnding(std::string& word, std::string_view ending, char replacement) {
  if (word.size() <= 3 || !word.ends_with(ending)) return;
  word.replace(word.size() - ending.size(), ending.size(), 1, replacement);
}

} // namespace

std::string ChuanHoaTu(std::string_view line) {
  if (line.size() <= 1) return std::string(trim(line));
  const std::string small = lower(line);
  std::string form;
  char previous = '\0';
  for (const char character : std::string_view(small).substr(droppedAhead.has(small[0]) ? 1 : 0)) {
    if (kept.has(character)) {
      form += character;
    } else if (!form.empty() && previous != ' ') {
      form += ' ';
    }
    previous = character;
  }
  return std::string(trim(form));
}

std::string RutGonDuoi(std::string_view word) {
  std::string reduced = lower(word);
  replaceEnding(reduced, "ies", 'y');
  replaceEnding(reduced, "ing", 'e');
  replaceEnding(reduced, "ied", 'y');
  return reduced;
}

} // namespace talvora
