// A filter of second order and a gain.
#include "pack/SpeechLevel.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>

namespace talvora::pack {

namespace {

constexpr double fullScale = 32768.0;
constexpr double lowestHz = 50.0;
constexpr double silence = -120.0;
/// Frames of a fiftieth of a second; one with less than a thousandth of the loudest's power is a
/// pause.
constexpr int framesASecond = 50;
constexpr double pauseShare = 0.001;
/// The highest peak, in dB below full scale.
constexpr double highestPeak = -1.0;

double fromDecibel(double level) {
  return std::pow(10.0, level / 20.0);
}

std::int16_t rounded(double sample) {
  return static_cast<std::int16_t>(std::clamp(std::lround(sample), -32768L, 32767L));
}

std::vector<double> framePowers(const Samples& samples, std::size_t frame) {
  std::vector<double> powers;
  for (std::size_t from = 0; from < samples.size(); from += frame) {
    const std::size_t to = std::min(from + frame, samples.size());
    double power = 0;
    for (std::size_t at = from; at < to; ++at)
      power += static_cast<double>(samples[at]) * samples[at];
    powers.push_back(power / static_cast<double>(to - from));
  }
  return powers;
}

} // namespace

// A Butterworth high-pass of second order, by the bilinear transform.
void highPass(Samples& samples, int samplesPerSecond) {
  const double k = std::tan(std::numbers::pi * lowestHz / samplesPerSecond);
  const double norm = 1.0 / (1.0 + std::numbers::sqrt2 * k + k * k);
  const double a1 = 2.0 * (k * k - 1.0) * norm;
  const double a2 = (1.0 - std::numbers::sqrt2 * k + k * k) * norm;
  double before1 = samples.empty() ? 0.0 : samples.front();
  double before2 = before1;
  double out1 = 0;
  double out2 = 0;
  for (std::int16_t& sample : samples) {
    const double in = sample;
    const double out = norm * (in - 2.0 * before1 + before2) - a1 * out1 - a2 * out2;
    before2 = before1;
    before1 = in;
    out2 = out1;
    out1 = out;
    sample = rounded(out);
  }
}

double speechLevel(const Samples& samples, int samplesPerSecond) {
  const auto powers =
      framePowers(samples, static_cast<std::size_t>(samplesPerSecond / framesASecond));
  const double loudest = powers.empty() ? 0.0 : *std::max_element(powers.begin(), powers.end());
  if (loudest <= 0) return silence;
  double sum = 0;
  int frames = 0;
  for (const double power : powers) {
    if (power < pauseShare * loudest) continue;
    sum += power;
    ++frames;
  }
  return 10.0 * std::log10(sum / frames / (fullScale * fullScale));
}

void bringToLevel(Samples& samples, int samplesPerSecond, double level) {
  const double present = speechLevel(samples, samplesPerSecond);
  if (present <= silence) return;
  int peak = 1;
  for (const std::int16_t sample : samples)
    peak = std::max(peak, std::abs(static_cast<int>(sample)));
  const double gain =
      std::min(fromDecibel(level - present), fromDecibel(highestPeak) * fullScale / peak);
  for (std::int16_t& sample : samples)
    sample = rounded(sample * gain);
}

} // namespace talvora::pack
