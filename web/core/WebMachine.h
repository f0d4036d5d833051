// The machine that a browser is: time, keys, pointer, boxes and sound, through the worker.
#pragma once

#include "core/Host.h"
#include "fronts/KeyTable.h"
#include "platform/Platform.h"

#include <emscripten.h>

#include <deque>
#include <functional>
#include <string>
#include <variant>

namespace talvora::web {

/// What the page has told and the program has not had yet. It keeps the key table also while the
/// program sleeps.
class Inbox {
 public:
  /// Takes in what has come; keys count at once for loops that poll them.
  void gather();
  /// Waits until something comes or the time is over, and takes it in; less than 0 waits for ever.
  void wait(double ms);
  /// The same while nothing is delivered.
  void sleep(double ms);
  /// What is to be delivered next.
  [[nodiscard]] std::optional<Event> next();
  [[nodiscard]] bool hasNext() const { return findNext() != waiting_.end(); }

  /// While the program lets events run inside a loop of its own, one move of the pointer is let
  /// through and the others wait: a second one would start a loop inside that loop.
  void beginPump();
  void endPump();
  /// Whether the pointer's moves wait while an arrow is down, as they do over the menu: the button
  /// that the focus came to is animated when the arrow is let go.
  std::function<bool()> arrowHoldsMoves = [] { return false; };

  [[nodiscard]] bool closeWanted() const noexcept { return closeWanted_; }
  void closeDelivered() noexcept { closeWanted_ = false; }
  /// Milliseconds since the learner last touched anything.
  [[nodiscard]] double quietMs() const { return emscripten_get_now() - lastInput_; }
  /// Takes the answer to a box out of what has come.
  [[nodiscard]] std::optional<bool> takeAnswer();

  /// Brings to the page what has changed; set by whoever paints.
  std::function<void()> paint = [] {};
  KeyTable keys;

 private:
  using Waiting = std::deque<Event>;

  void note(const Event& event);
  [[nodiscard]] Waiting::const_iterator findNext() const;

  Waiting waiting_;
  double lastInput_ = 0;
  int pumps_ = 0;
  bool asleep_ = false;
  bool moveLetThrough_ = false;
  bool closeWanted_ = false;
};

class WebClock final : public Clock {
 public:
  explicit WebClock(Inbox& inbox) : inbox_(inbox) {}

  [[nodiscard]] std::int64_t nowMs() const override {
    return static_cast<std::int64_t>(emscripten_get_now());
  }
  [[nodiscard]] Flow Sleep(int ms) override;

 private:
  Inbox& inbox_;
};

class WebEventLoop final : public EventLoop {
 public:
  explicit WebEventLoop(Inbox& inbox) : inbox_(inbox) {}

  Flow letEventsRun() override;
  Flow letEventsRunUntilNextFrame() override;

  /// Delivers what has come; set by the program's owner.
  std::function<void()> deliver = [] {};
  std::function<bool()> programRuns = [] { return true; };

 private:
  void pump();
  [[nodiscard]] Flow flow() const { return programRuns() ? Flow::Continue : Flow::Interrupt; }

  Inbox& inbox_;
  double nextFrame_ = 0;
};

/// The page's pointer cannot be moved: where the program brings it, it is taken to be.
class WebInput final : public Input {
 public:
  /// The program has moved the pointer.
  struct Move {
    PixelPoint at;
  };
  using Sent = std::variant<SyntheticEvent, Move>;

  explicit WebInput(Inbox& inbox) : inbox_(inbox) {}

  bool GetAsyncKeyState(int keyCode) override;
  void SetCursorPos(PixelPoint point) override;
  [[nodiscard]] PixelPoint cursorPos() const override { return pointer_; }
  void sendClick(MouseButton button) override { sent_.push_back(SyntheticClick{button, pointer_}); }
  void sendClickAside(MouseButton) override {}
  void sendKey(int keyCode, KeyMotion motion) override {
    sent_.push_back(SyntheticKey{keyCode, motion});
  }

  /// The learner has brought the pointer there.
  void pointerCame(PixelPoint point) noexcept { pointer_ = point; }
  [[nodiscard]] std::optional<Sent> takeSent();

 private:
  Inbox& inbox_;
  PixelPoint pointer_;
  std::deque<Sent> sent_;
};

class WebSpeech final : public SpeechEngine {
 public:
  void Speak(std::string_view text) override;
  void StopSpeaking() override;
  [[nodiscard]] bool IsSpeaking() const override { return talvoraSpeaks() != 0; }
  void Speed(int wordsPerMinute) override { wordsPerMinute_ = wordsPerMinute; }
  bool Select(int voice) override;

 private:
  int wordsPerMinute_ = 175;
  int voice_ = 1;
};

class WebWave final : public WavePlayer {
 public:
  void Open(const std::string& path) override;
  void Close() override;
  void Play(int from, int to) override;
  void Stop() override;
  [[nodiscard]] int Mode() const override { return talvoraPlays() != 0 ? Playing : Stopped; }
};

class WebBoxes final : public Boxes {
 public:
  explicit WebBoxes(Inbox& inbox) : inbox_(inbox) {}

  BoxAnswer ask(std::string_view text, std::string_view title, BoxAnswer byDefault) override;
  void tell(std::string_view text) override;

  std::function<void()> opening = [] {};

 private:
  [[nodiscard]] bool waitForAnswer();

  Inbox& inbox_;
};

class WebScreen final : public Screen {
 public:
  /// Size in pixels.
  WebScreen(Inbox& inbox, int width, int height) : inbox_(inbox), width_(width), height_(height) {}

  [[nodiscard]] int pixelWidth() const override { return width_; }
  [[nodiscard]] int pixelHeight() const override { return height_; }
  void Refresh() override { inbox_.paint(); }
  /// Steps follow each other sixty times a second.
  void RefreshStep() override;

 private:
  Inbox& inbox_;
  int width_;
  int height_;
  double nextStep_ = 0;
};

/// A page may not read the clipboard, so that it clears nothing that is not its own.
class WebClipboard final : public Clipboard {
 public:
  void clear() override {}
};

/// Fonts and voice come with the page.
class WebInstallation final : public Installation {
 public:
  void installFonts() override {}
  [[nodiscard]] bool speechEngineInstalled() const override { return true; }
  [[nodiscard]] bool englishVoiceInstalled() const override { return true; }
  void run(const std::string&) override {}
};

class WebNarrator final : public Narrator {
 public:
  void messageShown(const std::string&, int) override {}
  void messageTakenDown() override {}
  void frameShown(int, int) override {}
  void curtainOpened(const std::string&) override {}
  void wordTaken(const std::string& word, WordTaken outcome, int count) override;
  void answerJudged(Verdict verdict) override;
};

class WebCalendar final : public Calendar {
 public:
  [[nodiscard]] Moment now() const override;
};

} // namespace talvora::web
