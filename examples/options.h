#pragma once

#include "text_file.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace norvik::examples {

// What is wrong with a command line. what() is the whole message.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class Job { help, sample, cr2, obj };

struct Options {
  Job job = Job::help;
  std::filesystem::path target;
  std::optional<std::int64_t> morphs;
  std::optional<std::int64_t> parts;
  std::optional<std::int64_t> vertices;
  std::optional<std::int64_t> faces;
  std::optional<std::int64_t> megabytes;
  std::optional<std::int64_t> seed;
  bool isSource = false;
  std::string_view lineEnd = crLf;
};

extern const std::string_view helpText;

// Reads the arguments behind the program's name. Throws UsageError.
Options parseOptions(std::span<char* const> arguments);

}  // namespace norvik::examples
