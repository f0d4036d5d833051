#include "TestFolder.h"

#include "formats/Integers.h"
#include "stores/ByteCode.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace talvora::test {

std::string TestFolder::pathOf(std::string_view name) const {
  return (folder_.path() / name).string();
}

void TestFolder::write(std::string_view name, std::string_view bytes) const {
  std::filesystem::create_directories(std::filesystem::path(pathOf(name)).parent_path());
  std::ofstream file(pathOf(name), std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void TestFolder::writeIntegers(std::string_view name,
                               const std::vector<std::int32_t>& values) const {
  std::string bytes;
  for (const std::int32_t value : values) {
    for (const unsigned char byte : bytesOf(value))
      bytes += static_cast<char>(byte);
  }
  write(name, bytes);
}

void TestFolder::writeStream(std::string_view name, std::string_view plain) const {
  write(name, encoded(plain));
}

std::string TestFolder::read(std::string_view name) const {
  std::ifstream file(pathOf(name), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void TestFolder::remove(std::string_view name) const {
  std::filesystem::remove(pathOf(name));
}

bool TestFolder::has(std::string_view name) const {
  return std::filesystem::exists(pathOf(name));
}

std::vector<std::string> TestFolder::names() const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder_.path()))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

void TestFolder::writeEmptyStores() const {
  for (const char* name :
       {"data.vt",  "data.av",     "data.avt",  "datavp.vt", "datavp.n", "dataD.av", "data.vbt",
        "data.bt",  "datasp.vt",   "datasp.av", "dataPt.vt", "dataPt.v", "data.mtd", "datatu.txt",
        "data.Muc", "datatuD.txt", "dataD.vt",  "dataN.vt",  "dataN.av", "DataS"}) {
    write(name, "");
  }
  write("readme.rtf", "{\\rtf1 guide\\par}");
  write("dataABCD.rtf", "{\\rtf1 }");
}

std::string encoded(std::string_view plain) {
  std::string bytes(plain);
  for (char& byte : bytes)
    byte = static_cast<char>(GiaiMaByte(static_cast<unsigned char>(byte)));
  return bytes;
}

} // namespace talvora::test
