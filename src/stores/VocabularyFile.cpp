#include "stores/VocabularyFile.h"

#include "platform/Files.h"
#include "stores/Integers.h"

#include <utility>

namespace talvora {

namespace {

constexpr std::size_t RecordSize = VocabularyWord::LongestWord + IntegerSize;

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

std::string paddedWord(std::string word) {
  word.resize(VocabularyWord::LongestWord, ' ');
  return word;
}

std::vector<VocabularyWord> VocabularyFile::read() {
  const auto mapped = MappedFile::open(path_);
  auto bytes = mapped->bytes();
  std::vector<VocabularyWord> words;
  while (bytes.size() >= RecordSize) {
    words.push_back(wordFrom(bytes.first<RecordSize>()));
    bytes = bytes.subspan(RecordSize);
  }
  oddBytes_.assign(bytes.begin(), bytes.end());
  return words;
}

std::optional<std::string> VocabularyFile::write(const std::vector<VocabularyWord>& words) {
  std::vector<unsigned char> content;
  content.reserve(words.size() * RecordSize + oddBytes_.size());
  for (const VocabularyWord& word : words)
    append(content, word);
  content.insert(content.end(), oddBytes_.begin(), oddBytes_.end());
  return replaceFile(path_, content);
}

} // namespace talvora
