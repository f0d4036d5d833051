#include "desktop/DesktopMachine.h"

#include <QGuiApplication>

namespace talvora {

DesktopMachine::DesktopMachine(QSize virtualScreen, std::uint64_t seed,
                               const std::filesystem::path& pack)
    : gate(keys), clock(gate), events(gate), input(keys, gate), sound(makeSound(pack)),
      screen(virtualScreen),
      random(seed), platform{clock, events, input,     *sound.speech, *sound.wave, metrics, layout,
                             boxes, screen, clipboard, installation,  narrator,    random} {
  // The one that is installed last looks first. Elsewhere than on X a repetition says what it is.
  QCoreApplication::instance()->installEventFilter(&gate);
  if (QGuiApplication::platformName() == QLatin1String("xcb")) {
    QCoreApplication::instance()->installEventFilter(&repeats);
  }
}

DesktopMachine::~DesktopMachine() {
  QCoreApplication::instance()->removeEventFilter(&repeats);
  QCoreApplication::instance()->removeEventFilter(&gate);
}

} // namespace talvora
