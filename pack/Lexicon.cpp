// Look-up in flite's lexicon.
#include "pack/Lexicon.h"

#include "pack/Message.h"

#include <flite/flite.h>

#include <algorithm>
#include <array>
#include <stdexcept>

// The lexicon and the rules of the language come without headers.
extern "C" {
cst_lexicon* cmu_lex_init(void);
int us_aswd(const char* word);
}

namespace talvora::pack {

namespace {

cst_lexicon& lexicon() {
  static cst_lexicon* const loaded = [] {
    flite_init();
    return cmu_lex_init();
  }();
  if (loaded == nullptr) throw std::runtime_error(said("flite gives no lexicon for the words"));
  return *loaded;
}

} // namespace

bool hasLexicon() {
  return true;
}

Phones lexiconPhones(const std::string& word, char classLetter) {
  const std::string letter(1, classLetter);
  Phones phones;
  cst_val* const found = lex_lookup(&lexicon(), word.c_str(), letter.c_str(), nullptr);
  for (const cst_val* at = found; at != nullptr; at = val_cdr(at))
    phones.emplace_back(val_string(val_car(at)));
  delete_val(found);
  return phones;
}

bool lexiconHas(const std::string& word) {
  static constexpr std::array<const char*, 5> classes = {"0", "n", "v", "j", "r"};
  return std::any_of(classes.begin(), classes.end(), [&](const char* each) {
    return in_lex(&lexicon(), word.c_str(), each, nullptr) != 0;
  });
}

bool isSpelledOut(const std::string& word) {
  return us_aswd(word.c_str()) == 0;
}

} // namespace talvora::pack
