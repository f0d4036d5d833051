#include "shell/Gestures.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace talvora {

Gestures::Gestures(Controls& c, const Measures& measures, CurrentWord& word, HintBar& hints,
                   const UpwardCalls& upward, Clipboard& clipboard)
    : controls_(c), measures_(measures), word_(word), hints_(hints), upward_(upward),
      clipboard_(clipboard) {
  for (const Surface* surface : {&c.R1, &c.R2, &c.RVP1, &c.RVP2, &c.Rchon, &c.RN2, &c.RHD, &c.RTD,
                                 &c.RDT, &c.RABCD, &c.Rviet, &c.RW2, &c.Rxep}) {
    TrangThaiChuot_[surface->Name()] = PointerState::NotMovedOver;
  }
  const auto nothing = [](Surface&) {};
  for (const Surface* surface :
       {&c.RW2, &c.Rxep, &c.RDOS, &c.RTD, &c.RVP2, &c.RHDBT, &c.RHD, &c.Rsai, &c.RABCD, &c.RDT}) {
    closingRows_.push_back({surface, nothing});
  }
  onClose(c.RDOS, [this](Surface& asking) { hints_.AnRDOS(asking); });
  onClose(c.RHD, [this](Surface&) { upward_.DongNghia(); });
}

Gestures::PointerState& Gestures::stateOf(const Surface& surface) {
  const bool shared = &surface == &controls_.Rsai;
  return TrangThaiChuot_[shared ? controls_.RDT.Name() : surface.Name()];
}

bool Gestures::isFar(SurfacePoint at) const {
  return std::abs(at.x - word_.ViTriChuot.x) > measures_.Phan12 ||
         std::abs(at.y - word_.ViTriChuot.y) > measures_.Phan12;
}

void Gestures::pointerMoved(Surface& surface, SurfacePoint at) {
  PointerState& state = stateOf(surface);
  if (state == PointerState::NotMovedOver) {
    word_.ViTriChuot = at;
    state = PointerState::PointStored;
  }
  if (state == PointerState::PointStored && isFar(at)) {
    hints_.AnRDOS(surface);
    state = PointerState::BarTakenAway;
  }
}

void Gestures::followPointer(Surface& surface, SurfacePoint at) {
  pointerMoved(surface, at);
  RoiChuot(surface, at);
}

void Gestures::RoiChuot(Surface& surface, SurfacePoint at) {
  word_.NghiaHienTai.clear();
  if (!word_.NghiaD.empty() || word_.GiuSpace || word_.TuHienTai.empty() || !isFar(at)) return;
  surface.SelStart(word_.ViTriCaret);
  upward_.DongNghia();
  word_.TuHienTai.clear();
  hints_.AnRDOS(surface);
}

bool Gestures::mayClose(const Surface& surface) const {
  if (!surface.Visible()) return false;
  // A lesson that was opened from its list is left by its own Esc.
  return &surface != &controls_.RVP2 || controls_.linkedLessonOpen();
}

bool Gestures::DongPhu(Surface& surface) {
  const auto row = std::find_if(closingRows_.begin(), closingRows_.end(),
                                [this](const ClosingRow& each) { return mayClose(*each.surface); });
  if (row == closingRows_.end()) return false;
  row->action(surface);
  return true;
}

void Gestures::onClose(const Surface& surface, std::function<void(Surface&)> action) {
  const auto row = std::find_if(closingRows_.begin(), closingRows_.end(),
                                [&](const ClosingRow& each) { return each.surface == &surface; });
  if (row != closingRows_.end()) row->action = std::move(action);
}

void Gestures::keyReleased() {
  clipboard_.clear();
  word_.NghiaHienTai.clear();
}

void Gestures::remindOnFirstOpening(int section, const Surface& surface) {
  if (stateOf(surface) != PointerState::NotMovedOver) return;
  if (reminded_.insert(section).second) hints_.GoiYF2();
}

void Gestures::declare(Variables& variables) const {
  variables.add("TrangThaiChuot", [this] {
    VariableValue::Record states;
    for (const auto& [name, state] : TrangThaiChuot_) {
      states.emplace_back(name, VariableValue(static_cast<int>(state)));
    }
    const PointerState shared = TrangThaiChuot_.at(controls_.RDT.Name());
    states.emplace_back(controls_.Rsai.Name(), VariableValue(static_cast<int>(shared)));
    return VariableValue(std::move(states));
  });
}

} // namespace talvora
