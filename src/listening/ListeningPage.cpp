#include "listening/ListeningPage.h"

#include "formats/ListeningPage.h"
#include "surface/Looks.h"
#include "text/Text.h"

#include <utility>

namespace talvora {

namespace {

constexpr int OptionCount = listeningpage::Options;
constexpr int ShuffleTries = 10;

} // namespace

void ListeningPage::paint(const ListeningTexts& texts) {
  CauNghe1 = texts.sentence;
  LuaChon_ = texts.options;
  shuffle(texts.options[0]);
  RN2_.TextRTF(Rchon_.TextRTF());
  RN2_.format({listeningpage::InstructionFrom,
               listeningpage::InstructionFrom + listeningpage::InstructionLength},
              {.color = look::Heading, .italic = true});
  writeOptions();
  mask_ = OptionMask(LuaChon_, DapAnNghe_, RN2_.TextLength());
  links = ThemBackNext(RN2_);
  RN2_.SelStart(RN2_.TextLength());
  RN2_.SelText('\r');
}

void ListeningPage::shuffle(const std::string& right) {
  const auto draw = [this] {
    random_.seedFromClock();
    return static_cast<std::size_t>(random_.upTo(OptionCount) - 1);
  };
  for (int tries = 0; tries < ShuffleTries; ++tries) {
    const std::size_t a = draw();
    const std::size_t b = draw();
    if (a != b) std::swap(LuaChon_[a], LuaChon_[b]);
  }
  for (int slot = 1; slot <= OptionCount; ++slot) {
    if (LuaChon_[static_cast<std::size_t>(slot - 1)] == right) DapAnNghe_ = slot;
  }
}

void ListeningPage::writeOptions() {
  // Written from the last to the first, so that the template's carets stay valid.
  for (int i = OptionCount; i >= 1; --i) {
    std::string& option = LuaChon_[static_cast<std::size_t>(i - 1)];
    if (option.starts_with('-')) option.erase(0, 1);
    option = std::string(trim(option));
    if (i != OptionCount) option += '\r';
    RN2_.SelStart(listeningpage::OptionsEnd - listeningpage::LabelLength * (OptionCount + 1 - i));
    RN2_.SelBold(measures_.largeScreen());
    RN2_.SelColor(look::Body);
    RN2_.SelText(option);
  }
}

bool ListeningPage::isRight(int caret) const noexcept {
  return caret >= mask_.right().from && caret <= mask_.right().to;
}

bool ListeningPage::XamDong(int caret) {
  const auto wrong = mask_.takeWrong(caret);
  if (!wrong) return false;
  RN2_.format({wrong->from, wrong->to + 1}, {.color = look::Greyed});
  RN2_.SelStart(caret);
  return true;
}

void ListeningPage::XamDapAnSai() {
  for (int caret = 1; caret <= mask_.lastCaret(); ++caret)
    static_cast<void>(XamDong(caret));
}

void ListeningPage::HienCauNghe() {
  XamDapAnSai();
  RN2_.SelStart(RN2_.TextLength());
  RN2_.SelColor(look::Body);
  RN2_.SelAlignment(Alignment::Centred);
  RN2_.SelBold(measures_.largeScreen());
  RN2_.SelText("\r " + std::exchange(CauNghe1, std::string()) + "\r");
}

void ListeningPage::declare(Variables& variables) const {
  variables.add("CauNghe1", &CauNghe1);
  variables.add("LuaChon", [this] {
    VariableValue::Table table(1, VariableValue(std::string()));
    table.insert(table.end(), LuaChon_.begin(), LuaChon_.end());
    return VariableValue(std::move(table));
  });
  variables.add("DapAnNghe", &DapAnNghe_);
  variables.add("DauDung", [this] { return VariableValue(mask_.right().from); });
  variables.add("CuoiDung", [this] { return VariableValue(mask_.right().to); });
  variables.add("MatNaNghe", [this] { return VariableValue(mask_.MatNaNghe()); });
}

} // namespace talvora
