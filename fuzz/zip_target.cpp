// Norvik's own unpacking: whatever the bytes are, nothing appears but below the staging folder, and
// what stood there keeps its bytes. Every input is a file, without a line that steers.

#include "input.h"
#include "install/unpack.h"
#include "quiet_front_end.h"
#include "text/host.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

namespace fs = std::filesystem;
using norvik::fuzz::require;

/// A drive in a folder of its own.
class Place {
 public:
  Place() {
    std::string pattern = (fs::temp_directory_path() / "norvik-zip-XXXXXX").string();
    require(::mkdtemp(pattern.data()) != nullptr, "a folder");
    folder_ = pattern;
    fs::create_directories(folder_ / "c/Norvik/cr2install/maps");
    write("c/Norvik/cr2install/a.txt", "mine");
    write("c/outside.txt", "outside");
    fs::create_symlink("../..", folder_ / "c/Norvik/cr2install/up");
  }
  Place(const Place&) = delete;
  Place& operator=(const Place&) = delete;
  ~Place() { fs::remove_all(folder_); }

  std::string drive() const { return (folder_ / "c").string(); }
  void write(const char* name, std::string_view bytes) const {
    std::ofstream(folder_ / name, std::ios::binary) << bytes;
  }

  /// Complains about files that should not be there; whether the one that should is.
  void check() const {
    bool kept = false;
    for (const auto& entry : fs::recursive_directory_iterator(folder_)) {
      if (entry.is_symlink() || !entry.is_regular_file()) continue;
      const std::string name = entry.path().lexically_relative(folder_ / "c").string();
      const bool staged = name.starts_with("Norvik/cr2install/");
      require(staged || name == "outside.txt" || name == "x.zip", "nothing outside: " + name);
      std::stringstream bytes;
      bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
      kept = kept || bytes.str() == "mine";
      require(name != "outside.txt" || bytes.str() == "outside", "outside.txt");
    }
    require(kept, "the file that stood there");
  }

 private:
  fs::path folder_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  namespace front = norvik::front;
  const Place place;
  place.write("c/x.zip", {reinterpret_cast<const char*>(data), size});
  const auto host = norvik::text::makePosixHost();
  norvik::text::Disk disk(*host);
  disk.mount('C', place.drive());
  front::Settings settings;
  front::Opening opening;
  opening.ProgramFolder = "C:\\Norvik";
  norvik::fuzz::QuietFrontEnd quiet;
  front::Session session(quiet, disk, settings, opening);
  constexpr norvik::install::UnpackLimits kLimits{100'000, 50};
  try {
    norvik::install::Unpacking unpacking(session, "C:\\x.zip", "C:\\Norvik\\cr2install", kLimits);
    unpacking.withFolders();
    place.check();
    unpacking.flat();
  } catch (const norvik::text::FileError&) {
    // What the host refuses is told.
  }
  place.check();
  return 0;
}
