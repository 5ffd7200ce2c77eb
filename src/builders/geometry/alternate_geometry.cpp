#include "builders/geometry/alternate_geometry.h"

#include "builders/geometry/geometry_blocks.h"
#include "channels/actor_block.h"
#include "figure/actor_entry.h"
#include "front/finished_file.h"
#include "text/file_names.h"
#include "text/line_search.h"
#include "text/number_text.h"

#include <optional>

namespace norvik::builders {

namespace {

using text::anywhere;
using text::atStart;

constexpr std::string_view kFigureResult = "\\AltGeom.cr2";
constexpr std::string_view kPropResult = "\\AltGeom.pp2";
constexpr std::string_view kScratch = "\\AltGeom.tmp";

constexpr std::string_view kChannel = "geomChan";
constexpr std::string_view kChannelMost = "\t\t\tmax";
constexpr std::string_view kChannelHeadEnd = "interpStyleLocked";

auto equalTo(std::string_view wanted) {
  return [wanted](std::string_view line) { return line == wanted; };
}

bool isProp(const front::Opening& opening) {
  return text::extension(opening.OpenedPath) == "pp2";
}

/// Whether the tool works on the opened file; says so if it does not.
bool takesOpenedFile(front::Session& session) {
  const auto type = text::extension(session.opening.OpenedPath);
  if (type == "cr2" || type == "pp2") return true;
  session.front.messageBox("CR2 or PP2 files only!", "Error!", front::kCritical);
  return false;
}

void addProps(front::ListBox& list, text::LineReader in) {
  static const text::LineFilter props{atStart("prop ")};
  text::LineCount count;
  for (;;) {
    count.add(in.skipLines(props));
    if (in.atEnd()) return;
    const auto line = in.line();
    ++count;
    if (!text::begins(line, "prop ")) continue;
    list.add("   " + std::string{text::from(line, 5)} + " *" + text::numberText(count.asSingle()));
  }
}

void listActors(front::Session& session) {
  front::Opening& opening = session.opening;
  if (!takesOpenedFile(session)) return;
  opening.ListAltGeomActors.clear();
  for (const std::string& entry : opening.ListActors.items()) opening.ListAltGeomActors.add(entry);
  if (isProp(opening)) {
    addProps(opening.ListAltGeomActors, text::LineReader(session.disk, opening.OpenedPath));
  }
  opening.ListAltGeomActors.show();
}

/// A scratch file that goes with the run, whatever ends it, unless it was moved to its place.
class PassingFile {
 public:
  PassingFile(text::Disk& disk, std::string path) : disk_(disk), path_(std::move(path)) {}
  PassingFile(const PassingFile&) = delete;
  PassingFile& operator=(const PassingFile&) = delete;
  ~PassingFile() {
    text::ignoringErrors([this] { disk_.remove(path_); });
  }
  const std::string& path() const { return path_; }

 private:
  text::Disk& disk_;
  std::string path_;
};

/// Whether a result is the file that is worked on. By its name too: the disk may be in a state in
/// which it cannot tell.
bool isOpened(const front::Session& session, const std::string& result) {
  const std::string& opened = session.opening.OpenedPath;
  return text::sameName(session.disk.inFull(opened), session.disk.inFull(result)) ||
         session.disk.isSameFile(opened, result);
}

/// The OBJ that the operator picks, if it is one of Poser's geometries.
std::optional<std::string> askForGeometry(front::Session& session) {
  // Shared with the path box, which proposes a name of its own each time.
  front::CommonDialog& dialog = session.opening.CommonDialog4;
  dialog.setFileName("");
  const std::string folder = session.settings.get("Startup", "PLoc", "0") + "Runtime\\Geometries";
  if (!dialog.open(session.front, folder, "Open Alternate Geometry OBJ",
                   {{}, front::kMeshFilter})) {
    return std::nullopt;
  }
  if (!text::holds(dialog.fileName(), "Geometries")) return std::nullopt;
  return dialog.fileName();
}

/// Copies through the line that begins the actor's block with channels.
void copyToActor(text::RewritePass& pass, const std::string& actor, bool prop) {
  if (!prop) return copyThroughSecond(pass, channels::ActorLine::equal(actor));
  const std::string wanted = "prop " + actor;
  for (int block = 0; block < 2; ++block) {
    text::copyThrough(pass, {atStart(wanted)}, equalTo(wanted));
  }
}

/// Copies the geometries that the actor has and counts them. The line behind them is read, not
/// written, and returned.
std::string copyAlternates(text::RewritePass& pass, int& count) {
  text::copyThrough(pass, {atStart(kGeometryParent)},
                    [](std::string_view line) { return text::begins(line, kGeometryParent); });
  std::string line{pass.in().line()};
  while (text::begins(line, kGeometryLine)) {
    ++count;
    pass.out().line(line);
    text::copyThrough(pass, {atStart(kGeometryEnd)}, equalTo(kGeometryEnd));
    line = pass.in().line();
  }
  return line;
}

/// Copies through the end of a dial's header; the first line of its upper end is written anew.
void raiseDial(text::RewritePass& pass, int count) {
  static const text::LineFilter header{atStart(kChannelMost), anywhere(kChannelHeadEnd)};
  const auto isHeadEnd = text::holding(kChannelHeadEnd);
  bool raised = false;
  for (;;) {
    const std::string line = text::copyUpTo(pass, header, [&](std::string_view text) {
      return isHeadEnd(text) || (!raised && text::begins(text, kChannelMost));
    });
    pass.out().line(isHeadEnd(line) ? line : geometryCountLine(count));
    if (isHeadEnd(line)) return;
    raised = true;
  }
}

/// Copies through the end of the actor's channels, `line` being the first. Any dial in them counts
/// as the actor's own; without one it is written in front of their end.
void copyChannels(text::RewritePass& pass, std::string line, std::string_view actor, int count) {
  static const text::LineFilter stops{anywhere(kChannel), atStart(kGeometryEnd)};
  const auto isDial = text::holding(kChannel);
  const auto stopsAt = [&](std::string_view text) { return text == kGeometryEnd || isDial(text); };
  if (!stopsAt(line)) {
    pass.out().line(line);
    line = text::copyUpTo(pass, stops, stopsAt);
  }
  const bool hasDial = isDial(line);
  if (!hasDial) writeGeometryChannel(pass.out(), actor, count);
  pass.out().line(line);
  if (!hasDial) return;
  raiseDial(pass, count);
  text::copyThrough(pass, {atStart(kGeometryEnd)}, equalTo(kGeometryEnd));
}

/// Writes the opened file with one more geometry. False when the operator picks none.
bool writeResult(front::Session& session, const std::string& actor, const std::string& scratch) {
  const front::Opening& opening = session.opening;
  text::RewritePass pass(session.disk, opening.OpenedPath, scratch);
  session.hourglass(true);
  copyToActor(pass, actor, isProp(opening));
  int count = 0;
  std::string line = copyAlternates(pass, count);
  session.hourglass(false);
  const auto obj = askForGeometry(session);
  if (!obj) return false;
  session.hourglass(true);
  const AlternateGeometry geometry = alternateGeometry(actor, *obj);
  writeGeometry(pass.out(), geometry);
  copyChannels(pass, std::move(line), geometry.actor, count + 1);
  pass.copyRest();
  pass.finish();
  return true;
}

void removeOldResults(front::Session& session) {
  const front::Opening& opening = session.opening;
  for (const std::string_view name : {kFigureResult, kPropResult}) {
    const std::string result = opening.inProgramFolder(name);
    if (isOpened(session, result)) continue;
    text::ignoringErrors([&] { session.disk.remove(result); });
  }
}

void addGeometry(front::Session& session) {
  front::Opening& opening = session.opening;
  const std::string entry{opening.ListAltGeomActors.chosen()};
  if (text::trimmed(entry).empty() || !takesOpenedFile(session)) return;
  removeOldResults(session);
  const bool prop = isProp(opening);
  const std::string result = opening.inProgramFolder(prop ? kPropResult : kFigureResult);
  const PassingFile scratch(session.disk, opening.inProgramFolder(kScratch));
  if (!writeResult(session, figure::actorName(entry), scratch.path())) return;
  session.disk.replace(scratch.path(), result);
  session.hourglass(false);
  session.front.tellOf({.path = result, .isScratch = true});
  session.front.messageBox((prop ? "New prop saved as " : "New CR2 saved as ") + result +
                               ", move or rename before doing another.",
                           "Note!", front::kOk);
}

}  // namespace

void wireAlternateGeometry(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.menuGeomSwitch.clicked.add([&session] { listActors(session); });
  opening.ListAltGeomActors.clicked.add([&session] { addGeometry(session); });
  opening.ListAltGeomActors.released.add([&opening](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::right) opening.ListAltGeomActors.hide();
  });
}

}  // namespace norvik::builders
