#include "desktop/SoundDevice.h"

#include <dlfcn.h>

#include <iostream>

namespace talvora {

namespace {

class NoDevice final : public PcmDevice {
 public:
  std::size_t write(std::span<const std::int16_t> samples, int) override { return samples.size(); }
  void silence() override {}
};

} // namespace

std::unique_ptr<PcmDevice> openSoundDevice() {
  // Never unloaded: the device's code lives in it.
  void* const library = ::dlopen("talvora-sound-device.so", RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) {
    std::cerr << "there will be no sound: " << ::dlerror() << std::endl;
    return std::make_unique<NoDevice>();
  }
  using Make = void(std::unique_ptr<PcmDevice> & device);
  std::unique_ptr<PcmDevice> device;
  reinterpret_cast<Make*>(::dlsym(library, "talvoraMakeSoundDevice"))(device);
  return device;
}

} // namespace talvora
