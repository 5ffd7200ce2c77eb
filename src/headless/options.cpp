#include "headless/options.h"

#include <cctype>
#include <charconv>
#include <filesystem>

namespace norvik::headless {

const char* const kHelp =
    "norvik-run - runs the tools of the Norvik workbench from a script\n"
    "\n"
    "Usage: norvik-run [options] [SCRIPT]      SCRIPT is a file, or - or nothing for standard "
    "input\n"
    "\n"
    "  --drive L=FOLDER   the host folder that stands for drive L:; may be repeated (Z=/)\n"
    "  --program PATH     the program folder, as a system path such as C:\\Norvik; made if "
    "missing\n"
    "  --cwd PATH         the current folder at the start, as a system path\n"
    "  --settings FILE    the settings store, an INI file; made if missing (kept in memory)\n"
    "  --screen WxH       the screen in pixels (1024x768)\n"
    "  --clock \"YYYY-MM-DD HH:MM:SS\"\n"
    "                     a fixed time for everything that writes a date\n"
    "  --open PATH        the command line of the program, as it stands\n"
    "  --history FOLDER   the host folder that keeps the old versions of files that tools "
    "replace,\n"
    "                     delete or change; made if missing (none kept)\n"
    "  --help, --version\n"
    "\n"
    "Every question, box and act comes out as one JSON object a line. Exit code: 0 the script ran "
    "to\n"
    "its end; 1 an expectation failed; 2 a bad option, a bad command or a refused one; 3 a box or\n"
    "dialog had no answer; 4 the runner itself failed.\n";

namespace {

/// The host's current folder is known without links, and a drive is to be found that holds it.
workbench::Drive driveOf(const std::string& value) {
  const auto [letter, folder] = workbench::driveOf(value);
  return {letter, std::filesystem::canonical(folder).string()};
}

/// Reads a number off the front of a text.
float takeNumber(std::string_view& text) {
  int number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  text.remove_prefix(static_cast<std::size_t>(result.ptr - text.data()));
  return result.ec == std::errc{} ? static_cast<float>(number) : 0;
}

void setScreen(ScriptFrontEnd::Options& options, const std::string& value) {
  std::string_view rest = value;
  options.screenWidth = takeNumber(rest);
  const bool cross = rest.starts_with('x');
  if (cross) rest.remove_prefix(1);
  options.screenHeight = takeNumber(rest);
  if (!cross || !rest.empty() || options.screenWidth <= 0 || options.screenHeight <= 0) {
    throw workbench::BadOption{"--screen takes WxH, not '" + value + "'"};
  }
}

std::string clockOf(const std::string& value) {
  const std::string_view form = "0000-00-00 00:00:00";
  bool formed = value.size() == form.size();
  for (std::size_t i = 0; formed && i < form.size(); ++i) {
    formed = form[i] == '0' ? std::isdigit(static_cast<unsigned char>(value[i])) != 0
                            : value[i] == form[i];
  }
  if (!formed) {
    throw workbench::BadOption{"--clock takes \"YYYY-MM-DD HH:MM:SS\", not '" + value + "'"};
  }
  return value;
}

}  // namespace

Options parseOptions(const std::vector<std::string>& arguments) {
  Options options;
  bool scriptGiven = false;
  const auto takeRest = [&](const std::string& argument) {
    if (argument == "--help") {
      options.help = true;
    } else if (argument == "--version") {
      options.version = true;
    } else if (argument.starts_with("--") || scriptGiven) {
      workbench::refuseArgument(argument);
    } else {
      options.script = argument;
      scriptGiven = true;
    }
  };
  workbench::readArguments(
      arguments,
      {{"--drive", [&](const std::string& value) { options.drives.push_back(driveOf(value)); }},
       {"--program", [&](const std::string& value) { options.program = value; }},
       {"--cwd", [&](const std::string& value) { options.currentFolder = value; }},
       {"--settings", [&](const std::string& value) { options.settings = value; }},
       {"--screen", [&](const std::string& value) { setScreen(options.frontEnd, value); }},
       {"--clock", [&](const std::string& value) { options.frontEnd.clock = clockOf(value); }},
       {"--history", [&](const std::string& value) { options.history = value; }},
       {"--open", [&](const std::string& value) { options.open = value; }}},
      takeRest);
  return options;
}

}  // namespace norvik::headless
