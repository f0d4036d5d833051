#include "pack/texts/OwnTexts.h"

#include "formats/Integers.h"
#include "formats/LearnerFiles.h"
#include "pack/LooseText.h"
#include "pack/Message.h"
#include "pack/PackFile.h"
#include "pack/ReadingStore.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "pack/Telling.h"
#include "pack/texts/OwnText.h"
#include "platform/Files.h"
#include "stores/OwnTexts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <map>
#include <ostream>
#include <system_error>

namespace talvora::pack {

namespace {

namespace fs = std::filesystem;

/// The heading of their group takes one place of the list.
constexpr std::size_t mostTexts = MostOwnTexts - 1;
constexpr std::size_t digits = 3;

/// The texts by their numbers.
using Texts = std::map<int, ReadingText>;

fs::path folderIn(const std::string& learner) {
  return fs::path(learner) / learnerfile::Texts;
}

std::string nameOf(int number) {
  std::array<char, 16> name{};
  std::snprintf(name.data(), name.size(), "%03d.txt", number);
  return name.data();
}

/// The number of a source's name; 0 for another file's.
int numberOf(const fs::path& path) {
  const std::string name = path.stem().string();
  int number = 0;
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
  const bool isNumber = error == std::errc() && end == name.data() + name.size();
  return isNumber && name.size() >= digits ? number : 0;
}

Texts readAll(const std::string& learner, Problems& problems) {
  Texts texts;
  for (const fs::path& path : textFilesIn(folderIn(learner), problems)) {
    const int number = numberOf(path);
    if (number == 0) continue;
    const std::string file = path.string();
    texts[number] =
        parseReadingText(readText(path, problems), file, problems, Translated::WhereGiven);
  }
  return texts;
}

/// What the program shows for a sentence without a translation.
ReadingText complete(ReadingText text) {
  static const std::string missing = ownText("(câu này chưa có lời dịch)");
  for (Paragraph& paragraph : text.paragraphs) {
    for (SentencePair& pair : paragraph) {
      if (pair.vietnamese.empty()) pair.vietnamese = missing;
    }
  }
  return text;
}

/// The file that the program opens; empty without a text.
std::string fileOf(const Texts& texts) {
  if (texts.empty()) return {};
  std::vector<ReadingText> slots = {{"*" + ownText("Bài của bạn"), {}}};
  for (const auto& [number, text] : texts)
    slots.push_back(complete(text));
  const TextStore store = compileTexts(slots);
  std::string bytes;
  appendInteger(bytes, slots.size());
  return bytes + store.positions + store.stream;
}

std::optional<std::string> writeFile(const std::string& learner, const Texts& texts) {
  const std::string path = learner + "/" + std::string(OwnTextsFile);
  const std::string bytes = fileOf(texts);
  if (!bytes.empty()) return replaceFile(systemFiles(), path, bytesOfText(bytes));
  const auto error = systemFiles().remove(path);
  return error ? std::optional(fileProblem(path, said("cannot be removed"), error)) : std::nullopt;
}

std::size_t sentencesOf(const ReadingText& text) {
  std::size_t count = 0;
  for (const Paragraph& paragraph : text.paragraphs)
    count += paragraph.size();
  return count;
}

void tellText(int number, const ReadingText& text, std::ostream& out) {
  out << number << "\t" << utf8Of(text.title) << "\t"
      << saidOf(sentencesOf(text), "{} sentence", "{} sentences") << "\n";
}

/// Writes the sources of texts, then the program's file; on a failure the sources go again.
std::optional<std::string> putNew(const std::string& learner, const Texts& fresh,
                                  const Texts& all) {
  const fs::path folder = folderIn(learner);
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) return fileProblem(folder.string(), said("cannot be made"), error);
  std::optional<std::string> problem;
  for (const auto& [number, text] : fresh) {
    problem = store({nameOf(number), writeReadingText(text)}, folder);
    if (problem) break;
  }
  if (!problem) problem = writeFile(learner, all);
  if (!problem) return std::nullopt;
  for (const auto& [number, text] : fresh)
    fs::remove(folder / nameOf(number), error);
  return problem;
}

} // namespace

ListResult addTexts(const std::string& learner, const std::vector<fs::path>& files,
                    std::ostream& out) {
  Problems problems;
  Texts all = readAll(learner, problems);
  Texts fresh;
  std::map<char32_t, std::size_t> lost;
  int number = all.empty() ? 0 : all.rbegin()->first;
  for (const fs::path& file : files) {
    OwnTextsFromFile made = ownTextsFromFile(file, problems);
    for (ReadingText& text : made.texts)
      fresh.emplace(++number, std::move(text));
    for (const auto& [letter, count] : made.lost)
      lost[letter] += count;
  }
  if (!problems.none()) return tellProblems(problems, out);
  all.insert(fresh.begin(), fresh.end());
  if (all.size() > mostTexts) {
    out << said("There is room for {} texts only; there are {}, and {} more are asked for.",
                mostTexts, all.size() - fresh.size(), fresh.size())
        << "\n";
    return tellUnchanged(out);
  }
  if (const auto problem = putNew(learner, fresh, all)) return tellUnwritten(*problem, out);
  for (const auto& [each, text] : fresh)
    tellText(each, text, out);
  tellLost(lost, out);
  out << said("When it is started next, the program has these texts at the end of the list of "
              "reading texts, below \"Bài của bạn\".")
      << "\n";
  return ListResult::Fine;
}

ListResult listTexts(const std::string& learner, std::ostream& out) {
  Problems problems;
  const Texts texts = readAll(learner, problems);
  for (const auto& [number, text] : texts)
    tellText(number, text, out);
  for (const Problem& problem : problems.all())
    out << describe(problem) << "\n";
  out << saidOf(texts.size(), "{} text", "{} texts") << "\n";
  return problems.none() ? ListResult::Fine : ListResult::Found;
}

ListResult removeTexts(const std::string& learner, const std::vector<int>& numbers,
                       std::ostream& out) {
  Problems problems;
  Texts texts = readAll(learner, problems);
  if (!problems.none()) return tellProblems(problems, out);
  for (const int number : numbers) {
    if (texts.erase(number) > 0) continue;
    out << said("There is no text number {}.", number) << "\n";
    return tellUnchanged(out);
  }
  // The program's file goes first: a source that is left over is only told again.
  if (const auto problem = writeFile(learner, texts)) return tellUnwritten(*problem, out);
  for (const int number : numbers) {
    const auto path = (folderIn(learner) / nameOf(number)).string();
    if (const auto error = systemFiles().remove(path))
      return tellUnwritten(fileProblem(path, said("cannot be removed"), error), out);
  }
  out << saidOf(numbers.size(),
                "{} text has been taken away. Words collected from it keep their sentences.",
                "{} texts have been taken away. Words collected from them keep their sentences.")
      << "\n";
  return ListResult::Fine;
}

ListResult refreshTexts(const std::string& learner, std::ostream& out) {
  Problems problems;
  const Texts texts = readAll(learner, problems);
  if (!problems.none()) return tellProblems(problems, out);
  if (texts.size() > mostTexts) {
    out << said("There is room for {} texts only.", mostTexts) << "\n";
    return tellUnchanged(out);
  }
  if (const auto problem = writeFile(learner, texts)) return tellUnwritten(*problem, out);
  out << saidOf(texts.size(), "{} text", "{} texts") << "\n";
  return ListResult::Fine;
}

} // namespace talvora::pack
