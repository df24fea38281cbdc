#include <nvlist/files/ByteReader.h>

namespace norvane {

std::vector<char> readBytes(File& file, std::size_t count) {
  std::vector<char> bytes(count);
  std::size_t size = 0;
  while (size < count) {
    const std::size_t got = file.read(bytes.data() + size, count - size);
    if (got == 0) break;
    size += got;
  }
  bytes.resize(size);
  return bytes;
}

}  // namespace norvane
