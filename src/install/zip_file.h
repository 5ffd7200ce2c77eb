#pragma once
// Zip files, by libarchive; the one place that knows it. They come from strangers: what is read
// here is only what an entry says of itself, and an entry's bytes go to a place that the caller
// names.

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace norvik::install {

/// What an entry says of itself.
struct ZipEntry {
  enum class Kind {
    file,
    folder,
    other,  ///< a link, a device, an encrypted file: nothing that is unpacked
  };
  Kind kind = Kind::other;
  std::string name;        ///< as it stands in the zip
  std::uint64_t size = 0;  ///< as the zip says; its bytes may be more
};

/// Reads a zip file forward, entry by entry, in the order of their bytes.
///
///     ZipFile zip("/tmp/doll.zip");
///     ZipEntry entry;
///     while (zip.next(entry)) ...
///     if (!zip.sound()) ...
class ZipFile {
 public:
  /// Whether this program was built with what reads zip files.
  static bool supported();

  explicit ZipFile(const std::string& hostFile);
  ZipFile(const ZipFile&) = delete;
  ZipFile& operator=(const ZipFile&) = delete;
  ~ZipFile();

  /// Goes to the next entry; false behind the last one, and where the file cannot be read on.
  bool next(ZipEntry& entry);

  /// False when the file is no zip file, or breaks off.
  bool sound() const;

  enum class Written {
    whole,
    damaged,  ///< the bytes could not be made out, or have another checksum
    refused,  ///< `mayWrite` said no
  };
  /// Writes the entry's bytes to a new file, which is gone again if they are not whole. `name` is
  /// one in the folder, without a divider; nothing is followed, nothing overwritten. `mayWrite` is
  /// told of each piece before it is written. Throws FileError when the host fails to write.
  using MayWrite = std::function<bool(std::uint64_t bytes)>;
  Written write(const std::string& hostFolder, const std::string& name, const MayWrite& mayWrite);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace norvik::install
