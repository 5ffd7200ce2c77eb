#pragma once
// What the command lines of the two programs have in common.

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace norvik::workbench {

/// A command line that cannot be understood or used, in words for the user.
struct BadOption {
  std::string why;
};

/// A drive's letter and the absolute host folder that stands for it.
using Drive = std::pair<char, std::string>;

/// The drive of a value such as "C=/home/me/poser", with ".." and links as they are spelled; a
/// relative folder is looked for below the host's current one. Throws BadOption for a value of
/// another form and for a folder that is not there.
Drive driveOf(const std::string& value);

/// Runs a step of the start that may fail for what an option says: a FileError becomes a BadOption
/// with the option in front.
void orBadOption(const std::string& option, const std::function<void()>& step);

using ArgumentHandler = std::function<void(const std::string&)>;
/// Options by name, each with what takes its value.
using ValuedOptions = std::map<std::string, ArgumentHandler, std::less<>>;

/// Goes through the arguments behind the program's name. A valued option has its value behind a "="
/// or as the next argument; everything else goes to `other` as it stands. Throws BadOption when the
/// last argument lacks its value.
void readArguments(const std::vector<std::string>& arguments, const ValuedOptions& valued,
                   const ArgumentHandler& other);

/// Throws the BadOption for an argument that no one knows.
[[noreturn]] void refuseArgument(const std::string& argument);

}  // namespace norvik::workbench
