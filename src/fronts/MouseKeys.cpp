#include "fronts/MouseKeys.h"

#include "fronts/Links.h"

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

constexpr int LongestCaretSearch = 60; // pixels

bool standsForClick(int keyCode) {
  return keyCode == key::F10 || keyCode == key::Menu;
}

/// A selection that reaches from a line's number into its word: what a drag across lines leaves,
/// and Shift with the arrows.
bool marksLines(const Surface& vocabulary) {
  return vocabulary.SelText().find('\t') != std::string::npos;
}

/// The lines that the selection touches, without the last one's end.
TextRange linesOf(const Surface& surface) {
  const int first = surface.paragraphOf(surface.SelStart());
  const int end = surface.SelStart() + std::max(surface.SelLength() - 1, 0);
  const int last = surface.paragraphOf(end);
  const int length = static_cast<int>(surface.paragraph(last).view().text.size());
  return {surface.paragraphStart(first), surface.paragraphStart(last) + length};
}

} // namespace

bool MouseKeys::press(int keyCode, int shift, bool repeats) {
  if (standsForClick(keyCode)) return click(keyCode, shift, repeats);
  if (keyCode == key::Delete) return deleteLines();
  return keyCode == key::Tab && (shift & shift::Shift) == 0 && goToLessonLink();
}

bool MouseKeys::release(int keyCode) {
  if (standsForClick(keyCode)) return true;
  if (keyCode == key::Shift && std::exchange(shiftClicks_, false)) return true;
  const Surface* const list = vocabulary();
  return list != nullptr && marksLines(*list);
}

int MouseKeys::shiftDown(const KeyTable& keys) const {
  int down = shift::None;
  if (keys.isDown(key::Shift) && !shiftClicks_) down |= shift::Shift;
  if (keys.isDown(key::Ctrl)) down |= shift::Ctrl;
  if (keys.isDown(key::Alt)) down |= shift::Alt;
  return down;
}

// A left click at the caret with F10, a right one with Shift+F10 or the Menu key: what the mouse
// does in a section, the keys do too.
bool MouseKeys::click(int keyCode, int shift, bool repeats) {
  const auto* const surface = as<Surface>(form_.ActiveControl());
  if (surface == nullptr || repeats) return true;
  shiftClicks_ = (shift & shift::Shift) != 0;
  const bool right = shiftClicks_ || keyCode == key::Menu;
  const Surface* const list = vocabulary();
  // The press of a click would end what is marked.
  if (right && list != nullptr && marksLines(*list)) {
    deleteLines();
  } else {
    clickAtCaret(*surface, right ? MouseButton::Right : MouseButton::Left);
  }
  return true;
}

void MouseKeys::clickAtCaret(const Surface& surface, MouseButton button) {
  const SyntheticClick click{button, pixelOf(surface, surface.SelStart())};
  movePointer(click.at);
  deliver_([&] {
    input_.deliverMove(form_.virtualScreen().toForm(click.at), shift::None);
    input_.deliver(click, shift::None);
  });
}

// The vocabulary asks when the mouse was dragged across its lines.
bool MouseKeys::deleteLines() {
  Surface* const list = vocabulary();
  if (list == nullptr) return false;
  const TextRange lines = linesOf(*list);
  if (lines.from < lines.to) drag(*list, lines.from, lines.to);
  return true;
}

void MouseKeys::drag(Surface& surface, int from, int to) {
  const auto placeOf = [&](int caret) {
    const SurfacePoint at = form_.virtualScreen().toForm(pixelOf(surface, caret));
    return SurfacePoint{at.x - surface.Left(), at.y - surface.Top()};
  };
  deliver_([&] {
    // Only what is in view can be pressed, and dragging brings the other end there.
    surface.SelStart(from);
    surface.pressMouse(MouseButton::Left, shift::None, placeOf(from));
    surface.moveCaret(to, Selecting::Yes);
    movePointer(pixelOf(surface, to));
    surface.releaseMouse(MouseButton::Left, shift::None, placeOf(to));
  });
}

// The box gets the keyboard from a pointer over it only, and any key on the item closes it.
bool MouseKeys::goToLessonLink() {
  auto* const box = as<Surface>(form_.find("RHDBT"));
  if (box == nullptr || !box->Visible()) return false;
  const int link = nextLessonLink(*box, form_.hasFocus(*box) ? box->SelStart() : -1);
  if (link < 0) return false;
  deliver_([&] {
    box->SetFocus();
    box->SelStart(link);
  });
  return true;
}

Surface* MouseKeys::vocabulary() const {
  auto* const surface = as<Surface>(form_.ActiveControl());
  return surface != nullptr && surface->Name() == "Rchon" ? surface : nullptr;
}

PixelPoint MouseKeys::pixelOf(const Surface& surface, int caret) const {
  const VirtualScreen screen = form_.virtualScreen();
  const SurfacePoint middle = surface.pointOf(caret);
  const int y = std::clamp(middle.y, TwipsPerPixel, surface.Height() - TwipsPerPixel);
  PixelPoint pixel = screen.toPixel({surface.Left() + middle.x, surface.Top() + y});
  const auto caretOf = [&](PixelPoint each) {
    const SurfacePoint point = screen.toForm(each);
    return surface.caretAt({point.x - surface.Left(), point.y - surface.Top()});
  };
  // The caret counts that is nearest to a point; the pointer goes to the near side of the letter.
  for (int step = 0; step < LongestCaretSearch && caretOf(pixel) > caret; ++step)
    --pixel.x;
  for (int step = 0; step < LongestCaretSearch && caretOf(pixel) < caret; ++step)
    ++pixel.x;
  return pixel;
}

} // namespace talvora
