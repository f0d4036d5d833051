// Any bytes as the corrections of a pack's pronunciation, and as what is to be spoken: what is read
// is written as it was read, and the voice is given plain text.
#include "sound/Pronunciations.h"
#include "tests/fuzz/Pieces.h"
#include "text/Text.h"

#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talvora;
  fuzz::Pieces pieces({reinterpret_cast<const char*>(data), size});
  const Pronunciations corrections = Pronunciations::read(pieces.next());
  const std::string written = corrections.write();
  if (Pronunciations::read(written).write() != written) std::abort();
  const std::string spoken = plainAscii(pieces.next());
  if (corrections.lexiconFor(spoken).size() > corrections.lexicon().size()) std::abort();
  static_cast<void>(corrections.prepared(spoken));
  return 0;
}
