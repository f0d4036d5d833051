#include "dictionary/Popup.h"

#include "surface/Looks.h"
#include "text/Rounding.h"
#include "text/Text.h"

#include <algorithm>

namespace talvora {

namespace {

constexpr int MostLines = 12;
// A longer entry gets less than the most; it is scrolled.
constexpr int LinesOfLongEntry = 10;

/// The first words of a text, up to `count`; blanks between them stand as they do there.
std::string_view firstWords(const std::string& text, std::size_t count) {
  std::size_t end = text.find(' ');
  for (; count > 1 && end != std::string::npos; --count)
    end = text.find(' ', end + 1);
  return trim(std::string_view(text).substr(0, end));
}

} // namespace

WrappedMessage wrapMessage(const std::string& message, double room,
                           const std::function<int(std::string_view)>& widthOf) {
  const auto words = static_cast<std::size_t>(std::count(message.begin(), message.end(), ' ')) + 1;
  WrappedMessage wrapped{message, 1};
  // With more lines than words the first line is one word and gets no shorter.
  while (widthOf(wrapped.firstLine) > room && static_cast<std::size_t>(wrapped.lines) <= words) {
    ++wrapped.lines;
    wrapped.firstLine = firstWords(message, words / static_cast<std::size_t>(wrapped.lines) + 1);
  }
  return wrapped;
}

// -- Up and down.

void Popup::HienNghia(const PopupContent& content) {
  place(content.pointer);
  if (!content.text.empty()) {
    if (XemCauTuVung) {
      VeCauTuVung(content.text);
    } else {
      VeNghia(content);
    }
  }
  controls_.RHD.Visible(true);
}

void Popup::place(SurfacePoint pointer) {
  Surface& RHD = controls_.RHD;
  const Measures& m = state_.measures;
  const double d = m.pointerGap();
  RHD.Left(pointer.x < m.RongBai / 2 ? Round(m.LeTraiBai + d + pointer.x)
                                     : Round(d + (pointer.x - m.Phan3)));
  RHD.Top(pointer.y < m.CaoBai / 2 ? Round(m.LeTrenBai + d + pointer.y)
                                   : Round(d) / 2 + (pointer.y - m.Phan6));
  RHD.Width(m.Phan3);
  RHD.Height(m.Phan6);
}

void Popup::DongNghia() {
  speech_.DungDoc();
  if (controls_.RHD.Visible()) controls_.RHD.BackColor(state_.measures.MauNenHD);
  controls_.Rnen.Visible(false);
  state_.atHand.popupClosed();
  controls_.RHD.Visible(false);
  shell_.focusReturn.TraLaiBeMat();
}

// -- What it shows.

void Popup::VeNghia(const PopupContent& content) {
  Surface& RHD = controls_.RHD;
  RHD.FontName("x1");
  RHD.Text("");
  RHD.SelBold(false);
  RHD.SelItalic(false);
  RHD.SelColor(look::popup::Text);
  if (content.message.empty()) {
    // A sentence's popup, which is dark, may still be up.
    RHD.BackColor(state_.measures.MauNenHD);
    VeMucTu(content);
  } else {
    VeThongBao(content.message);
  }
  RHD.SelStart(0);
}

void Popup::VeMucTu(const PopupContent& content) {
  Surface& RHD = controls_.RHD;
  const ShownEntry entry = readMarkup(content.text);
  RHD.SelText(entry.text);
  const auto rangeOf = [](EntrySpan span) {
    return TextRange{span.start, span.start + span.length};
  };
  RHD.format({0, static_cast<int>(content.headLength)}, {.color = look::popup::Head, .bold = true});
  for (const EntrySpan& span : entry.blue)
    RHD.format(rangeOf(span), {.color = look::popup::Class});
  for (const EntrySpan& span : entry.redItalic)
    RHD.format(rangeOf(span), {.color = look::popup::Example, .italic = true});
  CoHopNghia();
  VeKhung();
}

int Popup::heightOf(int lines) const {
  return lines * form_.TextHeight("AAAA") + form_.TextWidth(" ");
}

void Popup::CoHopNghia() {
  Surface& RHD = controls_.RHD;
  RHD.Visible(true);
  RHD.SelStart(RHD.TextLength());
  const int lines = RHD.GetLineFromChar(RHD.SelStart()) + 1;
  RHD.Height(heightOf(lines > MostLines ? LinesOfLongEntry : lines));
  RHD.SelStart(0);
}

void Popup::VeThongBao(const std::string& message) {
  writeMessage(message);
  VeKhung();
  controls_.RHD.SelColor(look::popup::Text);
}

int Popup::rightOfText() const {
  const Surface* const text = shell_.pages.withCaret(SharedCaret::OfText);
  if (text != nullptr) return text->Left() + text->Width();
  return state_.measures.LeTraiBai + state_.measures.RongBai;
}

void Popup::writeMessage(const std::string& message) {
  Surface& RHD = controls_.RHD;
  const double room = rightOfText() - RHD.Left() - RHD.Width() / 5.0;
  const WrappedMessage wrapped =
      wrapMessage(message, room, [this](std::string_view text) { return form_.TextWidth(text); });
  RHD.Text("");
  RHD.Width(form_.TextWidth(wrapped.firstLine) + form_.TextWidth("  "));
  RHD.Height(heightOf(wrapped.lines + 1));
  RHD.BackColor(look::popup::MessagePaper);
  RHD.SelColor(look::popup::MessageText);
  RHD.SelBold(state_.measures.largeScreen());
  RHD.SelText(message);
  RHD.SelStart(RHD.TextLength() - 1);
  RHD.Height(heightOf(RHD.GetLineFromChar(RHD.SelStart()) + 1));
}

void Popup::VeKhung() {
  shell_.messages.VeKhung();
  const Surface& plate = controls_.Rnen;
  // What is larger than the form keeps its beginning in sight.
  const auto overrun = [](int from, int length, int room) {
    return std::clamp(from + length - room, 0, std::max(from, 0));
  };
  const int right = overrun(plate.Left(), plate.Width(), form_.Width());
  const int below = overrun(plate.Top(), plate.Height(), form_.Height());
  for (Surface* surface : {&controls_.RHD, &controls_.Rnen}) {
    surface->Left(surface->Left() - right);
    surface->Top(surface->Top() - below);
  }
}

void Popup::declare(Variables& variables) const {
  variables.add("XemCauTuVung", &XemCauTuVung);
}

} // namespace talvora
