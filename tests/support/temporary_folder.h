#pragma once
// A folder of the host for one test.

#include <string>
#include <string_view>
#include <vector>

namespace norvik::tests {

/// A new, empty folder that goes away with the object, whatever the test has put into it. Names are
/// relative to it. A step that the host refuses fails the test by an exception.
class TemporaryFolder {
 public:
  /// `within` is an existing host folder; empty for the system's own place for such things.
  explicit TemporaryFolder(const std::string& within = {});
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  const std::string& path() const { return path_; }
  std::string path(std::string_view name) const;

  /// Makes a file with these bytes, and the folders on the way to it.
  void write(std::string_view name, std::string_view bytes) const;
  std::string read(std::string_view name) const;
  bool exists(std::string_view name) const;  ///< links are not followed
  void makeFolder(std::string_view name) const;
  void makeLink(std::string_view name, const std::string& target) const;
  void setMode(std::string_view name, unsigned mode) const;
  unsigned mode(std::string_view name) const;

  /// All files below, by their names relative to the folder, in order; folders do not count.
  std::vector<std::string> files() const;

 private:
  std::string path_;
};

}  // namespace norvik::tests
