// Any bytes as a text, as subtitles, as a book, and as the file that the program opens: sentences
// keep within their length, and no position leads out of the stream.
#include "pack/texts/BroughtText.h"
#include "pack/texts/SentenceCutter.h"
#include "platform/Files.h"
#include "stores/OwnTexts.h"
#include "stores/Stores.h"
#include "tests/support/TemporaryFolder.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace talvora;

void require(bool holds) {
  if (!holds) std::abort();
}

void examine(const std::vector<pack::BroughtChapter>& chapters) {
  for (const pack::BroughtChapter& chapter : chapters) {
    for (const std::string& paragraph : chapter.paragraphs) {
      for (const std::string& sentence : pack::sentencesIn(paragraph))
        require(!sentence.empty() && sentence.size() <= pack::LongestOwnSentence);
    }
  }
}

void examineFile(std::span<const unsigned char> bytes) {
  static const test::TemporaryFolder folder;
  static const std::string path = folder.path().string();
  if (replaceFile(systemFiles(), path + "/" + std::string(OwnTextsFile), bytes)) return;
  const auto empty = std::make_shared<const MappedFile>(std::vector<unsigned char>(12));
  const TextFiles texts = withOwnTexts({empty, empty, 1}, path, systemFiles());
  const RecordFile positions(texts.positions);
  for (int record = 2; texts.texts > 1 && record <= 2 * texts.texts + 1; ++record) {
    const auto position = positions.integer(record);
    require(position >= 0 && static_cast<std::size_t>(position) <= texts.stream->bytes().size());
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  pack::Problems problems;
  examine(pack::chaptersOfPlainText(text));
  examine(pack::chaptersOfSubtitles(text, "a.srt", problems));
  examine(pack::chaptersOfBook(text, "a.epub", problems));
  examineFile({data, size});
  return 0;
}
