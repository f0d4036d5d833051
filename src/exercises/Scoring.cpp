#include "exercises/Scoring.h"

#include "surface/SectionNumbers.h"
#include "text/Text.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace talvora {

void Scoring::CongDung(int KetQuaCau, int ViTriCau) {
  if (KetQuaCau == 1 && isBankSection(places_.MucMenu) && ViTriCau > 0) ++SoDung;
}

void Scoring::BaoDiem(int total) {
  const bool scores = places_.MucMenu == section::Listening || isBankSection(places_.MucMenu);
  if (SoDung <= 0 || total <= 0 || !scores) return;
  // An item that was retried counts again, so that more can be right than there are.
  const auto percent = std::min<std::int64_t>(std::int64_t{100} * SoDung / total, 100);
  form_.Caption(measures_.KhoangDem + "Ban da lam dung " + Str(SoDung) + "/" +
                std::to_string(total) + " = " + std::to_string(percent) + "%");
}

} // namespace talvora
