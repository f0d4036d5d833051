// The checks, one after the other.
#include "pack/CourseChecks.h"

#include "pack/DrillChecks.h"
#include "pack/GuideTextCheck.h"
#include "pack/Heteronyms.h"
#include "pack/KeySentences.h"
#include "pack/Message.h"
#include "pack/PlanChecks.h"
#include "pack/Recordings.h"
#include "pack/SpeakingSource.h"
#include "pack/TextChecks.h"
#include "text/Text.h"

#include <algorithm>
#include <iterator>

namespace talvora::pack {

namespace {

std::unordered_set<std::string> headsOf(const std::vector<OwnEntry>& own) {
  std::unordered_set<std::string> heads;
  for (const OwnEntry& entry : own)
    heads.insert(lower(entry.head));
  return heads;
}

/// Who is heard in each unit that no teacher has recorded. Where there is no script, the live voice
/// is.
UnitVoices voicesOf(const ReadingSource& readings, const std::filesystem::path& recordings) {
  UnitVoices voices;
  for (int unit = 1; unit <= ListeningUnits; ++unit) {
    if (!std::filesystem::exists(recordings / (std::to_string(unit) + ".wav"))) voices[unit] = {};
  }
  for (const Script& script : scriptsOf(readings)) {
    const auto found = voices.find(script.number);
    if (found == voices.end()) continue;
    for (const ScriptLine& line : script.lines)
      found->second.push_back(line.speaker);
  }
  return voices;
}

} // namespace

std::vector<std::string> checkTextsAndDrills(const std::filesystem::path& source,
                                             Problems& problems) {
  const auto heads = headsOf(readDictionary(source / "dictionary", problems));
  checkTexts(source / "reading", TextUse::Reading, heads, problems);
  checkGuideTextIn(source / "reading", problems);
  checkTexts(source / "speaking", TextUse::Speaking, heads, problems);
  checkHeteronyms(source, problems);
  checkCutting(readAnalyses(source / "analysis", problems), source / "analysis", problems);
  const auto folder = source / "listening";
  const ReadingSource readings = readReadings(source / "reading", problems);
  auto notes = checkOptions(readListening(folder, problems),
                            voicesOf(readings, source / "recordings"), folder, problems);
  const Planner planner = readPlanner(source, problems);
  std::ranges::move(checkBudgets(planner, source / "reading", problems), std::back_inserter(notes));
  // The listening scripts close the list of reading texts and have their fixed slots.
  notes.push_back(openSlotNote(said("reading texts"), readings, FirstRecordedText - 1));
  notes.push_back(openSlotNote(said("speaking texts"), readSpeaking(source / "speaking", problems),
                               SpeakingSlots));
  notes.push_back(checkKeySentencesIn(source / "speaking", problems));
  std::erase(notes, "");
  return notes;
}

} // namespace talvora::pack
