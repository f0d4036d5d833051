// Multiple choice on `RABCD`: a stem and four options; only an option's label judges.
#pragma once

#include "exercises/ItemKindPage.h"
#include "exercises/ItemPage.h"

#include <string>

namespace talvora {

class BT_ChonABCD_ final : public ItemKindPage {
 public:
  explicit BT_ChonABCD_(ItemServices& services);

  [[nodiscard]] Surface& surface() const noexcept override { return RABCD_; }
  void show() override;
  void takeAnswerBack() override { services_.answer.KhoiPhucChu(RABCD_); }
  void declare(Variables& variables) const override;

 private:
  /// Shows the item whose stem is given; its options stand in `GoiY`.
  void VeABCD(const std::string& stem);
  void wireEvents();
  void releaseMouse(MouseButton button, SurfacePoint at);
  void writeOption(int number);
  /// Writes a text and gives all its positions one mask character.
  void GhiMa(std::string_view text, char digit);
  void colourOptions(int stemEnd);
  void hideMarks(int stemEnd);
  /// Finds the option to which position p belongs.
  void TimPhuongAn(int p);
  void ToPhuongAn(Colour colour);
  void ChamABCD(int p);
  void GiaiABCD(int p);

  ItemServices& services_;
  Surface& RABCD_;
  ItemState& item_;
  ItemPage page_;
  int stemEnd_ = 0;           ///< length of heading and stem
  int DauPhuongAn_ = 0;       ///< first position of the option found
  int CuoiPhuongAn_ = 0;      ///< its last position
  int PhuongAnChon_ = 0;      ///< its number
  bool DungPhuongAn_ = false; ///< it is the right one
};

} // namespace talvora
