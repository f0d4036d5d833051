#include "dictionary/LookUp.h"

#include "dictionary/KeyComparison.h"
#include "text/Bytes.h"
#include "text/Text.h"

#include <compare>

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
    if (order == 0) return {true, middle, words_.ViTriNghia(middle)};
    (order < 0 ? high : low) = middle;
  }
  return searchPair(key, low, high);
}

SearchResult LookUp::searchPair(std::string_view key, int low, int high) const {
  SearchResult result;
  // A section of one line has no pair, and one that is missing has no line at all.
  for (int i = low; i <= high; ++i) {
    const auto order = compareWithForm(key, words_.Chu(i));
    if (order <= 0) result.ViTriGan = i;
    if (order == 0) {
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

void LookUp::TimTu(std::string_view key, LayNghia layNghia) {
  // The key may be the very text that is cleared below.
  const std::string k = lower(key);
  word_.NghiaHienTai.clear();
  TimThay = false;
  if (k.empty()) {
    word_.TuHienTai.clear();
    return;
  }
  const LetterRange range = KhoangChuCai(asc(k[0]));
  TimDau = range.TimDau;
  TimCuoi = range.TimCuoi;
  const SearchResult found = search(k, range);
  TimThay = found.TimThay;
  ViTriGan = found.ViTriGan;
  if (layNghia == LayNghia::Yes && TimThay) word_.NghiaHienTai = entryAt(found.ViTriNghia);
}

void LookUp::DocNghia(int TuChon) {
  word_.NghiaHienTai = entryAt(words_.ViTriNghia(TuChon));
}

bool LookUp::fetch(std::string_view key) {
  TimTu(key, LayNghia::Yes);
  return !word_.NghiaHienTai.empty();
}

void LookUp::timMoiDang() {
  if (fetch(word_.TuHienTai)) return;
  std::string form = RutGonDuoi(word_.TuHienTai);
  bool found = fetch(form);
  if (!found) {
    // What is longer than any word of the list is not in it.
    form = word_.TuHienTai.substr(0, WordList::LongestWord);
    // One letter alone is not searched, except as the word itself.
    do {
      found = fetch(form);
      if (!found && form.size() > 1) form.pop_back();
    } while (!found && form.size() > 1);
  }
  if (found) word_.TuHienTai = form;
}

void LookUp::declare(Variables& variables) const {
  variables.add("TimDau", &TimDau);
  variables.add("TimCuoi", &TimCuoi);
  variables.add("TimThay", &TimThay);
  variables.add("ViTriGan", &ViTriGan);
}

} // namespace talvora
