#include "reading/TuVungChon.h"

#include "surface/Looks.h"
#include "surface/SectionNumbers.h"
#include "text/CharClass.h"
#include "text/Text.h"
#include "text/Vietnamese.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

namespace talvora {

bool CoSoVaChu(std::string_view text) {
  constexpr CharClass digits("[0-9]");
  constexpr CharClass smallLetters("[a-z]");
  const auto holds = [text](const CharClass& wanted) {
    return std::any_of(text.begin(), text.end(), [&](char each) { return wanted.has(each); });
  };
  // The tab tells a row's number from a digit of the word itself.
  return text.find('\t') != std::string_view::npos && holds(digits) && holds(smallLetters);
}

TuVungChon::TuVungChon(ReadingControls& controls, SharedState& state, Stores& stores, Shell& shell,
                       PageServices services, ReadingText& text, LearnerWords& words)
    : controls_(controls), state_(state), stores_(stores), shell_(shell), services_(services),
      text_(text), words_(words) {
  wireEvents();
  addToShell();
}

// -- The list in memory and on disk.

void TuVungChon::NapTuVung() {
  // What could not be written stays here until it can.
  if (DaDoiTuVung_) return;
  if (auto words = words_.read()) {
    TuVung_ = std::move(*words);
  } else if (!TuVung_.empty()) {
    store();
  }
}

void TuVungChon::LuuTuVung() {
  keep();
  tellOfProblem();
}

void TuVungChon::keep() {
  if (DaDoiTuVung_) store();
}

void TuVungChon::store() {
  DaDoiTuVung_ = words_.write(TuVung_).has_value();
}

// Where nothing could be stored from the start, that has been told.
void TuVungChon::tellOfProblem() {
  if (!DaDoiTuVung_ || !words_.storing()) return;
  shell_.messages.tell(
      "Chưa ghi được từ vựng vào đĩa. Chương trình giữ các từ và sẽ ghi lại sau."_x1);
}

bool TuVungChon::CoTuVung() {
  const std::string wanted = lower(state_.word.TuHienTai);
  for (VocabularyWord& each : TuVung_) {
    const std::string word(trim(each.Tu));
    each.Tu = paddedWord(word);
    if (lower(word) != wanted) continue;
    TuVungDangXem_ = each;
    return true;
  }
  return false;
}

void TuVungChon::ThemTuVung() {
  const std::string& word = state_.word.TuHienTai;
  if (word.empty()) return;
  if (word.size() > VocabularyWord::LongestWord) {
    shell_.messages.wordTaken(word, WordTaken::TooLong, SoTuVung());
    return;
  }
  if (CoTuVung()) {
    shell_.messages.wordTaken(word, WordTaken::WasThere, SoTuVung());
    return;
  }
  DaDoiTuVung_ = true;
  // The sentence's translation becomes the message at hand; that is meant.
  const int k = text_.CauTaiViTri(state_.word.ViTriCaret + 1);
  state_.atHand.showInstead(text_.translationOf(k));
  const std::int32_t place = state_.text.ViTriCauTrongFile.at(static_cast<std::size_t>(k - 1));
  const bool speaking = stores_.FileChiSo == file::SpeakingPositions;
  TuVung_.push_back(
      {paddedWord(word.front() == 'I' ? word : lower(word)), speaking ? -place : place});
  words_.noteAdded(TuVung_.back());
  shell_.messages.wordTaken(word, WordTaken::Stored, SoTuVung());
}

// -- The section.

void TuVungChon::open() {
  Surface& Rchon = controls_.Rchon;
  Rchon.BackColor(look::ListPaper);
  stores_.ChonKho(file::TextPositions);
  ensureListBuilt();
  if (TuVung_.empty()) {
    shell_.messages.ThongBao("Bạn chưa chọn từ vựng trong bài đọc."_x1, 2000);
    leaveList();
    return;
  }
  state_.atHand.enterPage();
  controls_.RHD.FontBold(false);
  Rchon.Text("");
  Rchon.FontSize(state_.measures.CoChu - 1);
  shell_.transitions.MoRan(Rchon, controls_.Frame1);
  HienTuVung();
  state_.atHand.drop();
  Rchon.SetFocus();
  state_.atHand.keepCaret(Rchon.SelStart());
  shell_.gestures.remindOnFirstOpening(state_.places.MucMenu, Rchon);
}

void TuVungChon::HienTuVung() {
  std::string& list = state_.text.CauHoi;
  list.clear();
  for (int row = 1; row <= SoTuVung(); ++row) {
    list += std::to_string(row) + "\t\t";
    list += trim(TuVung_[static_cast<std::size_t>(row - 1)].Tu);
    list += '\r';
  }
  Surface& Rchon = controls_.Rchon;
  Rchon.Text("");
  Rchon.SelColor(look::Body);
  Rchon.SelBold(state_.measures.largeScreen());
  Rchon.SelText(list);
  Rchon.SelStart(0);
}

void TuVungChon::ExitRChon() {
  state_.atHand.dropEntry();
  if (controls_.RHD.Visible()) shell_.upward.DongNghia();
  leaveList();
  shell_.transitions.DongRan(controls_.Rchon, controls_.Frame1);
  controls_.Frame2.Visible(false);
  controls_.Frame3.Visible(false);
  state_.atHand.endPick();
  controls_.but(section::Vocabulary).SetFocus();
}

void TuVungChon::leaveList() {
  controls_.R1.Visible(false);
  controls_.R1.Top(state_.measures.parkedTop());
  forgetList();
}

// -- Rows.

int TuVungChon::rowOf(int caret) const {
  return controls_.Rchon.GetLineFromChar(std::max(caret, 1)) + 1;
}

void TuVungChon::ChonDongChon() {
  Surface& Rchon = controls_.Rchon;
  const int row = rowOf(Rchon.SelStart());
  if (row > SoTuVung()) {
    state_.atHand.drop();
    TuVungDangXem_ = {};
    return;
  }
  TuVungDangXem_ = TuVung_[static_cast<std::size_t>(row - 1)];
  const std::string word(trim(TuVungDangXem_.Tu));
  const std::string& list = state_.text.CauHoi;
  // A caret on a line end belongs to the line behind it.
  auto from = static_cast<std::size_t>(std::max(Rchon.SelStart(), 1));
  if (from <= list.size() && list[from - 1] == '\r') ++from;
  const auto lineEnd = list.find('\r', from - 1);
  if (lineEnd == std::string::npos) return;
  const int caret = static_cast<int>(lineEnd - word.size());
  Rchon.SelStart(caret);
  state_.atHand.keepCaret(caret);
  Rchon.SelLength(static_cast<int>(word.size()));
  state_.atHand.take(word);
}

void TuVungChon::TraTuVung() {
  shell_.upward.DongNghia();
  state_.atHand.dropEntry();
  state_.atHand.endPick();
  controls_.Rchon.SelStart(state_.word.ViTriCaret);
  ChonDongChon();
  services_.dictionary.TraTu();
  ChonDongChon();
}

void TuVungChon::XemCau() {
  state_.atHand.askForWord();
  ChonDongChon();
  DocCauTuVung();
  // Without a sentence nothing comes up, and the next popup is a word's again.
  services_.dictionary.popup().XemCauTuVung = !ChuoiCau_.empty();
  services_.dictionary.TraTu();
}

void TuVungChon::DocCauTuVung() {
  const std::int32_t place = TuVungDangXem_.ViTriCauTu;
  const int stream = place < 0 ? file::SpeakingTexts : file::Texts;
  ChuoiCau_ = sentenceAt(stores_.fileOf(stream), std::abs(static_cast<std::int64_t>(place)));
  // A sentence that is in the pack no more is shown as it was.
  if (place == 0) ChuoiCau_ = words_.keptSentence(TuVungDangXem_);
  state_.atHand.takeEntry(ChuoiCau_);
  state_.atHand.take(ChuoiCau_);
}

void TuVungChon::VeCauTuVung(const std::string& text) {
  services_.dictionary.popup().writeMessage(text);
  const std::string w = lower(trim(TuVungDangXem_.Tu));
  const std::string s = lower(trim(text));
  const std::array<std::string, 6> forms = {" " + w + " ", " " + w + ".", " " + w + ",",
                                            w + " ",       " " + w,       "\"" + w};
  for (const std::string& form : forms) {
    const auto place = s.find(form);
    if (place == std::string::npos) continue;
    const int from = static_cast<int>(place);
    controls_.RHD.format({from, from + static_cast<int>(w.size()) + 1}, {.color = look::Red});
    break;
  }
  controls_.RHD.SelStart(0);
  services_.dictionary.popup().XemCauTuVung = false;
  services_.dictionary.popup().VeKhung();
}

void TuVungChon::XoaTuVung() {
  const Surface& Rchon = controls_.Rchon;
  const int first = rowOf(Rchon.SelStart());
  const int last = rowOf(Rchon.SelStart() + Rchon.SelLength() - 1);
  const std::string question = first == last ? "Xoa tu vung " + std::to_string(first) + " khong?"
                                             : "Xoa cac tu vung " + std::to_string(first) + " - " +
                                                   std::to_string(last) + " khong?";
  if (shell_.messages.XacNhan(question, "no")) removeRows(first, last);
}

void TuVungChon::removeRows(int first, int last) {
  const auto at = [this](int row) { return TuVung_.begin() + std::clamp(row, 0, SoTuVung()); };
  words_.noteRemoved({at(first - 1), at(last)});
  TuVung_.erase(at(first - 1), at(last));
  store();
  tellOfProblem();
  if (TuVung_.empty()) {
    ExitRChon();
    return;
  }
  HienTuVung();
  controls_.Rchon.SetFocus();
}

// -- Events.

void TuVungChon::wireEvents() {
  Surface& Rchon = controls_.Rchon;
  services_.dictionary.popup().VeCauTuVung = [this](const std::string& text) { VeCauTuVung(text); };
  Rchon.MouseDown = [this](MouseButton, int, SurfacePoint) { shell_.upward.DongNghia(); };
  Rchon.MouseUp = [this](MouseButton button, int, SurfacePoint at) { releaseMouse(button, at); };
  Rchon.MouseMove = [this, &Rchon](int, SurfacePoint at) {
    shell_.gestures.followPointer(Rchon, at);
  };
  Rchon.DblClick = [this] {
    shell_.upward.DongNghia();
    state_.atHand.askForSentence();
  };
  Rchon.KeyDown = [this, &Rchon](int& KeyCode, int) { shell_.hints.showOnF2(KeyCode, Rchon); };
  Rchon.KeyPress = [this](int& KeyAscii) {
    const int pressed = std::exchange(KeyAscii, 0);
    if (pressed == key::Esc) {
      if (!controls_.RAmthanh.Visible()) ExitRChon();
    } else if (Letters.has(chr(pressed))) {
      services_.dictionary.MoDanhSachTu(chr(pressed));
    }
  };
  Rchon.KeyUp = [this, &Rchon](int&, int) {
    shell_.gestures.keyReleased();
    state_.atHand.keepCaret(Rchon.SelStart());
    if (Rchon.Visible()) shell_.upward.DongNghia();
  };
  Rchon.SelChange = [this, &Rchon] {
    if (Rchon.SelLength() == 0) state_.atHand.drop();
  };
}

void TuVungChon::addToShell() {
  Surface& Rchon = controls_.Rchon;
  shell_.pages.add({.surface = Rchon,
                    .textFont = true,
                    .font = FontStep::Smaller,
                    .parked = Parked::BelowTheScreen,
                    .pointerName = Rchon.Name(),
                    .hints = {{{"Chuột Trái=Tra từ; 2 Chuột Trái=Xem câu"_x1,
                                "Esc=thoát; Gõ phím=Tra từ (Sử dụng Roll chuột)"_x1}}}});
  const auto always = [] { return true; };
  shell_.focusReturn.onReturnTo(FocusRank::Vocabulary, Rchon, always, [this, &Rchon] {
    Rchon.SelStart(state_.word.ViTriCaret);
    Rchon.SetFocus();
    ChonDongChon();
  });
}

void TuVungChon::releaseMouse(MouseButton button, SurfacePoint at) {
  const CurrentWord& word = state_.word;
  state_.atHand.clickedAt(at, controls_.Rchon.SelStart());
  ChuoiCau_.clear();
  if (CoSoVaChu(controls_.Rchon.SelText())) {
    XoaTuVung();
  } else if (button == MouseButton::Right) {
    if (!word.TuHienTai.empty()) services_.speech.DocTu(utteranceAtHand(state_));
  } else if (word.CoDupChuot) {
    XemCau();
  } else {
    TraTuVung();
  }
  shell_.gestures.pointerMoved(controls_.Rchon, at);
}

void TuVungChon::declare(Variables& variables) const {
  variables.add("SoTuVung", [this] { return VariableValue(SoTuVung()); });
  variables.add("DaDoiTuVung", &DaDoiTuVung_);
  variables.add("ChuoiCau", &ChuoiCau_);
  const auto record = [](const VocabularyWord& word) {
    return VariableValue(VariableValue::Record{{"Tu", VariableValue(word.Tu)},
                                               {"ViTriCauTu", VariableValue(word.ViTriCauTu)}});
  };
  variables.add("TuVungDangXem", [this, record] { return record(TuVungDangXem_); });
  variables.add("TuVung", [this, record] {
    // Words count from 1; element 0 is never used.
    VariableValue::Table table{record({})};
    for (const VocabularyWord& word : TuVung_)
      table.push_back(record(word));
    return VariableValue(std::move(table));
  });
}

} // namespace talvora
