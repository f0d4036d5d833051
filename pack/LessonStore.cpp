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

Lesson openLesson() {
  const std::string line = ownText("Bài này đang được soạn, mời bạn học một bài khác nhé.");
  return {openSlotTitle(), {{line, std::vector<bool>(line.size()), std::nullopt}}};
}

std::string textOfSlot(const LessonSource& source, const std::set<int>& withItems, int slot) {
  const auto lesson = source.lessons.find(slot);
  if (lesson != source.lessons.end()) {
    return (withItems.count(slot) > 0 ? std::string(1, itemsMark) : "") + layOut(lesson->second);
  }
  const auto heading = source.headings.find(slot);
  if (heading != source.headings.end()) return layOut({headingMark + heading->second, {}});
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
