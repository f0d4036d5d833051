// The messages' language, by gettext.
#include "pack/Message.h"

#include <array>
#include <clocale>
#include <cstdlib>
#include <libintl.h>

namespace talvora::pack {

namespace {

constexpr const char* domain = "talvora-pack";
// Texts are UTF-8 whatever the locale says.
constexpr const char* encoding = "UTF-8";
constexpr const char* plainLocale = "C.UTF-8";

/// What the file handling says of a file, which stands between its path and the system's reason.
constexpr std::array<std::string_view, 6> fileProblems = {
    toSay("cannot be followed"), toSay("cannot be examined"), toSay("cannot be written"),
    toSay("cannot be replaced"), toSay("cannot be synced"),   toSay("cannot be read")};

/// The locale that the environment asks for, as the system looks for it.
std::string wishedLocale() {
  for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* const value = std::getenv(name);
    if (value != nullptr && *value != '\0') return value;
  }
  return {};
}

} // namespace

void speakTheUsersLanguage(const std::filesystem::path& translations) {
  std::setlocale(LC_CTYPE, plainLocale);
  if (std::setlocale(LC_MESSAGES, "") == nullptr) {
    // The system has not got the locale, but its language is known.
    std::setlocale(LC_MESSAGES, plainLocale);
    ::setenv("LANGUAGE", wishedLocale().c_str(), 0);
  }
  if (translations.empty()) return;
  ::bindtextdomain(domain, translations.c_str());
  ::bind_textdomain_codeset(domain, encoding);
}

std::filesystem::path translationsOfProgram() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
  for (const char* const place : {TALVORA_TRANSLATIONS_FROM_BIN, "locale"}) {
    if (!error && std::filesystem::is_directory(program / place, error)) return program / place;
    error.clear();
  }
  return {};
}

std::string translated(std::string_view message) {
  return message.empty() ? "" : ::dgettext(domain, message.data());
}

std::string translated(std::string_view one, std::string_view many, std::size_t count) {
  return ::dngettext(domain, one.data(), many.data(), count);
}

std::string translatedFileProblem(const std::string& problem) {
  for (const std::string_view what : fileProblems) {
    const std::string inside = ": " + std::string(what) + ": ";
    const std::size_t at = problem.find(inside);
    if (at == std::string::npos) continue;
    return problem.substr(0, at + 2) + translated(what) + problem.substr(at + inside.size() - 2);
  }
  return problem;
}

} // namespace talvora::pack
