// Kinds and headings of items.
#include "pack/ItemOpening.h"

#include "pack/ItemHeadings.h"
#include "pack/ItemNotation.h"
#include "pack/Message.h"
#include "pack/NearestName.h"
#include "pack/kinds/ItemKinds.h"
#include "text/Text.h"

#include <algorithm>
#include <string>
#include <vector>

namespace talvora::pack {

namespace {

class OpeningParser {
 public:
  OpeningParser(const SourceLine& line, const std::string& file, ItemPlace place,
                Problems& problems)
      : line_(line), file_(file), place_(place), problems_(problems) {}

  std::optional<ItemOpening> run() {
    const std::string_view rest = line_.text.substr(itemOpener.size());
    const std::size_t comma = rest.find(',');
    const ItemKind* const kind = readKind(rest.substr(0, comma));
    if (kind == nullptr) return std::nullopt;
    if (!kind->standsInBanks() && place_ == ItemPlace::Bank) {
      report(said("the kind \"{}\" belongs among a lesson's items: in a bank it ends the run",
                  kind->name()),
             itemOpener.size());
    }
    int heading = 0;
    if (comma != std::string_view::npos) {
      heading = readHeading(rest.substr(comma + 1));
    } else if (kind->hasHeading()) {
      report(said("the heading is missing; \"none\" stands for no heading"));
    }
    if (!kind->hasHeading() && heading != 0)
      report(said("the kind \"{}\" has no heading", kind->name()));
    return ItemOpening{kind, heading};
  }

 private:
  void report(const std::string& message, std::size_t at = 0) {
    problems_.add(placeIn(line_.text, at, {file_, line_.number, 1}), message);
  }

  /// Null for a name that no kind has, which is reported.
  const ItemKind* readKind(std::string_view name) {
    const ItemKind* const kind = itemKindNamed(name);
    if (kind != nullptr || reportsMissingComma(name)) return kind;
    std::vector<std::string> names;
    std::string list;
    for (const ItemKind* each : itemKinds()) {
      names.emplace_back(each->name());
      list += (list.empty() ? "" : ", ") + names.back();
    }
    report(said("the kind must be one of {}", list) + didYouMean(name, names), itemOpener.size());
    return nullptr;
  }

  /// "choice replace" stands for "choice, replace".
  bool reportsMissingComma(std::string_view name) {
    const std::size_t blank = std::min(name.find(' '), name.size());
    const std::string kind(name.substr(0, blank));
    const std::string heading(trim(name.substr(blank)));
    if (itemKindNamed(kind) == nullptr || heading.empty()) return false;
    report(said("a comma is missing: \"item: {}, {}\"", kind, heading), itemOpener.size() + blank);
    return true;
  }

  int readHeading(std::string_view name) {
    const auto code = headingCode(trim(name), place_);
    if (code) return *code;
    const auto names = headingNames(place_);
    std::string list;
    for (const std::string& each : names)
      list += (list.empty() ? "" : ", ") + each;
    report((place_ == ItemPlace::Bank ? said("a bank has no heading of this name")
                                      : said("a lesson's items have no heading of this name")) +
               didYouMean(trim(name), names) + " (" + list + ")",
           line_.text.find(',') + 1);
    return 0;
  }

  const SourceLine& line_;
  const std::string& file_;
  ItemPlace place_;
  Problems& problems_;
};

} // namespace

std::optional<ItemOpening> parseItemOpening(const SourceLine& line, const KeyLine& key,
                                            const std::string& file, ItemPlace place,
                                            Problems& problems) {
  if (key.exact) return OpeningParser(line, file, place, problems).run();
  problems.add({file, line.number, 1},
               translated(ItemFirstLine) + (key.written == "item" ? "" : didYouMean("item:")));
  return std::nullopt;
}

} // namespace talvora::pack
