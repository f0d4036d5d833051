// Files in a browser: the pack, which the worker fetches, and the learner's own files, which lie in
// the browser's private store.
#pragma once

#include "platform/FileSystem.h"

#include <memory>
#include <string>
#include <vector>

namespace talvora::web {

inline constexpr const char* PackFolder = "/pack";
inline constexpr const char* LearnerFolder = "/learner";

class WebFiles final : public FileSystem {
 public:
  [[nodiscard]] std::unique_ptr<OpenFile> open(const std::string& path, OpenFor purpose,
                                               std::error_code& error) override;
  [[nodiscard]] FileStatus status(const std::string& path, std::error_code& error) override;
  [[nodiscard]] std::string followLinks(const std::string& path, std::error_code& error) override;
  [[nodiscard]] std::error_code rename(const std::string& from, const std::string& to) override;
  [[nodiscard]] std::error_code remove(const std::string& path) override;
  [[nodiscard]] std::error_code syncFolder(const std::string&) override { return {}; }
  [[nodiscard]] std::error_code makeFolder(const std::string&) override { return {}; }
  [[nodiscard]] std::vector<std::string> list(const std::string& folder,
                                              std::error_code& error) override;
  [[nodiscard]] bool mayCreateIn(const std::string& folder) override;
};

} // namespace talvora::web
