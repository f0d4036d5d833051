#include "DictionaryRun.h"

#include "text/Bytes.h"
#include "text/WordForm.h"

#include <algorithm>

namespace talvora::test {

std::vector<Word> withLetterLines(const std::vector<Word>& words) {
  std::vector<Word> lines;
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    lines.push_back({std::string(1, letter), std::string(1, letter) + "."});
    const auto section = static_cast<std::ptrdiff_t>(lines.size());
    std::copy_if(words.begin(), words.end(), std::back_inserter(lines),
                 [&](const Word& word) { return ChuanHoaTu(word.line).starts_with(letter); });
    std::sort(lines.begin() + section, lines.end(), [](const Word& left, const Word& right) {
      return ChuanHoaTu(left.line) < ChuanHoaTu(right.line);
    });
  }
  return lines;
}

void writeWordFiles(const TestFolder& folder, const std::vector<Word>& lines,
                    std::string_view lineEnd) {
  std::string list;
  std::string entries;
  std::vector<std::int32_t> positions;
  for (const Word& word : lines) {
    list.append(word.line).append(lineEnd);
    positions.push_back(static_cast<std::int32_t>(entries.size()) + 1);
    positions.push_back(static_cast<std::int32_t>(list.size()));
    entries += word.entry + "\r";
  }
  folder.write("datatu.txt", list);
  folder.writeIntegers("data.mtd", positions);
  folder.writeStream("data.avt", entries);
}

DictionaryRun::DictionaryRun(const std::vector<Word>& words)
    : form(machine.screen, machine.metrics), controls(form, machine.layout), stores(state.places),
      shell(machine.platform, form, controls, state),
      voice(state.places, machine.wave, shell.messages),
      speech(machine.platform, shell.steering, voice),
      dictionary(form, controls, state, stores, shell, speech) {
  addTextPages();
  folder.writeEmptyStores();
  writeWordFiles(folder, withLetterLines(words));
  state.places.ThuMuc = folder.path();
  form.Caption("TALVORA 2.4");
  shell.setup.measureScreen(1024, 768);
  shell.setup.placeForm();
  shell.setup.LapCoChu();
  shell.setup.setTextFont();
  shell.setup.parkSurfaces();
  stores.MoDuLieu();
  dictionary.NapTuDien();
  speech.AmThanhBat = 1;
  // The text that the learner reads, over its list.
  const Measures& m = state.measures;
  for (Surface* surface : {&controls.R1, &controls.R2}) {
    surface->Left(m.LeTraiBai);
    surface->Top(m.LeTrenBai);
    surface->Width(m.RongBai);
    surface->Height(m.CaoBai);
    surface->Text("the text of the learner");
    surface->Visible(true);
  }
  controls.R2.SetFocus();
}

void DictionaryRun::addTextPages() {
  shell.pages.add({.surface = controls.R1, .caret = SharedCaret::OfList});
  shell.pages.add({.surface = controls.R2, .caret = SharedCaret::OfText});
  shell.focusReturn.onReturnTo(FocusRank::TextList, controls.R1,
                               FocusReturn::unlessVisible(controls.R2));
  shell.focusReturn.onReturnTo(FocusRank::Text, controls.R2,
                               FocusReturn::withoutSelection(controls.R2));
}

void DictionaryRun::lookUp(const std::string& word) {
  state.atHand.dropEntry();
  state.atHand.dropMessage();
  state.atHand.take(word);
  dictionary.TraTu();
}

void DictionaryRun::key(int keyCode, char character) {
  form.pressKey(keyCode, shift::None, character);
  form.releaseKey(keyCode, shift::None);
}

void DictionaryRun::type(std::string_view text) {
  for (const char character : text)
    key(asc(character), character);
}

std::vector<std::string> DictionaryRun::spoken() const {
  std::vector<std::string> texts;
  for (const LogEntry& entry : machine.log.entries()) {
    if (entry.what == "speak") texts.push_back(std::get<std::string>(*entry.find("text")));
  }
  return texts;
}

} // namespace talvora::test
