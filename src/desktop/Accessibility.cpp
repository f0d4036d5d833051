#include "desktop/Accessibility.h"

#include "desktop/MenuButtonView.h"
#include "desktop/SurfaceView.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>
#include <iterator>
#include <utility>

namespace talvora {

namespace {

// Of a longer text changes are not told, since finding them would take too long.
constexpr int LongestTold = 100000;

/// The letters between two carets, one UTF-16 unit a caret.
QString lettersOf(const Surface& surface, int from, int to) {
  return unitsOf(surface.TextBetween(from, to), surface.Font().name);
}

/// A surface's text as assistive technology reads it; its offsets are carets.
class SurfaceAccessible final : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit SurfaceAccessible(SurfaceView& view)
      : QAccessibleWidget(&view, QAccessible::EditableText,
                          QString::fromStdString(view.surface().Name())),
        view_(view) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = true;
    state.focused = view_.surfaceHasFocus();
    state.multiLine = true;
    state.readOnly = surface().Locked();
    state.editable = !surface().Locked();
    state.selectableText = true;
    return state;
  }

  // -- The selection.

  void selection(int, int* startOffset, int* endOffset) const override {
    *startOffset = surface().SelStart();
    *endOffset = surface().SelStart() + surface().SelLength();
  }
  int selectionCount() const override { return surface().SelLength() > 0 ? 1 : 0; }
  void addSelection(int startOffset, int endOffset) override {
    surface().SelStart(startOffset);
    surface().SelLength(endOffset - startOffset);
  }
  void removeSelection(int) override { surface().SelLength(0); }
  void setSelection(int, int startOffset, int endOffset) override {
    addSelection(startOffset, endOffset);
  }

  // -- The caret.

  int cursorPosition() const override { return surface().SelStart(); }
  void setCursorPosition(int position) override { surface().SelStart(position); }

  // -- The text.

  using QAccessibleWidget::text;
  QString text(int startOffset, int endOffset) const override {
    return lettersOf(surface(), startOffset, endOffset);
  }
  int characterCount() const override { return surface().TextLength(); }
  QString attributes(int, int* startOffset, int* endOffset) const override {
    *startOffset = 0;
    *endOffset = surface().TextLength();
    return {};
  }

  // -- Places.

  QRect characterRect(int offset) const override {
    const QRect from = view_.caretRect(offset);
    const QRect to = view_.caretRect(offset + 1);
    const bool sameLine = to.top() == from.top() && to.left() > from.left();
    return {view_.mapToGlobal(from.topLeft()),
            QSize(sameLine ? to.left() - from.left() : from.width(), from.height())};
  }
  int offsetAtPoint(const QPoint& point) const override {
    const QPointF twips = QPointF(view_.mapFromGlobal(point)) / view_.twipsToPixels();
    return surface().caretAt({static_cast<int>(twips.x()), static_cast<int>(twips.y())});
  }
  void scrollToSubstring(int startIndex, int) override { surface().SelStart(startIndex); }

 private:
  [[nodiscard]] Surface& surface() const { return view_.surface(); }

  SurfaceView& view_;
};

class ButtonAccessible final : public QAccessibleWidget {
 public:
  explicit ButtonAccessible(MenuButtonView& view)
      : QAccessibleWidget(&view, QAccessible::Button, view.caption()), view_(view) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = true;
    state.focused = view_.buttonHasFocus();
    return state;
  }

 private:
  MenuButtonView& view_;
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
  // Qt's cache takes the interface over.
  if (auto* surface = dynamic_cast<SurfaceView*>(object)) return new SurfaceAccessible(*surface);
  if (auto* button = dynamic_cast<MenuButtonView*>(object)) return new ButtonAccessible(*button);
  return nullptr;
}

} // namespace

void installAccessibility() {
  QAccessible::installFactory(interfaceOf);
}

void tellFocus(ControlView& view) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(&view, QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

void TextTeller::tell() {
  if (!QAccessible::isActive()) return;
  const Surface& surface = view_.surface();
  if (revision_ != surface.revision()) {
    revision_ = surface.revision();
    tellText();
  }
  if (caret_ != surface.SelStart() || selected_ != surface.SelLength()) {
    caret_ = surface.SelStart();
    selected_ = surface.SelLength();
    QAccessibleTextSelectionEvent event(&view_, caret_, caret_ + selected_);
    event.setCursorPosition(caret_);
    QAccessible::updateAccessibility(&event);
  }
}

void TextTeller::tellText() {
  const Surface& surface = view_.surface();
  if (surface.TextLength() > LongestTold) return;
  const QString before = std::exchange(text_, lettersOf(surface, 0, surface.TextLength()));
  const auto fromStart = std::mismatch(before.begin(), before.end(), text_.begin(), text_.end());
  const auto same = std::distance(before.begin(), fromStart.first);
  const auto oldRest = before.mid(same);
  const auto newRest = text_.mid(same);
  const auto fromEnd =
      std::mismatch(oldRest.rbegin(), oldRest.rend(), newRest.rbegin(), newRest.rend());
  const QString removed = oldRest.chopped(std::distance(oldRest.rbegin(), fromEnd.first));
  const QString added = newRest.chopped(std::distance(newRest.rbegin(), fromEnd.second));
  if (removed.isEmpty() && added.isEmpty()) return;
  QAccessibleTextUpdateEvent event(&view_, static_cast<int>(same), removed, added);
  event.setCursorPosition(surface.SelStart());
  QAccessible::updateAccessibility(&event);
}

} // namespace talvora
