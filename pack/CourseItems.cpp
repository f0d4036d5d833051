// Sentences out of the stored form of questions.
#include "pack/CourseItems.h"
#include "pack/kinds/ItemKind.h"

#include "text/Bytes.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>

namespace talvora::pack {

namespace {

constexpr char lineEnd = '\r';
constexpr char accentedE = chr(0xE9);
constexpr CharClass wordCharacters("[a-zA-Z']");

/// The question with each "*key\other___" as its key, and the gap of a stem as the right option.
std::string completed(const Item& item) {
  const bool choice = item.kind->options() > 0;
  const auto key = static_cast<std::size_t>(item.key);
  const std::string right = choice && key > 0 && key <= item.options.size()
                                ? " " + item.options[key - 1] + " "
                                : std::string();
  std::string text;
  bool inKey = false;
  bool inOther = false;
  bool placed = false;
  for (const char character : item.question) {
    if (character == '*') {
      inKey = true;
      inOther = choice;
      text += choice ? right : " ";
      placed = placed || choice;
    } else if (character == '_') {
      if (choice && !inKey && !placed) {
        text += right;
        placed = true;
      }
      if (inKey || item.kind->hasSentences()) text += " ";
      inKey = false;
      inOther = false;
    } else if (inKey && character == '\\') {
      inOther = true;
    } else if (!inOther) {
      text += character;
    }
  }
  return choice && !placed ? text + lineEnd + right : text;
}

void appendItems(std::vector<CourseItem>& all, const std::vector<Item>& items,
                 const CourseItem& first) {
  const std::size_t units = std::max<std::size_t>(items.size() / UnitSize, 1);
  for (std::size_t place = 0; place < items.size(); ++place) {
    CourseItem each = first;
    each.item = &items[place];
    each.place = place;
    each.unit = std::min(place / UnitSize, units - 1);
    std::string_view rest;
    const std::string sentences = completed(items[place]);
    for (rest = sentences; !rest.empty();) {
      const std::size_t end = std::min(rest.find(lineEnd), rest.size());
      for (std::string& word : englishWordsOf(rest.substr(0, end)))
        each.words.push_back(std::move(word));
      rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    all.push_back(std::move(each));
  }
}

} // namespace

std::vector<CourseItem> courseItemsOf(const ExerciseSource& source) {
  std::vector<CourseItem> all;
  for (std::size_t bank = 0; bank < BankCount; ++bank) {
    CourseItem first;
    first.bank = bank;
    appendItems(all, source.banks[bank], first);
  }
  for (const auto& [slot, items] : source.lessons) {
    CourseItem first;
    first.lesson = slot;
    appendItems(all, items, first);
  }
  return all;
}

std::string_view groupOf(const CourseItem& item) {
  return item.bank ? BankNames[*item.bank] : "lessons";
}

bool isVietnamese(std::string_view line) {
  // Quotes and dashes stand below 0x98, and "café" is English.
  return std::any_of(line.begin(), line.end(), [](char character) {
    return asc(character) >= 0x98 && asc(character) != 0x99 && character != accentedE;
  });
}

std::vector<std::string> englishWordsOf(std::string_view line) {
  std::vector<std::string> words;
  if (isVietnamese(line)) return words;
  std::string word;
  const auto finish = [&] {
    while (word.ends_with('\''))
      word.pop_back();
    if (!word.empty()) words.push_back(lower(word));
    word.clear();
  };
  for (const char written : line) {
    const char character = written == accentedE ? 'e' : written; // "café"
    if (wordCharacters.has(character) && !(word.empty() && character == '\'')) {
      word += character;
    } else {
      finish();
    }
  }
  finish();
  return words;
}

} // namespace talvora::pack
