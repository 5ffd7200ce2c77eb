#pragma once
// Norvik's own unpacking of a zip file into the staging folder.

#include "front/session.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace norvik::install {

class Shelf;

/// How much a zip file may hold.
struct UnpackLimits {
  std::uint64_t bytes = std::uint64_t{4} << 30U;
  std::size_t entries = 65535;
  /// How many times its own size a zip file may unpack to, once that is more than `anyway`. The
  /// way that nearly all zip files are packed in comes to 1 : 1032 at most, for a file of one byte
  /// over and over, so that none of these is met. What was made to burst is: entries that share
  /// their bytes, and stronger ways of packing.
  std::uint64_t ratio = 1100;
  std::uint64_t anyway = 100'000'000;
};

enum class Unpacked {
  done,
  noZip,         ///< the file cannot be read as a zip
  tooMuch,       ///< it holds more than the limits allow
  tooDense,      ///< it unpacks to too many times its own size
  notSupported,  ///< this program was built without what unpacks
};

/// The unpacking of a zip file into a folder, which is made if it is missing. Entries whose names
/// lead elsewhere, links, devices, encrypted and damaged files are left out, each by itself. A file
/// that stands there already is kept, under the first free name with a number, and the entry takes
/// its name. All bytes are unpacked below the program folder first, so that nothing has changed in
/// the folder, but for such numbers, unless the outcome is `done`.
///
///     Unpacking unpacking(session, "C:\\doll.zip", "C:\\Norvik\\cr2install");
///     if (unpacking.withFolders() == Unpacked::done) ...
class Unpacking {
 public:
  Unpacking(front::Session& session, std::string zip, std::string folder,
            const UnpackLimits& limits = {});
  Unpacking(const Unpacking&) = delete;
  Unpacking& operator=(const Unpacking&) = delete;
  ~Unpacking();

  /// Keeps the folders of the zip file. Throws FileError when the host cannot hold the bytes.
  Unpacked withFolders();
  /// Puts all files side by side. What `withFolders` has brought goes first, so that it is as if
  /// it had never been. Throws like it.
  Unpacked flat();

 private:
  enum class Layout { folders, flat };
  Unpacked run(Layout layout);

  front::Session& session_;
  std::string zip_;
  std::string folder_;
  UnpackLimits limits_;
  std::unique_ptr<Shelf> brought_;  ///< what the last run has put into the folder
};

/// The CR2 files that lie inside folders of a zip file, with slashes in their names; none if it
/// cannot be read.
std::vector<std::string> figuresInFolders(front::Session& session, const std::string& zip);

}  // namespace norvik::install
