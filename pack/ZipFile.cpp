#include "pack/ZipFile.h"

#include "pack/Message.h"

#include <archive.h>
#include <archive_entry.h>

#include <array>
#include <memory>
#include <stdexcept>

namespace talvora::pack {

namespace {

constexpr int readableFile = 0644;

struct FreeWriter {
  void operator()(archive* writer) const { archive_write_free(writer); }
};
struct FreeEntry {
  void operator()(archive_entry* entry) const { archive_entry_free(entry); }
};
using Writer = std::unique_ptr<archive, FreeWriter>;

la_ssize_t append(archive* /*writer*/, void* text, const void* bytes, std::size_t count) {
  static_cast<std::string*>(text)->append(static_cast<const char*>(bytes), count);
  return static_cast<la_ssize_t>(count);
}

void require(archive* writer, la_ssize_t result) {
  if (result >= ARCHIVE_OK) return;
  const char* const why = archive_error_string(writer);
  throw std::runtime_error(
      said("no archive can be made: {}", why == nullptr ? said("out of memory") : why));
}

void add(archive* writer, const ZipEntry& each) {
  const std::unique_ptr<archive_entry, FreeEntry> entry(archive_entry_new());
  archive_entry_set_pathname(entry.get(), each.name.c_str());
  archive_entry_set_size(entry.get(), static_cast<la_int64_t>(each.bytes.size()));
  archive_entry_set_filetype(entry.get(), AE_IFREG);
  archive_entry_set_perm(entry.get(), readableFile);
  archive_entry_set_mtime(entry.get(), 0, 0);
  require(writer, archive_write_header(writer, entry.get()));
  require(writer, archive_write_data(writer, each.bytes.data(), each.bytes.size()));
}

struct FreeReader {
  void operator()(archive* reader) const { archive_read_free(reader); }
};

std::string problemOf(archive* reader) {
  const char* const why = archive_error_string(reader);
  return why == nullptr ? said("the archive cannot be read") : why;
}

/// Reads the entry at hand; false when there is more of it than `room`, or it is damaged.
bool readEntry(archive* reader, std::string& bytes, std::size_t room) {
  std::array<char, std::size_t{1} << 16> step{};
  while (true) {
    const la_ssize_t count = archive_read_data(reader, step.data(), step.size());
    if (count <= 0) return count == 0;
    bytes.append(step.data(), static_cast<std::size_t>(count));
    if (bytes.size() > room) {
      archive_set_error(reader, ARCHIVE_FATAL, "%s", said("the archive is too large").c_str());
      return false;
    }
  }
}

} // namespace

ZipContent zipContentOf(std::string_view bytes, const ZipLimits& limits) {
  const std::unique_ptr<archive, FreeReader> reader(archive_read_new());
  // Read by its directory, which stands at the end: an archive that is cut short is none.
  archive_read_support_format_zip_seekable(reader.get());
  if (archive_read_open_memory(reader.get(), bytes.data(), bytes.size()) != ARCHIVE_OK)
    return {std::nullopt, problemOf(reader.get())};
  std::map<std::string, std::string> entries;
  std::size_t room = limits.bytes;
  archive_entry* entry = nullptr;
  int result = archive_read_next_header(reader.get(), &entry);
  for (; result == ARCHIVE_OK || result == ARCHIVE_WARN;
       result = archive_read_next_header(reader.get(), &entry)) {
    const char* const name = archive_entry_pathname(entry);
    std::string content;
    if (!readEntry(reader.get(), content, room)) return {std::nullopt, problemOf(reader.get())};
    room -= content.size();
    if (name != nullptr) entries[name] = std::move(content);
    if (entries.size() > limits.entries)
      return {std::nullopt, said("the archive has too many entries")};
  }
  if (result != ARCHIVE_EOF) return {std::nullopt, problemOf(reader.get())};
  return {std::move(entries), ""};
}

std::string zipOf(const std::vector<ZipEntry>& entries) {
  std::string bytes;
  const Writer writer(archive_write_new());
  require(writer.get(), archive_write_set_format_zip(writer.get()));
  // Without this the end would be filled up to a tape's block, and readers look for it at the end.
  require(writer.get(), archive_write_set_bytes_in_last_block(writer.get(), 1));
  require(writer.get(), archive_write_open(writer.get(), &bytes, nullptr, append, nullptr));
  for (const ZipEntry& each : entries)
    add(writer.get(), each);
  require(writer.get(), archive_write_close(writer.get()));
  return bytes;
}

} // namespace talvora::pack
