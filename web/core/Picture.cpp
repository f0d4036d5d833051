#include "core/Picture.h"

#include "fronts/ButtonMeaning.h"
#include "fronts/Lights.h"
#include "fronts/PageNames.h"
#include "fronts/PageTraits.h"
#include "fronts/ScrollBar.h"
#include "fronts/Units.h"
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

/// "#rrggbb".
std::string hexOf(Light light) {
  constexpr char Digits[] = "0123456789abcdef";
  std::string text = "#";
  for (int place = 20; place >= 0; place -= 4)
    text += Digits[light >> static_cast<unsigned>(place) & 0xFU];
  return text;
}

/// Twips to a hundredth are as exact as any screen.
double shortened(double twips) {
  return std::round(twips * 100) / 100;
}

Json boxOf(const Box& box, double top) {
  return {shortened(box.left), shortened(top + box.top), shortened(box.width),
          shortened(box.height)};
}

Json runOf(const PaintedRun& run, Light back) {
  Json json = {{"text", utf8Of(run.text)},
               {"face", static_cast<int>(run.face)},
               {"size", run.size},
               {"color", hexOf(readableOn(lightOf(run.style->color), back))}};
  if (run.style->underline) json["under"] = true;
  if (run.tab > 0) json["tab"] = shortened(run.tab);
  return json;
}

void addText(Json& json, std::u16string_view text, const FontSpec& font) {
  json["text"] = utf8Of(text);
  json["size"] = sizeOf(font);
  json["face"] = static_cast<int>(faceOf(font, false));
}

void addButton(Json& json, const Button& button) {
  json["kind"] = "button";
  json["picture"] = button.Picture();
  json["meaning"] = utf8Of(meaningOf(button));
  json["english"] = hasEnglishCaption(button);
  addText(json, captionOf(button), button.Font());
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
  Json message = {{"do", "paint"},
                  {"focus", focus_ == nullptr ? std::string() : focus_->Name()},
                  {"menu", as<Button>(focus_) != nullptr},
                  {"controls", Json::array()}};
  if (std::exchange(captionChanged_, false))
    message["caption"] = utf8Of(toUnicode(form_.Caption(), Encoding::Windows1252));
  int depth = 0;
  for (Control* const control : form_.controls()) {
    ++depth;
    if (!all && !changed.contains(control)) continue;
    Json look = control->Visible() ? lookOf(*control) : Json::object();
    look.update({{"name", control->Name()}, {"depth", depth}, {"shown", control->Visible()}});
    message["controls"].push_back(std::move(look));
  }
  tellPage(message);
}

// -- Controls.

Json Picture::lookOf(Control& control) const {
  Json json = {{"box", {control.Left(), control.Top(), control.Width(), control.Height()}}};
  const bool isImage = as<Image>(&control) != nullptr;
  if (!isImage && as<Button>(&control) == nullptr)
    json["back"] = hexOf(lightOf(control.BackColor()));
  if (auto* const surface = as<Surface>(&control)) {
    addSurface(json, *surface);
  } else if (const auto* button = as<Button>(&control)) {
    addButton(json, *button);
  } else if (const auto* label = as<Label>(&control)) {
    addLabel(json, *label);
  } else if (const auto* panel = as<Panel>(&control)) {
    json["kind"] = "panel";
    json["alpha"] = std::clamp(panel->Alpha(), 0, 255) / 255.0;
  } else {
    json["kind"] = isImage ? "image" : as<Frame>(&control) != nullptr ? "frame" : "none";
  }
  return json;
}

void Picture::addLabel(Json& json, const Label& label) const {
  json["kind"] = "label";
  json["color"] = hexOf(lightOf(label.ForeColor()));
  json["wide"] = WebTextMetrics(faces_).widthOf(label.Caption(), label.Font());
  addText(json, unitsOf(label.Caption(), label.Font().name), label.Font());
}

void Picture::addSurface(Json& json, Surface& surface) const {
  const Light back = lightOf(surface.BackColor());
  json["kind"] = "surface";
  json["dark"] = contrastOf(back, White) > contrastOf(back, Black);
  json["label"] = utf8Of(pageName(surface.Name()));
  json["locked"] = surface.Locked();
  json["list"] = traitsOf(surface).isList;
  if (surface.Name() != "RDOS") {
    json.update(textOf(surface));
    return;
  }
  const HintCard card(surface, form_.Height(), layout_);
  json["box"][3] = card.height();
  json.update(hintsOf(surface, card));
}

// -- Surfaces.

Json Picture::textOf(Surface& surface) const {
  const ScrollPlace scroll = surface.scroll();
  const int bottom = surface.Height();
  int cut = bottom;
  int top = -scroll.offset;
  Json json = {{"lines", Json::array()}};
  for (int number = scroll.paragraph; number < surface.paragraphCount() && top < bottom; ++number) {
    const Paragraph& paragraph = layout_.shaped(surface.paragraph(number).view());
    addLines(json["lines"], surface, paragraph, {0, static_cast<double>(top)});
    addMarks(json["lines"], surface, number, paragraph, top);
    cut = std::min(cut, cutOf(paragraph.shape(), top, bottom));
    top += paragraph.shape().height;
  }
  if (cut < bottom) json["cut"] = cut;
  const ScrollBar bar(surface, layout_);
  const ScrollBar::Extent extent = bar.extent();
  const ScrollBar::Thumb thumb = bar.thumb(extent);
  if (extent.scrolls) json["thumb"] = {shortened(thumb.top), shortened(thumb.length)};
  return json;
}

Json Picture::hintsOf(const Surface& surface, HintCard card) const {
  Json json = {{"lines", Json::array()}};
  for (int each = 0; each < surface.paragraphCount(); ++each) {
    const Paragraph& line = layout_.shaped(surface.paragraph(each, card.room()).view());
    const double height = line.shape().height;
    const double top = card.nextMiddle(height) - height / 2;
    addLines(json["lines"], surface, line, {(surface.Width() - card.room()) / 2.0, top, &card});
  }
  return json;
}

void Picture::addLines(Json& lines, const Surface& surface, const Paragraph& paragraph,
                       const Setting& setting) const {
  const Light back = lightOf(surface.BackColor());
  for (std::size_t line = 0; line < paragraph.shape().lines.size(); ++line) {
    const LineShape& shape = paragraph.shape().lines[line];
    const double top = setting.top + shape.top;
    if (top + shape.height <= 0 || top >= surface.Height()) continue;
    Json json = {{"id", paragraph.serial() * MostLines + line},
                 {"top", shortened(top)},
                 {"high", shape.height},
                 {"left", shortened(setting.left + paragraph.leftOf(line))},
                 {"runs", Json::array()}};
    if (setting.card != nullptr) {
      json["scale"] = {setting.card->narrower(), setting.card->lower(),
                       setting.card->room() / 2.0 - paragraph.leftOf(line),
                       paragraph.shape().height / 2.0 - shape.top};
    }
    if (line == 0 && paragraph.hasBullet()) json["dot"] = boxOf(paragraph.bulletBox(), setting.top);
    for (const PaintedRun& run : paragraph.runsOf(line))
      json["runs"].push_back(runOf(run, back));
    lines.push_back(std::move(json));
  }
}

/// Under the text: what is selected, the line of a list on which the keys act, signs that say what
/// a colour says. Over it: the caret.
void Picture::addMarks(Json& lines, const Surface& surface, int number, const Paragraph& paragraph,
                       int top) const {
  const PageTraits traits = traitsOf(surface);
  const ParagraphMarks marks = marksOf(surface, form_, number);
  const auto add = [&](const char* kind, const Box& box) {
    lines.push_back({{"mark", kind}, {"box", boxOf(box, top)}});
  };
  const double width = surface.Width();
  const double height = paragraph.shape().height;
  if (marks.current) add("current", {0, 0, width, height});
  for (const Box& box : paragraph.rectsOf(marks.from, marks.to))
    add("selected", box);
  if (traits.blueSign != PageTraits::BlueSign::None) {
    const bool ticks = traits.blueSign == PageTraits::BlueSign::Tick;
    for (const auto& [first, last] : paragraph.rangesIn(PureBlue)) {
      for (const Box& box : paragraph.rectsOf(first, last))
        add(ticks ? "tick" : "under", box);
    }
  }
  if (marks.caret < 0) return;
  const CaretPlace place = paragraph.placeOf(marks.caret);
  add("caret", {static_cast<double>(place.x), static_cast<double>(place.top), CaretWidth,
                static_cast<double>(place.height)});
}

} // namespace talvora::web
