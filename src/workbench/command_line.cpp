#include "workbench/command_line.h"

#include "text/file_error.h"

#include <cctype>
#include <filesystem>

namespace norvik::workbench {

Drive driveOf(const std::string& value) {
  const bool formed = value.size() > 2 && value[1] == '=' &&
                      std::isalpha(static_cast<unsigned char>(value[0])) != 0;
  if (!formed) throw BadOption{"--drive takes L=FOLDER, not '" + value + "'"};
  std::error_code error;
  const auto folder = std::filesystem::absolute(value.substr(2), error);
  if (error || !std::filesystem::is_directory(folder, error)) {
    throw BadOption{"--drive: no folder '" + value.substr(2) + "'"};
  }
  return {value[0], folder.string()};
}

void orBadOption(const std::string& option, const std::function<void()>& step) {
  try {
    step();
  } catch (const text::FileError& error) {
    throw BadOption{option + ": " + std::string{error.text()}};
  }
}

void readArguments(const std::vector<std::string>& arguments, const ValuedOptions& valued,
                   const ArgumentHandler& other) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const auto equals = argument.starts_with("--") ? argument.find('=') : std::string::npos;
    const auto option = valued.find(argument.substr(0, equals));
    if (option == valued.end()) {
      other(argument);
    } else if (equals != std::string::npos) {
      option->second(argument.substr(equals + 1));
    } else if (i + 1 < arguments.size()) {
      option->second(arguments[++i]);
    } else {
      throw BadOption{argument + " needs a value"};
    }
  }
}

void refuseArgument(const std::string& argument) {
  throw BadOption{"no option '" + argument + "'"};
}

}  // namespace norvik::workbench
