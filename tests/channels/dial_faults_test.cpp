// The tools that change channels, while the host fails. Whatever fails, and whenever: the file that
// a tool replaces is the old or the new one, complete; one that it changes in place keeps its size
// and has old or new bytes; no other figure changes; and nothing is said to be done that is not.

#include "support/faulty_host.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::tests {

namespace {

constexpr const char* kFigure = "figures/doll.cr2";
constexpr const char* kSource = "figures/source.cr2";
constexpr const char* kOther = "figures/other.cr2";
constexpr const char* kUnique = "figures/doll_Unique.cr2";
constexpr const char* kOld = "an older figure\r\n";

std::string manyDeltas(int count) {
  std::string deltas;
  for (int i = 0; i < count; ++i) deltas += "\t\t\t\td " + std::to_string(i) + " 0.01 0.02 0\r\n";
  return deltas;
}

std::string morph(const std::string& name) {
  return "\t\ttargetGeom " + name + "\r\n\t\t\t{\r\n\t\t\tname " + name +
         "\r\n\t\t\tinitValue 0\r\n\t\t\thidden 0\r\n\t\t\tforceLimits 0\r\n"
         "\t\t\ttrackingScale 0.02\r\n\t\t\tinterpStyleLocked 0\r\n\t\t\tdeltas\r\n\t\t\t\t{\r\n";
}

std::string joint(const std::string& keyword, const std::string& angle) {
  return "\t\t" + keyword + "\r\n\t\t\t{\r\n\t\t\tangle " + angle + "\r\n\t\t\t}\r\n";
}

std::string figure(const std::string& angle, int deltas) {
  const std::string storage = "\r\n\t{\r\n\tstorageOffset 0 0 0\r\n\t}\r\n";
  const std::string reference = "figureResFile :Runtime:Geometries:doll.obj\r\n";
  const std::string morphEnd = "\t\t\t\t}\r\n\t\t\t}\r\n";
  return "{\r\n" + reference + "actor BODY:1" + storage + "actor head:1" + storage + reference +
         "actor BODY:1\r\n\t{\r\n\tname\tBody\r\n\tbend 1\r\n\tchannels\r\n\t\t{\r\n"
         "\t\ttranslateX xt\r\n\t\t\t{\r\n\t\t\thidden 0\r\n\t\t\t}\r\n\t\t}\r\n\t}\r\n"
         "actor head:1\r\n\t{\r\n\tname\tHead\r\n\tbend 1\r\n\tchannels\r\n\t\t{\r\n" +
         morph("Smile") + manyDeltas(deltas) + morphEnd + morph("Frown") + morphEnd +
         joint("twistY lThigh_twisty", angle) + joint("jointX lThigh_jointx", angle) +
         "\t\t}\r\n\t}\r\nfigure\r\n\t{\r\n\tinkyChain Leg\r\n\tdefaultPick head:1\r\n"
         "\tmaterial skin\r\n\t\t{\r\n\t\tKdColor 1 1 1 1\r\n\t\tKaColor 0 0 0 1\r\n"
         "\t\tKsColor 0 0 0 1\r\n\t\ttextureMap NO_MAP\r\n\t\tFigure 1\r\n\t\t}\r\n\t}\r\n}\r\n";
}

/// One use of a tool.
struct Tool {
  std::string name;
  std::string before;  ///< what brings it so far
  std::string act;     ///< the act that the fault falls into
  std::string target;  ///< the file that it changes; empty if none of the operator's
  std::string done;    ///< of the words that it ends with
  bool inPlace = false;
  bool large = false;  ///< the figure is written in several pieces
};

std::vector<Tool> tools() {
  const std::string second = "select ListActors 3\n";
  const std::string pick =
      "double-click-item ListActors head:1\nselect ListChannelsReorderByPart 1\n";
  const std::string hide = "click menuHideDialsChannels\nselect ListHideDialsChannels 0\n";
  const std::string labels = "click menuHideDialsTrans\nitem ListActors head:1\n";
  const std::string source = "choose C:\\figures\\source.cr2\nclick LabelOpenSource\n";
  const std::string toFigure = "choose C:\\figures\\doll.cr2\n";
  const std::string toOther = "choose C:\\figures\\other.cr2\n";
  const std::string reorder = "click PictureChannelReorderDone\n";
  const std::string dials = "click CommandDialHideDone\n";
  return {
      {"Reorder", pick, toFigure + reorder, kFigure, {}},
      {"ReorderOntoOther", pick, toOther + reorder, kOther, {}},
      {"HideDials", hide, toFigure + dials, kFigure, {}},
      {"HideDialsOntoOther", hide, toOther + dials, kOther, {}},
      {"TrackingSpeed",
       "click menuDialTrackSpeed\nselect ListChannelsReorder 0\ntype TextTrackingSpeed 3\n",
       "key TextTrackingSpeed Enter\n", kFigure, "speed changed"},
      {"Bend", second, "click MenuBendOff\n", kFigure, "Bending turned off", false, true},
      {"IkChains", "answer Yes\n", "click MenuDumpIK\n", kFigure, "have been removed"},
      {"UniqueName", "answer OK\nclick menuERCUnique\ntype TextERCUnique Ann\n",
       "key TextERCUnique Enter\n", kUnique, "saved as"},
      {"Joints",
       source + "item ListChannels head:1\n" + second,
       "click PictureJoints\n",
       kFigure,
       {}},
      {"TranslateDials", labels + "answer Yes\n", "click LabelX\n", kFigure, "now it is hidden",
       true},
      {"ForceLimits", "type TextForceLimits head\nanswer Yes\n", "key TextForceLimits Enter\n",
       kFigure, "they are forced", true},
      {"TwistRemoved", {}, "item ListTwistRemove Thigh\n", kFigure, "commented out", true},
      {"Mirror",
       "click menuMirror\nitem ListChannels Smile\nanswer No\n",
       "double-click-item ListActors head:1\n",
       {},
       {}},
      {"Extract",
       "item ListActors head:1\nclick PictureViewChannels\nitem ListChannels Smile\n",
       "right-click ListChannels\n",
       {},
       {}},
  };
}

struct Case {
  Tool tool;
  Fault fault;
  int error;
  std::string faultName;
};

class DialFaultsTest : public testing::TestWithParam<Case> {
 protected:
  DialFaultsTest() {
    const TemporaryFolder drive;
    FaultyHost host(*real_);
    play(drive, host, Fault::none, 0);
    new_ = oldOrNew(drive);
    EXPECT_TRUE(tool().target.empty() || new_ != old()) << "the tool has changed nothing";
  }

  const Tool& tool() const { return GetParam().tool; }
  std::string old() const { return tool().target == kFigure ? figure_ : kOld; }
  std::string oldOrNew(const TemporaryFolder& drive) const {
    return tool().target.empty() ? std::string{} : drive.read(tool().target);
  }

  std::string play(const TemporaryFolder& drive, FaultyHost& host, Fault fault, std::uint64_t n) {
    drive.write(kFigure, figure_);
    drive.write(kSource, source_);
    drive.write(kOther, kOld);
    drive.write(kUnique, kOld);
    drive.write("Poser/Runtime/Geometries/doll.obj", "v 1 2 3\r\ng head\r\nf 1 1 1\r\n");
    ScriptedWorkbench workbench(host, drive.path());
    workbench.run(
        "setting Startup PLoc C:\\Poser\\\nstart\nchoose C:\\figures\\doll.cr2\n"
        "click MenuFileOpen\n" +
        tool().before);
    EXPECT_EQ(workbench.outcome().exitCode(), 0) << workbench.takeEvents();
    if (fault != Fault::none) host.setFault(fault, n, GetParam().error);
    workbench.takeEvents();
    workbench.run(tool().act);
    return workbench.takeEvents();
  }

  /// Uses the tool with the fault at the N-th operation. Whether it came to that.
  bool useWithFaultAt(std::uint64_t n) {
    const TemporaryFolder drive;
    FaultyHost host(*real_);
    const std::string events = play(drive, host, GetParam().fault, n);
    const bool met = host.faultMet();
    host.clearFault();
    expectOldOrNew(drive, events, met);
    return met;
  }

 private:
  void expectOldOrNew(const TemporaryFolder& drive, const std::string& events, bool met) {
    for (const char* file : {kFigure, kOther, kUnique}) {
      const std::string untouched = file == std::string(kFigure) ? figure_ : kOld;
      EXPECT_TRUE(tool().target == file || drive.read(file) == untouched) << file;
    }
    EXPECT_EQ(drive.read(kSource), source_);
    if (tool().target.empty()) return;

    const std::string now = drive.read(tool().target);
    if (tool().inPlace) {
      ASSERT_EQ(now.size(), old().size());
      for (std::size_t i = 0; i < now.size(); ++i) {
        ASSERT_TRUE(now[i] == old()[i] || now[i] == new_[i]) << "at " << i;
      }
    } else {
      EXPECT_TRUE(now == old() || now == new_) << now.size() << " bytes\n" << events;
    }
    EXPECT_TRUE(now == new_ || met) << events;
    const bool toldOfError = events.find("runtime-error") != std::string::npos ||
                             events.find("Error!") != std::string::npos;
    EXPECT_TRUE(now == new_ || toldOfError) << "nothing changed and nothing said\n" << events;
    if (tool().done.empty()) return;
    const bool toldDone = events.find(tool().done) != std::string::npos;
    // Only a lost flush can undo what was done in place.
    const bool mayBeLost = tool().inPlace && GetParam().fault == Fault::powerLost;
    EXPECT_TRUE(now == new_ || !toldDone || mayBeLost) << events;
  }

  int deltas_ = GetParam().tool.large ? 9000 : 9;
  std::string figure_ = figure("5", deltas_);
  std::string source_ = figure("7", deltas_);
  std::string new_;
  std::unique_ptr<text::HostOps> real_ = text::makePosixHost();
};

TEST_P(DialFaultsTest, TargetIsOldOrNew) {
  constexpr std::uint64_t kMost = 1000;
  std::uint64_t n = 1;
  while (n < kMost && useWithFaultAt(n) && !HasFailure()) ++n;
  EXPECT_LT(n, kMost);
  EXPECT_GT(n, 1U) << "the fault was never met";
}

std::vector<Case> allCases() {
  std::vector<Case> cases;
  for (const Tool& tool : tools()) {
    cases.push_back({tool, Fault::error, EIO, "Broken"});
    cases.push_back({tool, Fault::error, EACCES, "Denied"});
    cases.push_back({tool, Fault::fullDisk, 0, "FullDisk"});
    cases.push_back({tool, Fault::killed, 0, "Killed"});
    cases.push_back({tool, Fault::powerLost, 0, "PowerLost"});
  }
  return cases;
}

std::string caseName(const testing::TestParamInfo<Case>& test) {
  return test.param.tool.name + test.param.faultName;
}

INSTANTIATE_TEST_SUITE_P(Dials, DialFaultsTest, testing::ValuesIn(allCases()), caseName);

}  // namespace

}  // namespace norvik::tests
