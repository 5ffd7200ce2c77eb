#pragma once
// A disk of one drive over a new folder.

#include "support/temporary_folder.h"
#include "text/disk.h"
#include "text/host.h"

#include <memory>

namespace norvik::tests {

/// Drive C on a folder of the host that goes away with it; the current folder is C:\.
struct Drive {
  Drive() { disk.mount('C', folder.path()); }

  TemporaryFolder folder;
  std::unique_ptr<text::HostOps> host = text::makePosixHost();
  text::Disk disk{*host};
};

}  // namespace norvik::tests
