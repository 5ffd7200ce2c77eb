#pragma once
// The whole program without a window, for tests that look at what it leaves.

#include "front/settings.h"
#include "headless/commands.h"
#include "headless/outcome.h"
#include "headless/script_front_end.h"
#include "headless/transcript.h"
#include "text/disk.h"
#include "text/history.h"
#include "workbench/workbench.h"

#include <sstream>
#include <string>

namespace norvik::tests {

/// A workbench over one drive, worked by script lines. The program folder is C:\Norvik, the current
/// folder C:\ and settings are kept in memory. Unlike a run of the runner it stays alive between
/// scripts, so that a test can change the host, or look at a control, in between.
class ScriptedWorkbench {
 public:
  ScriptedWorkbench(text::HostOps& host, const std::string& driveC,
                    text::History* history = nullptr);

  /// Runs script lines. What the lines before have left in the way of answers still counts.
  void run(const std::string& script);

  /// The events printed since the last call, one a line.
  std::string takeEvents();

  front::Session& session() { return workbench_.session(); }
  front::Opening& opening() { return session().opening; }
  const headless::Outcome& outcome() const { return outcome_; }

 private:
  text::Disk disk_;
  front::Settings settings_;
  std::ostringstream events_;
  headless::Transcript transcript_{events_};
  headless::Outcome outcome_;
  headless::ScriptFrontEnd frontEnd_{transcript_, outcome_, {}};
  workbench::Workbench workbench_;
  headless::Commands commands_;
};

}  // namespace norvik::tests
