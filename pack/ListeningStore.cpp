// Layout of listening items in a stream.
#include "pack/ListeningStore.h"

#include "formats/Integers.h"
#include "formats/PackFiles.h"
#include "pack/Guide.h"
#include "pack/Message.h"
#include "pack/StreamText.h"
#include "surface/RichText.h"
#include "text/Text.h"

#include <charconv>
#include <optional>
#include <vector>

namespace talvora::pack {

namespace {

constexpr int records = limit::ListeningItems;
/// Records that no unit plays belong to a unit behind the last.
constexpr int noUnit = ListeningUnits + 1;
constexpr char lineEnd = '\r';
constexpr char itemEnd = '@';
constexpr std::size_t instructionPlace = listeningpage::InstructionFrom;
constexpr std::size_t labelLength = listeningpage::LabelLength;
constexpr std::size_t labelsPlace = listeningpage::LabelsFrom;

/// A record's item, and the unit that plays it.
struct HeardItem {
  int unit = noUnit;
  ListeningQuestion item;
};

ListeningQuestion openItem() {
  const std::string open = openSlotTitle();
  return {1, open, open, {"-", "-", "-"}, {}};
}

std::vector<HeardItem> heardItems(const ListeningSource& source) {
  std::vector<HeardItem> heard;
  for (int unit = 1; unit <= ListeningUnits; ++unit) {
    const auto found = source.units.find(unit);
    if (found == source.units.end() || found->second.empty()) {
      heard.push_back({unit, openItem()});
      continue;
    }
    for (const ListeningQuestion& item : found->second)
      heard.push_back({unit, item});
  }
  return heard;
}

std::string layOut(int unit, const ListeningQuestion& item) {
  std::string plain = std::to_string(unit) + " " + std::to_string(item.number) + lineEnd;
  plain += item.sentence + lineEnd + item.right;
  for (const std::string& wrong : item.wrong)
    plain += lineEnd + wrong;
  return plain + itemEnd;
}

std::optional<int> wholeNumber(std::string_view digits) {
  int number = 0;
  const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (failure != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return number;
}

/// A record as it is stored: the unit of its head line, and the item.
std::optional<HeardItem> itemFrom(std::string_view plain) {
  const auto lines = split(plain, lineEnd);
  if (lines.size() != 6) return std::nullopt;
  const std::size_t blank = lines[0].find(' ');
  if (blank == std::string::npos) return std::nullopt;
  const auto unit = wholeNumber(std::string_view(lines[0]).substr(0, blank));
  const auto number = wholeNumber(std::string_view(lines[0]).substr(blank + 1));
  if (!unit || !number) return std::nullopt;
  return HeardItem{*unit, {*number, lines[1], lines[2], {lines[3], lines[4], lines[5]}, {}}};
}

ListeningPageText pageFrom(std::string_view rtf, Problems& problems) {
  const std::string text = readRichText(rtf, {}).text;
  ListeningPageText page;
  if (text.size() < labelsPlace + labelLength * page.labels.size()) {
    problems.add({std::string(packfile::ListeningPage)}, said("the page is too short"));
    return page;
  }
  page.instruction = text.substr(instructionPlace, ListeningPageText::InstructionLength);
  page.instruction.erase(page.instruction.find_last_not_of(' ') + 1);
  for (std::size_t label = 0; label < page.labels.size(); ++label) {
    page.labels[label] = text.substr(labelsPlace + labelLength * label, 2);
  }
  return page;
}

} // namespace

// A unit's first record carries the number of the unit before it: a later unit is played from the
// record ahead of its own first to the last but one of its own.
TextStore compileListeningItems(const ListeningSource& source) {
  const auto heard = heardItems(source);
  TextStore store;
  int labelUnit = 1;
  for (int record = 0; record < records; ++record) {
    const auto place = static_cast<std::size_t>(record);
    const bool played = place < heard.size();
    const bool closing = place == heard.size();
    const ListeningQuestion item = played    ? heard[place].item
                                   : closing ? heard.back().item
                                             : openItem();
    appendInteger(store.positions, store.stream.size());
    appendStored(store.stream, layOut(played || closing ? labelUnit : noUnit, item));
    if (played) labelUnit = heard[place].unit;
  }
  return store;
}

// The instruction takes 36 characters from place 2, the labels 17 from place 40, and an option goes
// in behind each label.
std::string compileListeningPage(const ListeningPageText& page) {
  std::string instruction = page.instruction;
  instruction.resize(ListeningPageText::InstructionLength, ' ');
  std::string rtf = richTextOpening();
  rtf += "\\pard\\ql\\par\n\\par\n\\cf2\\i ";
  appendRichText(rtf, instruction);
  rtf += "\\i0\\cf1\\par\n\\par\n\\b\\cf3 ";
  for (const std::string& label : page.labels) {
    appendRichText(rtf, label + " ");
    rtf += "\\par\n";
  }
  return rtf + "\\b0\\cf1  }\n";
}

ListeningSource decodeListening(std::string_view positions, std::string_view stream,
                                std::string_view page, Problems& problems) {
  ListeningSource source;
  source.page = pageFrom(page, problems);
  std::optional<HeardItem> waiting;
  for (int record = 1; record <= records; ++record) {
    const auto plain =
        storedUntil(stream, integerAt(positions, static_cast<std::size_t>(record)), itemEnd);
    auto stored = plain ? itemFrom(*plain) : std::nullopt;
    if (!stored) {
      problems.add({std::string(packfile::ListeningItems)}, said("item {} cannot be read", record));
      return source;
    }
    const int unit = stored->unit;
    if (waiting && unit <= ListeningUnits && waiting->item.sentence != openSlotTitle()) {
      source.units[unit].push_back(std::move(waiting->item));
    }
    waiting = std::move(stored);
  }
  return source;
}

} // namespace talvora::pack
