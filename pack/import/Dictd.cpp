#include "pack/import/Dictd.h"

#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "text/Text.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace talvora::pack {

namespace {

constexpr std::string_view digits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::string_view ownPrefix = "00-database";
constexpr std::string_view ownPrefixRun = "00database";
constexpr std::string_view nameHead = "00-database-short";
constexpr std::string_view nameHeadRun = "00databaseshort";
constexpr std::size_t mostDigits = 10;

std::optional<std::uint64_t> numberOf(std::string_view text) {
  if (text.empty() || text.size() > mostDigits) return std::nullopt;
  std::uint64_t number = 0;
  for (const char digit : text) {
    const std::size_t value = digits.find(digit);
    if (value == std::string_view::npos) return std::nullopt;
    number = number * digits.size() + value;
  }
  return number;
}

/// The name of the dictionary out of its own entry, whose first line is that entry's head.
std::string nameIn(std::string_view article) {
  const std::size_t end = article.find('\n');
  if (end == std::string_view::npos) return std::string(trim(article));
  const std::string_view rest = article.substr(end + 1);
  return std::string(trim(rest.substr(0, rest.find('\n'))));
}

/// Cross references stand in braces.
std::string withoutBraces(std::string_view article) {
  std::string text;
  std::copy_if(article.begin(), article.end(), std::back_inserter(text),
               [](char each) { return each != '{' && each != '}'; });
  return text;
}

} // namespace

ImportedDictionary readDictd(std::string_view index, std::string_view articles,
                             const std::string& indexName, Problems& problems) {
  EntryCollector collector(indexName, problems);
  for (const SourceLine& line : linesOf(index)) {
    if (line.text.empty()) continue;
    const auto fields = split(line.text, '\t');
    const auto offset = fields.size() >= 3 ? numberOf(fields[1]) : std::nullopt;
    const auto size = offset ? numberOf(fields[2]) : std::nullopt;
    if (!size) {
      problems.add({indexName, line.number, 1},
                   said("a line must be a head word, a tab, an offset, a tab, a length"));
      break;
    }
    if (*offset > articles.size() || *size > articles.size() - *offset) {
      problems.add(
          {indexName, line.number, 1},
          said("offset {} and length {} lie outside the file of articles", *offset, *size));
      break;
    }
    const auto article =
        articles.substr(static_cast<std::size_t>(*offset),
                        std::min(static_cast<std::size_t>(*size), LongestImportedEntry));
    const std::string& head = fields[0];
    if (head == nameHead || head == nameHeadRun) collector.dictionary.name = nameIn(article);
    if (head.starts_with(ownPrefix) || head.starts_with(ownPrefixRun)) continue;
    // A fourth field is the head word as it is written.
    if (!collector.add(fields.size() > 3 ? fields[3] : head, withoutBraces(article))) break;
  }
  return std::move(collector.dictionary);
}

} // namespace talvora::pack
