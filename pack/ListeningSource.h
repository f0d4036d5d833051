// The sources of the listening units: items of a heard sentence and four answers, and the page on
// which they are shown.
#pragma once

#include "formats/Limits.h"
#include "formats/ListeningPage.h"
#include "pack/Problems.h"
#include "pack/ReadingSource.h"

#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

inline constexpr int ListeningUnits = limit::ListeningUnits;
/// How many items can be heard: the store has one more, at its end, that the program never plays.
inline constexpr std::size_t MostListeningItems = limit::HeardListeningItems;
/// The script of unit N is this reading text plus N.
inline constexpr int ScriptsAhead = limit::FirstRecordedText - 1;

/// An item; texts in the text font's bytes.
struct ListeningQuestion {
  int number = 0; ///< of the sentence in the script, from 1, the title not counted
  std::string sentence;
  std::string right;
  std::array<std::string, 3> wrong;
  Where where; ///< of the sentence in its source
};

using ListeningUnit = std::vector<ListeningQuestion>;

/// What stands on the page around the options.
struct ListeningPageText {
  static constexpr std::size_t InstructionLength = listeningpage::InstructionLength;

  std::string instruction;           ///< at most `InstructionLength` characters
  std::array<std::string, 4> labels; ///< two characters each
};

struct ListeningSource {
  std::map<int, ListeningUnit> units;
  ListeningPageText page;
};

/// The page for packs without a source of it.
[[nodiscard]] ListeningPageText defaultListeningPage();

/// Parses one unit; what is wrong is reported.
[[nodiscard]] ListeningUnit parseListeningUnit(std::string_view text, const std::string& file,
                                               Problems& problems);
[[nodiscard]] ListeningPageText parseListeningPage(std::string_view text, const std::string& file,
                                                   Problems& problems);

/// Reads a folder of units "unit-N.txt" with its "template.txt"; all is open when there is none.
[[nodiscard]] ListeningSource readListening(const std::filesystem::path& folder,
                                            Problems& problems);

/// Checks the sentences against the scripts, as far as those are written.
void checkAgainstScripts(const ListeningSource& source, const ReadingSource& scripts,
                         Problems& problems);

/// The sources of a unit and of the page, as they are parsed.
[[nodiscard]] std::string writeListeningUnit(const ListeningUnit& unit);
[[nodiscard]] std::string writeListeningPage(const ListeningPageText& page);

} // namespace talvora::pack
