#include "core/Host.h"

extern "C" {
double talvoraNow();
void talvoraWait(double ms);
int talvoraTake(int* into);
void talvoraTell(const char* text, std::size_t length);
unsigned talvoraSeed();
void talvoraMoment(int* into);
int talvoraSounds(int what);
}

namespace talvora::web {

namespace {

constexpr int Speech = 0;
constexpr int Recording = 1;

} // namespace

double hostNow() {
  return talvoraNow();
}

void hostWait(double ms) {
  talvoraWait(ms);
}

std::optional<Event> takeEvent() {
  std::array<int, 6> fields{};
  if (talvoraTake(fields.data()) == 0) return std::nullopt;
  return Event{
      static_cast<EventKind>(fields[0]), fields[1], fields[2], fields[3], fields[4], fields[5]};
}

void tellPage(std::string_view json) {
  talvoraTell(json.data(), json.size());
}

std::uint32_t hostSeed() {
  return talvoraSeed();
}

std::array<int, 6> hostMoment() {
  std::array<int, 6> moment{};
  talvoraMoment(moment.data());
  return moment;
}

bool hostIsSpeaking() {
  return talvoraSounds(Speech) != 0;
}

bool hostIsPlaying() {
  return talvoraSounds(Recording) != 0;
}

} // namespace talvora::web
