#include "learner/ListPlaces.h"

#include "formats/LearnerFiles.h"
#include "learner/WordRows.h"
#include "platform/Files.h"
#include "text/Text.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>

namespace talvora {

namespace {

constexpr std::string_view FirstLine = "# Talvora: where you stand in the lists of texts";

enum Field { Record, Pack, TextNumber, Title, FieldCount };

/// The list whose caret a record is.
struct List {
  TextKind kind;
  int most; ///< of its texts that it shows
};

std::optional<List> listOf(int record) {
  switch (record) {
  case setting::ReadingCaret:
    return List{TextKind::Reading, static_cast<int>(CurrentList::MaxLines)};
  case setting::SpeakingCaret:
    return List{TextKind::Speaking, static_cast<int>(CurrentList::MaxLines)};
  case setting::AnalysisCaret:
    return List{TextKind::Reading, Stores::AnalysedTexts};
  default:
    return std::nullopt;
  }
}

int numberIn(const std::string& digits) {
  int number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
}

} // namespace

ListPlaces::ListPlaces(std::string learner, Stores& stores, FileSystem& files)
    : path_(std::move(learner) + "/" + std::string(learnerfile::Lists)), stores_(stores),
      files_(files) {}

void ListPlaces::open(const TextCatalogue& catalogue) {
  pack_ = catalogue.fingerprint();
  read();
  const auto before = places_;
  for (auto& [record, place] : places_) {
    if (place.pack != pack_) carry(record, place, catalogue);
  }
  if (places_ != before) write();
}

void ListPlaces::read() {
  places_.clear();
  std::error_code error;
  const auto content = readWhole(files_, path_, error);
  if (!content) return;
  for (const std::string& line : split(textOfBytes(*content), '\n')) {
    const auto fields = split(line, '\t');
    if (fields.size() != FieldCount || !listOf(numberIn(fields[Record]))) continue;
    places_[numberIn(fields[Record])] = {fields[Pack], numberIn(fields[TextNumber]), fields[Title]};
  }
}

// A place that cannot be written is found again by its caret, as long as the pack is the same.
void ListPlaces::write() {
  std::string content = std::string(FirstLine) + '\n';
  for (const auto& [record, place] : places_) {
    content += std::to_string(record) + '\t' + place.pack + '\t' + std::to_string(place.text) +
               '\t' + place.title + '\n';
  }
  static_cast<void>(replaceFile(files_, path_, bytesOfText(content)));
}

void ListPlaces::carry(int record, Place& place, const TextCatalogue& catalogue) {
  const List list = *listOf(record);
  int found = 0;
  int caret = 0;
  int lineStart = 0;
  const int texts = std::min(list.most, catalogue.textsOf(list.kind));
  for (int text = 1; text <= texts; ++text) {
    const bool nearer = found == 0 || std::abs(text - place.text) < std::abs(found - place.text);
    if (nearer && readableText(catalogue.titleOf(list.kind, text)) == place.title) {
      found = text;
      // Behind the line's first character, where the list puts its caret; the first line's stands
      // ahead of it.
      caret = lineStart == 0 ? 0 : lineStart + 1;
    }
    lineStart += static_cast<int>(catalogue.listLine(list.kind, text).size());
  }
  place.pack = pack_;
  // A title that is gone leaves the caret where it stood.
  if (found == 0) return;
  place.text = found;
  stores_.writeSetting(record, caret);
}

void ListPlaces::store(int record, int caret, int text) {
  stores_.writeSetting(record, caret);
  const auto list = listOf(record);
  if (!list || pack_.empty()) return;
  const Place now{pack_, text, readableText(TextCatalogue(stores_).titleOf(list->kind, text))};
  Place& known = places_[record];
  if (known == now) return;
  known = now;
  write();
}

} // namespace talvora
