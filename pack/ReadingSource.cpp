// Parsing and writing of reading texts.
#include "pack/ReadingSource.h"

#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace talvora::pack {

namespace {

constexpr std::string_view titleOpener = "title: ";
constexpr std::string_view translationOpener = "= ";
constexpr std::string_view speakerOpener = "// voice: ";
constexpr int mostHeadings = 38;
constexpr std::size_t mostSentences = limit::Sentences;

std::optional<int> slotOf(std::string_view digits, int slots) {
  int slot = 0;
  const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), slot);
  if (failure != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  if (slot < 1 || slot > slots) return std::nullopt;
  return slot;
}

/// Reads one text line by line; knows whether a sentence still waits for its translation.
class TextParser {
 public:
  TextParser(const std::string& file, Problems& problems, Translated translated)
      : file_(file), problems_(problems), translated_(translated) {}

  void read(const SourceLine& line) {
    if (line.text.starts_with(speakerOpener)) return readSpeaker(line);
    if (line.text.starts_with("//")) return;
    if (line.text.empty()) {
      expectNoSentenceWaits(line.number);
      newParagraph_ = true;
    } else if (!titleRead_) {
      readTitle(line);
    } else if (line.text.starts_with('=')) {
      readTranslation(line);
    } else {
      readSentence(line);
    }
  }

  ReadingText finish(int lastLine) {
    expectNoSentenceWaits(lastLine);
    std::size_t sentences = 0;
    for (const Paragraph& paragraph : text_.paragraphs)
      sentences += paragraph.size();
    if (!titleRead_) problems_.add({file_, 1, 1}, said("the text has no title"));
    if (titleRead_ && sentences == 0) problems_.add({file_}, said("the text has no sentences"));
    if (sentences > mostSentences) {
      problems_.add({file_},
                    said("the text has {} sentences; at most {} fit", sentences, mostSentences));
    }
    return std::move(text_);
  }

 private:
  void expectNoSentenceWaits(int line) {
    const bool isMissing = waits_ && translated_ == Translated::Always;
    if (isMissing)
      problems_.add({file_, line, 1}, said("a translation (\"= ...\") is missing here"));
    waits_ = false;
  }

  void readTitle(const SourceLine& line) {
    titleRead_ = true;
    if (!line.text.starts_with(titleOpener)) {
      problems_.add({file_, line.number, 1}, said("the first line must be \"title: ...\""));
      return;
    }
    const Where where{file_, line.number, static_cast<int>(titleOpener.size()) + 1};
    text_.title = stretch(line.text.substr(titleOpener.size()), where, "_`@|*");
  }

  // The voices are known by name only here, so that a text can be read where none is installed.
  void readSpeaker(const SourceLine& line) {
    speaker_ = line.text.substr(speakerOpener.size());
    if (speaker_ != "rms" && speaker_ != "slt") {
      problems_.add({file_, line.number, static_cast<int>(speakerOpener.size()) + 1},
                    said("a voice is \"rms\", a man's, or \"slt\", a woman's"));
    }
  }

  void readSentence(const SourceLine& line) {
    expectNoSentenceWaits(line.number);
    if (newParagraph_ || text_.paragraphs.empty()) text_.paragraphs.emplace_back();
    newParagraph_ = false;
    text_.paragraphs.back().push_back(
        {stretch(line.text, {file_, line.number, 1}), "", std::exchange(speaker_, {})});
    waits_ = true;
  }

  void readTranslation(const SourceLine& line) {
    if (!waits_) {
      problems_.add({file_, line.number, 1}, said("a translation without its sentence"));
      return;
    }
    waits_ = false;
    if (!line.text.starts_with(translationOpener)) {
      problems_.add({file_, line.number, 2}, said("a blank must follow the \"=\""));
      return;
    }
    text_.paragraphs.back().back().vietnamese =
        stretch(line.text.substr(translationOpener.size()), {file_, line.number, 3});
  }

  std::string stretch(std::string_view utf8, const Where& where,
                      std::string_view forbidden = StreamMarks) {
    if (utf8.empty()) problems_.add(where, said("a text is missing here"));
    if (utf8.starts_with(' ') || utf8.ends_with(' '))
      problems_.add(where, said("a blank at an end"));
    return sourceText(utf8, where, forbidden, problems_);
  }

  const std::string& file_;
  Problems& problems_;
  Translated translated_;
  ReadingText text_;
  std::string speaker_; ///< of the next sentence
  bool titleRead_ = false;
  bool newParagraph_ = true;
  bool waits_ = false;
};

} // namespace

ReadingText parseReadingText(std::string_view text, const std::string& file, Problems& problems,
                             Translated translated) {
  TextParser parser(file, problems, translated);
  const auto lines = linesOf(text);
  for (const SourceLine& line : lines)
    parser.read(line);
  return parser.finish(static_cast<int>(lines.size()) + 1);
}

std::map<int, std::string> parseHeadings(std::string_view text, const std::string& file,
                                         Problems& problems, int slots) {
  std::map<int, std::string> headings;
  for (const SourceLine& line : linesOf(text)) {
    if (line.text.empty() || line.text.starts_with("//")) continue;
    const std::size_t tab = line.text.find('\t');
    const auto slot = slotOf(line.text.substr(0, std::min(tab, line.text.size())), slots);
    if (tab == std::string_view::npos || !slot) {
      problems.add({file, line.number, 1},
                   said("a line must be a slot from 1 to {}, a tab, a heading", slots));
      continue;
    }
    const Where where{file, line.number, static_cast<int>(tab) + 2};
    const auto heading = sourceText(line.text.substr(tab + 1), where, "_`@|*", problems);
    if (heading.empty()) problems.add(where, said("a heading is missing here"));
    if (!headings.emplace(*slot, heading).second) {
      problems.add({file, line.number, 1}, said("slot {} is taken already", *slot));
    }
  }
  if (headings.size() > mostHeadings) {
    problems.add({file}, said("there are more than {} headings", mostHeadings));
  }
  return headings;
}

ReadingSource readTexts(const std::filesystem::path& folder, int slots, Problems& problems) {
  const std::string last = std::to_string(slots);
  const std::size_t digits = last.size();
  ReadingSource source;
  for (const auto& path : textFilesIn(folder, problems)) {
    const std::string file = path.string();
    const std::string name = path.filename().string();
    if (name == "headings.txt") {
      source.headings = parseHeadings(readText(path, problems), file, problems, slots);
      continue;
    }
    const auto slot = name.size() > digits + 1 && name[digits] == '-'
                          ? slotOf(name.substr(0, digits), slots)
                          : std::nullopt;
    if (!slot) {
      problems.add({file},
                   said("the name must be {}-slug.txt with a slot from {} to {}",
                        std::string(digits, 'N'), std::string(digits - 1, '0') + "1", last));
      continue;
    }
    auto text = parseReadingText(readText(path, problems), file, problems);
    if (!source.texts.emplace(*slot, std::move(text)).second) {
      problems.add({file}, said("slot {} has a text already", *slot));
    }
  }
  for (const auto& [slot, heading] : source.headings) {
    if (source.texts.count(slot) == 0) continue;
    problems.add({(folder / "headings.txt").string()},
                 said("slot {} holds a text; it cannot be a heading", slot));
  }
  return source;
}

std::string writeReadingText(const ReadingText& text) {
  std::string source = std::string(titleOpener) + utf8Of(text.title) + "\n";
  for (const Paragraph& paragraph : text.paragraphs) {
    source += "\n";
    for (const SentencePair& pair : paragraph) {
      if (!pair.speaker.empty()) source += std::string(speakerOpener) + pair.speaker + "\n";
      source += utf8Of(pair.english) + "\n";
      if (!pair.vietnamese.empty())
        source += std::string(translationOpener) + utf8Of(pair.vietnamese) + "\n";
    }
  }
  return source;
}

} // namespace talvora::pack
