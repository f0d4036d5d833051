#include "desktop/Window.h"

#include "desktop/Accessibility.h"
#include "desktop/BackgroundArt.h"
#include "desktop/Fonts.h"
#include "desktop/KeyCodes.h"
#include "desktop/Shown.h"
#include "fronts/KeyHelp.h"
#include "fronts/Units.h"
#include "surface/Button.h"
#include "surface/Surface.h"
#include "text/GlyphMap.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QToolTip>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

constexpr double TipSize = 16; // pixels of the virtual screen
const QColor LetterboxColour(0x12, 0x22, 0x2E);
// How long the start may wait for the window system to show the window.
constexpr int ExposeMs = 200;
// A log-out that has not come by then was called off.
constexpr qint64 SessionEndMs = 60'000;
// Letters are made ready when the menu, or a page, has stood for a while.
constexpr int WarmAfterMs = 700;

/// Ends a wait when the window system shows the window.
class ExposeWatch final : public QObject {
 public:
  ExposeWatch(QWindow& window, QEventLoop& wait) : window_(window), wait_(wait) {
    window_.installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Expose && window_.isExposed()) wait_.quit();
    return false;
  }

 private:
  QWindow& window_;
  QEventLoop& wait_;
};

} // namespace

Window::Window(DesktopMachine& machine, Program& program, EventBridge& bridge)
    : machine_(machine), program_(program), bridge_(bridge),
      mouseKeys_(program.form(), program.input(),
                 [&bridge](const std::function<void()>& deed) { bridge.deliver(deed); }),
      warmer_(machine.layout.letters()) {
  warmSoon_.setSingleShot(true);
  warmSoon_.setInterval(WarmAfterMs);
  QObject::connect(&warmSoon_, &QTimer::timeout, this, [this] { warmFonts(); });
  setWindowTitle(QStringLiteral("Talvora"));
  QIcon icon;
  for (const int size : {16, 32, 48, 128})
    icon.addPixmap(drawSign(size));
  setWindowIcon(icon);
  setWindowFlag(Qt::FramelessWindowHint);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  installAccessibility();
  // NOLINTNEXTLINE: Qt owns it
  view_ = new FormView(program.form(), program.input(), bridge, machine.layout, this);
  strip_ = new CaptionStrip(this);  // NOLINT: Qt owns it
  announcer_ = new Announcer(this); // NOLINT: Qt owns it
  announcer_->setGeometry(0, 0, 1, 1);
  announcer_->lower();
  connectStrip();
  connectView();
  connectMachine();
  connectInput();
}

void Window::connectStrip() {
  machine_.gate.neverHold(*strip_);
  strip_->closeWindow = [this] { askToClose(); };
  strip_->goBack = [this] { sendStroke(Qt::Key_Escape); };
  strip_->showHint = [this] { sendStroke(Qt::Key_F2); };
  strip_->minimiseWindow = [this] { showMinimized(); };
  strip_->told = [this](const QString& text) { announcer_->tell(text); };
  strip_->setHintTip(shown(allKeyHelp()));
}

void Window::connectView() {
  view_->onCaptionChanged = [this] {
    strip_->setCaption(
        QString::fromStdU16String(toUnicode(program_.form().Caption(), Encoding::Windows1252)));
  };
  view_->onPointer([this](SurfacePoint at) { machine_.input.pointerCame(pixelOf(at)); });
  // The mouse alone can keep a word and begin an exercise.
  view_->onMiddleClick = [this] { sendStroke(Qt::Key_Return); };
  view_->onFocusChanged = [this] {
    const bool onMenu = as<Button>(program_.form().ActiveControl()) != nullptr;
    strip_->setPlace(onMenu ? StripPlace::Menu : StripPlace::Page);
    machine_.gate.holdMovesWhileArrowDown(onMenu);
    if (isVisible()) warmSoon_.start();
    if (onMenu) {
      QMetaObject::invokeMethod(
          this, [this] { settleHover(); }, Qt::QueuedConnection);
    }
  };
  view_->onSettled = [this] { strip_->setHelp(shown(keyHelp(program_.form()))); };
  view_->onCameUp = [this](const Surface& surface) {
    if (QAccessible::isActive()) announcer_->tell(shown(announcementOf(surface)));
  };
}

void Window::connectMachine() {
  machine_.screen.refresh = [this] { refresh(); };
  machine_.gate.opened = [this] {
    machine_.input.deliverSent();
    if (endWanted_) {
      closeAtOnce();
    } else if (closeWanted_) {
      askToClose();
    }
  };
  machine_.clock.closingIsWanted = [this] { return closeWanted_ || endWanted_; };
  machine_.boxes.owner = this;
  machine_.boxes.opening = [this] { program_.input().endPress(); };
  machine_.narrator.sign = [this](const QString& text) { strip_->notice(text); };
  machine_.narrator.say = [this](const QString& text) { announcer_->tell(text); };
  machine_.events.programRuns = [this] { return program_.running() && !bridge_.failed(); };
}

void Window::connectInput() {
  DesktopInput& input = machine_.input;
  input.toGlobal = [this](PixelPoint point) {
    return mapToGlobal((origin_ + QPointF(point.x, point.y) * scale_).toPoint());
  };
  input.fromGlobal = [this](QPoint point) {
    const QPointF local = (QPointF(mapFromGlobal(point)) - origin_) / scale_;
    return PixelPoint{static_cast<int>(local.x()), static_cast<int>(local.y())};
  };
  input.happened = [this](const SyntheticEvent& event) {
    bridge_.deliver([&] {
      if (const auto* stroke = std::get_if<SyntheticKey>(&event)) machine_.keys.take(*stroke);
      program_.input().deliver(event, shiftDown());
    });
  };
  input.moveTo = [this](PixelPoint at) {
    bridge_.deliver([&] { program_.input().deliverMove(virtualScreen().toForm(at), shiftDown()); });
  };
  mouseKeys_.movePointer = [this](PixelPoint at) {
    machine_.input.SetCursorPos(at);
    machine_.input.pointerCame(at);
  };
}

// -- Coming up.

void Window::refresh() {
  if (!program_.form().Visible()) return;
  if (!isVisible()) showOnScreen();
  view_->repaintNow();
}

void Window::showOnScreen() {
  // Without a window manager nobody else makes it as large as the screen.
  setGeometry(screen()->geometry());
  arrange();
  view_->onCaptionChanged();
  // The landscape is drawn while the window comes up.
  view_->prepare();
  showFullScreen();
  arrange();
  // The background is to be seen while the program loads.
  if (windowHandle() != nullptr && !windowHandle()->isExposed()) {
    QEventLoop wait;
    ExposeWatch exposed(*windowHandle(), wait);
    QTimer::singleShot(ExposeMs, &wait, &QEventLoop::quit);
    wait.exec();
  }
  warmSoon_.start();
}

void Window::warmFonts() {
  warmer_.warm(stylesOf(program_.controls()), pixelsPerTwip() * devicePixelRatioF());
}

void Window::warmFontsNow() {
  warmFonts();
  warmer_.finish();
}

void Window::arrange() {
  const double virtualWidth = machine_.screen.pixelWidth();
  const double virtualHeight = machine_.screen.pixelHeight();
  scale_ = std::min(width() / virtualWidth, height() / virtualHeight);
  origin_ = {(width() - virtualWidth * scale_) / 2, (height() - virtualHeight * scale_) / 2};
  const double top = origin_.y() + program_.form().captionHeight() * pixelsPerTwip();
  const QRect strip(qRound(origin_.x()), qRound(origin_.y()), qRound(virtualWidth * scale_),
                    qRound(top) - qRound(origin_.y()));
  strip_->setGeometry(strip);
  view_->setGeometry(strip.x(), strip.bottom() + 1, strip.width(),
                     qRound(origin_.y() + virtualHeight * scale_) - strip.bottom() - 1);
  view_->setScale(pixelsPerTwip());
  QFont tip = fontFor(FontSpec{"x1", 10, false});
  tip.setPixelSize(std::max(1, qRound(TipSize * scale_)));
  QToolTip::setFont(tip);
}

void Window::resizeEvent(QResizeEvent*) {
  if (program_.form().Height() > 0) arrange();
}

void Window::paintEvent(QPaintEvent*) {
  QPainter(this).fillRect(rect(), LetterboxColour);
}

void Window::settleHover() {
  // The pointer came to a button in one jump, while another one was animated: that animation has
  // ended by now, and this one's is due.
  auto* const button = as<Button>(program_.form().ActiveControl());
  if (button == nullptr || !program_.running() || program_.hoveredButton() == button->TabIndex()) {
    return;
  }
  const SurfacePoint pointer = virtualScreen().toForm(machine_.input.cursorPos());
  if (program_.input().meantAt(pointer) != button || machine_.keys.arrowDown()) return;
  bridge_.deliver([&] { program_.input().deliverMove(pointer, shiftDown()); });
}

// -- Input.

void Window::keyPressEvent(QKeyEvent* event) {
  const int code = keyCodeOf(*event);
  if (mouseKeys_.press(code, shiftOf(event->modifiers()), event->isAutoRepeat())) return;
  if (code == 0 && characterOf(*event) == 0) return;
  // A stroke that was held back is news to the loops that poll only now.
  machine_.keys.latch(code);
  bridge_.deliver(
      [&] { program_.input().pressKey(code, shiftOf(event->modifiers()), characterOf(*event)); });
}

// Through the window system's door, so that a stroke counts also for loops that poll while the
// program sleeps.
void Window::sendStroke(Qt::Key key) {
  if (windowHandle() == nullptr) return;
  for (const QEvent::Type half : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QCoreApplication::postEvent(windowHandle(), new QKeyEvent(half, key, Qt::NoModifier)); // NOLINT
  }
}

void Window::keyReleaseEvent(QKeyEvent* event) {
  const int code = keyCodeOf(*event);
  if (event->isAutoRepeat() || code == 0 || mouseKeys_.release(code)) return;
  bridge_.deliver([&] { program_.input().releaseKey(code, shiftOf(event->modifiers())); });
}

void Window::focusOutEvent(QFocusEvent*) {
  // Another window is in front, which gets the release of a button that is held.
  program_.input().endPress();
}

int Window::shiftDown() const {
  return mouseKeys_.shiftDown(machine_.keys);
}

void Window::closeEvent(QCloseEvent* event) {
  event->ignore();
  askToClose();
}

bool Window::waitsFor(bool& wish) {
  wish = machine_.gate.isShut();
  if (wish) machine_.clock.wake();
  return wish;
}

void Window::askToClose() {
  if (sessionEnd_.isValid() && !sessionEnd_.hasExpired(SessionEndMs)) {
    closeAtOnce();
    return;
  }
  if (waitsFor(closeWanted_)) return;
  bridge_.deliver([this] { program_.closeWindow(); });
}

void Window::closeAtOnce() {
  if (waitsFor(endWanted_)) return;
  bridge_.deliver([this] { program_.closeAtOnce(); });
}

void Window::sessionEnds() {
  sessionEnd_.start();
  bridge_.deliver([this] { program_.keep(); });
}

void Window::comeUp() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  raise();
  activateWindow();
}

} // namespace talvora
