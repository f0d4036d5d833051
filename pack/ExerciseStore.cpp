// Layout of items in records, and the records in files.
#include "pack/ExerciseStore.h"

#include "formats/Integers.h"
#include "formats/PackFiles.h"
#include "pack/Message.h"
#include "pack/StreamText.h"
#include "pack/kinds/ItemKinds.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace talvora::pack {

namespace {

constexpr char lineEnd = '\r';
constexpr char recordEnd = '@';
constexpr char sectionMark = '^';
constexpr char referenceMark = '?';
constexpr std::size_t sections = limit::ItemSections;
constexpr std::size_t headerLength = 3;

// -- To the store.

/// Always three characters, so that a digit at the question's start does not count to the header.
std::string headerOf(const Item& item) {
  std::string header(1, item.kind->digit());
  header += static_cast<char>('0' + item.heading / 10);
  return header + static_cast<char>('0' + item.heading % 10);
}

std::string questionOf(const Item& item) {
  std::string record = headerOf(item);
  for (std::size_t at = 0; at < item.hints.size(); ++at)
    record += (at == 0 ? '|' : ',') + item.hints[at];
  if (!item.hints.empty()) record += lineEnd;
  record += item.kind->storedQuestion(item) + item.kind->storedTail(item);
  if (item.key > 0) record += {static_cast<char>('A' + item.key - 1), lineEnd};
  return record + recordEnd;
}

std::string storedLines(const ExplanationLines& lines, const LessonSource& lessons) {
  std::string text;
  for (std::size_t at = 0; at < lines.size(); ++at) {
    if (at > 0) text += lineEnd;
    const ExplanationLine& line = lines[at];
    text += line.refersTo
                ? referenceMark + std::to_string(lessons.slotOf(line.text.text).value_or(0))
                : encodeMarkedLine(line.text, LineKind::Explanation);
  }
  // A reference reaches to its line end, which must not be missing ahead of the next section.
  if (!lines.empty() && lines.back().refersTo) text += lineEnd;
  return text;
}

std::string answerOf(const Item& item, const LessonSource& lessons) {
  std::string record;
  for (const std::string& translation : item.translations)
    record += '_' + translation;
  record += storedLines(item.general, lessons);
  const int last = item.explanations.empty() ? 0 : item.explanations.rbegin()->first;
  for (int number = 1; number <= last; ++number) {
    record += sectionMark;
    const auto lines = item.explanations.find(number);
    if (lines != item.explanations.end()) record += lineEnd + storedLines(lines->second, lessons);
  }
  return record + recordEnd;
}

/// The items of a section; one without any has an empty one, for each section counts as one item at
/// least.
std::vector<const Item*> itemsOf(const ExerciseSource& source, std::size_t section) {
  std::vector<const Item*> items;
  const auto addAll = [&](const std::vector<Item>& all) {
    for (const Item& item : all)
      items.push_back(&item);
  };
  if (section < BankCount) {
    addAll(source.banks[section]);
  } else if (const auto lesson = source.lessons.find(static_cast<int>(section - BankCount) + 1);
             lesson != source.lessons.end()) {
    addAll(lesson->second);
  }
  if (items.empty()) items.push_back(nullptr);
  return items;
}

/// The program adds the counts of the banks up as they are, so that none may be 0; a lesson without
/// items has 0, which stands for its one empty item.
std::size_t countOf(std::size_t section, const std::vector<const Item*>& items) {
  const bool empty = items.front() == nullptr;
  return section >= BankCount && empty ? 0 : items.size();
}

// -- From the store.

class ItemDecoder {
 public:
  ItemDecoder(const LessonSource& lessons) : lessons_(lessons) {}

  /// Empty for a record without a question, and for one that no source leads to.
  std::optional<Item> decode(std::string_view question, std::string_view answer) const {
    if (question.size() < headerLength) return std::nullopt;
    Item item;
    item.kind = itemKindOf(question[0]);
    if (item.kind == nullptr) return std::nullopt;
    item.heading = (question[1] - '0') * 10 + (question[2] - '0');
    question.remove_prefix(headerLength);
    if (question.starts_with('|')) takeHints(question, item);
    takeBody(question, item);
    if (item.kind->hasSentences()) {
      takeTranslations(answer, item);
    } else {
      takeAnswer(answer, item);
    }
    return item;
  }

 private:
  static std::string_view takeUntil(std::string_view& text, char end) {
    const std::size_t at = std::min(text.find(end), text.size());
    const std::string_view taken = text.substr(0, at);
    text.remove_prefix(std::min(at + 1, text.size()));
    return taken;
  }

  static void takeHints(std::string_view& question, Item& item) {
    question.remove_prefix(1);
    std::string_view hints = takeUntil(question, lineEnd);
    while (!hints.empty())
      item.hints.emplace_back(takeUntil(hints, ','));
  }

  static void takeBody(std::string_view question, Item& item) {
    const std::size_t tail = question.find("\r+");
    item.question = std::string(question.substr(0, tail));
    if (tail == std::string_view::npos) return;
    question.remove_prefix(tail + 1);
    while (question.starts_with('+')) {
      question.remove_prefix(1);
      const std::string_view option = takeUntil(question, lineEnd);
      if (item.options.size() < item.kind->options()) item.options.emplace_back(option);
    }
    if (!question.empty()) item.key = question.front() - 'A' + 1;
  }

  static void takeTranslations(std::string_view answer, Item& item) {
    takeUntil(answer, '_');
    while (!answer.empty())
      item.translations.emplace_back(takeUntil(answer, '_'));
  }

  void takeAnswer(std::string_view answer, Item& item) const {
    item.general = linesOfAnswer(takeUntil(answer, sectionMark));
    for (int number = 1; !answer.empty(); ++number) {
      std::string_view section = takeUntil(answer, sectionMark);
      if (section.empty()) continue;
      takeUntil(section, lineEnd);
      item.explanations[number] = linesOfAnswer(section);
    }
  }

  [[nodiscard]] ExplanationLines linesOfAnswer(std::string_view text) const {
    ExplanationLines lines;
    while (!text.empty()) {
      const std::string_view line = takeUntil(text, lineEnd);
      ExplanationLine decoded;
      decoded.refersTo = line.starts_with(referenceMark);
      decoded.text = decoded.refersTo ? titleOf(line.substr(1))
                                      : decodeMarkedLine(line, LineKind::Explanation);
      lines.push_back(std::move(decoded));
    }
    return lines;
  }

  [[nodiscard]] MarkedLine titleOf(std::string_view digits) const {
    int slot = 0;
    for (const char digit : digits.substr(0, 3))
      slot = slot * 10 + (digit - '0');
    const auto lesson = lessons_.lessons.find(slot);
    MarkedLine line;
    if (lesson != lessons_.lessons.end()) line.text = lesson->second.title;
    line.red.resize(line.text.size());
    return line;
  }

  const LessonSource& lessons_;
};

std::size_t storedCount(std::string_view counts, std::size_t section) {
  if (2 * section + 2 > counts.size()) return 0;
  const auto low = static_cast<unsigned char>(counts[2 * section]);
  const auto high = static_cast<unsigned char>(counts[2 * section + 1]);
  return static_cast<std::size_t>(low | high << 8);
}

} // namespace

std::vector<PackFile> compileExercises(const ExerciseSource& source, const LessonSource& lessons) {
  std::string positions;
  std::string answerPositions;
  std::string stream;
  std::string counts;
  const auto addRecord = [&](std::string& table, std::string_view record) {
    appendInteger(table, stream.size());
    appendStored(stream, record);
  };
  for (std::size_t section = 0; section < sections; ++section) {
    const auto items = itemsOf(source, section);
    const std::size_t count = countOf(section, items);
    appendCount(counts, count);
    for (const Item* item : items) {
      const std::string empty(1, recordEnd);
      addRecord(positions, item != nullptr ? questionOf(*item) : empty);
      addRecord(answerPositions, item != nullptr ? answerOf(*item, lessons) : empty);
    }
  }
  return {{std::string(packfile::ItemPositions), positions + answerPositions},
          {std::string(packfile::Items), std::move(stream)},
          {std::string(packfile::ItemCounts), std::move(counts)}};
}

ExerciseSource decodeExercises(const ExerciseFiles& files, const LessonSource& lessons,
                               Problems& problems) {
  std::size_t total = 0;
  for (std::size_t section = 0; section < sections; ++section)
    total += std::max<std::size_t>(storedCount(files.counts, section), 1);
  ExerciseSource source;
  const ItemDecoder decoder(lessons);
  std::size_t number = 0;
  for (std::size_t section = 0; section < sections; ++section) {
    const std::size_t count = std::max<std::size_t>(storedCount(files.counts, section), 1);
    for (std::size_t place = 0; place < count; ++place) {
      ++number;
      if (number > files.positions.size() / 8) {
        problems.add({std::string(packfile::ItemPositions)}, said("item {} is missing", number));
        return source;
      }
      const auto question =
          storedUntil(files.stream, integerAt(files.positions, number), recordEnd);
      const auto answer =
          storedUntil(files.stream, integerAt(files.positions, total + number), recordEnd);
      if (!question || !answer) {
        problems.add({std::string(packfile::Items)}, said("item {} cannot be read", number));
        continue;
      }
      auto item = decoder.decode(*question, *answer);
      if (!item) continue;
      if (section < BankCount) {
        source.banks[section].push_back(std::move(*item));
      } else {
        source.lessons[static_cast<int>(section - BankCount) + 1].push_back(std::move(*item));
      }
    }
  }
  return source;
}

} // namespace talvora::pack
