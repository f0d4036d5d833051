// State that several modules share, in small structs grouped by what they describe. The program
// owns one of each.
#pragma once

#include "formats/Limits.h"
#include "platform/TextStyle.h"
#include "surface/SurfacePoint.h"
#include "surface/Variables.h"
#include "surface/WordAtHand.h"

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace talvora {

/// Where the program is.
struct Places {
  std::string ThuMuc;   ///< program directory, where the pack is
  std::string learner;  ///< the learner's own folder; empty where that is the program directory
  int MucMenu = 0;      ///< section last entered, 1 to 18; it stays when the section is left
  bool DangBan = false; ///< busy: start-up or dictation runs, and menu clicks fall away
  bool waitkd = false;  ///< loading is in progress, the hover animation is idle

  /// The folder of what the learner owns.
  [[nodiscard]] const std::string& learnerFolder() const noexcept {
    return learner.empty() ? ThuMuc : learner;
  }

  void declare(Variables& variables) const;
};

/// Measures fixed once at start-up, in twips unless said otherwise.
struct Measures {
  int RongMH = 0;        ///< screen width
  int CaoMH = 0;         ///< usable screen height
  int CoNut = 0;         ///< font size of the menu buttons, in points; names the screen class
  int CoChu = 0;         ///< base font size of the text surfaces, in points
  int PhanTramRong = 0;  ///< percent of the screen width that the standard text area takes
  int BuocTruot = 0;     ///< step of a slide in mode 4
  int KieuTruot = 0;     ///< slide mode, 1 to 5; 5 stands at once
  std::string KhoangDem; ///< blanks put in front of the window caption
  std::string TieuDeE;   ///< the caption with them in front
  int RongBai = 0;       ///< width of a standard text surface
  int CaoBai = 0;        ///< height of it
  int LeTraiBai = 0;     ///< left of it
  int LeTrenBai = 0;     ///< top of it
  int RongKhung = 0;     ///< width of the card behind it
  int CaoKhung = 0;      ///< height taken for panels
  int LeTraiKhung = 0;   ///< left of the card
  int LeTrenKhung = 0;   ///< top of the card
  int Phan12 = 0;        ///< a twelfth of the screen width: tolerance of the pointer
  int Phan3 = 0;         ///< a third of the screen width: popup width
  int Phan6 = 0;         ///< a sixth of the screen width: popup height
  Colour MauNenHD = 0;   ///< back colour of the dictionary popup

  static constexpr int SlideStandsAtOnce = 5;
  /// Whether surfaces stand at once instead of sliding.
  [[nodiscard]] bool slidesAtOnce() const noexcept { return KieuTruot == SlideStandsAtOnce; }

  /// Where what is not in use waits, below the screen: pages, and plates.
  [[nodiscard]] int parkedTop() const noexcept { return CaoMH + 300; }
  [[nodiscard]] int parkedPlateTop() const noexcept { return CaoMH + 100; }

  /// The large screen class, in which text is bold throughout.
  [[nodiscard]] bool largeScreen() const noexcept { return CoNut == 13; }

  /// How far a popup stands from the pointer, in twips.
  [[nodiscard]] double pointerGap() const noexcept { return Phan12 - Phan12 / 3.0; }

  void declare(Variables& variables) const;
};

/// The text that a section has open.
struct CurrentText {
  static constexpr std::size_t MaxSentences = limit::SentenceMarks;
  static constexpr std::size_t MaxFileMarks = 2000;

  std::string CauHoi;    ///< the text; sentence marks are character 160
  std::string VanBanGoc; ///< its copy with the marks written as "|"
  /// Element k-1: position, from 1, of sentence k's mark.
  std::array<std::int16_t, MaxSentences> ViTriCauVan{};
  int SoCauVanBan = 0; ///< number of marks; the last one closes the last sentence
  /// Element k-1: record number in the stream where sentence k starts.
  std::array<std::int32_t, MaxFileMarks> ViTriCauTrongFile{};
  std::vector<std::string> DichCau; ///< element k-1: translation of sentence k
  int CauChon = 0;                  ///< number of the sentence at hand

  void declare(Variables& variables) const;
};

/// The list that a section has open.
struct CurrentList {
  static constexpr std::size_t MaxLines = limit::ListLines;
  static constexpr std::size_t MaxHeadings = limit::HeadingsOfList;
  static constexpr std::size_t LessonCount = limit::Lessons;

  std::string DanhSachBai; ///< the list as shown; each line ends in character 13
  /// Element i: length of the list after line i; sections that show panels keep cell starts here.
  std::array<std::int32_t, MaxLines + 1> BangViTri{};
  std::array<std::int32_t, MaxHeadings + 1> ViTriNhom{}; ///< caret of each heading line, from 1
  int SoNhom = 0;                                        ///< number of headings
  int SoBaiChon = 0;                                     ///< number of the current line, from 1
  std::array<std::string, LessonCount + 1> TenBaiHoc;    ///< lesson titles, from 1

  void declare(Variables& variables) const;
};

/// One of each, as the program owns them.
struct SharedState {
  SharedState() = default;
  explicit SharedState(Places start) : places(std::move(start)) {}
  SharedState(const SharedState&) = delete;
  SharedState& operator=(const SharedState&) = delete;

  Places places;
  Measures measures;
  WordAtHand atHand;
  const CurrentWord& word = atHand.record();
  CurrentText text;
  CurrentList list;

  void declare(Variables& variables) const;
};

} // namespace talvora
