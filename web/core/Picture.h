// What the form looks like, told to the page: of each control that has changed its place and its
// look, of a surface the lines in view.
#pragma once

#include "core/Json.h"
#include "core/WebLayout.h"
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
  void write(JsonWriter& json, const Control& control) const;
  void writeSurface(JsonWriter& json, const Surface& surface) const;
  void writeParagraph(JsonWriter& json, const Surface& surface, int number,
                      const Paragraph& paragraph, int top) const;
  void writeSelection(JsonWriter& json, const Surface& surface, int number,
                      const Paragraph& paragraph, int top) const;
  [[nodiscard]] const Paragraph& shaped(const Surface& surface, int paragraph) const;

  Form& form_;
  WebLineLayout& layout_;
  const Faces& faces_;
  std::unordered_set<const Control*> changed_;
  const Control* focus_ = nullptr;
  bool captionChanged_ = true;
  bool all_ = true;
};

} // namespace talvora::web
