// The item on show: everything that is cleared when the next one comes.
#pragma once

#include "exercises/BackNextLinks.h"
#include "exercises/BlankTable.h"
#include "platform/TextStyle.h"
#include "surface/Variables.h"

#include <optional>
#include <string>
#include <vector>

namespace talvora {

/// What an item asks for; the value is the digit with which its record begins.
enum class ItemKind {
  None = 0,
  Choice = 1,
  Mistake = 2,
  Ordering = 3,
  FillIn = 4,
  FillInHints = 5,
  Count
};

struct ItemState {
  static constexpr int MostHints = 1000;

  /// Makes room for a new item.
  void XoaTrangThai();

  /// Position p, from 1, in the mask; 0 outside.
  [[nodiscard]] char maskAt(int p) const noexcept {
    return p >= 1 && p <= static_cast<int>(MatNa.size()) ? MatNa[static_cast<std::size_t>(p - 1)]
                                                         : '\0';
  }
  /// Whether a position lies behind the heading and the two line ends that follow it.
  [[nodiscard]] bool pastHeading(int p) const noexcept {
    return p > static_cast<int>(DeMuc.size()) + 2;
  }
  /// Hint k, from 1; empty when there is none.
  [[nodiscard]] std::string hint(int k) const {
    return k >= 1 && k <= static_cast<int>(GoiY.size()) ? GoiY[static_cast<std::size_t>(k - 1)]
                                                        : std::string();
  }

  void declare(Variables& variables) const;

  ItemKind LoaiBT = ItemKind::None;
  int MaDe = 0;                  ///< heading code
  std::string DeMuc;             ///< heading
  std::string LoiGiai;           ///< answer record
  std::string GiaiChung;         ///< general explanation
  std::string MatNa;             ///< mask: what each position of the text is
  std::string CauHienThi;        ///< the text as first shown
  std::vector<std::string> GoiY; ///< hints of the blanks, or the options; element k-1 is number k
  int SoGoiY = 0;                ///< number of hints; 0 in an item without
  BlankTable OTrong;             ///< blanks or phrases with their explanations
  BlankTable ODaLam;             ///< blanks with their model answers; built by judging
  BlankTable OSai;               ///< blanks judged wrong, with their answers
  BackNextLinks links;           ///< the links at the foot
  bool DaCham = false;           ///< the item has been judged, or its explanation asked for
  int KetQuaCau = 0;             ///< 0 not yet answered, 1 right, -1 a wrong answer was given
  int DapAnDung = 0;             ///< number of the right option or the wrong phrase, from 1
  std::string ChuCu;             ///< what stands under a shown answer; empty when none is shown
  int ViTriChuCu = 0;            ///< caret where it stands
  std::optional<Colour> MauCu;   ///< its colour
  bool listsLessons = false;     ///< each blank is explained by the list of the verb lessons
};

} // namespace talvora
