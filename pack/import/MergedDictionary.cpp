#include "pack/import/MergedDictionary.h"

#include "formats/Integers.h"
#include "pack/StreamText.h"
#include "pack/import/ImportedNotation.h"
#include "text/Text.h"
#include "text/WordForm.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <tuple>
#include <unordered_map>

namespace talvora::pack {

namespace {

constexpr char entryEnd = '\r';
/// A head of more letters is a sentence, and no line of a list.
constexpr std::size_t longestHead = 60;

/// A word that was brought, with what all dictionaries say of it.
struct Brought {
  std::string head;
  std::string text;
};

using BroughtWords = std::unordered_map<std::string, Brought>; // by normal form

/// The normal form under which a head is searched; empty when no search finds it.
std::string searchedForm(std::string_view head) {
  if (head.size() > longestHead) return {};
  const std::string form = ChuanHoaTu(lower(head));
  return !form.empty() && form.front() >= 'a' && form.front() <= 'z' ? form : "";
}

BroughtWords gather(const std::vector<ImportedDictionary>& dictionaries, MergeReport& report) {
  BroughtWords words;
  for (const ImportedDictionary& dictionary : dictionaries) {
    NotationWriter writer(dictionary.name);
    for (const ImportedEntry& entry : dictionary.entries) {
      const std::string head = writer.headOf(entry.head);
      const std::string form = searchedForm(head);
      if (form.empty()) {
        ++report.notEnglish;
        continue;
      }
      ImportedNotation notation = writer.notationOf(head, entry.text);
      if (notation.cut) ++report.cut;
      Brought& word = words[form];
      if (word.head.empty()) word.head = head;
      // Several articles of a long word must not make an entry that no popup shows.
      if (word.text.size() < LongestImportedText) word.text += notation.text;
    }
    for (const auto& [letter, count] : writer.lost())
      report.lost[letter] += count;
  }
  std::erase_if(words, [](const auto& word) { return word.second.text.empty(); });
  return words;
}

/// How well the program does without a line of the list; the higher, the better.
enum class Dispensable : std::uint8_t { No, PhrasePlural, Possessive };

Dispensable dispensable(std::string_view head, const std::string& entry) {
  static const std::string possessive = ownText("_sở hữu cách của ");
  static const std::string plural = ownText("_dạng số nhiều của ");
  if (entry.starts_with(possessive)) return Dispensable::Possessive;
  const bool isPhrase = head.find(' ') != std::string_view::npos;
  return isPhrase && entry.starts_with(plural) ? Dispensable::PhrasePlural : Dispensable::No;
}

class Merger {
 public:
  Merger(const PackDictionary& own, BroughtWords words, MergeOrder order, std::size_t mostWords,
         MergeReport& report)
      : own_(own), words_(std::move(words)), order_(order), mostWords_(mostWords), report_(report) {
  }

  std::vector<PackFile> merge() {
    join();
    makeRoom();
    addNew();
    return write();
  }

 private:
  /// A line of the list that comes out: where its entry lies, or what it is.
  struct Line {
    std::string form;
    std::string_view head;
    std::size_t own = 0;                  ///< its number in the course's list
    std::optional<std::string> text = {}; ///< its entry, where it is not just the course's
  };

  /// What the course has takes what was brought; the rest of the words are new.
  void join() {
    for (std::size_t number = 0; number < own_.size(); ++number) {
      const std::string_view head = own_.headAt(number);
      lines_.push_back({ChuanHoaTu(head), head, number});
      const auto brought = words_.find(lines_.back().form);
      if (brought == words_.end()) continue;
      const std::string entry = own_.entryAt(number);
      const std::string& text = brought->second.text;
      lines_.back().text = order_ == MergeOrder::OwnFirst ? entry + text : ahead(text, entry);
      ++report_.joined;
    }
    for (const auto& [form, word] : words_) {
      if (!isJoined(form)) new_.emplace_back(&form, &word);
    }
    // Where there is no room for all, single and short words are looked up most.
    std::sort(new_.begin(), new_.end(), [](const auto& one, const auto& other) {
      const auto rank = [](const std::string& form) {
        return std::tuple(std::count(form.begin(), form.end(), ' '), form.size(), form);
      };
      return rank(*one.first) < rank(*other.first);
    });
  }

  /// The head's own details, such as its pronunciation, stay at the front of the entry.
  static std::string ahead(const std::string& text, const std::string& entry) {
    const std::size_t details = std::min(entry.find('_'), entry.size());
    return entry.substr(0, details) + text + entry.substr(details);
  }

  [[nodiscard]] bool isJoined(const std::string& form) const {
    const auto found = std::lower_bound(
        lines_.begin(), lines_.begin() + static_cast<std::ptrdiff_t>(own_.size()), form,
        [](const Line& line, const std::string& wanted) { return line.form < wanted; });
    return found != lines_.end() && found->form == form;
  }

  void makeRoom() {
    const std::size_t wanted = lines_.size() + new_.size();
    if (wanted <= mostWords_) return;
    std::vector<std::pair<Dispensable, std::size_t>> places;
    for (std::size_t at = 0; at < lines_.size(); ++at) {
      if (lines_[at].text) continue;
      const Dispensable how = dispensable(lines_[at].head, own_.entryAt(lines_[at].own));
      if (how != Dispensable::No) places.emplace_back(how, at);
    }
    std::sort(places.begin(), places.end(), [&](const auto& one, const auto& other) {
      const std::size_t length = lines_[one.second].head.size();
      const std::size_t otherLength = lines_[other.second].head.size();
      return std::tuple(one.first, length, one.second) >
             std::tuple(other.first, otherLength, other.second);
    });
    places.resize(std::min(places.size(), wanted - mostWords_));
    std::vector<bool> going(lines_.size());
    for (const auto& place : places)
      going[place.second] = true;
    std::size_t at = 0;
    std::erase_if(lines_, [&](const Line&) { return going[at++]; });
    report_.displaced = places.size();
  }

  void addNew() {
    const std::size_t room = mostWords_ - std::min(mostWords_, lines_.size());
    report_.added = std::min(room, new_.size());
    report_.noRoom = new_.size() - report_.added;
    for (std::size_t at = 0; at < report_.added; ++at)
      lines_.push_back({*new_[at].first, new_[at].second->head, 0, new_[at].second->text});
    std::sort(lines_.begin(), lines_.end(),
              [](const Line& one, const Line& other) { return one.form < other.form; });
  }

  /// The course's entries stay where they are; the new ones come behind them.
  std::vector<PackFile> write() {
    std::string words;
    std::string records;
    std::string entries(own_.entries());
    for (const Line& line : lines_) {
      words += std::string(line.head) + "\n";
      if (line.text) {
        appendInteger(records, entries.size() + 1);
        appendStored(entries, *line.text + entryEnd);
      } else {
        appendInteger(records, own_.placeOf(line.own));
      }
      appendInteger(records, words.size());
    }
    return {{"datatu.txt", std::move(words)},
            {"data.mtd", std::move(records)},
            {"data.avt", std::move(entries)}};
  }

  const PackDictionary& own_;
  BroughtWords words_;
  MergeOrder order_;
  std::size_t mostWords_;
  MergeReport& report_;
  std::vector<Line> lines_;
  std::vector<std::pair<const std::string*, const Brought*>> new_;
};

} // namespace

MergedDictionary merge(const PackDictionary& own, const std::vector<ImportedDictionary>& brought,
                       MergeOrder order, std::size_t mostWords) {
  MergedDictionary merged;
  Merger merger(own, gather(brought, merged.report), order, mostWords, merged.report);
  merged.files = merger.merge();
  return merged;
}

} // namespace talvora::pack
