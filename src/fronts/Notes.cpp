#include "fronts/Notes.h"

#include "text/GlyphMap.h"

namespace talvora {

namespace {

constexpr std::size_t LongestShown = 20; // letters of a word that is too long

std::u16string digitsOf(int number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

} // namespace

std::u16string noteOf(const std::string& word, WordTaken outcome, int count) {
  const std::u16string letters = toUnicode(word, Encoding::X1);
  if (outcome == WordTaken::TooLong)
    return u"Dài quá, không lưu được: " + letters.substr(0, LongestShown) + u"…";
  const std::u16string_view what = outcome == WordTaken::Stored ? u"Đã lưu: " : u"Đã có: ";
  return std::u16string(what) + letters + u" (" + digitsOf(count) + u")";
}

std::u16string noteOf(Verdict verdict) {
  if (verdict.right == verdict.places) return u"Đúng";
  if (verdict.places == 1) return u"Chưa đúng";
  return u"Đúng " + digitsOf(verdict.right) + u" trên " + digitsOf(verdict.places) + u" chỗ";
}

} // namespace talvora
