// Tells a key that is held down from one that is struck again and again.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

namespace talvora {

/// An event filter of the application. X reports a held key as a release and a press of the same
/// moment, over and over, and Qt sees that only when both have come by the time it looks. So a
/// release is kept back for a moment: when its press follows, the press is passed on as a repeated
/// one and there was no release.
class AutoRepeat final : public QObject {
 public:
  AutoRepeat();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void keepBack(QObject* window, const QKeyEvent& release);
  [[nodiscard]] bool repeats(const QKeyEvent& press) const;
  void passRelease();
  void pass(const QKeyEvent& stroke);

  QTimer patience_;
  QPointer<QObject> window_;
  std::unique_ptr<QKeyEvent> release_; ///< kept back for `window_`
  const QEvent* passed_ = nullptr;     ///< what was sent from here and comes by again
};

} // namespace talvora
