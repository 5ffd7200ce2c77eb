#include "figure/figure_branch.h"

#include "figure/actor_lister.h"
#include "figure/caption.h"
#include "figure/map_lister.h"
#include "figure/material_lister.h"
#include "figure/path_lister.h"
#include "figure/space_chopper.h"
#include "text/columns.h"
#include "text/line_reader.h"

namespace norvik::figure {

namespace {

void showFrame(front::Session& session, const std::string& path, FileKind kind) {
  front::Opening& opening = session.opening;
  opening.LabelOBJFileName.hide();
  if (kind != FileKind::pz3) opening.LabelOBJFileName.setCaption("");
  opening.PictureScaleObj.hide();
  opening.PictureMash.hide();
  opening.Shape1.show();
  opening.ShapeChannels.show();
  opening.LabelFileSize.show();
  opening.PictureMapViewer.show();

  opening.LabelFileSize.setCaption(sizeInBytes(session.disk, path));
  opening.ListPropObj.clear();
  opening.ListPropObj.setFore(front::kListNormal);
}

void showPathBlock(front::Opening& opening, FileKind kind) {
  opening.PictureCopyToDest.hide();
  for (front::Label* label :
       {&opening.LabelMainOBJPath, &opening.LabelPropOBJs, &opening.LabelMainTex,
        &opening.LabelMainBump, &opening.LabelMainTrans, &opening.LabelMainReflect}) {
    label->show();
    if (kind != FileKind::pz3) label->setFore(front::kPathClean);
  }
  opening.ListPropObj.show();
  for (front::TextBox* box : {&opening.TextMainOBJ, &opening.TextMainTex, &opening.TextMainBump,
                              &opening.TextMainTrans, &opening.TextMainReflect}) {
    box->show();
  }
  opening.TextMainTex.setText("");
  opening.TextMainBump.setText("");
}

void listMaterials(front::Session& session, const std::string& path) {
  front::Opening& opening = session.opening;
  opening.PictureMatColor.show();
  opening.PictureMatHiLite.show();
  opening.LabelMaterials.show();
  opening.ListMaterials.clear();
  opening.ListMATColors.clear();
  opening.ListMatHiLite.clear();
  opening.ListMaterials.show();
  MatLister(session, path);
}

void listActorsAndChannels(front::Session& session, const std::string& path) {
  front::Opening& opening = session.opening;
  // Both panes name one file: that is how later code knows that no source is open.
  opening.LabelChannelFileName.show();
  opening.LabelChannelFileName.setCaption(shortenedPath(path));
  opening.LabelChannelFileNameForEditor.setCaption(path);

  opening.ListActors.clear();
  opening.ListActors.show();
  opening.LabelBodyParts.show();
  ListTheActors(session, path);

  opening.ListChannels.clear();
  opening.ListChannels.show();
  opening.ListChannels.add("ALL CHANNELS");
  opening.ListChannels.add("************************");
  if (session.routines.ViewChannels) session.routines.ViewChannels(path);
}

void showTools(front::Opening& opening) {
  opening.ImageSplash.hide();
  opening.TextMorphRename.setText("");
  opening.TextMorphRename.hide();
  opening.PictureRenameMorph.hide();
  opening.PictureViewChannels.rest();
  const std::initializer_list<front::Control*> tools = {
      &opening.PictureViewChannels, &opening.PictureJoints,   &opening.PictureTrash,
      &opening.PictureEMC,          &opening.PictureEditor,   &opening.PictureChangeRatio,
      &opening.PictureOBJView,      &opening.LabelOpenSource, &opening.LabelOpenSourceTitle,
      &opening.TextForceLimits,     &opening.ListTwistRemove, &opening.ListTwistRestore};
  for (front::Control* control : tools) control->show();
}

}  // namespace

void chopLeadingBlanks(front::Session& session, const std::string& path, int lines, ScanEnd end) {
  bool indented = false;
  {
    text::LineReader in(session.disk, path);
    for (int i = 0; i < lines && !indented; ++i) {
      if (end == ScanEnd::quiet && in.atEnd()) break;
      indented = in.line().starts_with(' ');
    }
  }
  if (indented) SpaceChopper(session, path);
}

void showFigure(front::Session& session, const std::string& path, FileKind kind, ScanEnd end) {
  front::Opening& opening = session.opening;
  const FigureRules& rules = *figureRules(kind);
  opening.LineObj.show();
  if (kind != FileKind::pz3) opening.LabelFileNameForEditor.setCaption(path);
  session.hourglass(true);
  chopLeadingBlanks(session, path, rules.scannedLines, end);

  showFrame(session, path, kind);
  if (rules.isProp) {
    OpenHR2(session, path);
  } else {
    OpenCR2(session, path);
  }
  showPathBlock(opening, kind);
  opening.LabelFileName.show();
  opening.LabelFileName.setCaption(shortenedPath(path));
  opening.LabelFileNameForEditor.setCaption(path);
  listMaterials(session, path);
  listActorsAndChannels(session, path);
  FindMapLocs(session, path);
  showTools(opening);
  session.hourglass(false);
  opening.MenuCR2Tools.setEnabled(true);
}

}  // namespace norvik::figure
