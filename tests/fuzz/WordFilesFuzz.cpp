// Any bytes as the two word files: the list loads or is refused, every search in it ends, and the
// line at a caret is the one that a walk finds.
#include "dictionary/LookUp.h"
#include "platform/FatalFailure.h"
#include "surface/ParagraphTable.h"
#include "tests/fuzz/Pieces.h"
#include "text/Text.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace {

using namespace talvora;

/// A folder for the whole run, gone with it.
class Folder {
 public:
  Folder()
      : path_(std::filesystem::temp_directory_path() /
              ("talvora-word-files-" + std::to_string(::getpid()))) {
    std::filesystem::create_directories(path_);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  void write(const char* name, std::string_view bytes) const {
    std::ofstream file(path_ / name, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }
  [[nodiscard]] std::string path() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

void search(const WordList& words, std::string_view key) {
  const Places places;
  const Stores stores(places);
  LookUp lookUp(words, stores);
  lookUp.TimTu(key, LayNghia::Yes);
  if (lookUp.ViTriGan < 0 || lookUp.ViTriGan > words.count()) std::abort();
  if (lookUp.TimThay && ChuanHoaTu(words.Chu(lookUp.ViTriGan)) != lower(key)) std::abort();
}

/// So often that a list of short words has too many lines, and one without lines too long a one.
std::string manyTimes(const std::string& list) {
  constexpr std::size_t Enough = 5 * std::size_t{WordList::MostLines};
  std::string many = list.empty() ? "\n" : list;
  while (many.size() < Enough)
    many += many;
  return many;
}

int walkTo(const WordList& words, int caret) {
  int i = 1;
  while (i < WordList::WordCount && words.ViTriDanhSach(i) <= caret)
    ++i;
  return i;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Folder folder;
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  // First the records, then the list; where there is more, the list stands many times over.
  fuzz::Pieces pieces(input);
  folder.write("data.mtd", pieces.next());
  std::string list(pieces.next());
  if (!pieces.next().empty()) list = manyTimes(list);
  folder.write("datatu.txt", list);
  WordList words;
  try {
    words.NapTuDien(folder.path(), [] {});
  } catch (const FatalFailure&) {
    return 0;
  }
  // A surface takes the places as they are.
  if (words.paragraphStarts() != ParagraphTable::startsIn(list)) std::abort();
  search(words, "a");
  search(words, "Word");
  search(words, input.substr(0, std::min<std::size_t>(size, 6)));
  for (int i = 1; i <= std::min(words.count(), 40); ++i)
    search(words, ChuanHoaTu(words.Chu(i)));
  words.examineCarets();
  for (const int line : {1, words.count() / 2}) {
    const int caret = words.ViTriDanhSach(line);
    if (words.lineAt(caret) != walkTo(words, caret)) std::abort();
  }
  return 0;
}
