// What a learner can see and do from outside the program with the words of the list: `talvora-pack
// words`. It speaks Vietnamese, in UTF-8, for it is the learner who asks.
#pragma once

#include "pack/Telling.h"
#include "platform/Calendar.h"
#include "platform/FileSystem.h"

#include <iosfwd>
#include <optional>
#include <string>

namespace talvora::pack {

/// What to do it with.
struct LearnersList {
  std::string folder; ///< the learner's own
  FileSystem& files = systemFiles();
  const Calendar& calendar = systemCalendar();
};

/// All words with their texts and sentences; those whose sentence is in the pack no more are
/// marked.
[[nodiscard]] ListResult listWords(const LearnersList& list, std::ostream& out);
/// The dated copies, with the number of words in each.
[[nodiscard]] ListResult listBackups(const LearnersList& list, std::ostream& out);

enum class Doing { Show, Do };

/// Brings back the words that a copy has and the list has not; nothing that is there goes. `copy`
/// is empty for the newest one that has such words. `Show` only shows them.
[[nodiscard]] ListResult restoreWords(const LearnersList& list, const std::string& copy,
                                      Doing doing, std::ostream& out);
/// Tells what is odd in the list: bytes that are no record, records without a word, words that
/// stand twice, and with a pack, places at which no sentence begins. `Do` mends it.
[[nodiscard]] ListResult checkWords(const LearnersList& list,
                                    const std::optional<std::string>& pack, Doing doing,
                                    std::ostream& out);

} // namespace talvora::pack
