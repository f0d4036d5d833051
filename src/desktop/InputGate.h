// The gate through which all input passes on its way to the program. It keeps the key table, holds
// input back while the program sleeps, and lets it through afterwards in order.
#pragma once

#include "fronts/KeyTable.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <vector>

namespace talvora {

class InputGate final : public QObject {
 public:
  explicit InputGate(KeyTable& keys) : keys_(keys) { sinceInput_.start(); }

  /// While shut, input is held back; the key table goes on.
  void shut() { ++shut_; }
  void open();
  /// Called from the event loop when the gate has opened, ahead of what was held back.
  std::function<void()> opened = [] {};
  [[nodiscard]] bool isShut() const noexcept { return shut_ > 0; }

  /// While the program lets events run inside a loop of its own, one move of the pointer is let
  /// through and the others wait: a second one would start a loop inside that loop.
  void beginPump();
  void endPump();

  /// While an arrow is down the pointer's own moves over the menu wait, so that the button that the
  /// focus came to is animated when the arrow is let go.
  void holdMovesWhileArrowDown(bool hold) noexcept { holdMoves_ = hold; }

  /// Input to the widgets inside that one is never held back: what they do is a key stroke or
  /// concerns the window alone.
  void neverHold(const QObject& parent) noexcept { awake_ = &parent; }

  /// Milliseconds since the learner last touched anything.
  [[nodiscard]] qint64 quietMs() const { return sinceInput_.elapsed(); }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Held {
    QPointer<QObject> receiver;
    std::unique_ptr<QEvent> event;
  };

  void watchKeys(const QEvent& event);
  [[nodiscard]] bool mustWait(const QObject& watched, const QEvent& event) const;
  void hold(QObject* watched, const QEvent& event);
  void letHeldThrough();

  KeyTable& keys_;
  const QObject* awake_ = nullptr; ///< whose children get their input at once
  QElapsedTimer sinceInput_;
  int shut_ = 0;
  bool holdMoves_ = false;
  int pumps_ = 0;
  bool moveLetThrough_ = false;
  std::vector<Held> held_;
};

} // namespace talvora
