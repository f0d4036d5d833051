// Options by length and by sound, stretches by their class.
#include "pack/DrillChecks.h"

#include "pack/HeardApart.h"
#include "pack/Message.h"
#include "pack/StreamText.h"
#include "pack/TextWords.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace talvora::pack {

namespace {

constexpr double lengthShare = 0.25;
/// In short options a letter or two weigh too much.
constexpr double lengthSlack = 6.0;
constexpr double mostExact = 1.0 / 3.0;
constexpr double leastLongest = 0.15;
constexpr double mostLongest = 0.35;
/// Shares of fewer items say nothing.
constexpr std::size_t enoughItems = 20;
constexpr double linkedShare = 0.9;

/// The checks of one unit.
class UnitChecker {
 public:
  UnitChecker(int unit, const ListeningUnit& items, const UnitVoices& voices, std::string file,
              Problems& problems)
      : unit_(unit), items_(items), file_(std::move(file)), problems_(problems) {
    const auto found = voices.find(unit);
    if (found != voices.end()) voices_ = &found->second;
  }

  /// What is only counted; empty for a strict unit, whose problems are reported.
  std::string check() {
    for (const ListeningQuestion& item : items_) {
      checkSounds(item);
      if (!optionsAreLike(item)) tellLength(item);
    }
    const std::size_t exact = exactKeys();
    const bool manyExact =
        static_cast<double>(exact) > mostExact * static_cast<double>(items_.size());
    if (unit_ < FirstStrictUnit) return counted(exact, manyExact);
    if (manyExact) {
      problems_.add({file_},
                    said("{} of {} keys are the heard sentence itself; a third at most may be",
                         exact, items_.size()));
    }
    checkLongest();
    return {};
  }

 private:
  void checkSounds(const ListeningQuestion& item) {
    if (voices_ == nullptr) return;
    const auto place = static_cast<std::size_t>(item.number) - 1;
    const Speaker speaker = place < voices_->size() ? (*voices_)[place] : LiveSpeaker;
    for (const std::string& wrong : item.wrong) {
      const std::string reason = notHeardApart(item.sentence, wrong, speaker);
      if (!reason.empty()) problems_.add(item.where, quotedOption(wrong) + reason);
    }
  }

  static std::string quotedOption(const std::string& option) {
    return "\"" + utf8Of(option) + "\": ";
  }

  static std::vector<double> lengthsOf(const ListeningQuestion& item) {
    std::vector<double> lengths = {static_cast<double>(item.right.size())};
    for (const std::string& wrong : item.wrong)
      lengths.push_back(static_cast<double>(wrong.size()));
    return lengths;
  }

  static bool optionsAreLike(const ListeningQuestion& item) {
    auto lengths = lengthsOf(item);
    std::sort(lengths.begin(), lengths.end());
    const double median = (lengths[1] + lengths[2]) / 2;
    const double slack = std::max(lengthShare * median, lengthSlack);
    return median - lengths.front() <= slack && lengths.back() - median <= slack;
  }

  void tellLength(const ListeningQuestion& item) {
    ++unlike_;
    if (unit_ < FirstStrictUnit) return;
    problems_.add(item.where, said("the options differ too much in length: each stays within a "
                                   "quarter of the middle one"));
  }

  std::size_t exactKeys() const {
    return static_cast<std::size_t>(
        std::count_if(items_.begin(), items_.end(),
                      [](const ListeningQuestion& item) { return item.right == item.sentence; }));
  }

  std::string counted(std::size_t exact, bool manyExact) const {
    std::string note;
    if (manyExact) {
      note = said("{} of {} keys are the heard sentence itself", exact, items_.size());
    }
    if (unlike_ > 0) {
      note += (note.empty() ? "" : ", ") + saidOf(static_cast<std::size_t>(unlike_),
                                                  "{} item has options of unlike length",
                                                  "{} items have options of unlike length");
    }
    return note.empty() ? note : said("listening unit {}: {}", unit_, note);
  }

  void checkLongest() {
    std::size_t others = 0;
    std::size_t longest = 0;
    for (const ListeningQuestion& item : items_) {
      if (item.right == item.sentence) continue;
      ++others;
      const auto lengths = lengthsOf(item);
      if (lengths.front() > *std::max_element(lengths.begin() + 1, lengths.end())) ++longest;
    }
    const double share =
        static_cast<double>(longest) / static_cast<double>(std::max<std::size_t>(others, 1));
    if (others < enoughItems || (share >= leastLongest && share <= mostLongest)) return;
    problems_.add({file_}, said("the key is the longest option in {} % of {} items, which gives it "
                                "away; 15 to 35 % may be",
                                std::lround(100 * share), others));
  }

  int unit_;
  const ListeningUnit& items_;
  const std::vector<Speaker>* voices_ = nullptr; ///< null when a person reads
  std::string file_;
  Problems& problems_;
  int unlike_ = 0;
};

/// True for a class that names a subject or a conjunction together with a verb.
bool isTwoPhrases(std::string_view wordClass) {
  static const std::string verb = ownText("động từ");
  static const std::string subject = ownText("chủ ngữ +");
  static const std::string conjunction = ownText("liên từ +");
  static const std::string inside = ownText("+ chủ ngữ");
  if (wordClass.find(verb) == std::string_view::npos) return false;
  return wordClass.find(subject) != std::string_view::npos ||
         wordClass.find(inside) != std::string_view::npos || wordClass.starts_with(conjunction);
}

/// True for a verb with an adverb inside, "is still falling".
bool hasAdverb(const AnalysisEntry& entry) {
  static const std::string verb = ownText("động từ");
  static constexpr std::array<std::string_view, 10> adverbs = {
      "also", "always", "already", "even", "just", "never", "often", "only", "still", "usually"};
  if (!entry.field(AnalysisField::Class).starts_with(verb)) return false;
  const auto words = plainWords(entry.field(AnalysisField::Word));
  return words.size() > 1 && std::any_of(words.begin(), words.end(), [](const std::string& word) {
           return contains(adverbs, word);
         });
}

} // namespace

std::vector<std::string> checkOptions(const ListeningSource& source, const UnitVoices& voices,
                                      const std::filesystem::path& folder, Problems& problems) {
  std::vector<std::string> notes;
  for (const auto& [unit, items] : source.units) {
    const auto file = folder / ("unit-" + std::to_string(unit) + ".txt");
    std::string note = UnitChecker(unit, items, voices, file.string(), problems).check();
    if (!note.empty()) notes.push_back(std::move(note));
  }
  return notes;
}

void checkCutting(const AnalysisSource& source, const std::filesystem::path& folder,
                  Problems& problems) {
  for (const auto& [number, analysis] : source.analyses) {
    std::size_t linked = 0;
    for (const AnalysisEntry& entry : analysis) {
      if (!entry.lessons.empty()) ++linked;
      if (!isTwoPhrases(entry.field(AnalysisField::Class)) && !hasAdverb(entry)) continue;
      problems.add(entry.where, said("\"{}\" is more than one phrase; a verb stands apart from its "
                                     "subject, from a conjunction and from an adverb",
                                     utf8Of(entry.field(AnalysisField::Word))));
    }
    if (static_cast<double>(linked) >= linkedShare * static_cast<double>(analysis.size())) continue;
    const std::string digits = std::to_string(number);
    const auto file = folder / ((digits.size() < 2 ? "0" : "") + digits + ".txt");
    problems.add({file.string()}, said("{} of {} stretches lead to a lesson; nine of ten must",
                                       linked, analysis.size()));
  }
}

} // namespace talvora::pack
