#include "exercises/ItemRecord.h"

#include "shell/Names.h"
#include "text/Bytes.h"
#include "text/Text.h"
#include "text/Vietnamese.h"

#include <algorithm>

namespace talvora {

namespace {

constexpr std::size_t Options = 4;

bool isDigit(char character) {
  return character >= '0' && character <= '9';
}

ItemKind kindOf(char digit) {
  const int kind = isDigit(digit) ? digit - '0' : 0;
  return kind < static_cast<int>(ItemKind::Count) ? static_cast<ItemKind>(kind) : ItemKind::None;
}

} // namespace

ItemHeader readHeader(std::string_view record) {
  ItemHeader header;
  header.kind = record.empty() ? ItemKind::None : kindOf(record.front());
  header.length = record.size() > 2 && isDigit(record[2]) ? 3 : 2;
  header.length = std::min(header.length, record.size());
  if (record.size() > 1) header.code = SoTrongTen(record.substr(1, 2));
  return header;
}

std::vector<std::string> TachGoiY(std::string& text) {
  const std::size_t end = std::min(text.find('\r'), text.size());
  std::vector<std::string> hints(1);
  for (std::size_t at = 1; at < end; ++at) {
    if (text[at] != ',') {
      hints.back() += text[at];
    } else if (hints.size() < ItemState::MostHints) {
      hints.emplace_back();
    } else {
      break;
    }
  }
  for (std::string& hint : hints)
    hint = std::string(trim(hint));
  text.erase(0, end + 1);
  return hints;
}

std::string TachThan(std::string& text) {
  const std::size_t tail = text.find("\r+");
  const std::size_t end = tail == std::string::npos ? text.size() : tail + 1;
  std::string body = text.substr(0, end);
  text.erase(0, end);
  return body;
}

std::vector<std::string> TachPhuongAn(std::string_view tail) {
  std::vector<std::string> options;
  while (options.size() < Options) {
    const std::size_t start = tail.find('+');
    if (start == std::string_view::npos) break;
    tail.remove_prefix(start + 1);
    const std::size_t end = std::min(tail.find('\r'), tail.size());
    options.push_back(std::string(tail.substr(0, end)) + '\r');
    tail.remove_prefix(std::min(end + 1, tail.size()));
  }
  options.resize(Options);
  return options;
}

int keyOf(std::string_view tail) {
  if (tail.size() < 2) return 0;
  const char letter = lower(tail[tail.size() - 2]);
  return asc(letter) - asc('a') + 1;
}

AnswerSections TachGiai(std::string_view record) {
  AnswerSections answer;
  const std::size_t first = std::min(record.find('^'), record.size());
  std::string general;
  for (const char character : record.substr(0, first)) {
    if (character != '&') general += character;
  }
  answer.general = std::string(trim(general));
  if (answer.general.ends_with('\r')) answer.general.pop_back();
  record.remove_prefix(first);
  while (!record.empty() && answer.sections.size() < BlankTable::Most) {
    record.remove_prefix(1);
    const std::size_t end = std::min(record.find('^'), record.size());
    const std::string_view section = record.substr(0, end);
    const std::size_t lineEnd = section.find('\r');
    answer.sections.emplace_back(lineEnd == std::string_view::npos ? std::string_view()
                                                                   : section.substr(lineEnd));
    record.remove_prefix(end);
  }
  return answer;
}

std::string markReferences(std::string_view record, ItemKind kind) {
  std::string text;
  for (const char character : record) {
    const bool reference = character == '?' && text.ends_with('\r');
    if (reference && kind == ItemKind::Ordering) break;
    text += reference ? '`' : character;
  }
  return text;
}

std::string ThayTenBai(std::string_view text, std::span<const std::string> titles) {
  std::string result;
  bool announced = false;
  while (true) {
    const std::size_t mark = text.find('`');
    result += text.substr(0, mark);
    if (mark == std::string_view::npos) return result;
    text.remove_prefix(mark + 1);
    const std::size_t end = std::min(text.find('\r'), text.size());
    const std::string_view digits = text.substr(0, end);
    const auto number = static_cast<std::size_t>(SoTrongTen(digits));
    const bool ended = end < text.size();
    if (number > 0 && number < titles.size()) {
      if (!announced) result += "Nhấp chuột để xem:\r"_x1;
      announced = true;
      result += '`' + titles[number];
      if (ended) result += '\r';
    } else {
      result += digits;
      if (ended) result += "\r\r";
    }
    text.remove_prefix(ended ? end + 1 : end);
  }
}

} // namespace talvora
