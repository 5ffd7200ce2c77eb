#pragma once
// A folder of the host that is being filled with a stranger's files.

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace norvik::install {

/// Knows the names in its folder, so that a file costs the same whatever the folder holds. Names
/// count without regard to case. No link is followed. What the host refuses, or what would go
/// through a link, throws FileError; the folder has then changed by no more than a file's new name.
class Shelf {
 public:
  /// The names in an existing folder.
  explicit Shelf(std::string hostFolder);

  /// The folder of that name in it, made if it is missing.
  Shelf& folder(const std::string& name);

  /// Moves a host file here under a name. A file that has it is kept: it takes the first free name
  /// with a number. So does each of several whose names differ in case alone.
  void take(const std::string& hostFile, const std::string& name);

 private:
  struct Known {
    std::string name;  ///< as the host spells it
    std::unique_ptr<Shelf> shelf{};
    std::vector<std::string> others{};  ///< what differs from it in case alone
    int numbered = 1;                   ///< the last number that files of this name were given
  };

  std::string path(const std::string& name) const { return host_ + "/" + name; }
  void makeRoom(Known& taken);
  void keepUnderNumber(Known& taken, const std::string& name);

  std::string host_;
  std::map<std::u32string, Known> names_;
};

}  // namespace norvik::install
