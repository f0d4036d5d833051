// Any bytes at all as the listening store: its items are read and painted, whatever they hold. As a
// source the same bytes are parsed, and what is accepted goes through the store and back.
#include "listening/ListeningItems.h"
#include "listening/OptionMask.h"
#include "pack/ListeningStore.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <unistd.h>

using namespace talvora;

namespace {

/// A folder that is gone with the run.
class Folder {
 public:
  Folder()
      : path_(std::filesystem::temp_directory_path() /
              ("talvora-listening-fuzz-" + std::to_string(::getpid()))) {
    std::filesystem::create_directories(path_);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  [[nodiscard]] std::string path() const { return path_.string(); }
  void write(const char* name, std::string_view bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
  }

 private:
  std::filesystem::path path_;
};

void readAsStore(const Folder& folder, std::string_view bytes) {
  // The first half is the table, the second the stream.
  folder.write("dataN.vt", bytes.substr(0, bytes.size() / 2));
  folder.write("dataN.av", bytes.substr(bytes.size() / 2));
  Places places;
  places.ThuMuc = folder.path();
  Stores stores(places);
  ListeningItems items(stores);
  items.LapBangNghe();
  for (int item = 0; item <= ListeningItems::Count + 1; item += 37) {
    const ListeningTexts texts = items.textsAt(items.item(item).ViTri);
    OptionMask mask(texts.options, item % 5, static_cast<int>(texts.sentence.size()));
    for (int caret = -1; caret <= mask.lastCaret() + 1; ++caret) {
      const auto wrong = mask.takeWrong(caret);
      if (wrong && (wrong->from > caret || wrong->to < caret)) std::abort();
    }
  }
}

void readAsSource(std::string_view text) {
  pack::Problems problems;
  pack::ListeningSource source;
  source.page = pack::parseListeningPage(text, "page", problems);
  pack::Problems unitProblems;
  source.units[2] = pack::parseListeningUnit(text, "unit", unitProblems);
  if (!unitProblems.none() || source.units[2].size() > 500) return;
  source.page = pack::defaultListeningPage();
  const pack::TextStore store = pack::compileListeningItems(source);
  const pack::ListeningSource back = pack::decodeListening(
      store.positions, store.stream, pack::compileListeningPage(source.page), unitProblems);
  if (!unitProblems.none()) std::abort();
  if (pack::writeListeningUnit(back.units.at(2)) != pack::writeListeningUnit(source.units.at(2))) {
    std::abort();
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Folder folder;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  readAsStore(folder, bytes);
  readAsSource(bytes);
  return 0;
}
