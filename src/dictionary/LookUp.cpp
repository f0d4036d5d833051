#include "dictionary/LookUp.h"

#include "dictionary/KeyComparison.h"
#include "text/Bytes.h"
#include "text/Text.h"

#include <compare>
#include <utility>

namespace talvora {

namespace {

/// Number of a letter, from 1; 0 for what is none. Accented letters count as their base letter.
int letterNumber(int code) {
  if (code >= 'a' && code <= 'z') return code - 'a' + 1;
  switch (code) {
  case 224:
  case 225:
  case 226:
    return 1;
  case 232:
  case 233:
  case 234:
    return 5;
  case 243:
  case 245:
    return 15;
  default:
    return 0;
  }
}

} // namespace

LetterRange LookUp::KhoangChuCai(int code) const {
  const auto letter = static_cast<std::size_t>(letterNumber(code));
  const auto& slots = words_.ChiSoChu;
  if (letter == 0) return {slots.front(), slots.back() - 1};
  return {slots[letter - 1], slots[letter] - 1};
}

SearchResult LookUp::search(std::string_view key, LetterRange range) const {
  int low = range.TimDau;
  int high = range.TimCuoi;
  while (high - low > 1) {
    const int middle = low + (high - low) / 2;
    const auto order = compareWithForm(key, words_.Chu(middle));
    if (order == std::strong_ordering::equal) return {true, middle, words_.ViTriNghia(middle)};
    (order == std::strong_ordering::less ? high : low) = middle;
  }
  return searchPair(key, low, high);
}

SearchResult LookUp::searchPair(std::string_view key, int low, int high) const {
  SearchResult result;
  // A section of one line has no pair, and one that is missing has no line at all.
  for (int i = low; i <= high; ++i) {
    const auto order = compareWithForm(key, words_.Chu(i));
    if (order != std::strong_ordering::greater) result.ViTriGan = i;
    if (order == std::strong_ordering::equal) {
      result.TimThay = true;
      result.ViTriNghia = words_.ViTriNghia(i);
      break;
    }
  }
  return result;
}

std::string LookUp::entryAt(std::int32_t record) const {
  std::string entry;
  PieceReader reader(stores_.fileOf(file::Dictionary), record);
  while (const auto piece = reader.next()) {
    entry += *piece;
    if (*piece == "\r") break;
  }
  return entry;
}

std::optional<Answer> LookUp::ask(std::string_view key, LayNghia layNghia) const {
  const std::string k = lower(key);
  if (k.empty()) return std::nullopt;
  const LetterRange range = KhoangChuCai(asc(k[0]));
  const SearchResult found = search(k, range);
  const bool wanted = layNghia == LayNghia::Yes && found.TimThay;
  return Answer{range, found.TimThay, found.ViTriGan,
                wanted ? entryAt(found.ViTriNghia) : std::string()};
}

WordAnswer LookUp::askInAllForms(std::string_view word) const {
  WordAnswer result{std::string(word), std::nullopt};
  const auto hasEntry = [&](const std::string& form) {
    if (auto answer = ask(form, LayNghia::Yes)) {
      result.answer = std::move(answer);
    } else {
      // A word that is nothing but an ending is lost with it.
      result.word.clear();
      if (result.answer) result.answer->TimThay = false;
    }
    return result.answer && !result.answer->entry.empty();
  };
  if (hasEntry(result.word)) return result;
  std::string form = RutGonDuoi(result.word);
  bool found = hasEntry(form);
  if (!found) {
    // What is longer than any word of the list is not in it.
    form = result.word.substr(0, WordList::LongestWord);
    // One letter alone is not searched, except as the word itself.
    do {
      found = hasEntry(form);
      if (!found && form.size() > 1) form.pop_back();
    } while (!found && form.size() > 1);
  }
  if (found) result.word = form;
  return result;
}

void LookUp::note(const std::optional<Answer>& answer) {
  TimThay = answer && answer->TimThay;
  if (!answer) return;
  TimDau = answer->range.TimDau;
  TimCuoi = answer->range.TimCuoi;
  ViTriGan = answer->ViTriGan;
}

std::optional<Answer> LookUp::TimTu(std::string_view key, LayNghia layNghia) {
  auto answer = ask(key, layNghia);
  note(answer);
  return answer;
}

WordAnswer LookUp::timMoiDang(std::string_view word) {
  WordAnswer result = askInAllForms(word);
  note(result.answer);
  return result;
}

std::string LookUp::DocNghia(int TuChon) const {
  return entryAt(words_.ViTriNghia(TuChon));
}

void LookUp::declare(Variables& variables) const {
  variables.add("TimDau", &TimDau);
  variables.add("TimCuoi", &TimCuoi);
  variables.add("TimThay", &TimThay);
  variables.add("ViTriGan", &ViTriGan);
}

} // namespace talvora
