#include "surface/WordAtHand.h"

namespace talvora {

void CurrentWord::declare(Variables& variables) const {
  variables.add("TuHienTai", &TuHienTai);
  variables.add("NghiaHienTai", &NghiaHienTai);
  variables.add("ThongBaoHD", &ThongBaoHD);
  variables.add("TuDaBam", &TuDaBam);
  variables.add("NghiaD", &NghiaD);
  variables.add("ViTriCaret", &ViTriCaret);
  variables.add("ViTriCaretR1", &ViTriCaretR1);
  variables.add("ViTriChuot", [this] {
    return VariableValue(VariableValue::Table{ViTriChuot.x, ViTriChuot.y});
  });
  variables.add("ChoGiai", &ChoGiai);
  variables.add("CoDupChuot", &CoDupChuot);
  variables.add("GiuSpace", &GiuSpace);
  variables.add("XoaTuKhiDong", &XoaTuKhiDong);
  variables.add("DaChonRTD", &DaChonRTD);
}

} // namespace talvora
