#include "program/Sections.h"

#include "exercises/ItemRecord.h"
#include "surface/SectionNumbers.h"
#include "text/Vietnamese.h"

namespace talvora {

Sections::Sections(Platform& platform, Form& form, ProgramControls& controls, SharedState& state,
                   Stores& stores, Shell& shell, PageServices services, LearnerData& own)
    : platform_(platform), controls_(controls), state_(state), stores_(stores), shell_(shell),
      soundSettings_(controls, state, platform, stores, shell, services.speech),
      reading_(controls, state, stores, shell, services, platform.clock, own),
      lessons_(controls, state, stores, shell, services),
      exercises_(form, controls, state, stores, shell, services, lessons_, platform.random),
      listening_(form, controls, state, stores, shell, services, platform.random, exercises_.units,
                 exercises_.scoring, exercises_.item),
      dictation_(form, controls, state, stores, shell, services, platform.clock),
      writing_(form, controls, state, stores, shell, services, exercises_.ordering),
      analysis_(state, stores, shell, exercises_.item), guide_(controls, state, stores, shell) {
  wireDrills();
  wireAnalysis();
}

// -- What the modules ask of each other.

void Sections::wireDrills() {
  reading_.page().GoiRxep = [this] { exercises_.ordering.openFromText(); };
  reading_.MoNgheViet = [this] { dictation_.MoNgheViet(); };
  dictation_.ChonDongR1 = [this] { reading_.ChonDongR1(controls_.R1); };
  dictation_.BongLoiGiai = [this] { exercises_.box.BongLoiGiai(); };
}

void Sections::wireAnalysis() {
  reading_.page().explainBy(*this);
  exercises_.box.keyPressed = [this] {
    if (controls_.R2.Visible()) takeMarkBack();
  };
  analysis_.calls.ThayTenBai = [this](std::string& text) {
    text = ThayTenBai(text, state_.list.TenBaiHoc);
  };
  analysis_.calls.GiaiThich = [this](int p, Surface& surface) {
    exercises_.box.GiaiThich(p, surface);
  };
}

// -- The explanations of an analysed text.

void Sections::load(int n) {
  analysis_.NapPhanTich(n);
}

void Sections::explain() {
  analysis_.GiaiTuPT(controls_.R2);
}

void Sections::leave() {
  takeMarkBack();
  if (controls_.RHDBT.Visible()) exercises_.box.DongGiai();
}

void Sections::leaveOnKey(int keyCode) {
  takeMarkBack();
  // Esc closes what stands on top, which need not be the box.
  if (keyCode != key::Esc && controls_.RHDBT.Visible()) exercises_.box.DongGiai();
}

void Sections::followPointer(SurfacePoint at) {
  exercises_.box.RoiChuotBT(controls_.R2, at);
}

void Sections::takeMarkBack() {
  if (!exercises_.item.ChuCu.empty()) exercises_.answer.KhoiPhucChu(controls_.R2);
}

void Sections::declare(Variables& variables) const {
  soundSettings_.declare(variables);
  reading_.declare(variables);
  lessons_.declare(variables);
  exercises_.declare(variables);
  listening_.declare(variables);
  dictation_.declare(variables);
  analysis_.declare(variables);
}

// -- Opening.

void Sections::open(int button) {
  if (button == section::Writing) {
    // The closed section answers also while the program is busy; that is meant.
    shell_.messages.ThongBao("Phần này đang xây dựng."_x1, 1000);
    return;
  }
  if (state_.places.DangBan) return;
  switch (button) {
  case section::Reading:
    openTexts(button, file::TextPositions);
    break;
  case section::Vocabulary:
    state_.places.MucMenu = button;
    reading_.vocabulary().open();
    break;
  case section::Lessons:
    lessons_.open();
    break;
  case section::Listening:
    listening_.openSection();
    break;
  case section::Analysis:
    openAnalysis();
    break;
  case section::Speaking:
    // The list of another store must not stay.
    reading_.vocabulary().LuuTuVung();
    reading_.DaNapDanhSach = false;
    openTexts(button, file::SpeakingPositions);
    break;
  case section::Settings:
    soundSettings_.open();
    break;
  case section::Guide:
    guide_.open();
    break;
  default:
    openBank(button);
    break;
  }
}

void Sections::openTexts(int section, int store) {
  state_.places.MucMenu = section;
  stores_.ChonKho(store);
  reading_.BatdauBut();
}

void Sections::openAnalysis() {
  state_.places.MucMenu = section::Analysis;
  // The explanations name rule lessons by their titles.
  lessons_.MoVanPham();
  openTexts(section::Analysis, file::TextPositions);
}

void Sections::openBank(int section) {
  state_.places.MucMenu = section;
  exercises_.run.MoMuc(section - section::FirstBank + 1);
}

} // namespace talvora
