#include "desktop/DesktopDesk.h"

#include "desktop/MessageCard.h"
#include "desktop/Shown.h"
#include "fronts/Notes.h"
#include "text/GlyphMap.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QProcess>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvora {

namespace {

// What the buttons of a box answer; Esc refuses.
constexpr int Refused = 0;
constexpr int Agreed = 1;
constexpr int VirtualHeight = 768;
constexpr int NarrowestScreen = 1024;
constexpr int WidestScreen = 1366;
// Sixty pictures a second, as most screens show.
constexpr qint64 StepNs = 16'666'667;
constexpr qint64 ShortestPictureNs = StepNs / 2;
constexpr qint64 LongestMovementPauseNs = 200'000'000;

QString lettersOf(std::string_view bytes, Encoding encoding) {
  return shown(toUnicode(bytes, encoding));
}

} // namespace

QSize virtualScreenFor(QSize realScreen) {
  if (realScreen.height() < VirtualHeight) return realScreen;
  const double shape = static_cast<double>(realScreen.width()) / realScreen.height();
  const int width = static_cast<int>(std::lround(VirtualHeight * shape));
  return {std::clamp(width, NarrowestScreen, WidestScreen), VirtualHeight};
}

void DesktopScreen::Refresh() {
  if (sincePicture_.isValid() && sincePicture_.nsecsElapsed() < ShortestPictureNs) return;
  paint();
}

void DesktopScreen::paint() {
  refresh();
  sincePicture_.start();
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
  paint();
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
  MessageCard box(lettersOf(title, Encoding::Windows1252), lettersOf(text, Encoding::X1), {},
                  owner);
  const auto isDefault = [&](BoxAnswer answer) {
    return answer == byDefault ? MessageCard::IsDefault::Yes : MessageCard::IsDefault::No;
  };
  box.addButton(QStringLiteral("Có"), Agreed, isDefault(BoxAnswer::Yes));
  box.addButton(QStringLiteral("Không"), Refused, isDefault(BoxAnswer::No));
  return box.exec() == Agreed ? BoxAnswer::Yes : BoxAnswer::No;
}

void DesktopBoxes::tell(std::string_view text) {
  opening();
  MessageCard box(QStringLiteral("Talvora"), lettersOf(text, Encoding::X1), {}, owner);
  box.addButton(QStringLiteral("OK"), Agreed, MessageCard::IsDefault::Yes);
  box.exec();
}

void DesktopNarrator::wordTaken(const std::string& word, WordTaken outcome, int count) {
  sign(shown(noteOf(word, outcome, count)));
}

void DesktopNarrator::answerJudged(Verdict verdict) {
  say(shown(noteOf(verdict)));
}

void showFailure(const std::string& message, QWidget* owner) {
  MessageCard box(QStringLiteral("Talvora"),
                  QStringLiteral("Chương trình gặp lỗi nên phải dừng lại. Từ vựng bạn đã lưu vẫn "
                                 "còn. Nếu lỗi lặp lại, hãy cài lại bộ dữ liệu."),
                  QString::fromStdString(message), owner);
  box.addButton(QStringLiteral("Đóng"), Agreed, MessageCard::IsDefault::Yes);
  box.exec();
}

} // namespace talvora
