// Removals and renames during which the host fails. Whatever fails, and whenever: the file of the
// name that the operator chose is the old or the new one, complete, and no other figure changes.

#include "support/faulty_host.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::tests {

namespace {

constexpr const char* kFigure = "figures/doll.cr2";
constexpr const char* kOther = "figures/other.cr2";
constexpr const char* kNew = "figures/new.cr2";
constexpr const char* kOld = "an older figure\r\n";

std::string lines(std::initializer_list<std::string> parts) {
  std::string text;
  for (const std::string& part : parts) text += part + "\r\n";
  return text;
}

std::string stored(const std::string& actor) {
  return lines({"actor " + actor, "\t{", "\tstorageOffset 0 0 0", "\tgeomHandlerGeom 13 x", "\t}"});
}

std::string block(const std::string& actor, const std::string& channels) {
  return lines({"actor " + actor, "\t{", "\tname\tPart", "\ton", "\tchannels", "\t\t{"}) +
         channels + lines({"\t\t}", "\t}"});
}

constexpr int kMany = 5000;  ///< so many deltas that a figure is written in several pieces

std::string morph(const std::string& name, int deltas = 1) {
  std::string text =
      lines({"\t\ttargetGeom " + name, "\t\t\t{", "\t\t\tname " + name, "\t\t\tinitValue 0",
             "\t\t\tinterpStyleLocked 0", "\t\t\tdeltas", "\t\t\t\t{"});
  for (int i = 0; i < deltas; ++i) text += "\t\t\t\td " + std::to_string(i) + " 0.01 0.02 0\r\n";
  return text + lines({"\t\t\t\t}", "\t\t\t}"});
}

const std::string kTwist = lines({"\t\ttwistY t", "\t\t\t{", "\t\t\t}"});

std::string child(const std::string& name, const std::string& parent) {
  return lines({"\taddChild\t" + name, "\t\t\t" + parent});
}

/// A figure whose head is called `head`, with channels of its own; without a head where it is
/// empty.
std::string figure(const std::string& head, const std::string& channels) {
  const std::string reference = lines({"figureResFile :Runtime:Geometries:doll.obj"});
  const bool whole = !head.empty();
  return lines({"{"}) + reference + stored("BODY:1") + (whole ? stored(head) : "") +
         stored("hat:1") + reference + block("BODY:1", "") + (whole ? block(head, channels) : "") +
         block("hat:1", kTwist) + lines({"figure", "\t{", "\tname\tDoll", "\troot\tBODY:1"}) +
         (whole ? child(head, "BODY:1") : "") + child("hat:1", whole ? head : "BODY:1") +
         lines({"\tmaterial skin", "\t\t{", "\t\tKdColor 1 1 1 1", "\t\tKaColor 0 0 0 1",
                "\t\tKsColor 0 0 0 1", "\t\ttextureMap NO_MAP", "\t\t}", "\t}", "}"});
}

/// What the operator does, and what the figure becomes by it.
struct Work {
  const char* name;
  std::string before;   ///< the question that leads to the dialog
  std::string trigger;  ///< what runs the pass
  std::string figure;
  std::string result;
  bool mayFailInSilence =
      false;  ///< a removal of morphs says nothing when it cannot replace a file
};

Work workNamed(const std::string& name) {
  const std::string both = figure("head:1", morph("Smile") + morph("Frown", kMany) + kTwist);
  const std::string view = "item ListActors head:1\nclick PictureViewChannels\n";
  const std::string armed = "click PictureTrash\n";
  if (name == "Morph") {
    return {"Morph",
            view + armed + "item ListChannels Smile\n",
            "drop ListChannels PictureTrash\n",
            both,
            figure("head:1", morph("Frown", kMany) + kTwist),
            true};
  }
  if (name == "Morphs") {
    return {"Morphs",
            view + armed + "select ListChannels 2 4\n",
            "drop ListChannels PictureTrash\n",
            both,
            figure("head:1", kTwist),
            true};
  }
  if (name == "Part") {
    return {"Part", "item ListActors head:1\n" + armed, "drop ListActors PictureTrash\n", both,
            figure("", "")};
  }
  if (name == "Parts") {
    // The hat is the figure's last part: the pairs of its section are then off by one line.
    std::string result = figure("", "");
    const std::string hat = stored("hat:1");
    result.erase(result.find(hat), hat.size());
    const std::string hatBlock = block("hat:1", kTwist);
    result.erase(result.find(hatBlock), hatBlock.size());
    const std::string tail = result.substr(result.find("\taddChild"));
    result.erase(result.find("\taddChild"));
    const auto secondEnd = tail.find("\r\n", tail.find("BODY:1")) + 2;
    const auto thirdEnd = tail.find("\r\n", secondEnd) + 2;
    const auto fourthEnd = tail.find("\r\n", thirdEnd) + 2;
    result += tail.substr(secondEnd, thirdEnd - secondEnd) + lines({"\taddChild\that:1"}) +
              tail.substr(fourthEnd);
    return {"Parts", "select ListActors 1 2\n" + armed, "drop ListActors PictureTrash\n", both,
            result};
  }
  const std::string rename = view + "click PictureRenameMorph\n";
  const std::string typed = "click PictureRenameMorph\ntype TextMorphRename Neu\n";
  if (name == "RenamePart") {
    return {"RenamePart", rename + "click OptionBodyPartRename\n" + typed,
            "key TextMorphRename Enter\n", both,
            figure("Neu:1", morph("Smile") + morph("Frown", kMany) + kTwist)};
  }
  return {"RenameMorph", rename + "click OptionChannelRename\nitem ListChannels Smile\n" + typed,
          "key TextMorphRename Enter\n", both,
          figure("head:1", morph("Neu") + morph("Frown", kMany) + kTwist)};
}

struct Case {
  const char* work;
  Fault fault;
  int error;
  const char* target;
  bool separateFolders;
};

class SurgeryFaultsTest : public testing::TestWithParam<Case> {
 protected:
  /// Does the work with the fault at the N-th operation. Whether it came to that.
  bool workWithFaultAt(std::uint64_t n) {
    const Case& test = GetParam();
    const TemporaryFolder drive;
    drive.write(kFigure, work_.figure);
    drive.write(kOther, kOld);
    // What runs before have left.
    for (const char* scratch :
         {"XMorph.txt", "XMorph1.txt", "cr2.doc", "cr21.doc", "RenMorph.txt"}) {
      drive.write(std::string("Norvik/") + scratch, kOld);
    }
    drive.makeFolder("Poser/Runtime/Geometries");
    FaultyHost host(*real_);
    if (test.separateFolders) host.separateFolders();
    ScriptedWorkbench workbench(host, drive.path());
    workbench.run(
        "setting Startup PLoc C:\\Poser\\\nstart\nchoose C:\\figures\\doll.cr2\n"
        "click MenuFileOpen\n" +
        work_.before);
    EXPECT_EQ(workbench.outcome().exitCode(), 0);

    host.setFault(test.fault, n, test.error);
    workbench.takeEvents();
    const std::string target(test.target);
    workbench.run("answer Yes\nchoose C:\\figures\\" + target.substr(target.find('/') + 1) + "\n" +
                  work_.trigger);
    const bool met = host.faultMet();
    host.clearFault();
    expectOldOrNew(drive, workbench.takeEvents(), met);
    return met;
  }

  Work work_ = workNamed(GetParam().work);

 private:
  void expectOldOrNew(const TemporaryFolder& drive, const std::string& events, bool met) {
    const std::string target = GetParam().target;
    std::string old;
    if (target == kFigure) old = work_.figure;
    if (target == kOther) old = kOld;
    const std::string now = drive.exists(target) ? drive.read(target) : std::string{};
    const bool isNew = now == work_.result;
    EXPECT_TRUE(isNew || now == old) << now.size() << " bytes\n" << events;
    EXPECT_TRUE(isNew || met) << events;
    const bool told = events.find("runtime-error") != std::string::npos ||
                      events.find("Unconventional CR2") != std::string::npos;
    EXPECT_TRUE(isNew || told || work_.mayFailInSilence) << "nothing was saved and nothing said\n"
                                                         << events;
    EXPECT_TRUE(target == kFigure || drive.read(kFigure) == work_.figure);
    EXPECT_TRUE(target == kOther || drive.read(kOther) == kOld);

    const bool died = GetParam().fault == Fault::killed || GetParam().fault == Fault::powerLost;
    if (died) return;
    for (const std::string& file : drive.files()) {
      const bool known =
          file == kFigure || file == kOther || file == target || file.starts_with("Norvik/");
      EXPECT_TRUE(known) << file << " was left behind";
    }
  }

  std::unique_ptr<text::HostOps> real_ = text::makePosixHost();
};

TEST_P(SurgeryFaultsTest, TargetIsOldOrNew) {
  constexpr std::uint64_t kMost = 2000;
  std::uint64_t n = 1;
  while (n < kMost && workWithFaultAt(n) && !HasFailure()) ++n;
  EXPECT_LT(n, kMost);
  EXPECT_GT(n, 1U) << "the fault was never met";
}

void addFaults(std::vector<Case>& cases, const char* work, const char* target,
               bool separateFolders) {
  cases.push_back({work, Fault::error, EIO, target, separateFolders});
  cases.push_back({work, Fault::error, EACCES, target, separateFolders});
  cases.push_back({work, Fault::fullDisk, 0, target, separateFolders});
  cases.push_back({work, Fault::killed, 0, target, separateFolders});
  cases.push_back({work, Fault::powerLost, 0, target, separateFolders});
}

std::vector<Case> allCases() {
  std::vector<Case> cases;
  for (const char* work : {"Morph", "Morphs", "Part", "Parts", "RenameMorph", "RenamePart"}) {
    addFaults(cases, work, kFigure, false);
  }
  for (const char* work : {"Morphs", "Parts", "RenamePart"}) {
    addFaults(cases, work, kOther, true);
  }
  addFaults(cases, "Morph", kNew, false);
  return cases;
}

std::string caseName(const testing::TestParamInfo<Case>& info) {
  const Case& test = info.param;
  const std::string fault = test.fault == Fault::fullDisk    ? "FullDisk"
                            : test.fault == Fault::killed    ? "Killed"
                            : test.fault == Fault::powerLost ? "PowerLost"
                            : test.error == EIO              ? "Broken"
                                                             : "Denied";
  const std::string target = test.target == std::string(kFigure)  ? "Itself"
                             : test.target == std::string(kOther) ? "Other"
                                                                  : "New";
  return test.work + fault + target + (test.separateFolders ? "AcrossFolders" : "");
}

INSTANTIATE_TEST_SUITE_P(Surgery, SurgeryFaultsTest, testing::ValuesIn(allCases()), caseName);

}  // namespace

}  // namespace norvik::tests
