// Each way of losing a file, with each operation of the host failing in turn, those of the history
// among them: the file is the old or the new one, and its entry is whole or not there.

#include "support/error_number.h"
#include "support/faulty_host.h"
#include "support/temporary_folder.h"
#include "text/disk.h"
#include "text/history.h"
#include "text/line_writer.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace norvik::tests {

namespace {

using text::Disk;
using text::History;

struct Way {
  Fault fault;
  int error;
};

constexpr Way kWays[] = {{Fault::error, EIO},   {Fault::error, EACCES}, {Fault::error, ENOSPC},
                         {Fault::unheard, EIO}, {Fault::fullDisk, 0},   {Fault::killed, 0},
                         {Fault::powerLost, 0}};

/// A step of the disk by which C:\work\f, which holds "old", is to hold `after`.
struct Step {
  std::function<void(Disk&)> carryOut;
  std::string after;     ///< empty: it is gone
  bool inPlace = false;  ///< so that half of it may be written
};

struct Trial {
  TemporaryFolder folder;
  TemporaryFolder store;
  std::uint64_t told = 0;
  std::uint64_t toldKept = 0;
};

std::string now(const TemporaryFolder& folder) {
  return folder.exists("work/f") ? folder.read("work/f") : std::string{};
}

/// What the next start finds in the store: entries of the old file that are whole.
std::size_t wholeEntries(const TemporaryFolder& store) {
  const auto host = text::makePosixHost();
  History history(*host, store.path());
  const auto entries = history.entries();
  for (const auto& entry : entries) {
    EXPECT_EQ(store.read(history.fileOf(entry).substr(store.path().size() + 1)), "old");
    EXPECT_EQ(entry.size, 3U);
    EXPECT_EQ(entry.tool, "PictureTool");
  }
  EXPECT_EQ(store.files().size(), 2 * entries.size());
  return entries.size();
}

void check(const Trial& run, const Step& step, const Way& way, bool met) {
  const std::string text = now(run.folder);
  EXPECT_TRUE(text == "old" || text == step.after || step.inPlace) << text;
  const bool died = way.fault == Fault::killed || way.fault == Fault::powerLost;
  const std::size_t entries = wholeEntries(run.store);
  EXPECT_LE(entries, 2U);
  // The keeping comes first: whoever dies in between has lost nothing.
  if (died && text != "old") {
    EXPECT_GT(entries, 0U) << "lost: " << text;
  }
  if (!died && text == step.after) {
    EXPECT_EQ(run.told, way.fault == Fault::unheard ? run.told : 1U);
    EXPECT_GE(entries, run.toldKept);
  }
  if (!met) {
    EXPECT_EQ(text, step.after);
    EXPECT_EQ(entries, 1U);
  }
}

bool runOnce(Trial& run, const Step& step, bool separate, const Way& way, std::uint64_t n) {
  const auto real = text::makePosixHost();
  FaultyHost host(*real);
  if (separate) host.separateFolders();
  run.folder.write("work/f", "old");
  run.folder.write("new", "newer");
  History history(host, run.store.path());
  history.setListener([&run](const text::HistoryEntry& entry) {
    ++run.told;
    if (entry.number != 0) ++run.toldKept;
  });
  Disk disk(host);
  disk.mount('C', run.folder.path());
  disk.setHistory(&history);
  host.setFault(way.fault, n, way.error);
  const History::Act act(&history, "PictureTool");
  static_cast<void>(errorNumber([&] { step.carryOut(disk); }));
  return host.faultMet();
}

void failEverywhere(const Step& step) {
  for (const bool separate : {false, true}) {
    for (const Way& way : kWays) {
      bool met = true;
      for (std::uint64_t n = 1; met; ++n) {
        SCOPED_TRACE("fault " + std::to_string(static_cast<int>(way.fault)) + ", error " +
                     std::to_string(way.error) + ", at " + std::to_string(n) +
                     (separate ? ", apart" : ""));
        Trial run;
        met = runOnce(run, step, separate, way, n);
        check(run, step, way, met);
        if (testing::Test::HasFailure()) return;
      }
    }
  }
}

TEST(HistoryFaults, Replace) {
  failEverywhere({[](Disk& disk) { disk.replace("C:\\new", "C:\\work\\f"); }, "newer"});
}

TEST(HistoryFaults, ReplaceKeeping) {
  failEverywhere(
      {[](Disk& disk) { disk.replaceKeeping("C:\\new", "C:\\work\\f", "C:\\backup"); }, "newer"});
}

TEST(HistoryFaults, Remove) {
  failEverywhere({[](Disk& disk) { disk.remove("C:\\work\\f"); }, ""});
}

TEST(HistoryFaults, OpenForOutput) {
  failEverywhere({[](Disk& disk) {
                    text::LineWriter out(disk, "C:\\work\\f");
                    out.bytes("newer");
                    out.close();
                  },
                  "newer", true});
}

TEST(HistoryFaults, OpenForAppending) {
  failEverywhere({[](Disk& disk) {
                    text::LineWriter out(disk, "C:\\work\\f", text::LineWriter::Mode::append);
                    out.bytes("er");
                    out.close();
                  },
                  "older", true});
}

/// An old version on its way back: the place holds what stood there or what comes, and the version
/// stays in the store.
TEST(HistoryFaults, Restore) {
  for (const bool separate : {false, true}) {
    for (const Way& way : kWays) {
      bool met = true;
      for (std::uint64_t n = 1; met; ++n) {
        SCOPED_TRACE("fault " + std::to_string(static_cast<int>(way.fault)) + ", error " +
                     std::to_string(way.error) + ", at " + std::to_string(n));
        Trial run;
        const auto real = text::makePosixHost();
        FaultyHost host(*real);
        if (separate) host.separateFolders();
        run.folder.write("work/f", "old");
        run.folder.write("new", "newer");
        History history(host, run.store.path());
        Disk disk(host);
        disk.mount('C', run.folder.path());
        disk.setHistory(&history);
        disk.replace("C:\\new", "C:\\work\\f");
        const auto entry = history.entries().at(0);
        host.setFault(way.fault, n, way.error);
        const bool done = errorNumber([&] { disk.restore(entry); }) == 0;
        met = host.faultMet();
        host.clearFault();

        const std::string text = now(run.folder);
        EXPECT_TRUE(text == "old" || text == "newer") << text;
        EXPECT_TRUE(!done || text == "old");
        const bool tidy = way.fault == Fault::error || way.fault == Fault::fullDisk || !met;
        if (tidy) {
          EXPECT_EQ(run.folder.files(), std::vector<std::string>{"work/f"});
        }
        History next(*real, run.store.path());
        const auto entries = next.entries();
        ASSERT_FALSE(entries.empty());
        EXPECT_EQ(entries.back().number, entry.number);
        EXPECT_EQ(run.store.read("entry-00000001/f"), "old");
        EXPECT_EQ(run.store.files().size(), 2 * entries.size());
        if (!met) {
          EXPECT_EQ(entries.size(), 2U);
        }
        if (testing::Test::HasFailure()) return;
      }
    }
  }
}

}  // namespace

}  // namespace norvik::tests
