#pragma once
// What a test of the 3D view stands on: the workshop behind a scripted front end.

#include "headless/script_front_end.h"
#include "workshop/spin.h"
#include "workshop/view_keys.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <string>

namespace norvik::obj {

class SpinBench : public testing::Test {
 protected:
  SpinBench() {
    session.addForm(form);
    wireSpin(workshop);
    wireViewKeys(workshop);
    frontEnd.setStep([this] {
      ++commands;
      return betweenFrames && betweenFrames();
    });
  }

  void load() {
    session.load(form);
    form.PictureObjViewer2.setBox({10, 20, 600, 600});
  }
  void key(const std::string& name) {
    session.deliver([&] { form.key.raise(name); });
  }
  /// Space twice: the first press only stops what does not run yet.
  void spin() {
    key("Space");
    key("Space");
  }
  /// A mesh of so many corners.
  void fill(std::size_t corners) {
    DisplayList& list = workshop.mesh.display;
    list.vertices.assign(corners, {});
    ++list.revision;
  }
  headless::RememberingDevice& device() {
    return frontEnd.rememberingDevice(form.PictureObjViewer2);
  }
  const graphics::Matrix& view() { return device().transform(graphics::Transform::view); }

  std::unique_ptr<text::HostOps> host = text::makePosixHost();
  text::Disk disk{*host};
  front::Settings settings;
  front::Opening opening;
  front::FormOBJ form;
  std::ostringstream events;
  headless::Transcript transcript{events};
  headless::Outcome outcome;
  headless::ScriptFrontEnd frontEnd{transcript, outcome, {}};
  front::Session session{frontEnd, disk, settings, opening};
  Workshop workshop{session, form};
  /// The operator in the middle of the spin; false when the script is at its end.
  std::function<bool()> betweenFrames;
  int commands = 0;
};

}  // namespace norvik::obj
