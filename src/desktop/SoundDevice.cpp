#include "desktop/SoundDevice.h"

#include "desktop/Modules.h"

namespace talvora {

namespace {

class NoDevice final : public PcmDevice {
 public:
  std::size_t write(std::span<const std::int16_t> samples, int) override { return samples.size(); }
  void silence() override {}
};

} // namespace

std::unique_ptr<PcmDevice> openSoundDevice() {
  using Make = void(std::unique_ptr<PcmDevice> & device);
  static auto* const make = reinterpret_cast<Make*>(
      functionOfModule("talvora-sound-device", "talvoraMakeSoundDevice", "sound"));
  if (make == nullptr) return std::make_unique<NoDevice>();
  std::unique_ptr<PcmDevice> device;
  make(device);
  return device;
}

} // namespace talvora
