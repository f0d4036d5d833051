#include "exercises/Run.h"

#include "exercises/ItemHeadings.h"
#include "exercises/ItemRecord.h"
#include "text/Text.h"

#include <utility>

namespace talvora {

namespace {

constexpr int LongestOrderedRun = 6;
// The banks whose blanks are explained by the list of the verb lessons.
constexpr int ConditionalBank = 2;
constexpr int TenseBank = 3;

} // namespace

Run::Run(Form& form, ItemServices& services, const ItemKinds& kinds, ItemStore& store,
         Scoring& scoring, UnitList& units, VanPham& lessons, Random& random)
    : form_(form), services_(services), state_(services.state), controls_(services.controls),
      item_(services.item), kinds_(kinds), store_(store), scoring_(scoring), units_(units),
      lessons_(lessons), random_(random) {
  services.run.next = [this] {
    BuocLui_ = 0;
    CauKeTiep();
  };
  services.run.back = [this] {
    ++BuocLui_;
    CauKeTiep();
  };
  services.run.ThoatBT = [this](Surface& surface) { ThoatBT(surface); };
  services.run.CongDung = [this] { CongDung(); };
  services.run.bankListsLessons = [this] {
    return !lessons_.BaiTuChon && (MucBT_ == ConditionalBank || MucBT_ == TenseBank);
  };
  units.BatDauBai = [this] { BatDauBai(); };
  lessons.BatDauChon = [this] { BatDauChon(); };
}

// -- Making a run.

void Run::MoMuc(int k) {
  MucBT_ = k;
  controls_.R1.Top(state_.measures.CaoMH);
  controls_.RVP1.Top(state_.measures.CaoMH);
  lessons_.MoVanPham();
  SoCauBT_ = store_.countOf(k);
  units_.HienBT(SoCauBT_);
  units_.open();
}

void Run::BatDauBai() {
  const int unit = state_.list.SoBaiChon;
  const int rest = SoCauBT_ - unit * UnitList::ItemsPerUnit;
  // The last unit takes what is left over.
  const int count =
      rest < UnitList::ItemsPerUnit ? UnitList::ItemsPerUnit + rest : UnitList::ItemsPerUnit;
  const int before = store_.bankItemsBefore(MucBT_) + (unit - 1) * UnitList::ItemsPerUnit;
  SoCauChay_ = 0;
  for (int i = 1; i <= count; ++i)
    append(before + i);
  if (SoCauChay_ > 0) BatDauChay();
}

void Run::BatDauChon() {
  lessons_.BaiTuChon = true;
  item_.ChuCu.clear();
  SoCauChay_ = 0;
  for (int lesson = 1; lesson <= static_cast<int>(CurrentList::LessonCount); ++lesson) {
    if (!lessons_.isMarked(lesson)) continue;
    const int section = ItemStore::Banks + lesson;
    const int before = store_.itemsBefore(section);
    for (int i = 1; i <= store_.itemsOf(section); ++i)
      append(before + i);
  }
  if (SoCauChay_ > 0) BatDauChay();
}

void Run::append(int item) {
  if (SoCauChay_ == static_cast<int>(MostItems)) return;
  DanhSachCau_[static_cast<std::size_t>(++SoCauChay_)] = static_cast<std::int16_t>(item);
}

void Run::BatDauChay() {
  if (state_.measures.slidesAtOnce()) controls_.Rnen3.Visible(true);
  item_.ChuCu.clear();
  kinds_.each([](ItemKindPage& page) { page.runBegins(); });
  if (SoCauChay_ > LongestOrderedRun) TronCau();
  BuocLui_ = 0;
  item_.MatNa.clear();
  item_.SoGoiY = 0;
  item_.DaCham = false;
  state_.atHand.disarm();
  ViTriCau_ = 0;
  CauKeTiep();
}

void Run::TronCau() {
  random_.seedFromClock();
  for (int tries = 0; tries < 3 * SoCauChay_; ++tries) {
    const auto a = static_cast<std::size_t>(random_.upTo(SoCauChay_));
    const auto b = static_cast<std::size_t>(random_.upTo(SoCauChay_));
    if (a != b) std::swap(DanhSachCau_[a], DanhSachCau_[b]);
  }
}

// -- Walking it.

void Run::CauKeTiep() {
  if (SoCauChay_ == 0) return;
  item_.GiaiChung.clear();
  item_.LoiGiai.clear();
  item_.OTrong.clearTexts();
  item_.DaCham = false;
  state_.atHand.disarm();
  if (ViTriCau_ > 0) hideItem();
  if (!step()) {
    endRun();
    return;
  }
  const int n = DanhSachCau_[static_cast<std::size_t>(ViTriCau_)];
  XoaTrangThai();
  DocCauHoi(n);
  DocLoiGiai(n);
  PhanTichCau();
  services_.shell.transitions.MoRan(page().surface(),
                                    lessons_.BaiTuChon ? controls_.Frame2 : controls_.Frame1);
  page().entered();
}

void Run::hideItem() {
  services_.box.takeLessonAway();
  services_.box.DongGiai();
  services_.shell.upward.DongNghia();
  if (!lessons_.BaiTuChon) controls_.Frame1.Visible(false);
  controls_.Frame2.Visible(false);
  controls_.Frame3.Visible(false);
  kinds_.each([](const ItemKindPage& page) { page.surface().Visible(false); });
}

void Run::XoaTrangThai() {
  item_.XoaTrangThai();
  state_.text.CauHoi.clear();
  state_.atHand.disarm();
}

bool Run::step() {
  if (BuocLui_ == 1) {
    // The first Back after a Next shows the same item again: the way to retry it.
    BuocLui_ = 3;
    return true;
  }
  if (BuocLui_ > 1) {
    ViTriCau_ = ViTriCau_ > 1 ? ViTriCau_ - 1 : SoCauChay_;
    return true;
  }
  if (ViTriCau_ < SoCauChay_) {
    ++ViTriCau_;
    return true;
  }
  ViTriCau_ = 1;
  return lessons_.BaiTuChon;
}

void Run::parkPlate() {
  if (state_.measures.slidesAtOnce()) services_.shell.setup.parkPlate();
}

void Run::endRun() {
  parkPlate();
  scoring_.BaoDiem(SoCauChay_);
  controls_.Frame1.Visible(true);
  controls_.RN1.SetFocus();
  services_.shell.steering.ChonDong();
}

void Run::ThoatBT(Surface& surface) {
  services_.box.DongGiai();
  state_.atHand.drop();
  services_.words.stopSpeech();
  parkPlate();
  Transitions& transitions = services_.shell.transitions;
  if (lessons_.BaiTuChon) {
    transitions.DongRan(surface, controls_.Frame2);
    lessons_.BoChonBai();
    scoring_.ChuPhu();
  } else {
    if (scoring_.SoDung > 0) {
      scoring_.BaoDiem(SoCauChay_);
    } else {
      scoring_.ChuPhu();
    }
    transitions.DongRan(surface, controls_.Frame1);
    controls_.Frame1.Visible(true);
  }
  XoaTrangThai();
  if (lessons_.BaiTuChon) {
    controls_.RVP1.SetFocus();
  } else {
    controls_.RN1.SetFocus();
    services_.shell.steering.ChonDong();
  }
}

// -- Showing an item.

void Run::DocCauHoi(int n) {
  form_.Caption(state_.measures.KhoangDem + "    Cau " + Str(n));
  state_.text.CauHoi = store_.question(n);
}

void Run::DocLoiGiai(int n) {
  const ItemKind kind = readHeader(state_.text.CauHoi).kind;
  item_.LoiGiai = markReferences(store_.answer(n), kind);
  if (item_.LoiGiai.size() > 1 && kind != ItemKind::Ordering) {
    item_.LoiGiai = ThayTenBai(item_.LoiGiai, state_.list.TenBaiHoc);
  }
}

void Run::PhanTichCau() {
  std::string& CauHoi = state_.text.CauHoi;
  const ItemHeader header = readHeader(CauHoi);
  item_.LoaiBT = header.kind;
  item_.MaDe = header.code;
  CauHoi.erase(0, header.length);
  item_.DeMuc = ChonDeMuc(header.code, lessons_.BaiTuChon ? ItemOrigin::OwnTest : ItemOrigin::Bank);
  if (CauHoi.starts_with('|')) {
    item_.LoaiBT = ItemKind::FillInHints;
    item_.GoiY = TachGoiY(CauHoi);
    item_.SoGoiY = static_cast<int>(item_.GoiY.size());
  }
  page().show();
}

void Run::declare(Variables& variables) const {
  variables.add("DanhSachCau", [this] {
    const auto first = DanhSachCau_.begin();
    return VariableValue(VariableValue::Table(first, first + SoCauChay_ + 1));
  });
  variables.add("SoCauChay", &SoCauChay_);
  variables.add("ViTriCau", &ViTriCau_);
  variables.add("BuocLui", &BuocLui_);
  variables.add("MucBT", &MucBT_);
  variables.add("SoCauBT", &SoCauBT_);
  kinds_.each([&variables](const ItemKindPage& page) { page.declare(variables); });
}

} // namespace talvora
