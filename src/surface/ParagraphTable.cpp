#include "surface/ParagraphTable.h"

#include "surface/LineEnds.h"

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

namespace talvora {

namespace {

/// A line of a word list has about twelve characters.
constexpr std::size_t UsualLine = 12;

bool startsParagraph(const TextBuffer& text, int place) {
  if (place == 0) return true;
  return endsLine(text.at(place - 1), place < text.length() ? text.at(place) : '\0');
}

/// Places of `text` from `from` to the end of `added` there, both included, where paragraphs start.
std::vector<int> startsAround(const TextBuffer& text, int from, std::string_view added) {
  std::vector<int> starts;
  const int to = from + static_cast<int>(added.size());
  if (from > 0 && startsParagraph(text, from)) starts.push_back(from);
  appendLineStarts(added, from, starts);
  if (to > from && startsParagraph(text, to)) starts.push_back(to);
  return starts;
}

} // namespace

std::vector<int> ParagraphTable::startsIn(std::string_view text) {
  std::vector<int> starts;
  starts.reserve(text.size() / UsualLine + 1);
  starts.push_back(0);
  appendLineStarts(text, 0, starts);
  if (!text.empty() && endsLine(text.back(), '\0')) starts.push_back(static_cast<int>(text.size()));
  return starts;
}

void ParagraphTable::assign(std::vector<int> starts, int length, StyleId style) {
  styles_.assign(static_cast<int>(starts.size()), style);
  starts_.assign(std::move(starts), length);
}

void ParagraphTable::replaced(int from, int to, std::string_view added, const TextBuffer& text) {
  const int holder = paragraphOf(from);
  const int last = to == from ? holder : paragraphOf(to);
  const bool atStart = start(holder) == from;
  const StyleId style = styles_.styleAt(atStart ? holder : last);
  // The first paragraph's start never goes.
  const int first = std::max(atStart ? holder : holder + 1, 1);
  if (first <= last) erase(first, last + 1);
  starts_.moveBehind(first - 1, static_cast<int>(added.size()) - (to - from));
  int paragraph = first;
  for (const int place : startsAround(text, from, added))
    insert(paragraph++, place, style);
}

void ParagraphTable::insert(int paragraph, int start, StyleId style) {
  starts_.insert(paragraph, start);
  styles_.replace(paragraph, paragraph, 1, style);
}

void ParagraphTable::erase(int first, int last) {
  starts_.erase(first, last);
  styles_.replace(first, last, 0, 0);
}

void ParagraphTable::Check(const TextBuffer& text) const {
  starts_.Check();
  styles_.Check();
  if (starts_.length() != text.length()) throw std::logic_error("paragraphs do not cover the text");
  if (styles_.length() != count()) throw std::logic_error("a paragraph has no style");
  int paragraph = 0;
  for (int place = 0; place <= text.length(); ++place) {
    if (!startsParagraph(text, place)) continue;
    if (paragraph == count() || start(paragraph) != place) {
      throw std::logic_error("a paragraph does not start behind its line end");
    }
    ++paragraph;
  }
  if (paragraph != count()) throw std::logic_error("a paragraph has no line end ahead of it");
}

} // namespace talvora
