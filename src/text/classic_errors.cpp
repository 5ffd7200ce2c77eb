#include "text/classic_errors.h"

#include <cerrno>

namespace norvik::text {

ErrorNumber classicNumber(int hostError) {
  switch (hostError) {
    case ENOENT:
      return ErrorNumber::fileNotFound;
    case ENOTDIR:
      return ErrorNumber::pathNotFound;
    case EEXIST:
      return ErrorNumber::fileAlreadyExists;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return ErrorNumber::diskFull;
    case EIO:
      return ErrorNumber::deviceError;
    case ENOMEM:
      return ErrorNumber::outOfMemory;
    case EBUSY:
    case ETXTBSY:
      return ErrorNumber::permissionDenied;
    default:
      return ErrorNumber::pathFileAccess;
  }
}

void raise(int hostError) {
  if (hostError != 0) throw FileError(classicNumber(hostError));
}

void raise(int hostError, std::string_view path, FileAct act) {
  if (hostError != 0) throw FileError(classicNumber(hostError), path, act);
}

}  // namespace norvik::text
