// Poses, MAT files, MOR files and welds that are saved while the host fails. Whatever fails, and
// whenever: the file of the name that is to be replaced is the old or the new one, complete, and no
// other file of the operator's changes.

#include "support/faulty_host.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::tests {

namespace {

constexpr const char* kOld = "an older file\r\n";

const std::string kHead =
    "{\r\nversion\r\n\t{\r\n\tnumber 4.01\r\n\t}\r\nfigureResFile :Runtime:Geometries:doll.obj\r\n";

std::string manyLines() {
  std::string lines;
  constexpr int kLines = 300;
  for (int i = 0; i < kLines; ++i)
    lines += "\t\tline " + std::to_string(i) + " of a long block\r\n";
  return lines;
}

const std::string kReference = "figureResFile :Runtime:Geometries:doll.obj\r\n";

std::string headBlock() {
  return "actor head:1\r\n\t{\r\n\tname Head\r\n\t\ttargetGeom Smile\r\n" + manyLines() +
         "figure\r\n\t{\r\n\tmaterial lips\r\n\t\t{\r\n\t\tKdColor 1 1 1 1\r\n" +
         "\t\tKaColor 0 0 0 1\r\n\t\tKsColor 0 0 0 1\r\n" + manyLines() +
         "\t\t}\r\n\tdisplayMode X\r\n\t}\r\n}\r\n";
}

std::string figure() {
  return kHead + kReference + "actor neck:1\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\t}\r\n" +
         kReference + headBlock();
}

std::string channel(const std::string& name, const std::string& value) {
  return "\t\ttargetGeom " + name + "\r\n\t\t\t{\r\n\t\t\tkeys\r\n\t\t\t{\r\n\t\t\tk 0 " + value +
         "\r\n\t\t\t}\r\n\t\t\t}\r\n";
}

std::string pose(const std::string& channels) {
  return "{\r\nversion\r\n\t{\r\n\tnumber 4.01\r\n\t}\r\nactor "
         "head:1\r\n\t{\r\n\tchannels\r\n\t\t{\r\n" +
         channels + manyLines() + "\t\t}\r\n\t}\r\n}\r\n";
}

/// A tool up to the click that writes, and what it then leaves.
struct Tool {
  const char* name;
  std::string source;   ///< the file of the main pane
  std::string text;     ///< of the source
  std::string prepare;  ///< behind the opening of the source
  std::string finish;
  std::string result;
  bool silent;  ///< whether a save that fails says nothing
};

Tool poseBuilder() {
  return {"Pose",
          "doll.cr2",
          figure(),
          "click MenuPoseFile\ndouble-click-item FormPZ2.ListActorsPZ2 head\n",
          "click FormPZ2.LabelDonePZ2\n",
          kHead + kReference + headBlock() + "}\r\n",
          false};
}

Tool matBuilder() {
  return {"Mat",
          "doll.cr2",
          figure(),
          "click menuMatFile\nclick FormPZ2.CheckAllMat\n",
          "choose C:\\figures\\dollNew.pz2\nclick FormPZ2.LabelDonePZ2\n",
          "{\r\n \r\nVersion\r\n\t{\r\n\tNumber 4.01\r\n\t}\r\nfigure\r\n{\r\n\tmaterial "
          "lips\r\n\t\t{\r\n"
          "\t\tKdColor 1 1 1 1\r\n\t\tKaColor 0 0 0 1\r\n\t\tKsColor 0 0 0 1\r\n" +
              manyLines() + "\t\t}\r\n}\r\n}\r\n",
          true};
}

Tool morBuilder() {
  return {"Mor",
          "doll.cr2",
          figure(),
          "click MenuMor\nselect FormMOR.ListMorphs 0\ntype FormMOR.TextValue .5\nkey "
          "FormMOR.TextValue Enter\n",
          "choose C:\\figures\\dollNew.pz2\nclick FormMOR.LabelDone\n",
          "{\r\nversion\r\n\t{\r\n\tnumber 4.01\r\n\t}\r\nactor "
          "head:1\r\n\t{\r\n\tchannels\r\n\t\t{\r\n" +
              channel("Smile", "0.5") + "\t\t}\r\n\t}\r\n}\r\n",
          true};
}

/// One morph is met, one is inserted.
Tool welder() {
  const std::string second = "C:\\figures\\second.pz2";
  return {"Weld",
          "first.pz2",
          pose(channel("Smile", "1")),
          "click menuCombinePZ2\nchoose " + second +
              "\nclick FormPZ2Combine.LabelOpenSecond\nselect FormPZ2Combine.ListFile2 0 1\n",
          "answer No\nchoose C:\\figures\\dollNew.pz2\nclick FormPZ2Combine.LabelDone\n",
          pose(channel("Frown", "3") + channel("Smile", "2")),
          false};
}

Tool toolNamed(const std::string& name) {
  for (Tool tool : {poseBuilder(), matBuilder(), morBuilder()}) {
    if (name == tool.name) return tool;
  }
  return welder();
}

struct Case {
  const char* tool;
  Fault fault;
  int error;
  bool targetExists;
  bool separateFolders;
};

class PoseFaultsTest : public testing::TestWithParam<Case> {
 protected:
  /// Saves with the fault at the N-th operation. Whether it came to that.
  bool saveWithFaultAt(std::uint64_t n) {
    const Case& test = GetParam();
    const TemporaryFolder drive;
    const std::string source = "figures/" + tool_.source;
    const std::string second = pose(channel("Smile", "2") + channel("Frown", "3"));
    drive.write(source, tool_.text);
    drive.write("figures/second.pz2", second);
    if (test.targetExists) drive.write(kTarget, kOld);
    drive.makeFolder("Norvik");
    FaultyHost host(*real_);
    if (test.separateFolders) host.separateFolders();
    ScriptedWorkbench workbench(host, drive.path());
    workbench.run("setting Startup PLoc C:\\Poser\\\nstart\nchoose C:\\figures\\" + tool_.source +
                  "\nclick MenuFileOpen\n" + tool_.prepare);
    EXPECT_EQ(workbench.outcome().exitCode(), 0) << workbench.takeEvents();

    host.setFault(test.fault, n, test.error);
    workbench.takeEvents();
    workbench.run(tool_.finish);
    const bool met = host.faultMet();
    host.clearFault();
    const std::string events = workbench.takeEvents();
    expectOldOrNew(drive, events, met);
    EXPECT_EQ(drive.read(source), tool_.text);
    EXPECT_EQ(drive.read("figures/second.pz2"), second);
    const bool died = test.fault == Fault::killed || test.fault == Fault::powerLost;
    for (const std::string& file : drive.files()) {
      const bool known = file == source || file == "figures/second.pz2" || file == kTarget ||
                         file.starts_with("Norvik/");
      EXPECT_TRUE(known || died) << file << " was left behind";
    }
    return met;
  }

 private:
  void expectOldOrNew(const TemporaryFolder& drive, const std::string& events, bool met) {
    const std::string old = GetParam().targetExists ? kOld : "";
    const std::string now = drive.exists(kTarget) ? drive.read(kTarget) : std::string{};
    const bool isNew = now == tool_.result;
    EXPECT_TRUE(isNew || now == old) << now.size() << " bytes\n" << events;
    EXPECT_TRUE(isNew || met) << events;
    const bool told = events.find("runtime-error") != std::string::npos;
    EXPECT_TRUE(isNew || told || tool_.silent) << "nothing was saved and nothing said\n" << events;
  }

 protected:
  static constexpr const char* kTarget = "figures/dollNew.pz2";
  Tool tool_ = toolNamed(GetParam().tool);
  std::unique_ptr<text::HostOps> real_ = text::makePosixHost();
};

TEST_P(PoseFaultsTest, TargetIsOldOrNew) {
  constexpr std::uint64_t kMost = 2000;
  std::uint64_t n = 1;
  while (n < kMost && saveWithFaultAt(n) && !HasFailure()) ++n;
  EXPECT_LT(n, kMost);
  EXPECT_GT(n, 1U) << "the fault was never met";
}

std::vector<Case> allCases() {
  std::vector<Case> cases;
  for (const char* tool : {"Pose", "Mat", "Mor", "Weld"}) {
    for (const bool exists : {true, false}) {
      cases.push_back({tool, Fault::error, EIO, exists, false});
      cases.push_back({tool, Fault::error, EACCES, exists, false});
      cases.push_back({tool, Fault::fullDisk, 0, exists, false});
      cases.push_back({tool, Fault::killed, 0, exists, false});
      cases.push_back({tool, Fault::powerLost, 0, exists, false});
    }
    cases.push_back({tool, Fault::error, EIO, true, true});
    cases.push_back({tool, Fault::powerLost, 0, true, true});
  }
  return cases;
}

std::string caseName(const testing::TestParamInfo<Case>& info) {
  const Case& test = info.param;
  const std::string fault = test.fault == Fault::fullDisk    ? "FullDisk"
                            : test.fault == Fault::killed    ? "Killed"
                            : test.fault == Fault::powerLost ? "PowerLost"
                            : test.error == EIO              ? "Broken"
                                                             : "Denied";
  return test.tool + fault + (test.targetExists ? "Over" : "New") +
         (test.separateFolders ? "AcrossFolders" : "");
}

INSTANTIATE_TEST_SUITE_P(Pose, PoseFaultsTest, testing::ValuesIn(allCases()), caseName);

}  // namespace

}  // namespace norvik::tests
