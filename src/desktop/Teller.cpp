#include "desktop/Teller.h"

#include "desktop/Shown.h"
#include "fronts/Units.h"

#include <QAccessible>

#include <algorithm>
#include <iterator>
#include <utility>

namespace talvora {

namespace {

// Of a longer text changes are not told, since finding them would take too long.
constexpr int LongestTold = 100000;

} // namespace

void tellFocus(QWidget& view) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(&view, QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

void TextTeller::tell() {
  if (!QAccessible::isActive()) return;
  if (revision_ != surface_.revision()) {
    revision_ = surface_.revision();
    tellText();
  }
  const bool caretMoved = std::exchange(caret_, surface_.SelStart()) != surface_.SelStart();
  const int selectedBefore = std::exchange(selected_, surface_.SelLength());
  if (selected_ != selectedBefore || (caretMoved && selected_ > 0)) {
    QAccessibleTextSelectionEvent event(&view_, caret_, caret_ + selected_);
    event.setCursorPosition(caret_);
    QAccessible::updateAccessibility(&event);
  }
  if (caretMoved) {
    QAccessibleTextCursorEvent event(&view_, caret_);
    QAccessible::updateAccessibility(&event);
  }
}

void Announcer::tell(const QString& text) {
  if (text.trimmed().isEmpty()) return;
  setAccessibleName(text.trimmed());
  if (!QAccessible::isActive()) return;
  // A note that comes up anew is read out.
  for (const QAccessible::Event kind : {QAccessible::ObjectHide, QAccessible::ObjectShow}) {
    QAccessibleEvent event(this, kind);
    QAccessible::updateAccessibility(&event);
  }
}

void TextTeller::tellText() {
  if (surface_.TextLength() > LongestTold) return;
  const QString before = std::exchange(text_, shown(lettersOf(surface_, 0, surface_.TextLength())));
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
  event.setCursorPosition(surface_.SelStart());
  QAccessible::updateAccessibility(&event);
}

} // namespace talvora
