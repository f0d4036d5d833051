#include "core/WebMachine.h"

#include "core/Message.h"
#include "fronts/Notes.h"
#include "text/GlyphMap.h"
#include "text/Text.h"

#include <algorithm>
#include <ctime>
#include <utility>

namespace talvora::web {

namespace {

constexpr double FrameMs = 1000.0 / 60;
/// A picture that nobody has looked at for so long moves no more.
constexpr double RestAfterMs = 20'000;
constexpr double LongestMovementPauseMs = 200;
constexpr double ForEver = -1;
constexpr int Voices = 10;

bool isInput(EventKind kind) {
  return kind != EventKind::Answer && kind != EventKind::Hidden;
}

} // namespace

// -- What the page tells.

void Inbox::note(const Event& event) {
  if (isInput(event.kind)) lastInput_ = emscripten_get_now();
  const bool repeats = event.kind == EventKind::KeyDown && event.extra != 0;
  // A key that is held down while the program sleeps counts once.
  if (repeats && asleep_) return;
  if (event.kind == EventKind::KeyDown && !repeats) keys.press(event.x);
  if (event.kind == EventKind::KeyUp) keys.release(event.x);
  if (event.kind == EventKind::Blur) keys.releaseAll();
  if (event.kind == EventKind::Close) closeWanted_ = true;
  // Of several moves in a row only the last one counts.
  const bool moves =
      event.kind == EventKind::Move && !waiting_.empty() && waiting_.back().kind == EventKind::Move;
  if (moves) waiting_.pop_back();
  waiting_.push_back(event);
}

void Inbox::gather() {
  while (const auto event = takeEvent())
    note(*event);
}

void Inbox::wait(double ms) {
  talvoraWait(ms);
  gather();
}

void Inbox::sleep(double ms) {
  const bool outer = std::exchange(asleep_, true);
  wait(ms);
  asleep_ = outer;
}

Inbox::Waiting::const_iterator Inbox::findNext() const {
  const bool holdMoves = (pumps_ > 0 && moveLetThrough_) || (keys.arrowDown() && arrowHoldsMoves());
  return std::find_if(waiting_.begin(), waiting_.end(), [&](const Event& each) {
    return !holdMoves || each.kind != EventKind::Move;
  });
}

std::optional<Event> Inbox::next() {
  gather();
  const auto found = findNext();
  if (found == waiting_.end()) return std::nullopt;
  const Event event = *found;
  waiting_.erase(found);
  if (event.kind == EventKind::Move) moveLetThrough_ = true;
  return event;
}

void Inbox::beginPump() {
  ++pumps_;
  moveLetThrough_ = false;
}

void Inbox::endPump() {
  --pumps_;
  moveLetThrough_ = false;
}

std::optional<bool> Inbox::takeAnswer() {
  const auto answer = std::find_if(waiting_.begin(), waiting_.end(), [](const Event& each) {
    return each.kind == EventKind::Answer;
  });
  if (answer == waiting_.end()) return std::nullopt;
  const bool agreed = answer->x != 0;
  waiting_.erase(answer);
  return agreed;
}

// -- Time.

Flow WebClock::Sleep(int ms) {
  if (ms > 0 && !inbox_.closeWanted()) {
    inbox_.paint();
    const double end = emscripten_get_now() + ms;
    for (double left = ms; left > 0 && !inbox_.closeWanted(); left = end - emscripten_get_now())
      inbox_.sleep(left);
  }
  return inbox_.closeWanted() ? Flow::Interrupt : Flow::Continue;
}

void WebEventLoop::pump() {
  inbox_.beginPump();
  deliver();
  inbox_.endPump();
}

Flow WebEventLoop::letEventsRun() {
  pump();
  return flow();
}

Flow WebEventLoop::letEventsRunUntilNextFrame() {
  inbox_.paint();
  inbox_.gather();
  if (!inbox_.hasNext()) {
    const bool rests = inbox_.quietMs() > RestAfterMs;
    const double wait = std::clamp(nextFrame_ - emscripten_get_now(), 0.0, FrameMs);
    inbox_.wait(rests ? ForEver : wait);
    nextFrame_ = emscripten_get_now() + FrameMs;
  }
  pump();
  return flow();
}

void WebScreen::RefreshStep() {
  const double now = emscripten_get_now();
  // A step that comes much later than the one before begins a movement of its own.
  if (now > nextStep_ + LongestMovementPauseMs) nextStep_ = now;
  const double due = std::exchange(nextStep_, nextStep_ + FrameMs);
  if (now > due + FrameMs) return;
  for (double left = due - now; left > 0; left = due - emscripten_get_now())
    inbox_.sleep(left);
  inbox_.paint();
}

// -- Keys and pointer.

bool WebInput::GetAsyncKeyState(int keyCode) {
  inbox_.gather();
  return inbox_.keys.takePressed(keyCode);
}

void WebInput::SetCursorPos(PixelPoint point) {
  pointer_ = point;
  sent_.push_back(Move{point});
}

std::optional<WebInput::Sent> WebInput::takeSent() {
  if (sent_.empty()) return std::nullopt;
  const Sent next = sent_.front();
  sent_.pop_front();
  return next;
}

// -- Sound.

void WebSpeech::Speak(std::string_view text) {
  const std::string words = plainAscii(text);
  if (words.find_first_not_of(' ') == std::string::npos) return;
  tellPage({{"do", "speak"}, {"text", words}, {"speed", wordsPerMinute_}, {"voice", voice_}});
}

void WebSpeech::StopSpeaking() {
  tellPage({{"do", "hush"}});
}

bool WebSpeech::Select(int voice) {
  if (voice < 1 || voice > Voices) return false;
  voice_ = voice;
  return true;
}

void WebWave::Open(const std::string& path) {
  tellPage({{"do", "openWave"}, {"file", path}});
}

void WebWave::Close() {
  tellPage({{"do", "closeWave"}});
}

void WebWave::Play(int from, int to) {
  tellPage({{"do", "playWave"}, {"from", from}, {"to", to}});
}

void WebWave::Stop() {
  tellPage({{"do", "stopWave"}});
}

// -- What the page shows by itself.

bool WebBoxes::waitForAnswer() {
  for (;;) {
    if (const auto answer = inbox_.takeAnswer()) return *answer;
    inbox_.wait(ForEver);
  }
}

BoxAnswer WebBoxes::ask(std::string_view text, std::string_view, BoxAnswer byDefault) {
  opening();
  const bool yes = byDefault == BoxAnswer::Yes;
  tellPage({{"do", "ask"}, {"text", utf8Of(toUnicode(text, Encoding::X1))}, {"yes", yes}});
  return waitForAnswer() ? BoxAnswer::Yes : BoxAnswer::No;
}

void WebBoxes::tell(std::string_view text) {
  opening();
  tellText("tell", toUnicode(text, Encoding::X1));
  static_cast<void>(waitForAnswer());
}

void WebNarrator::wordTaken(const std::string& word, WordTaken outcome, int count) {
  tellText("notice", noteOf(word, outcome, count));
}

void WebNarrator::answerJudged(Verdict verdict) {
  tellText("say", noteOf(verdict));
}

Moment WebCalendar::now() const {
  const std::time_t seconds = std::time(nullptr);
  const std::tm& now = *std::localtime(&seconds);
  return {now.tm_year + 1900, now.tm_mon + 1, now.tm_mday, now.tm_hour, now.tm_min, now.tm_sec};
}

} // namespace talvora::web
