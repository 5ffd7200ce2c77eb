#pragma once
// What a test of the mesh tools stands on: the workshop over a drive of its own.

#include "headless/script_front_end.h"
#include "obj/leaving.h"
#include "support/drive.h"
#include "support/error_number.h"
#include "workshop/fall_back_view.h"
#include "workshop/hot_keys.h"
#include "workshop/open_workshop.h"
#include "workshop/play.h"
#include "workshop/reset.h"
#include "workshop/spin.h"
#include "workshop/view.h"
#include "workshop/view_keys.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace norvik::obj {

/// A front end whose operator acts whenever events are serviced.
class BusyFrontEnd : public headless::ScriptFrontEnd {
 public:
  using ScriptFrontEnd::ScriptFrontEnd;

  void pumpEvents() override {
    ++pumps;
    if (meanwhile) std::exchange(meanwhile, {})();
  }

  int pumps = 0;
  std::function<void()> meanwhile;  ///< once
};

class MeshBench : public testing::Test {
 protected:
  MeshBench() {
    session.addForm(form);
    opening.ProgramFolder = "C:\\Norvik";
    drive.disk.makeFolder("C:\\Norvik");
    settings.set("Startup", "PLoc", "C:\\Poser\\");
    wireOpenWorkshop(workshop);
    wireView(workshop);
    wireFallBackView(workshop);
    wireReset(workshop);
    wireHotKeyList(workshop);
    wirePlay(workshop);
    wireLeaving(workshop);
    wireSpin(workshop);
    wireViewKeys(workshop);
    session.load(form);
  }

  /// Makes the mesh, CR LF behind each line, and names it as the one in view.
  void put(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    putText(text);
  }
  void putText(const std::string& text) {
    drive.folder.write("a.obj", text);
    opening.LabelOBJFileName.setCaption("C:\\a.obj");
  }
  /// Reads it; the number of the error that ended the read.
  int view() {
    return tests::errorNumber([&] { form.LabelView.clicked.raise(); });
  }
  int view(const std::vector<std::string>& lines) {
    put(lines);
    return view();
  }

  /// A scratch file cut into its records, the filling left out.
  std::vector<std::string> records(const std::string& name, std::size_t length) {
    const std::string bytes = drive.folder.read("Norvik/" + name);
    EXPECT_EQ(bytes.size() % length, 0U) << name;
    std::vector<std::string> found;
    for (std::size_t at = 0; at < bytes.size(); at += length) {
      std::string record = bytes.substr(at, length);
      record.erase(record.find_last_not_of(' ') + 1);
      found.push_back(record);
    }
    return found;
  }
  std::vector<std::string> faces() { return records("FArray.txt", 500); }
  std::vector<std::string> texturePoints() { return records("VTArray.txt", 50); }
  std::vector<std::string> vertices() { return records("VArray.txt", 50); }

  std::string takeEvents() {
    std::string text = events.str();
    events.str({});
    return text;
  }

  /// The pixels of a picture that are not paper, as "x,y" in rows from the top, with their colour.
  struct Dot {
    int x;
    int y;
    graphics::Colour colour;
    bool operator==(const Dot&) const = default;
  };
  static std::vector<Dot> dots(const front::PictureBox& picture) {
    const graphics::Surface& surface = picture.surface();
    std::vector<Dot> found;
    for (int y = 0; y < surface.height(); ++y) {
      for (int x = 0; x < surface.width(); ++x) {
        const graphics::Colour colour = surface.pixel({x, y});
        if (colour != graphics::kWhite) found.push_back({x, y, colour});
      }
    }
    return found;
  }

  tests::Drive drive;
  front::Settings settings;
  front::Opening opening;
  front::FormOBJ form;
  std::ostringstream events;
  headless::Transcript transcript{events};
  headless::Outcome outcome;
  BusyFrontEnd frontEnd{transcript, outcome, {.clock = "2002-03-04 05:06:07"}};
  front::Session session{frontEnd, drive.disk, settings, opening};
  Workshop workshop{session, form};
  Mesh& mesh = workshop.mesh;
};

}  // namespace norvik::obj
