#include "support/zip_bytes.h"

#include "graphics/crc32.h"

#include <algorithm>

namespace norvik::tests {

namespace {

/// Whole numbers, the low byte first.
class Record {
 public:
  Record& two(std::uint64_t value) { return number(value, 2); }
  Record& four(std::uint64_t value) { return number(value, 4); }
  Record& text(const std::string& text) {
    bytes_ += text;
    return *this;
  }
  const std::string& bytes() const { return bytes_; }

 private:
  Record& number(std::uint64_t value, int size) {
    for (int i = 0; i < size; ++i, value >>= 8U) bytes_ += static_cast<char>(value & 0xFFU);
    return *this;
  }

  std::string bytes_;
};

constexpr unsigned kVersion = 20;
constexpr unsigned kUnix = 3U << 8U;
constexpr unsigned kDate = 0x2C64;

/// What the two headers of an entry have in common.
void describe(Record& header, const ZipPart& part) {
  const auto or_ = [](std::int64_t value, std::uint64_t truth) {
    return value < 0 ? truth : static_cast<std::uint64_t>(value);
  };
  header.two(kVersion).two(part.flags).two(part.method).two(0).two(kDate);
  header.four(or_(part.checksum, graphics::crc32(part.bytes)));
  header.four(part.bytes.size()).four(or_(part.size, part.bytes.size()));
  header.two(part.name.size()).two(0);
}

}  // namespace

std::string zipBytes(const std::vector<ZipPart>& parts) {
  Record files;
  Record directory;
  for (const ZipPart& part : parts) {
    const std::size_t start = files.bytes().size();
    files.four(0x04034B50);
    describe(files, part);
    files.text(part.name).text(part.bytes);
    directory.four(0x02014B50).two(kUnix | kVersion);
    describe(directory, part);
    directory.two(0).two(0).two(0).four(std::uint64_t{part.mode} << 16U).four(start);
    directory.text(part.name);
  }
  Record end;
  end.four(0x06054B50).two(0).two(0).two(parts.size()).two(parts.size());
  end.four(directory.bytes().size()).four(files.bytes().size()).two(0);
  return files.bytes() + directory.bytes() + end.bytes();
}

std::string deflated(const std::string& bytes) {
  constexpr std::size_t kMost = 0xFFFF;
  Record stream;
  std::size_t at = 0;
  do {
    const std::size_t size = std::min(kMost, bytes.size() - at);
    const bool last = at + size == bytes.size();
    stream.text(std::string(1, last ? '\1' : '\0')).two(size).two(~size & kMost);
    stream.text(bytes.substr(at, size));
    at += size;
  } while (at < bytes.size());
  return stream.bytes();
}

ZipPart deflatedPart(const std::string& name, const std::string& bytes, std::int64_t size) {
  constexpr unsigned kDeflated = 8;
  ZipPart part{name, deflated(bytes)};
  part.method = kDeflated;
  part.size = size < 0 ? static_cast<std::int64_t>(bytes.size()) : size;
  part.checksum = graphics::crc32(bytes);
  return part;
}

}  // namespace norvik::tests
