#include "support/tool_faults.h"

#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::tests {

namespace {

class FaultRun {
 public:
  FaultRun(const ToolUnderFaults& tool, const HostFault& fault) : tool_(tool), fault_(fault) {
    for (const auto& [path, bytes] : tool.files) drive_.write(path, bytes);
    drive_.makeFolder("Norvik");
    drive_.makeFolder("Poser/Runtime/Geometries/doll");
    if (fault.separateFolders) host_.separateFolders();
  }

  /// Whether the run came to its N-th operation.
  bool failAt(std::uint64_t n) {
    ScriptedWorkbench workbench(host_, drive_.path());
    workbench.run("setting Startup PLoc C:\\Poser\\\nstart\n" + tool_.opening);
    EXPECT_EQ(workbench.outcome().exitCode(), 0);
    workbench.takeEvents();
    host_.setFault(fault_.fault, n, fault_.error);
    workbench.run(tool_.running);
    const bool met = host_.faultMet();
    host_.clearFault();
    check(workbench.takeEvents(), met, n);
    return met;
  }

 private:
  void check(const std::string& events, bool met, std::uint64_t n) {
    const bool existed = tool_.files.contains(tool_.target);
    const bool exists = drive_.exists(tool_.target);
    const std::string now = exists ? drive_.read(tool_.target) : std::string{};
    const bool isNew = exists && now == tool_.result;
    const bool isOld = exists == existed && (!exists || now == tool_.files.at(tool_.target));
    const bool mayGo = !exists && tool_.deleted.contains(tool_.target);
    EXPECT_TRUE(isNew || isOld || mayGo) << "at " << n << ": " << now.size() << " bytes\n"
                                         << events;
    EXPECT_TRUE(isNew || met) << "at " << n << "\n" << events;
    const bool told = events.find("runtime-error") != std::string::npos ||
                      events.find("\"Error!\"") != std::string::npos;
    EXPECT_TRUE(isNew || told) << "at " << n << ": nothing was saved and nothing said\n" << events;
    checkOthers(n);
  }

  void checkOthers(std::uint64_t n) {
    for (const auto& [path, bytes] : tool_.files) {
      const bool scratch = path.starts_with("Norvik/") && !tool_.deleted.contains(path);
      if (path == tool_.target || scratch) continue;
      const bool mayGo = tool_.deleted.contains(path) && !drive_.exists(path);
      EXPECT_TRUE(mayGo || drive_.read(path) == bytes) << "at " << n << ": " << path;
    }
    const bool died = fault_.fault == Fault::killed || fault_.fault == Fault::powerLost;
    if (died) return;
    for (const std::string& file : drive_.files()) {
      const bool known =
          tool_.files.contains(file) || file == tool_.target || file.starts_with("Norvik/");
      EXPECT_TRUE(known) << "at " << n << ": " << file << " was left behind";
    }
  }

  const ToolUnderFaults& tool_;
  const HostFault& fault_;
  std::unique_ptr<text::HostOps> real_ = text::makePosixHost();
  FaultyHost host_{*real_};
  TemporaryFolder drive_;
};

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
  return faults;
}

void expectOldOrNew(const ToolUnderFaults& tool, const HostFault& fault) {
  constexpr std::uint64_t kMost = 2000;
  std::uint64_t n = 1;
  while (n < kMost && FaultRun(tool, fault).failAt(n) && !testing::Test::HasFailure()) ++n;
  EXPECT_LT(n, kMost);
  EXPECT_GT(n, 1U) << "the fault was never met";
}

}  // namespace norvik::tests
