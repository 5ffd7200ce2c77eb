#pragma once
// Norvik's own unpacking of a zip file into the staging folder.

#include "front/session.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace norvik::install {

/// How much a zip file may hold.
struct UnpackLimits {
  std::uint64_t bytes = std::uint64_t{4} << 30U;
  std::size_t entries = 65535;
};

enum class Unpacked {
  done,
  noZip,         ///< the file cannot be read as a zip
  tooMuch,       ///< it holds more than the limits allow
  notSupported,  ///< this program was built without what unpacks
};

/// Unpacks a zip file, its folders included, into a folder, which is made if it is missing. Entries
/// whose names lead elsewhere, links, devices, encrypted and damaged files are left out, each by
/// itself. A file that stands there already is kept, under the first free name with a number, and
/// the entry takes its name. All bytes are unpacked below the program folder first, so that nothing
/// has changed in the folder unless the outcome is `done`. Throws FileError when the host cannot
/// hold them.
Unpacked unpackZip(front::Session& session, const std::string& zip, const std::string& folder,
                   const UnpackLimits& limits = {});

}  // namespace norvik::install
