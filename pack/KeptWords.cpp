#include "pack/KeptWords.h"

#include "formats/LearnerFiles.h"
#include "platform/FatalFailure.h"
#include "platform/Files.h"

namespace talvora::pack {

KeptWords::KeptWords(const std::string& folder) : folder_(folder) {
  FileSystem& files = systemFiles();
  std::error_code error;
  const FileStatus list = files.status(folder + "/" + std::string(learnerfile::Words), error);
  if (list.kind != FileStatus::Kind::File || list.size == 0) return;
  lock_.emplace(files, folder);
  if (lock_->state() == LearnerLock::State::Taken) return;
  words_.emplace(folder, files, systemCalendar());
  words_->open();
  try {
    words_->carry(TextCatalogue(folder, folder, files));
  } catch (const FatalFailure&) {
    // A folder with a list and no whole pack yet: what beside the words is known has to do.
  }
}

std::optional<Carried> KeptWords::carry() {
  if (!words_) return std::nullopt;
  return words_->carry(TextCatalogue(folder_, folder_, systemFiles()));
}

} // namespace talvora::pack
