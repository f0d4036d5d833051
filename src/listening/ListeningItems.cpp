#include "listening/ListeningItems.h"

#include "formats/PackFiles.h"
#include "platform/Files.h"
#include "shell/Names.h"
#include "text/Text.h"

#include <string_view>

namespace talvora {

namespace {

constexpr std::string_view PositionsName = packfile::ListeningPositions;
constexpr std::string_view StreamName = packfile::ListeningItems;
constexpr char FieldEnd = '_';

} // namespace

void ListeningItems::LapBangNghe() {
  const RecordFile positions = stores_.open(PositionsName);
  stream_ = stores_.open(StreamName);
  for (int i = 1; i <= Count; ++i) {
    CauNghe_[static_cast<std::size_t>(i)].ViTri = positions.integer(i);
    DocDauNghe(i);
  }
}

void ListeningItems::DocDauNghe(int i) {
  ListeningItem& item = CauNghe_[static_cast<std::size_t>(i)];
  PieceReader reader(stream_, static_cast<std::int64_t>(item.ViTri) + 1, LongestTitle);
  std::string head;
  while (const auto piece = reader.next()) {
    if (*piece == "@" || *piece == "\r") break;
    head += *piece;
  }
  item.ViTri = static_cast<std::int32_t>(reader.nextRecord());
  const auto fields = split(head, ' ');
  item.Unit = static_cast<std::uint8_t>(SoTrongTen(fields[0]));
  item.Doan = static_cast<std::int16_t>(fields.size() > 1 ? SoTrongTen(fields[1]) : 0);
}

ListeningItem ListeningItems::item(int i) const noexcept {
  return i >= 1 && i <= Count ? CauNghe_[static_cast<std::size_t>(i)] : ListeningItem{};
}

ListeningTexts ListeningItems::textsAt(std::int32_t record) const {
  PieceReader reader(stream_, record);
  std::string text;
  while (const auto piece = reader.next()) {
    if (*piece == "@") break;
    if (*piece == "\r") {
      text += FieldEnd;
    } else {
      text += *piece;
    }
  }
  const auto fields = split(text, FieldEnd);
  ListeningTexts texts;
  texts.sentence = fields[0];
  for (std::size_t option = 0; option < ListeningTexts::OptionCount; ++option) {
    if (option + 1 < fields.size()) texts.options[option] = fields[option + 1];
  }
  return texts;
}

void ListeningItems::declare(Variables& variables) const {
  variables.add("CauNghe", [this] {
    VariableValue::Table table;
    for (const ListeningItem& item : CauNghe_) {
      table.emplace_back(VariableValue::Record{{"Unit", VariableValue(int{item.Unit})},
                                               {"ViTri", VariableValue(int{item.ViTri})},
                                               {"Doan", VariableValue(int{item.Doan})}});
    }
    return VariableValue(std::move(table));
  });
}

} // namespace talvora
