// The desk of a scripted machine: a screen that nobody sees, a clipboard, what is installed, and a
// narrator that writes down.
#pragma once

#include "platform/Desk.h"
#include "platform/scripted/ScriptedLog.h"

#include <cstdint>
#include <vector>

namespace talvora {

class ScriptedScreen final : public Screen {
 public:
  ScriptedScreen(int width, int height) : width_(width), height_(height) {}

  [[nodiscard]] int pixelWidth() const override { return width_; }
  [[nodiscard]] int pixelHeight() const override { return height_; }
  void Refresh() override {}

 private:
  int width_;
  int height_;
};

class ScriptedClipboard final : public Clipboard {
 public:
  explicit ScriptedClipboard(ScriptedLog& log) : log_(log) {}

  void clear() override { log_.add("clipboard", {{"cleared", true}}); }

 private:
  ScriptedLog& log_;
};

class ScriptedInstallation final : public Installation {
 public:
  /// The engine and its English voice are there exactly when there is a voice at all.
  ScriptedInstallation(ScriptedLog& log, int voices) : log_(log), voices_(voices) {}

  void installFonts() override {}
  [[nodiscard]] bool speechEngineInstalled() const override { return voices_ > 0; }
  [[nodiscard]] bool englishVoiceInstalled() const override { return voices_ > 0; }
  void run(const std::string& program) override { log_.add("run", {{"program", program}}); }

 private:
  ScriptedLog& log_;
  int voices_;
};

class ScriptedNarrator final : public Narrator {
 public:
  explicit ScriptedNarrator(ScriptedLog& log) : log_(log) {}

  void messageShown(const std::string& text, int ms) override {
    log_.add("message", {{"text", text}, {"ms", logNumber(ms)}});
  }
  void messageTakenDown() override { log_.add("untold"); }
  void frameShown(int button, int frame) override {
    ++framesShown_;
    log_.add("picture",
             {{"button", logText("but" + std::to_string(button))}, {"frame", logNumber(frame)}});
  }
  void curtainOpened(const std::string& surface) override {
    log_.add("curtain", {{"surface", surface}});
  }

  void wordTaken(const std::string& word, WordTaken outcome, int count) override {
    lastTaken_ = {word, outcome, count};
  }
  void answerJudged(Verdict verdict) override { verdicts_.push_back(verdict); }

  /// What the learner last wanted to keep, and what became of it.
  struct Taken {
    std::string word;
    WordTaken outcome = WordTaken::Stored;
    int count = 0;

    friend bool operator==(const Taken&, const Taken&) = default;
  };
  [[nodiscard]] const Taken& lastTaken() const noexcept { return lastTaken_; }
  /// How answers were judged, in order.
  [[nodiscard]] const std::vector<Verdict>& verdicts() const noexcept { return verdicts_; }

  /// Animation pictures shown so far.
  [[nodiscard]] std::int64_t framesShown() const noexcept { return framesShown_; }

 private:
  ScriptedLog& log_;
  std::int64_t framesShown_ = 0;
  Taken lastTaken_;
  std::vector<Verdict> verdicts_;
};

} // namespace talvora
