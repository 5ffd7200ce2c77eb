#pragma once
// The whole program at its real window, on a sample of its own; a scripted operator behind the
// dialogs.

#include "desktop/bench.h"
#include "desktop/program.h"

#include <QLabel>
#include <QtTest>

#include <filesystem>
#include <fstream>

namespace norvik::desktop {

inline const std::string kTilda = "C:\\Poser\\Runtime\\Libraries\\Characters\\Tilda\\";

class ProgramBench : public testing::Test {
 protected:
  explicit ProgramBench(const std::string& settings = "[Startup]\nPLoc=C:\\Poser\\\n") {
    qputenv(kState, QByteArray::fromStdString(state_.path()));
    std::filesystem::copy(NORVIK_FIGURES, folder_.path() + "/Poser",
                          std::filesystem::copy_options::recursive);
    if (!settings.empty()) std::ofstream(folder_.path() + "/norvik.ini") << settings;
  }

  ~ProgramBench() override { qputenv(kState, stateBefore_); }

  /// Starts the program with a path on its command line.
  void start(const std::string& file) {
    Options options;
    options.drives = {{'C', folder_.path()}};
    options.settings = folder_.path() + "/norvik.ini";
    options.file = file;
    program_ = std::make_unique<Program>(options, asker_);
    program_->start();
    QTest::qWait(20);
  }

  front::Session& session() { return program_->session(); }
  front::Opening& opening() { return session().opening; }
  Dispatcher& dispatcher() { return program_->dispatcher(); }
  MainWindow& window() { return program_->mainWindow(); }
  template <typename Widget>
  Widget& find(const char* name) {
    return *window().findChild<Widget*>(QString::fromLatin1(name));
  }

  // The history of this test alone.
  static constexpr const char* kState = "XDG_STATE_HOME";
  const QByteArray stateBefore_ = qgetenv(kState);
  ScratchFolder state_;

  ScratchFolder folder_;
  ScriptedAsker asker_;
  std::unique_ptr<Program> program_;
};

}  // namespace norvik::desktop
