#include "front/settings.h"

#include "support/error_number.h"
#include "support/faulty_host.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::front {

namespace {

using tests::errorNumber;
using tests::Fault;
using tests::FaultyHost;
using tests::TemporaryFolder;

class SettingsTest : public testing::Test {
 protected:
  Settings open() { return {*host_, folder_.path("norvik.ini")}; }
  /// What the store's file says after a value is set in a file of this text.
  std::string after(std::string_view text, std::string_view section, std::string_view key,
                    std::string_view value) {
    folder_.write("norvik.ini", text);
    open().set(section, key, value);
    return folder_.read("norvik.ini");
  }
  std::string get(std::string_view text, std::string_view section, std::string_view key) {
    folder_.write("norvik.ini", text);
    return open().get(section, key, "none");
  }

  TemporaryFolder folder_;
  std::unique_ptr<text::HostOps> host_ = text::makePosixHost();
};

TEST_F(SettingsTest, InMemoryKeepsValues) {
  Settings settings;
  EXPECT_EQ(settings.get("Startup", "PLoc", "0"), "0");
  settings.set("Startup", "PLoc", "C:\\Poser\\");
  settings.set("Startup", "Ver", "5");
  settings.set("Other", "PLoc", "x");
  EXPECT_EQ(settings.get("Startup", "PLoc", "0"), "C:\\Poser\\");
  EXPECT_EQ(settings.get("STARTUP", "ploc", "0"), "C:\\Poser\\");
  EXPECT_EQ(settings.get("Other", "PLoc", "0"), "x");
  EXPECT_EQ(settings.get("Other", "Ver", "0"), "0");
}

TEST_F(SettingsTest, AMissingFileIsMadeAtTheFirstChange) {
  Settings settings = open();
  EXPECT_EQ(settings.get("Startup", "PLoc", "0"), "0");
  EXPECT_FALSE(folder_.exists("norvik.ini"));
  settings.set("Startup", "PLoc", "C:\\Poser\\");
  EXPECT_EQ(folder_.read("norvik.ini"), "[Startup]\nPLoc=C:\\Poser\\\n");
  EXPECT_EQ(open().get("Startup", "PLoc", "0"), "C:\\Poser\\");
}

TEST_F(SettingsTest, ReadsWhatPeopleWrite) {
  EXPECT_EQ(get("[Startup]\r\nPLoc=C:\\Poser\\\r\n", "Startup", "PLoc"), "C:\\Poser\\");
  EXPECT_EQ(get("[Startup]\nPLoc=x", "Startup", "PLoc"), "x");
  EXPECT_EQ(get("  [startup]  \n  ploc =x=y;z\n", "Startup", "PLoc"), "x=y;z");
  EXPECT_EQ(get("[Startup]\nPLoc=\n", "Startup", "PLoc"), "");
  EXPECT_EQ(get("[Startup]\n;PLoc=x\n#PLoc=y\n", "Startup", "PLoc"), "none");
  EXPECT_EQ(get("PLoc=x\n[Other]\nPLoc=y\n", "Startup", "PLoc"), "none");
  EXPECT_EQ(get("[Startup]\nPLoc\n[\n]\n[x\n", "Startup", "PLoc"), "none");
  EXPECT_EQ(get("[A]\na=1\n[B]\na=2\n[A]\nb=3\n", "A", "b"), "3");
  EXPECT_EQ(get("", "Startup", "PLoc"), "none");
  EXPECT_EQ(get("[Startup]\nPLoc = C:\\Poser\\\n", "Startup", "PLoc"), "C:\\Poser\\");
  EXPECT_EQ(get("[Startup]\nPLoc =  x\n", "Startup", "PLoc"), " x");
  EXPECT_EQ(get("[Startup]\nPLoc= x\n", "Startup", "PLoc"), " x");
  EXPECT_EQ(get("\xEF\xBB\xBF[Startup]\nPLoc=x\n", "Startup", "PLoc"), "x");
}

TEST_F(SettingsTest, AValueTakesItsLineAndAllOthersStay) {
  EXPECT_EQ(after("; mine\nodd\n[Other]\nPLoc=1\n\n[Startup]\n# old\nPLoc=2\nVer=3\n", "startup",
                  "PLOC", "new"),
            "; mine\nodd\n[Other]\nPLoc=1\n\n[Startup]\n# old\nPLOC=new\nVer=3\n");
  EXPECT_EQ(after("\xEF\xBB\xBF[A]\na = 1\nb = 2\n", "A", "a", " 3"),
            "\xEF\xBB\xBF[A]\na= 3\nb = 2\n");
}

TEST_F(SettingsTest, ANewKeyGoesBehindTheLastOfItsSection) {
  EXPECT_EQ(after("[A]\na=1\n\n[B]\nb=2\n", "A", "c", "3"), "[A]\na=1\nc=3\n\n[B]\nb=2\n");
  EXPECT_EQ(after("[A]\na=1\n\n[B]\nb=2\n", "B", "c", "3"), "[A]\na=1\n\n[B]\nb=2\nc=3\n");
  EXPECT_EQ(after("[A]\n[B]\n", "A", "c", "3"), "[A]\nc=3\n[B]\n");
  EXPECT_EQ(after("[A]\n[B]\n", "B", "c", "3"), "[A]\n[B]\nc=3\n");
  EXPECT_EQ(after("[A]\na=1\n", "C", "c", "3"), "[A]\na=1\n[C]\nc=3\n");
  EXPECT_EQ(after("[A]\na=1", "A", "b", "2"), "[A]\na=1\nb=2\n");
}

TEST_F(SettingsTest, ValuesAreBytesWithoutALineEnd) {
  const std::string odd = " \t=;[x]\xFF\xE4 ";
  folder_.write("norvik.ini", "");
  open().set("A", "a", odd);
  EXPECT_EQ(open().get("A", "a", ""), odd);
  open().set("A", "b", "one\r\ntwo");
  EXPECT_EQ(open().get("A", "b", ""), "one  two");
}

TEST_F(SettingsTest, SeveralValuesAreOneWrite) {
  FaultyHost faulty(*host_);
  Settings settings(faulty, folder_.path("norvik.ini"));
  faulty.clearFault();
  settings.set("A", "a", "1");
  const auto one = faulty.operations();
  faulty.clearFault();
  settings.set("A", {{"a", "2"}, {"b", "3"}, {"c", "4"}});
  EXPECT_LE(faulty.operations(), one + 2);  // the mode and owner of the file that is there now
  EXPECT_EQ(folder_.read("norvik.ini"), "[A]\na=2\nb=3\nc=4\n");
}

TEST_F(SettingsTest, AValueThatIsThereAlreadyIsNotWritten) {
  folder_.write("norvik.ini", "[A]\r\na=1\r\n");
  FaultyHost faulty(*host_);
  Settings settings(faulty, folder_.path("norvik.ini"));
  faulty.clearFault();
  settings.set("A", "a", "1");
  settings.set("A", Settings::Values{});
  EXPECT_EQ(faulty.operations(), 0U);
}

TEST_F(SettingsTest, AFileThatCannotBeReadIsAnError) {
  folder_.makeFolder("norvik.ini");
  EXPECT_EQ(errorNumber([&] { open(); }), 75);
}

TEST_F(SettingsTest, AMissingFolderIsAnErrorOfTheChange) {
  Settings settings(*host_, folder_.path("missing/norvik.ini"));
  EXPECT_NE(errorNumber([&] { settings.set("A", "a", "1"); }), 0);
  EXPECT_EQ(settings.get("A", "a", "none"), "none");
}

TEST_F(SettingsTest, KeepsModeAndLink) {
  folder_.write("real/norvik.ini", "[A]\na=1\n");
  folder_.setMode("real/norvik.ini", 0600);
  folder_.makeLink("norvik.ini", "real/norvik.ini");
  open().set("A", "a", "2");
  EXPECT_EQ(folder_.read("real/norvik.ini"), "[A]\na=2\n");
  EXPECT_EQ(folder_.mode("real/norvik.ini"), 0600U);
  EXPECT_EQ(folder_.files(), (std::vector<std::string>{"norvik.ini", "real/norvik.ini"}));
  std::string target;
  EXPECT_EQ(host_->readLink(folder_.path("norvik.ini"), target), 0);
}

TEST_F(SettingsTest, TheFileIsTheOldOrTheNewOneWhateverFails) {
  const std::string oldText = "[Startup]\nPLoc=C:\\Poser\\\n; mine\n";
  const std::string newText = "[Startup]\nPLoc=C:\\Poser\\\nVer=5\n; mine\n";
  struct Way {
    Fault fault;
    int error;
  };
  for (const Way way :
       {Way{Fault::error, EIO}, Way{Fault::error, ENOSPC}, Way{Fault::error, EACCES},
        Way{Fault::fullDisk, 0}, Way{Fault::killed, 0}, Way{Fault::powerLost, 0}}) {
    bool met = true;
    for (std::uint64_t n = 1; met; ++n) {
      SCOPED_TRACE("fault " + std::to_string(static_cast<int>(way.fault)) + " at " +
                   std::to_string(n));
      const TemporaryFolder folder;
      folder.write("norvik.ini", oldText);
      FaultyHost faulty(*host_);
      Settings settings(faulty, folder.path("norvik.ini"));
      faulty.setFault(way.fault, n, way.error);
      const bool stored = errorNumber([&] { settings.set("Startup", "Ver", "5"); }) == 0;
      met = faulty.faultMet();
      const std::string text = folder.read("norvik.ini");
      EXPECT_TRUE(text == oldText || text == newText) << text;
      EXPECT_EQ(settings.get("Startup", "Ver", "none"), stored ? "5" : "none");
      const bool died = met && (way.fault == Fault::killed || way.fault == Fault::powerLost);
      if (!died) {
        EXPECT_EQ(text, stored ? newText : oldText);
        EXPECT_EQ(folder.files(), std::vector<std::string>{"norvik.ini"});
      }
      // Whatever was left behind, the next change gets through.
      Settings(*host_, folder.path("norvik.ini")).set("Startup", "Ver", "5");
      EXPECT_EQ(folder.read("norvik.ini"), newText);
      if (HasFailure()) return;
    }
  }
}

}  // namespace

}  // namespace norvik::front
