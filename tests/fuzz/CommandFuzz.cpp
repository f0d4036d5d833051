// Any bytes as lines for the driver, ahead of the start and behind it: each has one reply, which is
// an object, and what cannot be understood is refused.
#include "driver/Driver.h"
#include "tests/support/TemporaryFolder.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void require(bool holds) {
  if (!holds) std::abort();
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
    const Json reply = Json::parse(driver.answer(rest.substr(0, end)), nullptr, false);
    require(reply.is_object() && reply.contains("ok"));
    require(reply["ok"].get<bool>() != reply.contains("error"));
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
  }
  return 0;
}
