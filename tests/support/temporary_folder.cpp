#include "support/temporary_folder.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <sys/stat.h>
#include <system_error>

namespace norvik::tests {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder(const std::string& within) {
  const std::string parent = within.empty() ? fs::temp_directory_path().string() : within;
  path_ = parent + "/norvik-test-XXXXXX";
  if (::mkdtemp(path_.data()) == nullptr) {
    throw std::system_error(errno, std::generic_category(), path_);
  }
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

std::string TemporaryFolder::path(std::string_view name) const {
  return path_ + "/" + std::string{name};
}

void TemporaryFolder::write(std::string_view name, std::string_view bytes) const {
  fs::create_directories(fs::path(path(name)).parent_path());
  std::ofstream out(path(name), std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (!out) throw std::runtime_error("cannot write " + path(name));
}

std::string TemporaryFolder::read(std::string_view name) const {
  std::ifstream in(path(name), std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + path(name));
  std::string bytes(fs::file_size(path(name)), '\0');
  in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!in) throw std::runtime_error("cannot read " + path(name));
  return bytes;
}

bool TemporaryFolder::exists(std::string_view name) const {
  return fs::exists(fs::symlink_status(path(name)));
}

void TemporaryFolder::makeFolder(std::string_view name) const {
  fs::create_directories(path(name));
}

void TemporaryFolder::makeLink(std::string_view name, const std::string& target) const {
  fs::create_symlink(target, path(name));
}

void TemporaryFolder::setMode(std::string_view name, unsigned mode) const {
  if (::chmod(path(name).c_str(), mode) != 0) {
    throw std::system_error(errno, std::generic_category(), path(name));
  }
}

unsigned TemporaryFolder::mode(std::string_view name) const {
  struct stat status {};
  if (::stat(path(name).c_str(), &status) != 0) {
    throw std::system_error(errno, std::generic_category(), path(name));
  }
  constexpr unsigned kPermissionBits = 07777;
  return status.st_mode & kPermissionBits;
}

std::vector<std::string> TemporaryFolder::files() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::recursive_directory_iterator(path_)) {
    if (!entry.is_directory()) names.push_back(entry.path().string().substr(path_.size() + 1));
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace norvik::tests
