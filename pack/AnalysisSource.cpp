// Parsing and writing of analyses, and cutting of the texts that they explain.
#include "pack/AnalysisSource.h"

#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace talvora::pack {

namespace {

constexpr std::array<std::string_view, AnalysisFieldCount> fieldNames = {
    "word", "class", "position", "function", "idea", "needed", "because"};
constexpr std::string_view lessonName = "lesson";
constexpr std::string_view forbidden = "_`@|^&#";
constexpr int mostLessons = limit::Lessons;
constexpr std::size_t mostStretches = limit::Stretches;
constexpr char stretchEnd = '|';
/// What may be left out at the ends of a stretch: points, and quotation marks of the text font.
constexpr std::string_view points = ".,:;!?\"\x93\x94";

std::optional<int> numberIn(std::string_view digits, int most) {
  int number = 0;
  const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (failure != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  if (number < 1 || number > most) return std::nullopt;
  return number;
}

/// Reads one analysis line by line; knows which field of the block at hand comes next.
class AnalysisParser {
 public:
  AnalysisParser(const std::string& file, Problems& problems) : file_(file), problems_(problems) {}

  void read(const SourceLine& line) {
    if (line.text.starts_with("//")) return;
    if (line.text.empty()) {
      finishBlock(line.number);
      return;
    }
    const std::size_t colon = std::min(line.text.find(": "), line.text.size());
    const std::string_view name = line.text.substr(0, colon);
    const std::string_view value = line.text.substr(std::min(colon + 2, line.text.size()));
    const Where where{file_, line.number, static_cast<int>(colon) + 3};
    if (next_ == AnalysisFieldCount && name == lessonName) {
      readLesson(value, where);
    } else if (next_ < AnalysisFieldCount && name == fieldNames[next_]) {
      readField(value, where);
    } else {
      problems_.add({file_, line.number, 1}, said("\"{}: ...\" must stand here", expected()));
    }
  }

  Analysis finish(int lastLine) {
    finishBlock(lastLine);
    if (analysis_.empty()) problems_.add({file_}, said("the analysis has no stretches"));
    if (analysis_.size() > mostStretches) {
      problems_.add({file_}, said("the analysis has {} stretches; at most {} fit", analysis_.size(),
                                  mostStretches));
    }
    return std::move(analysis_);
  }

 private:
  [[nodiscard]] std::string expected() const {
    return std::string(next_ < AnalysisFieldCount ? fieldNames[next_] : lessonName);
  }

  void readField(std::string_view value, const Where& where) {
    if (value.empty()) problems_.add(where, said("a text is missing here"));
    if (value.starts_with(' ') || value.ends_with(' '))
      problems_.add(where, said("a blank at an end"));
    if (next_ == 0) entry_.where = where;
    entry_.fields[next_++] = sourceText(value, where, forbidden, problems_);
  }

  void readLesson(std::string_view value, const Where& where) {
    const auto lesson = numberIn(value, mostLessons);
    if (lesson) {
      entry_.lessons.push_back(*lesson);
    } else {
      problems_.add(where, said("a lesson is a number from 1 to 357"));
    }
  }

  void finishBlock(int line) {
    if (next_ == 0) return;
    if (next_ < AnalysisFieldCount) {
      problems_.add({file_, line, 1},
                    said("\"{}: ...\" is missing in the block above", expected()));
    }
    analysis_.push_back(std::move(entry_));
    entry_ = {};
    next_ = 0;
  }

  const std::string& file_;
  Problems& problems_;
  Analysis analysis_;
  AnalysisEntry entry_;
  std::size_t next_ = 0; ///< number of fields read of the block at hand
};

std::string_view withoutPoints(std::string_view text) {
  const std::size_t first = std::min(text.find_first_not_of(points), text.size());
  text.remove_prefix(first);
  return text.substr(0, text.find_last_not_of(points) + 1);
}

std::size_t wordCount(std::string_view text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), ' ')) + 1;
}

/// Walks a text's sentences stretch by stretch and cuts them on its way.
class StretchCutter {
 public:
  StretchCutter(const Analysis& analysis, const std::string& name, Problems& problems)
      : analysis_(analysis), name_(name), problems_(problems) {}

  void cut(ReadingText& text) {
    for (Paragraph& paragraph : text.paragraphs) {
      for (SentencePair& pair : paragraph) {
        if (!cutSentence(pair.english)) return;
      }
    }
    if (next_ < analysis_.size()) {
      problems_.add(analysis_[next_].where,
                    said("{} has no such stretch: it is at its end", name_));
    }
  }

 private:
  /// False when the text and the analysis have parted; that is reported.
  bool cutSentence(std::string& sentence) {
    for (std::size_t from = 0; from < sentence.size();) {
      if (next_ == analysis_.size()) {
        problems_.add(lastPlace(),
                      said("{} goes on: \"{}\"", name_, utf8Of(sentence.substr(from))));
        return false;
      }
      const AnalysisEntry& entry = analysis_[next_];
      const std::string& word = entry.field(AnalysisField::Word);
      const std::size_t end = endOfWords(sentence, from, wordCount(word));
      const std::string_view there = std::string_view(sentence).substr(from, end - from);
      if (withoutPoints(there) != withoutPoints(word)) {
        problems_.add(entry.where, said("{} has \"{}\" here", name_, utf8Of(there)));
        return false;
      }
      ++next_;
      if (end < sentence.size()) sentence[end] = stretchEnd;
      from = end + 1;
    }
    return true;
  }

  static std::size_t endOfWords(std::string_view sentence, std::size_t from, std::size_t words) {
    std::size_t end = from;
    for (; words > 0 && end < sentence.size(); --words) {
      if (end > from) ++end;
      end = std::min(sentence.find(' ', end), sentence.size());
    }
    return end;
  }

  [[nodiscard]] Where lastPlace() const {
    return analysis_.empty() ? Where{name_} : analysis_.back().where;
  }

  const Analysis& analysis_;
  const std::string name_;
  Problems& problems_;
  std::size_t next_ = 0;
};

} // namespace

Analysis parseAnalysis(std::string_view text, const std::string& file, Problems& problems) {
  AnalysisParser parser(file, problems);
  const auto lines = linesOf(text);
  for (const SourceLine& line : lines)
    parser.read(line);
  return parser.finish(static_cast<int>(lines.size()) + 1);
}

AnalysisSource readAnalyses(const std::filesystem::path& folder, Problems& problems) {
  AnalysisSource source;
  for (const auto& path : textFilesIn(folder, problems)) {
    const std::string file = path.string();
    const std::string stem = path.stem().string();
    const auto slot = stem.size() == 2 ? numberIn(stem, AnalysisSlots) : std::nullopt;
    if (!slot) {
      problems.add({file}, said("the name must be NN.txt with a number from 01 to 11"));
      continue;
    }
    source.analyses[*slot] = parseAnalysis(readText(path, problems), file, problems);
  }
  return source;
}

void markStretches(const AnalysisSource& source, ReadingSource& readings, Problems& problems) {
  for (const auto& [slot, analysis] : source.analyses) {
    const int number = AnalysedTextsAhead + slot;
    const std::string name = said("text {}", number);
    const auto text = readings.texts.find(number);
    if (text == readings.texts.end()) {
      problems.add(analysis.empty() ? Where{name} : analysis.front().where,
                   said("{} is not there", name));
      continue;
    }
    StretchCutter(analysis, name, problems).cut(text->second);
  }
}

void unmarkStretches(ReadingSource& readings) {
  for (auto& [slot, text] : readings.texts) {
    for (Paragraph& paragraph : text.paragraphs) {
      for (SentencePair& pair : paragraph)
        std::replace(pair.english.begin(), pair.english.end(), stretchEnd, ' ');
    }
  }
}

std::string writeAnalysis(const Analysis& analysis) {
  std::string source;
  for (const AnalysisEntry& entry : analysis) {
    if (!source.empty()) source += "\n";
    for (std::size_t field = 0; field < AnalysisFieldCount; ++field) {
      source += std::string(fieldNames[field]) + ": " + utf8Of(entry.fields[field]) + "\n";
    }
    for (const int lesson : entry.lessons)
      source += std::string(lessonName) + ": " + std::to_string(lesson) + "\n";
  }
  return source;
}

} // namespace talvora::pack
