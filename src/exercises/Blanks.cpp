#include "exercises/Blanks.h"

#include "exercises/ItemMask.h"
#include "exercises/ItemRecord.h"

#include <utility>

namespace talvora {

namespace {

// The lessons that explain the blanks of the banks on verbs.
constexpr int FirstVerbLesson = 2;
constexpr int LastVerbLesson = 69;

/// Explains each blank by the list of the verb lessons.
void BoSungLoiGiai(ItemState& item, std::span<const std::string> titles) {
  std::string lessons;
  for (int lesson = FirstVerbLesson; lesson <= LastVerbLesson; ++lesson) {
    lessons += '`' + std::to_string(lesson) + '\r';
  }
  std::string sections;
  for (int blank = 1; blank <= item.OTrong.count(); ++blank) {
    // A section's first line is skipped: the first section has the line that announces the links,
    // the others need an empty one, so that no lesson falls to it.
    sections += blank == 1 ? "^" : "^\r";
    sections += lessons;
  }
  item.LoiGiai += ThayTenBai(sections, titles);
}

} // namespace

void LapOTrong(ItemState& item, std::span<const std::string> titles) {
  std::string mask = item.MatNa;
  for (auto star = mask.find('*'); star != std::string::npos; star = mask.find('*', star)) {
    const int first = static_cast<int>(star) + 1;
    mask[star] = ' ';
    item.OTrong.add(first, stretchEnd(mask, first), "");
  }
  item.GiaiChung.clear();
  if (item.listsLessons) BoSungLoiGiai(item, titles);
  if (item.LoiGiai.size() <= 1) return;
  AnswerSections answer = TachGiai(item.LoiGiai);
  item.GiaiChung = std::move(answer.general);
  int number = 0;
  for (std::string& section : answer.sections)
    item.OTrong.setText(++number, std::move(section));
}

} // namespace talvora
