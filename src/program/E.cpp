#include "program/E.h"

#include "dictionary/SyllableGate.h"
#include "platform/Files.h"
#include "shell/FirstRun.h"
#include "shell/Names.h"
#include "stores/ByteCode.h"
#include "text/Text.h"
#include "text/Vietnamese.h"
#include "text/WordForm.h"

#include <utility>

namespace talvora {

namespace {

constexpr std::string_view DesignCaption = "TALVORA 2.4";
constexpr int NotStoringMs = 4000;

Places startingIn(Folders folders) {
  Places places;
  places.ThuMuc = std::move(folders.pack);
  if (folders.learner != places.ThuMuc) places.learner = std::move(folders.learner);
  return places;
}

} // namespace

E::E(Platform& platform, Folders folders)
    : platform_(platform), form_(platform.screen, platform.metrics),
      controls_(form_, platform.layout), state_(startingIn(std::move(folders))),
      stores_(state_.places, platform.files),
      own_(state_.places.learnerFolder(), stores_, platform.files, platform.calendar),
      shell_(platform, form_, controls_, state_), input_(form_),
      voice_(state_.places, platform.wave, shell_.messages, platform.files),
      speech_(platform, shell_.steering, voice_),
      dictionary_(form_, controls_, state_, stores_, shell_, speech_),
      vietnameseSide_(controls_, state_, stores_, shell_, speech_, dictionary_.lookUp()),
      sections_(platform, form_, controls_, state_, stores_, shell_,
                PageServices{dictionary_, vietnameseSide_, speech_, voice_}, own_) {
  shell_.check();
  form_.Caption(std::string(DesignCaption));
  declareAll();
  registerProcedures();
  wireMenu();
}

void E::declareAll() {
  state_.declare(variables_);
  stores_.declare(variables_);
  shell_.declare(variables_);
  voice_.declare(variables_);
  speech_.declare(variables_);
  dictionary_.declare(variables_);
  vietnameseSide_.declare(variables_);
  sections_.declare(variables_);
}

void E::registerProcedures() {
  procedures_.addOfByte("GiaiMaByte", [](unsigned char stored) {
    return VariableValue(static_cast<int>(GiaiMaByte(stored)));
  });
  procedures_.addOfByte("MoRongByte", [](unsigned char plain) {
    return VariableValue(std::string(MoRongByte(plain)));
  });
  procedures_.addOfText("ChuanHoaTu",
                        [](const std::string& s) { return VariableValue(ChuanHoaTu(s)); });
  procedures_.addOfText("RutGonDuoi",
                        [](const std::string& s) { return VariableValue(RutGonDuoi(s)); });
  procedures_.addOfText("LaTiengAnh",
                        [](const std::string& s) { return VariableValue(LaTiengAnh(s)); });
  procedures_.addOfText("SoTrongTen",
                        [](const std::string& s) { return VariableValue(SoTrongTen(s)); });
  procedures_.addOfText("CoSoVaChu",
                        [](const std::string& s) { return VariableValue(CoSoVaChu(s)); });
  procedures_.addOfText("TimBaiHoc", [this](const std::string& title) {
    return VariableValue(sections_.TimBaiHoc(title));
  });
  procedures_.addOfText("TonTaiFile", [this](const std::string& s) {
    return VariableValue(TonTaiFile(s, platform_.files));
  });
  registerSearches();
}

void E::registerSearches() {
  procedures_.addOfNumber("CauTaiViTri",
                          [this](int v) { return VariableValue(sections_.text().CauTaiViTri(v)); });
  procedures_.addOfNumber("KhoangChuCai", [this](int code) {
    const LetterRange range = dictionary_.lookUp().KhoangChuCai(code);
    return VariableValue(
        VariableValue::Record{{"TimDau", range.TimDau}, {"TimCuoi", range.TimCuoi}});
  });
  procedures_.addOfText("TimTuD", [this](const std::string& key) {
    return VariableValue(vietnameseSide_.entryOf(key));
  });
  procedures_.add("TimTu",
                  [this](const Procedures::Arguments& arguments) -> std::optional<VariableValue> {
                    const auto key = textArgument(arguments, 0);
                    if (!key || arguments.size() != 2) return std::nullopt;
                    const auto* wanted = std::get_if<bool>(&arguments[1].value);
                    if (wanted == nullptr) return std::nullopt;
                    return search(*key, *wanted ? LayNghia::Yes : LayNghia::No);
                  });
}

VariableValue E::search(const std::string& key, LayNghia layNghia) {
  // An empty key is not searched, and the nearest line stays that of the search before.
  const LookUp& lookUp = dictionary_.lookUp();
  const Answer answer = lookUp.ask(key, layNghia).value_or(Answer{{}, false, lookUp.ViTriGan, {}});
  return VariableValue::Record{
      {"TimThay", answer.TimThay}, {"ViTriGan", answer.ViTriGan}, {"NghiaHienTai", answer.entry}};
}

// -- Start-up.

void E::Main() {
  own_.words.open();
  if (KiemTraCaiDat(state_.places, platform_.files, platform_.installation, platform_.boxes) ==
      FirstRun::DoneNow) {
    end(Ending::FirstRun);
    return;
  }
  shell_.setup.measureScreen(platform_.screen.pixelWidth(), platform_.screen.pixelHeight());
  shell_.steering.pointAt({0, 0});
  shell_.setup.placeForm();
  shell_.setup.LapCoChu();
  shell_.menu.setCaptions();
  form_.Show();
  shell_.menu.DatFontNut();
  state_.places.waitkd = true;
  speech_.DemGiong();
  shell_.setup.setTextFont();
  shell_.setup.parkSurfaces();
  shell_.hints.DemChay = 2;
  shell_.hints.DatRDOS();
  shell_.menu.DatHinhNut();
  state_.places.DangBan = true;
  shell_.menu.XepNut();
  vietnameseSide_.NapTuD(platform_.events);
  sections_.loadExerciseCounts();
  form_.Refresh();
  if (ending_ != Ending::None) return;
  loadEnglishSide();
  // Somebody may have closed the window while it loaded.
  if (ending_ != Ending::None) return;
  shell_.steering.XepChuot();
  shell_.setup.measureCard();
  shell_.setup.parkPlate();
  state_.places.waitkd = false;
  state_.places.DangBan = false;
  if (!own_.words.storing()) {
    shell_.messages.ThongBao("Không ghi được vào thư mục của bạn: lần này không lưu gì."_x1,
                             NotStoringMs);
  }
  shell_.steering.pointAtButton(1);
  shell_.hover.NutSang(controls_.but(1));
}

void E::loadEnglishSide() {
  dictionary_.NapTuDien();
  if (ending_ != Ending::None) return;
  stores_.MoDuLieu();
  own_.takePack(stores_);
  state_.measures.KieuTruot = Measures::SlideStandsAtOnce;
  speech_.setUp(stores_);
  shell_.setup.adjustSlideStep();
  shell_.menu.finishProgress();
}

// -- The menu.

void E::wireMenu() {
  for (int number = 1; number <= Controls::ButtonCount; ++number) {
    Button& button = controls_.but(number);
    button.GotFocus = [this, number] { shell_.hover.buttonGotFocus(number); };
    button.MouseMove = [this, &button] { shell_.hover.NutSang(button); };
    button.Click = [this, number] { sections_.open(number); };
    button.KeyPress = [this, number](int& KeyAscii) {
      if (number <= 3) state_.atHand.endPick();
      if (KeyAscii == key::Esc) HoiThoat();
    };
  }
}

// -- The end.

bool E::frameVisible() const {
  return controls_.Frame1.Visible() || controls_.Frame2.Visible() || controls_.Frame3.Visible();
}

void E::HoiThoat() {
  if (frameVisible()) return;
  if (shell_.messages.XacNhan("Do you want to quit?", "yes")) quit();
}

void E::closeWindow() {
  if (frameVisible()) {
    if (mayLeave()) end(Ending::Quit);
  } else {
    HoiThoat();
  }
}

bool E::mayLeave() {
  keep();
  if (own_.words.safe() || !own_.words.storing()) return true;
  return shell_.messages.XacNhan("Từ vựng chưa ghi được vào đĩa. Vẫn thoát?"_x1, "no");
}

void E::quit() {
  if (!mayLeave()) return;
  int& DemChay = shell_.hints.DemChay;
  DemChay = nextRunCount(DemChay);
  stores_.writeSetting(setting::RunCounter, DemChay);
  end(Ending::Quit);
}

void E::keep() {
  if (stores_.areOpen()) sections_.keep();
}

void E::end(Ending ending) {
  if (ending_ != Ending::None) return;
  ending_ = ending;
  keep();
  stores_.closeAll();
}

} // namespace talvora
