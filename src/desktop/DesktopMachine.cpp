#include "desktop/DesktopMachine.h"

#include <QCoreApplication>

namespace talvora {

DesktopMachine::DesktopMachine(QSize virtualScreen, std::uint64_t seed)
    : gate(keys), clock(gate), events(gate), input(keys, gate), sound(makeSound()),
      screen(virtualScreen),
      random(seed), platform{clock, events, input,     *sound.speech, *sound.wave, metrics, layout,
                             boxes, screen, clipboard, installation,  narrator,    random} {
  QCoreApplication::instance()->installEventFilter(&gate);
}

DesktopMachine::~DesktopMachine() {
  QCoreApplication::instance()->removeEventFilter(&gate);
}

} // namespace talvora
