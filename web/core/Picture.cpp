#include "core/Picture.h"

#include "core/Host.h"
#include "fronts/ButtonMeaning.h"
#include "fronts/Lights.h"
#include "fronts/PageNames.h"
#include "fronts/PageTraits.h"
#include "fronts/ScrollBar.h"
#include "surface/Button.h"
#include "text/GlyphMap.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace talvora::web {

namespace {

constexpr Colour PureBlue = 0xFF0000;
constexpr Light White = 0xFFFFFF;
constexpr Light Black = 0;
constexpr int CaretWidth = 20; // twips
constexpr std::size_t MostLines = 1000;

// Of the hint bar, as on the desktop.
constexpr double CardTop = 0.1; ///< where cards begin, of the form's height
constexpr double Padding = 30;  // twips
constexpr double SidePadding = 150;
constexpr double Narrowest = 0.77; ///< of the letters' own width
constexpr double InkPart = 0.92;   ///< of a line's height that letters with their marks fill

/// "#rrggbb".
std::string hexOf(Light light) {
  constexpr char Digits[] = "0123456789abcdef";
  std::string text = "#";
  for (int place = 20; place >= 0; place -= 4)
    text += Digits[light >> static_cast<unsigned>(place) & 0xFU];
  return text;
}

void writeLight(JsonWriter& json, const char* name, Light light) {
  json.field(name, std::string_view(hexOf(light)));
}

void writeBox(JsonWriter& json, const char* name, const Box& box) {
  json.key(name).open('[').value(box.left).value(box.top).value(box.width).value(box.height);
  json.close(']');
}

void writeMark(JsonWriter& json, const char* kind, Box box, int top) {
  box.top += top;
  json.open('{').field("mark", kind);
  writeBox(json, "box", box);
  json.close('}');
}

std::u16string captionOf(const std::string& bytes, const FontSpec& font) {
  std::u16string text = toUnicode(bytes, encodingOf(font.name));
  // In a caption "&&" stands for one "&".
  if (const auto at = text.find(u"&&"); at != std::u16string::npos) text.erase(at, 1);
  return text;
}

/// What a line needs at its natural size, in twips.
double widthOf(const Paragraph& paragraph, int length) {
  double left = 0;
  double right = 0;
  for (const Box& box : paragraph.rectsOf(0, length)) {
    left = left == 0 ? box.left : std::min(left, box.left);
    right = std::max(right, box.left + box.width);
  }
  return right - left;
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
  json.field("menu", as<Button>(focus_) != nullptr);
  if (std::exchange(captionChanged_, false)) {
    json.field("caption", toUnicode(form_.Caption(), Encoding::Windows1252));
  }
  json.key("controls").open('[');
  int depth = 0;
  for (Control* const control : form_.controls()) {
    ++depth;
    if (!all && !changed.contains(control)) continue;
    json.open('{').field("name", std::string_view(control->Name())).field("depth", depth);
    write(json, *control);
    json.close('}');
  }
  json.close(']').close('}');
  tellPage(json.text());
}

// -- Controls.

void Picture::writeText(JsonWriter& json, std::u16string_view text, const FontSpec& font) const {
  json.field("text", text).field("size", sizeOf(font));
  json.field("face", static_cast<int>(faceOf(font, false)));
}

void Picture::write(JsonWriter& json, Control& control) const {
  json.field("shown", control.Visible());
  if (!control.Visible()) return;
  const bool isHintBar = control.Name() == "RDOS";
  auto* const surface = as<Surface>(&control);
  const int height = isHintBar && surface != nullptr ? hintBarHeight(*surface) : control.Height();
  writeBox(json, "box",
           {static_cast<double>(control.Left()), static_cast<double>(control.Top()),
            static_cast<double>(control.Width()), static_cast<double>(height)});
  const Light back = lightOf(control.BackColor());
  writeLight(json, "back", back);
  json.field("dark", contrastOf(back, White) > contrastOf(back, Black));
  if (surface != nullptr) {
    json.field("kind", "surface").field("label", pageName(surface->Name()));
    isHintBar ? writeHintBar(json, *surface) : writeSurface(json, *surface);
  } else if (const auto* button = as<Button>(&control)) {
    json.field("kind", "button").field("picture", button->Picture());
    writeText(json, captionOf(button->Caption(), button->Font()), button->Font());
    json.field("meaning", meaningOf(*button)).field("english", hasEnglishCaption(*button));
  } else if (const auto* label = as<Label>(&control)) {
    json.field("kind", "label");
    writeText(json, unitsOf(label->Caption(), label->Font().name), label->Font());
    writeLight(json, "color", lightOf(label->ForeColor()));
    json.field("wide", WebTextMetrics(faces_).widthOf(label->Caption(), label->Font()));
  } else if (const auto* panel = as<Panel>(&control)) {
    json.field("kind", "panel").field("alpha", std::clamp(panel->Alpha(), 0, 255) / 255.0);
  } else {
    json.field("kind", as<Frame>(&control) != nullptr   ? "frame"
                       : as<Image>(&control) != nullptr ? "image"
                                                        : "none");
  }
}

// -- Surfaces.

void Picture::writeSurface(JsonWriter& json, Surface& surface) const {
  json.field("locked", surface.Locked()).field("list", traitsOf(surface).isList);
  const ScrollPlace scroll = surface.scroll();
  json.key("lines").open('[');
  int top = -scroll.offset;
  int number = scroll.paragraph;
  double cut = surface.Height();
  for (; number < surface.paragraphCount() && top < surface.Height(); ++number) {
    const Paragraph& paragraph = layout_.shaped(surface.paragraph(number).view());
    Setting setting;
    setting.top = top;
    writeParagraph(json, surface, paragraph, setting);
    writeMarks(json, surface, number, paragraph, top);
    for (const LineShape& line : paragraph.shape().lines) {
      const int upper = top + line.top;
      if (upper < surface.Height() && upper + line.height > surface.Height()) cut = upper;
    }
    top += paragraph.shape().height;
  }
  json.close(']');
  if (cut < surface.Height()) json.field("cut", cut);
  writeThumb(json, surface, number - scroll.paragraph, top);
}

void Picture::writeThumb(JsonWriter& json, Surface& surface, int inView, int bottom) const {
  const ScrollBar bar(surface, layout_);
  const ScrollBar::Extent extent = bar.extent(inView, bottom);
  if (!extent.scrolls) return;
  const ScrollBar::Thumb thumb = bar.thumb(extent);
  json.key("thumb").open('[').value(thumb.top).value(thumb.length).close(']');
}

void Picture::writeParagraph(JsonWriter& json, const Surface& surface, const Paragraph& paragraph,
                             const Setting& setting) const {
  const Light back = lightOf(surface.BackColor());
  for (std::size_t line = 0; line < paragraph.shape().lines.size(); ++line) {
    const LineShape& shape = paragraph.shape().lines[line];
    const double top = setting.top + shape.top;
    if (top + shape.height <= 0 || top >= surface.Height()) continue;
    json.open('{');
    json.field("id", static_cast<double>(paragraph.serial() * MostLines + line));
    json.field("top", top).field("high", shape.height);
    json.field("left", setting.left + paragraph.leftOf(line));
    if (setting.width > 0) {
      json.key("scale").open('[').value(setting.narrower).value(setting.lower);
      json.value(setting.width / 2 - paragraph.leftOf(line));
      json.value(paragraph.shape().height / 2.0 - shape.top).close(']');
    }
    if (line == 0 && paragraph.hasBullet()) {
      Box dot = paragraph.bulletBox();
      dot.top += setting.top;
      writeBox(json, "dot", dot);
    }
    json.key("runs").open('[');
    for (const PaintedRun& run : paragraph.runsOf(line)) {
      json.open('{').field("text", run.text).field("face", static_cast<int>(run.face));
      json.field("size", run.size);
      writeLight(json, "color", readableOn(lightOf(run.style->color), back));
      if (run.style->underline) json.field("under", true);
      if (run.tab > 0) json.field("tab", run.tab);
      json.close('}');
    }
    json.close(']').close('}');
  }
}

/// Under the text: what is selected, the line of a list on which the keys act, signs that say what
/// a colour says. Over it: the caret.
void Picture::writeMarks(JsonWriter& json, const Surface& surface, int number,
                         const Paragraph& paragraph, int top) const {
  const PageTraits traits = traitsOf(surface);
  const int start = surface.paragraphStart(number);
  const int length = surface.paragraphStart(number + 1) - start;
  const int from = std::clamp(surface.SelStart() - start, 0, length);
  const int to = std::clamp(surface.SelStart() + surface.SelLength() - start, 0, length);
  const bool holdsCaret = surface.paragraphOf(surface.SelStart()) == number;
  if (traits.isList && holdsCaret) {
    writeMark(
        json, "current",
        {0, 0, static_cast<double>(surface.Width()), static_cast<double>(paragraph.shape().height)},
        top);
  } else if (to > from) {
    for (const Box& box : paragraph.rectsOf(from, to))
      writeMark(json, "selected", box, top);
  }
  if (traits.blueSign != PageTraits::BlueSign::None) {
    const bool ticks = traits.blueSign == PageTraits::BlueSign::Tick;
    for (const auto& [first, last] : paragraph.rangesIn(PureBlue)) {
      for (const Box& box : paragraph.rectsOf(first, last))
        writeMark(json, ticks ? "tick" : "under", box, top);
    }
  }
  const bool caret =
      traits.showsCaret && holdsCaret && surface.SelLength() == 0 && form_.hasFocus(surface);
  if (!caret) return;
  const CaretPlace place = paragraph.placeOf(from);
  writeMark(json, "caret",
            {static_cast<double>(place.x), static_cast<double>(place.top), CaretWidth,
             static_cast<double>(place.height)},
            top);
}

// -- The hint bar: a card over the page, whose lines come closer and smaller where there is no
// room.

int Picture::hintBarHeight(const Surface& surface) const {
  const int cardTop = static_cast<int>(std::lround(form_.Height() * CardTop)) - surface.Top();
  return std::clamp(cardTop, surface.Height() / 2, surface.Height());
}

void Picture::writeHintBar(JsonWriter& json, const Surface& surface) const {
  json.field("locked", true).field("list", false);
  // Laid out as wide as the narrowest letters allow, so that a line breaks only beyond that.
  const int room = static_cast<int>(std::lround(surface.Width() / Narrowest));
  double natural = 0;
  double widest = 0;
  for (int each = 0; each < surface.paragraphCount(); ++each) {
    const ParagraphRef content = surface.paragraph(each, room);
    const Paragraph& line = layout_.shaped(content.view());
    natural += line.shape().height;
    widest = std::max(widest, widthOf(line, static_cast<int>(content.view().text.size())));
  }
  const int whole = hintBarHeight(surface);
  const double closer = std::min(1.0, (whole - 2 * Padding) / std::max(1.0, natural));
  Setting setting;
  // Letters become lower only where their marks would meet.
  setting.lower = std::min(1.0, closer / InkPart);
  setting.narrower =
      std::min(setting.lower,
               std::max(Narrowest, (surface.Width() - 2 * SidePadding) / std::max(1.0, widest)));
  setting.width = room;
  setting.left = (surface.Width() - room) / 2.0;
  double middle = (whole - natural * closer) / 2;
  json.key("lines").open('[');
  for (int each = 0; each < surface.paragraphCount(); ++each) {
    const Paragraph& line = layout_.shaped(surface.paragraph(each, room).view());
    const double height = line.shape().height;
    setting.top = middle + height * (closer - 1) / 2;
    writeParagraph(json, surface, line, setting);
    middle += height * closer;
  }
  json.close(']');
}

} // namespace talvora::web
