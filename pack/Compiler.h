// The whole of a content tree: read, checked and compiled.
#pragma once

#include "pack/AnalysisSource.h"
#include "pack/ExerciseSource.h"
#include "pack/FilledList.h"
#include "pack/LessonSource.h"
#include "pack/ListeningSource.h"
#include "pack/Options.h"
#include "pack/OwnRecording.h"
#include "pack/PackFile.h"
#include "pack/Progress.h"
#include "pack/ReadingSource.h"
#include "pack/VietnameseSide.h"
#include "sound/Pronunciations.h"

#include <map>
#include <string>
#include <vector>

namespace talvora::pack {

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

/// Every file of the pack; of the recordings, those that are new, and those of the dictionary
/// unless the earlier pack's are kept. When the sources have problems the result is not to be used.
[[nodiscard]] std::vector<PackFile> compile(const Options& options, Problems& problems,
                                            const Progress& progress);
/// The same for content that is read and its word list.
[[nodiscard]] std::vector<PackFile> compile(const Content& content, const WordList& list,
                                            const Options& options, Problems& problems,
                                            const Progress& progress);

/// The English words of the reading texts, in small letters, in the order of the texts.
[[nodiscard]] std::vector<std::string> wordsOfReadings(const ReadingSource& readings);

} // namespace talvora::pack
