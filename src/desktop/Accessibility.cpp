#include "desktop/Accessibility.h"

#include "desktop/DeedEvent.h"
#include "desktop/FormView.h"
#include "desktop/HintBarView.h"
#include "desktop/KeyCodes.h"
#include "desktop/MenuButtonView.h"
#include "desktop/PageLook.h"
#include "desktop/Palette.h"
#include "desktop/Shown.h"
#include "desktop/SurfaceView.h"
#include "desktop/Teller.h"
#include "fronts/ButtonMeaning.h"
#include "fronts/PageNames.h"
#include "fronts/Units.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWindow>

#include <algorithm>
#include <functional>
#include <utility>

namespace talvora {

namespace {

/// Asks for a deed as a key or a click would: it waits while the program sleeps.
void ask(QWidget& view, std::function<void()> deed) {
  QCoreApplication::postEvent(view.parentWidget(), new DeedEvent(std::move(deed))); // NOLINT
}

/// Sends a click to the middle of a view.
void click(const QWidget& view) {
  QWidget* const form = view.parentWidget();
  const QPoint at = view.geometry().center();
  for (const QEvent::Type half : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const Qt::MouseButtons down = half == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QCoreApplication::postEvent(form, new QMouseEvent(half, at, form->mapToGlobal(at), // NOLINT
                                                      Qt::LeftButton, down, Qt::NoModifier));
  }
}

/// Sends a stroke to the window.
void strike(const QWidget& view, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWindow* const window = view.window()->windowHandle();
  if (window == nullptr) return;
  for (const QEvent::Type half : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QCoreApplication::postEvent(window, new QKeyEvent(half, key, modifiers)); // NOLINT
  }
}

/// A text with a letter that English does not have is Vietnamese.
bool isVietnamese(const QString& text) {
  constexpr char16_t LastOfLatin = 0x7F;
  constexpr char16_t FirstOfPunctuation = 0x2000;
  return std::any_of(text.begin(), text.end(), [](QChar letter) {
    return letter.unicode() > LastOfLatin && letter.unicode() < FirstOfPunctuation &&
           letter.isLetter();
  });
}

QString attributesOf(const CharStyle& style, const QString& text) {
  const QColor colour = colourOf(style.color);
  QString attributes = QStringLiteral("color:rgb(%1,%2,%3);font-weight:%4;language:%5;")
                           .arg(colour.red())
                           .arg(colour.green())
                           .arg(colour.blue())
                           .arg(style.font.bold ? QLatin1String("bold") : QLatin1String("normal"))
                           .arg(isVietnamese(text) ? QLatin1String("vi") : QLatin1String("en"));
  if (style.italic) attributes += QLatin1String("font-style:italic;");
  if (style.underline) attributes += QLatin1String("text-underline-style:solid;");
  return attributes;
}

/// A surface's text as assistive technology reads it; its offsets are carets.
class SurfaceAccessible final : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit SurfaceAccessible(SurfaceView& view)
      : QAccessibleWidget(&view, QAccessible::EditableText, shown(pageName(view.surface().Name()))),
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
    ask(view_, [&surface = surface(), startOffset, endOffset] {
      surface.SelStart(startOffset);
      surface.SelLength(endOffset - startOffset);
    });
  }
  void removeSelection(int) override {
    ask(view_, [&surface = surface()] { surface.SelLength(0); });
  }
  void setSelection(int, int startOffset, int endOffset) override {
    addSelection(startOffset, endOffset);
  }

  // -- The caret.

  int cursorPosition() const override { return surface().SelStart(); }
  void setCursorPosition(int position) override {
    ask(view_, [this, position] {
      surface().SelStart(position);
      // A list takes the line of its caret when an arrow is let go.
      if (traitsOf(surface()).isList && view_.surfaceHasFocus()) {
        surface().releaseKey(key::Down, shift::None);
      }
    });
  }

  // -- The text.

  using QAccessibleWidget::text;
  QString text(int startOffset, int endOffset) const override {
    return shown(lettersOf(surface(), startOffset, endOffset));
  }
  int characterCount() const override { return surface().TextLength(); }
  /// Those of the run that holds an offset; a run ends with its paragraph.
  QString attributes(int offset, int* startOffset, int* endOffset) const override {
    const int number = surface().paragraphOf(offset);
    const ParagraphRef content = surface().paragraph(number);
    const std::span<const StyleRun> runs = content.view().runs;
    const int start = surface().paragraphStart(number);
    std::size_t run = 0;
    while (run + 1 < runs.size() && start + runs[run + 1].from <= offset)
      ++run;
    const bool last = run + 1 == runs.size();
    *startOffset = start + runs[run].from;
    *endOffset =
        last ? std::max(surface().paragraphStart(number + 1), offset) : start + runs[run + 1].from;
    return attributesOf(*runs[run].style, shown(lettersOf(surface(), *startOffset, *endOffset)));
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
  void scrollToSubstring(int startIndex, int) override { setCursorPosition(startIndex); }

  // -- What a mouse would do at the caret.

  QStringList actionNames() const override { return {pressAction(), showMenuAction()}; }
  void doAction(const QString& name) override {
    const bool right = name == showMenuAction();
    strike(view_, Qt::Key_F10, right ? Qt::ShiftModifier : Qt::NoModifier);
  }

 private:
  [[nodiscard]] Surface& surface() const { return view_.surface(); }

  SurfaceView& view_;
};

class ButtonAccessible final : public QAccessibleWidget {
 public:
  explicit ButtonAccessible(MenuButtonView& view)
      : QAccessibleWidget(&view, QAccessible::Button, view.caption()), view_(view) {}

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Description) return shown(meaningOf(view_.button()));
    return QAccessibleWidget::text(kind);
  }

  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& name) override {
    if (name == pressAction()) click(view_);
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = true;
    state.focused = view_.buttonHasFocus();
    return state;
  }

 private:
  MenuButtonView& view_;
};

/// The hint bar says its text.
class HintAccessible final : public QAccessibleWidget {
 public:
  explicit HintAccessible(HintBarView& view)
      : QAccessibleWidget(&view, QAccessible::StaticText), view_(view) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? view_.text() : QAccessibleWidget::text(kind);
  }

 private:
  HintBarView& view_;
};

/// The form offers what says something: no plate, no picture, no curtain.
class FormAccessible final : public QAccessibleWidget {
 public:
  explicit FormAccessible(FormView& form)
      : QAccessibleWidget(&form, QAccessible::Pane, QStringLiteral("Talvora")), form_(form) {}

  int childCount() const override { return static_cast<int>(offered().size()); }
  QAccessibleInterface* child(int index) const override {
    const QList<QWidget*> children = offered();
    return index >= 0 && index < children.size()
               ? QAccessible::queryAccessibleInterface(children[index])
               : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return static_cast<int>(offered().indexOf(qobject_cast<QWidget*>(child->object())));
  }

 private:
  [[nodiscard]] QList<QWidget*> offered() const {
    QList<QWidget*> widgets;
    for (QObject* const each : form_.children()) {
      auto* const widget = qobject_cast<QWidget*>(each);
      if (widget == nullptr || widget->isHidden()) continue;
      const auto* const surface = dynamic_cast<SurfaceView*>(widget);
      const bool speaks = surface != nullptr ? !pageName(surface->surface().Name()).empty()
                                             : dynamic_cast<MenuButtonView*>(widget) != nullptr ||
                                                   dynamic_cast<HintBarView*>(widget) != nullptr;
      if (speaks) widgets.append(widget);
    }
    return widgets;
  }

  FormView& form_;
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
  // Qt's cache takes the interface over.
  if (auto* form = dynamic_cast<FormView*>(object)) return new FormAccessible(*form);
  if (auto* hint = dynamic_cast<HintBarView*>(object)) return new HintAccessible(*hint);
  if (auto* announcer = dynamic_cast<Announcer*>(object)) {
    return new QAccessibleWidget(announcer, QAccessible::AlertMessage);
  }
  if (auto* surface = dynamic_cast<SurfaceView*>(object)) return new SurfaceAccessible(*surface);
  if (auto* button = dynamic_cast<MenuButtonView*>(object)) return new ButtonAccessible(*button);
  return nullptr;
}

} // namespace

void installAccessibility() {
  QAccessible::installFactory(interfaceOf);
}

} // namespace talvora
