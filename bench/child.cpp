#include "child.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>

extern char** environ;  // NOLINT(readability-redundant-declaration): POSIX wants it declared here

namespace norvik::bench {

Cost runCommand(const std::vector<std::string>& command, const std::string& output) {
  std::vector<std::string> copies = command;
  std::vector<char*> arguments;
  for (std::string& argument : copies) arguments.push_back(argument.data());
  arguments.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  constexpr mode_t kMode = 0644;
  ::posix_spawn_file_actions_addopen(&actions, 1, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                     kMode);
  const auto began = std::chrono::steady_clock::now();
  pid_t child = 0;
  const int failed =
      ::posix_spawnp(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
  ::posix_spawn_file_actions_destroy(&actions);
  if (failed != 0) throw std::runtime_error("cannot run " + command[0]);
  int status = 0;
  rusage usage{};
  while (::wait4(child, &status, 0, &usage) < 0 && errno == EINTR) {
  }
  const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - began;
  if (status != 0) throw std::runtime_error(command[0] + " failed");
  constexpr double kKilobytesInMegabyte = 1024;
  return {took.count(), static_cast<double>(usage.ru_maxrss) / kKilobytesInMegabyte};
}

}  // namespace norvik::bench
