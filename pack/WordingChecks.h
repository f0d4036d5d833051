// One way of writing: what has several ways in English or in Vietnamese is written in one of them.
#pragma once

#include "pack/Problems.h"
#include "pack/SourceFile.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// A place in a sentence that is written in another way than the course writes.
struct OddWording {
  std::size_t at = 0; ///< offset of its first letter
  std::string message;
};

/// What an English sentence should write otherwise: "thirty five", "monday", American words beside
/// our British ones.
[[nodiscard]] std::vector<OddWording> oddWordings(std::string_view english);

/// Goes through a text line by line: its sentences by themselves, each translation against its
/// sentence, and all translations for words of the north beside words of the south.
class WordingChecker {
 public:
  WordingChecker(const std::string& file, Problems& problems) : file_(file), problems_(problems) {}

  void readSentence(const SourceLine& line);
  /// The line behind "= " of the sentence that was read last.
  void readTranslation(const SourceLine& line);
  void finish();

 private:
  /// A word of one region, and where it stands first.
  struct Regional {
    std::string word;
    int line = 0;
  };

  void report(int line, std::size_t at, const std::string& message);
  void checkAgainstSentence(const SourceLine& line, std::string_view small);
  void collectRegional(const SourceLine& line, std::string_view small);

  const std::string& file_;
  Problems& problems_;
  std::string sentence_;
  std::vector<Regional> north_; ///< by the row of the table; empty where the text has none
  std::vector<Regional> south_;
};

} // namespace talvora::pack
