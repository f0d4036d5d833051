#include "desktop/FormView.h"

#include "desktop/DeedEvent.h"
#include "desktop/HintBarView.h"
#include "desktop/MenuButtonView.h"
#include "desktop/Palette.h"
#include "desktop/PlainViews.h"
#include "desktop/Shown.h"
#include "desktop/SurfaceView.h"
#include "desktop/Teller.h"
#include "fronts/ButtonMeaning.h"
#include "fronts/Links.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QToolTip>

#include <algorithm>
#include <memory>
#include <utility>

namespace talvora {

namespace {

/// A view whose owner is its parent widget, the last argument.
template <class View, class... Arguments>
ControlView* makeChild(Arguments&&... arguments) {
  return std::make_unique<View>(std::forward<Arguments>(arguments)...).release();
}

} // namespace

FormView::FormView(Form& form, FormInput& input, EventBridge& bridge, QtLineLayout& layout,
                   QWidget* parent)
    : QWidget(parent), form_(form), input_(input), bridge_(bridge), layout_(layout),
      mouse_(input, bridge), scrollMouse_(bridge, form, layout), cameUp_(form) {
  scrollMouse_.viewOf = [this](const Surface& surface) {
    return dynamic_cast<SurfaceView*>(viewOf(surface));
  };
  setFocusPolicy(Qt::NoFocus);
  setMouseTracking(true);
  setAutoFillBackground(true);
  setPalette(QPalette(QColor(palette::Letterbox)));
  form_.observe(this);
}

FormView::~FormView() {
  form_.observe(nullptr);
}

void FormView::setScale(double pixelsPerTwip) {
  scale_ = pixelsPerTwip;
  mouse_.setScale(pixelsPerTwip);
  buttonArt_.clear();
  for (const auto& [control, view] : views_)
    view->place(scale_);
  settleSoon();
}

// -- What changes.

void FormView::controlChanged(Control& control, ControlChange change) {
  if (change == ControlChange::Place) {
    moved_.insert(&control);
  } else {
    changed_.insert(&control);
  }
  settleSoon();
}

void FormView::focusChanged() {
  if (focus_ != nullptr) changed_.insert(focus_);
  focus_ = form_.ActiveControl();
  if (focus_ != nullptr) changed_.insert(focus_);
  focusMoved_ = true;
  settleSoon();
  if (onFocusChanged) onFocusChanged();
}

void FormView::captionChanged() {
  if (onCaptionChanged) onCaptionChanged();
}

// -- Bringing it to the screen.

void FormView::settleSoon() {
  if (std::exchange(settling_, true)) return;
  QMetaObject::invokeMethod(
      this, [this] { settle(); }, Qt::QueuedConnection);
}

void FormView::repaintNow() {
  settle();
  QEvent paintWhatIsMarked(QEvent::UpdateRequest);
  QCoreApplication::sendEvent(window(), &paintWhatIsMarked);
}

void FormView::settle() {
  settling_ = false;
  if (!form_.Visible() || scale_ <= 0) return;
  if (!std::exchange(formShown_, true)) showForm();
  for (Control* control : std::exchange(moved_, {}))
    settlePlace(*control);
  for (const Control* control : std::exchange(changed_, {})) {
    if (ControlView* view = viewOf(*control); view != nullptr && view->isVisibleTo(this)) {
      view->refresh();
    }
  }
  if (std::exchange(focusMoved_, false) && focus_ != nullptr) {
    if (ControlView* const view = viewOf(*focus_)) tellFocus(*view);
  }
  for (const Surface* surface : cameUp_.sinceLast())
    onCameUp(*surface);
  updateCursor();
  onSettled();
}

void FormView::showForm() {
  moved_.insert(form_.controls().begin(), form_.controls().end());
}

void FormView::settlePlace(Control& control) {
  ControlView* view = viewOf(control);
  if (view == nullptr && control.Visible()) view = &makeView(control);
  if (view == nullptr) return;
  view->place(scale_);
  if (view->isVisibleTo(this) == control.Visible()) return;
  view->setVisible(control.Visible());
  if (!control.Visible()) {
    if (const auto* const surface = as<Surface>(&control)) scrollMouse_.forget(*surface);
    return;
  }
  // Qt itself would mark a widget that appears only when events run, and paint it a second time.
  QCoreApplication::removePostedEvents(view, QEvent::UpdateLater);
  view->update();
  view->refresh();
}

ControlView* FormView::viewOf(const Control& control) const {
  const auto found = views_.find(&control);
  return found == views_.end() ? nullptr : found->second;
}

ControlView* FormView::newView(Control& control) {
  switch (control.kind()) {
  case ControlKind::Surface:
    if (control.Name() == "RDOS") {
      return makeChild<HintBarView>(static_cast<Surface&>(control), layout_, this);
    }
    return makeChild<SurfaceView>(static_cast<Surface&>(control), layout_, form_, this);
  case ControlKind::Button:
    return makeChild<MenuButtonView>(static_cast<Button&>(control), buttonArt_, form_, this);
  case ControlKind::Label:
    return makeChild<LabelView>(static_cast<Label&>(control), this);
  case ControlKind::Panel:
    return makeChild<PanelView>(static_cast<Panel&>(control), this);
  case ControlKind::Frame:
    return makeChild<FrameView>(static_cast<Frame&>(control), this);
  case ControlKind::Image:
    return makeChild<ImageView>(static_cast<Image&>(control), this);
  case ControlKind::Plain:
    break;
  }
  // Nothing is to be seen of any other control.
  return makeChild<ControlView>(control, this);
}

ControlView& FormView::makeView(Control& control) {
  ControlView* const view = newView(control);
  // Stacking makes Qt paint it: it must stand at its place by then.
  view->place(scale_);
  if (ControlView* const front = nextInFront(control)) view->stackUnder(front);
  views_.emplace(&control, view);
  return *view;
}

ControlView* FormView::nextInFront(const Control& control) const {
  const auto& order = form_.controls();
  auto place = std::find(order.begin(), order.end(), &control);
  while (place != order.end() && ++place != order.end()) {
    if (ControlView* const view = viewOf(**place)) return view;
  }
  return nullptr;
}

// -- The mouse.

Qt::CursorShape FormView::cursorShape() const {
  switch (pointerShape(input_)) {
  case PointerShape::Hand:
    return Qt::PointingHandCursor;
  case PointerShape::Text:
    return Qt::IBeamCursor;
  case PointerShape::Arrow:
    break;
  }
  return Qt::ArrowCursor;
}

void FormView::updateCursor() {
  const Qt::CursorShape shape = cursorShape();
  if (cursor().shape() != shape) setCursor(shape);
}

bool FormView::pressesBar(const QMouseEvent& event) {
  return scrollMouse_.press(mouse_.pointOf(event.position()), event.button() == Qt::LeftButton);
}

void FormView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) {
    onMiddleClick();
  } else if (!pressesBar(*event)) {
    mouse_.press(*event);
  }
}

void FormView::mouseReleaseEvent(QMouseEvent* event) {
  const SurfacePoint at = mouse_.pointOf(event->position());
  if (input_.holdsPress() || !scrollMouse_.release(at)) mouse_.release(*event);
}

void FormView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) {
    onMiddleClick();
  } else if (!pressesBar(*event)) {
    mouse_.doubleClick(*event);
  }
}

void FormView::mouseMoveEvent(QMouseEvent* event) {
  // A press on a text goes on with that text, wherever the pointer comes.
  const SurfacePoint at = mouse_.pointOf(event->position());
  if (!input_.holdsPress() && scrollMouse_.move(at, event->buttons().testFlag(Qt::LeftButton))) {
    setCursor(Qt::ArrowCursor);
    return;
  }
  mouse_.move(*event);
  updateCursor();
}

void FormView::leaveEvent(QEvent*) {
  scrollMouse_.leave();
}

bool FormView::event(QEvent* event) {
  if (event->type() == DeedEvent::type()) {
    bridge_.deliver([event] { static_cast<DeedEvent*>(event)->perform(); });
    return true;
  }
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto& help = static_cast<const QHelpEvent&>(*event);
  const auto* const button = as<Button>(form_.controlAt(mouse_.pointOf(help.pos())));
  const bool needsOne = button != nullptr && hasEnglishCaption(*button);
  const QString text = needsOne ? shown(meaningOf(*button)) : QString();
  if (text.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(help.globalPos(), text, this);
  }
  return true;
}

void FormView::wheelEvent(QWheelEvent* event) {
  mouse_.wheel(*event);
}

} // namespace talvora
