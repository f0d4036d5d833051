// Reading and counting of what is to be checked.
#include "pack/Check.h"

#include "pack/Corpora.h"
#include "pack/CourseChecks.h"
#include "pack/CourseRules.h"
#include "pack/DictionaryFindings.h"
#include "pack/DictionaryStore.h"
#include "pack/Guide.h"
#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/SpeakingSource.h"
#include "pack/WordCoverage.h"
#include "pack/WordListRules.h"
#include "pack/WordingChecks.h"

#include <utility>

namespace talvora::pack {

namespace {

std::size_t sentencesIn(const ReadingSource& readings) {
  std::size_t count = 0;
  for (const auto& [slot, text] : readings.texts) {
    for (const Paragraph& paragraph : text.paragraphs)
      count += paragraph.size();
  }
  return count;
}

std::size_t itemsIn(const ExerciseSource& exercises) {
  std::size_t count = 0;
  for (const auto& items : exercises.banks)
    count += items.size();
  for (const auto& [slot, items] : exercises.lessons)
    count += items.size();
  return count;
}

std::size_t itemsIn(const ListeningSource& listening) {
  std::size_t count = 0;
  for (const auto& [unit, items] : listening.units)
    count += items.size();
  return count;
}

std::size_t examplesIn(const std::vector<OwnEntry>& entries) {
  std::size_t count = 0;
  for (const OwnEntry& entry : entries) {
    for (const Sense& sense : entry.block.senses)
      if (!sense.example.empty()) ++count;
  }
  return count;
}

/// A list of counts, "1 lesson, 2 items", grows by one.
void append(std::string& list, const std::string& counted) {
  list += (list.empty() ? "" : ", ") + counted;
}

/// Reads the kinds that are wanted and those that they refer to.
class Checker {
 public:
  Checker(const Options& options, const std::set<ContentKind>& only, Warnings warnings,
          Problems& problems, const Progress& progress)
      : source_(options.source), only_(only), warnings_(warnings), problems_(problems),
        progress_(progress) {}

  CheckReport run() {
    checkReadings();
    if (wants(ContentKind::SpeakingTexts)) {
      const auto speaking = readSpeaking(source_ / "speaking", problems_);
      append(counted_, saidOf(speaking.texts.size(), "{} speaking text", "{} speaking texts"));
    }
    if (wants(ContentKind::Lessons) || wants(ContentKind::Exercises)) checkLessons();
    if (wants(ContentKind::Guide)) {
      const auto guide = source_ / "guide.txt";
      static_cast<void>(compileGuide(readText(guide, problems_), guide.string(), problems_));
      append(counted_, said("1 guide"));
    }
    if (wants(ContentKind::Dictionary)) {
      progress_(said("dictionary sources"));
      const auto entries = readDictionary(source_ / "dictionary", problems_);
      append(counted_, saidOf(entries.size(), "{} head", "{} heads"));
      append(counted_, saidOf(examplesIn(entries), "{} example", "{} examples"));
    }
    return {counted_, told_, {}};
  }

 private:
  [[nodiscard]] bool wants(ContentKind kind) const { return only_.count(kind) > 0; }

  /// The listening items and the analyses are checked against the texts.
  void checkReadings() {
    const bool listening = wants(ContentKind::Listening);
    const bool analysis = wants(ContentKind::Analyses);
    if (!wants(ContentKind::ReadingTexts) && !listening && !analysis) return;
    progress_(said("reading texts"));
    ReadingSource readings = readReadings(source_ / "reading", problems_);
    append(counted_, saidOf(readings.texts.size(), "{} reading text", "{} reading texts"));
    append(counted_, saidOf(sentencesIn(readings), "{} sentence", "{} sentences"));
    if (listening) {
      const auto items = readListening(source_ / "listening", problems_);
      checkAgainstScripts(items, readings, problems_);
      append(counted_, saidOf(itemsIn(items), "{} listening item", "{} listening items"));
    }
    if (analysis) {
      const auto analyses = readAnalyses(source_ / "analysis", problems_);
      markStretches(analyses, readings, problems_);
      append(counted_, saidOf(analyses.analyses.size(), "{} analysis", "{} analyses"));
    }
  }

  void checkLessons() {
    progress_(said("lessons and exercises"));
    const auto lessons = readLessons(source_ / "lessons", problems_);
    const auto exercises = readExercises(source_, lessons, problems_);
    append(counted_, saidOf(lessons.lessons.size(), "{} lesson", "{} lessons"));
    append(counted_, saidOf(itemsIn(exercises), "{} item", "{} items"));
    if (problems_.none()) checkCourseRules(lessons, exercises);
  }

  void checkCourseRules(const LessonSource& lessons, const ExerciseSource& exercises) {
    progress_(said("rules of the course"));
    const auto items = courseItemsOf(exercises);
    const WordList words = ownWordsOf(items);
    told_ = settleRules(checkRules({lessons, exercises, items, words}),
                        warnings_ == Warnings::Listed, problems_);
  }

  /// Our entries and their forms; the items themselves confirm the regular ones. What is wrong with
  /// the dictionary is told where that is checked.
  [[nodiscard]] WordList ownWordsOf(const std::vector<CourseItem>& items) const {
    Problems elsewhere;
    WordSources words;
    words.own = readDictionary(source_ / "dictionary", elsewhere);
    for (const CourseItem& item : items)
      words.known.insert(item.words.begin(), item.words.end());
    return fillWordList(words, FullWordCount, Filling::OwnOnly, elsewhere);
  }

  const std::filesystem::path& source_;
  const std::set<ContentKind>& only_;
  Warnings warnings_;
  Problems& problems_;
  const Progress& progress_;
  std::string counted_;
  std::string told_;
};

/// What only the whole pack shows: that it can be made, and that its words are explained.
void checkCompiled(const Options& options, Problems& problems, const Progress& progress) {
  const Content content = readContent(options, problems, progress);
  if (!problems.none()) return;
  progress(said("word list"));
  const WordList list = makeWordList(content, options, problems);
  if (!problems.none()) return;
  static_cast<void>(compile(content, list, options, problems, progress));
  // A small list serves for tests and explains what it can.
  if (options.smallWordList) return;
  const auto corpora = corporaOf(content);
  checkCoverage(coverageOf(corpora, list, readNames(options.source / NamesFile)), problems);
  for (auto& found : {hiddenForms(list, content.words), englishSenses(list),
                      unlistedForms(corpora, list, content.words)})
    for (const Problem& problem : found)
      problems.add(problem.where, problem.message);
}

} // namespace

CheckReport checkContent(const Options& options, const std::set<ContentKind>& only,
                         Warnings warnings, Problems& problems, const Progress& progress) {
  std::set<ContentKind> kinds = only;
  const bool isWhole = only.empty();
  if (isWhole) {
    checkCompiled(options, problems, progress);
    if (!problems.none()) return {};
    for (const ContentKindName& each : ContentKindNames)
      kinds.insert(each.kind);
  }
  CheckReport report = Checker(options, kinds, warnings, problems, progress).run();
  // A whole check knows by now that all can be read: a rule that is broken hides no other one.
  if ((isWhole || problems.none()) && kinds.contains(ContentKind::Dictionary)) {
    progress(said("rules of the dictionary"));
    reportErrors(checkDictionaryAlone(options.source, {}, problems), problems);
  }
  if (isWhole) {
    progress(said("rules of texts and drills"));
    checkWordings(options.source, problems);
    report.notes = checkTextsAndDrills(options.source, problems);
  }
  return report;
}

} // namespace talvora::pack
