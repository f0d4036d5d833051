// Budgets and open slots.
#include "pack/PlanChecks.h"

#include <algorithm>
#include <cmath>

namespace talvora::pack {

namespace {

std::string outside(const Band& band, double value, std::string_view what) {
  if (band.has(value)) return {};
  return std::to_string(std::lround(value)) + " " + std::string(what) + " instead of " +
         std::to_string(band.from) + " to " + std::to_string(band.to);
}

std::string namesOf(const std::vector<std::string>& lemmas) {
  std::string names;
  for (const std::string& lemma : lemmas)
    names += (names.empty() ? "" : ", ") + lemma;
  return names;
}

} // namespace

std::vector<std::string> overBudget(const Planner& planner, int slot) {
  const Series* series = seriesOf(planner.plan, slot);
  const TextWords* text = planner.book.textAt(slot);
  if (series == nullptr || text == nullptr) return {};
  std::vector<std::string> lines = {
      outside(series->words, text->words, "words"),
      outside(series->sentence, text->wordsASentence(), "words a sentence")};
  if (series->newLemmas && static_cast<int>(text->newLemmas.size()) > *series->newLemmas) {
    lines.push_back(std::to_string(text->newLemmas.size()) + " new lemmas instead of at most " +
                    std::to_string(*series->newLemmas));
  }
  std::vector<std::string> once;
  std::vector<std::string> missed;
  if (series->newLemmas) {
    std::copy_if(text->newLemmas.begin(), text->newLemmas.end(), std::back_inserter(once),
                 [text](const std::string& lemma) { return text->lemmas.at(lemma) < 2; });
    for (const DueLemma& due : planner.book.missedOf(slot))
      missed.push_back(due.lemma);
  }
  if (!once.empty()) lines.push_back("new and only once in its text: " + namesOf(once));
  if (!missed.empty()) lines.push_back("brought here and not returned in time: " + namesOf(missed));
  if (text->knownShare() < knownShareOf(series->kind)) {
    lines.push_back(std::to_string(std::lround(text->knownShare())) +
                    " % of the words known at first sight instead of " +
                    std::to_string(std::lround(knownShareOf(series->kind))));
  }
  std::erase(lines, "");
  return lines;
}

std::vector<std::string> checkBudgets(const Planner& planner, const std::filesystem::path& folder,
                                      Problems& problems) {
  std::vector<std::string> notes;
  for (const Series& series : planner.plan) {
    int texts = 0;
    int over = 0;
    for (const auto& [slot, text] : planner.book.texts()) {
      if (!series.slots.has(slot)) continue;
      ++texts;
      const auto lines = overBudget(planner, slot);
      if (!lines.empty()) ++over;
      for (const std::string& line : lines) {
        if (series.holds)
          problems.add({folder.string()}, "text " + std::to_string(slot) + ": " + line);
      }
    }
    if (over > 0 && !series.holds) {
      notes.push_back("reading texts " + std::to_string(series.slots.from) + " to " +
                      std::to_string(series.slots.to) + ": " + std::to_string(over) + " of " +
                      std::to_string(texts) + " outside the budget that they aim at");
    }
  }
  return notes;
}

std::string openSlotNote(std::string_view name, const ReadingSource& texts, int last) {
  int between = 0;
  int open = 0;
  bool headed = true;
  for (int slot = 1; slot <= last; ++slot) {
    if (texts.texts.count(slot) != 0) {
      between += open;
      open = 0;
    } else if (texts.headings.count(slot) != 0) {
      if (open == 0) headed = true;
    } else {
      if (open == 0) headed = texts.headings.count(slot - 1) != 0;
      ++open;
    }
  }
  std::string note;
  if (between > 0) note = std::to_string(between) + " open slots stand between texts";
  if (open > 0 && !headed)
    note += std::string(note.empty() ? "" : ", and ") + "the " + std::to_string(open) +
            " at the end have no heading of their own";
  return note.empty() ? note : std::string(name) + ": " + note;
}

} // namespace talvora::pack
