// Budgets and open slots.
#include "pack/PlanChecks.h"

#include "pack/Message.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <utility>

namespace talvora::pack {

namespace {

std::string namesOf(const std::vector<std::string>& lemmas) {
  std::string names;
  for (const std::string& lemma : lemmas)
    names += (names.empty() ? "" : ", ") + lemma;
  return names;
}

/// Holds one text against its series.
class TextBudget {
 public:
  TextBudget(const Planner& planner, int slot, const Series& series, const TextWords& text)
      : planner_(planner), slot_(slot), series_(series), text_(text) {}

  std::vector<OverBudget> over() {
    checkLength();
    if (series_.newLemmas) checkNewLemmas(*series_.newLemmas);
    checkKnown();
    return std::move(over_);
  }

 private:
  void report(Budget budget, std::string line) { over_.push_back({budget, std::move(line)}); }

  void checkLength() {
    if (!series_.words.has(text_.words))
      report(Budget::Words, said("{} words instead of {} to {}", text_.words, series_.words.from,
                                 series_.words.to));
    if (!series_.sentence.has(text_.wordsASentence())) {
      report(Budget::Sentence,
             said("{} words a sentence instead of {} to {}", withDecimal(text_.wordsASentence()),
                  series_.sentence.from, series_.sentence.to));
    }
  }

  void checkNewLemmas(int most) {
    if (static_cast<int>(text_.newLemmas.size()) > most) {
      report(Budget::New,
             said("{} new lemmas instead of at most {}", text_.newLemmas.size(), most));
    }
    std::vector<std::string> once;
    std::copy_if(text_.newLemmas.begin(), text_.newLemmas.end(), std::back_inserter(once),
                 [this](const std::string& lemma) { return text_.lemmas.at(lemma) < 2; });
    if (!once.empty())
      report(Budget::Twice, said("new and only once in its text: {}", namesOf(once)));
    std::vector<std::string> missed;
    for (const DueLemma& due : planner_.book.missedOf(slot_))
      missed.push_back(due.lemma);
    if (!missed.empty())
      report(Budget::Return, said("brought here and not returned in time: {}", namesOf(missed)));
  }

  void checkKnown() {
    if (text_.knownShare() >= knownShareOf(series_.kind)) return;
    report(Budget::Known, said("{} % of the words known at first sight instead of {} ({})",
                               withDecimal(text_.knownShare()),
                               std::lround(knownShareOf(series_.kind)), namesOf(text_.newLemmas)));
  }

  const Planner& planner_;
  int slot_;
  const Series& series_;
  const TextWords& text_;
  std::vector<OverBudget> over_;
};

/// "4 twice, 2 known", by budget; empty when no text is outside.
std::string countsOf(const std::array<int, BudgetNames.size()>& over) {
  std::string counts;
  for (std::size_t budget = 0; budget < over.size(); ++budget) {
    if (over.at(budget) == 0) continue;
    counts += (counts.empty() ? "" : ", ") +
              said("{} by \"{}\"", over.at(budget), BudgetNames.at(budget));
  }
  return counts;
}

} // namespace

std::vector<OverBudget> overBudget(const Planner& planner, int slot) {
  const Series* series = seriesOf(planner.plan, slot);
  const TextWords* text = planner.book.textAt(slot);
  if (series == nullptr || text == nullptr) return {};
  return TextBudget(planner, slot, *series, *text).over();
}

std::vector<std::string> checkBudgets(const Planner& planner, const std::filesystem::path& folder,
                                      Problems& problems) {
  std::vector<std::string> notes;
  for (const Series& series : planner.plan) {
    int texts = 0;
    std::array<int, BudgetNames.size()> aimed{};
    for (const auto& [slot, text] : planner.book.texts()) {
      if (!series.slots.has(slot)) continue;
      ++texts;
      for (const OverBudget& each : overBudget(planner, slot)) {
        if (series.holds(each.budget)) {
          problems.add({folder.string()}, said("text {}: {}", slot, each.line));
        } else {
          ++aimed.at(static_cast<std::size_t>(each.budget));
        }
      }
    }
    const std::string counts = countsOf(aimed);
    if (counts.empty()) continue;
    notes.push_back(said("reading texts {} to {}: of {} are outside a budget that they aim at {}",
                         series.slots.from, series.slots.to, texts, counts));
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
  if (between > 0) note = said("{} open slots stand between texts", between);
  if (open > 0 && !headed)
    note += (note.empty() ? "" : "; ") +
            said("the {} open slots at the end have no heading of their own", open);
  return note.empty() ? note : std::string(name) + ": " + note;
}

} // namespace talvora::pack
