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

/// A deflated stream: codes have their first bit first, numbers their lowest.
class Bits {
 public:
  void code(unsigned value, int size) {
    while (size-- > 0) bit(value >> static_cast<unsigned>(size) & 1U);
  }
  void bit(unsigned value) {
    if (free_ == 0) bytes_ += '\0';
    free_ = free_ == 0 ? 7 : free_ - 1;
    const unsigned at = 7U - static_cast<unsigned>(free_);
    bytes_.back() = static_cast<char>(static_cast<unsigned char>(bytes_.back()) | value << at);
  }
  const std::string& bytes() const { return bytes_; }

 private:
  std::string bytes_;
  int free_ = 0;
};

constexpr unsigned kDeflated = 8;

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
  ZipPart part{name, deflated(bytes)};
  part.method = kDeflated;
  part.size = size < 0 ? static_cast<std::int64_t>(bytes.size()) : size;
  part.checksum = graphics::crc32(bytes);
  return part;
}

ZipPart packedPart(const std::string& name, std::size_t times, std::int64_t size) {
  constexpr unsigned kX = 0x30 + 'x';      // in the fixed code, where every letter has eight bits
  constexpr unsigned k258AsBefore = 0xC5;  // a copy of 258 bytes; its distance follows
  Bits stream;
  for (const unsigned bit : {1U, 1U, 0U}) stream.bit(bit);  // the last block, in the fixed code
  stream.code(kX, 8);
  for (std::size_t i = 0; i < times; ++i) {
    stream.code(k258AsBefore, 8);
    stream.code(0, 5);  // a distance of 1
  }
  stream.code(0, 7);  // the end
  ZipPart part{name, stream.bytes()};
  const std::string unpacked(1 + 258 * times, 'x');
  part.method = kDeflated;
  part.size = size < 0 ? static_cast<std::int64_t>(unpacked.size()) : size;
  part.checksum = graphics::crc32(unpacked);
  return part;
}

}  // namespace norvik::tests
