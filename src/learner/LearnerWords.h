// The learner's words on disk: data.c, the journal ahead of it, the sentences beside it and the
// dated copies. Whatever ends the program, and whichever pack it is given next, no word that was
// taken is lost, and none comes twice.
#pragma once

#include "learner/DatedCopies.h"
#include "learner/TextCatalogue.h"
#include "learner/VocabularyFile.h"
#include "learner/WordJournal.h"
#include "learner/WordRows.h"
#include "platform/Calendar.h"
#include "platform/FileSystem.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace talvora {

/// What became of the words' sentences in another pack.
struct Carried {
  int inPlace = 0;       ///< words whose place needed no look
  int inTheirText = 0;   ///< found in the text of the same title
  int nearest = 0;       ///< that text has one much like it
  int inAnotherText = 0; ///< found under another title
  int alike = 0;         ///< another text has one much like it
  int gone = 0;          ///< found nowhere: the sentence stays as text only

  friend bool operator==(const Carried&, const Carried&) = default;
};

class LearnerWords {
 public:
  LearnerWords(const std::string& learner, FileSystem& files, const Calendar& calendar);

  /// The start, ahead of everything else: clears what a killed write has left, merges the journal
  /// into data.c, which is created when it is missing. What goes wrong is left for `storing`.
  void open();
  /// Takes the pack in hand: finds the sentences of the words anew where it is another one than
  /// last time, and keeps a copy of what there is.
  Carried carry(TextCatalogue catalogue);

  /// Whether the folder could be written when the program started. Where it could not, nobody is
  /// troubled again.
  [[nodiscard]] bool storing() const noexcept { return storing_; }
  /// Whether every word that was taken is on the disk, in one file or the other.
  [[nodiscard]] bool safe() const noexcept { return pending_.empty(); }

  /// The list with all that was done to it since it was written; nothing when it is missing or
  /// cannot be read just now. Writes nothing.
  [[nodiscard]] std::optional<std::vector<VocabularyWord>> read();
  /// A word has been taken: it is on the disk when this returns, unless `safe` says no.
  void noteAdded(const VocabularyWord& word);
  /// Words have been deleted; the list as it was before is kept as a copy.
  void noteRemoved(const std::vector<VocabularyWord>& words);
  /// Replaces the list as it was last read; what has come to it on the disk since stays in it.
  /// Returns what went wrong, or nothing; then the old list and the journal stand. A list that
  /// cannot be read just now is not written over.
  [[nodiscard]] std::optional<std::string> write(std::vector<VocabularyWord> words);

  /// The sentence that a word was taken from, where the pack has it no more; else empty.
  [[nodiscard]] std::string keptSentence(const VocabularyWord& word) const;
  /// What is known of each word of a list, in its order.
  [[nodiscard]] std::vector<WordRow> rowsOf(const std::vector<VocabularyWord>& words) const;
  /// Takes rows over, as from a copy, for words that will be written.
  void adopt(const std::vector<WordRow>& rows);

  /// Bytes behind the last whole record of data.c are not written again.
  void dropOddBytes() { list_.dropOddBytes(); }

  [[nodiscard]] DatedCopies& copies() noexcept { return copies_; }

 private:
  using Words = std::vector<VocabularyWord>;
  using Key = std::pair<std::string, std::int32_t>;

  /// The list in all the places where it is kept.
  struct Kept {
    std::optional<Words> list;   ///< as data.c has it; nothing when that cannot be read
    std::error_code error;       ///< why it cannot
    Words words;                 ///< the list with all that was done to it since
    bool anyDeeds = false;       ///< something was
    bool journalIsKnown = false; ///< else the journal may have more

    [[nodiscard]] bool unreadable() const;
  };

  [[nodiscard]] static Key keyOf(const VocabularyWord& word);
  [[nodiscard]] std::string pathOf(std::string_view name) const;
  [[nodiscard]] bool mayStore();
  void clearLeftOvers();
  void mergeJournal();
  [[nodiscard]] Kept gather();
  void readRows();
  [[nodiscard]] Words together(const Kept& kept, Words mine) const;
  std::optional<std::string> store(const Words& words, const Kept& kept);
  void finish(const Words& words, const Kept& kept);
  [[nodiscard]] bool writeRows(const Words& words);
  void journal(std::vector<WordDeed> deeds);
  [[nodiscard]] WordRow rowOf(const VocabularyWord& word) const;
  [[nodiscard]] WordRow rowInHand(const VocabularyWord& word) const;

  std::string folder_;
  FileSystem& files_;
  VocabularyFile list_;
  WordJournal journal_;
  DatedCopies copies_;
  std::map<Key, WordRow> rows_;
  std::optional<std::string> rowsOnDisk_;  ///< nothing as long as they could not be read
  std::optional<TextCatalogue> catalogue_; ///< of the pack in hand
  std::string pack_;                       ///< its fingerprint
  std::vector<WordDeed> pending_;          ///< deeds that are on no disk
  bool storing_ = true;
  /// The list as the one who reads and writes it has it; nothing until it could be read once.
  std::optional<Words> seen_;
  std::set<std::string> removed_; ///< in this run, and not taken again
};

} // namespace talvora
