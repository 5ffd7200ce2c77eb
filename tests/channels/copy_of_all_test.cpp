// Copies every morph and every link of every part from one figure to another and holds each result
// against a plain model of the copy, byte for byte.
//
// The figures are the sample's; NORVIK_FIGURES names another Poser folder to try, whose figures are
// the .cr2 files in and below Runtime/Libraries/Characters.

#include "channels/naive_copy.h"
#include "support/faulty_host.h"
#include "support/scripted_workbench.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <set>

namespace norvik::tests {

namespace {

namespace fs = std::filesystem;

constexpr const char* kResult = "result.cr2";

/// How many copies of each kind were compared.
struct Tally {
  int morphs = 0;
  int links = 0;
  int secondLinks = 0;
  int refused = 0;  ///< the morph is not in the destination, or has another name than its dial
};

std::string systemPath(const fs::path& relative) {
  std::string path = "C:\\" + relative.generic_string();
  std::replace(path.begin(), path.end(), '/', '\\');
  return path;
}

/// A destination and a source, open in the program.
class Pair {
 public:
  Pair(text::HostOps& host, const TemporaryFolder& drive, const fs::path& destination,
       const fs::path& source)
      : drive_(drive),
        destinationBytes_(drive.read(destination.string())),
        sourceBytes_(drive.read(source.string())),
        destination_(linesOf(destinationBytes_)),
        source_(linesOf(sourceBytes_)),
        workbench_(host, drive.path()) {
    workbench_.run("setting Startup PLoc C:\\Poser\\\nstart\nchoose " + systemPath(destination) +
                   "\nclick MenuFileOpen\n");
    expectAllChannels();
    workbench_.run("choose " + systemPath(source) + "\nclick LabelOpenSource\n");
    workbench_.takeEvents();
  }

  void copyAll(Tally& tally) {
    std::set<std::string> done;
    for (const std::string& line : destination_) {
      if (!startsWith(line, "actor ") || contains(line, "BODY")) continue;
      const std::string part = line.substr(6);
      if (done.insert(part).second) copyPart(part, tally);
    }
    EXPECT_GT(done.size(), 1U);
  }

 private:
  void expectAllChannels() {
    const AllChannels wanted = naiveAllChannels(destination_);
    const auto& list = workbench_.opening().ListChannels.items();
    ASSERT_GE(list.size(), 2U);
    EXPECT_EQ(Lines(list.begin() + 2, list.end()), wanted.items);
    EXPECT_EQ(workbench_.opening().ListChannelsReorder.items(), wanted.reorder);
    EXPECT_FALSE(wanted.items.empty());
  }

  void click(const char* control) { workbench_.run(std::string("click ") + control + "\n"); }

  void choosePart(const std::string& part) {
    const auto& entries = workbench_.opening().ListActors.items();
    const auto entry = std::find_if(entries.begin(), entries.end(), [&](const std::string& text) {
      return startsWith(text, "    " + part + " * ");
    });
    ASSERT_NE(entry, entries.end()) << part;
    workbench_.run("select ListActors " + std::to_string(entry - entries.begin()) + "\n");
  }

  void copyPart(const std::string& part, Tally& tally) {
    SCOPED_TRACE(part);
    choosePart(part);
    click("PictureViewChannels");
    const auto channels = naivePartView(source_, part);
    ASSERT_TRUE(channels) << "the figures must have the same parts and figure number";

    Lines wanted{"Channels for  " + part};
    std::vector<std::size_t> lastItems;
    for (const ListedChannel& channel : *channels) {
      for (const std::string& item : itemsOf("", channel)) wanted.push_back(item);
      lastItems.push_back(wanted.size() - 1);
    }
    if (channels->empty()) wanted.emplace_back("NO MORPH CHANNELS FOR THIS PART");
    EXPECT_EQ(workbench_.opening().ListChannels.items(), wanted);

    for (std::size_t i = 0; i < channels->size(); ++i) {
      const ListedChannel& channel = (*channels)[i];
      copy(part, channel, lastItems[i], tally);
      const bool second = i > 0 && channel.isLink && (*channels)[i - 1].isLink &&
                          channel.dial == (*channels)[i - 1].dial;
      if (second) ++tally.secondLinks;
    }
    click("PictureViewChannels");
  }

  void copy(const std::string& part, const ListedChannel& channel, std::size_t item, Tally& tally) {
    SCOPED_TRACE(channel.dial + (channel.isLink ? ", link to " + channel.master : ""));
    const auto colon = part.find(':');
    std::optional<Lines> wanted;
    try {
      wanted =
          naiveCopy(source_, destination_, part.substr(0, colon), part.substr(colon + 1), channel);
    } catch (const EndOfFigure&) {
    }
    std::string script = "select ListChannels " + std::to_string(item) + "\n";
    if (wanted) script += "answer Yes\nchoose C:\\" + std::string(kResult) + "\n";
    workbench_.run(script + "click PictureCopyToDest\n");

    const std::string events = workbench_.takeEvents();
    const bool ended = contains(events, R"("event":"runtime-error","number":62)");
    EXPECT_EQ(ended, !wanted.has_value()) << events;
    if (wanted) {
      EXPECT_TRUE(drive_.read(kResult) == bytesOf(*wanted)) << events;
      ++(channel.isLink ? tally.links : tally.morphs);
    } else {
      ++tally.refused;
    }
  }

  const TemporaryFolder& drive_;
  std::string destinationBytes_;
  std::string sourceBytes_;
  Lines destination_;
  Lines source_;
  ScriptedWorkbench workbench_;
};

/// Copies between all figures of a Poser folder, each way, and says how much that was.
Tally copyBetweenAll(const fs::path& poserFolder) {
  const TemporaryFolder drive;
  fs::copy(poserFolder, drive.path("Poser"), fs::copy_options::recursive);
  std::vector<fs::path> figures;
  for (const auto& entry :
       fs::recursive_directory_iterator(drive.path("Poser/Runtime/Libraries/Characters"))) {
    if (entry.path().extension() != ".cr2") continue;
    fs::permissions(entry.path(), fs::perms::owner_write, fs::perm_options::add);
    figures.push_back(fs::relative(entry.path(), drive.path()));
  }
  std::sort(figures.begin(), figures.end());
  EXPECT_GE(figures.size(), 2U);

  // A host that never waits for the medium.
  const auto real = text::makePosixHost();
  FaultyHost host(*real);
  Tally tally;
  for (const fs::path& destination : figures) {
    for (const fs::path& source : figures) {
      if (source == destination) continue;
      SCOPED_TRACE(source.filename().string() + " to " + destination.filename().string());
      const std::string before = drive.read(destination.string());
      const std::string sourceBefore = drive.read(source.string());
      Pair(host, drive, destination, source).copyAll(tally);
      EXPECT_TRUE(drive.read(destination.string()) == before);
      EXPECT_TRUE(drive.read(source.string()) == sourceBefore);
    }
  }
  std::cout << "compared " << tally.morphs << " morphs and " << tally.links << " links, "
            << tally.secondLinks << " of them second ones; " << tally.refused << " refused\n";
  return tally;
}

TEST(CopyOfAll, SampleFigures) {
  const Tally tally = copyBetweenAll(fs::path(NORVIK_SOURCE_DIR) / "examples/figures");
  EXPECT_GT(tally.morphs, 10);
  EXPECT_GT(tally.links, 10);
  EXPECT_GT(tally.secondLinks, 0);
  EXPECT_GT(tally.refused, 0);
}

TEST(CopyOfAll, FiguresOfTheUser) {
  const char* folder = std::getenv("NORVIK_FIGURES");
  if (folder == nullptr) GTEST_SKIP() << "NORVIK_FIGURES names no Poser folder";
  copyBetweenAll(folder);
}

}  // namespace

}  // namespace norvik::tests
