#pragma once
// A folder of the host that is being filled with a stranger's files.

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
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

  /// Whether something of that name is in it.
  bool has(const std::string& name) const;

  /// The folder of that name in it, made if it is missing.
  Shelf& folder(const std::string& name);
  /// Removes a folder in it, if it is empty.
  void removeFolder(const std::string& name);

  /// Moves a host file here under a name. A file that has it is kept: it takes the first free name
  /// with a number. So does each of several whose names differ in case alone.
  void take(const std::string& hostFile, const std::string& name);

  /// Deletes what was brought here and below: the files that were taken, unless somebody has
  /// written them since, and the folders that were made, if they are empty then. The shelf is of no
  /// use afterwards.
  void takeBack();

 private:
  using Time = std::filesystem::file_time_type;
  struct Known {
    std::string name;  ///< as the host spells it
    std::unique_ptr<Shelf> shelf{};
    std::vector<std::string> others{};  ///< what differs from it in case alone
    int numbered = 1;                   ///< the last number that files of this name were given
    bool made = false;                  ///< a folder that was missing
    std::optional<Time> taken{};        ///< of a file that was taken: its time
  };

  std::string path(const std::string& name) const { return host_ + "/" + name; }
  void makeRoom(Known& wanted);
  void keepUnderNumber(Known& wanted, const std::string& name, std::optional<Time> taken);

  std::string host_;
  std::map<std::u32string, Known> names_;
};

}  // namespace norvik::install
