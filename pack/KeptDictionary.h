// The dictionary of an earlier pack, which is kept when its sources would give it again: a
// corrected text then costs no new dictionary.
#pragma once

#include "pack/Options.h"
#include "pack/PackFile.h"
#include "sound/Pronunciations.h"

#include <filesystem>
#include <string>
#include <vector>

namespace talvora::pack {

class KeptDictionary {
 public:
  /// The name of the file in the pack that tells what its dictionary was made of.
  static constexpr std::string_view NoteName = "dictionary.made";

  /// Looks at the sources that the options name and at the earlier pack.
  explicit KeptDictionary(const Options& options);

  /// True when the earlier pack's dictionary was made by this compiler of these sources and is
  /// whole. A small word list is never kept, since it hangs on the texts too.
  [[nodiscard]] bool stands() const;
  /// What the earlier pack says of words that the voice says wrong.
  [[nodiscard]] Pronunciations pronunciations() const;

  /// Adds the note for the next build behind the files of a new dictionary.
  void addNote(std::vector<PackFile>& dictionary) const;

 private:
  std::filesystem::path folder_; ///< of the earlier pack; empty when there is none to keep
  std::string sources_;          ///< the digest of all that the dictionary hangs on
};

} // namespace talvora::pack
