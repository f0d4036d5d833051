// Entries of a lexicon, as flite keeps them.
#include "sound/FliteLexicon.h"

#include <flite/flite.h>

#include <string>

namespace talvora {

void teach(lexicon_struct& lexicon, std::span<const LexiconEntry> corrections) {
  cst_val* entries = nullptr;
  for (const LexiconEntry& each : corrections) {
    // The zero means a word of any class.
    const std::string line = each.word + " 0 : " + each.phones;
    entries = cons_val(cst_lex_make_entry(&lexicon, line.c_str()), entries);
  }
  delete_val(lexicon.lex_addenda);
  lexicon.lex_addenda = entries;
}

} // namespace talvora
