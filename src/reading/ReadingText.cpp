#include "reading/ReadingText.h"

#include "formats/PackFiles.h"
#include "platform/FatalFailure.h"

#include <algorithm>
#include <string>

namespace talvora {

namespace {

[[noreturn]] void failOverrun(const std::string& where, std::size_t most) {
  throw FatalFailure(where + " has more than " + std::to_string(most) + " sentence marks");
}

std::string_view nameOfStore(int stream) {
  return stream == file::SpeakingTexts ? packfile::SpeakingTexts : packfile::ReadingTexts;
}

} // namespace

void ReadingText::DocBai(int i) {
  const std::string where =
      stores_.pathOf(nameOfStore(stores_.FileVanBan)) + ": text " + std::to_string(i);
  std::string& text = text_.CauHoi;
  text = "_";
  const std::int64_t start = stores_.ViTriBai.at(static_cast<std::size_t>(i));
  text_.ViTriCauTrongFile.fill(0);
  text_.ViTriCauTrongFile[0] = static_cast<std::int32_t>(start + 1);
  std::size_t marks = 1;
  PieceReader reader(stores_.fileOf(stores_.FileVanBan), start + 1);
  for (bool ended = false; !ended;) {
    const auto piece = reader.next();
    // A text without its end mark ends with its file.
    ended = !piece || *piece == "@";
    if (piece && (*piece == "_" || *piece == "`")) {
      if (marks == CurrentText::MaxFileMarks) {
        failOverrun(where, CurrentText::MaxFileMarks);
      }
      text_.ViTriCauTrongFile[marks++] = static_cast<std::int32_t>(reader.nextRecord());
    }
    if (ended || *piece == "`") {
      text += '_';
    } else {
      text += *piece;
    }
  }
  text_.VanBanGoc = text;
  LamSachVanBan();
  TachCau(where);
}

void ReadingText::LamSachVanBan() {
  std::string& marked = text_.VanBanGoc;
  if (marked.size() >= 2) marked[marked.size() - 2] = ' ';
  marked.back() = ' ';
  marked += '|';
  for (std::size_t at = 0; at < marked.size(); ++at) {
    if (marked[at] == '_') marked[at] = '|';
    if (marked[at] == '\r') {
      marked[at] = '|';
      if (at + 1 < marked.size()) marked[at + 1] = ' ';
    }
  }
  std::replace(text_.CauHoi.begin(), text_.CauHoi.end(), '|', ' ');
}

void ReadingText::TachCau(const std::string& where) {
  text_.SoCauVanBan = 0;
  text_.ViTriCauVan.fill(0);
  std::string& text = text_.CauHoi;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '_') continue;
    text[at] = SentenceMark;
    const auto mark = static_cast<std::size_t>(text_.SoCauVanBan);
    if (mark == CurrentText::MaxSentences) {
      failOverrun(where, CurrentText::MaxSentences);
    }
    ++text_.SoCauVanBan;
    text_.ViTriCauVan[mark] = static_cast<std::int16_t>(at + 1);
  }
}

void ReadingText::DocDich(int i) {
  const int record = stores_.textsInTable() + i;
  const std::int64_t start = stores_.ViTriBai.at(static_cast<std::size_t>(record));
  PieceReader reader(stores_.fileOf(stores_.FileVanBan), start + 1);
  text_.DichCau.assign(1, std::string());
  while (const auto piece = reader.next()) {
    if (*piece == "@") break;
    for (const char character : *piece) {
      if (character == '_' || character == '`') {
        text_.DichCau.emplace_back();
      } else {
        text_.DichCau.back() += character == '\r' ? ' ' : character;
      }
    }
  }
}

int ReadingText::markOf(int k) const noexcept {
  if (k < 1 || k > static_cast<int>(CurrentText::MaxSentences)) return 0;
  return text_.ViTriCauVan[static_cast<std::size_t>(k - 1)];
}

int ReadingText::CauTaiViTri(int v) const noexcept {
  for (int k = 1; k <= text_.SoCauVanBan; ++k) {
    if (markOf(k) <= v && v < markOf(k + 1)) return k;
  }
  return 1;
}

std::string_view ReadingText::translationOf(int k) const noexcept {
  const auto element = static_cast<std::size_t>(k - 1);
  return element < text_.DichCau.size() ? std::string_view(text_.DichCau[element])
                                        : std::string_view();
}

} // namespace talvora
