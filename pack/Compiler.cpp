// The steps of a build.
#include "pack/Compiler.h"

#include "pack/DictionaryStore.h"
#include "pack/Guide.h"
#include "pack/OtherStores.h"
#include "pack/ReadingStore.h"
#include "pack/SourceFile.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <iterator>

namespace talvora::pack {

namespace {

constexpr CharClass wordCharacters("[a-zA-Z'-]");

void appendWords(std::vector<std::string>& words, std::string_view text) {
  std::string word;
  const auto finish = [&] {
    while (!word.empty() && !Letters.has(word.front()))
      word.erase(0, 1);
    while (!word.empty() && !Letters.has(word.back()))
      word.pop_back();
    if (!word.empty()) words.push_back(lower(word));
    word.clear();
  };
  for (const char character : text) {
    if (wordCharacters.has(character)) {
      word += character;
    } else {
      finish();
    }
  }
  finish();
}

// A small list goes without the installed databases: the words that its texts use confirm the
// regular forms.
WordSources readWordSources(const Options& options, const ReadingSource& readings,
                            Problems& problems, const Progress& progress) {
  WordSources words;
  progress("dictionary sources");
  words.own = readDictionary(options.source / "dictionary", problems);
  if (options.smallWordList) {
    for (std::string& word : wordsOfReadings(readings))
      words.known.insert(std::move(word));
    return words;
  }
  progress("WordNet");
  words.wordNet = readWordNet(options.wordNet, problems);
  progress("word lists");
  for (const auto& path : options.wordLists)
    readListedWords(path, words, problems);
  return words;
}

void append(std::vector<PackFile>& files, std::vector<PackFile> more) {
  std::move(more.begin(), more.end(), std::back_inserter(files));
}

} // namespace

Content readContent(const Options& options, Problems& problems, const Progress& progress) {
  Content content;
  if (!std::filesystem::is_directory(options.source)) {
    problems.add({options.source.string()}, "is not a folder");
    return content;
  }
  progress("reading texts");
  content.readings = readReadings(options.source / "reading", problems);
  progress("guide");
  const auto guide = options.source / "guide.txt";
  content.guide = compileGuide(readSource(guide, problems), guide.string(), problems);
  content.words = readWordSources(options, content.readings, problems, progress);
  return content;
}

WordList makeWordList(const Content& content, const Options& options, Problems& problems) {
  const std::size_t limit = options.smallWordList.value_or(FullWordCount);
  const Filling filling = options.smallWordList ? Filling::OwnOnly : Filling::Full;
  WordList list = fillWordList(content.words, limit, filling, problems);
  if (filling == Filling::Full && !list.full()) {
    problems.add({(options.source / "dictionary").string()},
                 "the word list has " + std::to_string(list.size()) + " words and needs " +
                     std::to_string(limit) + "; the word sources are too small");
  }
  return list;
}

std::vector<PackFile> compile(const Options& options, Problems& problems,
                              const Progress& progress) {
  const Content content = readContent(options, problems, progress);
  if (!problems.none()) return {};
  progress("word list");
  const WordList list = makeWordList(content, options, problems);
  if (!problems.none()) return {};
  progress("entries");
  std::vector<PackFile> files = compileDictionary(list);
  progress("texts and settings");
  TextStore readings = compileReadings(content.readings);
  files.push_back({"data.vt", std::move(readings.positions)});
  files.push_back({"data.av", std::move(readings.stream)});
  files.push_back({"readme.rtf", content.guide});
  append(files, compileLessons());
  append(files, compileSpeaking());
  append(files, compileExercises());
  append(files, compileAnalyses());
  append(files, compileListening());
  append(files, compileVietnameseSide());
  append(files, firstSettings());
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
