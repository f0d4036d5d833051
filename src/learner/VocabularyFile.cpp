#include "learner/VocabularyFile.h"

#include "formats/Integers.h"
#include "platform/Files.h"
#include "text/Text.h"

#include <utility>

namespace talvora {

namespace {

constexpr std::size_t RecordSize = VocabularyWord::RecordSize;
static_assert(RecordSize == VocabularyWord::LongestWord + IntegerSize);

VocabularyWord wordFrom(std::span<const unsigned char, RecordSize> record) {
  return {std::string(record.begin(), record.begin() + VocabularyWord::LongestWord),
          integerAt(record.data() + VocabularyWord::LongestWord)};
}

void append(std::vector<unsigned char>& content, const VocabularyWord& word) {
  const std::string padded = paddedWord(word.Tu);
  content.insert(content.end(), padded.begin(), padded.end());
  const auto position = bytesOf(word.ViTriCauTu);
  content.insert(content.end(), position.begin(), position.end());
}

} // namespace

std::string VocabularyWord::word() const {
  return std::string(trim(Tu));
}

std::string paddedWord(std::string word) {
  word.resize(VocabularyWord::LongestWord, ' ');
  return word;
}

VocabularyContent vocabularyFrom(std::span<const unsigned char> bytes) {
  VocabularyContent content;
  while (bytes.size() >= RecordSize) {
    content.words.push_back(wordFrom(bytes.first<RecordSize>()));
    bytes = bytes.subspan(RecordSize);
  }
  content.oddBytes.assign(bytes.begin(), bytes.end());
  return content;
}

std::optional<std::vector<VocabularyWord>> VocabularyFile::read(std::error_code& error) {
  const auto bytes = readWhole(files_, path_, error);
  if (!bytes) return std::nullopt;
  VocabularyContent content = vocabularyFrom(*bytes);
  oddBytes_ = std::move(content.oddBytes);
  return std::move(content.words);
}

std::optional<std::string> VocabularyFile::write(const std::vector<VocabularyWord>& words) {
  std::vector<unsigned char> content;
  content.reserve(words.size() * RecordSize + oddBytes_.size());
  for (const VocabularyWord& word : words)
    append(content, word);
  if (keepsOddBytes_) content.insert(content.end(), oddBytes_.begin(), oddBytes_.end());
  return replaceFile(files_, path_, content);
}

} // namespace talvora
