// Well-formed stores for content that is still to be written.
#include "pack/OtherStores.h"

#include "pack/Guide.h"
#include "pack/ReadingStore.h"
#include "pack/StreamText.h"

#include <array>
#include <string>
#include <string_view>

namespace talvora::pack {

namespace {

constexpr int lessonSlots = 357;
constexpr int speakingSlots = 2025;
constexpr int exerciseSections = 366;
constexpr int analysisSlots = 11;
constexpr int listeningItems = 556;
constexpr int listeningUnits = 9;

/// A table whose records all lead to the one text at the stream's start.
std::string tableToOneText(int records) {
  std::string table;
  for (int record = 0; record < records; ++record)
    appendInteger(table, 0);
  return table;
}

std::string stored(std::string_view text) {
  std::string stream;
  appendStored(stream, text);
  return stream;
}

std::string listeningItem(int unit, int segment) {
  const std::string open = openSlotTitle();
  std::string item = std::to_string(unit) + " " + std::to_string(segment) + "\r";
  item += open + "\r" + open;
  for (int wrong = 0; wrong < 3; ++wrong)
    item += "\r-";
  return item + "@";
}

// The listening page finds its places by counting: the instruction takes 36 characters from place
// 2, the labels 17 from place 40, and an option goes in behind each label.
std::string listeningTemplate() {
  const std::string instruction = ownText("Nghe rồi bấm chọn câu bạn vừa nghe: ");
  std::string rtf = richTextOpening();
  rtf += "\\pard\\ql\\par\n\\par\n\\cf2\\i ";
  appendRichText(rtf, instruction);
  rtf += "\\i0\\cf1\\par\n\\par\n\\b\\cf3 ";
  for (const std::string_view label : {"A. ", "B. ", "C. ", "D. "}) {
    rtf += label;
    rtf += "\\par\n";
  }
  return rtf + "\\b0\\cf1  }\n";
}

} // namespace

std::vector<PackFile> compileLessons() {
  return {{"datavp.vt", tableToOneText(lessonSlots)},
          {"datavp.n", stored(openSlotTitle() + "\r@")}};
}

std::vector<PackFile> compileSpeaking() {
  TextStore store = openTextStore(speakingSlots);
  return {{"datasp.vt", std::move(store.positions)}, {"datasp.av", std::move(store.stream)}};
}

// A section without a count has one item; every item then has an empty question and answer.
std::vector<PackFile> compileExercises() {
  return {{"data.vbt", tableToOneText(2 * exerciseSections)},
          {"data.bt", stored("@")},
          {"data.Muc", std::string(2 * exerciseSections, '\0')}};
}

std::vector<PackFile> compileAnalyses() {
  return {{"dataPt.vt", tableToOneText(analysisSlots)}, {"dataPt.v", stored("@")}};
}

std::vector<PackFile> compileListening() {
  std::string positions;
  std::string stream;
  std::array<int, listeningUnits + 1> segments{};
  for (int item = 0; item < listeningItems; ++item) {
    const int unit = 1 + item * listeningUnits / listeningItems;
    appendInteger(positions, stream.size());
    appendStored(stream, listeningItem(unit, ++segments[static_cast<std::size_t>(unit)]));
  }
  return {{"dataN.vt", std::move(positions)},
          {"dataN.av", std::move(stream)},
          {"DataS", ""},
          {"dataABCD.rtf", listeningTemplate()}};
}

std::vector<PackFile> compileVietnameseSide() {
  return {{"datatuD.txt", ""}, {"dataD.vt", ""}, {"dataD.av", ""}};
}

std::vector<PackFile> firstSettings() {
  constexpr int settingRecords = 19;
  constexpr int soundOn = 2;
  constexpr int speedLevel = 4;
  std::string settings;
  for (int record = 1; record <= settingRecords; ++record) {
    appendInteger(settings, record == soundOn ? 1 : record == speedLevel ? 5 : 0);
  }
  return {{"data.Kcu", std::move(settings), Owner::Learner}, {"data.c", "", Owner::Learner}};
}

} // namespace talvora::pack
