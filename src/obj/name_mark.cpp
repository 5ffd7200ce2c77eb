#include "obj/name_mark.h"

#include "mesh/display_writer.h"
#include "mesh/face_tokens.h"
#include "mesh/mesh_store.h"
#include "mesh/obj_line.h"
#include "mesh/record_walk.h"
#include "obj/name_side.h"
#include "obj/pending_renames.h"
#include "text/columns.h"
#include "workshop/plan_points.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace norvik::obj {

namespace {

constexpr front::Colour kMarkRed = 0x0000FF;

/// Goes over the face records once and draws the faces of a name.
class Marker {
 public:
  Marker(Workshop& workshop, front::MeshMark& mark)
      : workshop_(workshop),
        mark_(mark),
        shown_(mark.materials ? materialSide(workshop.form) : groupSide(workshop.form)),
        scale_(workshop.form) {
    const NameSide side = mark.materials ? materialSide(workshop.form) : groupSide(workshop.form);
    const auto& names = side.names.items();
    renamed_ = std::find(names.begin(), names.end(), mark.name) != names.end();
    for (std::size_t view = 0; view < mark.flat.size(); ++view) {
      const graphics::Surface& picture = workshop.form.flatViews()[view]->surface();
      mark.flat[view].resize(picture.width(), picture.height());
    }
  }

  void run() {
    bool wanted = false;
    for (RecordWalk walk(workshop_.session, kFaceFile, kFaceRecordLength); walk.next();) {
      const std::string_view record = walk.record();
      if (text::begins(record, "f")) {
        if (wanted) take(record);
        continue;
      }
      const bool group = text::begins(record, "g");
      if (group == mark_.materials) continue;
      wanted = isWanted(withoutFilling(group ? groupName(record) : materialName(record)));
    }
    mark_.corners = std::move(list_.vertices);
  }

 private:
  bool isWanted(std::string_view recorded) const {
    const std::string name = renamed_ ? shown_.of(recorded) : std::string{recorded};
    return withoutFilling(name) == withoutFilling(mark_.name);
  }

  void take(std::string_view record) {
    readFaceTokens(withoutFilling(record), indexes_);
    corners_.place(workshop_.mesh.vertices, indexes_);
    if (corners_.count() < 2) return;
    for (std::size_t view = 0; view < mark_.flat.size(); ++view) {
      mark_.flat[view].polygon(corners_.in(view), kMarkRed);
    }
    constexpr std::size_t kTriangle = 3;
    if (corners_.count() < kTriangle) return;
    display_.beginFace();
    bool first = true;
    for (const std::size_t index : indexes_) {
      if (index == 0 || index > workshop_.mesh.vertices.size()) continue;
      display_.addCorner(scale_.inSpace(workshop_.mesh.vertices[index - 1], first));
      first = false;
    }
  }

  Workshop& workshop_;
  front::MeshMark& mark_;
  NamesOnShow shown_;
  ViewScale scale_;
  PlanPoints corners_{scale_};
  DisplayList list_;
  DisplayWriter display_{list_};
  std::vector<std::size_t> indexes_;
  bool renamed_ = false;  ///< the name is one of the lists', else of a page from before a rename
};

void refreshViews(front::FormOBJ& form) {
  for (front::PictureBox* view : form.flatViews()) view->refresh();
  form.PictureObjViewer2.refresh();
}

void mark(Workshop& workshop, const front::MarkWanted& wanted) {
  front::FormOBJ& form = workshop.form;
  if (workshop.reading) return;
  const bool again = form.Mark && form.Mark->isOf(wanted.materials, wanted.name);
  form.Mark.reset();
  if (!again) {
    workshop.session.hourglass(true);
    front::MeshMark made{.materials = wanted.materials, .name = wanted.name};
    // Without its records a mesh has nothing to show here.
    text::ignoringErrors([&] { Marker(workshop, made).run(); });
    form.Mark = std::make_shared<const front::MeshMark>(std::move(made));
    workshop.session.hourglass(false);
  }
  refreshViews(form);
}

}  // namespace

void wireNameMark(Workshop& workshop) {
  front::FormOBJ& form = workshop.form;
  form.markWanted.add([&workshop](const front::MarkWanted& wanted) { mark(workshop, wanted); });
  workshop.forgotten.add([&form] { form.Mark.reset(); });
}

}  // namespace norvik::obj
