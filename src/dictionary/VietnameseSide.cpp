#include "dictionary/VietnameseSide.h"

#include "formats/PackFiles.h"
#include "platform/FatalFailure.h"
#include "surface/Looks.h"
#include "text/Text.h"
#include "text/Vietnamese.h"
#include "text/WordForm.h"

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

constexpr std::string_view NotFound = "?";
// Events are let run so often while the list loads: often enough for the eye, and no wait.
constexpr std::size_t LinesBetweenEvents = 1024;

// Lines end in CR LF, LF or CR.
std::vector<std::string_view> linesOf(std::string_view text, std::size_t most) {
  std::vector<std::string_view> lines;
  while (!text.empty() && lines.size() < most) {
    const auto end = text.find_first_of("\r\n");
    lines.push_back(text.substr(0, std::min(end, WordList::LongestWord)));
    if (end == std::string_view::npos) break;
    const bool pair = text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n';
    text.remove_prefix(end + (pair ? 2 : 1));
  }
  return lines;
}

/// The entry of a word, with the pronoun as a capital.
std::string withCapitalI(std::string entry, std::string_view word) {
  if (entry.size() < 2) return entry;
  const bool pronoun = entry[0] == 'i' && (entry[1] == '\'' || entry[1] == ' ');
  if (word == "i" || pronoun) entry[0] = 'I';
  return entry;
}

} // namespace

void VietnameseSide::NapTuD(EventLoop& events) {
  // The list is an extra: without it the program does everything else.
  try {
    file_ = stores_.hold(packfile::SideWords);
    for (const std::string_view line : linesOf(file_->text(), EntryCount)) {
      Chu_.push_back(line);
      if (Chu_.size() % LinesBetweenEvents == 0) events.letEventsRun();
    }
    ViTriNghia_.resize(Chu_.size());
    const RecordFile positions(stores_.hold(packfile::SidePositions));
    for (std::size_t index = 1; index < Chu_.size(); ++index) {
      ViTriNghia_[index] = positions.integer(static_cast<std::int64_t>(index));
    }
    events.letEventsRun();
  } catch (const FatalFailure&) {
    return;
  }
}

std::string_view VietnameseSide::wordAt(int index) const {
  const auto place = static_cast<std::size_t>(index);
  return place < Chu_.size() ? Chu_[place] : std::string_view();
}

VietnameseSide::Place VietnameseSide::find(const std::string& key) const {
  int low = 1;
  int high = EntryCount;
  while (high - low > 1) {
    const int middle = (low + high) / 2;
    const std::string word = ChuanHoaTu(wordAt(middle));
    if (key == word) return {middle, std::nullopt};
    // A list that ends early is searched as if what is missing stood behind every word.
    const bool before = static_cast<std::size_t>(middle) >= Chu_.size() || key < word;
    (before ? high : low) = middle;
  }
  return findBetween(low, high, key);
}

VietnameseSide::Place VietnameseSide::findBetween(int low, int high, const std::string& key) const {
  Place place;
  for (int index = low; index <= high && place.index == 0; ++index) {
    const std::string word = ChuanHoaTu(wordAt(index));
    if (key <= word) place.nearest = index;
    if (key == word) place.index = index;
  }
  return place;
}

VietnameseSide::Answer VietnameseSide::ask(std::string_view key) const {
  const std::string wanted = lower(key);
  if (wanted.empty()) return {std::string(NotFound), std::nullopt};
  const Place place = find(wanted);
  return {place.index != 0 ? entryAt(place.index) : std::string(NotFound), place.nearest};
}

void VietnameseSide::TimTuD(std::string_view key) {
  const Answer answer = ask(key);
  if (key.empty()) state_.atHand.drop();
  if (answer.nearest) lookUp_.settleAt(*answer.nearest);
  state_.atHand.takeSideEntry(answer.entry);
}

std::string VietnameseSide::entryAt(int index) const {
  std::string entry;
  PieceReader reader(stores_.fileOf(file::VietnameseSide),
                     ViTriNghia_[static_cast<std::size_t>(index)]);
  while (const auto piece = reader.next()) {
    if (*piece == "\r") break;
    entry += *piece;
  }
  return entry;
}

void VietnameseSide::HienTuD(Surface& surface) {
  const CurrentWord& word = state_.word;
  // Closing gives the caret back to where the last click or key left it, and keys may have gone on.
  state_.atHand.keepCaret(surface.SelStart());
  shell_.upward.DongNghia();
  if (controls_.RDOS.Top() == 0) shell_.hints.DatRDOS();
  state_.atHand.keepCaret(surface.SelStart());
  shell_.wordPick.ChonTu(surface);
  const std::string key = lower(word.TuHienTai);
  TimTuD(key);
  if (word.NghiaD.empty()) return;
  if (word.NghiaD == NotFound) state_.atHand.takeSideEntry("Không tìm thấy!"_x1);
  state_.atHand.takeSideEntry(withCapitalI(std::string(trim(word.NghiaD)), key));
  writeEntry();
  controls_.RDOS.SelStart(0);
  controls_.RDOS.Visible(true);
  speech_.DocTu(utteranceAtHand(state_));
}

void VietnameseSide::writeEntry() {
  Surface& RDOS = controls_.RDOS;
  RDOS.Text("");
  RDOS.SelAlignment(Alignment::Centred);
  RDOS.SelFontSize(state_.measures.CoChu);
  RDOS.SelColor(look::popup::Head);
  for (const char character : state_.word.NghiaD) {
    switch (character) {
    case '~':
      RDOS.SelColor(look::popup::Text);
      RDOS.SelText(' ');
      break;
    case '<':
      RDOS.SelText('<');
      RDOS.SelColor(look::popup::Class);
      break;
    case '>':
      RDOS.SelColor(look::popup::Text);
      RDOS.SelText('>');
      break;
    default:
      RDOS.SelText(character);
      break;
    }
  }
}

void VietnameseSide::DongTuD(Surface& surface) {
  if (state_.word.NghiaD.empty()) return;
  speech_.DungDoc();
  state_.atHand.dropSideEntry();
  controls_.RDOS.Visible(false);
  surface.SetFocus();
}

void VietnameseSide::showOnCtrl(int keyCode, int shift, Surface& surface) {
  if (keyCode == key::Ctrl && shift == shift::Ctrl && state_.word.NghiaD.empty()) HienTuD(surface);
}

void VietnameseSide::closeWithoutCtrl(int shift, Surface& surface) {
  if (shift != shift::Ctrl) DongTuD(surface);
}

void VietnameseSide::declare(Variables& variables) const {
  variables.add("TuD", [this] {
    VariableValue::Table table;
    for (int index = 0; index < TableSize; ++index) {
      const auto place = static_cast<std::size_t>(index);
      const int position = place < ViTriNghia_.size() ? ViTriNghia_[place] : 0;
      table.push_back(
          VariableValue::Record{{"Chu", std::string(wordAt(index))}, {"ViTriNghia", position}});
    }
    return VariableValue(std::move(table));
  });
}

} // namespace talvora
