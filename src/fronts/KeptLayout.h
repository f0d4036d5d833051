// A line layout that keeps the paragraphs that were asked for last, whatever breaks them into
// lines. They are known by all that their look depends on, and looked up without a copy of it: a
// page that is written anew, as most are each time that they are opened, finds its paragraphs.
#pragma once

#include "platform/LineLayout.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <list>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace talvora {

/// A copy of what a paragraph is made from.
class ParagraphCopy {
 public:
  ParagraphCopy(const ParagraphView& view, std::uint64_t hash);

  [[nodiscard]] static std::uint64_t hashOf(const ParagraphView& view);
  [[nodiscard]] std::uint64_t hash() const noexcept { return hash_; }
  [[nodiscard]] bool isOf(const ParagraphView& view) const;

 private:
  std::uint64_t hash_;
  std::string text_;
  std::vector<int> runStarts_;
  std::vector<CharStyle> styles_;
  ParagraphStyle style_;
  FontSpec defaultFont_;
  int width_;
};

/// `Paragraph` has a `shape()` and tells `placeOf(offset)` and `offsetAt(x, y)`, as a layout does.
template <class Paragraph>
class KeptLayout : public LineLayout {
 public:
  [[nodiscard]] ParagraphShape layOut(const ParagraphView& view) const override {
    return shaped(view).shape();
  }
  [[nodiscard]] int heightOf(const ParagraphView& view) const override {
    return shaped(view).shape().height;
  }
  [[nodiscard]] int lineCount(const ParagraphView& view) const override {
    return static_cast<int>(shaped(view).shape().lines.size());
  }
  [[nodiscard]] CaretPlace placeOf(const ParagraphView& view, int offset) const override {
    return shaped(view).placeOf(offset);
  }
  [[nodiscard]] int offsetAt(const ParagraphView& view, int x, int y) const override {
    return shaped(view).offsetAt(x, y);
  }

  /// The paragraph as it is painted; valid until the next call.
  [[nodiscard]] const Paragraph& shaped(const ParagraphView& view) const {
    const std::uint64_t hash = ParagraphCopy::hashOf(view);
    if (const auto place = found(view, hash); place != places_.end()) {
      entries_.splice(entries_.begin(), entries_, place->second);
    } else {
      if (entries_.size() == MostParagraphs) dropOldest();
      entries_.push_front({ParagraphCopy(view, hash), make(view, ++lastSerial_)});
      places_.emplace(hash, entries_.begin());
    }
    return *entries_.front().paragraph;
  }

 protected:
  /// Breaks a paragraph into lines; `serial` differs between any two.
  [[nodiscard]] virtual std::unique_ptr<Paragraph> make(const ParagraphView& view,
                                                        std::uint64_t serial) const = 0;

 private:
  static constexpr std::size_t MostParagraphs = 1000;

  struct Entry {
    ParagraphCopy copy;
    std::unique_ptr<Paragraph> paragraph;
  };
  using Entries = std::list<Entry>;
  using Places = std::unordered_multimap<std::uint64_t, typename Entries::iterator>;

  /// The place of the first entry of a hash of which `isWanted` is true.
  template <class Wanted>
  [[nodiscard]] typename Places::iterator placeWhere(std::uint64_t hash, Wanted isWanted) const {
    const auto [first, last] = places_.equal_range(hash);
    const auto place =
        std::find_if(first, last, [&](const auto& each) { return isWanted(each.second); });
    return place == last ? places_.end() : place;
  }
  [[nodiscard]] typename Places::iterator found(const ParagraphView& view,
                                                std::uint64_t hash) const {
    return placeWhere(hash, [&](const auto& entry) { return entry->copy.isOf(view); });
  }
  void dropOldest() const {
    const auto oldest = std::prev(entries_.end());
    places_.erase(
        placeWhere(oldest->copy.hash(), [&](const auto& entry) { return entry == oldest; }));
    entries_.erase(oldest);
  }

  mutable Entries entries_; ///< the one asked for last is in front
  mutable Places places_;   ///< by hash
  mutable std::uint64_t lastSerial_ = 0;
};

} // namespace talvora
