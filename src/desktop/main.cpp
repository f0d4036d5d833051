// talvora: the tutor in its window.

#include "desktop/CommandLine.h"
#include "desktop/DesktopMachine.h"
#include "desktop/DisplayGuard.h"
#include "desktop/EndSignals.h"
#include "desktop/EventBridge.h"
#include "desktop/Fonts.h"
#include "desktop/RunningProgram.h"
#include "desktop/StateTrace.h"
#include "desktop/Window.h"
#include "learner/FindFolders.h"
#include "learner/LearnerLock.h"
#include "program/Program.h"

#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QSessionManager>
#include <QStandardPaths>
#include <QTimer>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <random>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

constexpr int Failed = 1;
constexpr int BadUse = 2;
/// How long the end may take when all is stored.
constexpr std::chrono::seconds LettingGo(3);

/// Size of the screen in its own pixels, whatever a logical pixel is.
QSize realScreenSize() {
  const QScreen& screen = *QGuiApplication::primaryScreen();
  return (QSizeF(screen.size()) * screen.devicePixelRatio()).toSize();
}

/// The arguments that are left for the toolkit, which takes out what it knows.
class ToolkitArguments {
 public:
  ToolkitArguments(const char* program, std::vector<std::string> rest) : words_(std::move(rest)) {
    words_.insert(words_.begin(), program);
    for (std::string& word : words_)
      pointers_.push_back(word.data());
    count_ = static_cast<int>(pointers_.size());
    pointers_.push_back(nullptr);
  }

  [[nodiscard]] int& count() noexcept { return count_; }
  [[nodiscard]] char** values() noexcept { return pointers_.data(); }
  /// What nobody knew; null when there is nothing.
  [[nodiscard]] const char* unknown() const noexcept { return count_ > 1 ? pointers_[1] : nullptr; }

 private:
  std::vector<std::string> words_;
  std::vector<char*> pointers_;
  int count_ = 0;
};

talvora::FoundFolders findFolders(const talvora::CommandLine& line) {
  talvora::FolderSearch search;
  search.pack = line.pack;
  search.learner = line.learner;
  search.current = std::filesystem::current_path().string();
  search.program = QCoreApplication::applicationDirPath().toStdString();
  for (const QString& folder :
       QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation).mid(1)) {
    search.sharedFolders.push_back(folder.toStdString());
  }
  search.ownData =
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString();
  return talvora::findFolders(talvora::systemFiles(), search);
}

int tellOfMissingPack(const std::vector<std::string>& lookedIn) {
  std::string message = "Không tìm thấy bộ bài học. Chương trình đã tìm ở:\n";
  for (const std::string& folder : lookedIn)
    message += "  " + folder + "\n";
  message += "Hãy chỉ thư mục của bộ bài học: talvora --pack THƯ_MỤC";
  std::cerr << message << std::endl;
  talvora::showFailure(message, nullptr);
  return Failed;
}

/// Another program has the learner's folder: its window comes up instead of a second one.
int yieldToRunningProgram(const std::string& learner) {
  if (talvora::raiseRunningProgram(learner)) return 0;
  const std::string message = "Talvora đang chạy rồi.";
  std::cerr << message << std::endl;
  talvora::showFailure(message, nullptr);
  return 0;
}

/// A display that is lost ends the process through `exit`: what is in memory is kept even then, and
/// nothing else is taken down, since other threads are still at work on it and a sound may play.
struct KeptAtExit {
  KeptAtExit() = default;
  KeptAtExit(const KeptAtExit&) = delete;
  KeptAtExit& operator=(const KeptAtExit&) = delete;
  ~KeptAtExit() {
    if (program == nullptr) return;
    program->keep();
    std::_Exit(Failed);
  }

  talvora::Program* program = nullptr;
};

// What belongs to the thread that ends goes ahead of all that belongs to the process.
thread_local KeptAtExit keptAtExit;

/// For as long as it lives.
class KeepAtExit {
 public:
  explicit KeepAtExit(talvora::Program& program) { keptAtExit.program = &program; }
  KeepAtExit(const KeepAtExit&) = delete;
  KeepAtExit& operator=(const KeepAtExit&) = delete;
  ~KeepAtExit() { keptAtExit.program = nullptr; }
};

/// What the learner owns is stored; all that is left is to let go of the machine. The library of a
/// sound server that has died may keep its thread for ever: the process does not wait for that.
void endSoon(int code) {
  std::thread([code] {
    std::this_thread::sleep_for(LettingGo);
    std::_Exit(code);
  }).detach();
}

int exitCodeOf(talvora::Ending ending) {
  return ending == talvora::Ending::Failure ? Failed : 0;
}

talvora::Ending runProgram(const talvora::Folders& folders, const std::string& traceFile) {
  talvora::loadMenuFonts();
  talvora::DesktopMachine machine(talvora::virtualScreenFor(realScreenSize()),
                                  std::random_device{}(), folders.pack);
  talvora::Program program(machine.platform, folders);
  const KeepAtExit keep(program);
  talvora::EventBridge bridge;
  talvora::Window window(machine, program, bridge);
  const talvora::RaiseCalls raiseCalls(folders.learner, [&] { window.comeUp(); });
  const talvora::EndSignals endSignals([&] { window.closeAtOnce(); });
  QObject::connect(
      qApp, &QGuiApplication::commitDataRequest, &window,
      [&](QSessionManager&) { window.sessionEnds(); }, Qt::DirectConnection);
  std::unique_ptr<talvora::StateTrace> trace;
  if (!traceFile.empty()) {
    trace = std::make_unique<talvora::StateTrace>(traceFile, program);
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
  QApplication::exec();
  endSoon(exitCodeOf(program.ending()));
  return program.ending();
}

/// Starts the program anew in this process's place; only a failure comes back.
int startAgain(const char* name, const talvora::Folders& folders,
               const talvora::CommandLine& line) {
  std::vector<std::string> words = {name, "--pack", folders.pack, "--learner", folders.learner};
  if (!line.trace.empty()) words.insert(words.end(), {"--trace", line.trace});
  words.insert(words.end(), line.rest.begin(), line.rest.end());
  std::vector<char*> pointers;
  pointers.reserve(words.size() + 1);
  for (std::string& word : words)
    pointers.push_back(word.data());
  pointers.push_back(nullptr);
  ::execv("/proc/self/exe", pointers.data());
  std::cerr << "talvora: cannot go on: "
            << std::error_code(errno, std::generic_category()).message() << '\n';
  return Failed;
}

} // namespace

int main(int argc, char** argv) {
  const talvora::CommandLine line =
      talvora::readCommandLine(argc, argv, TALVORA_VERSION TALVORA_WITHOUT);
  if (line.over) return *line.over;
  ToolkitArguments arguments(argv[0], line.rest);
  auto guard = std::make_optional<talvora::DisplayGuard>();
  const QApplication application(arguments.count(), arguments.values());
  guard.reset();
  if (arguments.unknown() != nullptr) {
    std::cerr << "talvora: unknown argument: " << arguments.unknown() << '\n';
    return BadUse;
  }
  QApplication::setApplicationName(QStringLiteral("talvora"));
  QGuiApplication::setDesktopFileName(QStringLiteral("org.talvora.talvora"));
  QApplication::setApplicationVersion(QStringLiteral(TALVORA_VERSION));
  QApplication::setQuitOnLastWindowClosed(false);

  const talvora::FoundFolders found = findFolders(line);
  if (!found.folders) return tellOfMissingPack(found.lookedIn);
  const talvora::LearnerLock lock(talvora::systemFiles(), found.folders->learner);
  if (lock.state() == talvora::LearnerLock::State::Taken) {
    return yieldToRunningProgram(found.folders->learner);
  }
  // The pack's folder is the program's directory.
  std::error_code missing;
  std::filesystem::current_path(found.folders->pack, missing);
  if (missing) {
    std::cerr << found.folders->pack << ": " << missing.message() << '\n';
    return BadUse;
  }
  const talvora::Folders folders(std::filesystem::current_path().string(), found.folders->learner);
  const talvora::Ending ending = runProgram(folders, line.trace);
  // The lock of the learner's folder and the display's connection end with the image that holds
  // them.
  if (line.goOn && ending == talvora::Ending::FirstRun) return startAgain(argv[0], folders, line);
  return exitCodeOf(ending);
}
