// Plain text and subtitles.
#include "pack/Message.h"
#include "pack/PlainMarkup.h"
#include "pack/SourceFile.h"
#include "pack/texts/BroughtText.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <optional>

namespace talvora::pack {

namespace {

/// A pause of so many milliseconds begins a paragraph.
constexpr std::int64_t longPause = 3000;
constexpr std::string_view arrow = " --> ";

struct Span {
  std::int64_t from = 0; ///< ms
  std::int64_t to = 0;
};

/// "00:01:02,345" in milliseconds.
std::optional<std::int64_t> momentOf(std::string_view text) {
  constexpr std::size_t longest = 20;
  int hours = 0;
  int minutes = 0;
  int seconds = 0;
  int thousandths = 0;
  const std::string moment(trim(text.substr(0, longest)));
  if (std::sscanf(moment.c_str(), "%3d:%2d:%2d%*1[,.]%3d", &hours, &minutes, &seconds,
                  &thousandths) != 4)
    return std::nullopt;
  return ((std::int64_t{hours} * 60 + minutes) * 60 + seconds) * 1000 + thousandths;
}

std::optional<Span> spanOf(std::string_view line) {
  const std::size_t at = line.find(arrow);
  if (at == std::string_view::npos) return std::nullopt;
  const auto from = momentOf(line.substr(0, at));
  const auto to = momentOf(line.substr(at + arrow.size()));
  if (!from || !to) return std::nullopt;
  return Span{*from, *to};
}

bool isNumber(std::string_view line) {
  return !line.empty() && std::all_of(line.begin(), line.end(),
                                      [](char each) { return each >= '0' && each <= '9'; });
}

void appendLine(std::string& paragraph, std::string_view line) {
  if (!paragraph.empty()) paragraph += ' ';
  paragraph += line;
}

std::vector<std::string> paragraphsOf(const std::vector<SourceLine>& lines) {
  const bool hasGaps = std::any_of(lines.begin(), lines.end(), [&](const SourceLine& line) {
    const bool isInside = line.number > 1 && line.number < static_cast<int>(lines.size());
    return isInside && trim(line.text).empty();
  });
  std::vector<std::string> paragraphs(1);
  for (const SourceLine& line : lines) {
    const std::string_view text = trim(line.text);
    if (text.empty() || !hasGaps) paragraphs.emplace_back();
    if (!text.empty()) appendLine(paragraphs.back(), text);
  }
  std::erase(paragraphs, std::string());
  return paragraphs;
}

/// Collects what is said.
class Subtitles {
 public:
  Subtitles(const std::string& file, Problems& problems) : file_(file), problems_(problems) {}

  void read(const SourceLine& line) {
    const std::string_view text = trim(line.text);
    if (text.empty()) {
      inside_ = false;
    } else if (const auto span = spanOf(text)) {
      begin(*span);
    } else if (inside_) {
      appendLine(chapter_.paragraphs.back(), trim(withoutMarkup(text)));
    } else if (!isNumber(text) && problems_.none()) {
      problems_.add({file_, line.number, 1}, said("this line belongs to no subtitle"));
    }
  }

  std::vector<BroughtChapter> finish() {
    std::erase(chapter_.paragraphs, std::string());
    return {std::move(chapter_)};
  }

 private:
  void begin(const Span& span) {
    const bool isNew = chapter_.paragraphs.empty() || span.from - last_ >= longPause;
    if (isNew) chapter_.paragraphs.emplace_back();
    last_ = span.to;
    inside_ = true;
  }

  const std::string& file_;
  Problems& problems_;
  BroughtChapter chapter_;
  std::int64_t last_ = 0; ///< ms at which the last subtitle ends
  bool inside_ = false;
};

} // namespace

std::vector<BroughtChapter> chaptersOfPlainText(std::string_view text) {
  return {{"", paragraphsOf(linesOf(text))}};
}

std::vector<BroughtChapter> chaptersOfSubtitles(std::string_view text, const std::string& file,
                                                Problems& problems) {
  Subtitles subtitles(file, problems);
  for (const SourceLine& line : linesOf(text))
    subtitles.read(line);
  return subtitles.finish();
}

} // namespace talvora::pack
