#include "text/host_names.h"

namespace norvik::text {

std::string folderOf(std::string_view name) {
  const auto slash = name.find_last_of('/');
  if (slash == std::string_view::npos) return ".";
  return slash == 0 ? "/" : std::string{name.substr(0, slash)};
}

std::string_view lastName(std::string_view name) {
  return name.substr(name.find_last_of('/') + 1);
}

std::string joined(std::string_view folder, std::string_view name) {
  std::string result{folder};
  if (!result.ends_with('/')) result += '/';
  return result.append(name);
}

}  // namespace norvik::text
