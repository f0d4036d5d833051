// Fill-in items on `RDT`: the learner types into cells that never shift, Enter judges all blanks at
// once, and afterwards each blank tells its answer and its explanation.
#pragma once

#include "exercises/ItemKindPage.h"
#include "exercises/ItemPage.h"
#include "surface/Form.h"

namespace talvora {

class BT_DienTu final : public ItemKindPage {
 public:
  explicit BT_DienTu(ItemServices& services);

  [[nodiscard]] Surface& surface() const noexcept override { return RDT_; }
  void show() override;
  void entered() override;
  void takeAnswerBack() override { services_.answer.keepInBlank(RDT_); }

  /// Judges all blanks and colours them.
  void ChamDienTu();
  /// Shows the hint of the blank at position p, from 1.
  void HienGoiY(int p);

 private:
  /// Shows the item whose body is given.
  void VeDienTu(const std::string& body);
  void wireEvents();
  void pressKey(int& keyCode, int shift);
  void eraseCell();
  void pressCharacter(int& keyAscii);
  void pressAfterJudging(int keyAscii);
  void typeInto(char character);
  void writeCell(int caret, char character);
  void releaseKey(int keyCode, int shift);
  void releaseMouse(MouseButton button, SurfacePoint at);
  /// Whether a key or click at position p gives a hint.
  [[nodiscard]] bool givesHint(int p) const;
  void drawCells();
  /// Judges the blank whose "*" stands at position p of the mask; true when it is right.
  bool judgeBlank(int p, const std::string& typed);
  void colourCells(int p, int length, Colour colour);

  ItemServices& services_;
  Surface& RDT_;
  ItemState& item_;
  ItemPage page_;
};

} // namespace talvora
