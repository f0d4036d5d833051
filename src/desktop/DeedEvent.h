// A deed that assistive technology asks for. It goes through the gate as keys and clicks do: while
// the program sleeps it waits for its turn.
#pragma once

#include <QEvent>

#include <functional>
#include <utility>

namespace talvora {

class DeedEvent final : public QEvent {
 public:
  explicit DeedEvent(std::function<void()> deed) : QEvent(type()), deed_(std::move(deed)) {}

  [[nodiscard]] static Type type() {
    static const int number = registerEventType();
    return static_cast<Type>(number);
  }

  void perform() const { deed_(); }
  [[nodiscard]] QEvent* clone() const override { return new DeedEvent(deed_); } // NOLINT: Qt's way

 private:
  std::function<void()> deed_;
};

} // namespace talvora
