// The lexicon's phones without their stress.
#include "pack/WordPhones.h"

#include "pack/Lexicon.h"

namespace talvora::pack {

std::vector<std::string> wordPhones(const std::string& word) {
  Phones phones = lexiconPhones(word, '0');
  for (std::string& phone : phones) {
    while (!phone.empty() && phone.back() >= '0' && phone.back() <= '9')
      phone.pop_back();
  }
  return phones;
}

} // namespace talvora::pack
