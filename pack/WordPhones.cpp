// Look-up in the lexicon.
#include "pack/WordPhones.h"

#include <flite/flite.h>

#include <stdexcept>

// The lexicon comes without a header.
extern "C" {
cst_lexicon* cmu_lex_init(void);
}

namespace talvora::pack {

namespace {

cst_lexicon& lexicon() {
  static cst_lexicon* const loaded = [] {
    flite_init();
    return cmu_lex_init();
  }();
  if (loaded == nullptr) throw std::runtime_error("flite gives no lexicon for the words");
  return *loaded;
}

} // namespace

std::vector<std::string> wordPhones(const std::string& word) {
  std::vector<std::string> phones;
  cst_val* const found = lex_lookup(&lexicon(), word.c_str(), nullptr, nullptr);
  for (const cst_val* at = found; at != nullptr; at = val_cdr(at)) {
    std::string phone = val_string(val_car(at));
    while (!phone.empty() && phone.back() >= '0' && phone.back() <= '9')
      phone.pop_back();
    phones.push_back(std::move(phone));
  }
  delete_val(found);
  return phones;
}

} // namespace talvora::pack
