// Parsing and writing of rule lessons.
#include "pack/LessonSource.h"

#include "pack/Message.h"
#include "pack/ReadingSource.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"

#include <algorithm>
#include <charconv>

namespace talvora::pack {

namespace {

constexpr std::string_view titleOpener = "title: ";
constexpr std::string_view titleMarks = "`@*#^~&";
constexpr std::string_view headingsFile = "headings.txt";

/// Reads one lesson line by line.
class LessonParser {
 public:
  LessonParser(const std::string& file, Problems& problems) : file_(file), problems_(problems) {}

  void read(const SourceLine& line) {
    if (line.text.starts_with("//")) return;
    if (!titleRead_) {
      readTitle(line);
    } else if (line.text.empty()) {
      if (!lesson_.lines.empty()) ++emptyLines_;
    } else {
      lesson_.lines.resize(lesson_.lines.size() + emptyLines_);
      emptyLines_ = 0;
      lesson_.lines.push_back(
          parseMarkedLine(line.text, {file_, line.number, 1}, LineKind::Lesson, problems_));
    }
  }

  Lesson finish() {
    if (!titleRead_) problems_.add({file_, 1, 1}, said("the lesson has no title"));
    if (titleRead_ && lesson_.lines.empty()) problems_.add({file_}, said("the lesson has no text"));
    return std::move(lesson_);
  }

 private:
  void readTitle(const SourceLine& line) {
    if (line.text.empty()) return;
    titleRead_ = true;
    if (!line.text.starts_with(titleOpener)) {
      problems_.add({file_, line.number, 1}, said("the first line must be \"title: ...\""));
      return;
    }
    const Where where{file_, line.number, static_cast<int>(titleOpener.size()) + 1};
    lesson_.title = sourceText(line.text.substr(titleOpener.size()), where, titleMarks, problems_);
    checkBlanks(lesson_.title, where, problems_);
    if (lesson_.title.empty()) problems_.add(where, said("a title is missing here"));
    if (lesson_.title.starts_with('.'))
      problems_.add(where, said("a title cannot begin with a point"));
  }

  const std::string& file_;
  Problems& problems_;
  Lesson lesson_;
  std::size_t emptyLines_ = 0; ///< behind the last line so far
  bool titleRead_ = false;
};

void checkTitles(const LessonSource& source, const std::map<int, std::string>& files,
                 Problems& problems) {
  std::map<std::string, int> slots;
  for (const auto& [slot, lesson] : source.lessons) {
    const auto [first, isNew] = slots.emplace(lesson.title, slot);
    if (!isNew && !lesson.title.empty()) {
      problems.add({files.at(slot), 1, 1}, said("lesson {} has the same title: {}", first->second,
                                                files.at(first->second)));
    }
  }
}

} // namespace

std::vector<std::string> LessonSource::titles() const {
  std::vector<std::string> titles;
  for (const auto& [slot, lesson] : lessons)
    titles.push_back(lesson.title);
  return titles;
}

std::optional<int> LessonSource::slotOf(std::string_view title) const {
  const auto found = std::find_if(lessons.begin(), lessons.end(),
                                  [&](const auto& each) { return each.second.title == title; });
  if (found == lessons.end()) return std::nullopt;
  return found->first;
}

Lesson parseLesson(std::string_view text, const std::string& file, Problems& problems) {
  LessonParser parser(file, problems);
  for (const SourceLine& line : linesOf(text))
    parser.read(line);
  return parser.finish();
}

std::optional<int> lessonSlotOf(const std::filesystem::path& path) {
  const std::string name = path.filename().string();
  int slot = 0;
  if (name.size() < 5 || name[3] != '-') return std::nullopt;
  const auto [end, failure] = std::from_chars(name.data(), name.data() + 3, slot);
  if (failure != std::errc() || end != name.data() + 3) return std::nullopt;
  if (slot < 1 || slot > LessonSlots) return std::nullopt;
  return slot;
}

bool holdsItems(const std::filesystem::path& path) {
  const std::string name = path.filename().string();
  return name.size() > 3 && name.substr(3) == "-items.txt";
}

LessonSource readLessons(const std::filesystem::path& folder, Problems& problems) {
  LessonSource source;
  std::map<int, std::string> files;
  reportStrangers(folder, said("no lesson is read from it: lessons are files NNN-slug.txt"),
                  problems);
  for (const auto& path : textFilesIn(folder, problems)) {
    const std::string file = path.string();
    if (path.filename() == headingsFile) {
      source.headings = parseHeadings(readText(path, problems), file, problems, LessonSlots);
      continue;
    }
    const auto slot = lessonSlotOf(path);
    if (!slot) {
      problems.add({file}, said("the name must be NNN-slug.txt with a slot from 001 to 357"));
    } else if (!holdsItems(path)) {
      if (const auto [first, isNew] = files.emplace(*slot, file); !isNew) {
        problems.add({file}, said("slot {} has a lesson already: {}", *slot, first->second));
        continue;
      }
      source.lessons[*slot] = parseLesson(readText(path, problems), file, problems);
    }
  }
  checkTitles(source, files, problems);
  for (const auto& [slot, heading] : source.headings) {
    if (source.lessons.count(slot) == 0) continue;
    problems.add({(folder / headingsFile).string()},
                 said("slot {} holds a lesson; it cannot be a heading", slot));
  }
  return source;
}

std::string writeLesson(const Lesson& lesson) {
  std::string source = std::string(titleOpener) + utf8Of(lesson.title) + "\n\n";
  for (const MarkedLine& line : lesson.lines)
    source += writeMarkedLine(line) + "\n";
  return source;
}

} // namespace talvora::pack
