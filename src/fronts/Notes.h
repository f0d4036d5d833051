// What a front says in a line: what became of a word that was to be kept, how an answer was judged.
#pragma once

#include "platform/Desk.h"

#include <string>

namespace talvora {

[[nodiscard]] std::u16string noteOf(const std::string& word, WordTaken outcome, int count);
[[nodiscard]] std::u16string noteOf(Verdict verdict);

} // namespace talvora
