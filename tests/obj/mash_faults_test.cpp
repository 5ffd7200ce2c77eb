// The condensing of a mesh during which the host fails. Whatever fails, and whenever: the file is
// the old one or the new one, complete, and the backup is the old one.

#include "support/faulty_host.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"
#include "support/tool_faults.h"

#include <gtest/gtest.h>

namespace norvik::tests {

namespace {

constexpr const char* kFile = "work/a.obj";
constexpr const char* kBackup = "work/a.bak";
const std::string kOld = "# a mesh\r\nv 1 2 3\r\nvn 0 0 1\r\n";
const std::string kNew = "# Processed by Norvik by Tallowmere 2001\r\n# a mesh\r\nv 1 2 3\r\n";

class MashFaultsTest : public testing::TestWithParam<HostFault> {
 protected:
  /// Condenses with the fault at the N-th operation. Whether it came to that.
  static bool mashWithFaultAt(std::uint64_t n) {
    const HostFault& fault = GetParam();
    const TemporaryFolder drive;
    drive.write(kFile, kOld);
    drive.makeFolder("Norvik");
    const auto real = text::makePosixHost();
    FaultyHost host(*real);
    if (fault.separateFolders) host.separateFolders();
    ScriptedWorkbench workbench(host, drive.path());
    workbench.run(
        "setting Startup PLoc C:\\Poser\\\nstart\nchoose C:\\work\\a.obj\nclick MenuFileOpen\n"
        "click PictureMash\nclick OptionMashOBJ\n");
    EXPECT_EQ(workbench.outcome().exitCode(), 0);
    host.setFault(fault.fault, n, fault.error);
    workbench.takeEvents();
    workbench.run("click PictureMash\n");
    const bool met = host.faultMet();
    host.clearFault();
    check(drive, workbench.takeEvents(), met, n);
    return met;
  }

 private:
  static void check(const TemporaryFolder& drive, const std::string& events, bool met,
                    std::uint64_t n) {
    ASSERT_TRUE(drive.exists(kFile)) << "at " << n;
    const bool isNew = drive.read(kFile) == kNew;
    EXPECT_TRUE(isNew || drive.read(kFile) == kOld) << "at " << n;
    EXPECT_TRUE(isNew || met) << "at " << n;
    const bool kept = drive.exists(kBackup);
    EXPECT_TRUE(kept || !isNew) << "at " << n;
    EXPECT_TRUE(!kept || drive.read(kBackup) == kOld) << "at " << n;
    const bool told = events.find("runtime-error") != std::string::npos;
    EXPECT_TRUE(isNew || told) << "at " << n << ": nothing was saved and nothing said\n" << events;
  }
};

TEST_P(MashFaultsTest, FileIsOldOrNewAndTheBackupOld) {
  constexpr std::uint64_t kMost = 2000;
  std::uint64_t n = 1;
  while (n < kMost && mashWithFaultAt(n) && !HasFailure()) ++n;
  EXPECT_LT(n, kMost);
  EXPECT_GT(n, 1U) << "the fault was never met";
}

std::string faultName(const testing::TestParamInfo<HostFault>& info) {
  return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Mash, MashFaultsTest, testing::ValuesIn(allHostFaults()), faultName);

}  // namespace

}  // namespace norvik::tests
