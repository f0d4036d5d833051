// The sheets.
#include "pack/Planner.h"

#include "pack/Message.h"
#include "pack/StreamText.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace talvora::pack {

namespace {

constexpr std::size_t lineWidth = 110;
constexpr std::array<std::string_view, 6> levels = {"A1", "A2", "B1", "B2", "C1", ""};

std::string padded(std::string text, std::size_t width) {
  if (text.size() < width) text.append(width - text.size(), ' ');
  return text;
}

/// Words behind one another, broken into indented lines.
std::string wrapped(const std::vector<std::string>& words) {
  std::string text;
  std::string line = " ";
  for (std::size_t at = 0; at < words.size(); ++at) {
    const std::string word = words[at] + (at + 1 < words.size() ? "," : "");
    if (line.size() + 1 + word.size() > lineWidth) {
      text += line + "\n";
      line = " ";
    }
    line += " " + word;
  }
  return words.empty() ? "" : text + line + "\n";
}

std::string describe(const Series& series) {
  std::string text =
      said("Series {}-{}, {}, {}: {} to {} words, {} to {} words a sentence", series.slots.from,
           series.slots.to, nameOf(series.kind), series.level, series.words.from, series.words.to,
           series.sentence.from, series.sentence.to);
  if (series.newLemmas) text += said(", at most {} new lemmas", *series.newLemmas);
  const double share = knownShareOf(series.kind);
  if (share > 0) text += said(", {} % known at first sight", withDecimal(share));
  return text + "\n";
}

std::string verdict(const Band& band, double value) {
  return band.has(value) ? "" : value < band.from ? said(" (too few)") : said(" (too many)");
}

/// Makes the sheet of one slot.
class SheetWriter {
 public:
  SheetWriter(const Planner& planner, int slot)
      : planner_(planner), slot_(slot), series_(seriesOf(planner.plan, slot)),
        text_(planner.book.textAt(slot)) {}

  std::string write(Detail detail) const {
    std::string sheet = said("Slot {}: {}", slot_, title()) + "\n";
    sheet += series_ != nullptr ? describe(*series_)
                                : said("In no series: the book leaves it out") + "\n";
    if (text_ != nullptr) sheet += "\n" + whatItDid();
    sheet += "\n" + whatIsKnown(detail);
    sheet += "\n" + whatIsDue();
    return sheet + "\n" + whatMayBeNew();
  }

 private:
  std::string title() const {
    const auto found = planner_.readings.texts.find(slot_);
    return found != planner_.readings.texts.end() ? utf8Of(found->second.title) : said("open");
  }

  std::string whatItDid() const {
    std::string report = said("The text: {} words", text_->words);
    if (series_ != nullptr) report += verdict(series_->words, text_->words);
    report += said(", {} sentences, {} words a sentence", text_->sentences,
                   withDecimal(text_->wordsASentence()));
    if (series_ != nullptr) report += verdict(series_->sentence, text_->wordsASentence());
    report += said(", {} names left out", text_->names) + "\n";
    report += "  " +
              said("longest sentence, {} words: {}", text_->longestWords, utf8Of(text_->longest)) +
              "\n";
    report += "  " + said("known at first sight: {} %", withDecimal(text_->knownShare()));
    const bool unfamiliar = series_ != nullptr && text_->knownShare() < knownShareOf(series_->kind);
    report += (unfamiliar ? said(" (too few)") : "") + "\n";
    return report + newLemmas() + returned() + missed();
  }

  std::string newLemmas() const {
    const std::size_t count = text_->newLemmas.size();
    std::string report = said("New lemmas: {}", count);
    if (series_ != nullptr && series_->newLemmas) {
      report += said(" of at most {}", *series_->newLemmas);
      if (static_cast<int>(count) > *series_->newLemmas) report += said(" (too many)");
    }
    std::vector<std::string> lines;
    for (const std::string& lemma : text_->newLemmas)
      lines.push_back(withDetails(lemma));
    return report + "\n" + wrapped(lines) + lowerOnes();
  }

  /// What texts that are still to come may well bring ahead of this one.
  std::string lowerOnes() const {
    const int open = planner_.book.openAhead(slot_);
    if (open == 0 || series_ == nullptr) return "";
    const auto lower = std::count_if(text_->newLemmas.begin(), text_->newLemmas.end(),
                                     [this](const std::string& lemma) {
                                       const std::string level = planner_.lemmas.levelOf(lemma);
                                       return !level.empty() && level < series_->level;
                                     });
    return "  " +
           said("{} of a level below {}; {} open slots ahead may bring them", lower, series_->level,
                open) +
           "\n";
  }

  /// "engine 2x A2", with what is wrong about it.
  std::string withDetails(const std::string& lemma) const {
    const int count = text_->lemmas.at(lemma);
    std::string text = utf8Of(lemma) + " " + std::to_string(count) + "x";
    const std::string level = planner_.lemmas.levelOf(lemma);
    if (!level.empty()) text += " " + level;
    if (count < 2) text += said(" ONCE");
    if (series_ != nullptr && level > series_->level) text += said(" ABOVE");
    if (!planner_.lemmas.hasEntry(lemma)) text += said(" NO-ENTRY");
    return text;
  }

  std::string returned() const {
    std::vector<std::string> used;
    for (const DueLemma& due : planner_.book.dueAt(slot_)) {
      if (text_->lemmas.count(due.lemma) != 0) used.push_back(utf8Of(due.lemma));
    }
    return said("Returned: {} lemmas that were due", used.size()) + "\n" + wrapped(used);
  }

  std::string missed() const {
    const auto lemmas = planner_.book.missedOf(slot_);
    std::vector<std::string> late;
    late.reserve(lemmas.size());
    for (const DueLemma& due : lemmas)
      late.push_back(said("{} (by {})", utf8Of(due.lemma), due.lastSlot));
    if (late.empty()) return "";
    return said("Brought here and not returned in time: {}", late.size()) + "\n" + wrapped(late);
  }

  std::string whatIsKnown(Detail detail) const {
    const auto known = planner_.book.knownBefore(slot_);
    const auto& texts = planner_.book.texts();
    const auto ahead = std::distance(texts.begin(), texts.lower_bound(slot_));
    std::string report = said("Known by then: {} lemmas from {} texts", known.size(), ahead) + "\n";
    if (detail == Detail::Short) return report;
    std::vector<std::string> words;
    words.reserve(known.size());
    for (const std::string& lemma : known)
      words.push_back(utf8Of(lemma));
    return report + wrapped(words);
  }

  std::string whatIsDue() const {
    std::string report =
        said("Due again, the most urgent first (with the last slot that is in time)") + "\n";
    const auto due = planner_.book.dueAt(slot_);
    for (const int window : ReturnWindows) {
      std::vector<std::string> words;
      for (const DueLemma& each : due) {
        if (each.window == window)
          words.push_back(utf8Of(each.lemma) + " " + std::to_string(each.lastSlot));
      }
      report += " " + said("within {} texts: {}", window, words.size()) + "\n" + wrapped(words);
    }
    return report;
  }

  // Words of a higher level than the series are no candidates; those without a level may be any.
  std::string whatMayBeNew() const {
    std::string report =
        said("May be new: head words that no text up to here has, by level") + "\n";
    for (const std::string_view level : levels) {
      if (series_ != nullptr && !level.empty() && level > series_->level) continue;
      std::vector<std::string> words;
      for (const std::string& head : planner_.lemmas.heads()) {
        const int first = planner_.book.firstSlotOf(head);
        if (planner_.lemmas.levelOf(head) == level && (first == 0 || first >= slot_))
          words.push_back(utf8Of(head));
      }
      report += " " + (level.empty() ? said("without a level") : std::string(level)) + ": " +
                std::to_string(words.size()) + "\n";
      if (!level.empty()) report += wrapped(words);
    }
    return report;
  }

  const Planner& planner_;
  int slot_;
  const Series* series_;
  const TextWords* text_;
};

std::vector<int> slotsOf(const std::vector<Series>& plan, const ReadingSource& readings) {
  std::vector<int> slots;
  for (int slot = 1; slot <= ReadingSlots; ++slot) {
    if (seriesOf(plan, slot) != nullptr && readings.headings.count(slot) == 0)
      slots.push_back(slot);
  }
  return slots;
}

} // namespace

Planner readPlanner(const std::filesystem::path& source, Problems& problems) {
  ReadingSource readings = readReadings(source / "reading", problems);
  auto plan = readPlan(source, problems);
  std::erase_if(readings.texts,
                [&plan](const auto& text) { return seriesOf(plan, text.first) == nullptr; });
  const Lemmas lemmas(readDictionary(source / "dictionary", problems),
                      NameFinder(readings).words());
  LemmaBook book(readings, slotsOf(plan, readings), lemmas);
  return {std::move(readings), std::move(plan), lemmas, std::move(book)};
}

std::string withDecimal(double value) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.1f", value);
  return text.data();
}

std::string overview(const Planner& planner) {
  std::string report =
      said("slot words  a sentence  known %  new  once  missed  known after  title") + "\n";
  for (const auto& [slot, text] : planner.book.texts()) {
    const auto once = std::count_if(
        text.newLemmas.begin(), text.newLemmas.end(),
        [&text = text](const std::string& lemma) { return text.lemmas.at(lemma) < 2; });
    report += padded(std::to_string(slot), 5) + padded(std::to_string(text.words), 7) +
              padded(withDecimal(text.wordsASentence()), 12) +
              padded(withDecimal(text.knownShare()), 9) +
              padded(std::to_string(text.newLemmas.size()), 5) + padded(std::to_string(once), 6) +
              padded(std::to_string(planner.book.missedOf(slot).size()), 8) +
              padded(std::to_string(planner.book.knownBefore(slot + 1).size()), 13) +
              utf8Of(planner.readings.texts.at(slot).title) + "\n";
  }
  return report;
}

std::string sheet(const Planner& planner, int slot, Detail detail) {
  return SheetWriter(planner, slot).write(detail);
}

} // namespace talvora::pack
