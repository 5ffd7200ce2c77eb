#include "passes.h"

#include "bench_desk.h"
#include "builders/transfer/graft_part.h"
#include "channels/channel_views.h"
#include "channels/copy_morph.h"
#include "channels/removal/morph_removal.h"
#include "channels/removal/part_removal.h"
#include "channels/renaming/rename_passes.h"
#include "dial_passes.h"
#include "erc/change_ratio.h"
#include "erc/link_kinds.h"
#include "erc/link_writer.h"
#include "figure/actor_lister.h"
#include "figure/bracket_count.h"
#include "figure/check_sgi.h"
#include "figure/line_ending_repair.h"
#include "figure/map_lister.h"
#include "figure/material_lister.h"
#include "figure/open_file.h"
#include "figure/path_lister.h"
#include "figure/path_pass.h"
#include "figure/save.h"
#include "figure/space_chopper.h"
#include "front/form_obj.h"
#include "install/cr2_files.h"
#include "install/figure_files.h"
#include "materials/colour_pass.h"
#include "materials/coordinator_passes.h"
#include "mesh_passes.h"
#include "obj/surgery/mirror.h"
#include "pose/mat_builder.h"
#include "pose/mat_lister.h"
#include "pose/mor_skeleton.h"
#include "pose/part_lister.h"
#include "pose/pose_builder.h"
#include "pose/weld_merge.h"
#include "text/line_reader.h"

namespace norvik::bench {

namespace {

using Work = std::function<void(Bench& bench)>;

Pass pass(std::string name, Kind kind, Figure figure, const Work& work) {
  return {std::move(name), kind, figure,
          [work](const std::string& folder, const std::string& file) {
            Bench bench(folder, file);
            work(bench);
          }};
}

void readLines(Bench& bench) {
  text::LineReader in(bench.disk, bench.path);
  std::size_t bytes = 0;
  while (!in.atEnd()) bytes += in.line().size();
  mustHold(bytes > 0, "no lines");
}

void readFields(Bench& bench) {
  text::LineReader in(bench.disk, bench.path);
  std::size_t bytes = 0;
  while (!in.atEnd()) bytes += in.field().size();
  mustHold(bytes > 0, "no fields");
}

void repairLineEnds(Bench& bench) {
  text::ByteReader source(bench.disk, bench.path);
  text::LineWriter scratch(bench.disk, "C:\\f.new");
  figure::LineEndingRepair(source, scratch);
  scratch.close();
}

void passPaths(Bench& bench) {
  figure::PathSlots slots;
  slots.texture = "\"C:Poser:Runtime:textures:new.bmp\"";
  figure::passPaths(bench.session, slots);
}

void save(Bench& bench) {
  bench.opening.TextMainTex.setText("\"C:Poser:Runtime:textures:new.bmp\"");
  bench.opening.LabelMainTex.setFore(front::kPathEdited);
  bench.choose("saved.cr2");
  figure::saveFile(bench.session);
  mustHold(bench.disk.exists("C:\\saved.cr2"), "nothing saved");
}

void openWhole(Bench& bench) {
  bench.opening.SkipOpenDialog = true;
  figure::openFile(bench.session);
  mustHold(bench.opening.ListActors.count() > 0, "no actors");
  mustHold(bench.opening.ListMaterials.count() > 0, "no materials");
  mustHold(bench.opening.ListChannels.count() > 2, "no channels");
  mustHold(!bench.opening.TextMainTex.text().empty(), "no texture");
}

/// The figure into itself: as source and as destination it is as large as they come.
void copyMorph(Bench& bench) {
  front::Opening& opening = bench.opening;
  opening.LabelFileName.setCaption("destination");
  opening.LabelChannelFileName.setCaption("source");
  opening.TextMainOBJ.setText("Tilda:tilda.obj");
  opening.ListChannels.add("Channels for lToe:1");
  opening.ListChannels.add("\tlToeExtra300");
  opening.ListChannels.choose(1);
  bench.answers().queueBox(front::Answer::yes);
  bench.choose("copied.cr2");
  opening.PictureCopyToDest.released.raise({});
  mustHold(bench.disk.exists("C:\\copied.cr2"), "nothing copied");
}

void removeMorph(Bench& bench) {
  text::RewritePass pass(bench.disk, bench.path, "C:\\Norvik\\XMorph.txt");
  channels::removeItem(bench.session, pass,
                       {channels::RemovedItem::Kind::morph, "lToeExtra300", {}}, "lToe:1");
}

void removePart(Bench& bench) {
  text::RewritePass pass(bench.disk, bench.path, "C:\\Norvik\\cr2.doc");
  channels::removePart(pass, "abdomen:1");
}

void renameMorph(Bench& bench) {
  text::RewritePass pass(bench.disk, bench.path, "C:\\Norvik\\RenMorph.txt");
  channels::renameMorph(pass, "lToeExtra300", "TheToe");
}

void renamePart(Bench& bench) {
  text::RewritePass pass(bench.disk, bench.path, "C:\\Norvik\\RenMorph.txt");
  channels::renamePart(pass, {"head:1", "skull:1"});
}

/// What FormECM holds behind its choices; the result stays in the scratch file.
void writeLink(Bench& bench) {
  erc::FormECM form;
  form.LabelPBM.show();
  form.TextPBM1.setText("lToeExtra300");
  form.TextPBM2.setText("Figure 1");
  form.TextPBM3.setText("lToeExtra299");
  form.TextPBM4.setText("lToe");
  form.TextPBMRatio.setText("1.000000");
  bench.answers().queueBox(front::Answer::yes);
  bench.answers().queueDialog({});
  erc::writeLink(bench.session, form, *erc::kindOnView(form));
  mustHold(bench.disk.exists("C:\\Norvik\\EMC.tmp"), "no link written");
}

void listLinks(Bench& bench) {
  bench.opening.PictureChangeRatio.released.raise({});
  const auto* form = dynamic_cast<erc::FormListEMCs*>(bench.session.findForm("FormListEMCs"));
  mustHold(form != nullptr && form->ListEMCs.count() > 2, "no links listed");
}

/// The result stays in the scratch file here as well.
void changeRatio(Bench& bench) {
  erc::FormListEMCs form;
  form.LabelTitle.setCaption(bench.path);
  form.ListEMCs.add("\tDelta Control Ratio: 1");
  form.ListEMCs.choose(0);
  form.RatioLines = {"", "Delta Control Ratio: 1#1000000"};
  form.Text1.setText("2");
  bench.answers().queueBox(front::Answer::no);
  erc::wireChangeRatio(bench.session, form);
  form.Text1.key.raise("Enter");
  mustHold(bench.disk.exists("C:\\Norvik\\ChangeRatio.txt"), "no ratio changed");
}

void makeNullFigure(Bench& bench) {
  bench.opening.menuNullFig.clicked.raise();
  mustHold(bench.disk.exists("C:\\figure_Null.cr2"), "no null figure");
}

/// The phi file of a figure without toes on one foot, so that one search runs to its end.
void makePhi(Bench& bench) {
  bench.answers().queueBox(front::Answer::yes);
  bench.choose("figure.cr2");
  bench.opening.MenuPhi.clicked.raise();
  mustHold(bench.disk.exists("C:\\figure.phi"), "no phi file");
  bench.disk.remove("C:\\figure.phi");
}

/// The figure taken for a mesh: nothing in it is a group, all of it is kept.
void cutBranch(Bench& bench) {
  bench.opening.LineObj.show();
  bench.opening.LabelOBJFileName.setCaption(bench.path);
  front::Form* form = bench.session.findForm("FormTree");
  mustHold(form != nullptr, "no form");
  bench.session.load(*form);
  bench.choose("cut.obj");
  form->find("CommandGo")->clicked.raise();
  mustHold(bench.disk.exists("C:\\cut.obj"), "nothing cut");
  bench.disk.remove("C:\\cut.obj");
}

/// The figure as a mesh in view that has no vertices.
void takeForMesh(Bench& bench) {
  for (const char* name : {"VArray", "VTArray"}) {
    text::LineWriter(bench.disk, std::string("C:\\Norvik\\") + name + ".txt").close();
  }
  bench.opening.LabelOBJFileName.setCaption(bench.path);
}

void mirrorMesh(Bench& bench) {
  takeForMesh(bench);
  obj::writeMirrored(bench.session, {.x = true, .y = false, .z = false}, false);
  mustHold(bench.disk.exists("C:\\Norvik\\MirrorOBJ.txt"), "nothing mirrored");
  bench.disk.remove("C:\\Norvik\\MirrorOBJ.txt");
}

void cutBox(Bench& bench) {
  takeForMesh(bench);
  auto* form = dynamic_cast<front::FormOBJ*>(bench.session.findForm("FormOBJ"));
  mustHold(form != nullptr, "no workshop");
  bench.session.load(*form);
  form->PictureLop.released.raise({});
  form->PictureStore2.pressed.raise({front::MouseButton::left, 0, 0});
  bench.choose("lopped.obj");
  form->PictureStore2.released.raise({front::MouseButton::left, 600, 600});
  mustHold(bench.disk.exists("C:\\lopped.obj"), "nothing cut");
  bench.disk.remove("C:\\lopped.obj");
}

void listGeometries(Bench& bench) {
  bench.answers().queueBox(front::Answer::yes);
  bench.opening.PictureOBJExtract.released.raise({});
}

void extractPart(Bench& bench) {
  constexpr int kExtracting = 69;
  bench.opening.Mode = kExtracting;
  bench.opening.ListActors.add("    lToe:1 * 1");
  bench.opening.ListActors.choose(0);
  bench.opening.ListActors.clicked.raise();
  mustHold(bench.opening.Mode != kExtracting, "nothing extracted");
}

/// The names are there before they are asked for, but for the change from the mesh's to another.
void graftPart(Bench& bench) {
  if (!bench.disk.exists("C:\\Norvik\\bp.txt")) extractPart(bench);
  bench.opening.FileChooser.setPath("C:\\");
  bench.opening.FileLabel.setCaption("figure.cr2");
  bench.opening.NameLabel.setCaption("wing");
  bench.answers().queueBox(front::Answer::no);
  bench.steps = {"wing.obj", "figure.cr2"};
  builders::BodyPartTransfer(bench.session);
  mustHold(bench.disk.exists("C:\\New-figure.cr2"), "nothing grafted");
  bench.disk.remove("C:\\New-figure.cr2");
}

void changeColour(Bench& bench) {
  const auto position = materials::findMaterial(bench.disk, bench.path, "skin");
  mustHold(position.has_value(), "no skin");
  materials::writeColour(bench.disk, bench.path, "C:\\recoloured.cr2", "KdColor", 0, *position);
}

void removeMaterials(Bench& bench) {
  materials::removeMaterials(bench.disk, bench.path, "C:\\f.new", {"lips"}, true);
}

void addMaterials(Bench& bench) {
  materials::addMaterials(bench.disk, bench.path, "C:\\f.new", {"lips"});
}

void addGeometry(Bench& bench) {
  bench.opening.ListAltGeomActors.add("    lToe:1 * 1");
  bench.opening.ListAltGeomActors.choose(0);
  bench.choose("Runtime\\Geometries\\Tilda\\fist.obj");
  bench.opening.ListAltGeomActors.clicked.raise();
  mustHold(bench.disk.exists("C:\\Norvik\\AltGeom.cr2"), "no geometry added");
}

void takeFigureOut(Bench& bench) {
  bench.choose("taken-out.cr2");
  bench.opening.MenuPZ3Cr2Conv.clicked.raise();
  mustHold(bench.disk.exists("C:\\taken-out.cr2"), "nothing taken out");
}

template <typename Form>
Form& formNamed(Bench& bench, std::string_view name) {
  auto& form = dynamic_cast<Form&>(*bench.session.findForm(name));
  form.setLoaded(true);
  return form;
}

pose::FormPZ2& poseForm(Bench& bench) {
  auto& form = formNamed<pose::FormPZ2>(bench, "FormPZ2");
  form.path = bench.path;
  return form;
}

void listParts(Bench& bench) {
  pose::FormPZ2& form = poseForm(bench);
  pose::ListTheActorsPZ2(bench.session, form);
  mustHold(form.ListActorsPZ2.count() > 0, "no parts");
}

/// A pose of all parts is about as large as the figure.
void buildPose(Bench& bench) {
  pose::FormPZ2& form = poseForm(bench);
  for (const char* part :
       {"BODY",     "hip",   "abdomen", "chest",  "neck",     "head",  "rCollar", "rShldr",
        "rForeArm", "rHand", "lCollar", "lShldr", "lForeArm", "lHand", "rThigh",  "rShin",
        "rFoot",    "rToe",  "lThigh",  "lShin",  "lFoot",    "lToe"}) {
    form.ListActorsWanted.add(part);
  }
  pose::buildPose(bench.session, form);
  mustHold(bench.disk.exists("C:\\figureNew.pz2"), "no pose");
}

void buildMat(Bench& bench) {
  pose::FormPZ2& form = poseForm(bench);
  pose::ListMaterialsMATPZ2(bench.session, form);
  mustHold(form.ListMaterialsMAT.count() > 0, "no materials");
  form.CheckAllMat.setValue(true);
  bench.choose("mat.pz2");
  pose::MakeMat(bench.session, form);
  mustHold(bench.disk.exists("C:\\mat.pz2"), "no MAT file");
}

void writeSkeleton(Bench& bench) {
  auto& form = formNamed<pose::FormMOR>(bench, "FormMOR");
  pose::writeMorSkeleton(bench.session, form);
  mustHold(form.ListMorphs.count() > 0, "no morphs");
}

void mergePoses(Bench& bench) {
  auto& form = formNamed<pose::FormPZ2Combine>(bench, "FormPZ2Combine");
  form.LabelFileFirst.setCaption(bench.path);
  pose::mergePoses(bench.session, form);
  mustHold(form.ListActors1.count() > 0, "no morphs");
}

}  // namespace

std::string fileOf(Figure figure) {
  switch (figure) {
    case Figure::plain:
      return "figure.cr2";
    case Figure::lfEnds:
      return "lf.cr2";
    case Figure::oneBlank:
      return "one-blank.cr2";
    case Figure::blanks:
      return "blanks.cr2";
  }
  return {};
}

const std::vector<Pass>& passes() {
  using enum Kind;
  using enum Figure;
  static const std::vector<Pass> all{
      pass("whole-line read", read, plain, readLines),
      pass("field read", read, plain, readFields),
      pass("CheckSGI of a conventional file", read, plain,
           [](Bench& bench) { figure::CheckSGI(bench.session, bench.path); }),
      pass("ListTheActors", read, plain,
           [](Bench& bench) { figure::ListTheActors(bench.session, bench.path); }),
      pass("OpenCR2", read, plain,
           [](Bench& bench) { figure::OpenCR2(bench.session, bench.path); }),
      pass("MatLister", read, plain,
           [](Bench& bench) { figure::MatLister(bench.session, bench.path); }),
      pass("FindMapLocs", read, plain,
           [](Bench& bench) { figure::FindMapLocs(bench.session, bench.path); }),
      pass("ViewChannels", read, plain,
           [](Bench& bench) { channels::ViewChannels(bench.session, bench.path); }),
      pass("bracket count", read, plain,
           [](Bench& bench) {
             text::LineReader in(bench.disk, bench.path);
             mustHold(figure::countBrackets(in).left > 1, "no brackets");
           }),
      pass("LineEndingRepair, LF file", rewrite, lfEnds, repairLineEnds),
      pass("SpaceChopper, one line", rewrite, oneBlank,
           [](Bench& bench) { figure::SpaceChopper(bench.session, bench.path); }),
      pass("SpaceChopper, every line", rewrite, blanks,
           [](Bench& bench) { figure::SpaceChopper(bench.session, bench.path); }),
      pass("phi file", open, plain, makePhi),
      pass("cut of a branch", rewrite, plain, cutBranch),
      pass("groups renamed (two passes)", copy, plain, renameNames),
      pass("chosen groups saved", rewrite, plain, saveGroups),
      pass("mirror of a mesh", rewrite, plain, mirrorMesh),
      pass("cut of a box", read, plain, cutBox),
      pass("list of embedded geometries", read, plain, listGeometries),
      pass("extraction of a body part", read, plain, extractPart),
      pass("graft of a body part", rewrite, plain, graftPart),
      pass("path pass", substitution, plain, passPaths),
      pass("Save", substitution, plain, save),
      pass("copy of a morph", copy, plain, copyMorph),
      pass("removal of a morph", rewrite, plain, removeMorph),
      pass("removal of a body part", rewrite, plain, removePart),
      pass("rename of a morph", rewrite, plain, renameMorph),
      pass("rename of a body part", rewrite, plain, renamePart),
      pass("open", open, plain, openWhole),
      pass("reorder", rewrite, plain, reorder),
      pass("hidden dials, list and change", copy, plain, listAndHideDials),
      pass("mirror, reading twice", copy, plain, mirrorMorph),
      pass("ERC unique name", rewrite, plain, makeUnique),
      pass("tracking speed, reading twice", copy, plain, changeTrackingSpeed),
      pass("joints, extract and transfer", copy, plain, transferJoints),
      pass("bend, off and on", copy, plain, bendPart),
      pass("extract of a morph", read, plain, extractMorph),
      pass("IK chains", rewrite, plain, removeIkChains),
      pass("dials renamed", rewrite, plain, renameDials),
      pass("dials renamed, preview", read, plain, previewDials),
      pass("link", rewrite, plain, writeLink),
      pass("list of the files of a CR2", read, plain,
           [](Bench& bench) { install::ListCR2Files(bench.session, bench.path); }),
      pass("list of the files to remove", read, plain,
           [](Bench& bench) {
             bench.opening.LabelFileNameForEditor.setCaption(bench.path);
             install::listFigureFiles(bench.session, bench.opening.ListboxListCR2Files);
           }),
      pass("list of links", read, plain, listLinks),
      pass("ratio", rewrite, plain, changeRatio),
      pass("null figure", rewrite, plain, makeNullFigure),
      pass("colour of a material", rewrite, plain, changeColour),
      pass("removal of materials", rewrite, plain, removeMaterials),
      pass("addition of materials", rewrite, plain, addMaterials),
      pass("alternate geometry", rewrite, plain, addGeometry),
      pass("figure out of a scene", rewrite, plain, takeFigureOut),
      pass("list of a pose's parts", read, plain, listParts),
      pass("pose of all parts", rewrite, plain, buildPose),
      pass("MAT file, lists and copy", rewrite, plain, buildMat),
      pass("MOR skeleton", read, plain, writeSkeleton),
      pass("weld, the pose that receives", rewrite, plain, mergePoses)};
  return all;
}

}  // namespace norvik::bench
