// A copy of a morph during which the host fails. Whatever fails, and whenever: the file of the name
// that the operator chose is the old or the new one, complete, and no other figure changes.

#include "support/faulty_host.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::tests {

namespace {

constexpr const char* kDestination = "figures/dest.cr2";
constexpr const char* kSource = "figures/source.cr2";
constexpr const char* kOther = "figures/other.cr2";
constexpr const char* kNew = "figures/new.cr2";
constexpr const char* kOld = "an older figure\r\n";

/// A figure whose head holds what `channels` says.
std::string figure(const std::string& channels) {
  const std::string storage = "\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\t}\r\n";
  const std::string reference = "figureResFile :Runtime:Geometries:doll.obj\r\n";
  return "{\r\n" + reference + "actor BODY:1" + storage + "actor head:1" + storage + reference +
         "actor BODY:1\r\n\t{\r\n\tname\tBody\r\n\t}\r\n"
         "actor head:1\r\n\t{\r\n\tname\tHead\r\n\tchannels\r\n\t\t{\r\n" +
         channels +
         "\t\t}\r\n\t}\r\n"
         "figure\r\n\t{\r\n\tmaterial skin\r\n\t\t{\r\n\t\tKdColor 1 1 1 1\r\n\t\tKaColor 0 0 0 1"
         "\r\n\t\tKsColor 0 0 0 1\r\n\t\ttextureMap NO_MAP\r\n\t\t}\r\n\t}\r\n}\r\n";
}

const std::string kEntry = "\t\ttargetGeom Smile\r\n\t\t\t{\r\n\t\t\tname Smile\r\n";
const std::string kHeader = "\t\t\tinitValue 0\r\n\t\t\tinterpStyleLocked 0\r\n";
const std::string kLink =
    "\t\t\tvalueOpDeltaAdd\r\n\t\t\tFigure 1\r\n\t\t\tBODY:1\r\n\t\t\tGrin\r\n"
    "\t\t\tdeltaAddDelta 1.0\r\n";
const std::string kEnd = "\t\t\t}\r\n";
const std::string kTwist = "\t\ttwistY t\r\n\t\t\t{\r\n\t\t\t}\r\n";

/// What is copied, and what the destination becomes by it.
struct Copy {
  std::string name;
  std::string source;
  std::string destination;
  std::string result;
  std::string item;
};

/// So much that the morph is written in several pieces.
std::string manyDeltas() {
  std::string deltas;
  constexpr int kDeltas = 3500;
  for (int i = 0; i < kDeltas; ++i) deltas += "\t\t\t\td " + std::to_string(i) + " 0.01 0.02 0\r\n";
  return deltas;
}

Copy morphCopy() {
  const std::string morph = kEntry + kHeader + manyDeltas() + kEnd;
  return {"morph", figure(morph + kTwist), figure(kTwist), figure(morph + kTwist), "Smile"};
}

Copy linkCopy() {
  const std::string head = kEntry + kHeader;
  return {"link", figure(head + kLink + kEnd + kTwist), figure(head + kEnd + kTwist),
          figure(head + kLink + kEnd + kTwist), "Delta Control Ratio"};
}

struct Case {
  Fault fault;
  int error;
  const char* target;
  bool separateFolders;
  bool link;
};

class CopyFaultsTest : public testing::TestWithParam<Case> {
 protected:
  /// Makes the copy with the fault at the N-th operation. Whether it came to that.
  bool copyWithFaultAt(std::uint64_t n) {
    const Case& test = GetParam();
    const TemporaryFolder drive;
    drive.write(kDestination, copy_.destination);
    drive.write(kSource, copy_.source);
    drive.write(kOther, kOld);
    // What runs before have left, after a No and after a run-time error.
    drive.write("Norvik/InsertMorph.txt", kOld);
    drive.write("Norvik/SaveMorph.txt", kOld);
    drive.makeFolder("Poser/Runtime/Geometries");
    FaultyHost host(*real_);
    if (test.separateFolders) host.separateFolders();
    ScriptedWorkbench workbench(host, drive.path());
    workbench.run(
        "setting Startup PLoc C:\\Poser\\\nstart\n"
        "choose C:\\figures\\dest.cr2\nclick MenuFileOpen\n"
        "choose C:\\figures\\source.cr2\nclick LabelOpenSource\n"
        "item ListActors head:1\nclick PictureViewChannels\n"
        "item ListChannels " +
        copy_.item + "\n");
    EXPECT_EQ(workbench.outcome().exitCode(), 0);

    host.setFault(test.fault, n, test.error);
    workbench.takeEvents();
    const std::string target(test.target);
    workbench.run("answer Yes\nchoose C:\\figures\\" + target.substr(target.find('/') + 1) +
                  "\nclick PictureCopyToDest\n");
    const bool met = host.faultMet();
    host.clearFault();
    expectOldOrNew(drive, workbench.takeEvents(), met);
    return met;
  }

 private:
  void expectOldOrNew(const TemporaryFolder& drive, const std::string& events, bool met) {
    const std::string target = GetParam().target;
    std::string old;
    if (target == kDestination) old = copy_.destination;
    if (target == kOther) old = kOld;
    const std::string now = drive.exists(target) ? drive.read(target) : std::string{};
    const bool isNew = now == copy_.result;
    EXPECT_TRUE(isNew || now == old) << now.size() << " bytes\n" << events;
    EXPECT_TRUE(isNew || met) << events;

    const bool told = events.find("runtime-error") != std::string::npos ||
                      events.find("may not have transfered") != std::string::npos;
    EXPECT_TRUE(isNew || told) << "nothing was saved and nothing said\n" << events;

    EXPECT_EQ(drive.read(kSource), copy_.source);
    EXPECT_TRUE(target == kDestination || drive.read(kDestination) == copy_.destination);
    EXPECT_TRUE(target == kOther || drive.read(kOther) == kOld);

    const bool died = GetParam().fault == Fault::killed || GetParam().fault == Fault::powerLost;
    if (died) return;
    for (const std::string& file : drive.files()) {
      const bool known = file == kDestination || file == kSource || file == kOther ||
                         file == target || file.starts_with("Norvik/");
      EXPECT_TRUE(known) << file << " was left behind";
    }
  }

 protected:
  Copy copy_ = GetParam().link ? linkCopy() : morphCopy();
  std::unique_ptr<text::HostOps> real_ = text::makePosixHost();
};

TEST_P(CopyFaultsTest, TargetIsOldOrNew) {
  constexpr std::uint64_t kMost = 2000;
  std::uint64_t n = 1;
  while (n < kMost && copyWithFaultAt(n) && !HasFailure()) ++n;
  EXPECT_LT(n, kMost);
  EXPECT_GT(n, 2U) << "the fault was never met";
}

void addFaults(std::vector<Case>& cases, const char* target, bool separateFolders, bool link) {
  cases.push_back({Fault::error, EIO, target, separateFolders, link});
  cases.push_back({Fault::error, EACCES, target, separateFolders, link});
  cases.push_back({Fault::fullDisk, 0, target, separateFolders, link});
  cases.push_back({Fault::killed, 0, target, separateFolders, link});
  cases.push_back({Fault::powerLost, 0, target, separateFolders, link});
}

std::vector<Case> allCases() {
  std::vector<Case> cases;
  for (const bool separateFolders : {false, true}) {
    for (const char* target : {kDestination, kOther, kNew}) {
      addFaults(cases, target, separateFolders, false);
    }
  }
  addFaults(cases, kDestination, false, true);
  return cases;
}

std::string caseName(const testing::TestParamInfo<Case>& info) {
  const Case& test = info.param;
  const std::string fault = test.fault == Fault::fullDisk    ? "FullDisk"
                            : test.fault == Fault::killed    ? "Killed"
                            : test.fault == Fault::powerLost ? "PowerLost"
                            : test.error == EIO              ? "Broken"
                                                             : "Denied";
  const std::string target = test.target == std::string(kDestination) ? "Destination"
                             : test.target == std::string(kOther)     ? "Other"
                                                                      : "New";
  return fault + target + (test.separateFolders ? "AcrossFolders" : "") +
         (test.link ? "Link" : "Morph");
}

INSTANTIATE_TEST_SUITE_P(Copy, CopyFaultsTest, testing::ValuesIn(allCases()), caseName);

}  // namespace

}  // namespace norvik::tests
