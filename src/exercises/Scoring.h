// The score of a run: items answered right at the first try, told in the window's caption when the
// run ends or is left. Nothing of it is stored.
#pragma once

#include "surface/Form.h"
#include "surface/State.h"
#include "surface/Variables.h"

namespace talvora {

/// The sections of the exercise banks are 10 to 18.
[[nodiscard]] constexpr bool isBankSection(int section) {
  return section >= 10 && section <= 18;
}

class Scoring {
 public:
  Scoring(Form& form, const Places& places, const Measures& measures)
      : form_(form), places_(places), measures_(measures) {}

  /// Counts an item with the outcome 1 in a run of a bank; `ViTriCau` is its place in the run.
  void CongDung(int KetQuaCau, int ViTriCau);
  /// Writes the score out of a total to the caption; with none right the caption stays.
  void BaoDiem(int total);
  /// Gives the window its plain caption back.
  void ChuPhu() { form_.Caption(measures_.TieuDeE); }

  void declare(Variables& variables) const { variables.add("SoDung", &SoDung); }

  int SoDung = 0; ///< items of the run answered right; only rises during a run

 private:
  Form& form_;
  const Places& places_;
  const Measures& measures_;
};

} // namespace talvora
