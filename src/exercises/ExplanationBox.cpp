#include "exercises/ExplanationBox.h"

#include "shell/RedPlate.h"
#include "surface/Looks.h"
#include "text/Rounding.h"
#include "text/Text.h"

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

constexpr int MostLines = 12;
constexpr int LinesOfLongText = 10;

/// The first words of a text, as many as given, joined by blanks.
std::string firstWords(const std::string& text, std::size_t count) {
  std::size_t end = 0;
  for (std::size_t word = 0; word < count && end != std::string::npos; ++word) {
    end = text.find(' ', word == 0 ? 0 : end + 1);
  }
  return std::string(trim(text.substr(0, end)));
}

} // namespace

ExplanationBox::ExplanationBox(Form& form, ExerciseControls& controls, SharedState& state,
                               Shell& shell, PageServices services, ItemState& item,
                               ModelAnswer& answer, const ItemKinds& kinds, LessonPage& lessons)
    : form_(form), controls_(controls), state_(state), shell_(shell),
      words_(controls, state, shell, services), item_(item), answer_(answer), kinds_(kinds),
      lessons_(lessons) {
  wireEvents();
  addToShell();
}

void ExplanationBox::wireEvents() {
  Surface& RHDBT = controls_.RHDBT;
  RHDBT.KeyDown = [this](int&, int) { keyPressed(); };
  RHDBT.KeyPress = [this](int& KeyAscii) {
    const int pressed = std::exchange(KeyAscii, 0);
    DongGiai();
    words_.openListOn(pressed);
  };
  RHDBT.KeyUp = [this, &RHDBT](int&, int Shift) {
    shell_.gestures.keyReleased();
    words_.closeWithoutCtrl(Shift, RHDBT);
  };
  RHDBT.MouseDown = [this](MouseButton, int, SurfacePoint) {
    if (controls_.RHD.Visible()) shell_.upward.DongNghia();
  };
  RHDBT.MouseMove = [&RHDBT](int, SurfacePoint) { RHDBT.SetFocus(); };
  RHDBT.MouseUp = [this](MouseButton button, int, SurfacePoint at) { releaseMouse(button, at); };
}

void ExplanationBox::addToShell() {
  Surface& RHDBT = controls_.RHDBT;
  shell_.pages.add({.surface = RHDBT, .font = FontStep::Smaller, .explains = true});
  shell_.pages.add({.surface = controls_.Rnen2});
  shell_.gestures.onClose(CloseRank::Explanation, RHDBT, [this](Surface&) { DongGiai(); });
  shell_.focusReturn.onReturnTo(FocusRank::Explanation, RHDBT);
  // A lesson that was opened from its list is left by its own Esc.
  shell_.gestures.onClose(
      CloseRank::LinkedLesson, controls_.RVP2, [this](Surface&) { DongBaiLienKet(); },
      [this] { return shell_.pages.pageOverPage(); });
}

// -- Showing.

void ExplanationBox::GiaiThich(int p, Surface& surface) {
  const BlankTable& OTrong = item_.OTrong;
  if (OTrong.count() == 0) return;
  const int number = OTrong.find(p);
  std::string explanation = OTrong.at(number).Chu;
  if (number > 0 && explanation.empty()) explanation = OTrong.at(1).Chu;
  HienLoiGiai(explanation, surface);
  answer_.HienDapAn(p, look::Blue, surface);
}

void ExplanationBox::HienLoiGiai(const std::string& text, Surface& surface) {
  Surface& RHDBT = controls_.RHDBT;
  if (text.empty() ? item_.GiaiChung.empty() : !item_.DaCham) return;
  itemCaret_ = surface.SelStart();
  RHDBT.Width(surface.Width() - surface.Width() / 50);
  RHDBT.Left(surface.Left() + surface.Width() / 100);
  ViTriLoiGiai();
  DienLoiGiai(text, surface);
  DoiLoiGiai();
  RHDBT.Visible(true);
}

int ExplanationBox::halfGap() const {
  return Round(state_.measures.pointerGap()) / 2;
}

void ExplanationBox::ViTriLoiGiai() {
  const Measures& measures = state_.measures;
  const int y = state_.word.ViTriChuot.y;
  const bool upperHalf = y < measures.CaoBai / 2;
  controls_.RHDBT.Top(upperHalf ? Round(y + measures.pointerGap() + measures.LeTrenBai)
                                : y - measures.Phan6 + halfGap());
  controls_.RHDBT.Height(measures.Phan6);
}

void ExplanationBox::DienLoiGiai(const std::string& text, const Surface& surface) {
  Surface& RHDBT = controls_.RHDBT;
  RHDBT.Text("");
  RHDBT.SelBold(false);
  RHDBT.SelItalic(false);
  RHDBT.SelColor(0);
  LienKet_.clear();
  if (text.empty() || text == item_.GiaiChung) {
    VietGiaiChung(surface);
  } else {
    VietLoiGiai(text);
  }
  RHDBT.SelStart(0);
}

void ExplanationBox::VietGiaiChung(const Surface& surface) {
  Surface& RHDBT = controls_.RHDBT;
  const std::string& text = item_.GiaiChung;
  const auto blanks = static_cast<std::size_t>(std::count(text.begin(), text.end(), ' '));
  const std::size_t n = blanks > 0 ? blanks - 1 : 0;
  std::string line = text;
  // With more lines than words nothing gets shorter any more.
  for (std::size_t lines = 2; form_.TextWidth(line) > surface.Width() && lines <= n + 2; ++lines) {
    line = firstWords(text, n / lines + 2);
  }
  RHDBT.Visible(true);
  RHDBT.BackColor(look::DarkPanel);
  RHDBT.SelBold(state_.measures.largeScreen());
  RHDBT.SelColor(look::PanelText);
  RHDBT.SelFontSize(form_.Font().size);
  RHDBT.SelText(text);
  RHDBT.Width(form_.TextWidth("  ") + form_.TextWidth(line));
  RHDBT.Height(lineCount() * form_.TextHeight(line) + form_.TextWidth(" "));
  DoCaoLoiGiai();
  BongLoiGiai();
}

void ExplanationBox::VietLoiGiai(std::string_view text) {
  Surface& RHDBT = controls_.RHDBT;
  RHDBT.BackColor(look::Box);
  const ExplanationText explanation = layOutExplanation(text);
  RHDBT.SelText(explanation.text);
  for (const ExplanationSpan span : explanation.blue)
    colour(span, {.color = look::Blue});
  for (const ExplanationSpan span : explanation.links)
    addLink(explanation, span);
  for (const ExplanationSpan span : explanation.red)
    colour(span, {.color = look::Red});
  DoCaoLoiGiai();
  BongLoiGiai();
}

void ExplanationBox::addLink(const ExplanationText& explanation, ExplanationSpan span) {
  const std::string title = explanation.text.substr(static_cast<std::size_t>(span.start),
                                                    static_cast<std::size_t>(span.length));
  if (LienKet_.size() < MostLinks) {
    LienKet_.push_back({span.start, span.start + span.length - 1, TimBaiHoc(title)});
  }
  colour(span, {.color = look::Blue, .italic = true});
}

void ExplanationBox::colour(ExplanationSpan span, const StyleChange& change) {
  controls_.RHDBT.format({span.start, span.start + span.length}, change);
}

int ExplanationBox::lineCount() {
  return controls_.RHDBT.GetLineFromChar(controls_.RHDBT.TextLength()) + 1;
}

void ExplanationBox::DoCaoLoiGiai() {
  Surface& RHDBT = controls_.RHDBT;
  RHDBT.Visible(true);
  const int lines = lineCount();
  // The box scrolls where a text is longer.
  RHDBT.Height((lines > MostLines ? LinesOfLongText : lines) * form_.TextHeight("AAAA") +
               form_.TextWidth(" "));
  RHDBT.SelStart(0);
  if (RHDBT.BackColor() == look::DarkPanel)
    RHDBT.Left((state_.measures.RongMH - RHDBT.Width()) / 2);
}

void ExplanationBox::BongLoiGiai() {
  Surface& RHDBT = controls_.RHDBT;
  RHDBT.Height(RHDBT.Height() + form_.TextWidth("  "));
  fitRedPlate(controls_.Rnen2, RHDBT, state_.measures, PlateRim::WiderAtRight);
}

void ExplanationBox::DoiLoiGiai() {
  Surface& RHDBT = controls_.RHDBT;
  const int y = state_.word.ViTriChuot.y;
  const int height = RHDBT.Height();
  const int bottom = RHDBT.Top() + height;
  const bool underPointer = y > RHDBT.Top() && (y < bottom || y - bottom > halfGap());
  if (!underPointer) return;
  RHDBT.Top(std::max(0, y - height + halfGap()));
  BongLoiGiai();
}

// -- Closing.

void ExplanationBox::DongGiai() {
  Surface& RHDBT = controls_.RHDBT;
  words_.stopSpeech();
  if (!RHDBT.Visible()) return;
  const bool hadFocus = form_.hasFocus(RHDBT);
  RHDBT.BackColor(state_.measures.MauNenHD);
  controls_.Rnen2.Visible(false);
  RHDBT.Visible(false);
  state_.atHand.keepCaret(itemCaret_);
  if (hadFocus) focusBehind();
}

void ExplanationBox::focusBehind() {
  Surface* behind = controls_.R2.Visible() ? &controls_.R2 : nullptr;
  kinds_.each([&behind](const ItemKindPage& page) {
    if (page.explains() && page.surface().Visible()) behind = &page.surface();
  });
  if (behind != nullptr) behind->SetFocus();
}

void ExplanationBox::RoiChuotBT(Surface& surface, SurfacePoint at) {
  const bool shown = controls_.RHDBT.Visible() || !item_.ChuCu.empty();
  if (shown && shell_.gestures.isFar(at)) {
    DongGiai();
    answer_.restore(surface);
  }
  state_.atHand.dropEntry();
}

// -- Links.

int ExplanationBox::TimBaiHoc(std::string_view title) const {
  if (title.ends_with('\r')) title.remove_suffix(1);
  const auto& titles = state_.list.TenBaiHoc;
  const auto found = std::find(titles.begin() + 1, titles.end(), title);
  return found == titles.end() ? 0 : static_cast<int>(found - titles.begin());
}

bool ExplanationBox::MoLienKet(int p) {
  const auto link = std::find_if(LienKet_.begin(), LienKet_.end(), [p](const LessonLink& each) {
    return each.Dau < p && p <= each.Cuoi;
  });
  if (link == LienKet_.end() || link->Bai == 0) return false;
  state_.atHand.drop();
  textBehind_ = state_.text.CauHoi;
  lessons_.MoBaiVP(link->Bai);
  shell_.transitions.MoRan(controls_.RVP2, controls_.Frame3);
  return true;
}

void ExplanationBox::DongBaiLienKet() {
  state_.atHand.dropEntry();
  giveTextBack();
  // The lesson has kept a caret of its own; the box and the item take theirs back.
  state_.atHand.keepCaret(controls_.RHDBT.Visible() ? controls_.RHDBT.SelStart() : itemCaret_);
  shell_.upward.DongNghia();
  if (state_.measures.slidesAtOnce()) shell_.setup.parkPlate();
  shell_.transitions.DongRan(controls_.RVP2, controls_.Frame3);
  if (controls_.RHDBT.Visible()) {
    controls_.RHDBT.SetFocus();
  } else {
    focusBehind();
  }
}

void ExplanationBox::takeLessonAway() {
  if (!shell_.pages.pageOverPage()) return;
  giveTextBack();
  controls_.RVP2.Visible(false);
  controls_.Frame3.Visible(false);
}

void ExplanationBox::giveTextBack() {
  // Words are picked and put in order by the text of the page that is seen again.
  if (textBehind_) state_.text.CauHoi = *std::exchange(textBehind_, std::nullopt);
}

void ExplanationBox::releaseMouse(MouseButton button, SurfacePoint at) {
  Surface& RHDBT = controls_.RHDBT;
  shell_.gestures.keyReleased();
  if (button == MouseButton::Right) {
    if (!state_.word.TuHienTai.empty()) words_.speak();
    return;
  }
  if (MoLienKet(RHDBT.SelStart() + 1)) return;
  // The popup is placed as for a click on the page behind the box.
  state_.atHand.pointAt({at.x + RHDBT.Left() - state_.measures.LeTraiBai,
                         at.y + RHDBT.Top() - state_.measures.LeTrenBai});
  state_.atHand.keepCaret(RHDBT.SelStart());
  if (RHDBT.SelText().ends_with(' ')) RHDBT.SelLength(RHDBT.SelLength() - 1);
  words_.lookUpAtCaret(RHDBT);
}

void ExplanationBox::declare(Variables& variables) const {
  variables.add("LienKet", [this] {
    const auto record = [](const LessonLink& link) {
      return VariableValue::Record{{"Dau", link.Dau}, {"Cuoi", link.Cuoi}, {"Bai", link.Bai}};
    };
    VariableValue::Table table{record({})};
    for (const LessonLink& link : LienKet_)
      table.emplace_back(record(link));
    return VariableValue(std::move(table));
  });
  variables.add("SoLienKet", [this] { return VariableValue(static_cast<int>(LienKet_.size())); });
}

} // namespace talvora
