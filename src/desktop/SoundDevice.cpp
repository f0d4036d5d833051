#include "desktop/SoundDevice.h"

#include <QCoreApplication>
#include <QFile>

#include <dlfcn.h>

#include <iostream>

namespace talvora {

namespace {

class NoDevice final : public PcmDevice {
 public:
  std::size_t write(std::span<const std::int16_t> samples, int) override { return samples.size(); }
  void silence() override {}
};

constexpr const char* DeviceName = "talvora-sound-device.so";

/// From where it is installed, seen from the program; else from where it was built, which the
/// program that is not installed knows. Null when neither has it.
void* loadDevice() {
  const QString installed = QCoreApplication::applicationDirPath() + QStringLiteral("/") +
                            QStringLiteral(TALVORA_MODULES) + QStringLiteral("/") +
                            QLatin1String(DeviceName);
  void* const library = ::dlopen(QFile::encodeName(installed).constData(), RTLD_NOW | RTLD_LOCAL);
  return library != nullptr ? library : ::dlopen(DeviceName, RTLD_NOW | RTLD_LOCAL);
}

} // namespace

std::unique_ptr<PcmDevice> openSoundDevice() {
  using Make = void(std::unique_ptr<PcmDevice> & device);
  // Never unloaded: the device's code lives in it.
  void* const library = loadDevice();
  void* const make = library == nullptr ? nullptr : ::dlsym(library, "talvoraMakeSoundDevice");
  if (make == nullptr) {
    std::cerr << "there will be no sound: " << ::dlerror() << std::endl;
    return std::make_unique<NoDevice>();
  }
  std::unique_ptr<PcmDevice> device;
  reinterpret_cast<Make*>(make)(device);
  return device;
}

} // namespace talvora
