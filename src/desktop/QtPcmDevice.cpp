#include "desktop/QtPcmDevice.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QIODevice>
#include <QMediaDevices>

#include <algorithm>

namespace talvora {

namespace {

constexpr int SampleBytes = 2;
/// Short, so that the sound follows the clock closely.
constexpr int BufferMs = 60;
/// How long a device that has failed is left alone.
constexpr std::chrono::seconds FailurePause(1);

} // namespace

std::size_t QtPcmDevice::write(std::span<const std::int16_t> samples, int rate) {
  if (!ready(rate)) return samples.size();
  const qsizetype room = sink_->bytesFree() / SampleBytes;
  const auto count = std::min(static_cast<qsizetype>(samples.size()), room);
  if (count <= 0) return 0;
  const qint64 written =
      input_->write(reinterpret_cast<const char*>(samples.data()), count * SampleBytes);
  return written > 0 ? static_cast<std::size_t>(written) / SampleBytes : 0;
}

bool QtPcmDevice::ready(int rate) {
  if (Clock::now() < deafUntil_) return false;
  if (sink_ == nullptr || rate != rate_) open(rate);
  if (!hasFailed()) return true;
  close();
  deafUntil_ = Clock::now() + FailurePause;
  return false;
}

void QtPcmDevice::open(int rate) {
  close();
  // A server that went away is dropped here, and one that is back is found again.
  events_.processEvents();
  const QAudioDevice device = QMediaDevices::defaultAudioOutput();
  if (device.isNull()) return;
  QAudioFormat format;
  format.setSampleRate(rate);
  format.setChannelCount(1);
  format.setSampleFormat(QAudioFormat::Int16);
  sink_ = std::make_unique<QAudioSink>(device, format);
  sink_->setBufferSize(rate * SampleBytes * BufferMs / 1000);
  input_ = sink_->start();
  rate_ = rate;
}

void QtPcmDevice::close() {
  sink_.reset();
  input_ = nullptr;
}

bool QtPcmDevice::hasFailed() const {
  if (input_ == nullptr) return true;
  const QAudio::Error error = sink_->error();
  // Running dry between two sentences is no failure.
  return error != QAudio::NoError && error != QAudio::UnderrunError;
}

} // namespace talvora

void talvoraMakeSoundDevice(std::unique_ptr<talvora::PcmDevice>& device) {
  device = std::make_unique<talvora::QtPcmDevice>();
}
