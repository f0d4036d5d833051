// The table of affixes and the ways they join a word.
#include "pack/Derivation.h"

#include "pack/StreamText.h"

#include <array>

namespace talvora::pack {

namespace {

using enum WordClass;

struct Affix {
  std::string_view text; ///< "un-" or "-ness"
  ClassSet baseClasses;
  ClassSet classes;
  std::string_view meaning;
};

constexpr ClassSet any{Noun, Verb, Adjective, Adverb};

constexpr std::array prefixes = {
    Affix{"un-", {Adjective, Adverb, Verb}, {}, "không; làm ngược lại"},
    Affix{"non-", {Noun, Adjective, Adverb}, {}, "không, phi"},
    Affix{"re-", {Verb, Noun}, {}, "lại, một lần nữa"},
    Affix{"over-", any, {}, "quá mức; bên trên"},
    Affix{"under-", any, {}, "dưới mức; bên dưới"},
    Affix{"out-", {Verb, Noun}, {}, "hơn, vượt; bên ngoài"},
    Affix{"mis-", {Verb, Noun, Adjective}, {}, "sai, nhầm"},
    Affix{"dis-", {Verb, Noun, Adjective}, {}, "không; làm ngược lại"},
    Affix{"pre-", any, {}, "trước"},
    Affix{"post-", {Noun, Adjective}, {}, "sau"},
    Affix{"sub-", {Noun, Adjective, Verb}, {}, "dưới, phụ"},
    Affix{"super-", {Noun, Adjective, Adverb}, {}, "siêu, vượt trên"},
    Affix{"inter-", {Noun, Adjective, Verb}, {}, "giữa, liên"},
    Affix{"anti-", {Noun, Adjective}, {}, "chống"},
    Affix{"counter-", {Noun, Verb, Adjective}, {}, "đối lại, ngược"},
    Affix{"semi-", {Noun, Adjective, Adverb}, {}, "nửa"},
    Affix{"micro-", {Noun, Adjective}, {}, "vi, rất nhỏ"},
    Affix{"mini-", {Noun}, {}, "nhỏ"},
    Affix{"multi-", {Noun, Adjective}, {}, "nhiều, đa"},
    Affix{"hyper-", {Noun, Adjective}, {}, "quá mức"},
    Affix{"ultra-", {Noun, Adjective}, {}, "cực kỳ; ngoài"},
    Affix{"fore-", {Noun, Verb}, {}, "trước"},
    Affix{"neo-", {Noun, Adjective}, {}, "mới, tân"},
    Affix{"pseudo-", {Noun, Adjective}, {}, "giả"},
    Affix{"trans-", {Noun, Adjective, Verb}, {}, "xuyên, chuyển"},
    Affix{"electro-", {Noun, Adjective}, {}, "điện"},
    Affix{"photo-", {Noun, Adjective, Verb}, {}, "ánh sáng; ảnh"},
    Affix{"tele-", {Noun, Verb, Adjective}, {}, "từ xa"},
    Affix{"thermo-", {Noun, Adjective}, {}, "nhiệt"},
    Affix{"hydro-", {Noun, Adjective}, {}, "nước; hy-đrô"},
    Affix{"radio-", {Noun, Adjective}, {}, "vô tuyến; phóng xạ"},
    Affix{"bio-", {Noun, Adjective}, {}, "sinh học"},
    Affix{"psycho-", {Noun, Adjective}, {}, "tâm lý"},
    Affix{"poly-", {Noun, Adjective}, {}, "nhiều, đa"},
    Affix{"mono-", {Noun, Adjective}, {}, "một, đơn"},
    Affix{"auto-", {Noun, Adjective, Verb}, {}, "tự"},
    Affix{"extra-", {Adjective}, {}, "ngoài"},
    Affix{"intra-", {Adjective}, {}, "bên trong"},
    Affix{"mid-", {Noun}, {}, "giữa"},
    Affix{"step-", {Noun}, {}, "kế (trong gia đình)"},
    Affix{"up-", {Verb, Noun}, {}, "lên"},
    Affix{"de-", {Verb}, {}, "khử, bỏ đi"},
    Affix{"co-", {Noun, Verb}, {}, "cùng"},
    Affix{"in-", {Adjective, Adverb}, {}, "không"},
};

constexpr std::array suffixes = {
    Affix{"-ness", {Adjective}, {Noun}, "danh từ chỉ tính chất, trạng thái"},
    Affix{"-ably", {Verb, Noun}, {Adverb}, "một cách có thể"},
    Affix{"-ability", {Verb, Noun}, {Noun}, "khả năng có thể"},
    Affix{"-ally", {Adjective, Noun}, {Adverb}, "một cách"},
    Affix{"-ly", {Adjective, Noun}, {Adverb}, "một cách"},
    Affix{"-less", {Noun, Verb}, {Adjective}, "không có"},
    Affix{"-like", {Noun}, {Adjective}, "giống như"},
    Affix{"-able", {Verb, Noun}, {Adjective}, "có thể"},
    Affix{"-er", {Verb, Noun}, {Noun}, "người hoặc vật làm việc đó"},
    Affix{"-or", {Verb}, {Noun}, "người hoặc vật làm việc đó"},
    Affix{"-ization", {Adjective, Noun}, {Noun}, "sự làm cho thành"},
    Affix{"-isation", {Adjective, Noun}, {Noun}, "sự làm cho thành"},
    Affix{"-ize", {Adjective, Noun}, {Verb}, "làm cho thành"},
    Affix{"-ise", {Adjective, Noun}, {Verb}, "làm cho thành"},
    Affix{"-ist", {Noun, Adjective}, {Noun}, "người theo, người chuyên về"},
    Affix{"-ism", {Noun, Adjective}, {Noun}, "chủ nghĩa, lối, thuyết"},
    Affix{"-ity", {Adjective}, {Noun}, "danh từ chỉ tính chất"},
    Affix{"-ation", {Verb}, {Noun}, "sự, việc"},
    Affix{"-ment", {Verb}, {Noun}, "sự, việc"},
    Affix{"-ical", {Noun}, {Adjective}, "thuộc về"},
    Affix{"-ic", {Noun}, {Adjective}, "thuộc về"},
    Affix{"-al", {Noun, Verb}, {Adjective, Noun}, "thuộc về; việc"},
    Affix{"-ish", {Noun, Adjective}, {Adjective}, "hơi; giống như"},
    Affix{"-ful", {Noun, Verb}, {Adjective, Noun}, "đầy, có nhiều"},
    Affix{"-some", {Noun, Verb, Adjective}, {Adjective}, "có tính"},
    Affix{"-ship", {Noun}, {Noun}, "tư cách, quan hệ"},
    Affix{"-hood", {Noun, Adjective}, {Noun}, "thân phận, tình trạng"},
    Affix{"-dom", {Noun, Adjective}, {Noun}, "giới, tình trạng"},
    Affix{"-wise", {Noun}, {Adverb}, "theo cách, về mặt"},
    Affix{"-ward", {Noun}, {Adverb, Adjective}, "về phía"},
    Affix{"-wards", {Noun}, {Adverb}, "về phía"},
    Affix{"-man", {Noun}, {Noun}, "người (nam)"},
    Affix{"-men", {Noun}, {}, "những người (nam)"},
    Affix{"-woman", {Noun}, {Noun}, "người (nữ)"},
    Affix{"-women", {Noun}, {}, "những người (nữ)"},
    Affix{"-ed", {Noun}, {Adjective}, "có"},
    Affix{"-y", {Noun, Verb}, {Adjective, Noun}, "có, đầy; giống như"},
};

constexpr std::size_t shortestAfterPrefix = 4;
constexpr std::size_t shortestBeforeSuffix = 3;

bool opensWithVowel(std::string_view ending) {
  return std::string_view("aeiouy").find(ending.front()) != std::string_view::npos;
}

/// The words that a stem may have been before the suffix joined it.
std::vector<std::string> basesOf(std::string_view stem, std::string_view ending) {
  const std::string base(stem);
  std::vector<std::string> bases{base};
  if (stem.ends_with('i')) bases.push_back(base.substr(0, base.size() - 1) + "y");
  if (ending == "ly") bases.push_back(base + "le");
  if (!opensWithVowel(ending)) return bases;
  bases.push_back(base + "e");
  bases.push_back(base + "y");
  if (stem.size() > 3 && stem.back() == stem[stem.size() - 2])
    bases.push_back(base.substr(0, base.size() - 1));
  return bases;
}

void replaceFirst(std::vector<std::string>& spellings, std::string_view word, std::string_view from,
                  std::string_view to) {
  const std::size_t at = word.rfind(from);
  if (at == std::string_view::npos || at == 0) return;
  spellings.push_back(
      std::string(word.substr(0, at)).append(to).append(word.substr(at + from.size())));
}

} // namespace

std::vector<Derivation> derivationsOf(std::string_view word) {
  std::vector<Derivation> derivations;
  for (const Affix& affix : prefixes) {
    const std::string_view opening = affix.text.substr(0, affix.text.size() - 1);
    if (!word.starts_with(opening)) continue;
    std::string_view base = word.substr(opening.size());
    if (base.starts_with('-')) base.remove_prefix(1);
    if (base.size() < shortestAfterPrefix) continue;
    derivations.push_back(
        {std::string(base), affix.baseClasses, affix.classes, affix.text, affix.meaning});
  }
  for (const Affix& affix : suffixes) {
    const std::string_view ending = affix.text.substr(1);
    if (!word.ends_with(ending)) continue;
    std::string_view stem = word.substr(0, word.size() - ending.size());
    if (stem.ends_with('-')) stem.remove_suffix(1);
    if (stem.empty()) continue;
    for (std::string& base : basesOf(stem, ending)) {
      if (base.size() < shortestBeforeSuffix) continue;
      derivations.push_back(
          {std::move(base), affix.baseClasses, affix.classes, affix.text, affix.meaning});
    }
  }
  return derivations;
}

std::string builtFrom(const Derivation& derivation, std::string_view base) {
  const std::string affix =
      std::string(derivation.affix) + " (" + ownText(derivation.meaning) + ")";
  const std::string opening = ownText("cấu tạo: ");
  if (derivation.affix.ends_with('-')) return opening + affix + " + " + std::string(base);
  return opening + std::string(base) + " + " + affix;
}

std::vector<std::string> otherSpellings(std::string_view word) {
  struct Pair {
    std::string_view from;
    std::string_view to;
  };
  static constexpr std::array<Pair, 12> pairs = {{{"our", "or"},
                                                  {"is", "iz"},
                                                  {"ys", "yz"},
                                                  {"ae", "e"},
                                                  {"oe", "e"},
                                                  {"ll", "l"},
                                                  {"ogue", "og"},
                                                  {"ence", "ense"},
                                                  {"re", "er"},
                                                  {"-", ""},
                                                  {"gramme", "gram"},
                                                  {"'", ""}}};
  std::vector<std::string> spellings;
  for (const Pair& pair : pairs) {
    replaceFirst(spellings, word, pair.from, pair.to);
    if (!pair.to.empty()) replaceFirst(spellings, word, pair.to, pair.from);
  }
  return spellings;
}

} // namespace talvora::pack
