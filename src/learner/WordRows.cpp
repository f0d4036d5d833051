#include "learner/WordRows.h"

#include "text/GlyphMap.h"
#include "text/Text.h"

#include <charconv>

namespace talvora {

namespace {

constexpr std::string_view FirstLine =
    "# Talvora: your words, each with the sentence it comes from";
constexpr std::string_view ReadingName = "reading";
constexpr std::string_view SpeakingName = "speaking";

enum Field { Word, Place, Pack, Kind, TextNumber, SentenceNumber, Title, Sentence, FieldCount };

bool isControl(char byte) {
  return static_cast<unsigned char>(byte) < ' ' || byte == '\x7F';
}

template <class Number>
bool readNumber(std::string_view digits, Number& number) {
  const char* const end = digits.data() + digits.size();
  const auto [behind, error] = std::from_chars(digits.data(), end, number);
  return error == std::errc() && behind == end;
}

} // namespace

std::string bytesOfReadable(std::string_view utf8) {
  std::string bytes;
  for (std::size_t at = 0; at < utf8.size();) {
    const auto letter = nextCodePoint(utf8, at);
    // Whoever edited the file with another program may have left anything in it.
    if (!letter) ++at;
    const char byte = letter ? x1Byte(*letter).value_or('?') : '?';
    bytes += isControl(byte) ? ' ' : byte;
  }
  return bytes;
}

std::string readableText(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) {
    if (isControl(byte)) {
      text += ' ';
    } else {
      appendUtf8(text, x1Letter(byte));
    }
  }
  return text;
}

std::string asWritten(std::string_view bytes) {
  return bytesOfReadable(readableText(bytes));
}

std::string lineOf(const WordRow& row) {
  const SentencePlace& where = row.where;
  const std::string_view kind = where.kind == TextKind::Speaking ? SpeakingName : ReadingName;
  std::string line = readableText(row.word);
  line += '\t' + std::to_string(where.place) + '\t' + row.pack + '\t' + std::string(kind);
  line += '\t' + std::to_string(where.text) + '\t' + std::to_string(where.sentence);
  return line + '\t' + readableText(where.title) + '\t' + readableText(where.words);
}

std::optional<WordRow> rowFrom(std::string_view line) {
  const auto fields = split(line, '\t');
  if (fields.size() != FieldCount) return std::nullopt;
  WordRow row;
  row.word = bytesOfReadable(fields[Word]);
  row.pack = fields[Pack];
  row.where.title = bytesOfReadable(fields[Title]);
  row.where.words = bytesOfReadable(fields[Sentence]);
  if (fields[Kind] == SpeakingName) {
    row.where.kind = TextKind::Speaking;
  } else if (fields[Kind] != ReadingName) {
    return std::nullopt;
  }
  const bool numbers = readNumber(fields[Place], row.where.place) &&
                       readNumber(fields[TextNumber], row.where.text) &&
                       readNumber(fields[SentenceNumber], row.where.sentence);
  if (!numbers || row.word.empty() || row.word.size() > VocabularyWord::LongestWord) {
    return std::nullopt;
  }
  return row;
}

std::string fileOf(const std::vector<WordRow>& rows) {
  std::string content = std::string(FirstLine) + '\n';
  for (const WordRow& row : rows)
    content += lineOf(row) + '\n';
  return content;
}

std::vector<WordRow> rowsFrom(std::string_view content) {
  std::vector<WordRow> rows;
  for (const std::string& line : split(content, '\n')) {
    if (auto row = rowFrom(line)) rows.push_back(std::move(*row));
  }
  return rows;
}

} // namespace talvora
