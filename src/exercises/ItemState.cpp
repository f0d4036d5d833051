#include "exercises/ItemState.h"

#include <utility>

namespace talvora {

void ItemState::XoaTrangThai() {
  *this = ItemState();
}

void ItemState::declare(Variables& variables) const {
  variables.add("LoaiBT", [this] { return VariableValue(static_cast<int>(LoaiBT)); });
  variables.add("MaDe", &MaDe);
  variables.add("DeMuc", &DeMuc);
  variables.add("LoiGiai", &LoiGiai);
  variables.add("GiaiChung", &GiaiChung);
  variables.add("MatNa", &MatNa);
  variables.add("CauHienThi", &CauHienThi);
  variables.add("GoiY", [this] {
    VariableValue::Table table{VariableValue(std::string())};
    table.insert(table.end(), GoiY.begin(), GoiY.end());
    return VariableValue(std::move(table));
  });
  variables.add("SoGoiY", &SoGoiY);
  variables.add("OTrong", [this] { return OTrong.value(); });
  variables.add("SoOTrong", [this] { return VariableValue(OTrong.count()); });
  variables.add("ODaLam", [this] { return ODaLam.value(); });
  variables.add("SoODaLam", [this] { return VariableValue(ODaLam.count()); });
  variables.add("OSai", [this] { return OSai.value(); });
  variables.add("SoOSai", [this] { return VariableValue(OSai.count()); });
  variables.add("DaCham", &DaCham);
  variables.add("KetQuaCau", &KetQuaCau);
  variables.add("DapAnDung", &DapAnDung);
  variables.add("ChuCu", &ChuCu);
  variables.add("ViTriChuCu", &ViTriChuCu);
  variables.add("MauCu", [this] { return VariableValue(static_cast<double>(MauCu.value_or(0))); });
  links.declare(variables);
}

} // namespace talvora
