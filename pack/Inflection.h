// Inflected forms of English words: the irregular ones that sources list, and the regular rules.
#pragma once

#include "pack/DictionarySource.h"
#include "pack/Entry.h"
#include "pack/WordNet.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace talvora::pack {

enum class FormKind : std::uint8_t {
  Present,
  Plural,
  ThirdPerson,
  Past,
  Participle,
  PastAndParticiple,
  PastOrParticiple,
  Ing,
  Comparative,
  Superlative
};

/// A form of a word; a form that serves for several things names them all.
struct Form {
  std::string text;
  std::vector<FormKind> kinds;
  std::optional<std::size_t> block = {}; ///< of the base whose form it is; none for all of them

  [[nodiscard]] bool is(FormKind kind) const;
};

/// Words that are known to be English, in small letters.
using KnownWords = std::unordered_set<std::string>;

/// "dạng số nhiều; ngôi thứ ba số ít của book", in the text font.
[[nodiscard]] std::string formOf(const Form& form, std::string_view base);

/// The classes of a base that a form belongs to: a plural is a noun's.
[[nodiscard]] ClassSet baseClassesOf(const Form& form);

/// Knows the forms of every word.
class Inflections {
 public:
  /// `known` confirms what the regular rules make. All are borrowed for the object's life.
  Inflections(const std::vector<OwnEntry>& own, const WordNet& wordNet, const KnownWords& known);

  /// The forms of a single word in its classes, irregular ones first, each text once. The forms
  /// that our own source lists are all that there are of their kind: "bursted" is none.
  [[nodiscard]] std::vector<Form> formsOf(const std::string& base, ClassSet classes) const;
  /// The plural of a noun; empty when no form is known.
  [[nodiscard]] std::string pluralOf(const std::string& noun) const;

 private:
  void readOwn(const OwnEntry& entry, std::size_t block);
  void addListed(std::vector<Form>& forms, const std::string& base, ClassSet classes) const;

  const WordNet& wordNet_;
  const KnownWords& known_;
  std::unordered_map<std::string, std::vector<Form>> own_;
};

} // namespace talvora::pack
