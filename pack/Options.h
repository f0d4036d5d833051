// What a build is made of.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <vector>

namespace talvora::pack {

struct Options {
  std::filesystem::path source;
  std::filesystem::path wordNet = "/usr/share/wordnet";
  /// Its licence, which goes with every pack that holds its words.
  std::filesystem::path wordNetLicence = "/usr/share/doc/wordnet-base/copyright";
  std::vector<std::filesystem::path> wordLists = {"/usr/share/dict/american-english-huge",
                                                  "/usr/share/dict/british-english-huge"};
  /// The greatest number of lines of a small word list; none for the full one.
  std::optional<std::size_t> smallWordList = std::nullopt;
  /// The pack whose recordings are kept as far as their scripts are the same, and whose dictionary
  /// is when its sources are; without one no recording is made.
  std::optional<std::filesystem::path> earlierPack = std::nullopt;
};

} // namespace talvora::pack
