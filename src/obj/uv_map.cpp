#include "obj/uv_map.h"

#include "mesh/face_corners.h"
#include "mesh/face_pace.h"
#include "mesh/face_tokens.h"
#include "mesh/mesh_store.h"
#include "mesh/obj_number.h"
#include "obj/map_sheet.h"
#include "text/columns.h"
#include "workshop/map_scale.h"
#include "workshop/reading.h"

namespace norvik::obj {

namespace {

class UVMapPass {
 public:
  explicit UVMapPass(Workshop& workshop)
      : workshop_(workshop),
        picture_(workshop.form.PictureUVMap),
        scale_(workshop.form, picture_),
        faces_(recordsOf(workshop.session, kFaceFile, kFaceRecordLength)),
        texturePoints_(recordsOf(workshop.session, kTextureFile, kTextureRecordLength)) {}

  /// Whether it came to its end: not when the form was left meanwhile.
  bool run() {
    const auto departures = workshop_.departures;
    FacePace pace(workshop_.session.front);
    const Mesh& mesh = workshop_.mesh;
    const auto count = static_cast<std::uint64_t>(mesh.FaceCount + mesh.RecordExtra);
    for (std::uint64_t number = 1; number <= count; ++number) {
      const std::string_view record = text::trimmed(faces_.get(number));
      if (!text::begins(record, "f")) continue;
      draw(record);
      pace.afterFace();
      if (workshop_.departures != departures) return false;
    }
    return true;
  }

 private:
  /// A corner whose texture point is not there ends the face; its lines so far stay.
  void draw(std::string_view record) {
    std::optional<graphics::Point> last;
    for (FaceCorners corners(record); const auto corner = corners.next();) {
      const std::string_view point = texturePoints_.get(indexNumber(texturePart(*corner)));
      if (!text::holds(point, "*")) return;
      const auto here = scale_.at(leadingNumber(text::before(point, "*")),
                                  leadingNumber(text::after(point, "*")));
      if (last) picture_.surface().line(*last, here, front::kBlack);
      last = here;
    }
  }

  Workshop& workshop_;
  front::PictureBox& picture_;
  MapScale scale_;
  text::RecordReader faces_;
  text::RecordReader texturePoints_;
};

void drawUVMap(Workshop& workshop) {
  if (workshop.reading || showUnsavedMap(workshop)) return;
  front::Session& session = workshop.session;
  front::FormOBJ& form = workshop.form;
  if (!workshop.mesh.HasUV) {
    session.front.messageBox("No UV information in the file, or it has already been viewed.",
                             "Note", front::kOk);
    return;
  }
  workshop.mesh.HasUV = false;
  workshop.showAlone(form.PictureUVMap);
  form.PictureUVMap.clear();
  const Reading reading(workshop);
  session.hourglass(true);
  const bool drawn = UVMapPass(workshop).run();
  session.hourglass(false);
  if (!drawn) return;
  form.PictureUVMap.refresh();
  form.MapDrawn = 1;
  form.MapSaved = 0;
  form.LabelSaveMap.show();
  const std::string secondary = session.opening.inProgramFolder("\\groupface.txt");
  if (session.disk.exists(secondary)) form.LabelSecMap.show();
}

}  // namespace

void wireUVMap(Workshop& workshop) {
  workshop.form.LabelUVMap.clicked.add([&workshop] { drawUVMap(workshop); });
}

}  // namespace norvik::obj
