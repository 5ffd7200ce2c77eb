// Links and ratios written while the host fails. Whatever fails, and whenever: the figure is the
// old or the new one, complete, and no other file but the scratch file changes.

#include "support/faulty_host.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::tests {

namespace {

constexpr const char* kFigure = "figures/doll.cr2";

const std::string kOldLink =
    "\t\t\tvalueOpDeltaAdd\r\n\t\t\t\tFigure 1\r\n\t\t\t\tBODY:1\r\n\t\t\t\tGrin\r\n"
    "\t\t\tdeltaAddDelta 1.0\r\n";

/// So much that the figure is written in several pieces.
std::string manyDeltas() {
  std::string deltas;
  constexpr int kDeltas = 3500;
  for (int i = 0; i < kDeltas; ++i) deltas += "\t\t\t\td " + std::to_string(i) + " 0.01 0.02 0\r\n";
  return deltas;
}

std::string figure(const std::string& links, const std::string& ratioLine) {
  const std::string storage = "\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\t}\r\n";
  const std::string reference = "figureResFile :Runtime:Geometries:doll.obj\r\n";
  const std::string head = "\r\n\t\t\t{\r\n\t\t\tname Dial\r\n\t\t\tinterpStyleLocked 0\r\n";
  return "{\r\n" + reference + "actor BODY:1" + storage + "actor head:1" + storage + reference +
         "actor BODY:1\r\n\t{\r\n\tname\tBody\r\n\tparent UNIVERSE\r\n\t}\r\n"
         "actor head:1\r\n\t{\r\n\tname\tHead\r\n\tchannels\r\n\t\t{\r\n"
         "\t\ttargetGeom Smile" +
         head + links + manyDeltas() + "\t\t\t}\r\n\t\ttargetGeom Smirk" + head +
         "\t\t\tvalueOpDeltaAdd\r\n\t\t\t\tFigure 1\r\n\t\t\t\tBODY:1\r\n\t\t\t\tGrin\r\n" +
         ratioLine +
         "\t\t\t}\r\n\t\t}\r\n\t}\r\n"
         "figure\r\n\t{\r\n\tname    Doll\r\n\tmaterial skin\r\n\t\t{\r\n\t\tKdColor 1 1 1 1\r\n"
         "\t\tKaColor 0 0 0 1\r\n\t\tKsColor 0 0 0 1\r\n\t\ttextureMap NO_MAP\r\n\t\t}\r\n\t}\r\n"
         "}\r\n";
}

/// What is done, and what the figure becomes by it.
struct Work {
  std::string name;
  std::string scratch;
  std::string choices;
  std::string act;
  std::string old;
  std::string result;
  bool silent = false;  ///< a failure is not told
};

const std::string kRatio = "\t\t\tdeltaAddDelta 2.5\r\n";
const std::string kLink =
    "\t\t\tvalueOpDeltaAdd\r\n\t\t\t   Doll\r\n\t\t\thead\r\n\t\t\tSmirk\r\n"
    "\t\t\tdeltaAddDelta 1.000000\r\n";

Work link(const std::string& name, const std::string& oldLinks, const std::string& answers) {
  return {name,
          "Norvik/EMC.tmp",
          "click PictureEMC\nclick DialogERC.OptionPBM\nload FormECM\n"
          "item FormECM.ListControlledMorph Smile\nitem FormECM.ListControlledMorph Smirk\n"
          "item FormECM.ListActorsECM head:1\n",
          answers + "choose C:\\figures\\doll.cr2\nkey FormECM.TextPBMRatio Enter\n",
          figure(oldLinks, kRatio),
          figure(kLink, kRatio)};
}

Work ratio() {
  return {"Ratio",
          "Norvik/ChangeRatio.txt",
          "click PictureChangeRatio\nitem FormListEMCs.ListEMCs Delta\n"
          "type FormListEMCs.Text1 0.125\n",
          "answer Yes\nchoose C:\\figures\\doll.cr2\nkey FormListEMCs.Text1 Enter\n",
          figure({}, kRatio),
          figure({}, "\t\t\tdeltaAddDelta 0.125\r\n"),
          true};
}

struct Case {
  Work work;
  std::string faultName;
  Fault fault;
  int error;
  bool separateFolders;
};

class LinkFaultsTest : public testing::TestWithParam<Case> {
 protected:
  /// Does the work with the fault at the N-th operation. Whether it came to that.
  bool workWithFaultAt(std::uint64_t n) {
    const Case& test = GetParam();
    const Work& work = test.work;
    const TemporaryFolder drive;
    drive.write(kFigure, work.old);
    drive.write(work.scratch, "of an earlier run\r\n");
    drive.makeFolder("Poser/Runtime/Geometries");
    FaultyHost host(*real_);
    if (test.separateFolders) host.separateFolders();
    ScriptedWorkbench workbench(host, drive.path());
    workbench.run(
        "setting Startup PLoc C:\\Poser\\\nstart\n"
        "choose C:\\figures\\doll.cr2\nclick MenuFileOpen\n" +
        work.choices);
    EXPECT_EQ(workbench.outcome().exitCode(), 0) << workbench.takeEvents();

    host.setFault(test.fault, n, test.error);
    workbench.takeEvents();
    workbench.run(work.act);
    const bool met = host.faultMet();
    host.clearFault();
    expectOldOrNew(drive, workbench.takeEvents(), met);
    return met;
  }

 private:
  void expectOldOrNew(const TemporaryFolder& drive, const std::string& events, bool met) {
    const Work& work = GetParam().work;
    const std::string now = drive.read(kFigure);
    const bool isNew = now == work.result;
    EXPECT_TRUE(isNew || now == work.old) << now.size() << " bytes\n" << events;
    EXPECT_TRUE(isNew || met) << events;
    const bool told = events.find("runtime-error") != std::string::npos ||
                      events.find("was not found") != std::string::npos;
    EXPECT_TRUE(isNew || told || work.silent) << "nothing was saved and nothing said\n" << events;

    const bool died = GetParam().fault == Fault::killed || GetParam().fault == Fault::powerLost;
    if (died) return;
    for (const std::string& file : drive.files()) {
      EXPECT_TRUE(file == kFigure || file.starts_with("Norvik/")) << file << " was left behind";
    }
  }

  std::unique_ptr<text::HostOps> real_ = text::makePosixHost();
};

TEST_P(LinkFaultsTest, FigureIsOldOrNew) {
  constexpr std::uint64_t kMost = 2000;
  std::uint64_t n = 1;
  while (n < kMost && workWithFaultAt(n) && !HasFailure()) ++n;
  EXPECT_LT(n, kMost);
  EXPECT_GT(n, 2U) << "the fault was never met";
}

std::vector<Case> allCases() {
  std::vector<Case> cases;
  for (const Work& work :
       {link("Link", {}, {}), link("SecondLink", kOldLink, "answer Yes\n"), ratio()}) {
    cases.push_back({work, "Broken", Fault::error, EIO, false});
    cases.push_back({work, "Denied", Fault::error, EACCES, false});
    cases.push_back({work, "FullDisk", Fault::fullDisk, 0, false});
    cases.push_back({work, "Killed", Fault::killed, 0, false});
    cases.push_back({work, "PowerLost", Fault::powerLost, 0, false});
    cases.push_back({work, "BrokenAcrossFolders", Fault::error, EIO, true});
    cases.push_back({work, "PowerLostAcrossFolders", Fault::powerLost, 0, true});
  }
  return cases;
}

std::string caseName(const testing::TestParamInfo<Case>& info) {
  return info.param.work.name + info.param.faultName;
}

INSTANTIATE_TEST_SUITE_P(Links, LinkFaultsTest, testing::ValuesIn(allCases()), caseName);

}  // namespace

}  // namespace norvik::tests
