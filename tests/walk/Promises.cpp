#include "Promises.h"

#include "learner/VocabularyFile.h"
#include "text/Text.h"

#include <cstdlib>
#include <set>
#include <string_view>

namespace talvora::walk {

namespace {

// Twips; beyond that nothing can stand, and sums of places stay whole.
constexpr int FarthestPlace = 1'000'000;

int lengthOf(const Json& text) {
  return static_cast<int>(bytesOfJson(text).value_or(std::string()).size());
}

/// Whether pieces with "from" and "to" follow each other without gaps from 0 to the end of a text.
/// An empty text has no piece, or an empty one.
bool coverText(const Json& pieces, int length) {
  int at = 0;
  for (const Json& piece : pieces) {
    if (piece["from"] != at || piece["to"] < piece["from"]) return false;
    at = piece["to"];
  }
  return at == length;
}

std::optional<Breach> surfaceBreach(const Json& surface) {
  const std::string name = surface["name"];
  const int length = lengthOf(surface["text"]);
  const int start = surface["selStart"];
  const int selected = surface["selLength"];
  if (start < 0 || selected < 0 || start + selected > length) {
    return Breach{"a selection lies in its text", name + ": " + std::to_string(start) + " and " +
                                                      std::to_string(selected) + " of " +
                                                      std::to_string(length)};
  }
  if (lengthOf(surface["selText"]) != selected) {
    return Breach{"what is selected is as long as the selection", name};
  }
  if (!coverText(surface["runs"], length)) return Breach{"runs cover the text", name};
  if (!coverText(surface["paragraphs"], length)) return Breach{"paragraphs cover the text", name};
  return std::nullopt;
}

} // namespace

std::optional<Breach> replyBreach(const Json& reply) {
  if (!reply.is_object() || !reply.contains("ok")) return Breach{"every line has a reply", ""};
  if (reply.contains("failure")) {
    return Breach{"the program never fails on a whole pack", reply["failure"]};
  }
  if (reply.value("ended", "quit") != "quit")
    return Breach{"the program ends when told", reply["ended"]};
  return std::nullopt;
}

std::optional<Breach> focusBreach(const Json& control, bool onMenu) {
  if (control.is_null()) return Breach{"something has the keyboard", "nothing has"};
  const std::string name = control["name"];
  if (!control["visible"].get<bool>() || !control["enabled"].get<bool>()) {
    return Breach{"what has the keyboard can be seen", name};
  }
  if (onMenu != control.contains("caption")) {
    return Breach{"the keyboard is where the learner is", name};
  }
  return std::nullopt;
}

std::optional<Breach> controlBreach(const Json& control) {
  const std::string name = control["name"];
  for (const char* measure : {"left", "top", "width", "height"}) {
    if (std::abs(control[measure].get<int>()) > FarthestPlace) {
      return Breach{"everything stands near the window", name};
    }
  }
  if (control["width"] < 0 || control["height"] < 0) {
    return Breach{"no size is below nothing", name};
  }
  return control.contains("runs") ? surfaceBreach(control) : std::nullopt;
}

std::optional<Breach> menuButtonBreach(const Json& button) {
  if (button["visible"].get<bool>() && button["enabled"].get<bool>()) return std::nullopt;
  return Breach{"the menu has all its buttons", button["name"]};
}

std::optional<Breach> logBreach(const Json& entry) {
  if (entry["what"] == "run") return Breach{"no other program is started", entry.dump()};
  if (entry["what"] == "sleep" && entry["ms"] < 0) {
    return Breach{"no wait is shorter than nothing", entry.dump()};
  }
  return std::nullopt;
}

std::optional<Breach> wordsBreach(const Json& count, const Json& words) {
  if (words.size() != count.get<std::size_t>() + 1) {
    return Breach{"the words are as many as is said", words.dump()};
  }
  std::set<std::string> seen;
  for (std::size_t at = 1; at < words.size(); ++at) {
    const std::string padded = bytesOfJson(words[at]["Tu"]).value_or(std::string());
    if (padded.size() != VocabularyWord::LongestWord || trim(padded).empty()) {
      return Breach{"a word fills its field", words[at].dump()};
    }
    if (!seen.insert(lower(padded)).second) return Breach{"no word is there twice", padded};
  }
  return std::nullopt;
}

} // namespace talvora::walk
