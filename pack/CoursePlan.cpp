// Parsing of the plan, a row of words a line.
#include "pack/CoursePlan.h"

#include "pack/Entry.h"
#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "text/Contains.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace talvora::pack {

namespace {

constexpr std::size_t columns = 7;

struct KindRow {
  SeriesKind kind;
  std::string_view name;
  double knownShare;
};
constexpr std::array<KindRow, 3> kinds = {{{SeriesKind::Free, "free", 0.0},
                                           {SeriesKind::Story, "story", 97.0},
                                           {SeriesKind::Topic, "topic", 94.0}}};

/// A word of a line, and the column at which it starts.
struct Field {
  std::string_view text;
  int column = 0;
};

std::vector<Field> fieldsOf(std::string_view line) {
  std::vector<Field> fields;
  std::size_t at = 0;
  while ((at = line.find_first_not_of(" \t", at)) != std::string_view::npos) {
    const std::size_t end = std::min(line.find_first_of(" \t", at), line.size());
    fields.push_back({line.substr(at, end - at), static_cast<int>(at) + 1});
    at = end;
  }
  return fields;
}

std::optional<int> numberIn(std::string_view text) {
  int number = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (failure != std::errc() || end != text.data() + text.size() || number < 0) return std::nullopt;
  return number;
}

std::optional<Band> bandIn(std::string_view text) {
  const std::size_t dash = text.find('-');
  if (dash == std::string_view::npos) return std::nullopt;
  const auto from = numberIn(text.substr(0, dash));
  const auto to = numberIn(text.substr(dash + 1));
  if (!from || !to || *from > *to) return std::nullopt;
  return Band{*from, *to};
}

/// Reads the fields of one row.
class RowParser {
 public:
  RowParser(const std::string& file, int line, Problems& problems)
      : file_(file), line_(line), problems_(problems) {}

  Series read(const std::vector<Field>& fields) {
    Series series;
    series.slots = band(fields[0], said("slots"));
    series.kind = kind(fields[1]);
    series.level = level(fields[2]);
    series.words = band(fields[3], said("words a text"));
    series.sentence = band(fields[4], said("words a sentence"));
    series.newLemmas = newLemmas(fields[5]);
    series.held = held(fields[6]);
    return series;
  }

 private:
  void report(const Field& field, std::string message) {
    problems_.add({file_, line_, field.column}, std::move(message));
  }

  Band band(const Field& field, const std::string& what) {
    const auto found = bandIn(field.text);
    if (!found) report(field, said("{} are two numbers, the smaller first: \"16-40\"", what));
    return found.value_or(Band{});
  }

  SeriesKind kind(const Field& field) {
    for (const KindRow& row : kinds) {
      if (row.name == field.text) return row.kind;
    }
    report(field, said("a series is \"story\", \"topic\" or \"free\""));
    return SeriesKind::Free;
  }

  std::string level(const Field& field) {
    if (!contains(Levels, field.text)) report(field, said("a level is A1, A2, B1, B2 or C1"));
    return std::string(field.text);
  }

  std::optional<int> newLemmas(const Field& field) {
    if (field.text == "-") return std::nullopt;
    const auto number = numberIn(field.text);
    if (!number) report(field, said("new lemmas are a number, or \"-\" for as many as there are"));
    return number;
  }

  Budgets held(const Field& field) {
    Budgets budgets{};
    if (field.text == "aims") return budgets;
    if (field.text == "holds") {
      budgets.fill(true);
      return budgets;
    }
    for (std::string_view rest = field.text; !rest.empty();) {
      const std::string_view name = rest.substr(0, rest.find(','));
      rest.remove_prefix(std::min(rest.size(), name.size() + 1));
      const auto* const found = std::find(BudgetNames.begin(), BudgetNames.end(), name);
      if (found == BudgetNames.end()) {
        report(field, said("a row closes with \"holds\", \"aims\" or the budgets that hold: words, "
                           "sentence, new, twice, return, known"));
        break;
      }
      budgets.at(static_cast<std::size_t>(found - BudgetNames.begin())) = true;
    }
    return budgets;
  }

  const std::string& file_;
  int line_;
  Problems& problems_;
};

} // namespace

double knownShareOf(SeriesKind kind) {
  return kinds[static_cast<std::size_t>(kind)].knownShare;
}

std::string_view nameOf(SeriesKind kind) {
  return kinds[static_cast<std::size_t>(kind)].name;
}

std::vector<Series> parsePlan(std::string_view text, const std::string& file, Problems& problems) {
  std::vector<Series> plan;
  for (const SourceLine& line : linesOf(text)) {
    if (line.text.empty() || line.text.starts_with("//")) continue;
    const auto fields = fieldsOf(line.text);
    if (fields.size() != columns) {
      problems.add({file, line.number, 1},
                   said("a row is: slots, kind, level, words a text, words a sentence, new lemmas, "
                        "the budgets that hold"));
      continue;
    }
    Series series = RowParser(file, line.number, problems).read(fields);
    if (!plan.empty() && series.slots.from <= plan.back().slots.to)
      problems.add({file, line.number, 1},
                   said("the slots of a series come behind those above it"));
    plan.push_back(std::move(series));
  }
  return plan;
}

std::vector<Series> readPlan(const std::filesystem::path& source, Problems& problems) {
  const auto path = source / "plan.txt";
  if (!std::filesystem::exists(path)) return {};
  return parsePlan(readSource(path, problems), path.string(), problems);
}

const Series* seriesOf(const std::vector<Series>& plan, int slot) {
  const auto found = std::find_if(plan.begin(), plan.end(),
                                  [slot](const Series& series) { return series.slots.has(slot); });
  return found != plan.end() ? &*found : nullptr;
}

} // namespace talvora::pack
