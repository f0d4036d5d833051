#include "desktop/DisplayGuard.h"

#include <QString>
#include <qlogging.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

namespace talvora {

namespace {

using Message = std::pair<QtMsgType, QString>;

std::vector<Message>& heldMessages() {
  static std::vector<Message> held;
  return held;
}

void hold(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type != QtFatalMsg) {
    heldMessages().emplace_back(type, text);
    return;
  }
  std::cerr << "Talvora không tìm thấy màn hình để hiện cửa sổ. / "
               "Talvora finds no display to show its window on."
            << std::endl;
  // The toolkit is half made: nothing of it can be taken down in order.
  std::_Exit(EXIT_FAILURE);
}

} // namespace

DisplayGuard::DisplayGuard() {
  qInstallMessageHandler(hold);
}

DisplayGuard::~DisplayGuard() {
  qInstallMessageHandler(nullptr);
  for (const auto& [type, text] : std::exchange(heldMessages(), {})) {
    qt_message_output(type, QMessageLogContext(), text);
  }
}

} // namespace talvora
