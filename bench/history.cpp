// What it costs to keep the old version of a figure that is replaced.
// Usage: norvik-history FOLDER FILE [RUNS]     FILE lies in FOLDER and stays as it is

#include "text/history.h"

#include "host.h"
#include "text/safe_replace.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using norvik::text::History;
using norvik::text::HostOps;

double median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

double millisecondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

/// The step between the keeping and the replacement takes no time: what is left is the keeping.
double keeping(HostOps& host, const std::string& folder, const std::string& file, int others,
               norvik::text::Loss what) {
  const std::string store = folder + "/history-of-the-bench";
  History history(host, store);
  for (int i = 0; i < others; ++i) {
    const std::string other = folder + "/other-" + std::to_string(i);
    if (norvik::text::makeFile(host, other, "an older file") != 0) {
      throw std::runtime_error("cannot write " + other);
    }
    History::Old old{"C:\\other", other, {}};
    static_cast<void>(host.status(other, old.status));
    history.losing(old, [] {});
    std::filesystem::remove(other);
  }
  History::Old old{"C:\\figure.cr2", folder + "/" + file, {}, what};
  static_cast<void>(host.status(old.name, old.status));
  const double time = millisecondsOf([&] { history.losing(old, [] {}); });
  if (history.entries().size() != static_cast<std::size_t>(others) + 1) {
    throw std::runtime_error("nothing was kept");
  }
  std::filesystem::remove_all(store);
  return time;
}

void printRow(const char* name, HostOps& host, const std::string& folder, const std::string& file,
              int runs, int others, norvik::text::Loss what) {
  std::vector<double> times;
  for (int i = 0; i < runs; ++i) times.push_back(keeping(host, folder, file, others, what));
  std::printf("| %-44s | %8.3f |\n", name, median(times));
  std::fflush(stdout);
}

int run(const std::string& folder, const std::string& file, int runs) {
  using norvik::text::Loss;
  const auto real = norvik::text::makePosixHost();
  norvik::bench::UnflushedHost unflushed;
  const auto bytes = std::filesystem::file_size(folder + "/" + file);
  std::printf("Keeping a file of %ju bytes, medians of %d runs:\n\n", std::uintmax_t{bytes}, runs);
  std::printf("| %-44s | %8s |\n|---|--:|\n", "", "ms");
  printRow("replaced, the first entry", *real, folder, file, runs, 0, Loss::replaced);
  printRow("replaced, 199 entries there", *real, folder, file, runs, 199, Loss::replaced);
  printRow("replaced, 199 entries there, not flushed", unflushed, folder, file, runs, 199,
           Loss::replaced);
  printRow("changed in place: a copy", *real, folder, file, std::min(runs, 3), 0, Loss::changed);
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  const std::vector<std::string> words(arguments + 1, arguments + count);
  try {
    if (words.size() < 2 || words.size() > 3) {
      std::fprintf(stderr, "usage: norvik-history FOLDER FILE [RUNS]\n");
      return 2;
    }
    return run(words[0], words[1], words.size() > 2 ? std::max(1, std::atoi(words[2].c_str())) : 9);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "norvik-history: %s\n", error.what());
    return 1;
  }
}
