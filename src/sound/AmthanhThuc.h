// The recorded voice: a text can have a recording, of which stretches between stored marks are
// played sentence by sentence.
#pragma once

#include "formats/Limits.h"
#include "platform/FileSystem.h"
#include "platform/WavePlayer.h"
#include "shell/Messages.h"
#include "surface/State.h"
#include "surface/Variables.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

class RecordedVoice {
 public:
  /// The most sentences that a recording can have.
  static constexpr int MaxMarks = limit::RecordingMarks;

  RecordedVoice(const Places& places, WavePlayer& wave, Messages& messages,
                FileSystem& files = systemFiles())
      : places_(places), wave_(wave), messages_(messages), files_(files) {}

  /// Sets `TenAm` from the name of a recording and tells whether its file exists.
  bool TonTaiAm(std::string_view name);
  /// Opens a recording in place of the one before and reads its marks; a missing one is reported.
  /// Throws FatalFailure when the marks cannot be read or are too many.
  void MoAm(std::string_view name);
  void MoAm(int number) { MoAm(std::to_string(number)); }
  /// Closes the recording; the text that had it is left.
  void DongAm();
  /// Reads the marks of recording n; one that the file does not hold has none.
  void NapMoc(int n);

  [[nodiscard]] bool DangPhat() const { return wave_.Mode() == WavePlayer::Playing; }
  [[nodiscard]] bool DaDung() const { return wave_.Mode() == WavePlayer::Stopped; }
  void DungAm() { wave_.Stop(); }
  /// Plays sentence k, from 1, and returns at once; without marks nothing plays.
  /// Throws FatalFailure when k lies outside the table.
  void PhatCau(int k);

  void declare(Variables& variables) const;

  bool AmThanhThuc = false; ///< a recording for the current text is open
  std::string TenAm;        ///< file name of the recording asked for last
  /// Element 0 is 1, element k the end mark of sentence k, in milliseconds.
  std::array<std::int32_t, MaxMarks + 1> BangMoc{};
  int SoMoc = 0; ///< number of marks of the recording
  /// Recordings that were reported as missing, from element 1.
  std::vector<std::string> DsThieuAm{std::string()};
  int SoThieuAm = 0; ///< number of them

 private:
  [[nodiscard]] std::string wavePath() const;
  void reportMissing();

  const Places& places_;
  WavePlayer& wave_;
  Messages& messages_;
  FileSystem& files_;
};

} // namespace talvora
