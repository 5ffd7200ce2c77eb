// The tools that move, copy, delete and rename a figure's files while the host fails. Whatever
// fails, and whenever: no file's bytes are lost, none is overwritten by another, and what a tool
// was to do and did not is told.

#include "support/faulty_host.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"
#include "support/tool_faults.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <tuple>

namespace norvik::tests {

namespace {

using Files = std::map<std::string, std::string>;

/// What a run has left, for the tool's own judgement.
struct Outcome {
  const TemporaryFolder& drive;
  std::string events;
  bool met;
  bool died;

  bool told(const std::string& words) const { return events.find(words) != std::string::npos; }
  std::string read(const std::string& name) const {
    return drive.exists(name) ? drive.read(name) : std::string{};
  }
};

/// A tool, what it works on, and what must be true afterwards.
struct FileTool {
  std::string name;
  Files files;
  std::string opening;
  std::string running;
  std::function<void(const Outcome&)> judge;
};

const std::string kFigure =
    "{\r\nfigureResFile :Runtime:Geometries:Doll:doll.obj\r\n"
    "textureMap :Runtime:Textures:Doll:skin.tif\r\n}\r\n";
const std::string kStaging = "Norvik/cr2install/";
const std::string kRuntime = "Poser/Runtime/";

/// Of two places at least one has the bytes, whole, and the other has them or none.
void expectAtOneOf(const Outcome& outcome, const std::string& from, const std::string& to,
                   const std::string& bytes) {
  const std::string before = outcome.read(from);
  const std::string after = outcome.read(to);
  EXPECT_TRUE(before == bytes || after == bytes) << from << "\n" << outcome.events;
  EXPECT_TRUE(before == bytes || !outcome.drive.exists(from)) << from;
  EXPECT_TRUE(after == bytes || !outcome.drive.exists(to)) << to << ": " << after;
  EXPECT_TRUE(outcome.met || after == bytes) << outcome.events;
}

FileTool installation() {
  const std::string mesh(300000, 'v');
  return {"Installation",
          {{kStaging + "doll.cr2", kFigure},
           {kStaging + "doll.obj", mesh},
           {kStaging + "skin.tif", "picture"},
           {kStaging + "taken.tif", "new"},
           {kRuntime + "Textures/Doll/taken.tif", "old"},
           {kRuntime + "Libraries/Characters/Doll/other.cr2", "other"}},
          "setting Startup PLoc C:\\Poser\\\nstart\nclick MenuInstallCR2\n",
          "answer No\nclick PictureInstallCR2\nkey FormCR2Install.DirCR2Install Enter\n",
          [mesh](const Outcome& outcome) {
            expectAtOneOf(outcome, kStaging + "doll.cr2",
                          kRuntime + "Libraries/Characters/Doll/doll.cr2", kFigure);
            expectAtOneOf(outcome, kStaging + "doll.obj", kRuntime + "Geometries/Doll/doll.obj",
                          mesh);
            expectAtOneOf(outcome, kStaging + "skin.tif", kRuntime + "Textures/Doll/skin.tif",
                          "picture");
            EXPECT_EQ(outcome.read(kStaging + "taken.tif"), "new");
            EXPECT_EQ(outcome.read(kRuntime + "Textures/Doll/taken.tif"), "old");
            EXPECT_EQ(outcome.read(kRuntime + "Libraries/Characters/Doll/other.cr2"), "other");
          }};
}

const std::string kListed =
    "start\nput LabelFileNameForEditor caption C:\\figures\\doll.cr2\nsetting Startup PLoc "
    "C:\\Poser\\\nload FormRemoveFiles\nselect FormRemoveFiles.ListFiles 0 1\n";
const std::string kFew = "{\r\ntextureMap :Runtime:Textures:skin.tif\r\n}\r\n";
const std::string kPicture(300000, 'p');

FileTool removal() {
  return {
      "Removal",
      {{"figures/doll.cr2", kFew}, {kRuntime + "Textures/skin.tif", kPicture}, {"x", "x"}},
      "setting Startup PLoc C:\\Poser\\\n" + kListed,
      "click FormRemoveFiles.OptionRemove\nclick FormRemoveFiles.LabelGo\n",
      [](const Outcome& outcome) {
        for (const auto& [name, bytes, path] :
             {std::tuple<std::string, std::string, std::string>{"figures/doll.cr2", kFew,
                                                                R"(C:\\figures\\doll.cr2)"},
              {kRuntime + "Textures/skin.tif", kPicture,
               R"(C:\\Poser\\Runtime\\Textures\\skin.tif)"}}) {
          if (!outcome.drive.exists(name)) continue;
          EXPECT_EQ(outcome.read(name), bytes);
          EXPECT_TRUE(outcome.died || (outcome.told("could not be removed") && outcome.told(path)))
              << outcome.events;
          EXPECT_TRUE(outcome.met);
        }
        EXPECT_EQ(outcome.read("x"), "x");
      }};
}

FileTool backup(const std::string& old) {
  Files files{{"figures/doll.cr2", kFew}, {kRuntime + "Textures/skin.tif", kPicture}};
  const std::string copy = "d/" + kRuntime + "Textures/skin.tif";
  if (!old.empty()) files[copy] = old;
  files["d/x"] = "x";
  return {old.empty() ? "Backup" : "BackupOverAnOlderOne", files,
          "setting Startup PLoc C:\\Poser\\\n" + kListed,
          "click FormRemoveFiles.OptionBackup\ntype FormRemoveFiles.Drive1 D:\n"
          "click FormRemoveFiles.LabelGo\n",
          [copy, old](const Outcome& outcome) {
            EXPECT_EQ(outcome.read("figures/doll.cr2"), kFew);
            EXPECT_EQ(outcome.read(kRuntime + "Textures/skin.tif"), kPicture);
            const std::string now = outcome.read(copy);
            const bool whole = now == kPicture;
            EXPECT_TRUE(whole || now == old) << now.size();
            EXPECT_TRUE(whole || outcome.met);
            // The drive itself may not have been found.
            const bool refused = outcome.told("refused");
            EXPECT_TRUE(whole || outcome.died || refused || outcome.told("could not be copied"))
                << outcome.events;
            if (outcome.died) return;
            for (const std::string& file : outcome.drive.files()) {
              EXPECT_EQ(file.find(".norvik-"), std::string::npos) << file << " was left behind";
            }
          }};
}

FileTool renumbering() {
  return {"Renumbering",
          {{"seq/1.obj", "one"}, {"seq/2.obj", "two"}, {"seq/4.obj", "four"}},
          "setting Startup PLoc C:\\Poser\\\nstart\nload FormRenumber\ntype FormRenumber.Dir1 "
          "C:\\seq\n",
          "click FormRenumber.CommandGo\n",
          [](const Outcome& outcome) {
            expectAtOneOf(outcome, "seq/1.obj", "seq/001.obj", "one");
            expectAtOneOf(outcome, "seq/2.obj", "seq/002.obj", "two");
            EXPECT_EQ(outcome.read("seq/4.obj"), "four");
          }};
}

struct Case {
  FileTool tool;
  HostFault fault;
};

class InstallerFaultsTest : public testing::TestWithParam<Case> {
 protected:
  bool runWithFaultAt(std::uint64_t n) {
    const auto& [tool, fault] = GetParam();
    const TemporaryFolder drive;
    for (const auto& [name, bytes] : tool.files) drive.write(name, bytes);
    drive.makeFolder("d");
    FaultyHost host(*real_);
    if (fault.separateFolders) host.separateFolders();
    ScriptedWorkbench workbench(host, drive.path());
    workbench.session().disk.mount('D', drive.path("d"));
    workbench.run(tool.opening);
    EXPECT_EQ(workbench.outcome().exitCode(), 0) << workbench.takeEvents();
    workbench.takeEvents();
    host.setFault(fault.fault, n, fault.error);
    workbench.run(tool.running);
    const bool met = host.faultMet();
    host.clearFault();
    const bool died = fault.fault == Fault::killed || fault.fault == Fault::powerLost;
    tool.judge({drive, workbench.takeEvents(), met, died});
    return met;
  }

 private:
  std::unique_ptr<text::HostOps> real_ = text::makePosixHost();
};

TEST_P(InstallerFaultsTest, NoBytesAreLost) {
  constexpr std::uint64_t kMost = 3000;
  std::uint64_t n = 1;
  while (n < kMost && runWithFaultAt(n) && !HasFailure()) ++n;
  EXPECT_LT(n, kMost);
}

std::vector<Case> allCases() {
  std::vector<Case> cases;
  for (const FileTool& tool :
       {installation(), removal(), backup(""), backup("an older picture"), renumbering()}) {
    for (const HostFault& fault : allHostFaults()) {
      // The history has tests of its own for what is deleted and replaced.
      if (!fault.history) cases.push_back({tool, fault});
    }
  }
  return cases;
}

std::string caseName(const testing::TestParamInfo<Case>& info) {
  return info.param.tool.name + info.param.fault.name;
}

INSTANTIATE_TEST_SUITE_P(Install, InstallerFaultsTest, testing::ValuesIn(allCases()), caseName);

}  // namespace

}  // namespace norvik::tests
