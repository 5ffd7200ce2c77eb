#pragma once
// The errors of the file layer, by their classic numbers.

#include <string>
#include <string_view>

namespace norvik::text {

/// The classic error numbers that the file layer and the tools raise.
enum class ErrorNumber : int {
  overflow = 6,
  outOfMemory = 7,
  subscriptOutOfRange = 9,
  divisionByZero = 11,
  fileNotFound = 53,
  fileAlreadyOpen = 55,
  deviceError = 57,
  fileAlreadyExists = 58,
  diskFull = 61,
  inputPastEnd = 62,
  permissionDenied = 70,
  pathFileAccess = 75,
  pathNotFound = 76,
  pictureNotMade = 480,
};

/// What the operator reads behind "Run-time error 'N': ".
std::string_view errorText(ErrorNumber number);

/// What was being done with a file when an error came up.
enum class FileAct {
  unknown,
  lookingFor,
  reading,
  writing,
  deleting,
  moving,
  replacing,
  makingFolder,
  changingAttribute,
  changingFolder,
};

/// An error of the file layer. A tool catches it exactly where its behaviour catches or ignores
/// errors; anywhere else it ends the handler and the operator sees the run-time error box, which
/// names the file. The disk, the readers and the writers know what they work on: a tool that raises
/// an error of its own says no path unless a file is to blame.
class FileError {
 public:
  explicit FileError(ErrorNumber number) : number_(number) {}
  FileError(ErrorNumber number, std::string_view path, FileAct act = FileAct::unknown)
      : number_(number), path_(path), act_(act) {}
  ErrorNumber number() const { return number_; }
  std::string_view text() const { return errorText(number_); }
  /// The system path that the error is about; empty if no file is to blame.
  const std::string& path() const { return path_; }
  FileAct act() const { return act_; }

 private:
  ErrorNumber number_;
  std::string path_;
  FileAct act_ = FileAct::unknown;
};

/// Runs `step`; an error that leaves it says what it is about, where it does not yet.
template <typename Step>
decltype(auto) blaming(std::string_view path, FileAct act, Step&& step) {
  try {
    return step();
  } catch (const FileError& error) {
    const bool known = error.act() != FileAct::unknown;
    throw FileError(error.number(), error.path().empty() ? path : std::string_view{error.path()},
                    known ? error.act() : act);
  }
}

/// Runs `step` and ignores an error of the file layer. Whether the step ran to its end.
template <typename Step>
bool ignoringErrors(Step&& step) {
  try {
    step();
    return true;
  } catch (const FileError&) {
    return false;
  }
}

}  // namespace norvik::text
