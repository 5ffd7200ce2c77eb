#include "support/tool_faults.h"

#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

namespace norvik::tests {

namespace {

bool isDeath(Fault fault) {
  return fault == Fault::killed || fault == Fault::powerLost;
}

bool holds(const std::string& text, const std::string& words) {
  return text.find(words) != std::string::npos;
}

/// Whether each byte is the old or the new one.
bool isMixture(const std::string& bytes, const std::string& before, const std::string& after) {
  if (bytes.size() != before.size() || bytes.size() != after.size()) return false;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] != before[i] && bytes[i] != after[i]) return false;
  }
  return true;
}

/// The kept old versions, as the next start finds them.
class Store {
 public:
  /// Whether it has the file's old version, whole.
  bool has(const std::string& path, const std::string& bytes) const {
    const auto real = text::makePosixHost();
    text::History history(*real, folder_.path());
    std::string name = "C:\\" + path;
    std::replace(name.begin(), name.end(), '/', '\\');
    for (const auto& entry : history.entries()) {
      const std::string file = history.fileOf(entry).substr(folder_.path().size() + 1);
      if (entry.path == name && folder_.read(file) == bytes) return true;
    }
    return false;
  }

  std::string folder() const { return folder_.path(); }

 private:
  TemporaryFolder folder_;
};

/// One run of a tool on a drive of its own.
class FaultRun {
 public:
  FaultRun(const ToolUnderFaults& tool, const HostFault& fault) : tool_(tool), fault_(fault) {
    for (const auto& [path, bytes] : tool.files) drive_.write(path, bytes);
    drive_.makeFolder("Norvik");
    drive_.makeFolder("Poser/Runtime/Geometries/doll");
    if (fault.separateFolders) host_.separateFolders();
  }

  /// Runs the tool. Whether the run came to its N-th operation.
  bool run(Fault fault, std::uint64_t n) {
    ScriptedWorkbench workbench(host_, drive_.path(), fault_.history ? &history_ : nullptr);
    workbench.run("setting Startup PLoc C:\\Poser\\\nstart\n" + tool_.opening);
    const std::string opening = workbench.takeEvents();
    EXPECT_EQ(workbench.outcome().exitCode(), 0) << opening;
    host_.setFault(fault, n, fault_.error);
    workbench.run(tool_.running);
    const bool met = host_.faultMet();
    changes_ = host_.changes();
    host_.clearFault();
    events_ = workbench.takeEvents();
    return met;
  }

  const std::vector<std::uint64_t>& changes() const { return changes_; }
  std::string target() const {
    const bool exists = !tool_.target.empty() && drive_.exists(tool_.target);
    return exists ? drive_.read(tool_.target) : std::string{};
  }

  void check(bool met, std::uint64_t n) const {
    SCOPED_TRACE("at " + std::to_string(n) + "\n" + events_);
    const bool done = tool_.target.empty() || checkTarget(met);
    checkOthers(done);
  }

 private:
  /// Whether the target is new.
  bool checkTarget(bool met) const {
    const bool existed = tool_.files.contains(tool_.target);
    const bool exists = drive_.exists(tool_.target);
    const std::string now = target();
    const std::string before = existed ? tool_.files.at(tool_.target) : std::string{};
    const bool isNew = exists && now == tool_.result;
    const bool isOld = exists == existed && now == before;
    const bool isGone = !exists && tool_.deleted.contains(tool_.target);
    const bool isBoth = tool_.inPlace && isMixture(now, before, tool_.result);
    EXPECT_TRUE(isNew || isOld || isGone || isBoth) << now.size() << " bytes";
    EXPECT_TRUE(isNew || met) << "nothing failed";
    const bool told = holds(events_, "runtime-error") || holds(events_, "\"Error!\"");
    const bool rescued = !tool_.rescued.empty() && drive_.exists(tool_.rescued) &&
                         drive_.read(tool_.rescued) == tool_.result;
    const bool heard = told || rescued || tool_.silent || isDeath(fault_.fault);
    EXPECT_TRUE(isNew || heard) << "nothing was saved and nothing said";
    // What was done in place is undone by a loss of power alone.
    const bool mayBeLost = tool_.inPlace && fault_.fault == Fault::powerLost;
    const bool saysDone = !tool_.done.empty() && holds(events_, tool_.done);
    EXPECT_TRUE(isNew || !saysDone || mayBeLost) << "said to be done";
    if (existed && now != before) checkKept(tool_.target);
    return isNew;
  }

  void checkOthers(bool done) const {
    for (const auto& [path, bytes] : tool_.files) {
      const bool scratch = path.starts_with("Norvik/") && !tool_.deleted.contains(path);
      if (path == tool_.target || scratch) continue;
      const bool gone = tool_.deleted.contains(path) && !drive_.exists(path);
      EXPECT_TRUE(gone || drive_.read(path) == bytes) << path;
      if (gone) checkKept(path);
    }
    if (isDeath(fault_.fault)) return;
    for (const std::string& file : drive_.files()) {
      const bool known = tool_.files.contains(file) || file == tool_.target ||
                         file.starts_with("Norvik/") || tool_.scratch.contains(file);
      EXPECT_TRUE(known) << file << " was left behind";
      EXPECT_TRUE(done || file != tool_.putAway) << file << " was left behind";
    }
  }

  /// A tool goes on where the keeping of an old version fails, but does nothing in front of it.
  void checkKept(const std::string& path) const {
    if (!fault_.history || !isDeath(fault_.fault)) return;
    EXPECT_TRUE(store_.has(path, tool_.files.at(path))) << path << " was not kept";
  }

  const ToolUnderFaults& tool_;
  const HostFault& fault_;
  std::unique_ptr<text::HostOps> real_ = text::makePosixHost();
  FaultyHost host_{*real_};
  TemporaryFolder drive_;
  Store store_;
  text::History history_{host_, store_.folder()};
  std::vector<std::uint64_t> changes_;
  std::string events_;
};

/// The operations at which a death makes a difference: those that change something, and the first
/// behind the last of them. Between two of them a process leaves the same.
std::vector<std::uint64_t> deaths(const FaultRun& whole) {
  std::vector<std::uint64_t> at = whole.changes();
  at.push_back(at.empty() ? 1 : at.back() + 1);
  return at;
}

void failAtEach(const ToolUnderFaults& tool, const HostFault& fault) {
  constexpr std::uint64_t kMost = 2000;
  bool met = true;
  std::uint64_t n = 0;
  while (met && n < kMost && !testing::Test::HasFailure()) {
    FaultRun run(tool, fault);
    met = run.run(fault.fault, ++n);
    run.check(met, n);
  }
  EXPECT_LT(n, kMost);
  EXPECT_GT(n, 1U) << "the fault was never met";
}

void dieAtEach(const ToolUnderFaults& tool, const HostFault& fault,
               const std::vector<std::uint64_t>& at) {
  EXPECT_GT(at.size(), 1U) << "the tool changes nothing";
  for (const std::uint64_t n : at) {
    FaultRun run(tool, fault);
    run.check(run.run(fault.fault, n), n);
    if (testing::Test::HasFailure()) return;
  }
}

}  // namespace

std::vector<HostFault> allHostFaults() {
  std::vector<HostFault> faults;
  for (const bool separate : {false, true}) {
    const std::string where = separate ? "AcrossFolders" : "";
    faults.push_back({"Broken" + where, Fault::error, EIO, separate});
    faults.push_back({"Denied" + where, Fault::error, EACCES, separate});
    faults.push_back({"FullDisk" + where, Fault::fullDisk, 0, separate});
    faults.push_back({"Killed" + where, Fault::killed, 0, separate});
    faults.push_back({"PowerLost" + where, Fault::powerLost, 0, separate});
  }
  faults.push_back({"KilledWithHistory", Fault::killed, 0, false, true});
  return faults;
}

void expectOldOrNew(const ToolUnderFaults& given, const HostFault& fault) {
  ToolUnderFaults tool = given;
  FaultRun whole(given, fault);
  EXPECT_FALSE(whole.run(Fault::none, 0));
  if (tool.result.empty()) tool.result = whole.target();
  const auto old = tool.files.find(tool.target);
  EXPECT_TRUE(tool.target.empty() || old == tool.files.end() || old->second != tool.result)
      << "the tool has changed nothing";
  if (isDeath(fault.fault)) {
    dieAtEach(tool, fault, deaths(whole));
  } else {
    failAtEach(tool, fault);
  }
}

}  // namespace norvik::tests
