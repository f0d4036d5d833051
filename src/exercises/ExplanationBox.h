// The box `RHDBT` in which an exercise explains itself, beside the pointer, with links to lessons.
#pragma once

#include "exercises/ExerciseControls.h"
#include "exercises/ExplanationMarkup.h"
#include "exercises/ItemState.h"
#include "exercises/ModelAnswer.h"
#include "lessons/LessonPage.h"
#include "lessons/WordHelp.h"
#include "shell/Shell.h"
#include "surface/Form.h"
#include "surface/State.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// A link of the explanation on show. A caret ahead of its last character does not answer to a
/// click.
struct LessonLink {
  int Dau = 0;  ///< caret ahead of it
  int Cuoi = 0; ///< `Dau` + length - 1
  int Bai = 0;  ///< number of the lesson; 0 when no lesson has that title
};

class ExplanationBox {
 public:
  static constexpr std::size_t MostLinks = 1000;

  ExplanationBox(Form& form, ExerciseControls& controls, SharedState& state, Shell& shell,
                 PageServices services, ItemState& item, ModelAnswer& answer,
                 const ItemKinds& kinds, LessonPage& lessons);

  /// Explains the blank at position p, from 1, of a surface and shows its model answer.
  void GiaiThich(int p, Surface& surface);
  /// Shows an explanation; an empty text stands for the general one. A blank's own explanation is
  /// shown only after judging.
  void HienLoiGiai(const std::string& text, Surface& surface);
  /// Fits the red plate behind the box, which grows a little.
  void BongLoiGiai();
  /// Closes the box and stops speech.
  void DongGiai();
  /// The pointer moved on an item's surface: far from the click the box and the shown answer go.
  void RoiChuotBT(Surface& surface, SurfacePoint at);
  /// Opens the lesson of the link at position p, from 1; false when there is none.
  bool MoLienKet(int p);
  /// Leaves the lesson that a link has opened.
  void DongBaiLienKet();
  /// Takes that lesson and its card off, where the page behind it goes too.
  void takeLessonAway();
  /// The number of the lesson with a title; 0 when there is none.
  [[nodiscard]] int TimBaiHoc(std::string_view title) const;

  void declare(Variables& variables) const;

  /// What a key on the box does besides closing it; set by the program.
  std::function<void()> keyPressed = [] {};

 private:
  void wireEvents();
  void addToShell();
  void releaseMouse(MouseButton button, SurfacePoint at);
  void ViTriLoiGiai();
  void DienLoiGiai(const std::string& text, const Surface& surface);
  void VietGiaiChung(const Surface& surface);
  void VietLoiGiai(std::string_view text);
  void addLink(const ExplanationText& explanation, ExplanationSpan span);
  void colour(ExplanationSpan span, const StyleChange& change);
  void DoCaoLoiGiai();
  void DoiLoiGiai();
  /// Number of lines up to the text's end, as the box breaks them.
  [[nodiscard]] int lineCount();
  /// Half the way that the box keeps from the pointer, twips.
  [[nodiscard]] int halfGap() const;
  /// The page's own text is the current one again.
  void giveTextBack();
  /// Gives the focus to the surface that lies behind the box.
  void focusBehind();

  Form& form_;
  ExerciseControls& controls_;
  SharedState& state_;
  Shell& shell_;
  WordHelp words_;
  ItemState& item_;
  ModelAnswer& answer_;
  const ItemKinds& kinds_;
  LessonPage& lessons_;
  std::vector<LessonLink> LienKet_;
  int itemCaret_ = 0;                     ///< caret of the surface behind the box
  std::optional<std::string> textBehind_; ///< the page's, while a linked lesson is open
};

} // namespace talvora
