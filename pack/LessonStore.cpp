// Layout of rule lessons in a stream.
#include "pack/LessonStore.h"

#include "formats/Integers.h"
#include "formats/PackFiles.h"
#include "pack/Message.h"
#include "pack/StreamText.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace talvora::pack {

namespace {

constexpr char lineEnd = '\r';
constexpr char textEnd = '@';
constexpr char headingMark = '*';
constexpr char itemsMark = '.';

std::string layOut(const Lesson& lesson) {
  std::string plain = lesson.title + lineEnd;
  for (std::size_t at = 0; at < lesson.lines.size(); ++at) {
    if (at > 0) plain += lineEnd;
    plain += encodeMarkedLine(lesson.lines[at], LineKind::Lesson);
  }
  return plain + textEnd;
}

MarkedLine plainLine(const std::string& line) {
  return {line, std::vector<bool>(line.size()), std::nullopt};
}

Lesson openLesson() {
  return {openSlotTitle(),
          {plainLine(ownText("Bài này đang được soạn, mời bạn học một bài khác nhé."))}};
}

/// The titles of the lessons between a heading and the next one.
std::vector<MarkedLine> titlesBelow(const LessonSource& source, int slot) {
  const auto next = source.headings.upper_bound(slot);
  const auto end = next == source.headings.end() ? source.lessons.end()
                                                 : source.lessons.lower_bound(next->first);
  std::vector<MarkedLine> titles;
  for (auto lesson = source.lessons.upper_bound(slot); lesson != end; ++lesson)
    titles.push_back(plainLine(lesson->second.title));
  return titles;
}

/// A heading can be opened like a lesson: its page tells what it stands over.
Lesson headingPage(const LessonSource& source, int slot, const std::string& heading) {
  const std::vector<MarkedLine> titles = titlesBelow(source, slot);
  Lesson page{headingMark + heading, {}};
  if (titles.empty()) {
    page.lines.push_back(plainLine(ownText("Các bài của phần này đang được soạn.")));
    return page;
  }
  page.lines = {plainLine(ownText("Phần này có những bài sau, mời bạn bấm Esc rồi chọn một bài:")),
                plainLine("")};
  page.lines.insert(page.lines.end(), titles.begin(), titles.end());
  return page;
}

std::string textOfSlot(const LessonSource& source, const std::set<int>& withItems, int slot) {
  const auto lesson = source.lessons.find(slot);
  if (lesson != source.lessons.end()) {
    return (withItems.count(slot) > 0 ? std::string(1, itemsMark) : "") + layOut(lesson->second);
  }
  const auto heading = source.headings.find(slot);
  if (heading != source.headings.end()) return layOut(headingPage(source, slot, heading->second));
  return layOut(openLesson());
}

Lesson lessonFrom(std::string_view plain) {
  if (plain.starts_with(itemsMark)) plain.remove_prefix(1);
  const std::size_t titleEnd = std::min(plain.find(lineEnd), plain.size());
  Lesson lesson{std::string(plain.substr(0, titleEnd)), {}};
  plain.remove_prefix(std::min(titleEnd + 1, plain.size()));
  while (!plain.empty()) {
    const std::size_t end = std::min(plain.find(lineEnd), plain.size());
    lesson.lines.push_back(decodeMarkedLine(plain.substr(0, end), LineKind::Lesson));
    plain.remove_prefix(std::min(end + 1, plain.size()));
  }
  return lesson;
}

} // namespace

TextStore compileLessons(const LessonSource& source, const std::set<int>& withItems) {
  TextStore store;
  for (int slot = 1; slot <= LessonSlots; ++slot) {
    appendInteger(store.positions, store.stream.size());
    appendStored(store.stream, textOfSlot(source, withItems, slot));
  }
  return store;
}

LessonSource decodeLessons(std::string_view positions, std::string_view stream,
                           Problems& problems) {
  LessonSource source;
  for (int slot = 1; slot <= LessonSlots; ++slot) {
    const auto record = static_cast<std::size_t>(slot);
    const auto plain = storedUntil(stream, integerAt(positions, record), textEnd);
    if (!plain) {
      problems.add({std::string(packfile::Lessons)}, said("lesson {} cannot be read", slot));
      continue;
    }
    Lesson lesson = lessonFrom(*plain);
    if (lesson.title.starts_with(headingMark)) {
      source.headings.emplace(slot, lesson.title.substr(1));
    } else if (lesson.title != openSlotTitle()) {
      source.lessons.emplace(slot, std::move(lesson));
    }
  }
  return source;
}

} // namespace talvora::pack
