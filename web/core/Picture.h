// What the form looks like, told to the page: of each control that has changed its place and its
// look, of a surface the lines in view.
#pragma once

#include "core/Message.h"
#include "core/WebLayout.h"
#include "fronts/HintCard.h"
#include "surface/Form.h"

#include <unordered_set>

namespace talvora::web {

class Picture final : public FormObserver {
 public:
  Picture(Form& form, WebLineLayout& layout, const Faces& faces);
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;
  ~Picture() override;

  /// Tells the page what has changed since this was last called.
  void send();

  void controlChanged(Control& control, ControlChange change) override;
  void focusChanged() override;
  void captionChanged() override { captionChanged_ = true; }

 private:
  /// Where a paragraph is painted, and on which card, which makes its letters smaller, if any.
  struct Setting {
    double left = 0;
    double top = 0;
    const HintCard* card = nullptr;
  };

  [[nodiscard]] Json lookOf(Control& control) const;
  void addLabel(Json& json, const Label& label) const;
  void addSurface(Json& json, Surface& surface) const;
  /// What is in view of a surface, and its thumb.
  [[nodiscard]] Json textOf(Surface& surface) const;
  [[nodiscard]] Json hintsOf(const Surface& surface, HintCard card) const;
  void addLines(Json& lines, const Surface& surface, const Paragraph& paragraph,
                const Setting& setting) const;
  void addMarks(Json& lines, const Surface& surface, int number, const Paragraph& paragraph,
                int top) const;

  Form& form_;
  WebLineLayout& layout_;
  const Faces& faces_;
  std::unordered_set<const Control*> changed_;
  const Control* focus_ = nullptr;
  bool captionChanged_ = true;
  bool all_ = true;
};

} // namespace talvora::web
