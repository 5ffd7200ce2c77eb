#pragma once
// A disk that keeps old versions, for tests of what is kept and of what comes back.

#include "support/drive.h"
#include "text/history.h"
#include "text/line_writer.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace norvik::tests {

class HistoryTest : public testing::Test, public Drive {
 protected:
  HistoryTest() {
    disk.setHistory(&history);
    history.setClock([] { return std::string("2002-03-04 05:06:07"); });
    history.setLimits([this] { return limits; });
    history.setListener([this](const text::HistoryEntry& entry) { told.push_back(entry); });
  }

  std::string kept(const text::HistoryEntry& entry) const {
    return store.read(history.fileOf(entry).substr(store.path().size() + 1));
  }
  /// The old versions, newest first, as "what path: text".
  std::vector<std::string> list() {
    std::vector<std::string> result;
    for (const text::HistoryEntry& entry : history.entries()) {
      result.push_back(std::string(lossName(entry.what)) + " " + entry.path + ": " + kept(entry));
    }
    return result;
  }
  /// What a tool does in one act.
  void act(const std::function<void()>& step) {
    const text::History::Act act(&history, "PictureTool");
    step();
  }
  void put(const char* path, const std::string& text) {
    act([&] { text::LineWriter(disk, path).bytes(text); });
  }
  std::uint64_t inode(const std::string& name) const {
    struct stat status {};
    EXPECT_EQ(::stat(name.c_str(), &status), 0);
    return status.st_ino;
  }
  void restoreNewest() {
    const text::History::Act undo(&history, "undo");
    disk.restore(history.entries().at(0));
  }

  using Lines = std::vector<std::string>;

  TemporaryFolder store;
  text::History history{*host, store.path()};
  text::History::Limits limits;
  std::vector<text::HistoryEntry> told;
};

}  // namespace norvik::tests
