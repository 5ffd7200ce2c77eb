#include "support/scripted_workbench.h"

#include "headless/script.h"

namespace norvik::tests {

namespace {

constexpr const char* kProgramFolder = "C:\\Norvik";

/// The disk, with its history, drive C on a host folder and the program folder made.
text::Disk& prepared(text::Disk& disk, const std::string& driveC, text::History* history) {
  disk.setHistory(history);
  disk.mount('C', driveC);
  disk.makeFolders(kProgramFolder);
  return disk;
}

}  // namespace

ScriptedWorkbench::ScriptedWorkbench(text::HostOps& host, const std::string& driveC,
                                     text::History* history)
    : disk_(host),
      workbench_(frontEnd_, prepared(disk_, driveC, history), settings_, kProgramFolder,
                 std::string{}),
      commands_(workbench_, frontEnd_, transcript_, outcome_, host) {
  frontEnd_.setUnload(
      [this](front::Form& form) { session().deliver([this, &form] { session().unload(form); }); });
}

void ScriptedWorkbench::run(const std::string& script) {
  std::istringstream lines(script);
  headless::Script commands(lines);
  const auto step = [&] {
    auto line = commands.next();
    if (!line) return false;
    commands_.run(std::move(*line));
    return true;
  };
  frontEnd_.setStep(step);
  while (!frontEnd_.ended() && step()) {
  }
  frontEnd_.setStep({});
}

std::string ScriptedWorkbench::takeEvents() {
  std::string events = events_.str();
  events_.str({});
  return events;
}

}  // namespace norvik::tests
