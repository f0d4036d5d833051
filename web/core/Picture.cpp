#include "core/Picture.h"

#include "core/Host.h"
#include "core/Palette.h"
#include "surface/Button.h"
#include "text/GlyphMap.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace talvora::web {

namespace {

bool isList(std::string_view name) {
  constexpr std::array lists = {"R1", "RVP1", "RN1", "RW1", "RTD", "Rchon"};
  return std::find(lists.begin(), lists.end(), name) != lists.end();
}

void writeBox(JsonWriter& json, const char* name, const Box& box) {
  json.key(name).open('[').value(box.left).value(box.top).value(box.width).value(box.height);
  json.close(']');
}

std::u16string captionOf(const std::string& bytes, const FontSpec& font) {
  std::u16string text = toUnicode(bytes, encodingOf(font.name));
  // In a caption "&&" stands for one "&".
  if (const auto at = text.find(u"&&"); at != std::u16string::npos) text.erase(at, 1);
  return text;
}

} // namespace

Picture::Picture(Form& form, WebLineLayout& layout, const Faces& faces)
    : form_(form), layout_(layout), faces_(faces) {
  form_.observe(this);
}

Picture::~Picture() {
  form_.observe(nullptr);
}

void Picture::controlChanged(Control& control, ControlChange) {
  changed_.insert(&control);
}

void Picture::focusChanged() {
  if (focus_ != nullptr) changed_.insert(focus_);
  focus_ = form_.ActiveControl();
  if (focus_ != nullptr) changed_.insert(focus_);
}

void Picture::send() {
  if (!form_.Visible() || (changed_.empty() && !captionChanged_ && !all_)) return;
  const auto changed = std::exchange(changed_, {});
  const bool all = std::exchange(all_, false);
  JsonWriter json;
  json.open('{').field("do", "paint");
  json.field("focus", focus_ == nullptr ? std::string_view() : std::string_view(focus_->Name()));
  if (std::exchange(captionChanged_, false)) {
    json.field("caption", toUnicode(form_.Caption(), Encoding::Windows1252));
  }
  json.key("controls").open('[');
  int depth = 0;
  for (const Control* control : form_.controls()) {
    ++depth;
    if (!all && !changed.contains(control)) continue;
    json.open('{').field("name", std::string_view(control->Name())).field("depth", depth);
    write(json, *control);
    json.close('}');
  }
  json.close(']').close('}');
  tellPage(json.text());
}

void Picture::write(JsonWriter& json, const Control& control) const {
  json.field("shown", control.Visible());
  if (!control.Visible()) return;
  const auto side = [](int twips) { return static_cast<double>(twips); };
  writeBox(
      json, "box",
      {side(control.Left()), side(control.Top()), side(control.Width()), side(control.Height())});
  json.field("back", std::string_view(hexOf(lightOf(control.BackColor()))));
  if (const auto* surface = as<Surface>(&control)) {
    json.field("kind", "surface");
    writeSurface(json, *surface);
  } else if (const auto* button = as<Button>(&control)) {
    json.field("kind", "button").field("picture", button->Picture());
    json.field("number", button->TabIndex());
    json.field("text", captionOf(button->Caption(), button->Font()));
    json.field("size", sizeOf(button->Font()));
    json.field("face", static_cast<int>(faceOf(button->Font(), false)));
  } else if (const auto* label = as<Label>(&control)) {
    json.field("kind", "label").field("text", unitsOf(label->Caption(), label->Font().name));
    json.field("size", sizeOf(label->Font()));
    json.field("face", static_cast<int>(faceOf(label->Font(), false)));
    json.field("color", std::string_view(hexOf(lightOf(label->ForeColor()))));
    json.field("wide", WebTextMetrics(faces_).widthOf(label->Caption(), label->Font()));
  } else if (const auto* panel = as<Panel>(&control)) {
    json.field("kind", "panel").field("alpha", std::clamp(panel->Alpha(), 0, 255) / 255.0);
  } else if (as<Frame>(&control) != nullptr) {
    json.field("kind", "frame");
  } else if (as<Image>(&control) != nullptr) {
    json.field("kind", "image");
  } else {
    json.field("kind", "none");
  }
}

const Paragraph& Picture::shaped(const Surface& surface, int paragraph) const {
  return layout_.shaped(surface.paragraph(paragraph).view());
}

void Picture::writeSurface(JsonWriter& json, const Surface& surface) const {
  json.field("locked", surface.Locked()).field("list", isList(surface.Name()));
  const ScrollPlace scroll = surface.scroll();
  json.key("lines").open('[');
  int top = -scroll.offset;
  int number = scroll.paragraph;
  for (; number < surface.paragraphCount() && top < surface.Height(); ++number) {
    const Paragraph& paragraph = shaped(surface, number);
    writeParagraph(json, surface, number, paragraph, top);
    top += paragraph.shape().height;
  }
  json.close(']');
  const bool scrolls =
      scroll != ScrollPlace{} || number < surface.paragraphCount() || top > surface.Height();
  if (!scrolls) return;
  json.key("scroll").open('[').value(scroll.paragraph).value(number - scroll.paragraph);
  json.value(surface.paragraphCount()).close(']');
}

void Picture::writeParagraph(JsonWriter& json, const Surface& surface, int number,
                             const Paragraph& paragraph, int top) const {
  const Light back = lightOf(surface.BackColor());
  for (std::size_t line = 0; line < paragraph.shape().lines.size(); ++line) {
    const LineShape& shape = paragraph.shape().lines[line];
    if (top + shape.top + shape.height <= 0 || top + shape.top >= surface.Height()) continue;
    json.open('{');
    json.field("id", static_cast<double>(paragraph.serial() * 1000 + line));
    json.field("top", top + shape.top).field("high", shape.height);
    json.field("left", paragraph.leftOf(line));
    if (line == 0 && paragraph.hasBullet()) {
      Box dot = paragraph.bulletBox();
      dot.top += top;
      writeBox(json, "dot", dot);
    }
    json.key("runs").open('[');
    for (const PaintedRun& run : paragraph.runsOf(line)) {
      json.open('{').field("text", run.text).field("face", static_cast<int>(run.face));
      json.field("size", run.size);
      json.field("color", std::string_view(hexOf(readableOn(lightOf(run.style->color), back))));
      if (run.style->underline) json.field("under", true);
      if (run.tab > 0) json.field("tab", run.tab);
      json.close('}');
    }
    json.close(']').close('}');
  }
  writeSelection(json, surface, number, paragraph, top);
}

/// Caret, selection and the line of a list on which the keys act, as marks under the text.
void Picture::writeSelection(JsonWriter& json, const Surface& surface, int number,
                             const Paragraph& paragraph, int top) const {
  const int start = surface.paragraphStart(number);
  const int length = surface.paragraphStart(number + 1) - start;
  const int from = std::clamp(surface.SelStart() - start, 0, length);
  const int to = std::clamp(surface.SelStart() + surface.SelLength() - start, 0, length);
  const bool holdsCaret = surface.paragraphOf(surface.SelStart()) == number;
  const bool list = isList(surface.Name());
  const auto mark = [&](const char* kind, Box box) {
    box.top += top;
    json.open('{').field("mark", kind);
    writeBox(json, "box", box);
    json.close('}');
  };
  if (list && holdsCaret) {
    mark("current", {0, 0, static_cast<double>(surface.Width()),
                     static_cast<double>(paragraph.shape().height)});
  } else if (to > from) {
    for (const Box& box : paragraph.rectsOf(from, to))
      mark("selected", box);
  }
  const bool caret = !list && holdsCaret && surface.SelLength() == 0 && focus_ == &surface &&
                     surface.Name() != "Rcachhoc";
  if (!caret) return;
  const CaretPlace place = paragraph.placeOf(from);
  mark("caret", {static_cast<double>(place.x), static_cast<double>(place.top), 20,
                 static_cast<double>(place.height)});
}

} // namespace talvora::web
