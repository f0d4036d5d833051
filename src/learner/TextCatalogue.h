// Every sentence of a pack's reading and speaking texts, with the place where it lies: what the
// words of the learner's list are tied to.
#pragma once

#include "platform/FileSystem.h"
#include "stores/Stores.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace talvora {

/// Which of the two stores a text is in.
enum class TextKind { Reading, Speaking };

/// A sentence of a text.
struct SentencePlace {
  TextKind kind = TextKind::Reading;
  int text = 0;           ///< number of the text, from 1
  int sentence = 0;       ///< number of the sentence, from 1; the title is sentence 1
  std::string title;      ///< of the text
  std::string words;      ///< of the sentence
  std::int32_t place = 0; ///< as data.c has it: a record number, negative for a speaking text

  friend bool operator==(const SentencePlace&, const SentencePlace&) = default;
};

/// The sentence of a stream whose first byte is a record: up to its mark, without tabs, with blanks
/// for bars.
[[nodiscard]] std::string sentenceAt(const RecordFile& stream, std::int64_t record);

class TextCatalogue {
 public:
  /// The texts of the stores that a program has open.
  explicit TextCatalogue(const Stores& stores);
  /// The texts of a pack, and those that the learner has added. Throws FatalFailure naming a file
  /// that is missing.
  TextCatalogue(const std::string& pack, const std::string& learner, FileSystem& files);

  /// A name for the texts of this pack: sixteen digits, others for other texts. All of them are
  /// read for it, once.
  [[nodiscard]] std::string fingerprint() const;
  /// The sentence that begins at a place; nothing when none does.
  [[nodiscard]] std::optional<SentencePlace> at(std::int32_t place) const;
  /// All sentences, text by text, the reading texts first.
  [[nodiscard]] std::vector<SentencePlace> all() const;
  /// The translation of a sentence; empty for a title, and where the text has none.
  [[nodiscard]] std::string translationOf(const SentencePlace& sentence) const;
  /// The line of a text in the list of its store, as it is shown there: a heading, or an indented
  /// title, with its line end.
  [[nodiscard]] std::string listLine(TextKind kind, int text) const;
  /// The same without tabs and line end.
  [[nodiscard]] std::string titleOf(TextKind kind, int text) const;
  /// Number of texts of a kind.
  [[nodiscard]] int textsOf(TextKind kind) const noexcept { return store(kind).texts; }

 private:
  struct Store {
    RecordFile positions;
    RecordFile stream;
    int texts = 0;
  };

  [[nodiscard]] const Store& store(TextKind kind) const noexcept {
    return kind == TextKind::Speaking ? speaking_ : reading_;
  }
  [[nodiscard]] std::vector<SentencePlace> sentencesOf(TextKind kind, int text) const;

  Store reading_;
  Store speaking_;
  mutable std::string fingerprint_; ///< empty until it is asked for
};

} // namespace talvora
