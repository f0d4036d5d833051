// Find the mistake on `Rsai`: a sentence with underlined phrases, one of which is wrong.
#pragma once

#include "exercises/ItemKindPage.h"
#include "exercises/ItemPage.h"

#include <string>

namespace talvora {

class BT_Chonsai final : public ItemKindPage {
 public:
  explicit BT_Chonsai(ItemServices& services);

  [[nodiscard]] Surface& surface() const noexcept override { return Rsai_; }
  void show() override;
  void takeAnswerBack() override { services_.answer.RoChonSai(Rsai_); }

 private:
  /// Whether a phrase is chosen, or only shown for its explanation.
  enum class Choice { Explained = 0, Made = 1 };

  /// Shows the item whose sentence is given.
  void VeChonSai(const std::string& body);
  void wireEvents();
  void releaseMouse(MouseButton button, SurfacePoint at);
  void drawPhrases();
  /// Marks the wrong phrase in the mask.
  void DanhDauSai();
  void ChamChonSai(Choice choice);
  void GiaiChonSai(int p);
  /// Position, from 1, of the "*" of the phrase that holds caret c, searched from the plain text
  /// ahead of it; 0 when there is none.
  [[nodiscard]] int phraseStart(int c) const;

  ItemServices& services_;
  Surface& Rsai_;
  ItemState& item_;
  ItemPage page_;
};

} // namespace talvora
