#include "text/file_error.h"

namespace norvik::text {

std::string_view errorText(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::overflow:
      return "Overflow";
    case ErrorNumber::outOfMemory:
      return "Out of memory";
    case ErrorNumber::subscriptOutOfRange:
      return "Subscript out of range";
    case ErrorNumber::divisionByZero:
      return "Division by zero";
    case ErrorNumber::fileNotFound:
      return "File not found";
    case ErrorNumber::fileAlreadyOpen:
      return "File already open";
    case ErrorNumber::deviceError:
      return "Device I/O error";
    case ErrorNumber::fileAlreadyExists:
      return "File already exists";
    case ErrorNumber::diskFull:
      return "Disk full";
    case ErrorNumber::inputPastEnd:
      return "Input past end of file";
    case ErrorNumber::permissionDenied:
      return "Permission denied";
    case ErrorNumber::pathFileAccess:
      return "Path/File access error";
    case ErrorNumber::pathNotFound:
      return "Path not found";
    case ErrorNumber::pictureNotMade:
      return "Picture cannot be made";
  }
  return "Application-defined error";
}

}  // namespace norvik::text
