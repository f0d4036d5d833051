#include "desktop/DesktopDesk.h"

#include "text/GlyphMap.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>
#include <QProcess>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvora {

namespace {

constexpr int VirtualHeight = 768;
constexpr int NarrowestScreen = 1024;
constexpr int WidestScreen = 1366;
// Sixty pictures a second, as most screens show.
constexpr qint64 StepNs = 16'666'667;
constexpr qint64 LongestMovementPauseNs = 200'000'000;

QString shown(std::string_view bytes, Encoding encoding) {
  return QString::fromStdU16String(toUnicode(bytes, encoding));
}

} // namespace

QSize virtualScreenFor(QSize realScreen) {
  if (realScreen.height() < VirtualHeight) return realScreen;
  const double shape = static_cast<double>(realScreen.width()) / realScreen.height();
  const int width = static_cast<int>(std::lround(VirtualHeight * shape));
  return {std::clamp(width, NarrowestScreen, WidestScreen), VirtualHeight};
}

void DesktopScreen::RefreshStep() {
  // A step that comes much later than the one before begins a movement of its own.
  const bool goesOn = sinceFirstStep_.isValid() &&
                      sinceFirstStep_.nsecsElapsed() < nextStep_ + LongestMovementPauseNs;
  if (!goesOn) {
    sinceFirstStep_.start();
    nextStep_ = 0;
  }
  const qint64 due = std::exchange(nextStep_, nextStep_ + StepNs);
  const qint64 now = sinceFirstStep_.nsecsElapsed();
  if (now > due + StepNs) return;
  if (now < due) QThread::usleep(static_cast<unsigned long>((due - now) / 1000));
  refresh();
}

void DesktopClipboard::clear() {
  QClipboard* const clipboard = QGuiApplication::clipboard();
  if (!std::exchange(watching_, true)) {
    QObject::connect(clipboard, &QClipboard::dataChanged, &watch_,
                     [this] { mayHoldSomething_ = true; });
  }
  if (!mayHoldSomething_) return;
  clipboard->clear();
  mayHoldSomething_ = false;
}

void DesktopInstallation::run(const std::string& program) {
  QProcess::startDetached(QString::fromStdString(program), {});
}

BoxAnswer DesktopBoxes::ask(std::string_view text, std::string_view title, BoxAnswer byDefault) {
  opening();
  QMessageBox box(QMessageBox::Question, shown(title, Encoding::Windows1252),
                  shown(text, Encoding::X1), QMessageBox::Yes | QMessageBox::No, owner);
  box.setDefaultButton(byDefault == BoxAnswer::Yes ? QMessageBox::Yes : QMessageBox::No);
  box.setEscapeButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

void DesktopBoxes::tell(std::string_view text) {
  opening();
  QMessageBox box(QMessageBox::Information, QString(), shown(text, Encoding::X1), QMessageBox::Ok,
                  owner);
  box.exec();
}

void DesktopNarrator::messageShown(const std::string& text, int) {
  if (!QAccessible::isActive() || window == nullptr) return;
  window->setAccessibleDescription(shown(text, Encoding::X1));
  QAccessibleEvent event(window, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

void showFailure(const std::string& message, QWidget* owner) {
  QMessageBox box(QMessageBox::Critical, QStringLiteral("Talvora"), QString::fromStdString(message),
                  QMessageBox::Ok, owner);
  box.exec();
}

} // namespace talvora
