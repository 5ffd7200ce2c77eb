#pragma once
// The settings store: strings by section and key, kept in an INI file of the user.

#include "text/host.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace norvik::front {

/// Sections and keys are found without regard to case; values are bytes without a line end. Lines
/// of the file that the store does not understand stay as they are.
class Settings {
 public:
  /// A store in memory only.
  Settings() = default;

  /// A store in a host file, which is made at the first change if it is missing. The folder must
  /// exist. Throws FileError if an existing file cannot be read.
  Settings(text::HostOps& host, std::string hostFile);

  std::string get(std::string_view section, std::string_view key, std::string_view fallback) const;

  /// Stores a value and writes the file: beside the old one, flushed, then renamed over it. Throws
  /// FileError if that fails; the old file then stands as it was.
  void set(std::string_view section, std::string_view key, std::string_view value);

  /// Stores several values of a section with one write.
  using Values = std::vector<std::pair<std::string, std::string>>;
  void set(std::string_view section, const Values& values);

 private:
  void load();
  void save() const;
  bool put(std::string_view section, std::string_view key, std::string_view value);

  text::HostOps* host_ = nullptr;
  std::string file_;
  std::vector<std::string> lines_;
};

}  // namespace norvik::front
