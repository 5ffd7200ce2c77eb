#include "options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

namespace norvik::examples {

const std::string_view helpText =
    R"(Makes Tilda, a small free Poser figure, and figures like her of any size.

  make_figure --sample FOLDER     the whole sample set, laid out as a Poser folder
  make_figure --cr2 FILE ...      one figure file
      --morphs N                  morphs, full-body morphs included (default 14)
      --parts N                   body parts besides BODY (default 21)
      --vertices N                vertices a part, about (default 32; with --size 400)
      --size MB                   further morphs in every part, until the file has about
                                  that many million bytes
      --source                    the second figure: the same mesh with other morphs
      --seed N                    other numbers in the morphs made by rule (default 1)
      --line-ends crlf|lf|cr      (default crlf)
  make_figure --obj FILE ...      the mesh of a figure of that --parts and --vertices
      --faces N                   faces in all, about, in place of --vertices
      --parts N, --line-ends ...  as above
  make_figure --help

The same options make the same bytes everywhere. A file is complete or not there: it takes
its name when its last byte is written. Exit codes: 0 made, 1 a file cannot be written,
2 the command line is wrong.
)";

namespace {

struct NumberOption {
  std::string_view name;
  std::optional<std::int64_t> Options::*value;
  std::int64_t low;
  std::int64_t high;
  bool isForCr2;
  bool isForObj;
};

constexpr std::array<NumberOption, 6> numberOptions{{
    {"--morphs", &Options::morphs, 0, 1'000'000, true, false},
    {"--parts", &Options::parts, 1, 1'000, true, true},
    {"--vertices", &Options::vertices, 8, 1'000'000, true, true},
    {"--faces", &Options::faces, 100, 100'000'000, false, true},
    {"--size", &Options::megabytes, 1, 100'000, true, false},
    {"--seed", &Options::seed, 0, 1'000'000'000, true, false},
}};

std::string quoted(std::string_view text) {
  return "'" + std::string(text) + "'";
}

std::int64_t parseNumber(const NumberOption& option, std::string_view text) {
  std::int64_t number = 0;
  const std::from_chars_result end =
      std::from_chars(text.data(), text.data() + text.size(), number);
  if (end.ec != std::errc() || end.ptr != text.data() + text.size() || number < option.low ||
      number > option.high) {
    throw UsageError(std::string(option.name) + " takes a whole number from " +
                     std::to_string(option.low) + " to " + std::to_string(option.high) + ", not " +
                     quoted(text));
  }
  return number;
}

std::string_view parseLineEnd(std::string_view text) {
  if (text == "crlf") return crLf;
  if (text == "lf") return "\n";
  if (text == "cr") return "\r";
  throw UsageError("--line-ends takes crlf, lf or cr, not " + quoted(text));
}

class Parser {
 public:
  explicit Parser(std::span<char* const> arguments) : arguments_(arguments) {}

  Options parse() {
    if (arguments_.empty()) throw UsageError("nothing to make");
    while (next_ < arguments_.size()) parseOne(arguments_[next_++]);
    if (wantsHelp_) return {};
    if (options_.job == Job::help) throw UsageError("nothing to make");
    if (options_.target.empty()) throw UsageError(jobName_ + " needs a name that is not empty");
    for (const std::string_view option : given_) checkFits(option);
    if (options_.vertices && options_.faces) {
      throw UsageError("--vertices and --faces exclude each other");
    }
    return options_;
  }

 private:
  void parseOne(std::string_view argument) {
    if (argument == "--help" || argument == "-h") {
      wantsHelp_ = true;
    } else if (argument == "--sample") {
      setJob(Job::sample, argument);
    } else if (argument == "--cr2") {
      setJob(Job::cr2, argument);
    } else if (argument == "--obj") {
      setJob(Job::obj, argument);
    } else if (argument == "--source") {
      options_.isSource = true;
      given_.push_back(argument);
    } else if (argument == "--line-ends") {
      options_.lineEnd = parseLineEnd(valueOf(argument));
      given_.push_back(argument);
    } else {
      parseNumberOption(argument);
    }
  }

  void parseNumberOption(std::string_view argument) {
    const auto* const option = std::find_if(numberOptions.begin(), numberOptions.end(),
                                            [&](const auto& o) { return o.name == argument; });
    if (option == numberOptions.end()) throw UsageError("unknown option " + quoted(argument));
    options_.*option->value = parseNumber(*option, valueOf(argument));
    given_.push_back(argument);
  }

  void setJob(Job job, std::string_view argument) {
    if (options_.job != Job::help) {
      throw UsageError("only one of --sample, --cr2 and --obj can be made at a time");
    }
    options_.job = job;
    jobName_ = argument;
    options_.target = valueOf(argument);
  }

  std::string_view valueOf(std::string_view option) {
    if (next_ == arguments_.size()) throw UsageError(std::string(option) + " needs a value");
    return arguments_[next_++];
  }

  void checkFits(std::string_view argument) const {
    const auto* const option = std::find_if(numberOptions.begin(), numberOptions.end(),
                                            [&](const auto& o) { return o.name == argument; });
    const bool isNumber = option != numberOptions.end();
    const bool isForCr2 = !isNumber || option->isForCr2;
    const bool isForObj = isNumber ? option->isForObj : argument == "--line-ends";
    const bool fits =
        (options_.job == Job::cr2 && isForCr2) || (options_.job == Job::obj && isForObj);
    if (!fits) throw UsageError(std::string(argument) + " does not go with " + jobName_);
  }

  std::span<char* const> arguments_;
  std::size_t next_ = 0;
  Options options_;
  bool wantsHelp_ = false;
  std::string jobName_;
  std::vector<std::string_view> given_;
};

}  // namespace

Options parseOptions(std::span<char* const> arguments) {
  return Parser(arguments).parse();
}

}  // namespace norvik::examples
