// What the entries of our own must show, whatever the word list is filled with around them.
#pragma once

#include "pack/Corpora.h"
#include "pack/FilledList.h"
#include "pack/Problems.h"
#include "pack/WordList.h"

#include <vector>

namespace talvora::pack {

/// Head words that are also a form of another one, as "saw" is of "see", and do not say so.
[[nodiscard]] std::vector<Problem> hiddenForms(const WordList& list, const WordSources& sources);

/// Our head words and their forms whose entry gives an English sense beside the Vietnamese ones.
[[nodiscard]] std::vector<Problem> englishSenses(const WordList& list);

/// Words of the corpora that are regular forms of our head words and are not explained as such,
/// since no word list has them: "mooncakes". The source of accepted words is to list them.
[[nodiscard]] std::vector<Problem> unlistedForms(const std::vector<Corpus>& corpora,
                                                 const WordList& list, const WordSources& sources);

} // namespace talvora::pack
