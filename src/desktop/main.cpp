// talvora: the tutor in its window.

#include "desktop/DesktopMachine.h"
#include "desktop/DisplayGuard.h"
#include "desktop/EventBridge.h"
#include "desktop/Fonts.h"
#include "desktop/StateTrace.h"
#include "desktop/Window.h"
#include "program/Program.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QScreen>
#include <QTimer>

#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <random>

namespace {

struct Options {
  std::filesystem::path directory;
  std::string trace;
};

Options readOptions(const QCoreApplication& application) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("A tutor of English for speakers of Vietnamese."));
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption directory(
      QStringLiteral("dir"), QStringLiteral("The content pack; the current directory without it."),
      QStringLiteral("folder"));
  const QCommandLineOption trace(
      QStringLiteral("trace"),
      QStringLiteral("Write a line for each change of what is shown, for a report of a fault."),
      QStringLiteral("file"));
  parser.addOptions({directory, trace});
  parser.process(application);
  Options options;
  options.directory = parser.isSet(directory)
                          ? std::filesystem::path(parser.value(directory).toStdString())
                          : std::filesystem::current_path();
  if (parser.isSet(trace)) {
    options.trace = std::filesystem::absolute(parser.value(trace).toStdString()).string();
  }
  return options;
}

/// Size of the screen in its own pixels, whatever a logical pixel is.
QSize realScreenSize() {
  const QScreen& screen = *QGuiApplication::primaryScreen();
  return (QSizeF(screen.size()) * screen.devicePixelRatio()).toSize();
}

} // namespace

int main(int argc, char** argv) {
  auto guard = std::make_optional<talvora::DisplayGuard>();
  QApplication application(argc, argv);
  guard.reset();
  QApplication::setApplicationName(QStringLiteral("talvora"));
  QApplication::setApplicationVersion(QStringLiteral(TALVORA_VERSION));
  QApplication::setQuitOnLastWindowClosed(false);
  const Options options = readOptions(application);
  std::error_code missing;
  std::filesystem::current_path(options.directory, missing);
  if (missing) {
    std::cerr << options.directory.string() << ": " << missing.message() << '\n';
    return 2;
  }
  talvora::loadFonts();

  talvora::DesktopMachine machine(talvora::virtualScreenFor(realScreenSize()),
                                  std::random_device{}(), std::filesystem::current_path());
  talvora::Program program(machine.platform, std::filesystem::current_path().string());
  talvora::EventBridge bridge;
  talvora::Window window(machine, program, bridge);
  std::unique_ptr<talvora::StateTrace> trace;
  if (!options.trace.empty()) {
    trace = std::make_unique<talvora::StateTrace>(options.trace, program);
    trace->onScreen = [&](talvora::SurfacePoint point) { return window.pixelOf(point); };
  }

  bridge.afterEvent = [&] {
    if (trace) trace->note();
    if (!program.running()) QApplication::exit(0);
  };
  bridge.onFailure = [&](const std::string& message) {
    std::cerr << message << std::endl;
    program.fail();
    talvora::showFailure(message, window.isVisible() ? &window : nullptr);
  };
  QTimer::singleShot(0, &window, [&] { bridge.deliver([&] { program.Main(); }); });
  QTimer::singleShot(1000, &window, [] { talvora::warmFonts(); });
  QApplication::exec();
  return program.ending() == talvora::Ending::Failure ? 1 : 0;
}
