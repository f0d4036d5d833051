// The steps of a build.
#include "pack/Compiler.h"

#include "formats/PackFiles.h"
#include "pack/AnalysisStore.h"
#include "pack/DictionaryCheck.h"
#include "pack/DictionaryStore.h"
#include "pack/ExerciseStore.h"
#include "pack/Guide.h"
#include "pack/KeptDictionary.h"
#include "pack/LessonStore.h"
#include "pack/ListeningStore.h"
#include "pack/Message.h"
#include "pack/OtherStores.h"
#include "pack/Pronouncer.h"
#include "pack/ReadingStore.h"
#include "pack/Recordings.h"
#include "pack/SourceFile.h"
#include "pack/SpeakingSource.h"
#include "pack/StreamText.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>
#include <iterator>

namespace talvora::pack {

namespace {

constexpr CharClass wordCharacters("[a-zA-Z'-]");

void appendWords(std::vector<std::string>& words, std::string_view text) {
  std::string word;
  const auto finish = [&] {
    // A word with a Vietnamese letter is not English, nor are the pieces around the letter.
    if (std::any_of(word.begin(), word.end(), isVietnameseLetter)) word.clear();
    while (!word.empty() && !Letters.has(word.front()))
      word.erase(0, 1);
    while (!word.empty() && !Letters.has(word.back()))
      word.pop_back();
    if (!word.empty()) words.push_back(lower(word));
    word.clear();
  };
  for (const char character : text) {
    if (wordCharacters.has(character) || isVietnameseLetter(character)) {
      word += character;
    } else {
      finish();
    }
  }
  finish();
}

// Accepted words confirm regular forms that the word lists lack. A small list goes without the
// installed databases and takes the words of the texts instead; a full one does not hang on them.
WordSources readWordSources(const Options& options, const ReadingSource& readings,
                            Problems& problems, const Progress& progress) {
  WordSources words;
  progress(said("dictionary sources"));
  words.own = readDictionary(options.source / "dictionary", problems);
  words.known.merge(wordSetOf(options.source / AcceptedFile));
  if (options.smallWordList) {
    for (std::string& word : wordsOfReadings(readings))
      words.known.insert(std::move(word));
    return words;
  }
  progress(said("WordNet"));
  words.wordNet = readWordNet(options.wordNet, problems);
  progress(said("word lists"));
  for (const auto& path : options.wordLists)
    readListedWords(path, words, problems);
  return words;
}

/// How many sentences the scripts of the recordings have.
std::map<int, std::size_t> sentenceCounts(const ReadingSource& readings) {
  std::map<int, std::size_t> counts;
  for (const Script& script : scriptsOf(readings))
    counts[script.number] = script.lines.size();
  return counts;
}

// The pronunciations belong to the entries, and what the voice says wrong goes with the pack.
void pronounceWords(const Options& options, Content& content, Problems& problems) {
  const Pronouncer pronouncer(readPronunciations(options.source / "pronunciation.txt", problems));
  pronouncer.pronounce(content.words.own);
  content.pronunciations =
      pronouncer.correctionsFor(content.words.own, spokenFormsOf(content.words));
}

void readDrills(const Options& options, Content& content, Problems& problems) {
  content.speaking = readSpeaking(options.source / "speaking", problems);
  content.listening = readListening(options.source / "listening", problems);
  checkAgainstScripts(content.listening, content.readings, problems);
  content.analyses = readAnalyses(options.source / "analysis", problems);
  content.recordings =
      readOwnRecordings(options.source / "recordings", sentenceCounts(content.readings), problems);
  markStretches(content.analyses, content.readings, problems);
}

/// All but the words.
Content readCourse(const Options& options, Problems& problems, const Progress& progress) {
  Content content;
  if (!std::filesystem::is_directory(options.source)) {
    problems.add({options.source.string()}, said("is not a folder"));
    return content;
  }
  progress(said("reading texts"));
  content.readings = readReadings(options.source / "reading", problems);
  progress(said("lessons and exercises"));
  content.lessons = readLessons(options.source / "lessons", problems);
  content.exercises = readExercises(options.source, content.lessons, problems);
  progress(said("drills"));
  readDrills(options, content, problems);
  progress(said("guide"));
  const auto guide = options.source / "guide.txt";
  content.guide = compileGuide(readText(guide, problems), guide.string(), problems);
  if (!options.smallWordList) content.wordNetLicence = readSource(options.wordNetLicence, problems);
  return content;
}

void readWords(const Options& options, Content& content, Problems& problems,
               const Progress& progress) {
  content.words = readWordSources(options, content.readings, problems, progress);
  pronounceWords(options, content, problems);
}

std::vector<PackFile> compileDrills(const Content& content) {
  TextStore speaking = compileSpeakingTexts(content.speaking);
  TextStore items = compileListeningItems(content.listening);
  TextStore analyses = compileAnalysisTexts(content.analyses);
  return {{std::string(packfile::SpeakingPositions), std::move(speaking.positions)},
          {std::string(packfile::SpeakingTexts), std::move(speaking.stream)},
          {std::string(packfile::ListeningPositions), std::move(items.positions)},
          {std::string(packfile::ListeningItems), std::move(items.stream)},
          {std::string(packfile::ListeningPage), compileListeningPage(content.listening.page)},
          {std::string(packfile::AnalysisPositions), std::move(analyses.positions)},
          {std::string(packfile::Analyses), std::move(analyses.stream)}};
}

void append(std::vector<PackFile>& files, std::vector<PackFile> more) {
  std::move(more.begin(), more.end(), std::back_inserter(files));
}

/// The files that hang on the words and not on the texts.
std::vector<PackFile> compileWords(const Content& content, const WordList& list,
                                   const Options& options, Problems& problems,
                                   const Progress& progress) {
  progress(said("entries"));
  std::vector<PackFile> files = compileDictionary(list);
  append(files, compileVietnameseSide(makeVietnameseSide(content, list, options, problems)));
  files.push_back({std::string(Pronunciations::FileName), content.pronunciations.write()});
  return files;
}

/// All others; of the recordings, those that are new.
std::vector<PackFile> compileTexts(const Content& content, const Options& options,
                                   const Progress& progress) {
  progress(said("texts and settings"));
  std::vector<PackFile> files;
  TextStore readings = compileReadings(content.readings);
  files.push_back({std::string(packfile::ReadingPositions), std::move(readings.positions)});
  files.push_back({std::string(packfile::ReadingTexts), std::move(readings.stream)});
  files.push_back({std::string(packfile::Guide), content.guide});
  TextStore lessons = compileLessons(content.lessons, content.exercises.lessonsWithItems());
  files.push_back({std::string(packfile::LessonPositions), std::move(lessons.positions)});
  files.push_back({std::string(packfile::Lessons), std::move(lessons.stream)});
  append(files, compileExercises(content.exercises, content.lessons));
  append(files, compileDrills(content));
  append(files, firstSettings());
  if (!content.wordNetLicence.empty())
    files.push_back({"LICENCE-wordnet.txt", content.wordNetLicence});
  append(files, compileRecordings(content.readings, content.recordings, content.pronunciations,
                                  options.earlierPack, progress));
  return files;
}

} // namespace

Content readContent(const Options& options, Problems& problems, const Progress& progress) {
  Content content = readCourse(options, problems, progress);
  if (std::filesystem::is_directory(options.source))
    readWords(options, content, problems, progress);
  return content;
}

WordList makeWordList(const Content& content, const Options& options, Problems& problems) {
  const std::size_t limit = options.smallWordList.value_or(FullWordCount);
  const Filling filling = options.smallWordList ? Filling::OwnOnly : Filling::Full;
  WordList list = fillWordList(content.words, limit, filling, problems);
  if (filling == Filling::Full && !list.full()) {
    problems.add({(options.source / "dictionary").string()},
                 said("the word list has {} words and needs {}; the word sources are too small",
                      list.size(), limit));
  }
  return list;
}

std::vector<SideEntry> makeVietnameseSide(const Content& content, const WordList& list,
                                          const Options& options, Problems& problems) {
  auto entries = vietnameseSideOf(list, content.words.listed);
  if (!options.smallWordList && entries.size() < VietnameseSideCount) {
    problems.add(
        {(options.source / "dictionary").string()},
        said("the Vietnamese side has {} entries and needs {}; more words of our own are needed",
             entries.size(), VietnameseSideCount));
  }
  return entries;
}

std::vector<PackFile> compile(const Options& options, Problems& problems,
                              const Progress& progress) {
  const KeptDictionary kept(options);
  if (!kept.stands()) {
    const Content content = readContent(options, problems, progress);
    if (!problems.none()) return {};
    progress(said("word list"));
    const WordList list = makeWordList(content, options, problems);
    if (!problems.none()) return {};
    std::vector<PackFile> files = compile(content, list, options, problems, progress);
    kept.addNote(files);
    return files;
  }
  Content content = readCourse(options, problems, progress);
  if (!problems.none()) return {};
  content.pronunciations = kept.pronunciations();
  return compileTexts(content, options, progress);
}

std::vector<PackFile> compile(const Content& content, const WordList& list, const Options& options,
                              Problems& problems, const Progress& progress) {
  std::vector<PackFile> files = compileWords(content, list, options, problems, progress);
  if (!problems.none()) return {};
  append(files, compileTexts(content, options, progress));
  return files;
}

std::vector<std::string> wordsOfReadings(const ReadingSource& readings) {
  std::vector<std::string> words;
  for (const auto& [slot, text] : readings.texts) {
    appendWords(words, text.title);
    for (const Paragraph& paragraph : text.paragraphs) {
      for (const SentencePair& pair : paragraph)
        appendWords(words, pair.english);
    }
  }
  return words;
}

} // namespace talvora::pack
