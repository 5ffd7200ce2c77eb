#include "channels/morph_extract.h"

#include "channels/channel_entry.h"
#include "channels/channel_scan.h"
#include "figure/geometry_reference.h"
#include "text/line_reader.h"
#include "text/line_writer.h"

namespace norvik::channels {

namespace {

using text::anywhere;
using text::atStart;

/// Reads up to and including the line that equals `wanted`; throws at the end of the file.
void passTo(text::LineReader& in, const std::string& wanted) {
  const text::LineFilter stops{atStart(wanted)};
  do {
    in.passLines(stops);
  } while (in.line() != wanted);
}

void passToHeaderEnd(text::LineReader& in) {
  static const text::LineFilter stops{anywhere("interp")};
  do {
    in.passLines(stops);
  } while (!text::holds(in.line(), "interp"));
}

void readBlock(text::LineReader& in, CopyRun& run) {
  const ErcLink& link = run.link;
  do {
    for (std::string& line : run.block) line = in.line();
  } while (!text::holds(run.block[1], link.figure) || !text::holds(run.block[2], link.group) ||
           !text::holds(run.block[3], link.master) || !text::holds(run.block[4], link.ratio));
}

/// Finds the selected link behind its morph's header, or, for a channel that only a valueParm
/// holds, the line to search for.
void findLink(front::Session& session, CopyRun& run, const std::string& selectedText) {
  const std::string& source = session.opening.LabelChannelFileNameForEditor.caption();
  text::LineReader in(session.disk, source);
  run.searchLine = morphLine(run.link.slaved);
  if (!untilEndOfFile([&] { passTo(in, run.searchLine); })) {
    in = text::LineReader(session.disk, source);
    run.searchLine = "\t\tvalueParm " + selectedText;
    passTo(in, run.searchLine);
  }
  passToHeaderEnd(in);
  if (text::holds(run.searchLine, "valueParm ")) return;
  readBlock(in, run);
  run.linkMode = true;
  session.front.messageBox("Note that your source ERC morph uses " +
                               std::string{text::from(run.block[1], 4)} +
                               " as a figure name. This probably does not agree with the name in "
                               "your destination file, be "
                               "sure to edit this.",
                           "Note!", front::kExclamation);
}

/// Whether the copy goes on with a source line that names a geometry.
bool acceptsGeometry(front::Session& session, CopyRun& run, std::string_view line) {
  front::Opening& opening = session.opening;
  if (figure::geometryTail(line) == opening.TextMainOBJ.text()) return true;
  session.hourglass(false);
  if (!run.geometryConfirmed) {
    session.front.messageBox(
        "You must use figures based on the same geometry; they must have the same main obj.",
        "Error!", front::kOk);
    const front::Answer answer = session.front.messageBox(
        "If you know it is the same obj, just located in a different location, then click OK, and "
        "the "
        "tool will continue.  If it is not the same obj, the morph will not work.  Hit cancel in "
        "this "
        "case.",
        "Note!", front::kOkCancel);
    if (answer == front::Answer::cancel) {
      opening.ListEMCs.clear();
      opening.ListEMCs.hide();
      opening.PictureCopyToDest.rest();
      return false;
    }
    run.geometryConfirmed = true;
  }
  session.hourglass(true);
  return true;
}

bool findEntry(front::Session& session, CopyRun& run, text::LineReader& in) {
  const text::LineFilter stops{atStart(run.searchLine), atStart("figureR")};
  for (;;) {
    in.passLines(stops);
    const auto line = in.line();
    if (line == run.searchLine) return true;
    if (text::begins(line, "figureR") && !acceptsGeometry(session, run, line)) return false;
  }
}

void writeEntry(const CopyRun& run, text::LineReader& in, text::LineWriter& out) {
  if (run.linkMode) {
    for (const std::string& line : run.block) out.line(line);
    return;
  }
  static const text::LineFilter ends{atStart("\t\ttargetGeom"), atStart("\t\ttwist"),
                                     atStart("\t\tjoint")};
  out.line(run.searchLine);
  in.handOnLines(ends, [&out](std::string_view lines) { out.lines(lines); });
}

}  // namespace

void chooseSearch(CopyRun& run, const front::ListBox& list, int index) {
  const auto selected = text::from(list.item(index), 2);
  run.searchLine = morphLine(selected);
  if (run.selectedClass > kNoDetail) run.searchLine += '\t';
  const DetailClass detail = detailClass(selected);
  if (detail != kNoDetail) run.selectedClass = detail;
  if (run.selectedClass < kMaster) return;

  run.link = ercLinkAround(list, index, static_cast<DetailClass>(run.selectedClass));
  run.searchLine = "\t\t\tname " + run.link.slaved;
  const bool turnsAndMoves =
      text::holds(run.link.slaved, "rot") && text::holds(run.link.slaved, "tran");
  if (!turnsAndMoves) run.selectedClass = CopyRun::kLinkOfMorph;
}

bool extractMorph(front::Session& session, CopyRun& run, const std::string& selectedText) {
  // Emptied, should its delete have failed: an older extract must not get into the figure.
  text::LineWriter out(session.disk, session.opening.inProgramFolder(kExtractFile));
  if (run.selectedClass == CopyRun::kLinkOfMorph) findLink(session, run, selectedText);
  text::LineReader in(session.disk, session.opening.LabelChannelFileNameForEditor.caption());
  if (!findEntry(session, run, in)) return false;
  writeEntry(run, in, out);
  out.close();
  return true;
}

}  // namespace norvik::channels
