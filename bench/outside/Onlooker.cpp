// Measures a program as somebody in front of the screen has it: from the event that the X server is
// sent to the last change on the screen that follows. Commands come by standard input, a line each,
// and each is answered by a line: "FIRST LAST" in milliseconds for what changes the screen, "none"
// when nothing changed, "ok", or "error WHAT".
//
//   env NAME=VALUE        for the programs that are started from now on
//   gap MS                a change that comes so much later is another one
//   start PROGRAM [WORD]  to the finished window; answers "FIRST LAST PROCESS". What still moves
//                         seconds later is an animation: of that only the first picture counts
//   end                   ends the program that was started
//   key NAME              measured; NAME is an X name of a key
//   press NAME            the same, not measured
//   click X Y | point X Y | wheel-up | wheel-down
//   rest MS               lets that time go by
#include "Seat.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <iostream>
#include <optional>
#include <spawn.h>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace talvora::bench;

constexpr milliseconds DefaultGap(100);
constexpr milliseconds Patience(2000); ///< for the first change
constexpr milliseconds Longest(5000);
constexpr milliseconds Start(3500);   ///< how long a start is watched
constexpr milliseconds Moving(1500);  ///< the last part of it, which shows what never rests
constexpr milliseconds Settling(150); ///< behind a move of the pointer

class Onlooker {
 public:
  /// The answer to a command.
  std::string answer(const std::string& command);

 private:
  std::string start(std::istream& words);
  std::string end();
  std::string timed(Clock::time_point begin, const std::vector<Change>& changes) const;
  template <class Deed>
  std::string measure(const Deed& deed) {
    seat_.forget();
    const Clock::time_point begin = Clock::now();
    deed();
    return timed(begin, seat_.watch(Patience, gap_, Longest));
  }

  Seat seat_;
  milliseconds gap_ = DefaultGap;
  std::optional<pid_t> process_;
};

double msBetween(Clock::time_point from, Clock::time_point to) {
  return std::chrono::duration<double, std::milli>(to - from).count();
}

pid_t spawn(std::vector<std::string> command) {
  std::vector<char*> arguments;
  for (std::string& word : command)
    arguments.push_back(word.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t process = 0;
  const int failure =
      ::posix_spawnp(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
  ::posix_spawn_file_actions_destroy(&actions);
  if (failure != 0) throw std::runtime_error(command[0] + " does not start");
  return process;
}

/// The last change that belongs to the start: one outside of what never rests, or the first picture
/// of that.
Clock::time_point finishedAt(const std::vector<Change>& changes, Clock::time_point begin) {
  const Clock::time_point quiet = begin + Start - Moving;
  Region moving;
  for (const Change& change : changes) {
    if (change.when >= quiet) moving.join(change.where);
  }
  Clock::time_point finished = begin;
  bool movingSeen = false;
  for (const Change& change : changes) {
    if (change.when >= quiet) break;
    const bool moves = moving.holds(change.where);
    if (!moves || !movingSeen) finished = change.when;
    movingSeen = movingSeen || moves;
  }
  return finished;
}

std::string Onlooker::timed(Clock::time_point begin, const std::vector<Change>& changes) const {
  if (changes.empty()) return "none";
  std::ostringstream answer;
  answer << msBetween(begin, changes.front().when) << ' ' << msBetween(begin, changes.back().when);
  return answer.str();
}

std::string Onlooker::start(std::istream& words) {
  end();
  std::vector<std::string> command;
  for (std::string word; words >> word;)
    command.push_back(word);
  if (command.empty()) throw std::runtime_error("start what?");
  seat_.forget();
  const Clock::time_point begin = Clock::now();
  process_ = spawn(command);
  const std::vector<Change> changes = seat_.watchFor(Start);
  if (::waitpid(*process_, nullptr, WNOHANG) != 0) {
    process_.reset();
    throw std::runtime_error(command[0] + " has ended");
  }
  if (changes.empty()) return "none";
  std::ostringstream answer;
  answer << msBetween(begin, changes.front().when) << ' '
         << msBetween(begin, finishedAt(changes, begin)) << ' ' << *process_;
  return answer.str();
}

std::string Onlooker::end() {
  if (process_) {
    ::kill(*process_, SIGKILL);
    ::waitpid(*process_, nullptr, 0);
    process_.reset();
    seat_.watch(Settling, Settling, Longest);
  }
  return "ok";
}

std::string Onlooker::answer(const std::string& command) {
  std::istringstream words(command);
  std::string verb;
  words >> verb;
  if (verb == "start") return start(words);
  if (verb == "end") return end();
  if (verb == "key" || verb == "press") {
    std::string key;
    words >> key;
    const auto deed = [&] { seat_.press(key); };
    if (verb == "key") return measure(deed);
    deed();
    return "ok";
  }
  if (verb == "click" || verb == "point") {
    int x = 0;
    int y = 0;
    words >> x >> y;
    seat_.movePointer(x, y);
    seat_.watch(Settling, Settling, Longest);
    return verb == "point" ? "ok" : measure([&] { seat_.click(1); });
  }
  if (verb == "wheel-up") return measure([&] { seat_.click(4); });
  if (verb == "wheel-down") return measure([&] { seat_.click(5); });
  int number = 0;
  if (verb == "gap" && words >> number) {
    gap_ = milliseconds(number);
  } else if (verb == "rest" && words >> number) {
    std::this_thread::sleep_for(milliseconds(number));
  } else if (std::string setting; verb == "env" && words >> setting) {
    const std::size_t sign = setting.find('=');
    if (sign == std::string::npos) throw std::runtime_error("env NAME=VALUE");
    ::setenv(setting.substr(0, sign).c_str(), setting.substr(sign + 1).c_str(), 1);
  } else {
    throw std::runtime_error("unknown command: " + command);
  }
  return "ok";
}

} // namespace

int main() {
  try {
    Onlooker onlooker;
    for (std::string line; std::getline(std::cin, line);) {
      std::string answer;
      try {
        answer = onlooker.answer(line);
      } catch (const std::runtime_error& failure) {
        answer = std::string("error ") + failure.what();
      }
      std::cout << answer << std::endl;
    }
    onlooker.answer("end");
    return 0;
  } catch (const std::runtime_error& failure) {
    std::cerr << "talvora-onlooker: " << failure.what() << '\n';
    return 1;
  }
}
