#include "pack/import/StarDict.h"

#include "pack/Message.h"
#include "pack/PlainMarkup.h"
#include "pack/SourceFile.h"

#include <cstdint>
#include <optional>

namespace talvora::pack {

namespace {

constexpr std::string_view nameKey = "bookname=";
constexpr std::string_view kindsKey = "sametypesequence=";
constexpr std::string_view offsetKey = "idxoffsetbits=";
constexpr std::size_t shortNumber = 4;
constexpr std::size_t longNumber = 8;

/// What ".ifo" says.
struct Info {
  std::string name;
  std::string kinds; ///< of the parts of every entry; empty when each entry says them itself
  std::size_t offsetSize = shortNumber;
};

Info infoFrom(std::string_view text) {
  Info info;
  for (const SourceLine& line : linesOf(text)) {
    if (line.text.starts_with(nameKey)) info.name = line.text.substr(nameKey.size());
    if (line.text.starts_with(kindsKey)) info.kinds = line.text.substr(kindsKey.size());
    if (line.text == std::string(offsetKey) + "64") info.offsetSize = longNumber;
  }
  return info;
}

/// Reads numbers and words from the front of bytes.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : left_(bytes), whole_(bytes.size()) {}

  [[nodiscard]] bool atEnd() const noexcept { return left_.empty(); }
  [[nodiscard]] std::size_t offset() const noexcept { return whole_ - left_.size(); }

  /// Big-endian.
  std::optional<std::uint64_t> number(std::size_t size) {
    if (left_.size() < size) return std::nullopt;
    std::uint64_t value = 0;
    for (const char byte : left_.substr(0, size))
      value = value << 8U | static_cast<unsigned char>(byte);
    left_.remove_prefix(size);
    return value;
  }
  /// Up to a byte 0, which is passed.
  std::optional<std::string_view> word() {
    const std::size_t end = left_.find('\0');
    if (end == std::string_view::npos) return std::nullopt;
    return taken(end, 1);
  }
  std::optional<std::string_view> stretch(std::size_t size) {
    if (left_.size() < size) return std::nullopt;
    return taken(size, 0);
  }
  std::string_view rest() { return taken(left_.size(), 0); }

 private:
  std::string_view taken(std::size_t size, std::size_t end) {
    const std::string_view part = left_.substr(0, size);
    left_.remove_prefix(size + end);
    return part;
  }

  std::string_view left_;
  std::size_t whole_;
};

/// A part of an entry as plain text; empty for what is no text.
std::string textOfPart(char kind, std::string_view part) {
  switch (kind) {
  case 'm':
  case 'l':
  case 'n':
  case 'w':
    return std::string(part);
  case 't':
  case 'y':
    return part.empty() ? "" : "/" + std::string(part) + "/";
  case 'g':
  case 'h':
  case 'k':
  case 'x':
    return withoutMarkup(part);
  default:
    return {};
  }
}

bool isSized(char kind) {
  return kind >= 'A' && kind <= 'Z';
}

/// One part of an entry. The last one of an entry whose kinds are known has no end of its own.
std::optional<std::string_view> readPart(Bytes& entry, char kind, bool isLast) {
  if (isLast) return entry.rest();
  if (!isSized(kind)) {
    // An entry that was cut short ends with its part.
    const auto part = entry.word();
    return part ? part : entry.rest();
  }
  const auto size = entry.number(shortNumber);
  return size ? entry.stretch(static_cast<std::size_t>(*size)) : std::nullopt;
}

std::string textOfArticle(std::string_view article, const std::string& kinds) {
  Bytes entry(article);
  std::string text;
  const auto add = [&](char kind, bool isLast) {
    const auto part = readPart(entry, kind, isLast);
    if (!part) return false;
    const std::string plain = textOfPart(kind, *part);
    if (!text.empty() && !plain.empty()) text += '\n';
    text += plain;
    return true;
  };
  if (!kinds.empty()) {
    for (std::size_t place = 0; place < kinds.size(); ++place) {
      if (!add(kinds[place], place + 1 == kinds.size())) break;
    }
    return text;
  }
  while (!entry.atEnd()) {
    const char kind = entry.stretch(1)->front();
    if (!add(kind, false)) break;
  }
  return text;
}

class Reader {
 public:
  Reader(const StarDictFiles& files, Problems& problems)
      : files_(files), info_(infoFrom(files.info)),
        collector_(std::string(files.indexName), problems) {
    collector_.dictionary.name = info_.name;
  }

  ImportedDictionary read() {
    if (readIndex()) readSynonyms();
    return std::move(collector_.dictionary);
  }

 private:
  bool readIndex() {
    Bytes index(files_.index);
    while (!index.atEnd()) {
      const std::size_t start = index.offset();
      const auto head = index.word();
      const auto offset = head ? index.number(info_.offsetSize) : std::nullopt;
      const auto size = offset ? index.number(shortNumber) : std::nullopt;
      if (!size) {
        collector_.fail(start, said("the index ends within an entry"));
        return false;
      }
      if (*offset > files_.articles.size() || *size > files_.articles.size() - *offset) {
        collector_.fail(start, said("the entry \"{}\" lies outside the file of articles", *head));
        return false;
      }
      const auto article =
          files_.articles.substr(static_cast<std::size_t>(*offset),
                                 std::min(static_cast<std::size_t>(*size), LongestImportedEntry));
      if (!add(std::string(*head), textOfArticle(article, info_.kinds))) return false;
    }
    return true;
  }

  bool add(std::string head, std::string text) {
    texts_.push_back(text);
    if (text.empty()) ++collector_.dictionary.unread;
    return text.empty() || collector_.add(std::move(head), std::move(text));
  }

  void readSynonyms() {
    Bytes synonyms(files_.synonyms);
    while (!synonyms.atEnd()) {
      const std::size_t start = synonyms.offset();
      const auto head = synonyms.word();
      const auto number = head ? synonyms.number(shortNumber) : std::nullopt;
      if (!number || *number >= texts_.size()) {
        collector_.fail(start, said("the file of synonyms names an entry that is not there"));
        return;
      }
      const std::string& text = texts_[static_cast<std::size_t>(*number)];
      if (!text.empty() && !collector_.add(std::string(*head), text)) return;
    }
  }

  const StarDictFiles& files_;
  Info info_;
  EntryCollector collector_;
  std::vector<std::string> texts_; ///< by number, for the synonyms
};

} // namespace

ImportedDictionary readStarDict(const StarDictFiles& files, Problems& problems) {
  return Reader(files, problems).read();
}

} // namespace talvora::pack
