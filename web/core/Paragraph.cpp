#include "core/Paragraph.h"

#include "fronts/Units.h"

#include <algorithm>
#include <cmath>

namespace talvora::web {

namespace {

/// A trace of room that keeps letters apart which a face would draw as one.
constexpr Fine Apart = 3;

double twips(Fine fine) {
  return static_cast<double>(fine) / FinePerTwip;
}

Fine fine(double twips) {
  return static_cast<Fine>(twips * FinePerTwip);
}

bool isBlank(char16_t unit) {
  return unit == u' ' || unit == u'\t';
}

} // namespace

Paragraph::Paragraph(const Faces& faces, const ParagraphView& view, std::uint64_t serial)
    : faces_(faces), serial_(serial), bullet_(view.style.bullet) {
  takeText(view);
  measure();
  findBreaks();
  const double average = faces_.averageWidth(faceOf(view.defaultFont, false), //
                                             sizeOf(view.defaultFont));
  tab_ = std::max(FinePerTwip, fine(TabCharacters * average));
  breakLines(view);
  if (!widenTabs()) return;
  measure();
  breakLines(view);
}

void Paragraph::takeText(const ParagraphView& view) {
  for (std::size_t run = 0; run < view.runs.size(); ++run) {
    const auto from = static_cast<std::size_t>(view.runs[run].from);
    const auto to = run + 1 < view.runs.size() ? static_cast<std::size_t>(view.runs[run + 1].from)
                                               : view.text.size();
    const CharStyle& style = *view.runs[run].style;
    styles_.push_back(style);
    runs_.push_back({from, to, faceOf(style.font, style.italic), sizeOf(style.font)});
    units_ += unitsOf(view.text.substr(from, to - from), style.font.name);
  }
  hideSentenceMarks(units_);
  for (const char16_t unit : units_)
    numbers_.push_back(faces_.numberOf(unit));
  widened_.resize(units_.size());
}

void Paragraph::measure() {
  advances_.clear();
  for (const Run& run : runs_) {
    for (std::size_t at = run.from; at < run.to; ++at) {
      const bool last = at + 1 == run.to || units_[at + 1] == u'\t' || widened_[at] ||
                        widened_[at + 1] || units_[at] == u'\t';
      Fine advance = faces_.advance(run.face, run.size, numbers_[at]);
      if (!last) advance += faces_.kerning(run.face, run.size, numbers_[at], numbers_[at + 1]);
      advances_.push_back(advance + (widened_[at] ? tab_ / TabCharacters : Apart));
    }
  }
}

void Paragraph::findBreaks() {
  breaks_.assign(units_.size() + 1, false);
  std::size_t last = units_.size(); // the letter behind which blanks may stand; none yet
  bool blanks = false;
  for (std::size_t at = 0; at < units_.size(); ++at) {
    if (units_[at] == u' ') {
      blanks = true;
      continue;
    }
    // What shows nothing keeps to the letter ahead of it.
    const bool keepsTo = units_[at] == NothingToSee && !blanks;
    if (last < units_.size() && !keepsTo)
      breaks_[at] = faces_.mayBreak(numbers_[last], numbers_[at], blanks);
    if (last == units_.size() && blanks) breaks_[at] = true;
    if (!keepsTo) last = at;
    blanks = false;
  }
}

// -- Lines.

Fine Paragraph::tabWidthAt(Fine x) const {
  return (x / tab_ + 1) * tab_ - x;
}

/// By how much the ink of the letter ahead of an offset reaches beyond its pen.
Fine Paragraph::overhang(std::size_t behind) const {
  if (behind == 0) return 0;
  const Run& run = runAt(behind - 1);
  return std::max<Fine>(0, -faces_.rightBearing(run.face, run.size, numbers_[behind - 1]));
}

std::pair<std::size_t, Fine> Paragraph::lineFrom(std::size_t from, Fine room) {
  std::size_t end = from; // behind the last word that fits
  Fine width = 0;         // of the line up to there
  Fine blanks = 0;        // behind it
  std::size_t at = from;
  while (at < units_.size()) {
    if (units_[at] == u'\t') {
      if (at > from && width + blanks > room) return {end, width};
      width += blanks;
      advances_[at] = blanks = tabWidthAt(width);
      end = ++at;
      continue;
    }
    if (units_[at] == u' ') {
      blanks += advances_[at++];
      continue;
    }
    Fine word = 0;
    std::size_t behind = at;
    do
      word += advances_[behind++];
    while (behind < units_.size() && !isBlank(units_[behind]) && !breaks_[behind]);
    const bool fits = width + blanks + word + overhang(behind) <= room;
    if (!fits && at > from) return {at, width};
    if (!fits) {
      // A word that has no room on a line of its own is broken where the line ends.
      std::size_t cut = at;
      Fine taken = blanks;
      while (cut < behind && (cut == at || taken + advances_[cut] <= room))
        taken += advances_[cut++];
      if (cut < behind) return {cut, taken};
    }
    width += blanks + word;
    blanks = 0;
    end = at = behind;
  }
  return {units_.size(), width};
}

void Paragraph::breakLines(const ParagraphView& view) {
  const double start = TextMargin + view.style.indent;
  const double left = start + (bullet_ ? BulletIndent : 0);
  const bool centred = view.style.align == Alignment::Centred;
  const double right = centred ? TextMargin : TextMargin + ScrollMarkRoom;
  const Fine room = fine(std::max(1.0, view.width - right - left));
  bulletX_ = start + BulletIndent / 2.0;
  shape_ = {};
  placed_.clear();
  std::size_t from = 0;
  do {
    auto [to, width] = lineFrom(from, room);
    // Blanks at the end of a line belong to it.
    while (to < units_.size() && units_[to] == u' ')
      ++to;
    double x = left;
    if (centred) x += twips(room - width) / 2;
    if (view.style.align == Alignment::Right) x += twips(room - width);
    const int height = pitchOf(from, to);
    placed_.push_back({from, to, x});
    shape_.lines.push_back({static_cast<int>(from), shape_.height, height});
    shape_.height += height;
    from = to;
  } while (from < units_.size());
}

bool Paragraph::widenTabs() {
  bool any = false;
  for (std::size_t at = units_.find(u'\t', 1); at < units_.size();
       at = units_.find(u'\t', at + 1)) {
    if (advances_[at] >= tab_ / TabCharacters) continue;
    // Room behind the letter ahead of it pushes the tab past its stop, on to the next one.
    widened_[at - 1] = true;
    any = true;
  }
  return any;
}

int Paragraph::pitchOf(std::size_t from, std::size_t to) const {
  double ascent = 0;
  double descent = 0;
  double height = 0;
  for (const Run& run : runs_) {
    const bool inLine = run.from < std::max(to, from + 1) && (run.to > from || units_.empty());
    if (!inLine) continue;
    ascent = std::max(ascent, faces_.ascent(run.face, run.size));
    descent = std::max(descent, faces_.descent(run.face, run.size));
    height = std::max(height, faces_.lineHeight(run.face, run.size));
  }
  return static_cast<int>(std::ceil(std::max(height, std::ceil(ascent + descent))));
}

// -- Places.

const Paragraph::Run& Paragraph::runAt(std::size_t offset) const {
  auto run = runs_.begin();
  while (run + 1 != runs_.end() && run->to <= offset)
    ++run;
  return *run;
}

std::size_t Paragraph::lineOf(std::size_t offset) const {
  std::size_t line = 0;
  while (line + 1 < placed_.size() && placed_[line + 1].from <= offset)
    ++line;
  return line;
}

double Paragraph::penAt(const Placed& line, std::size_t offset) const {
  Fine width = 0;
  for (std::size_t at = line.from; at < std::min(offset, line.to); ++at)
    width += advances_[at];
  return line.left + twips(width);
}

CaretPlace Paragraph::placeOf(int offset) const {
  const auto inside =
      static_cast<std::size_t>(std::clamp(offset, 0, static_cast<int>(units_.size())));
  const std::size_t number = lineOf(inside);
  const LineShape& line = shape_.lines[number];
  return {static_cast<int>(std::lround(penAt(placed_[number], inside))), line.top, line.height};
}

int Paragraph::offsetAt(int x, int y) const {
  std::size_t number = 0;
  while (number + 1 < shape_.lines.size() && shape_.lines[number + 1].top <= y)
    ++number;
  const Placed& line = placed_[number];
  // The caret behind a broken line's last character stands on the next line already.
  const bool lastLine = number + 1 == placed_.size();
  const std::size_t last = lastLine ? units_.size() : std::max(line.from, line.to - 1);
  double pen = line.left;
  for (std::size_t at = line.from; at < last; ++at) {
    const double next = pen + twips(advances_[at]);
    if (x < (pen + next) / 2) return static_cast<int>(at);
    pen = next;
  }
  return static_cast<int>(last);
}

double Paragraph::width() const {
  double width = 0;
  for (const Placed& line : placed_)
    width = std::max(width, penAt(line, line.to) - line.left);
  return width;
}

std::vector<Box> Paragraph::rectsOf(int from, int to) const {
  std::vector<Box> boxes;
  for (std::size_t number = 0; number < placed_.size(); ++number) {
    const Placed& line = placed_[number];
    const std::size_t first = std::max(static_cast<std::size_t>(from), line.from);
    const std::size_t last = std::min(static_cast<std::size_t>(to), line.to);
    if (first >= last) continue;
    const double left = penAt(line, first);
    const LineShape& shape = shape_.lines[number];
    boxes.push_back({left, static_cast<double>(shape.top), penAt(line, last) - left,
                     static_cast<double>(shape.height)});
  }
  return boxes;
}

std::vector<std::pair<int, int>> Paragraph::rangesIn(Colour colour) const {
  std::vector<std::pair<int, int>> ranges;
  for (std::size_t run = 0; run < runs_.size(); ++run) {
    if (styles_[run].color != colour) continue;
    std::size_t end = runs_[run].to;
    while (end > runs_[run].from && isBlank(units_[end - 1]))
      --end;
    if (end > runs_[run].from)
      ranges.emplace_back(static_cast<int>(runs_[run].from), static_cast<int>(end));
  }
  return ranges;
}

// -- For the page.

std::vector<PaintedRun> Paragraph::runsOf(std::size_t line) const {
  std::vector<PaintedRun> painted;
  const Placed& place = placed_[line];
  for (std::size_t run = 0; run < runs_.size(); ++run) {
    const std::size_t to = std::min(runs_[run].to, place.to);
    PaintedRun part{{}, &styles_[run], runs_[run].face, runs_[run].size, 0};
    for (std::size_t at = std::max(runs_[run].from, place.from); at < to; ++at) {
      const char16_t unit = units_[at];
      if (unit == u'\t' || widened_[at]) {
        if (!part.text.empty()) painted.push_back(part);
        const bool tab = unit == u'\t';
        part.text = tab ? u' ' : unit;
        part.tab = twips(advances_[at]);
        painted.push_back(part);
        part.text.clear();
        part.tab = 0;
      } else if (unit != NoWidth && unit != JoinsWords && unit != NothingToSee) {
        part.text += unit;
      }
    }
    if (!part.text.empty()) painted.push_back(part);
  }
  return painted;
}

Box Paragraph::bulletBox() const {
  const LineShape& line = shape_.lines.front();
  const double radius = line.height * BulletRadius;
  return {bulletX_ - radius, line.top + line.height * 0.55 - radius, 2 * radius, 2 * radius};
}

} // namespace talvora::web
