// Whole runs: where drives, folders and settings come from, and what is stored for the next run.

#include "headless/script_bench.h"
#include "support/understood.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace norvik::headless {
namespace {

const char* const kShown = R"({"event":"form","form":"Opening","state":"shown"})";

class Runs : public ::testing::Test {
 protected:
  Runs() { std::filesystem::create_directories(drive()); }

  std::string drive() const { return folder / "drive"; }
  std::string store() const { return folder / "norvik.ini"; }

  Options options() const {
    Options options;
    options.drives = {{'C', drive()}};
    options.currentFolder = "C:\\";
    options.settings = store();
    return options;
  }
  RunResult run(const std::string& script) const { return runWith(options(), script); }

  /// A stored value, read as the next run does.
  std::string stored(const std::string& section, const std::string& key) const {
    const auto host = text::makePosixHost();
    return front::Settings(*host, store()).get(section, key, "(none)");
  }
  void storeValue(const std::string& section, const std::string& key,
                  const std::string& value) const {
    const auto host = text::makePosixHost();
    front::Settings(*host, store()).set(section, key, value);
  }

  /// The folder that the next dialog opens in.
  static std::string dialogFolder(const Options& options) {
    const RunResult result =
        runWith(options, "setting Startup PLoc C:\\Poser\\\nstart\ncancel\nclick MenuFileOpen\n");
    const std::string key = R"("folder":")";
    const std::string& event = result.events.at(1);
    const auto from = event.find(key) + key.size();
    return event.substr(from, event.find('"', from) - from);
  }

  BenchFolder folder;
};

TEST_F(Runs, TheFirstStartStoresWhereEverythingIs) {
  EXPECT_EQ(run("choose C:\\Program Files\\Poser 4\\Poser.exe\nstart\n").code, kDone);
  EXPECT_EQ(stored("Startup", "PLoc"), "C:\\Program Files\\Poser 4\\");
  EXPECT_EQ(stored("Startup", "NorvikLoc"), "C:\\Norvik");
  EXPECT_EQ(stored("Startup", "Ver"), "5.12");
  EXPECT_TRUE(std::filesystem::is_directory(drive() + "/Norvik/cr2install"));
  // The second start asks nothing.
  EXPECT_EQ(run("start\n").events, (Lines{kShown}));
}

TEST_F(Runs, ACancelledFirstStartStoresAnEmptyLocation) {
  EXPECT_EQ(run("cancel\nstart\n").code, kDone);
  EXPECT_EQ(stored("Startup", "PLoc"), "");
  EXPECT_EQ(run("start\n").events, (Lines{kShown}));
}

TEST_F(Runs, AnUnansweredFirstStartStoresNothing) {
  EXPECT_EQ(run("start\n").code, kUnanswered);
  EXPECT_EQ(stored("Startup", "PLoc"), "(none)");
}

TEST_F(Runs, TheProgramFolderIsStoredOnceAndTheVersionAtEachStart) {
  storeValue("Startup", "PLoc", "C:\\Poser\\");
  storeValue("Startup", "NorvikLoc", "D:\\Elsewhere");
  storeValue("Startup", "Ver", "4.00");
  run("start\n");
  EXPECT_EQ(stored("Startup", "NorvikLoc"), "D:\\Elsewhere");
  EXPECT_EQ(stored("Startup", "Ver"), "5.12");
  storeValue("Startup", "NorvikLoc", "0");
  run("start\n");
  EXPECT_EQ(stored("Startup", "NorvikLoc"), "C:\\Norvik");
}

TEST_F(Runs, TheRecentFilesAreStoredAtTheExit) {
  folder.write("drive/a.obj", "v 0 0 0\r\n");
  folder.write("drive/b.obj", "v 0 0 0\r\n");
  const std::string open =
      "setting Startup PLoc C:\\Poser\\\nstart\nchoose C:\\a.obj\nclick MenuFileOpen\n"
      "choose C:\\b.obj\nclick MenuFileOpen\n";
  EXPECT_EQ(run(open).code, kDone);
  EXPECT_EQ(stored("MRUFiles", "0"), "(none)") << "without an exit nothing is stored";
  EXPECT_EQ(run(open + "exit\n").code, kDone);
  EXPECT_EQ(stored("MRUFiles", "0"), "C:\\a.obj");
  EXPECT_EQ(stored("MRUFiles", "1"), "C:\\b.obj");
  EXPECT_EQ(stored("MRUFiles", "2"), "(none)");
  EXPECT_EQ(run("start\nexpect ListMRU items C:\\a.obj|C:\\b.obj\n").code, kDone);
}

TEST_F(Runs, KeysOfALongerListStay) {
  storeValue("Startup", "PLoc", "C:\\Poser\\");
  for (int i = 0; i < 12; ++i) {
    storeValue("MRUFiles", std::to_string(i), "C:\\f" + std::to_string(i) + ".cr2");
  }
  run("start\nexit\n");
  EXPECT_EQ(stored("MRUFiles", "0"), "C:\\f2.cr2");
  EXPECT_EQ(stored("MRUFiles", "9"), "C:\\f11.cr2");
  // The load stops only at an empty value: the old keys are read behind the new ones.
  EXPECT_EQ(stored("MRUFiles", "10"), "C:\\f10.cr2");
  EXPECT_EQ(stored("MRUFiles", "11"), "C:\\f11.cr2");
}

TEST_F(Runs, AnExitWithAnEmptyListStoresNoFile) {
  run("setting Startup PLoc C:\\Poser\\\nstart\nexit\n");
  EXPECT_EQ(stored("MRUFiles", "0"), "(none)");
}

TEST_F(Runs, SettingsMadeByTheScriptAreStored) {
  run("setting Startup PLoc  D:\\With blanks \\ \n");
  EXPECT_EQ(stored("Startup", "PLoc"), " D:\\With blanks \\ ");
}

TEST_F(Runs, WithoutAStoreSettingsLastForTheRun) {
  Options options = this->options();
  options.settings.clear();
  EXPECT_EQ(runWith(options, "setting Startup PLoc C:\\Poser\\\nstart\n").code, kDone);
  EXPECT_EQ(runWith(options, "start\n").code, kUnanswered) << "the location is asked for again";
}

TEST_F(Runs, TheStoreIsMadeWithItsFolder) {
  Options options = this->options();
  options.settings = folder / "made/deeper/norvik.ini";
  EXPECT_EQ(runWith(options, "setting Startup PLoc C:\\Poser\\\n").code, kDone);
  EXPECT_NE(folder.read("made/deeper/norvik.ini").find("PLoc=C:\\Poser\\"), std::string::npos);
}

TEST_F(Runs, ThePartsOfTheStoreThatAreNotOursStay) {
  folder.write("norvik.ini", "; mine\n[Startup]\nPLoc=C:\\Poser\\\n\n[Other]\nKey=value\n");
  run("start\n");
  EXPECT_EQ(stored("Other", "Key"), "value");
  EXPECT_EQ(folder.read("norvik.ini").find("; mine\n"), 0U);
}

TEST_F(Runs, EachDriveIsAFolder) {
  folder.write("other/mesh.obj", "v 0 0 0\r\n");
  Options options = this->options();
  options.drives.emplace_back('d', folder / "other");
  const RunResult result = runWith(
      options,
      "setting Startup PLoc C:\\Poser\\\nstart\nchoose D:\\Mesh.OBJ\nclick MenuFileOpen\n"
      "expect LabelOBJFileName caption D:\\Mesh.OBJ\nchoose E:\\mesh.obj\nclick MenuFileOpen\n");
  EXPECT_EQ(result.code, kDone);
  EXPECT_EQ(
      result.events.back(),
      R"({"event":"runtime-error","number":76,"text":"Path not found","path":"E:\\mesh.obj"})");
}

TEST_F(Runs, DriveZIsTheWholeHostUnlessGivenAnotherFolder) {
  folder.write("drive/mesh.obj", "v 0 0 0\r\n");
  std::string path = "Z:" + drive() + "/mesh.obj";
  std::replace(path.begin(), path.end(), '/', '\\');
  const std::string script = "setting Startup PLoc C:\\Poser\\\nstart\nchoose " + path +
                             "\nclick MenuFileOpen\nexpect LabelOBJFileName visible true\n";
  EXPECT_EQ(run(script).code, kDone);
  Options options = this->options();
  options.drives.emplace_back('Z', folder / "drive");
  EXPECT_EQ(runWith(options, script).code, kExpectationFailed);
}

TEST_F(Runs, TheCurrentFolderIsTheHostsOnTheClosestDrive) {
  const auto before = std::filesystem::current_path();
  std::filesystem::create_directories(drive() + "/figures");
  std::filesystem::current_path(drive() + "/figures");
  Options options = this->options();
  options.currentFolder.clear();
  const std::string onDrive = dialogFolder(options);
  options.drives = {{'C', folder / "elsewhere"}};
  std::filesystem::create_directories(folder / "elsewhere");
  std::string host = "Z:" + std::filesystem::current_path().string();
  const std::string onHost = dialogFolder(options);
  std::filesystem::current_path(before);

  EXPECT_EQ(onDrive, "C:\\\\figures");
  std::string wanted;
  for (const char c : host) wanted += c == '/' ? "\\\\" : std::string{c};
  EXPECT_EQ(onHost, wanted);
}

TEST_F(Runs, WithoutDriveCTheProgramFolderIsTheUsersDataFolder) {
  const char* const old = std::getenv("XDG_DATA_HOME");
  const std::string kept = old == nullptr ? "" : old;
  ::setenv("XDG_DATA_HOME", (folder / "data").c_str(), 1);
  Options options = this->options();
  options.drives.clear();
  options.currentFolder = "Z:\\";
  const RunResult result = runWith(options, "setting Startup PLoc Z:\\\nstart\nclick MenuPStart\n");
  if (old == nullptr) {
    ::unsetenv("XDG_DATA_HOME");
  } else {
    ::setenv("XDG_DATA_HOME", kept.c_str(), 1);
  }

  EXPECT_EQ(result.code, kDone);
  bool made = false;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder / "data")) {
    made = made || entry.path().filename() == "cr2install";
  }
  EXPECT_TRUE(made);
  EXPECT_EQ(result.events.back().find(R"({"event":"run","command":"Z:\\)"), 0U);
}

TEST_F(Runs, ThePathOfTheCommandLineIsTakenAsItStands) {
  folder.write("drive/mesh.obj", "v 0 0 0\r\n");
  Options options = this->options();
  options.open = "C:\\mesh.obj";
  EXPECT_EQ(runWith(options,
                    "setting Startup PLoc C:\\Poser\\\nstart\n"
                    "expect LabelOBJFileName caption C:\\mesh.obj\n")
                .code,
            kDone);
  options.open = "\"C:\\mesh.obj\"";
  EXPECT_EQ(runWith(options,
                    "setting Startup PLoc C:\\Poser\\\nstart\n"
                    "expect LabelOBJFileName caption \n")
                .code,
            kDone);
}

TEST_F(Runs, CommandsBehindTheEndAreNotRun) {
  const RunResult result = run("exit\nnonsense\n");
  EXPECT_EQ(result.code, kDone);
  EXPECT_EQ(result.events.back(), R"({"event":"end"})");
}

TEST_F(Runs, FoldersThatCannotBeUsedAreBadOptions) {
  const auto bad = [](const Options& options) {
    try {
      runWith(options, "");
    } catch (const workbench::BadOption&) {
      return true;
    }
    return false;
  };
  Options options = this->options();
  options.currentFolder = "C:\\nowhere";
  EXPECT_TRUE(bad(options));
  options = this->options();
  folder.write("drive/file", "");
  options.program = "C:\\file";
  EXPECT_TRUE(bad(options));
  options = this->options();
  options.program = "Q:\\Norvik";
  EXPECT_TRUE(bad(options));
  options = this->options();
  options.settings = drive();
  EXPECT_TRUE(bad(options)) << "a folder in the store's place";
  options.settings = drive() + "/file/norvik.ini";
  EXPECT_TRUE(bad(options)) << "a file in the place of the store's folder";
  options.settings = "/proc/norvik.ini";
  EXPECT_TRUE(bad(options)) << "a folder that takes no files";
}

TEST_F(Runs, ASettingsFileThatIsMissingIsMade) {
  Options options = this->options();
  options.settings = folder / "new folder/norvik.ini";
  EXPECT_EQ(runWith(options, "").code, kDone);
  EXPECT_EQ(folder.read("new folder/norvik.ini"), "");
  EXPECT_EQ(runWith(options, "setting A b c\n").code, kDone);
  EXPECT_EQ(folder.read("new folder/norvik.ini"), "[A]\nb=c\n");
  EXPECT_EQ(runWith(options, "").code, kDone);
  EXPECT_EQ(folder.read("new folder/norvik.ini"), "[A]\nb=c\n");
}

bool understood(const std::vector<std::string>& arguments) {
  return tests::understood(parseOptions, arguments);
}

TEST(RunnerOptions, HaveTheirDefaults) {
  const Options options = parseOptions({});
  EXPECT_TRUE(options.drives.empty());
  EXPECT_EQ(options.program, "");
  EXPECT_EQ(options.settings, "");
  EXPECT_EQ(options.open, "");
  EXPECT_EQ(options.script, "-");
  EXPECT_EQ(options.frontEnd.screenWidth, 1024);
  EXPECT_EQ(options.frontEnd.screenHeight, 768);
  EXPECT_EQ(options.frontEnd.clock, "");
  EXPECT_FALSE(options.help);
  EXPECT_FALSE(options.version);
}

TEST(RunnerOptions, AreTakenInBothForms) {
  const Options options =
      parseOptions({"--program", "C:\\A b", "--cwd=C:\\x=y", "--screen", "800x600", "--clock",
                    "2002-03-04 05:06:07", "--settings=s.ini", "--open", "C:\\a b.cr2", "-"});
  EXPECT_EQ(options.program, "C:\\A b");
  EXPECT_EQ(options.currentFolder, "C:\\x=y");
  EXPECT_EQ(options.frontEnd.screenWidth, 800);
  EXPECT_EQ(options.frontEnd.screenHeight, 600);
  EXPECT_EQ(options.frontEnd.clock, "2002-03-04 05:06:07");
  EXPECT_EQ(options.settings, "s.ini");
  EXPECT_EQ(options.open, "C:\\a b.cr2");
  EXPECT_EQ(options.script, "-");
  EXPECT_EQ(parseOptions({"--open", ""}).open, "");
  EXPECT_EQ(parseOptions({"my script"}).script, "my script");
}

TEST(RunnerOptions, DrivesRepeat) {
  const BenchFolder folder;
  const Options options = parseOptions({"--drive", "C=" + folder.path(), "--drive", "D=/"});
  ASSERT_EQ(options.drives.size(), 2U);
  EXPECT_EQ(options.drives[0], std::make_pair('C', folder.path()));
  EXPECT_EQ(options.drives[1], std::make_pair('D', std::string{"/"}));
}

TEST(RunnerOptions, AreRefusedWhenTheyMakeNoSense) {
  EXPECT_FALSE(understood({"--nonsense"}));
  EXPECT_FALSE(understood({"--open"}));
  EXPECT_FALSE(understood({"--screen", "x600"}));
  EXPECT_FALSE(understood({"--screen", "800"}));
  EXPECT_FALSE(understood({"--screen", "800x-1"}));
  EXPECT_FALSE(understood({"--screen", "800X600"}));
  EXPECT_FALSE(understood({"--clock", "2002-03-04T05:06:07"}));
  EXPECT_FALSE(understood({"--clock", "2002-3-4 5:6:7"}));
  EXPECT_FALSE(understood({"--drive", "C"}));
  EXPECT_FALSE(understood({"--drive", "CC=/"}));
  EXPECT_FALSE(understood({"--drive", "=/"}));
  EXPECT_FALSE(understood({"--drive", "C=/etc/passwd"}));
  EXPECT_FALSE(understood({"one", "two"}));
  EXPECT_TRUE(understood({"--help"}));
  EXPECT_TRUE(understood({"--version"}));
}

TEST(RunnerOptions, AreAllInTheHelp) {
  const std::string help = kHelp;
  for (const char* option : {"--drive L=FOLDER", "--program PATH", "--cwd PATH", "--settings FILE",
                             "--screen WxH", "--clock", "--open PATH", "--help", "--version"}) {
    EXPECT_NE(help.find(option), std::string::npos) << option;
  }
}

}  // namespace
}  // namespace norvik::headless
