// Any bytes as what lies in a learner's folder: the list, its sentences, its journal, the settings
// and the places in the lists. The program opens them, and what it writes it reads again.
#include "formats/LearnerFiles.h"
#include "formats/PackFiles.h"
#include "learner/LearnerData.h"
#include "platform/FatalFailure.h"
#include "platform/Files.h"
#include "stores/Stores.h"
#include "tests/fuzz/Pieces.h"
#include "tests/support/MemoryFiles.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace talvora;

const std::string Learner = "/learner";

void require(bool holds) {
  if (!holds) std::abort();
}

void useWords(test::MemoryFiles& files) {
  LearnerWords words(Learner, files, systemCalendar());
  const auto seen = words.read();
  words.open();
  require(words.storing());
  const auto before = words.read();
  require(seen && before);
  require(seen->size() == before->size());
  const VocabularyWord added{paddedWord("zyzzyva"), 17};
  words.noteAdded(added);
  require(words.safe());
  LearnerWords next(Learner, files, systemCalendar());
  next.open();
  const auto after = next.read();
  require(after && std::find_if(after->begin(), after->end(), [](const VocabularyWord& word) {
                     return word.word() == "zyzzyva";
                   }) != after->end());
  require(!next.write(*after));
  require(next.read() == after);
  for (const DatedCopy& copy : next.copies().all())
    require(next.copies().read(copy.name, learnerfile::Words).has_value());
}

void useSettings(test::MemoryFiles& files) {
  SettingsFile settings(files);
  settings.open(Learner + "/" + std::string(learnerfile::Settings),
                SettingsFile::IfMissing::BeginFresh);
  settings.write(4, 7);
  SettingsFile again(files);
  again.open(Learner + "/" + std::string(learnerfile::Settings),
             SettingsFile::IfMissing::BeginFresh);
  for (int record = -1; record <= 20; ++record)
    require(again.read(record) == settings.read(record));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Pieces pieces({reinterpret_cast<const char*>(data), size});
  test::MemoryFiles files;
  for (const std::string_view name : {learnerfile::Words, learnerfile::Rows, learnerfile::Journal,
                                      learnerfile::Settings, learnerfile::Lists}) {
    files.put(Learner + "/" + std::string(name), bytesOfText(pieces.next()));
  }
  useWords(files);
  useSettings(files);
  return 0;
}
