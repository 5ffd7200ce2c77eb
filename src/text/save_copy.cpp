#include "text/save_copy.h"

#include "text/classic_errors.h"
#include "text/host.h"
#include "text/line_writer.h"

#include <vector>

namespace norvik::text {

void saveCopy(Disk& disk, std::string_view path, std::string_view target,
              std::string_view scratch) {
  if (disk.isSameFile(path, target)) return;
  const auto in = disk.openForReading(path);
  LineWriter out(disk, scratch);
  std::vector<char> block(kBlockSize);
  for (;;) {
    std::size_t got = 0;
    raise(in->read(block.data(), block.size(), got), path, FileAct::reading);
    if (got == 0) break;
    out.bytes({block.data(), got});
  }
  out.close();
  disk.replace(scratch, target);
}

}  // namespace norvik::text
