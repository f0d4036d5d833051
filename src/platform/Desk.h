// The desk: what lies around the program on a desktop. Screen, clipboard, other programs and what
// is installed.
#pragma once

#include <string>

namespace talvora {

/// The screen that the one window fills.
class Screen {
 public:
  virtual ~Screen() = default;

  /// Size of the virtual screen in pixels; 15 twips to a pixel.
  [[nodiscard]] virtual int pixelWidth() const = 0;
  [[nodiscard]] virtual int pixelHeight() const = 0;
  /// Paints at once what has changed.
  virtual void Refresh() = 0;
  /// Paints a step of a movement. A front paces the steps by its clock, so that a movement takes
  /// the same time everywhere, and passes over a picture for which it comes too late.
  virtual void RefreshStep() { Refresh(); }
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;

  virtual void clear() = 0;
};

/// What the first run looks for and sets up.
class Installation {
 public:
  virtual ~Installation() = default;

  /// Makes the text fonts usable.
  virtual void installFonts() = 0;
  [[nodiscard]] virtual bool speechEngineInstalled() const = 0;
  [[nodiscard]] virtual bool englishVoiceInstalled() const = 0;
  /// Starts another program without waiting for it.
  virtual void run(const std::string& program) = 0;
};

/// What became of a word that the learner wanted to keep.
enum class WordTaken { Stored, WasThere, TooLong };

/// How many places of an item the learner has answered right; most items have one.
struct Verdict {
  int right = 0;
  int places = 1;

  friend bool operator==(const Verdict&, const Verdict&) = default;
};

/// A narrator is told what the program shows, for those who do not see it: a screen reader, a log.
class Narrator {
 public:
  virtual ~Narrator() = default;

  /// A message is shown for `ms` milliseconds; 0 means until it is taken down.
  virtual void messageShown(const std::string& text, int ms) = 0;
  virtual void messageTakenDown() = 0;
  /// The menu button of that number, 1 to 18, shows an animation frame, 1 to 14.
  virtual void frameShown(int button, int frame) = 0;
  /// The curtain opens over the surface of that name.
  virtual void curtainOpened(const std::string& surface) = 0;
  /// Enter was pressed on a word; `count` is how many words the list holds now.
  virtual void wordTaken(const std::string& /*word*/, WordTaken /*outcome*/, int /*count*/) {}
  /// An answer was judged; the page tells it by colours alone.
  virtual void answerJudged(Verdict /*verdict*/) {}
};

} // namespace talvora
