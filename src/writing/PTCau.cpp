#include "writing/PTCau.h"

#include "formats/PackFiles.h"
#include "surface/Looks.h"

#include <algorithm>

namespace talvora {

void PTCau::NapPhanTich(int n) {
  shell_.messages.ThongBao("Loading Data...", 0);
  PhanTich_ = readAnalysis(n);
  if (PhanTich_.size() > 1) calls.ThayTenBai(PhanTich_);
  const std::string name = "analysis " + std::to_string(n);
  auto stretches = LapOTuPT(state_.text.VanBanGoc, ViTriTieuDe(),
                            stores_.pathOf(packfile::ReadingTexts) + ": the text of " + name);
  const auto texts = GanGiaiPT(PhanTich_, stores_.pathOf(packfile::Analyses) + ": " + name);
  for (std::size_t k = 0; k < std::min(stretches.size(), texts.size()); ++k) {
    stretches[k].Chu = texts[k];
  }
  item_.OTrong.clear();
  for (const AnalysedStretch& stretch : stretches) {
    item_.OTrong.add(stretch.Dau, stretch.Cuoi, stretch.Chu);
  }
  // No answers are shown in an analysed text.
  item_.ODaLam.clear();
  shell_.messages.TatThongBao();
}

std::string PTCau::readAnalysis(int n) const {
  const std::int64_t start = stores_.fileOf(file::AnalysisPositions).integer(n);
  PieceReader reader(stores_.fileOf(file::Analyses), start + 1);
  std::string text;
  while (const auto piece = reader.next()) {
    if (*piece == "@") break;
    const bool lineStart = text.empty() || text.back() == '\r';
    if (*piece == "?" && lineStart) {
      text += '`';
    } else {
      text += *piece;
    }
  }
  return text;
}

int PTCau::ViTriTieuDe() const {
  const std::string& text = state_.text.CauHoi;
  return static_cast<int>(std::min(text.find('\r'), text.size())) + 2;
}

void PTCau::GiaiTuPT(Surface& surface) {
  surface.SelLength(0);
  if (surface.SelStart() <= ViTriTieuDe()) return;
  const int p = surface.SelStart() + 1;
  const std::string& marked = state_.text.VanBanGoc;
  if (p > static_cast<int>(marked.size())) return;
  const char c = marked[static_cast<std::size_t>(p - 1)];
  if (c == '\t' || c == '\r' || c == ' ') return;
  // The panel takes a stretch's own explanation only for what has been judged.
  item_.DaCham = true;
  ChonTuPT(surface);
  calls.GiaiThich(p, surface);
}

void PTCau::ChonTuPT(Surface& surface) {
  const WordMark mark = markAt(state_.text.VanBanGoc, surface.SelStart() + 1);
  const TextRange range{mark.SelStart, mark.SelStart + mark.SelLength};
  const std::string word = surface.TextBetween(range.from, range.to);
  if (word.empty()) return;
  item_.MauCu = surface.styleAt(range.from).color;
  item_.ChuCu = word;
  item_.ViTriChuCu = mark.SelStart;
  surface.format(range, {.color = look::Blue});
  // What is explained is no word to look up.
  state_.atHand.drop();
}

void PTCau::declare(Variables& variables) const {
  variables.add("PhanTich", &PhanTich_);
}

} // namespace talvora
