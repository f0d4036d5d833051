#include "OpenTutor.h"

#include "text/CharClass.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>
#include <QWheelEvent>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string_view>
#include <thread>

namespace talvora::bench {

namespace {

constexpr int RestMs = 400;       ///< behind which nothing of the start is under way any more
constexpr int MostPaintMs = 100;  ///< a deed that has led to no painting by then leads to none
constexpr int PauseMs = 600;      ///< that the curtain hangs still
constexpr int LeastPauseMs = 550; ///< a gap of that length between two paintings is that pause
constexpr int WheelNotch = 120;   ///< of Qt's angle units
constexpr int TitleIndent = 3;

[[noreturn]] void giveUp(const std::string& what) {
  std::cerr << what << '\n';
  std::_Exit(1);
}

QSize screenSize() {
  return QGuiApplication::primaryScreen()->size();
}

} // namespace

// -- Painting.

PaintWatch::PaintWatch() {
  qApp->installEventFilter(this);
}

bool PaintWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Paint && watched->isWidgetType()) seen_ = true;
  return false;
}

double OpenTutor::timeToPicture(const std::function<void()>& deed) {
  using Clock = std::chrono::steady_clock;
  const auto since = [](Clock::time_point begin) {
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
  };
  paints_.forget();
  const auto begin = Clock::now();
  deed();
  // What is painted has gone to the window system when the events that paint have been worked off.
  while (!paints_.seen() && since(begin) < MostPaintMs)
    QCoreApplication::processEvents();
  return paints_.seen() ? since(begin) : -1;
}

OpenTutor::Opening OpenTutor::timeOpening() {
  using Clock = std::chrono::steady_clock;
  const auto ms = [](Clock::duration duration) {
    return std::chrono::duration<double, std::milli>(duration).count();
  };
  key(Qt::Key_Escape, '\x1B');
  settle();
  refreshed_.clear();
  const auto begin = Clock::now();
  key(Qt::Key_Return, '\r');
  settle();
  Opening opening;
  for (std::size_t each = 1; each < refreshed_.size(); ++each) {
    if (ms(refreshed_[each] - refreshed_[each - 1]) < LeastPauseMs) continue;
    opening.text = ms(refreshed_[each - 1] - begin);
    opening.curtain = ms(refreshed_.back() - refreshed_[each - 1]) - PauseMs;
  }
  return opening;
}

void OpenTutor::settle() {
  for (int round = 0; round < 3; ++round) {
    QCoreApplication::processEvents();
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
}

// -- Coming up.

OpenTutor::OpenTutor(const std::filesystem::path& pack, int text)
    : pack_(pack), machine_(virtualScreenFor(screenSize()), 1, pack_.path()),
      program_(machine_.platform, pack_.path()), window_(machine_, program_, bridge_) {
  bridge_.onFailure = [](const std::string& message) { giveUp(message); };
  machine_.screen.refresh = [this, paint = machine_.screen.refresh] {
    paint();
    refreshed_.push_back(std::chrono::steady_clock::now());
  };
  startUp();
  openText(text);
}

void OpenTutor::startUp() {
  // The start-up ends in the animation of a button, which goes on until the focus moves.
  QTimer::singleShot(RestMs, &window_, [this] { controls().but(2).SetFocus(); });
  bridge_.deliver([this] { program_.Main(); });
  if (!program_.running()) giveUp("the tutor has ended");
  window_.warmFontsNow();
  settle();
}

void OpenTutor::openText(int text) {
  Surface& R1 = controls().R1;
  bridge_.deliver([&] { controls().but(1).Click(); });
  const std::string list = R1.Text();
  std::size_t line = 0;
  for (int before = 1; before < text; ++before)
    line = list.find('\r', line) + 1;
  R1.SelStart(static_cast<int>(line) + TitleIndent);
  key(Qt::Key_Home);
  key(Qt::Key_Return, '\r');
  settle();
  if (!controls().R2.Visible()) giveUp("line " + std::to_string(text) + " is no text");
  bridge_.deliver([this] { controls().RDOS.Visible(false); });
  settle();
}

std::vector<int> OpenTutor::wordsInView() {
  const Surface& R2 = controls().R2;
  const std::string text = R2.Text();
  std::vector<int> carets;
  for (std::size_t from = 0; from < text.size();) {
    std::size_t to = from;
    while (to < text.size() && Letters.has(text[to]))
      ++to;
    const int middle = static_cast<int>((from + to) / 2);
    const int y = R2.pointOf(middle).y;
    if (to - from >= 3 && y >= 0 && y < R2.Height()) carets.push_back(middle);
    from = to + 1;
  }
  return carets;
}

// -- Mouse and keys.

QPoint OpenTutor::pixelOf(const Surface& surface, SurfacePoint at) {
  return machine_.input.toGlobal(window_.pixelOf({surface.Left() + at.x, surface.Top() + at.y}));
}

void OpenTutor::sendMouse(QEvent::Type type, QPoint global, Qt::MouseButton button) {
  const QPoint local = window_.mapFromGlobal(global);
  QWidget* const target = window_.childAt(local);
  if (target == nullptr) giveUp("the pointer left the window");
  const Qt::MouseButtons down =
      type == QEvent::MouseButtonPress ? Qt::MouseButtons(button) : Qt::NoButton;
  QMouseEvent event(type, target->mapFrom(&window_, local), global, button, down, Qt::NoModifier);
  QCoreApplication::sendEvent(target, &event);
}

void OpenTutor::movePointerTo(Surface& surface, int caret) {
  sendMouse(QEvent::MouseMove, pixelOf(surface, surface.pointOf(caret)), Qt::NoButton);
}

void OpenTutor::click(Surface& surface, int caret) {
  const QPoint at = pixelOf(surface, surface.pointOf(caret));
  sendMouse(QEvent::MouseButtonPress, at, Qt::LeftButton);
  sendMouse(QEvent::MouseButtonRelease, at, Qt::LeftButton);
}

void OpenTutor::wheel(Surface& surface, int notches) {
  const QPoint global = pixelOf(surface, {surface.Width() / 2, surface.Height() / 2});
  const QPoint local = window_.mapFromGlobal(global);
  QWidget* const target = window_.childAt(local);
  if (target == nullptr) giveUp("the pointer left the window");
  QWheelEvent event(target->mapFrom(&window_, local), global, {}, {0, notches * WheelNotch},
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(target, &event);
}

void OpenTutor::key(int qtKey, char character, Qt::KeyboardModifiers modifiers) {
  const QString text = character == 0 ? QString() : QString(QLatin1Char(character));
  QKeyEvent down(QEvent::KeyPress, qtKey, modifiers, text);
  QCoreApplication::sendEvent(&window_, &down);
  QKeyEvent up(QEvent::KeyRelease, qtKey, modifiers, text);
  QCoreApplication::sendEvent(&window_, &up);
}

double residentMegabytes() {
  std::ifstream status("/proc/self/status");
  std::string line;
  while (std::getline(status, line)) {
    if (line.starts_with("VmRSS:")) return std::stod(line.substr(6)) / 1024;
  }
  return 0;
}

} // namespace talvora::bench
