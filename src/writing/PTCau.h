// Sentence analysis: in an analysed text a right click marks the word and explains it.
#pragma once

#include "exercises/ItemState.h"
#include "shell/Shell.h"
#include "stores/Stores.h"
#include "surface/State.h"
#include "writing/Analysis.h"
#include "writing/WritingControls.h"

#include <functional>
#include <string>

namespace talvora {

/// What the analysis asks of the explanations of the exercises; set by the program.
struct AnalysisCalls {
  /// Puts the titles of rule lessons in the place of their numbers.
  std::function<void(std::string& text)> ThayTenBai = [](std::string&) {};
  /// Explains the place at a position, from 1.
  std::function<void(int p, Surface& surface)> GiaiThich = [](int, Surface&) {};
};

class PTCau {
 public:
  static constexpr int FirstAnalysedText = 4;

  /// The stretches and the mark of a word stand in `item`, where the exercises' panel finds them.
  PTCau(SharedState& state, const Stores& stores, Shell& shell, ItemState& item)
      : state_(state), stores_(stores), shell_(shell), item_(item) {}

  /// Reads analysis n, from 1, for the text in `CauHoi`.
  /// Throws FatalFailure when it has more than the table holds.
  void NapPhanTich(int n);
  /// What a right click on a word does, once its caret is placed.
  void GiaiTuPT(Surface& surface);

  void declare(Variables& variables) const;

  AnalysisCalls calls;

 private:
  [[nodiscard]] std::string readAnalysis(int n) const;
  void ChonTuPT(Surface& surface);
  /// Position at which the body begins: the title's length plus 2.
  [[nodiscard]] int ViTriTieuDe() const;

  SharedState& state_;
  const Stores& stores_;
  Shell& shell_;
  ItemState& item_;
  std::string PhanTich_; ///< the analysis as read
};

} // namespace talvora
