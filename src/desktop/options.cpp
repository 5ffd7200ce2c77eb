#include "desktop/options.h"

#include <cctype>
#include <filesystem>
#include <functional>
#include <map>

namespace norvik::desktop {

const char* const kHelp =
    "norvik - a workbench for Poser figure files\n"
    "\n"
    "Usage: norvik [options] [PATH]            PATH is a figure, scene or mesh to open\n"
    "\n"
    "  --drive L=FOLDER   the host folder that stands for drive L:; may be repeated\n"
    "                     (Z: is /, C: the drive C of a Wine prefix, if there is one)\n"
    "  --program PATH     the program folder, as a system path (C:\\Norvik); made if missing\n"
    "  --settings FILE    the settings store, an INI file; made if missing\n"
    "  --help, --version\n"
    "\n"
    "Options of the window system, such as -platform, may be given as well.\n";

namespace {

std::pair<char, std::string> driveOf(const std::string& value) {
  const bool formed = value.size() > 2 && value[1] == '=' &&
                      std::isalpha(static_cast<unsigned char>(value[0])) != 0;
  if (!formed) throw BadOption{"--drive takes L=FOLDER, not '" + value + "'"};
  std::error_code error;
  const auto folder = std::filesystem::absolute(value.substr(2), error).lexically_normal();
  if (error || !std::filesystem::is_directory(folder, error)) {
    throw BadOption{"--drive: no folder '" + value.substr(2) + "'"};
  }
  return {value[0], folder.string()};
}

}  // namespace

Options parseOptions(const std::vector<std::string>& arguments) {
  Options options;
  const std::map<std::string, std::function<void(const std::string&)>, std::less<>> valued{
      {"--drive", [&](const std::string& value) { options.drives.push_back(driveOf(value)); }},
      {"--program", [&](const std::string& value) { options.program = value; }},
      {"--settings", [&](const std::string& value) { options.settings = value; }}};

  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const auto equals = argument.starts_with("--") ? argument.find('=') : std::string::npos;
    const auto option = valued.find(argument.substr(0, equals));
    if (option != valued.end()) {
      if (equals == std::string::npos && i + 1 == arguments.size()) {
        throw BadOption{argument + " needs a value"};
      }
      option->second(equals == std::string::npos ? arguments[++i] : argument.substr(equals + 1));
    } else if (argument.starts_with("-") || !options.file.empty()) {
      throw BadOption{"no option '" + argument + "'"};
    } else {
      options.file = argument;
    }
  }
  return options;
}

}  // namespace norvik::desktop
