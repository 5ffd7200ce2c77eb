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
};

/// What the operator reads behind "Run-time error 'N': ".
std::string_view errorText(ErrorNumber number);

/// An error of the file layer. A tool catches it exactly where its behaviour catches or ignores
/// errors; anywhere else it ends the handler and the operator sees the run-time error box.
class FileError {
 public:
  explicit FileError(ErrorNumber number) : number_(number) {}
  ErrorNumber number() const { return number_; }
  std::string_view text() const { return errorText(number_); }

 private:
  ErrorNumber number_;
};

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
