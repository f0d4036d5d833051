#include "learner/TextCatalogue.h"

#include "formats/PackFiles.h"
#include "stores/OwnTexts.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace talvora {

namespace {

constexpr std::uint64_t HashStart = 14695981039346656037ULL;
constexpr std::uint64_t HashFactor = 1099511628211ULL;

std::uint64_t mixed(std::uint64_t hash, std::uint64_t value) {
  hash = (hash ^ value) * HashFactor;
  // A product carries nothing to its lower half.
  return hash ^ (hash >> 32);
}

// Eight bytes in one step: the start waits for this.
std::uint64_t hashed(std::uint64_t hash, std::span<const unsigned char> bytes) {
  // Where one file ends and the next begins counts too.
  hash = mixed(hash, bytes.size());
  while (!bytes.empty()) {
    std::uint64_t word = 0;
    const std::size_t step = std::min(bytes.size(), sizeof word);
    std::memcpy(&word, bytes.data(), step);
    hash = mixed(hash, word);
    bytes = bytes.subspan(step);
  }
  return hash;
}

RecordFile opened(const std::string& pack, std::string_view name, FileSystem& files) {
  return RecordFile(MappedFile::open(pathBelow(pack, name), files));
}

} // namespace

std::string sentenceAt(const RecordFile& stream, std::int64_t record) {
  std::string sentence;
  PieceReader reader(stream, record);
  while (const auto piece = reader.next()) {
    // One byte can hold two marks.
    if (piece->front() == '_' || *piece == "`" || *piece == "@" || *piece == "\r") break;
    if (*piece == "\t") continue;
    sentence += *piece == "|" ? " " : *piece;
  }
  return sentence;
}

TextCatalogue::TextCatalogue(const Stores& stores)
    : reading_{stores.fileOf(file::TextPositions).quiet(), stores.fileOf(file::Texts).quiet(),
               stores.readingTexts()},
      speaking_{stores.fileOf(file::SpeakingPositions).quiet(),
                stores.fileOf(file::SpeakingTexts).quiet(), Stores::SpeakingTexts} {}

TextCatalogue::TextCatalogue(const std::string& pack, const std::string& learner, FileSystem& files)
    : speaking_{opened(pack, packfile::SpeakingPositions, files),
                opened(pack, packfile::SpeakingTexts, files), Stores::SpeakingTexts} {
  TextFiles texts = withOwnTexts(
      {MappedFile::open(pathBelow(pack, packfile::ReadingPositions), files),
       MappedFile::open(pathBelow(pack, packfile::ReadingTexts), files), Stores::ReadingTexts},
      learner, files);
  reading_ = {RecordFile(std::move(texts.positions)), RecordFile(std::move(texts.stream)),
              texts.texts};
}

std::string TextCatalogue::fingerprint() const {
  if (!fingerprint_.empty()) return fingerprint_;
  std::uint64_t hash = HashStart;
  for (const Store* each : {&reading_, &speaking_}) {
    hash = hashed(hash, each->positions.bytes());
    hash = hashed(hash, each->stream.bytes());
    // Of the texts that were gone through few are opened.
    each->stream.letMemoryGo();
  }
  std::array<char, 17> digits{};
  std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(hash));
  fingerprint_ = digits.data();
  return fingerprint_;
}

std::string TextCatalogue::listLine(TextKind kind, int text) const {
  const Store& from = store(kind);
  std::string indent = "\t\t";
  std::string line;
  PieceReader reader(from.stream, std::int64_t{from.positions.integer(text)} + 1);
  while (const auto piece = reader.next()) {
    if (*piece == "\r") break;
    if (*piece == "*") indent.clear();
    line += *piece == "|" ? " " : *piece;
  }
  return indent + line + '\r';
}

std::string TextCatalogue::titleOf(TextKind kind, int text) const {
  std::string title = listLine(kind, text);
  std::erase(title, '\t');
  title.pop_back();
  return title;
}

// The title has no translation, but a mark stands ahead of that of every sentence.
std::string TextCatalogue::translationOf(const SentencePlace& sentence) const {
  const Store& from = store(sentence.kind);
  const int record = textsOf(sentence.kind) + sentence.text;
  PieceReader reader(from.stream, std::int64_t{from.positions.integer(record)} + 1);
  int number = 1;
  std::string translation;
  while (const auto piece = reader.next()) {
    if (*piece == "@") break;
    for (const char character : *piece) {
      const bool isMark = character == '_' || character == '`';
      if (isMark) ++number;
      if (isMark || number != sentence.sentence) continue;
      translation += character == '\r' ? ' ' : character;
    }
    if (number > sentence.sentence) break;
  }
  return translation;
}

std::vector<SentencePlace> TextCatalogue::sentencesOf(TextKind kind, int text) const {
  const Store& from = store(kind);
  const std::string title = titleOf(kind, text);
  std::vector<SentencePlace> sentences;
  PieceReader reader(from.stream, std::int64_t{from.positions.integer(text)} + 1);
  const auto begin = [&](std::int64_t record) {
    const auto place = static_cast<std::int32_t>(record);
    sentences.push_back({kind, text, static_cast<int>(sentences.size()) + 1, title,
                         sentenceAt(from.stream, record),
                         kind == TextKind::Speaking ? -place : place});
  };
  begin(reader.nextRecord());
  while (const auto piece = reader.next()) {
    if (*piece == "@") break;
    const bool full = sentences.size() == CurrentText::MaxFileMarks;
    if ((*piece == "_" || *piece == "`") && !full) begin(reader.nextRecord());
  }
  return sentences;
}

std::optional<SentencePlace> TextCatalogue::at(std::int32_t place) const {
  if (place == 0) return std::nullopt;
  const TextKind kind = place < 0 ? TextKind::Speaking : TextKind::Reading;
  const std::int64_t record = std::abs(std::int64_t{place});
  // The text whose beginning lies nearest ahead of the place.
  int text = 0;
  std::int64_t nearest = -1;
  for (int each = 1; each <= textsOf(kind); ++each) {
    const std::int64_t start = store(kind).positions.integer(each);
    if (start >= record || start <= nearest) continue;
    nearest = start;
    text = each;
  }
  if (text == 0) return std::nullopt;
  for (SentencePlace& sentence : sentencesOf(kind, text)) {
    if (sentence.place == place) return std::move(sentence);
  }
  return std::nullopt;
}

std::vector<SentencePlace> TextCatalogue::all() const {
  std::vector<SentencePlace> sentences;
  for (const TextKind kind : {TextKind::Reading, TextKind::Speaking}) {
    for (int text = 1; text <= textsOf(kind); ++text) {
      for (SentencePlace& each : sentencesOf(kind, text))
        sentences.push_back(std::move(each));
    }
  }
  return sentences;
}

} // namespace talvora
