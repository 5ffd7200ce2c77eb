#include "pose/mat_builder.h"

#include "figure/material_block.h"
#include "front/finished_file.h"
#include "pose/pose_builder.h"
#include "text/columns.h"
#include "text/line_reader.h"
#include "text/line_writer.h"
#include "text/rewrite_pass.h"

namespace norvik::pose {

namespace {

constexpr std::string_view kScratch = "\\Mat.pz2";
constexpr std::string_view kNoMap = "NO_MAP";

/// The walk over the materials of the source.
class MaterialCopy {
 public:
  MaterialCopy(const FormPZ2& form, std::string_view extension, text::LineReader& in,
               text::LineWriter& out)
      : form_(form), hair_(extension == "hr2"), prop_(extension == "pp2"), in_(in), out_(out) {}

  void write() {
    writeHead();
    passToMaterials();
    copyMaterials();
    out_.line("}");
    out_.line("}");
  }

 private:
  void writeHead() {
    for (const char* line : {"{", " ", "Version", "\t{", "\tNumber 4.01", "\t}"}) out_.line(line);
    out_.line(hair_ ? std::string_view{form_.propLine} : "figure");
    out_.line("{");
  }

  /// In a figure the first materials may be those of props: the figure's own stand behind its line.
  void passToMaterials() {
    static const text::LineFilter stops{text::atStart(figure::kMaterialLine)};
    if (!prop_ && !hair_) figure::passToFigure(in_);
    do {
      in_.passLines(stops);
      line_ = in_.line();
    } while (!figure::isMaterialLine(line_));
  }

  /// The last line of the file is never written.
  void copyMaterials() {
    bool keeping = form_.CheckAllMat.value();
    while (!in_.atEnd()) {
      if (!form_.CheckAllMat.value() && text::holds(line_, figure::kMaterial)) {
        keeping = figure::endsInOneOf(line_, form_.ListMaterialsMATWanted.items());
      }
      if (figure::endsMaterials(line_)) return;
      changeLine();
      if (keeping) out_.line(line_);
      line_ = in_.line();
      if (hair_ && text::holds(line_, "locked")) return;
    }
  }

  /// Changes a line on its way, whichever it is: a material whose name holds "Map" loses its name
  /// as a map does. Each test looks at the line as the ones before left it.
  void changeLine() {
    const auto namesMap = [this] {
      return text::holds(line_, "Map") && !text::holds(line_, kNoMap);
    };
    if (!form_.CheckIncludeMaps.value() && namesMap()) dropMap();
    if (form_.CheckNoTrans.value() && text::holds(line_, "transparency") && namesMap()) dropMap();
    if (form_.CheckSetToWhite.value()) {
      makeWhite();
    } else if (text::holds(line_, "KdColor")) {
      // Every colour counts, kept or not, while the list knows neither Preview nor a second
      // material of a name: behind one of these the colours are those of later materials.
      line_ = "\t\tKdColor " + std::string{form_.ListMATColors.item(colour_++)};
    }
  }

  /// Up to and including the first blank; a line without one is all map.
  void dropMap() {
    const auto kept = text::leftmost(line_, text::column(line_, " "));
    line_ = std::string{kept} + std::string{kNoMap};
  }

  void makeWhite() {
    for (const std::string_view key : {"KdColor", "KaColor", "KsColor"}) {
      if (!text::holds(line_, key)) continue;
      line_ = "\t\t" + std::string{key} + " 1 1 1 1";
      return;
    }
  }

  const FormPZ2& form_;
  bool hair_;
  bool prop_;
  text::LineReader& in_;
  text::LineWriter& out_;
  std::string line_;
  int colour_ = 0;
};

void writeMat(front::Session& session, const FormPZ2& form, const std::string& scratch) {
  const std::string& source = session.opening.LabelFileNameForEditor.caption();
  text::keepApart(session.disk, source, scratch);
  text::ignoringErrors([&] { session.disk.remove(scratch); });
  text::LineWriter out(session.disk, scratch, text::LineWriter::Mode::append);
  text::LineReader in(session.disk, source);
  MaterialCopy(form, text::extension(source), in, out).write();
  out.close();
}

void save(front::Session& session, const std::string& scratch) {
  const std::string poser = session.settings.get("Startup", "PLoc", "0");
  front::CommonDialog& dialog = session.opening.CommonDialog2;
  const std::string proposed = dialog.fileName();
  if (!dialog.save(session.front, text::withoutLast(poser, 1), proposed, {},
                   {"Save the MAT pose as", front::kPoseFilter})) {
    return;
  }
  if (text::ignoringErrors([&] { session.disk.replace(scratch, dialog.fileName()); })) {
    session.front.tellOf({.path = dialog.fileName()});
  }
}

}  // namespace

void MakeMat(front::Session& session, FormPZ2& form) {
  const std::string scratch = session.opening.inProgramFolder(kScratch);
  session.hourglass(true);
  writeMat(session, form, scratch);
  session.hourglass(false);
  if (form.ListMaterialsMATWanted.count() == 0 && !form.CheckAllMat.value()) {
    session.front.messageBox(
        "No materials chosen.  Check off \"Include ALL Materials\", or choose at least one from "
        "the list. DOUBLE CLICK to choose.",
        "Error!", front::kCritical);
    return;
  }
  save(session, scratch);
  session.unload(form);
}

void wireDonePZ2(front::Session& session, FormPZ2& form) {
  form.LabelDonePZ2.clicked.add([&session, &form] {
    if (form.matMode()) {
      MakeMat(session, form);
    } else {
      buildPose(session, form);
    }
  });
}

}  // namespace norvik::pose
