#include "shell/Gestures.h"

#include <cstdlib>
#include <utility>

namespace talvora {

Gestures::Gestures(Controls& controls, const Pages& pages, const Measures& measures,
                   WordAtHand& atHand, HintBar& hints, const UpwardCalls& upward,
                   Clipboard& clipboard)
    : pages_(pages), measures_(measures), atHand_(atHand), word_(atHand.record()), hints_(hints),
      upward_(upward), clipboard_(clipboard) {
  onClose(CloseRank::HintBar, controls.RDOS, [this](Surface& asking) { hints_.AnRDOS(asking); });
  onClose(CloseRank::Popup, controls.RHD, [this](Surface&) { upward_.DongNghia(); });
}

Gestures::PointerState& Gestures::stateOf(const Surface& surface) {
  const Page* const page = pages_.find(surface);
  const bool shares = page != nullptr && !page->pointerName.empty();
  return TrangThaiChuot_[shares ? std::string(page->pointerName) : surface.Name()];
}

bool Gestures::isFar(SurfacePoint at) const {
  return std::abs(at.x - word_.ViTriChuot.x) > measures_.Phan12 ||
         std::abs(at.y - word_.ViTriChuot.y) > measures_.Phan12;
}

void Gestures::pointerMoved(Surface& surface, SurfacePoint at) {
  PointerState& state = stateOf(surface);
  if (state == PointerState::NotMovedOver) {
    atHand_.pointAt(at);
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
  atHand_.dropEntry();
  if (!word_.NghiaD.empty() || word_.GiuSpace || word_.TuHienTai.empty() || !isFar(at)) return;
  surface.SelStart(word_.ViTriCaret);
  upward_.DongNghia();
  atHand_.drop();
  hints_.AnRDOS(surface);
}

bool Gestures::DongPhu(Surface& surface) {
  const ClosingRow* const row = closingRows_.first(
      [](const ClosingRow& each) { return each.surface->Visible() && each.holds(); });
  if (row == nullptr) return false;
  row->action(surface);
  return true;
}

void Gestures::onClose(CloseRank rank, const Surface& surface, std::function<void(Surface&)> action,
                       std::function<bool()> holds) {
  closingRows_.take(rank, {&surface, std::move(action), std::move(holds)}, surface.Name());
}

void Gestures::keyReleased() {
  clipboard_.clear();
  atHand_.dropEntry();
}

void Gestures::remindOnFirstOpening(int section, const Surface& surface) {
  if (stateOf(surface) != PointerState::NotMovedOver) return;
  if (reminded_.insert(section).second) hints_.GoiYF2();
}

void Gestures::declare(Variables& variables) const {
  variables.add("TrangThaiChuot", [this] {
    auto states = TrangThaiChuot_;
    for (const Page& page : pages_.all()) {
      if (!page.pointerName.empty()) states.try_emplace(std::string(page.pointerName));
    }
    // Last those that share another's.
    VariableValue::Record record;
    for (const auto& [name, state] : states)
      record.emplace_back(name, VariableValue(static_cast<int>(state)));
    for (const Page& page : pages_.all()) {
      const std::string& name = page.surface.Name();
      if (page.pointerName.empty() || page.pointerName == name) continue;
      const PointerState shared = states.at(std::string(page.pointerName));
      record.emplace_back(name, VariableValue(static_cast<int>(shared)));
    }
    return VariableValue(std::move(record));
  });
}

} // namespace talvora
