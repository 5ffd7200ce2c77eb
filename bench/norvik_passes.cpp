// Times every pass against plain tools and prints a table.
// Usage: norvik-passes FOLDER [RUNS [PART OF A NAME]]
//        norvik-passes --pass NAME FOLDER FILE     runs one pass, for the timing
// FOLDER holds the figures that passes.h names, and Runtime/Geometries with the figure's own
// folder.

#include "measure.h"
#include "text/file_error.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <optional>

namespace {

using namespace norvik::bench;

/// The most that a pass may take, in times of cp, if it is held against it.
std::optional<double> cpLimit(Kind kind) {
  switch (kind) {
    case Kind::read:
      return 1;
    case Kind::rewrite:
    case Kind::substitution:
      return 1.5;
    case Kind::readAndRewrite:
      return 2.5;
    case Kind::copy:
      return 3;
    case Kind::open:
      return 8;
    case Kind::arithmetic:
      return std::nullopt;
  }
  return std::nullopt;
}

constexpr double kMemoryLimit = 32;

/// The tool beside a pass, and the most that the pass may take in times of it, if there is a limit.
struct Tool {
  const char* name;
  std::optional<double> limit;
};

Tool toolBeside(Kind kind) {
  switch (kind) {
    case Kind::substitution:
      return {"sed", 0.25};
    case Kind::arithmetic:
      return {"awk", 1};
    default:
      return {"wc", std::nullopt};
  }
}

void printRow(const Pass& pass, const Result& result) {
  const std::optional<double> limit = cpLimit(pass.kind);
  const double times = result.passTime / result.cpTime;
  const Tool tool = toolBeside(pass.kind);
  const double toolTimes = result.toolTime == 0 ? 0 : result.passTime / result.toolTime;
  const bool met = times <= limit.value_or(times) && result.memory < kMemoryLimit &&
                   toolTimes <= tool.limit.value_or(toolTimes);
  std::printf("| %-32s | %7.1f | %7.1f | %5.2f |", pass.name.c_str(), result.passTime,
              result.cpTime, times);
  if (limit) {
    std::printf(" %5.1f |", *limit);
  } else {
    std::printf(" %5s |", "");
  }
  if (result.toolTime == 0) {
    std::printf(" %12s |", "");
  } else {
    std::printf(" %5.2f x %-4s |", toolTimes, tool.name);
  }
  std::printf(" %6.1f | %-6s |\n", result.memory, met ? "" : "MISSED");
  std::fflush(stdout);
}

int printTable(const Setup& setup, const std::string& wanted) {
  std::printf("| %-32s | %7s | %7s | %5s | %5s | %-12s | %6s | %-6s |\n", "pass", "ms", "cp ms",
              "x cp", "limit", "other tool", "MB", "");
  std::printf("|---|--:|--:|--:|--:|---|--:|---|\n");
  for (const Pass& pass : passes()) {
    if (pass.name.find(wanted) == std::string::npos) continue;
    printRow(pass, measure(pass, setup));
  }
  return 0;
}

int runPass(const std::string& name, const std::string& folder, const std::string& file) {
  for (const Pass& pass : passes()) {
    if (pass.name != name) continue;
    pass.run(folder, file);
    return 0;
  }
  std::fprintf(stderr, "norvik-passes: no pass '%s'\n", name.c_str());
  return 2;
}

}  // namespace

int main(int count, char** arguments) {
  const std::vector<std::string> words(arguments + 1, arguments + count);
  try {
    if (words.size() == 4 && words[0] == "--pass") return runPass(words[1], words[2], words[3]);
    if (words.empty() || words.size() > 3) {
      std::fprintf(stderr, "usage: norvik-passes FOLDER [RUNS [PART OF A NAME]]\n");
      return 2;
    }
    Setup setup{"/proc/self/exe", words[0]};
    if (words.size() > 1) setup.runs = std::max(1, std::atoi(words[1].c_str()));
    return printTable(setup, words.size() > 2 ? words[2] : "");
  } catch (const std::exception& error) {
    std::fprintf(stderr, "norvik-passes: %s\n", error.what());
    return 1;
  } catch (const norvik::text::FileError& error) {
    std::fprintf(stderr, "norvik-passes: %.*s\n", static_cast<int>(error.text().size()),
                 error.text().data());
    return 1;
  }
}
