// The whole of a content tree: read, checked and compiled.
#pragma once

#include "pack/AnalysisSource.h"
#include "pack/ExerciseSource.h"
#include "pack/FilledList.h"
#include "pack/LessonSource.h"
#include "pack/ListeningSource.h"
#include "pack/OwnRecording.h"
#include "pack/PackFile.h"
#include "pack/Progress.h"
#include "pack/ReadingSource.h"
#include "pack/VietnameseSide.h"
#include "sound/Pronunciations.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

namespace talvora::pack {

struct Options {
  std::filesystem::path source;
  std::filesystem::path wordNet = "/usr/share/wordnet";
  /// Its licence, which goes with every pack that holds its words.
  std::filesystem::path wordNetLicence = "/usr/share/doc/wordnet-base/copyright";
  std::vector<std::filesystem::path> wordLists = {"/usr/share/dict/american-english-huge",
                                                  "/usr/share/dict/british-english-huge"};
  /// The greatest number of lines of a small word list; none for the full one.
  std::optional<std::size_t> smallWordList = std::nullopt;
  /// The pack whose recordings are kept as far as their scripts are the same; without one none is
  /// made.
  std::optional<std::filesystem::path> earlierPack = std::nullopt;
};

/// A content tree as read.
struct Content {
  ReadingSource readings; ///< the analysed texts cut into their stretches
  ReadingSource speaking;
  std::map<int, OwnRecording> recordings; ///< of teachers, by number
  ListeningSource listening;
  AnalysisSource analyses;
  LessonSource lessons;
  ExerciseSource exercises;
  std::string guide; ///< as rich text
  WordSources words; ///< our own with their pronunciations
  Pronunciations pronunciations;
  std::string wordNetLicence; ///< empty where nothing of WordNet is used
};

[[nodiscard]] Content readContent(const Options& options, Problems& problems,
                                  const Progress& progress);

/// The word list of a content tree; a full list that stays short is reported.
[[nodiscard]] WordList makeWordList(const Content& content, const Options& options,
                                    Problems& problems);

/// The Vietnamese side that the word list gives; one of a full list that stays short is reported.
[[nodiscard]] std::vector<SideEntry> makeVietnameseSide(const Content& content,
                                                        const WordList& list,
                                                        const Options& options, Problems& problems);

/// Every file of the pack; of the recordings, those that are new. When the sources have problems
/// the result is not to be used.
[[nodiscard]] std::vector<PackFile> compile(const Options& options, Problems& problems,
                                            const Progress& progress);
/// The same for content that is read and its word list.
[[nodiscard]] std::vector<PackFile> compile(const Content& content, const WordList& list,
                                            const Options& options, Problems& problems,
                                            const Progress& progress);

/// The English words of the reading texts, in small letters, in the order of the texts.
[[nodiscard]] std::vector<std::string> wordsOfReadings(const ReadingSource& readings);

} // namespace talvora::pack
