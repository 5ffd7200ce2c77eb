// norvik-run: the workbench without a window.

#include "front/opening.h"
#include "headless/runner.h"

#include <csignal>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

using norvik::headless::Options;
using norvik::workbench::BadOption;

int run(const Options& options) {
  const auto host = norvik::text::makePosixHost();
  if (options.script == "-") return runScript(options, *host, std::cin, std::cout);
  std::ifstream script(options.script, std::ios::binary);
  if (!script || std::filesystem::is_directory(options.script)) {
    throw BadOption{"cannot read the script '" + options.script + "'"};
  }
  return runScript(options, *host, script, std::cout);
}

}  // namespace

int main(int count, char** arguments) {
  std::ios::sync_with_stdio(false);
  // A file beyond the user's limit and a reader who has gone away are errors of a write like
  // others.
  std::signal(SIGXFSZ, SIG_IGN);
  std::signal(SIGPIPE, SIG_IGN);
  try {
    const Options options = norvik::headless::parseOptions({arguments + 1, arguments + count});
    if (options.help) {
      std::cout << norvik::headless::kHelp;
      return norvik::headless::kDone;
    }
    if (options.version) {
      std::cout << "norvik-run " << norvik::front::kVersion << '\n';
      return norvik::headless::kDone;
    }
    return run(options);
  } catch (const BadOption& bad) {
    std::cerr << "norvik-run: " << bad.why << '\n';
    return norvik::headless::kRefused;
  } catch (const std::exception& error) {
    std::cerr << "norvik-run: " << error.what() << '\n';
    return norvik::headless::kRunnerFailed;
  }
}
