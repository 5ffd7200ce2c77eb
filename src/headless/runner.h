#pragma once
// A run of norvik-run.

#include "headless/options.h"
#include "text/host.h"

#include <istream>
#include <ostream>

namespace norvik::headless {

/// Runs a script against a workbench of its own and prints its events. Throws workbench::BadOption
/// for folders that the options name and that cannot be used.
ExitCode runScript(const Options& options, text::HostOps& host, std::istream& script,
                   std::ostream& out);

}  // namespace norvik::headless
