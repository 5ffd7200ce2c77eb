#pragma once
// A walk over the records of a mesh.

#include "front/session.h"
#include "text/byte_reader.h"

#include <string_view>

namespace norvik::obj {

/// A record, or its end, without the blanks that fill it.
inline std::string_view withoutFilling(std::string_view record) {
  return record.substr(0, record.find_last_not_of(' ') + 1);
}

/// Reads a record file of the program folder from its first record on.
///
///     for (RecordWalk walk(session, kVertexFile, kVertexRecordLength); walk.next();) {
///       use(walk.record());
///     }
class RecordWalk {
 public:
  /// Throws what Disk::openForReading throws.
  RecordWalk(front::Session& session, std::string_view name, std::size_t length)
      : bytes_(session.disk, session.opening.inProgramFolder(name)), length_(length) {}

  /// Whether there is a further record; one that the file ends in the middle of counts.
  bool next() {
    record_ = bytes_.read(length_);
    return !record_.empty();
  }
  /// The record with its filling, good until next().
  std::string_view record() const { return record_; }

 private:
  text::ByteReader bytes_;
  std::size_t length_;
  std::string_view record_;
};

}  // namespace norvik::obj
