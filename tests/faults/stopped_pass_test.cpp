// Every tool that replaces, makes or deletes files of the operator's, ended by him at each read at
// which he can end it: then none of his files has changed, and nobody speaks of an error.

#include "faults/rows.h"
#include "front/settings.h"
#include "front/stoppable_pass.h"
#include "headless/commands.h"
#include "headless/script.h"
#include "headless/transcript.h"
#include "support/temporary_folder.h"
#include "workbench/workbench.h"

#include <gtest/gtest.h>

#include <ostream>
#include <set>
#include <sstream>

namespace norvik::tests {

static void PrintTo(const FaultRow& row, std::ostream* out) {
  *out << row.name;
}

namespace {

/// Has enough of the pass at its N-th check.
class StoppingFrontEnd : public headless::ScriptFrontEnd, public front::PassStopper {
 public:
  using ScriptFrontEnd::ScriptFrontEnd;

  void stopAt(std::uint64_t n) { left_ = n; }
  bool stopped() const { return stopped_; }

  void beginPass() override { ++passes_; }
  void endPass() override { --passes_; }
  void checkPass() override {
    if (passes_ == 0 || left_ == 0 || --left_ > 0) return;
    stopped_ = true;
    throw front::ToolStopped{};
  }

 private:
  int passes_ = 0;
  std::uint64_t left_ = 0;
  bool stopped_ = false;
};

/// Checks behind each read.
class CheckedFile : public text::HostFile {
 public:
  CheckedFile(StoppingFrontEnd& front, std::unique_ptr<text::HostFile> file)
      : front_(front), file_(std::move(file)) {}

  int read(char* into, std::size_t size, std::size_t& got) override {
    const int error = file_->read(into, size, got);
    front_.checkPass();
    return error;
  }
  int write(std::string_view bytes) override { return file_->write(bytes); }
  int seek(std::uint64_t offset) override { return file_->seek(offset); }
  int size(std::uint64_t& bytes) override { return file_->size(bytes); }
  int sync() override { return 0; }

 private:
  StoppingFrontEnd& front_;
  std::unique_ptr<text::HostFile> file_;
};

class CheckedHost : public text::HostOps {
 public:
  explicit CheckedHost(StoppingFrontEnd& front) : front_(front) {}

  int open(const std::string& name, text::HostOpenMode mode,
           std::unique_ptr<text::HostFile>& file) override {
    const int error = real_->open(name, mode, file);
    if (error == 0) file = std::make_unique<CheckedFile>(front_, std::move(file));
    return error;
  }
  int status(const std::string& name, text::HostStatus& status) override {
    return real_->status(name, status);
  }
  int list(const std::string& folder, std::vector<std::string>& names) override {
    return real_->list(folder, names);
  }
  int readLink(const std::string& name, std::string& target) override {
    return real_->readLink(name, target);
  }
  int renameOver(const std::string& from, const std::string& to) override {
    return real_->renameOver(from, to);
  }
  int renameNew(const std::string& from, const std::string& to) override {
    return real_->renameNew(from, to);
  }
  int remove(const std::string& name) override { return real_->remove(name); }
  int link(const std::string& file, const std::string& name) override {
    return real_->link(file, name);
  }
  int clone(const std::string& file, const std::string& name) override {
    return real_->clone(file, name);
  }
  int makeFolder(const std::string& name) override { return real_->makeFolder(name); }
  int removeFolder(const std::string& name) override { return real_->removeFolder(name); }
  int setMode(const std::string& name, unsigned mode) override {
    return real_->setMode(name, mode);
  }
  int setOwner(const std::string& name, unsigned owner, unsigned group) override {
    return real_->setOwner(name, owner, group);
  }
  int syncFolder(const std::string&) override { return 0; }

 private:
  StoppingFrontEnd& front_;
  std::unique_ptr<text::HostOps> real_ = text::makePosixHost();
};

/// One run of a tool on a drive of its own.
class StoppedRun {
 public:
  explicit StoppedRun(const ToolUnderFaults& tool) : tool_(tool) {
    for (const auto& [path, bytes] : tool.files) drive_.write(path, bytes);
    drive_.makeFolder("Norvik");
    drive_.makeFolder("Poser/Runtime/Geometries/doll");
  }

  /// Whether the tool was ended.
  bool run(std::uint64_t n) {
    text::Disk disk(host_);
    disk.mount('C', drive_.path());
    front::Settings settings;
    workbench::Workbench workbench(front_, disk, settings, "C:\\Norvik", {});
    headless::Commands commands(workbench, front_, transcript_, outcome_, host_);
    front::Session& session = workbench.session();
    front_.setUnload([&](front::Form& form) { session.deliver([&] { session.unload(form); }); });
    play(commands, "setting Startup PLoc C:\\Poser\\\nstart\n" + tool_.opening);
    before_ = files();
    events_.str({});
    front_.stopAt(n);
    play(commands, tool_.running);
    return front_.stopped();
  }

  void checkStopped() const {
    EXPECT_EQ(files(), before_) << events_.str();
    EXPECT_EQ(events_.str().find("runtime-error"), std::string::npos) << events_.str();
    EXPECT_EQ(events_.str().find("\"Error!\""), std::string::npos) << events_.str();
  }

 private:
  void play(headless::Commands& commands, const std::string& text) {
    std::istringstream lines(text);
    headless::Script script(lines);
    const auto step = [&] {
      auto line = script.next();
      if (!line) return false;
      commands.run(std::move(*line));
      return true;
    };
    front_.setStep(step);
    while (!front_.ended() && step()) {
    }
    front_.setStep({});
  }

  /// What the operator has, by name; the tools' own files do not count.
  std::map<std::string, std::string> files() const {
    std::map<std::string, std::string> found;
    for (const std::string& file : drive_.files()) {
      const bool own = file.starts_with("Norvik/") || tool_.scratch.contains(file);
      if (!own) found[file] = drive_.read(file);
    }
    return found;
  }

  const ToolUnderFaults& tool_;
  TemporaryFolder drive_;
  std::ostringstream events_;
  headless::Transcript transcript_{events_};
  headless::Outcome outcome_;
  StoppingFrontEnd front_{transcript_, outcome_, headless::ScriptFrontEnd::Options{}};
  CheckedHost host_{front_};
  std::map<std::string, std::string> before_;
};

class StoppedPass : public testing::TestWithParam<FaultRow> {};

TEST_P(StoppedPass, LeavesAllFilesAsTheyWere) {
  constexpr std::uint64_t kMost = 500;
  // Those that take long with large files.
  static const std::set<std::string> kLong{"MeshMirror", "MeshCut",    "MeshMerge",
                                           "MeshScale",  "MeshRename", "MeshPart"};
  const ToolUnderFaults tool = GetParam().make();
  std::uint64_t n = 0;
  bool stopped = true;
  while (stopped && n < kMost && !HasFailure()) {
    SCOPED_TRACE("at " + std::to_string(n + 1));
    StoppedRun run(tool);
    stopped = run.run(++n);
    if (stopped) run.checkStopped();
  }
  EXPECT_LT(n, kMost);
  EXPECT_TRUE(n > 1 || !kLong.contains(tool.name)) << "it cannot be ended";
}

INSTANTIATE_TEST_SUITE_P(Of, StoppedPass, testing::ValuesIn(allRows()),
                         [](const testing::TestParamInfo<FaultRow>& row) {
                           return row.param.name;
                         });

}  // namespace

}  // namespace norvik::tests
