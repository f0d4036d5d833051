// A build without speech knows nothing of how words are said.
#include "pack/Lexicon.h"

namespace talvora::pack {

bool hasLexicon() {
  return false;
}

Phones lexiconPhones(const std::string&, char) {
  return {};
}

bool lexiconHas(const std::string&) {
  return false;
}

bool isSpelledOut(const std::string&) {
  return false;
}

} // namespace talvora::pack
