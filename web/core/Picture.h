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
  /// Where a paragraph is painted: its upper edge, and for letters that are made smaller how much.
  struct Setting {
    double left = 0;
    double top = 0;
    double narrower = 1;
    double lower = 1;
    double width = 0; ///< of the page that the paragraph is laid out on; 0 where it is not scaled
  };

  void write(JsonWriter& json, Control& control) const;
  void writeText(JsonWriter& json, std::u16string_view text, const FontSpec& font) const;
  void writeSurface(JsonWriter& json, Surface& surface) const;
  void writeHintBar(JsonWriter& json, const Surface& surface) const;
  void writeParagraph(JsonWriter& json, const Surface& surface, const Paragraph& paragraph,
                      const Setting& setting) const;
  void writeMarks(JsonWriter& json, const Surface& surface, int number, const Paragraph& paragraph,
                  int top) const;
  void writeThumb(JsonWriter& json, Surface& surface, int inView, int bottom) const;
  [[nodiscard]] int hintBarHeight(const Surface& surface) const;

  Form& form_;
  WebLineLayout& layout_;
  const Faces& faces_;
  std::unordered_set<const Control*> changed_;
  const Control* focus_ = nullptr;
  bool captionChanged_ = true;
  bool all_ = true;
};

} // namespace talvora::web
