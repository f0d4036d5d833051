#include "sound/AmthanhThuc.h"

#include "formats/Integers.h"
#include "formats/PackFiles.h"
#include "platform/FatalFailure.h"
#include "platform/Files.h"
#include "shell/Names.h"
#include "stores/Stores.h"
#include "text/Text.h"
#include "text/Vietnamese.h"

namespace talvora {

using namespace literals;

namespace {

constexpr std::string_view MarksName = packfile::Marks;
constexpr std::string_view SoundFolder = "\\sound";
constexpr int MissingMessageMs = 10000;
/// A record of this value opens the block of a recording; marks lie above it.
constexpr std::int32_t BlockStart = 1;

/// The record behind the one that opens block n, or behind the last record when there is none.
std::int64_t firstMarkOf(const RecordFile& marks, std::int64_t records, int n) {
  std::int64_t record = 1;
  for (int blocks = 0; blocks != n && record <= records; ++record) {
    if (marks.integer(record) == BlockStart) ++blocks;
  }
  return record;
}

} // namespace

bool RecordedVoice::TonTaiAm(std::string_view name) {
  TenAm = std::string(trim(name)) + ".wav";
  return TonTaiFile(wavePath(), files_);
}

std::string RecordedVoice::wavePath() const {
  return pathBelow(places_.ThuMuc, std::string(SoundFolder) + "\\" + TenAm);
}

void RecordedVoice::MoAm(std::string_view name) {
  AmThanhThuc = TonTaiAm(name);
  if (!AmThanhThuc) {
    reportMissing();
    return;
  }
  wave_.Close();
  wave_.Open(wavePath());
  NapMoc(SoTrongTen(name));
}

void RecordedVoice::reportMissing() {
  // Only the latest name is compared: two missing recordings in turn are reported every time.
  if (SoThieuAm > 0 && DsThieuAm.back() == TenAm) return;
  DsThieuAm.push_back(TenAm);
  ++SoThieuAm;
  messages_.ThongBao(std::string("Thiếu File âm thanh  "_x1) + TenAm +
                         std::string("  trong thư mục "_x1) + places_.ThuMuc +
                         std::string(SoundFolder),
                     MissingMessageMs);
}

void RecordedVoice::DongAm() {
  wave_.Close();
  AmThanhThuc = false;
}

void RecordedVoice::NapMoc(int n) {
  const std::string path = pathBelow(places_.ThuMuc, MarksName);
  const auto mapped = MappedFile::open(path, files_);
  const RecordFile marks(mapped);
  const auto records = static_cast<std::int64_t>(mapped->bytes().size() / IntegerSize);
  // Marks of a longer recording before this one must not sound behind its end.
  BangMoc.fill(0);
  BangMoc[0] = 1;
  SoMoc = 0;
  for (auto record = firstMarkOf(marks, records, n); record <= records; ++record) {
    const std::int32_t mark = marks.integer(record);
    if (mark == BlockStart) break;
    if (mark < BlockStart) continue;
    if (SoMoc == MaxMarks) {
      throw FatalFailure(path + ": record " + std::to_string(record) + ": recording " +
                         std::to_string(n) + " has more than " + std::to_string(MaxMarks) +
                         " marks");
    }
    BangMoc[static_cast<std::size_t>(++SoMoc)] = mark;
  }
}

void RecordedVoice::PhatCau(int k) {
  DungAm();
  if (SoMoc <= 0) return;
  if (k < 1 || k > MaxMarks) {
    throw FatalFailure(pathBelow(places_.ThuMuc, MarksName) + ": " + TenAm +
                       " cannot have a sentence " + std::to_string(k));
  }
  const auto sentence = static_cast<std::size_t>(k);
  wave_.Play(BangMoc[sentence - 1], BangMoc[sentence]);
}

void RecordedVoice::declare(Variables& variables) const {
  variables.add("AmThanhThuc", &AmThanhThuc);
  variables.add("TenAm", &TenAm);
  variables.addTable("BangMoc", &BangMoc);
  variables.add("SoMoc", &SoMoc);
  variables.add("DsThieuAm", [this] {
    return VariableValue(VariableValue::Table(DsThieuAm.begin(), DsThieuAm.end()));
  });
  variables.add("SoThieuAm", &SoThieuAm);
}

} // namespace talvora
