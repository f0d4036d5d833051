// Each file of a pack, written by the compiler and read by the program. (The Vietnamese side, the
// page of the listening quiz and the settings have such a test beside their other ones.)
#include "pack/Compiler.h"

#include "dictionary/DictionaryRun.h"
#include "dictionary/LookUp.h"
#include "dictionary/WordList.h"
#include "exercises/ItemRecord.h"
#include "exercises/ItemStore.h"
#include "formats/PackFiles.h"
#include "listening/ListeningItems.h"
#include "pack/AnalysisSource.h"
#include "pack/ExerciseSource.h"
#include "pack/ListeningSource.h"
#include "pack/ReadingStore.h"
#include "pack/Recordings.h"
#include "pack/SourceFile.h"
#include "pack/SpeakingSource.h"
#include "pack/StreamText.h"
#include "reading/ReadingText.h"
#include "sound/Pronunciations.h"
#include "surface/RichText.h"
#include "surface/SectionNumbers.h"
#include "writing/Analysis.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <sstream>

namespace talvora::pack {
namespace {

using testing::HasSubstr;

const std::filesystem::path content = TALVORA_SMALL_CONTENT;

/// The pack of the small content; what it was made from is read again for each test.
class RoundTrip : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder = std::make_unique<test::TestFolder>();
    Options options;
    options.source = content;
    options.smallWordList = 2000;
    Problems problems;
    for (const PackFile& file : compile(options, problems, [](std::string_view) {}))
      folder->write(file.name, file.bytes);
    ASSERT_TRUE(problems.none()) << describe(problems.all().front());
  }
  static void TearDownTestSuite() { folder.reset(); }

  RoundTrip() : places{} {
    places.ThuMuc = folder->path();
    stores.MoDuLieu();
  }

  /// What the program shows of text `slot` of the store at hand.
  std::string shown(int slot) {
    reader.DocBai(slot);
    return text.CauHoi;
  }
  /// All of it, sentence by sentence: the text and the translation of each.
  void expectTexts(const ReadingSource& source, int positions) {
    stores.ChonKho(positions);
    stores.NapViTriBai();
    ASSERT_FALSE(source.texts.empty());
    for (const auto& [slot, written] : source.texts) {
      const std::string read = shown(slot);
      std::size_t sentence = 1;
      EXPECT_THAT(read, HasSubstr(written.title + "\r")) << slot;
      reader.DocDich(slot);
      for (const Paragraph& paragraph : written.paragraphs) {
        for (const SentencePair& pair : paragraph) {
          ++sentence;
          EXPECT_THAT(read, HasSubstr(pair.english)) << slot;
          const int caret = static_cast<int>(read.find(pair.english)) + 2;
          EXPECT_EQ(reader.CauTaiViTri(caret), static_cast<int>(sentence)) << pair.english;
          EXPECT_THAT(std::string(reader.translationOf(static_cast<int>(sentence))),
                      HasSubstr(pair.vietnamese));
        }
      }
    }
  }

  static inline std::unique_ptr<test::TestFolder> folder;

  Problems problems;
  Places places;
  Stores stores{places};
  CurrentText text;
  talvora::ReadingText reader{stores, text};
};

TEST_F(RoundTrip, ReadingTexts) {
  places.MucMenu = section::Reading;
  expectTexts(readReadings(content / "reading", problems), file::TextPositions);
}

TEST_F(RoundTrip, SpeakingTexts) {
  places.MucMenu = section::Speaking;
  expectTexts(readSpeaking(content / "speaking", problems), file::SpeakingPositions);
}

TEST_F(RoundTrip, Analyses) {
  const AnalysisSource source = readAnalyses(content / "analysis", problems);
  stores.ChonKho(file::TextPositions);
  stores.NapViTriBai();
  ASSERT_FALSE(source.analyses.empty());
  for (const auto& [number, analysis] : source.analyses) {
    const std::string read = shown(number + AnalysedTextsAhead);
    const int titleEnd = static_cast<int>(read.find('\r')) + 2;
    const auto stretches = LapOTuPT(text.VanBanGoc, titleEnd, "the text");
    EXPECT_EQ(stretches.size(), analysis.size()) << number;
    const std::int64_t start = stores.fileOf(file::AnalysisPositions).integer(number);
    PieceReader pieces(stores.fileOf(file::Analyses), start + 1);
    std::string stored;
    for (auto piece = pieces.next(); piece && *piece != "@"; piece = pieces.next())
      stored += *piece;
    const auto told = GanGiaiPT(stored, "the analysis");
    ASSERT_EQ(told.size(), analysis.size()) << number;
    for (std::size_t place = 0; place < analysis.size(); ++place) {
      for (const std::string& field : analysis[place].fields)
        EXPECT_THAT(told[place], HasSubstr(field)) << number << ", stretch " << place + 1;
    }
  }
}

// -- Lessons and items.

TEST_F(RoundTrip, Lessons) {
  const LessonSource source = readLessons(content / "lessons", problems);
  ASSERT_FALSE(source.lessons.empty());
  for (const auto& [slot, lesson] : source.lessons) {
    const std::int64_t start = stores.fileOf(file::LessonPositions).integer(slot);
    PieceReader pieces(stores.fileOf(file::Lessons), start + 1);
    std::string stored;
    for (auto piece = pieces.next(); piece && *piece != "@"; piece = pieces.next())
      stored += *piece;
    // A lesson with items begins with a point.
    if (stored.starts_with('.')) stored.erase(0, 1);
    EXPECT_THAT(stored, testing::StartsWith(lesson.title + "\r")) << slot;
    for (const MarkedLine& line : lesson.lines)
      EXPECT_THAT(stored, HasSubstr(encodeMarkedLine(line, LineKind::Lesson))) << slot;
  }
}

TEST_F(RoundTrip, Items) {
  const LessonSource lessons = readLessons(content / "lessons", problems);
  const ExerciseSource source = readExercises(content, lessons, problems);
  ScriptedMachine machine;
  ItemStore items(stores);
  items.DocSoCau(machine.events);
  std::size_t seen = 0;
  const auto expectItem = [&](const Item& item, int number) {
    ++seen;
    std::string question = items.question(number);
    const ItemHeader header = readHeader(question);
    EXPECT_EQ(header.code, item.heading) << item.where.line;
    question.erase(0, header.length);
    if (!item.hints.empty()) {
      EXPECT_EQ(TachGoiY(question), item.hints) << item.where.line;
    }
    EXPECT_THAT(TachThan(question), HasSubstr(item.question.substr(0, item.question.find('*'))));
    if (!item.options.empty()) {
      const auto options = TachPhuongAn(question);
      for (std::size_t at = 0; at < item.options.size(); ++at)
        EXPECT_EQ(options[at], item.options[at] + "\r") << item.where.line;
    }
    if (item.key > 0) {
      EXPECT_EQ(keyOf(question), item.key) << item.where.line;
    }
    const AnswerSections answer = TachGiai(items.answer(number));
    for (const ExplanationLine& line : item.general)
      EXPECT_THAT(answer.general, HasSubstr(line.text.text)) << item.where.line;
    for (const auto& [blank, lines] : item.explanations) {
      ASSERT_LE(static_cast<std::size_t>(blank), answer.sections.size()) << item.where.line;
      for (const ExplanationLine& line : lines) {
        const std::string stored = line.refersTo
                                       ? "?" + std::to_string(*lessons.slotOf(line.text.text))
                                       : encodeMarkedLine(line.text, LineKind::Explanation);
        EXPECT_THAT(answer.sections[static_cast<std::size_t>(blank) - 1], HasSubstr(stored));
      }
    }
    for (const std::string& translation : item.translations)
      EXPECT_THAT(items.answer(number), HasSubstr("_" + translation)) << item.where.line;
  };
  const auto expectSection = [&](const std::vector<Item>& section, int number) {
    if (section.empty()) return;
    EXPECT_EQ(items.itemsOf(number), static_cast<int>(section.size()));
    int next = items.itemsBefore(number);
    for (const Item& item : section)
      expectItem(item, ++next);
  };
  for (std::size_t bank = 0; bank < BankCount; ++bank)
    expectSection(source.banks[bank], static_cast<int>(bank) + 1);
  for (const auto& [slot, section] : source.lessons)
    expectSection(section, ItemStore::Banks + slot);
  EXPECT_GE(seen, 25U);
}

TEST_F(RoundTrip, ListeningItems) {
  const ListeningSource source = readListening(content / "listening", problems);
  talvora::ListeningItems items(stores);
  items.LapBangNghe();
  ASSERT_FALSE(source.units.empty());
  for (const auto& [unit, questions] : source.units) {
    for (const ListeningQuestion& question : questions) {
      bool found = false;
      for (int record = 1; record <= talvora::ListeningItems::Count && !found; ++record) {
        const ListeningItem item = items.item(record);
        const ListeningTexts texts = items.textsAt(item.ViTri);
        found = texts.sentence == question.sentence && item.Doan == question.number &&
                texts.options[0] == question.right &&
                std::equal(question.wrong.begin(), question.wrong.end(), texts.options.begin() + 1);
      }
      EXPECT_TRUE(found) << unit << ": " << question.sentence;
    }
  }
}

// -- The dictionary.

TEST_F(RoundTrip, Dictionary) {
  const auto entries = readDictionary(content / "dictionary", problems);
  talvora::WordList words;
  words.NapTuDien(folder->path(), [] {});
  talvora::LookUp lookUp(words, stores);
  ASSERT_FALSE(entries.empty());
  for (const OwnEntry& entry : entries) {
    const auto answer = lookUp.ask(entry.head, LayNghia::Yes);
    ASSERT_TRUE(answer && answer->TimThay) << entry.head;
    for (const Sense& sense : entry.block.senses)
      EXPECT_THAT(answer->entry, HasSubstr(sense.text)) << entry.head;
  }
}

TEST_F(RoundTrip, Pronunciations) {
  const std::string written =
      readWhole(std::filesystem::path(folder->path()) / Pronunciations::FileName).value_or("-");
  EXPECT_EQ(Pronunciations::read(written).write(), written);
  const talvora::Pronunciations some({{SpokenWhere::Everywhere, "colonel", "k er1 n ax0 l"},
                                      {SpokenWhere::Within, "read", "r eh1 d", {"have", "read"}}});
  const auto read = talvora::Pronunciations::read(some.write());
  EXPECT_EQ(read.prepared("I have read it"), some.prepared("I have read it"));
  EXPECT_EQ(read.lexicon().size(), some.lexicon().size());
}

// -- The guide and the recordings.

TEST_F(RoundTrip, Guide) {
  const auto bytes =
      readWhole(std::filesystem::path(folder->path()) / packfile::Guide).value_or("");
  const std::string shownGuide = readRichText(bytes, {}).text;
  std::size_t lines = 0;
  const std::string guide = readText(content / "guide.txt", problems);
  for (const SourceLine& line : linesOf(guide)) {
    const bool plain = line.text.find_first_of("*/") == std::string_view::npos;
    if (line.text.empty() || !plain) continue;
    ++lines;
    const std::size_t from = line.text.find_first_not_of("#- ");
    EXPECT_THAT(shownGuide, HasSubstr(ownText(std::string(line.text.substr(from)))));
  }
  EXPECT_GT(lines, 3U);
}

/// The marks on the second line of a stamp.
std::vector<std::int32_t> marksOn(const std::string& stamp) {
  std::istringstream fields(stamp.substr(stamp.find('\n')));
  return {std::istream_iterator<std::int32_t>(fields), {}};
}

TEST(RoundTripOfRecordings, TheProgramFindsEveryRecordingAndItsMarks) {
  test::DictionaryRun run(std::vector<test::Word>{{"go", "_move"}});
  ReadingSource readings;
  readings.texts[400] = {"Title", {{{"Good morning.", "..."}, {"She works here.", "..."}}}};
  readings.texts[403] = {"Title", {{{"It rains.", "..."}}}};
  const std::filesystem::path pack = run.folder.path();
  std::filesystem::create_directories(pack / "sound");
  for (const PackFile& file : compileRecordings(readings, {}, {}, pack, [](std::string_view) {}))
    run.folder.write(file.name, file.bytes);
  for (const int number : {1, 2, 4}) {
    const auto stamp = readWhole(pack / ("sound/" + std::to_string(number) + ".stamp"));
    const auto marks = stamp ? marksOn(*stamp) : std::vector<std::int32_t>();
    EXPECT_EQ(run.voice.TonTaiAm(std::to_string(number)), stamp.has_value()) << number;
    run.voice.NapMoc(number);
    ASSERT_EQ(run.voice.SoMoc, static_cast<int>(marks.size())) << number;
    EXPECT_TRUE(std::equal(marks.begin(), marks.end(), run.voice.BangMoc.begin() + 1)) << number;
  }
}

} // namespace
} // namespace talvora::pack
