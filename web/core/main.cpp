// The program in a worker: starts when the worker says so, and takes what the page tells.

#include "core/Message.h"
#include "core/Picture.h"
#include "core/Router.h"
#include "core/Signs.h"
#include "core/WebFiles.h"
#include "core/WebMachine.h"
#include "platform/FatalFailure.h"
#include "program/Program.h"

#include <emscripten.h>

#include <exception>
#include <memory>
#include <random>
#include <utility>

namespace talvora::web {

namespace {

/// The machine and the program on it, for one run.
class Run {
 public:
  Run(int width, int height, std::span<const unsigned char> measures)
      : faces_(measures), layout_(faces_), metrics_(faces_), screen_(inbox_, width, height) {
    inbox_.paint = [this] {
      picture_.send();
      signs_.send();
    };
    boxes_.opening = [this] {
      program_.input().endPress();
      picture_.send();
    };
    inbox_.arrowHoldsMoves = [this] { return focusedButton() != nullptr; };
    events_.deliver = [this] { deliverAll(); };
    events_.programRuns = [this] { return program_.running() && !failed_; };
  }

  void start() {
    guarded([this] { program_.Main(); });
    // The first run has set up what it had to: the next program comes up on it.
    afterwards();
  }

  /// Delivers what has come while nothing was going on.
  void pump() {
    guarded([this] { deliverAll(); });
    guarded([this] { settleHover(); });
    afterwards();
  }

  [[nodiscard]] Ending ending() const noexcept { return program_.ending(); }

 private:
  template <class Deed>
  void guarded(Deed deed) {
    if (failed_) return;
    try {
      deed();
    } catch (const FatalFailure& failure) {
      fail(failure.what());
    } catch (const std::exception& fault) {
      fail(std::string("internal fault: ") + fault.what());
    }
  }

  void fail(const std::string& message) {
    failed_ = true;
    program_.fail();
    tellPage({{"do", "failed"}, {"text", message}});
  }

  void deliverAll() {
    while (program_.running()) {
      if (const auto sent = input_.takeSent()) {
        router_.deliver(*sent);
      } else if (const auto event = inbox_.next()) {
        router_.deliver(*event);
      } else {
        return;
      }
    }
  }

  [[nodiscard]] Button* focusedButton() { return as<Button>(program_.form().ActiveControl()); }

  /// The pointer came to a button in one jump, while another one was animated: that animation has
  /// ended by now, and this one's is due.
  void settleHover() {
    for (const Button* before = nullptr; program_.running();) {
      const Button* const button = focusedButton();
      const SurfacePoint pointer = program_.form().virtualScreen().toForm(input_.cursorPos());
      const bool isDue = button != nullptr && program_.hoveredButton() != button->TabIndex() &&
                         program_.input().meantAt(pointer) == button && !inbox_.keys.arrowDown();
      if (!isDue || button == before) return;
      before = button;
      program_.input().deliverMove(pointer, shift::None);
    }
  }

  void afterwards() {
    inbox_.paint();
    const bool over = !program_.running() && !failed_ && program_.ending() == Ending::Quit;
    if (over && !std::exchange(endTold_, true)) tellPage({{"do", "ended"}});
  }

  Faces faces_;
  WebLineLayout layout_;
  WebTextMetrics metrics_;
  Inbox inbox_;
  WebClock clock_{inbox_};
  WebEventLoop events_{inbox_};
  WebInput input_{inbox_};
  WebSpeech speech_;
  WebWave wave_;
  WebBoxes boxes_{inbox_};
  WebScreen screen_;
  WebClipboard clipboard_;
  WebInstallation installation_;
  WebNarrator narrator_;
  Random random_{std::random_device{}()};
  WebFiles files_;
  WebCalendar calendar_;
  Platform platform_{clock_,        events_,   input_,  speech_, wave_,
                     metrics_,      layout_,   boxes_,  screen_, clipboard_,
                     installation_, narrator_, random_, files_,  calendar_};
  Program program_{platform_, {PackFolder, LearnerFolder}};
  Picture picture_{program_.form(), layout_, faces_};
  Signs signs_{program_.form(), program_.input()};
  Router router_{program_, input_, inbox_, layout_};
  bool failed_ = false;
  bool endTold_ = false;
};

// The worker calls functions that are given nothing.
std::unique_ptr<Run> run;

} // namespace

} // namespace talvora::web

extern "C" {

/// Starts the program on a virtual screen of so many pixels; `measures` are those of the faces.
EMSCRIPTEN_KEEPALIVE void talvoraStart(int width, int height, const unsigned char* measures,
                                       std::size_t size) {
  using namespace talvora;
  const auto begin = [&] {
    web::run.reset();
    web::run = std::make_unique<web::Run>(width, height, std::span(measures, size));
    web::run->start();
  };
  begin();
  if (web::run->ending() == Ending::FirstRun) begin();
}

EMSCRIPTEN_KEEPALIVE void talvoraPump() {
  if (talvora::web::run) talvora::web::run->pump();
}
}
