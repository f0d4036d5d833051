#include "pack/Gunzip.h"

#include "pack/Message.h"

#include <zlib.h>

#include <array>
#include <memory>

namespace talvora::pack {

namespace {

constexpr std::string_view gzipOpener = "\x1F\x8B";
/// zlib's largest window, and its mark for gzip's headers.
constexpr int gzipWindow = 15 + 16;
constexpr std::size_t stepSize = std::size_t{1} << 16;

struct EndInflating {
  void operator()(z_stream* stream) const { inflateEnd(stream); }
};

Unpacked failed(std::string_view what, const z_stream& stream) {
  return {std::nullopt, said("offset {}: {}", stream.total_in, what)};
}

} // namespace

Unpacked unpacked(std::string_view bytes, std::size_t most) {
  if (!bytes.starts_with(gzipOpener)) return {std::string(bytes), ""};
  z_stream stream{};
  if (inflateInit2(&stream, gzipWindow) != Z_OK) return failed(said("zlib does not start"), stream);
  const std::unique_ptr<z_stream, EndInflating> ending(&stream);
  // zlib reads only; its interface is older than const.
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
  stream.avail_in = static_cast<uInt>(bytes.size());
  std::string content;
  std::array<Bytef, stepSize> step{};
  int result = Z_OK;
  while (result != Z_STREAM_END) {
    stream.next_out = step.data();
    stream.avail_out = static_cast<uInt>(step.size());
    result = inflate(&stream, Z_NO_FLUSH);
    if (result == Z_BUF_ERROR) return failed(said("the packed file ends too early"), stream);
    if (result != Z_OK && result != Z_STREAM_END)
      return failed(said("the packed file is damaged"), stream);
    content.append(reinterpret_cast<const char*>(step.data()), step.size() - stream.avail_out);
    if (content.size() > most) return failed(said("the unpacked file is too large"), stream);
  }
  return {std::move(content), ""};
}

} // namespace talvora::pack
