// A reading text as the store holds it: cutting it out of its stream, finding its sentences, and
// its translation sentence by sentence.
#pragma once

#include "stores/Stores.h"
#include "surface/State.h"

#include <string>
#include <string_view>

namespace talvora {

/// The character that stands for a sentence mark in a text on show; it looks like a blank.
inline constexpr char SentenceMark = static_cast<char>(static_cast<unsigned char>(160));

class ReadingText {
 public:
  ReadingText(const Stores& stores, CurrentText& text) : stores_(stores), text_(text) {}

  /// Reads text i, from 1, of the current store into `CauHoi` and finds its sentences.
  /// Throws FatalFailure when it has more marks than the tables hold.
  void DocBai(int i);
  /// Reads the translation of text i into `DichCau`.
  void DocDich(int i);
  /// The number of the sentence that holds character v, from 1; 1 outside all. The title is
  /// sentence 1.
  [[nodiscard]] int CauTaiViTri(int v) const noexcept;
  /// Turns the marks "_" of `CauHoi` into character 160 and notes where they stand.
  /// Throws FatalFailure naming `where` when it has more marks than the table holds.
  void TachCau(const std::string& where);
  /// Position, from 1, of the mark that opens sentence k; 0 outside the table.
  [[nodiscard]] int markOf(int k) const noexcept;
  /// The translation of sentence k; empty when there is none, as for the title.
  [[nodiscard]] std::string_view translationOf(int k) const noexcept;

 private:
  void LamSachVanBan();

  const Stores& stores_;
  CurrentText& text_;
};

} // namespace talvora
