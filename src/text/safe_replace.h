#pragma once
// How a file takes another's place on the host without a moment in which neither is whole: written
// and flushed beside it, given its mode and owner, renamed over it, the folder flushed.
//
// Names are host paths. All functions throw FileError; the old file then stands as it was.

#include "text/host.h"

#include <memory>
#include <string>
#include <string_view>

namespace norvik::text {

/// The name that a chain of symbolic links ends at, whether a file is there or not.
std::string followLinks(HostOps& host, std::string name);

/// Gives a file a mode and, where the system allows it, an owner.
void keepIdentity(HostOps& host, const std::string& name, const HostStatus& model);

/// Makes a new file and has it on the medium; on an error none is left. EEXIST if the name is
/// taken.
int makeFile(HostOps& host, const std::string& name, std::string_view content);

/// The same with the bytes of another file, which are shared where the file system can.
int copyFile(HostOps& host, const std::string& from, const std::string& to);

/// Copies a file, with its mode and owner, to a new name in the folder of `target`, and returns it.
std::string copyBeside(HostOps& host, const std::string& source, const std::string& target);

/// Gives a file a further name, or makes a copy under it where a file can have but one. Throws
/// fileAlreadyExists (58) if the name is taken.
void addName(HostOps& host, const std::string& file, const std::string& name);

/// Moves a file to a name, in one step on the same file system, by way of a copy in the target's
/// folder on another. `over` says whether the target may exist; if it may not and does, the error
/// is fileAlreadyExists (58).
void moveFile(HostOps& host, const std::string& from, const std::string& to, bool over);

/// Replaces the content of a file, or makes it.
void replaceContent(HostOps& host, const std::string& name, std::string_view content);

}  // namespace norvik::text
