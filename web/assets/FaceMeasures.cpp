#include "FaceMeasures.h"

#include "desktop/Fonts.h"
#include "text/GlyphMap.h"

#include <QDataStream>
#include <QFontMetricsF>
#include <QRawFont>
#include <QTextBoundaryFinder>

#include <array>
#include <cmath>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace talvora {

namespace {

/// One of a kind for each face, in the order of `Face` in web/core/Faces.h.
struct FaceSample {
  const char* font;
  double size; ///< points: a title is bold, a page of the large class semibold
  bool bold;
  bool italic;
};
constexpr std::array<FaceSample, 7> samples = {{
    {"x1", 12, false, false},
    {"x1", 12, true, false},
    {"x1", 24, true, false},
    {"x1", 12, false, true},
    {"x1", 12, true, true},
    {"Vni-centur", 12, false, false},
    {"Vni-centur", 12, true, false},
}};

constexpr char16_t NoWidth = u'\u200B';
constexpr char16_t JoinsWords = u'\u2060';
constexpr char16_t NothingToSee = u'\u200D';

/// Every letter that any byte or pair of bytes shows, in the order of its number.
std::set<char16_t> allLetters() {
  std::set<char16_t> letters = {NoWidth, JoinsWords, NothingToSee};
  for (int first = ' '; first < 0x100; ++first) {
    const std::string one(1, static_cast<char>(first));
    for (const Encoding encoding : {Encoding::X1, Encoding::Windows1252, Encoding::Vni})
      letters.insert(toUnicode(one, encoding).front());
    for (int second = ' '; second < 0x100; ++second) {
      const std::u16string pair = toUnicode(one + static_cast<char>(second), Encoding::Vni);
      if (pair.size() == 1) letters.insert(pair.front());
    }
  }
  letters.erase(u'\0');
  return letters;
}

std::int16_t rounded(double value) {
  return static_cast<std::int16_t>(std::lround(value));
}

/// The number of each row among the rows that differ, and those.
std::vector<std::vector<std::int16_t>> differing(const std::vector<std::vector<std::int16_t>>& rows,
                                                 std::vector<quint16>& numbers) {
  std::map<std::vector<std::int16_t>, quint16> known;
  std::vector<std::vector<std::int16_t>> different;
  for (const std::vector<std::int16_t>& row : rows) {
    const auto [entry, isNew] = known.try_emplace(row, static_cast<quint16>(different.size()));
    if (isNew) different.push_back(row);
    numbers.push_back(entry->second);
  }
  return different;
}

std::vector<std::vector<std::int16_t>> turned(const std::vector<std::vector<std::int16_t>>& rows) {
  std::vector<std::vector<std::int16_t>> columns(rows.front().size());
  for (const std::vector<std::int16_t>& row : rows) {
    for (std::size_t at = 0; at < row.size(); ++at)
      columns[at].push_back(row[at]);
  }
  return columns;
}

/// A value for each pair of letters. Letters that are alike in it share a row or a column.
void writePairs(QDataStream& out, const std::vector<std::vector<std::int16_t>>& rows) {
  std::vector<quint16> rowNumbers;
  std::vector<quint16> columnNumbers;
  const auto fewRows = differing(rows, rowNumbers);
  const auto few = turned(differing(turned(fewRows), columnNumbers));
  for (const std::vector<quint16>& numbers : {rowNumbers, columnNumbers}) {
    for (const quint16 number : numbers)
      out << number;
  }
  out << static_cast<quint16>(few.size()) << static_cast<quint16>(few.front().size());
  for (const std::vector<std::int16_t>& row : few) {
    for (const std::int16_t value : row)
      out << value;
  }
}

class FaceWriter {
 public:
  FaceWriter(QDataStream& out, const FaceSample& sample, const std::set<char16_t>& letters)
      : out_(out), letters_(letters) {
    CharStyle style;
    style.font = {sample.font, sample.size, sample.bold};
    style.italic = sample.italic;
    font_ = fontFor(style);
    const QRawFont face = QRawFont::fromFont(font_);
    unitsPerEm_ = rounded(face.unitsPerEm());
    font_.setPixelSize(unitsPerEm_);
    // Letters that keep apart are not joined into one, and a whole unit is taken out again.
    font_.setLetterSpacing(QFont::AbsoluteSpacing, 1);
  }

  void write() {
    const QFontMetricsF metrics(font_);
    out_ << unitsPerEm_ << rounded(metrics.ascent()) << rounded(metrics.descent())
         << rounded(metrics.averageCharWidth());
    for (const char16_t letter : letters_) {
      const bool shows = letter != NoWidth && letter != JoinsWords && letter != NothingToSee;
      out_ << (shows ? advanceOf(QString(QChar(letter))) : std::int16_t{0})
           << (shows ? rounded(metrics.rightBearing(QChar(letter))) : std::int16_t{0});
    }
    writeKerning();
  }

 private:
  [[nodiscard]] std::int16_t advanceOf(const QString& text) const {
    return rounded(QFontMetricsF(font_).horizontalAdvance(text) - static_cast<double>(text.size()));
  }

  void writeKerning() {
    std::vector<std::vector<std::int16_t>> rows;
    for (const char16_t left : letters_) {
      std::vector<std::int16_t>& row = rows.emplace_back();
      const std::int16_t first = advanceOf(QString(QChar(left)));
      for (const char16_t right : letters_) {
        const int apart = first + advanceOf(QString(QChar(right)));
        const int together = advanceOf(QString(QChar(left)) + QChar(right));
        row.push_back(static_cast<std::int16_t>(together - apart));
      }
    }
    writePairs(out_, rows);
  }

  QDataStream& out_;
  const std::set<char16_t>& letters_;
  QFont font_;
  std::int16_t unitsPerEm_ = 0;
};

/// Whether a line may break ahead of the last letter of a text.
bool breaksAhead(const QString& text) {
  QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
  finder.setPosition(text.size() - 1);
  return finder.isAtBoundary();
}

/// Two bits for each pair of letters: whether a line may break between them, and whether it may
/// when there are blanks between them.
void writeBreaks(QDataStream& out, const std::set<char16_t>& letters) {
  std::vector<std::vector<std::int16_t>> rows;
  for (const char16_t left : letters) {
    std::vector<std::int16_t>& row = rows.emplace_back();
    for (const char16_t right : letters) {
      const bool close = breaksAhead(QString(QChar(left)) + QChar(right));
      const bool apart = breaksAhead(QString(QChar(left)) + u' ' + QChar(right));
      row.push_back(static_cast<std::int16_t>((close ? 1 : 0) | (apart ? 2 : 0)));
    }
  }
  writePairs(out, rows);
}

} // namespace

QByteArray faceMeasures() {
  QByteArray bytes;
  QDataStream out(&bytes, QIODevice::WriteOnly);
  out.setByteOrder(QDataStream::LittleEndian);
  const std::set<char16_t> letters = allLetters();
  out << static_cast<quint16>(letters.size());
  for (const char16_t letter : letters)
    out << static_cast<quint16>(letter);
  writeBreaks(out, letters);
  for (const FaceSample& sample : samples)
    FaceWriter(out, sample, letters).write();
  return bytes;
}

} // namespace talvora
