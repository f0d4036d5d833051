// The page of one listening item on `RN2`: four options, greyed as they prove wrong, and the
// sentence once the right one is found.
#pragma once

#include "exercises/BackNextLinks.h"
#include "listening/ListeningItems.h"
#include "listening/OptionMask.h"
#include "platform/Random.h"
#include "surface/State.h"
#include "surface/Surface.h"

#include <string>

namespace talvora {

class ListeningPage {
 public:
  /// The links of a page go into `sharedLinks`, which all drills share.
  ListeningPage(Surface& RN2, const Surface& Rchon, const Measures& measures, Random& random,
                BackNextLinks& sharedLinks)
      : links(sharedLinks), RN2_(RN2), Rchon_(Rchon), measures_(measures), random_(random) {}

  /// Shuffles an item's options and paints the page anew on a copy of the template.
  void paint(const ListeningTexts& texts);
  /// Greys what is wrong and writes the sentence at the page's end.
  void HienCauNghe();
  /// Greys the wrong option at a caret, if one stands there and is not grey yet; true when it did.
  bool XamDong(int caret);

  /// Whether the sentence is still hidden.
  [[nodiscard]] bool isOpen() const noexcept { return !CauNghe1.empty(); }
  /// Whether a caret belongs to the right option.
  [[nodiscard]] bool isRight(int caret) const noexcept;

  void declare(Variables& variables) const;

  std::string CauNghe1; ///< the sentence; empty once it is shown
  BackNextLinks& links; ///< the links at the page's foot

 private:
  void shuffle(const std::string& right);
  void writeOptions();
  void XamDapAnSai();

  Surface& RN2_;
  const Surface& Rchon_;
  const Measures& measures_;
  Random& random_;
  ShownOptions LuaChon_;
  int DapAnNghe_ = 0; ///< place of the right option, from 1
  OptionMask mask_;
};

} // namespace talvora
