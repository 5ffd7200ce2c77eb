#include "figure/open_file.h"

#include "figure/check_sgi.h"
#include "figure/figure_branch.h"
#include "figure/file_kind.h"
#include "figure/modes.h"
#include "figure/save.h"
#include "front/recent_files.h"
#include "text/columns.h"

namespace norvik::figure {

namespace {

void openFigure(front::Session& session, std::string path, FileKind kind) {
  CheckSGI(session, path);
  front::Opening& opening = session.opening;
  if (figureRules(kind)->honoursRefusal && opening.OpenCancelled) {
    opening.OpenCancelled = false;
    return;
  }
  showFigure(session, path, kind, ScanEnd::quiet);
}

}  // namespace

void leaveChannelReorder(front::Opening& opening) {
  opening.ListChannelsReorderReordered.clear();
  opening.ListChannelsReorderByPart.clear();
  opening.ListChannelsReorderByPart.hide();
  opening.ListChannelsReorderNewOrder.hide();
  opening.PictureChannelReorderDone.hide();
}

void openFile(front::Session& session) {
  front::Opening& opening = session.opening;
  if (opening.PathsEdited &&
      session.front.messageBox("Save path changes before closing file?", "Alert!", front::kYesNo) ==
          front::Answer::yes) {
    savePathsBeforeOpen(session);
  }
  if (!opening.SkipOpenDialog) {
    if (!opening.CommonDialog1.open(session.front, session.disk.currentFolder(), {},
                                    {"Open a figure, scene, prop or mesh", front::kFigureFilter})) {
      return;
    }
    leaveChannelReorder(opening);
    opening.OpenedPath = opening.CommonDialog1.fileName();
    front::AddMRUItem(opening, opening.OpenedPath);
  }
  opening.SkipOpenDialog = false;
  opening.PathsEdited = false;
  opening.DestPath = opening.OpenedPath;
  session.offerToClearReadOnly(opening.OpenedPath);
  prepareForFile(opening);

  const FileKind kind = kindOf(opening.OpenedPath);
  if (figureRules(kind) != nullptr) {
    openFigure(session, opening.OpenedPath, kind);
  } else if (kind == FileKind::obj) {
    enterObjMode(session, opening.OpenedPath);
  } else if (kind == FileKind::mtl) {
    CheckSGI(session, opening.OpenedPath);
    opening.LabelFileNameForEditor.setCaption(opening.OpenedPath);
  }
}

void ComStart(front::Session& session, std::string& path) {
  front::Opening& opening = session.opening;
  opening.MenuCR2Tools.setEnabled(false);
  if (text::extension(path).empty()) return;
  prepareForFile(opening);

  const FileKind kind = kindOf(path);
  if (kind == FileKind::pz2 || kind == FileKind::bmp) session.hourglass(false);
  if (kind != FileKind::cr2 && kind != FileKind::pz3 && kind != FileKind::obj) return;
  opening.DestPath = path;
  CheckSGI(session, path);
  if (kind == FileKind::obj) {
    enterObjMode(session, path);
  } else {
    showFigure(session, path, kind, ScanEnd::error);
  }
}

void wireOpen(front::Session& session) {
  session.opening.MenuFileOpen.clicked.add([&session] { openFile(session); });
}

}  // namespace norvik::figure
