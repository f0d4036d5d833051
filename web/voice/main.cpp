// The English voices in a worker: what is to be said comes in, samples go out.

#include "fronts/FliteVoices.h"
#include "sound/Pronunciations.h"

#include <emscripten.h>
#include <flite/flite.h>

#include <map>
#include <memory>
#include <string>

extern "C" {
/// Takes the next samples; 0 when no more are wanted.
int talvoraPart(const std::int16_t* samples, std::size_t count, int rate);
void usenglish_init(cst_voice* voice);
cst_lexicon* cmu_lex_init();
}

namespace talvora {

namespace {

struct Speaker {
  Pronunciations pronunciations;
  FliteVoices voices;
};
// The worker calls functions that are given nothing.
std::unique_ptr<Speaker> speaker;

std::string fileOf(const std::string& name) {
  return "/" + name + ".flitevox";
}

/// The worker has put the file of the voice there ahead of the call.
cst_voice* loadVoice(const char* name) {
  static std::map<std::string, cst_voice*> loaded;
  cst_voice*& voice = loaded[name];
  if (voice == nullptr) voice = flite_voice_load(fileOf(name).c_str());
  return voice;
}

} // namespace

} // namespace talvora

extern "C" {

/// Takes the corrections of a pack; comes first.
EMSCRIPTEN_KEEPALIVE void talvoraTeach(const char* corrections) {
  using namespace talvora;
  flite_add_lang("eng", usenglish_init, cmu_lex_init);
  Pronunciations pronunciations = Pronunciations::read(corrections);
  auto lexicon = pronunciations.lexicon();
  speaker.reset(new Speaker{std::move(pronunciations), {loadVoice, std::move(lexicon)}});
}

/// The name of the voice of a number.
EMSCRIPTEN_KEEPALIVE const char* talvoraVoiceName(int number) {
  return talvora::fliteVoiceName(number);
}

/// Says a text of plain ASCII; 0 when the voice is not there.
EMSCRIPTEN_KEEPALIVE int talvoraSay(const char* text, int number, int wordsPerMinute) {
  using talvora::speaker;
  const auto take = [](std::span<const std::int16_t> samples, int rate) {
    return talvoraPart(samples.data(), samples.size(), rate) != 0;
  };
  const std::string prepared = speaker->pronunciations.prepared(text);
  return speaker->voices.say(prepared, number, wordsPerMinute, take) ? 1 : 0;
}
}
