#include "pack/words/CardTables.h"

namespace talvora::pack {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

Fields names() {
  return {CardFieldNames.begin(), CardFieldNames.end()};
}

} // namespace

std::string commaTableOf(const std::vector<SpokenCard>& cards) {
  std::string table = std::string(byteOrderMark) + tableRow(names(), ',');
  for (const SpokenCard& card : cards)
    table += tableRow(plainFieldsOf(card), ',');
  return table;
}

std::string cardTableOf(const std::vector<SpokenCard>& cards) {
  Fields columns = names();
  columns.insert(columns.begin(), "guid");
  std::string table = "#separator:tab\n#html:true\n";
  table += "#notetype:" + std::string(DeckName) + "\n#deck:" + std::string(DeckName) + "\n";
  table += "#guid column:1\n#columns:" + tableRow(columns, '\t');
  for (const SpokenCard& card : cards) {
    Fields fields = htmlFieldsOf(card);
    fields.insert(fields.begin(), card.card.id);
    table += tableRow(fields, '\t');
  }
  return table;
}

} // namespace talvora::pack
