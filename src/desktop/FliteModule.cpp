#include "desktop/FliteModule.h"

#include <dlfcn.h>
#include <flite/flite.h>

#include <string>

namespace talvora {

cst_voice* loadFliteVoice(const char* name) {
  const std::string voice = std::string("cmu_us_") + name;
  // Never unloaded: the voice lives in it.
  void* const library = ::dlopen(("libflite_" + voice + ".so.1").c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) return nullptr;
  using Register = cst_voice*(const char* directory);
  auto* const makeVoice =
      reinterpret_cast<Register*>(::dlsym(library, ("register_" + voice).c_str()));
  return makeVoice == nullptr ? nullptr : makeVoice(nullptr);
}

} // namespace talvora

void talvoraMakeVoices(std::unique_ptr<talvora::Voices>& voices,
                       const std::vector<talvora::LexiconEntry>& lexicon) {
  voices = std::make_unique<talvora::FliteVoices>(talvora::loadFliteVoice, lexicon);
}
