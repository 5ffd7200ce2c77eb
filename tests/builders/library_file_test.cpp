// Library files whose geometry moves out to an OBJ. The list of parts is filled by hand: what the
// operator chooses in it is all that the builder reads.

#include "support/faulty_host.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::tests {

namespace {

constexpr const char* kObj = "v 0 0 0\r\nv 1 0 0\r\nv 0 1 0\r\nf 1 2 3\r\n";
constexpr const char* kOver = "If you have a file called ";

/// Lines with the ends that files have.
std::string lines(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (c == '\n') result += '\r';
    result += c;
  }
  return result;
}

const std::string kBlock = lines(
    "\t{\n\tstorageOffset 0 0 0\n\tgeomCustom\n\t\t{\n\t\tnumbVerts 3\n\t\tv 0 0 0\n"
    "\t\tv 1 0 0\n\t\tv 0 1 0\n\t\tf 1 2 3\n\t\t}\n\t}\n");
const std::string kPropEnd = lines("prop hat\n\t{\n\tname\tHat\n\tmaterial cloth\n\t}\n}\n");
const std::string kProps =
    lines("{\nversion\n\t{\n\tnumber 4.01\n\t}\nprop pin\n\t{\n\t}\nprop hat:2\n") + kBlock +
    kPropEnd;

const std::string kStorage = lines("\t{\n\tstorageOffset 1 2 3\n\tgeomHandlerGeom 13 x\n\t}\n");
const std::string kHead = lines("{\nversion\n\t{\n\tnumber 4.01\n\t}\n");
const std::string kReference = lines("figureResFile :Runtime:Geometries:Doll:doll.obj\n");
const std::string kParts =
    lines("\t{\n\tname\tBody\n\t}\nactor head:1\n\t{\n\tname\tHead\n\t}\n}\n");
const std::string kBody = lines("actor BODY:1\n");
const std::string kHeadActor = lines("actor head:1\n");

/// A figure with its geometry in the head; the references where they are given.
std::string figure(const std::string& first, const std::string& second) {
  return kHead + first + kBody + kStorage + kHeadActor + kBlock +
         lines("prop ring:1\n\t{\n\tstorageOffset 0 0 0\n\t}\n") + second + kBody + kParts;
}

const std::string kNewReference = lines("figureResFile :Runtime:Geometries:my:newmy.obj\n");
const std::string kResult = kHead + kNewReference + kBody + lines("\t{\n\t}\n") + kHeadActor +
                            lines("\t{\n\tstorageOffset 0 0 0\n\tgeomHandlerGeom 13 head\n\t}\n") +
                            lines("prop ring:1\n\t{\n\tstorageOffset 0 0 0\n\t}\n") +
                            kNewReference + kBody + kParts;

class LibraryFileTest : public testing::Test {
 protected:
  /// Opens the file and chooses a part of it in the list.
  void open(const std::string& name, const std::string& bytes, const std::string& part) {
    drive_.write(name, bytes);
    drive_.makeFolder("Poser/Runtime/Geometries/Doll");
    std::string path = name;
    for (char& c : path) c = c == '/' ? '\\' : c;
    workbench_.run("setting Startup PLoc C:\\Poser\\\nstart\nchoose C:\\" + path +
                   "\nclick MenuFileOpen\n");
    workbench_.opening().ListOBJExtract.add("DONE");
    workbench_.opening().ListOBJExtract.add(part);
    workbench_.opening().ListOBJExtract.choose(1);
    workbench_.takeEvents();
  }

  std::string build(const std::string& answers) {
    workbench_.run(answers + "click menuNewCR2ExtOBJ\n");
    return workbench_.takeEvents();
  }

  TemporaryFolder drive_;
  std::unique_ptr<text::HostOps> real_ = text::makePosixHost();
  FaultyHost host_{*real_};
  ScriptedWorkbench workbench_{host_, drive_.path()};
};

constexpr const char* kYes = "answer OK\nanswer OK\n";

TEST_F(LibraryFileTest, PropGetsABlockThatRefersToTheObj) {
  open("my.props/my.hat.pp2", kProps, "hat:2");
  const std::string events = build(kYes);
  EXPECT_EQ(drive_.read("Poser/Runtime/Geometries/my/newmy.obj"), kObj);
  EXPECT_EQ(drive_.read("my.props/newmy.hat.pp2"),
            lines("{\nversion\n\t{\n\tnumber 4.01\n\t}\nprop pin\n\t{\n\t}\nprop hat:2\n\t{\n"
                  "\tstorageOffset 0 0.3487 0\n"
                  "\tobjFileGeom 0 0 :Runtime:Geometries:my:newmy.obj\n\t}\n") +
                kPropEnd);
  EXPECT_EQ(drive_.read("my.props/my.hat.pp2"), kProps);
  EXPECT_FALSE(drive_.exists("my.props/newmy.obj"));
  EXPECT_EQ(
      events,
      "{\"event\":\"box\",\"title\":\"ALERT!\",\"text\":\"If you have a file called newmy.obj "
      "it will be overwritten!\",\"style\":1,\"answer\":\"OK\"}\n"
      "{\"event\":\"box\",\"title\":\"ALERT!\",\"text\":\"If you have a file called newmy.obj "
      "it will be overwritten!\",\"style\":1,\"answer\":\"OK\"}\n"
      "{\"event\":\"box\",\"title\":\"Note!\",\"text\":\"New file saved as "
      "C:\\\\my.props\\\\newmy.hat.pp2, you may place it where you wish in the Library.  The "
      "OBJ is located as Runtime\\\\Geometries\\\\my\\\\newmy.obj\",\"style\":0,\"answer\":"
      "\"OK\"}\n");
}

TEST_F(LibraryFileTest, FigureRefersToTheObjTwice) {
  open("my.cr2", figure(kReference, kReference), "head:1");
  build(kYes);
  EXPECT_EQ(drive_.read("newmy.cr2"), kResult);
  EXPECT_EQ(drive_.read("Poser/Runtime/Geometries/my/newmy.obj"), kObj);
}

TEST_F(LibraryFileTest, MissingReferencesStandInFrontOfTheActors) {
  open("my.cr2", figure({}, kReference), "head:1");
  build(kYes);
  EXPECT_EQ(drive_.read("newmy.cr2"), kResult);
}

TEST_F(LibraryFileTest, SecondSectionBeginsAtAnActorThatComesAgain) {
  open("my.cr2", figure(kReference, {}), "head:1");
  build(kYes);
  EXPECT_EQ(drive_.read("newmy.cr2"), kResult);
}

TEST_F(LibraryFileTest, OlderFilesAreReplaced) {
  drive_.write("newmy.obj", "old");
  drive_.write("newmy.cr2", "old");
  drive_.write("Poser/Runtime/Geometries/my/NEWMY.OBJ", "old");
  open("my.cr2", figure(kReference, kReference), "head:1");
  build(kYes);
  EXPECT_EQ(drive_.read("newmy.cr2"), kResult);
  EXPECT_FALSE(drive_.exists("newmy.obj"));
  EXPECT_EQ(drive_.read("Poser/Runtime/Geometries/my/newmy.obj"), kObj);
}

TEST_F(LibraryFileTest, CancelLeavesTheObjBesideTheSource) {
  open("my.cr2", figure(kReference, kReference), "head:1");
  EXPECT_NE(build("answer OK\nanswer Cancel\n").find(kOver), std::string::npos);
  EXPECT_EQ(drive_.read("newmy.obj"), kObj);
  EXPECT_FALSE(drive_.exists("newmy.cr2"));
  EXPECT_FALSE(drive_.exists("Poser/Runtime/Geometries/my/newmy.obj"));
}

TEST_F(LibraryFileTest, FirstCancelDoesNothing) {
  drive_.write("newmy.obj", "old");
  open("my.cr2", figure(kReference, kReference), "head:1");
  build("answer Cancel\n");
  EXPECT_EQ(drive_.read("newmy.obj"), "old");
  EXPECT_FALSE(drive_.exists("newmy.cr2"));
}

TEST_F(LibraryFileTest, GeometryThatDoesNotEndLeavesNoCopy) {
  const std::string cut = kProps.substr(0, kProps.find("f 1 2 3"));
  open("my.pp2", cut, "hat:2");
  EXPECT_NE(build(kYes).find("\"number\":62"), std::string::npos);
  EXPECT_FALSE(drive_.exists("newmy.pp2"));
}

TEST_F(LibraryFileTest, PartThatIsNotAtTheLineStartLeavesNoCopy) {
  std::string indented = kProps;
  indented.replace(indented.find("prop hat:2"), 4, "\tprop");
  open("my.pp2", indented.substr(0, indented.find("prop hat\r")), "hat:2");
  EXPECT_NE(build(kYes).find("\"number\":62"), std::string::npos);
  EXPECT_FALSE(drive_.exists("newmy.pp2"));
  EXPECT_FALSE(drive_.exists("Norvik/ExtOBJ.tmp"));
}

struct FaultCase {
  Fault fault;
  int error;
};

/// At the N-th operation the host fails: the source never changes, and the copy is the old or the
/// new one, whole.
TEST(LibraryFileFaultsTest, CopyIsOldOrNew) {
  const auto real = text::makePosixHost();
  const std::string source = figure(kReference, kReference);
  for (const FaultCase& test : {FaultCase{Fault::error, EIO}, FaultCase{Fault::fullDisk, 0},
                                FaultCase{Fault::killed, 0}, FaultCase{Fault::powerLost, 0}}) {
    constexpr std::uint64_t kMost = 500;
    bool met = true;
    std::uint64_t n = 1;
    for (; met && n < kMost; ++n) {
      const TemporaryFolder drive;
      drive.write("figures/my.cr2", source);
      drive.write("figures/newmy.cr2", "an older copy\r\n");
      drive.makeFolder("Poser/Runtime/Geometries/Doll");
      drive.makeFolder("Poser/Runtime/Geometries/my");
      FaultyHost host(*real);
      ScriptedWorkbench workbench(host, drive.path());
      workbench.run(
          "setting Startup PLoc C:\\Poser\\\nstart\n"
          "choose C:\\figures\\my.cr2\nclick MenuFileOpen\n");
      workbench.opening().ListOBJExtract.add("head:1");
      workbench.opening().ListOBJExtract.choose(0);
      workbench.takeEvents();
      host.setFault(test.fault, n, test.error);
      workbench.run(std::string{kYes} + "click menuNewCR2ExtOBJ\n");
      met = host.faultMet();
      host.clearFault();
      const std::string events = workbench.takeEvents();
      ASSERT_EQ(drive.read("figures/my.cr2"), source) << n;
      const std::string copy = drive.read("figures/newmy.cr2");
      const bool isNew = copy == kResult;
      ASSERT_TRUE(isNew || copy == "an older copy\r\n") << n << "\n" << events;
      ASSERT_TRUE(isNew || met) << events;
      ASSERT_TRUE(isNew || events.find("runtime-error") != std::string::npos) << events;
    }
    EXPECT_GT(n, 2U);
    EXPECT_LT(n, kMost);
  }
}

/// The same for a null figure and a master: what they read never changes.
TEST(FigureBuilderFaultsTest, SourceStaysAsItWas) {
  const auto real = text::makePosixHost();
  const std::string source =
      figure(kReference, kReference).substr(0, figure(kReference, kReference).size() - 3) +
      lines(
          "figure\n\t{\n\tname    Figure 1\n\tdisplayOn 1\n\tallowsBending 1\n\tmaterial skin\n"
          "\tdisplayMode USEPARENT\n\tone\n\ttwo\n\t}\n}\n");
  for (const char* entry : {"menuNullFig", "MenuAnyMasterStandard"}) {
    constexpr std::uint64_t kMost = 500;
    bool met = true;
    for (std::uint64_t n = 1; met && n < kMost; ++n) {
      const TemporaryFolder drive;
      drive.write("figures/my.cr2", source);
      drive.makeFolder("Poser/Runtime/Geometries/Doll");
      FaultyHost host(*real);
      ScriptedWorkbench workbench(host, drive.path());
      workbench.run(
          "setting Startup PLoc C:\\Poser\\\nstart\n"
          "choose C:\\figures\\my.cr2\nclick MenuFileOpen\n");
      workbench.takeEvents();
      host.setFault(Fault::error, n, EIO);
      workbench.run(std::string{"click "} + entry + "\n");
      met = host.faultMet();
      host.clearFault();
      const std::string events = workbench.takeEvents();
      ASSERT_EQ(drive.read("figures/my.cr2"), source);
      const bool done = events.find("\"box\"") != std::string::npos;
      ASSERT_TRUE(done || events.find("runtime-error") != std::string::npos) << events;
    }
  }
}

}  // namespace

}  // namespace norvik::tests
