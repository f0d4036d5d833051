#include "pack/ZipFile.h"

#include <archive.h>
#include <archive_entry.h>

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
  throw std::runtime_error(std::string("no archive can be made: ") +
                           (why == nullptr ? "out of memory" : why));
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

} // namespace

std::string zipOf(const std::vector<ZipEntry>& entries) {
  std::string bytes;
  const Writer writer(archive_write_new());
  require(writer.get(), archive_write_set_format_zip(writer.get()));
  require(writer.get(), archive_write_open(writer.get(), &bytes, nullptr, append, nullptr));
  for (const ZipEntry& each : entries)
    add(writer.get(), each);
  require(writer.get(), archive_write_close(writer.get()));
  return bytes;
}

} // namespace talvora::pack
