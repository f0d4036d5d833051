#include "desktop/QtPcmDevice.h"

#include <QAudioFormat>
#include <QIODevice>

#include <algorithm>

namespace talvora {

namespace {

constexpr int SampleBytes = 2;
/// Short, so that the sound follows the clock closely.
constexpr int BufferMs = 60;

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
  if (failed_) return false;
  if (sink_ == nullptr || rate != rate_) open(rate);
  if (input_ == nullptr) input_ = sink_->start();
  failed_ = hasFailed();
  if (failed_) {
    sink_.reset();
    input_ = nullptr;
  }
  return !failed_;
}

void QtPcmDevice::open(int rate) {
  QAudioFormat format;
  format.setSampleRate(rate);
  format.setChannelCount(1);
  format.setSampleFormat(QAudioFormat::Int16);
  input_ = nullptr;
  sink_ = std::make_unique<QAudioSink>(device_, format);
  sink_->setBufferSize(rate * SampleBytes * BufferMs / 1000);
  rate_ = rate;
}

bool QtPcmDevice::hasFailed() const {
  const QAudio::Error error = sink_->error();
  // Running dry between two sentences is no failure.
  return input_ == nullptr || (error != QAudio::NoError && error != QAudio::UnderrunError);
}

void QtPcmDevice::silence() {
  if (sink_ != nullptr) sink_->reset();
  input_ = nullptr;
  failed_ = false;
}

} // namespace talvora
