// Any bytes as lines for the driver, ahead of the start and behind it: each has one reply, which is
// an object, and what cannot be understood is refused.
#include "driver/Command.h"
#include "driver/Driver.h"
#include "tests/support/TemporaryFolder.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

/// Reads every field with every type: each is there, or it is refused.
void readFields(std::string_view line) {
  using talvora::Command;
  const auto trying = [](const auto& reading) {
    try {
      reading();
    } catch (const talvora::CommandError&) {
      return;
    }
  };
  trying([&] {
    const Command command(line);
    for (const char* field : {"do", "key", "at", "to", "x", "y", "with", "double", "names"}) {
      trying([&] { static_cast<void>(command.text(field)); });
      trying([&] { static_cast<void>(command.number(field)); });
      trying([&] { static_cast<void>(command.coordinate(field)); });
      trying([&] { static_cast<void>(command.flag(field, false)); });
      trying([&] { static_cast<void>(command.choice(field, "left", "left", "right")); });
      trying([&] { static_cast<void>(command.list(field)); });
    }
  });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talvora;
  // There is no course in it.
  static const test::TemporaryFolder folder;
  Driver driver(ScriptedOptions{}, Folders(folder.path()));
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  while (!rest.empty()) {
    const std::size_t end = rest.find('\n');
    readFields(rest.substr(0, end));
    const Json reply = Json::parse(driver.answer(rest.substr(0, end)), nullptr, false);
    require(reply.is_object() && reply.contains("ok"));
    require(reply["ok"].get<bool>() != reply.contains("error"));
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
  }
  return 0;
}
