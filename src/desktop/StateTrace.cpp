#include "desktop/StateTrace.h"

#include "text/Text.h"

namespace talvora {

std::string StateTrace::present() {
  const Control* const focus = program_.form().ActiveControl();
  std::string line = "focus=" + (focus == nullptr ? std::string("-") : focus->Name());
  line += " visible=";
  for (const Control* control : program_.form().controls()) {
    const bool counts = dynamic_cast<const Surface*>(control) != nullptr ||
                        dynamic_cast<const Frame*>(control) != nullptr;
    if (counts && control->Visible()) line += control->Name() + ",";
  }
  line += " section=" + std::to_string(program_.section());
  line += " caption=" + std::string(trim(program_.form().Caption()));
  if (!program_.running()) line += " ended";
  return line;
}

void StateTrace::note() {
  std::string line = present();
  if (line == last_) return;
  file_ << line << '\n' << std::flush;
  last_ = std::move(line);
}

} // namespace talvora
