#include "surface/State.h"

namespace talvora {

namespace {

template <class Texts>
Variables::Reader textTable(const Texts& texts) {
  return [&texts] { return VariableValue(VariableValue::Table(texts.begin(), texts.end())); };
}

} // namespace

void Places::declare(Variables& variables) const {
  variables.add("ThuMuc", &ThuMuc);
  variables.add("MucMenu", &MucMenu);
  variables.add("DangBan", &DangBan);
  variables.add("waitkd", &waitkd);
}

void Measures::declare(Variables& variables) const {
  const std::pair<const char*, const int*> numbers[] = {{"RongMH", &RongMH},
                                                        {"CaoMH", &CaoMH},
                                                        {"CoNut", &CoNut},
                                                        {"CoChu", &CoChu},
                                                        {"PhanTramRong", &PhanTramRong},
                                                        {"BuocTruot", &BuocTruot},
                                                        {"KieuTruot", &KieuTruot},
                                                        {"RongBai", &RongBai},
                                                        {"CaoBai", &CaoBai},
                                                        {"LeTraiBai", &LeTraiBai},
                                                        {"LeTrenBai", &LeTrenBai},
                                                        {"RongKhung", &RongKhung},
                                                        {"CaoKhung", &CaoKhung},
                                                        {"LeTraiKhung", &LeTraiKhung},
                                                        {"LeTrenKhung", &LeTrenKhung},
                                                        {"Phan12", &Phan12},
                                                        {"Phan3", &Phan3},
                                                        {"Phan6", &Phan6}};
  for (const auto& [name, variable] : numbers)
    variables.add(name, variable);
  variables.add("KhoangDem", &KhoangDem);
  variables.add("TieuDeE", &TieuDeE);
  variables.add("MauNenHD", [this] { return VariableValue(static_cast<double>(MauNenHD)); });
}

void CurrentText::declare(Variables& variables) const {
  variables.add("CauHoi", &CauHoi);
  variables.add("VanBanGoc", &VanBanGoc);
  variables.addTable("ViTriCauVan", &ViTriCauVan);
  variables.add("SoCauVanBan", &SoCauVanBan);
  variables.addTable("ViTriCauTrongFile", &ViTriCauTrongFile);
  variables.add("DichCau", textTable(DichCau));
  variables.add("CauChon", &CauChon);
}

void CurrentList::declare(Variables& variables) const {
  variables.add("DanhSachBai", &DanhSachBai);
  variables.addTable("BangViTri", &BangViTri);
  variables.addTable("ViTriNhom", &ViTriNhom);
  variables.add("SoNhom", &SoNhom);
  variables.add("SoBaiChon", &SoBaiChon);
  variables.add("TenBaiHoc", textTable(TenBaiHoc));
}

void SharedState::declare(Variables& variables) const {
  places.declare(variables);
  measures.declare(variables);
  word.declare(variables);
  text.declare(variables);
  list.declare(variables);
}

} // namespace talvora
