#include "desktop/options.h"

#include <filesystem>

namespace norvik::desktop {

const char* const kHelp =
    "norvik - a workbench for Poser figure files\n"
    "\n"
    "Usage: norvik [options] [PATH]            PATH is a figure, scene or mesh to open,\n"
    "                                         named as here or as on its drives: C:\\Poser\\...\n"
    "\n"
    "  --drive L=FOLDER   the host folder that stands for drive L:; may be repeated\n"
    "                     (Z: is /, C: the drive C of a Wine prefix, if there is one)\n"
    "  --program PATH     the program folder, as a system path (C:\\Norvik); made if missing\n"
    "  --settings FILE    the settings store, an INI file; made if missing\n"
    "  --help, --version\n"
    "\n"
    "Options of the window system, such as -platform, may be given as well.\n";

Options parseOptions(const std::vector<std::string>& arguments) {
  Options options;
  const auto addDrive = [&](const std::string& value) {
    // Links stay: the paths that dialogs hand back have them, too.
    const auto [letter, folder] = workbench::driveOf(value);
    options.drives.emplace_back(letter, std::filesystem::path{folder}.lexically_normal().string());
  };
  const auto takeFile = [&](const std::string& argument) {
    if (argument.starts_with("-") || !options.file.empty()) workbench::refuseArgument(argument);
    options.file = argument;
  };
  workbench::readArguments(
      arguments,
      {{"--drive", addDrive},
       {"--program", [&](const std::string& value) { options.program = value; }},
       {"--settings", [&](const std::string& value) { options.settings = value; }}},
      takeFile);
  return options;
}

}  // namespace norvik::desktop
