#pragma once
// What a test of the bindings stands on: a session without a window, and a scripted operator behind
// the dialogs.

#include "desktop/asker.h"
#include "desktop/desktop_front_end.h"
#include "desktop/dispatcher.h"
#include "desktop/maker.h"
#include "front/session.h"

#include <QWidget>
#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace norvik::desktop {

/// Answers from a queue and remembers what was asked.
class ScriptedAsker : public Asker {
 public:
  std::vector<Box> boxes;
  std::vector<File> files;
  std::deque<front::Answer> answers;
  std::deque<std::optional<QString>> paths;
  std::vector<QStringList> ways;
  std::deque<std::optional<std::size_t>> taken;
  std::optional<front::Colour> chosenColour;
  std::function<bool(QPrinter&)> setUpPrinter;
  std::function<void()> whileAsking;

  front::Answer box(const Box& asked) override {
    boxes.push_back(asked);
    if (whileAsking) whileAsking();
    if (answers.empty()) return front::Answer::ok;
    const front::Answer answer = answers.front();
    answers.pop_front();
    return answer;
  }
  std::optional<std::size_t> way(const Box& asked, const QStringList& offered) override {
    boxes.push_back(asked);
    ways.push_back(offered);
    if (taken.empty()) return std::nullopt;
    const auto way = taken.front();
    taken.pop_front();
    return way;
  }
  std::optional<QString> file(const File& file) override {
    files.push_back(file);
    if (paths.empty()) return std::nullopt;
    const auto path = paths.front();
    paths.pop_front();
    return path;
  }
  std::optional<front::Colour> colour(front::Colour) override { return chosenColour; }
  bool printer(QPrinter& printer) override { return setUpPrinter && setUpPrinter(printer); }
};

/// A folder of the test's own, gone when the test is.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "norvik-XXXXXX").string();
    path_ = ::mkdtemp(name.data());
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

/// A form to bind, in a window that is shown.
template <typename TestForm>
class Bench : public testing::Test {
 protected:
  Bench() {
    disk.mount('C', folder.path());
    session.addForm(form);
    dispatcher.attach(session);
    dispatcher.setSync([this] { bindings.sync(form); });
    window.resize(400, 400);
    window.show();
  }
  ~Bench() override { dispatcher.setSync({}); }

  ScratchFolder folder;
  std::unique_ptr<text::HostOps> host = text::makePosixHost();
  text::Disk disk{*host};
  front::Settings settings;
  front::Opening opening;
  TestForm form;
  ScriptedAsker asker;
  Dispatcher dispatcher;
  DesktopFrontEnd frontEnd{dispatcher, asker, disk};
  front::Session session{frontEnd, disk, settings, opening};
  Bindings bindings;
  Maker maker{dispatcher, bindings};
  QWidget window;
};

}  // namespace norvik::desktop
