#pragma once
// A workbench on the bench: tests play script lines to it, look at its controls in between, and may
// bring forms of their own.

#include "headless/commands.h"
#include "headless/runner.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace norvik::headless {

using Lines = std::vector<std::string>;

inline Lines linesOf(const std::string& text) {
  Lines lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

/// A folder of the host that goes when the test ends.
class BenchFolder {
 public:
  BenchFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "norvik-bench-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = std::filesystem::canonical(name);
  }
  ~BenchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  BenchFolder(const BenchFolder&) = delete;
  BenchFolder& operator=(const BenchFolder&) = delete;

  std::string path() const { return path_.string(); }
  std::string operator/(const std::string& name) const { return (path_ / name).string(); }

  void write(const std::string& name, const std::string& bytes) const {
    std::filesystem::create_directories((path_ / name).parent_path());
    std::ofstream(path_ / name, std::ios::binary) << bytes;
  }
  /// A missing file reads as "(missing)".
  std::string read(const std::string& name) const {
    std::ifstream in(path_ / name, std::ios::binary);
    if (!in) return "(missing)";
    return {std::istreambuf_iterator<char>(in), {}};
  }

 private:
  std::filesystem::path path_;
};

/// The folder is drive C, the program folder C:\Norvik, the clock stands.
template <typename Front>
class BenchOf {
 public:
  BenchOf() {
    disk.mount('C', folder.path());
    disk.makeFolders("C:\\Norvik");
    front.setUnload(
        [this](front::Form& form) { session().deliver([&] { session().unload(form); }); });
  }

  /// Plays script lines as a run does; at their end open modal forms are unloaded and waiting tools
  /// stopped. The events that were printed.
  Lines play(const std::string& lines) {
    std::istringstream in(lines);
    Script script(in);
    const auto step = [&] {
      auto line = script.next();
      if (line) commands.run(std::move(*line));
      return line.has_value();
    };
    front.setStep(step);
    while (!front.ended() && step()) {
    }
    front.setStep({});
    return takeEvents();
  }
  /// With Poser's folder known.
  Lines start() { return play("setting Startup PLoc C:\\Poser\\\nstart\n"); }

  Lines takeEvents() {
    const Lines events = linesOf(out.str());
    out.str({});
    return events;
  }

  front::Session& session() { return workbench.session(); }
  front::Opening& opening() { return session().opening; }

  BenchFolder folder;
  std::unique_ptr<text::HostOps> host = text::makePosixHost();
  text::Disk disk{*host};
  front::Settings settings;
  std::ostringstream out;
  Transcript transcript{out};
  Outcome outcome;
  Front front{transcript, outcome,
              ScriptFrontEnd::Options{1600, 1160, std::string{"2002-03-04 05:06:07"}}};
  workbench::Workbench workbench{front, disk, settings, "C:\\Norvik", ""};
  Commands commands{workbench, front, transcript, outcome, *host};
};

using ScriptBench = BenchOf<ScriptFrontEnd>;

/// What a run of the runner came to.
struct RunResult {
  ExitCode code;
  Lines events;
};

/// Runs a script as norvik-run does.
inline RunResult runWith(const Options& options, const std::string& script) {
  const auto host = text::makePosixHost();
  std::istringstream in(script);
  std::ostringstream out;
  const ExitCode code = runScript(options, *host, in, out);
  return {code, linesOf(out.str())};
}

}  // namespace norvik::headless
