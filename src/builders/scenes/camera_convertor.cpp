#include "builders/scenes/camera_convertor.h"

#include "front/finished_file.h"
#include "text/first_dot.h"
#include "text/line_search.h"

namespace norvik::builders {

namespace {

using text::anywhere;
using text::atStart;

constexpr std::string_view kScratch = "\\cam.txt";
constexpr std::string_view kMainCamera = "camera MAIN_CAMERA";
constexpr std::string_view kReference = "figureResFile";

bool isMainCamera(std::string_view line) {
  return line == kMainCamera;
}

/// All from the main camera up to the next reference, whatever it is, goes to the camera file.
void saveCameras(front::Session& session, const std::string& cameras) {
  const std::string& scene = session.opening.OpenedPath;
  const std::string scratch = session.opening.inProgramFolder(kScratch);
  text::RewritePass pass(session.disk, scene, scratch);
  pass.out().line(text::passThrough(pass.in(), {atStart(kMainCamera)}, isMainCamera));
  text::copyUpTo(pass, {anywhere(kReference)}, text::holding(kReference));
  pass.finish();
  // A camera file that could not be seen is not to be lost.
  session.disk.rename(scratch, cameras);
  session.hourglass(false);
  session.front.tellOf({.path = cameras});
  session.front.messageBox("Camera info for " + scene + " saved as " + cameras, "Note!",
                           front::kOk);
}

void restoreCameras(front::Session& session, const std::string& cameras) {
  const std::string& scene = session.opening.OpenedPath;
  const std::string scratch = session.opening.inProgramFolder(kScratch);
  text::RewritePass pass(session.disk, scene, scratch);
  text::copyUpTo(pass, {atStart(kMainCamera)}, isMainCamera);
  text::LineReader(session.disk, cameras).handOnLines({}, [&pass](std::string_view lines) {
    pass.out().lines(lines);
  });
  pass.out().line(text::passThrough(pass.in(), {anywhere(kReference)}, text::holding(kReference)));
  pass.copyRest();
  pass.finish();
  session.disk.replace(scratch, scene);
  session.hourglass(false);
  session.front.tellOf({.path = scene});
  session.front.messageBox("Camera info for " + scene + " restored.", "Note!", front::kOk);
}

void convertCameras(front::Session& session) {
  const std::string cameras = cameraFile(session.opening);
  session.hourglass(true);
  if (session.disk.exists(cameras)) {
    restoreCameras(session, cameras);
  } else {
    saveCameras(session, cameras);
  }
}

}  // namespace

std::string cameraFile(const front::Opening& opening) {
  return text::throughFirstDot(opening.OpenedPath, "cam");
}

void wireCameraConvertor(front::Session& session) {
  session.opening.MenuP3P4Cam.clicked.add([&session] { convertCameras(session); });
}

}  // namespace norvik::builders
