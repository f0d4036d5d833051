// Where the learner stands in the lists of texts, by title, so that a new pack does not move it.
#pragma once

#include "learner/TextCatalogue.h"
#include "platform/FileSystem.h"
#include "stores/Stores.h"

#include <map>
#include <string>

namespace talvora {

class ListPlaces {
 public:
  ListPlaces(std::string learner, Stores& stores, FileSystem& files);

  /// Reads what is known, and moves the stored carets to where their titles are in this pack.
  void open(const TextCatalogue& catalogue);
  /// Stores the caret of a list in data.Kcu, together with the title of the text at it.
  /// `record` is that of the caret, `text` the number of the text.
  void store(int record, int caret, int text);

 private:
  struct Place {
    std::string pack; ///< fingerprint of the pack that the caret belongs to
    int text = 0;
    std::string title;

    friend bool operator==(const Place&, const Place&) = default;
  };

  void read();
  void write();
  void carry(int record, Place& place, const TextCatalogue& catalogue);

  std::string path_;
  Stores& stores_;
  FileSystem& files_;
  std::string pack_;
  std::map<int, Place> places_; ///< by the record of the caret
};

} // namespace talvora
