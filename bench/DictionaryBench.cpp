// How long the word list takes to stand, and a look-up in it, on as many words as the list is built
// for. Each limit stands in the label of its benchmark.
#include "dictionary/LookUp.h"
#include "dictionary/WordList.h"
#include "formats/Integers.h"
#include "stores/ByteCode.h"
#include "tests/support/TemporaryFolder.h"
#include "text/WordForm.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace talvora;

constexpr std::string_view MissingBeginning = "zz";

/// Word files with synthetic words, written once and gone with the run.
class Files {
 public:
  Files() {
    makeWords();
    writeFiles();
  }
  [[nodiscard]] std::string path() const { return folder_.path().string(); }
  [[nodiscard]] const std::vector<std::string>& words() const { return words_; }

 private:
  void makeWords() {
    constexpr std::string_view letters = "eeeetttaaaooiinnsshhrrddlcumwfgypbvkjxqz";
    std::set<std::string> words;
    for (char letter = 'a'; letter <= 'z'; ++letter)
      words.insert(std::string(1, letter));
    std::mt19937 random(1);
    while (words.size() < WordList::WordCount) {
      std::string word(3 + random() % 10, 'a');
      for (char& each : word)
        each = letters[random() % letters.size()];
      // The benchmark of words that are not found needs a beginning that no word has.
      if (!word.starts_with(MissingBeginning)) words.insert(word);
    }
    words_.assign(words.begin(), words.end());
  }
  void writeFiles() const {
    std::string list;
    std::string records;
    std::string entries;
    const auto append = [&](std::size_t value) {
      for (const unsigned char byte : bytesOf(static_cast<std::int32_t>(value))) {
        records += static_cast<char>(byte);
      }
    };
    for (const std::string& word : words_) {
      list += word + "\r\n";
      append(entries.size() + 1);
      append(list.size());
      entries += "#noun #_a thing that is met every day\r";
    }
    for (char& byte : entries) {
      byte = static_cast<char>(GiaiMaByte(static_cast<unsigned char>(byte)));
    }
    write("datatu.txt", list);
    write("data.mtd", records);
    write("data.avt", entries);
    for (const char* name : {"data.vt", "data.av", "datavp.vt", "datavp.n", "dataD.av", "data.vbt",
                             "data.bt", "datasp.vt", "datasp.av", "dataPt.vt", "dataPt.v"}) {
      write(name, "");
    }
  }
  void write(const char* name, const std::string& bytes) const {
    std::ofstream(folder_.path() / name, std::ios::binary) << bytes;
  }

  test::TemporaryFolder folder_;
  std::vector<std::string> words_;
};

const Files& files() {
  static const Files instance;
  return instance;
}

/// A loaded dictionary without a screen.
struct Loaded {
  Loaded() : stores(places), lookUp(words, stores) {
    places.ThuMuc = files().path();
    words.NapTuDien(places.ThuMuc, [] {});
    stores.MoDuLieu();
  }

  Places places;
  Stores stores;
  WordList words;
  LookUp lookUp;
};

void mapAndScanOnce(benchmark::State& state) {
  const std::string folder = files().path();
  for (auto _ : state) {
    const auto records = MappedFile::open(folder + "/data.mtd");
    const auto list = MappedFile::open(folder + "/datatu.txt");
    const std::string_view text = list->text();
    std::size_t lines = 0;
    for (const char* at = text.data();
         (at = static_cast<const char*>(std::memchr(
              at, '\n', static_cast<std::size_t>(text.data() + text.size() - at)))) != nullptr;
         ++at) {
      ++lines;
    }
    benchmark::DoNotOptimize(lines);
  }
  state.SetLabel("peer: map both files, scan the line ends once");
}
BENCHMARK(mapAndScanOnce)->Unit(benchmark::kMicrosecond);

void wordFilesReady(benchmark::State& state) {
  const std::string folder = files().path();
  for (auto _ : state) {
    WordList words;
    words.NapTuDien(folder, [] {});
    benchmark::DoNotOptimize(words.count());
  }
  state.SetLabel("limit: 1.5 times the peer");
}
BENCHMARK(wordFilesReady)->Unit(benchmark::kMicrosecond);

void oneStringAWord(benchmark::State& state) {
  const std::string path = files().path() + "/datatu.txt";
  for (auto _ : state) {
    std::ifstream file(path, std::ios::binary);
    std::vector<std::string> words;
    for (std::string line; std::getline(file, line);)
      words.push_back(line);
    benchmark::DoNotOptimize(words.data());
  }
  state.SetLabel("peer: a string object for each word");
}
BENCHMARK(oneStringAWord)->Unit(benchmark::kMicrosecond);

/// Words drawn from the whole list, in an order that no cache foresees.
std::vector<std::string> drawnWords(std::size_t count) {
  std::mt19937 random(2);
  std::vector<std::string> drawn;
  while (drawn.size() < count) {
    const std::string& word = files().words()[random() % files().words().size()];
    if (word.size() > 1) drawn.push_back(word);
  }
  return drawn;
}

void lookUpExistingWord(benchmark::State& state) {
  Loaded loaded;
  const std::vector<std::string> keys = drawnWords(1000);
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(loaded.lookUp.timMoiDang(keys[next++ % keys.size()]));
    if (!loaded.lookUp.TimThay) state.SkipWithError("a word of the list was not found");
  }
  state.SetLabel("limit: 1 us");
}
BENCHMARK(lookUpExistingWord)->Unit(benchmark::kNanosecond);

void lookUpWithEveryShortening(benchmark::State& state) {
  Loaded loaded;
  std::vector<std::string> keys;
  std::mt19937 random(3);
  while (keys.size() < 100) {
    std::string key(MissingBeginning);
    while (key.size() < 10)
      key += static_cast<char>('a' + random() % 26);
    keys.push_back(key);
  }
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(loaded.lookUp.timMoiDang(keys[next++ % keys.size()]));
    if (loaded.lookUp.TimThay) state.SkipWithError("a word was found that is not there");
  }
  state.SetLabel("limit: 5 us, words of ten letters");
}
BENCHMARK(lookUpWithEveryShortening)->Unit(benchmark::kNanosecond);

void lookUpThousandMixedWords(benchmark::State& state) {
  Loaded loaded;
  std::vector<std::string> keys = drawnWords(1000);
  for (std::size_t each = 0; each < keys.size(); each += 2)
    keys[each] += "ing";
  for (auto _ : state) {
    for (const std::string& key : keys) {
      benchmark::DoNotOptimize(loaded.lookUp.timMoiDang(key));
    }
  }
  state.SetLabel("limit: 3 ms; every second word with an ending");
}
BENCHMARK(lookUpThousandMixedWords)->Unit(benchmark::kMicrosecond);

void lineAtCaret(benchmark::State& state) {
  Loaded loaded;
  loaded.words.examineCarets();
  const int last = loaded.words.ViTriDanhSach(WordList::WordCount);
  std::mt19937 random(4);
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        loaded.words.lineAt(static_cast<int>(random() % static_cast<unsigned>(last))));
  }
  state.SetLabel("on each key of the look-up list");
}
BENCHMARK(lineAtCaret)->Unit(benchmark::kNanosecond);

} // namespace
