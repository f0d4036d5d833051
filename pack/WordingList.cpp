// Reading the list part by part.
#include "pack/WordingList.h"

#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <optional>

namespace talvora::pack {

namespace {

constexpr std::string_view partMark = "# ";
constexpr std::string_view equals = " = ";
constexpr std::string_view regions = "regions";

struct TwinPart {
  std::string_view name;
  std::vector<Twin> WordingList::*twins;
};

constexpr std::array<TwinPart, 4> twinParts = {{{"everywhere", &WordingList::everywhere},
                                                {"translations", &WordingList::translations},
                                                {"english", &WordingList::english},
                                                {"texts", &WordingList::texts}}};

std::vector<std::string> alternativesIn(std::string_view list) {
  std::vector<std::string> alternatives;
  for (const std::string& each : split(list, '/'))
    alternatives.emplace_back(trim(each));
  return alternatives;
}

class Reader {
 public:
  Reader(std::string file, Problems& problems) : file_(std::move(file)), problems_(problems) {}

  void read(const SourceLine& line) {
    if (line.text.empty() || line.text.starts_with("//")) return;
    if (line.text.starts_with(partMark)) {
      part_ = trim(line.text.substr(partMark.size()));
      if (!isPart()) report(line, said("there is no part \"{}\" of this list", part_));
      return;
    }
    const std::size_t middle = line.text.find(equals);
    if (middle == std::string_view::npos) {
      report(line, said("a line must be \"unused = used\""));
    } else if (part_.empty()) {
      report(line, said("a part must be opened above, as by \"# everywhere\""));
    } else {
      add(line.text.substr(0, middle), line.text.substr(middle + equals.size()));
    }
  }

  [[nodiscard]] WordingList takeList() { return std::move(list_); }

 private:
  [[nodiscard]] std::vector<Twin>* twins() {
    const auto* const found = std::ranges::find(twinParts, part_, &TwinPart::name);
    return found == twinParts.end() ? nullptr : &(list_.*found->twins);
  }

  [[nodiscard]] bool isPart() { return part_ == regions || twins() != nullptr; }

  void add(std::string_view left, std::string_view right) {
    if (part_ == regions) list_.regions.push_back({alternativesIn(left), alternativesIn(right)});
    if (std::vector<Twin>* const part = twins()) {
      for (std::string& unused : alternativesIn(left))
        part->push_back({std::move(unused), std::string(trim(right))});
    }
  }

  void report(const SourceLine& line, std::string message) {
    problems_.add({file_, line.number, 1}, std::move(message));
  }

  std::string file_;
  Problems& problems_;
  WordingList list_;
  std::string_view part_;
};

} // namespace

WordingList readWordingList(const std::filesystem::path& path, Problems& problems) {
  const std::string text = readWhole(path).value_or("");
  Reader reader(path.string(), problems);
  for (const SourceLine& line : linesOf(text))
    reader.read(line);
  return reader.takeList();
}

} // namespace talvora::pack
