#pragma once
// What a pass works at.

#include "headless/script_front_end.h"
#include "host.h"
#include "workbench/workbench.h"

#include <ostream>
#include <stdexcept>
#include <string>

namespace norvik::bench {

/// A workbench whose drive C is the bench's folder, with a script in front of it that prints
/// nowhere.
class Bench {
 public:
  Bench(const std::string& folder, const std::string& file) : path("C:\\" + file) {
    disk.mount('C', folder);
    settings.set("Startup", "PLoc", "C:\\");
    opening.OpenedPath = path;
    opening.DestPath = path;
    opening.LabelFileNameForEditor.setCaption(path);
    opening.LabelChannelFileNameForEditor.setCaption(path);
    front_.setStep([this] {
      if (steps.empty()) return false;
      opening.FileLabel.setCaption(steps.front());
      steps.erase(steps.begin());
      return true;
    });
  }

  headless::Answers& answers() { return front_.answers(); }
  void choose(const std::string& name) {
    answers().queueDialog({headless::DialogAnswer::Kind::file, "C:\\" + name});
  }

 private:
  UnflushedHost host_;
  std::ostream nowhere_{nullptr};
  headless::Transcript transcript_{nowhere_};
  headless::Outcome outcome_;
  headless::ScriptFrontEnd front_{transcript_, outcome_, {}};

 public:
  std::string path;
  text::Disk disk{host_};
  front::Settings settings;
  workbench::Workbench workbench{front_, disk, settings, "C:\\Norvik", ""};
  front::Session& session = workbench.session();
  front::Opening& opening = session.opening;
  std::vector<std::string> steps;  ///< the files that are picked one after the other
};

/// A pass must have done its work to count.
inline void mustHold(bool truth, const char* what) {
  if (!truth) throw std::runtime_error(what);
}

}  // namespace norvik::bench
