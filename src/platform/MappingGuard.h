// A guard over mapped files: one that becomes shorter on disk while it is read must not end the
// program by a signal. What is missing reads as 0, and the guard remembers whose it was.
#pragma once

#include <cstddef>
#include <string>

namespace talvora {

/// Guards a mapping of a file as long as it lives. More mappings at a time than there are places
/// for go unguarded.
class MappingGuard {
 public:
  MappingGuard(const void* from, std::size_t size, const std::string& path);
  MappingGuard(const MappingGuard&) = delete;
  MappingGuard& operator=(const MappingGuard&) = delete;
  ~MappingGuard();

 private:
  int place_;
};

} // namespace talvora
