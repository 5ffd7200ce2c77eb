#include "channels/dials/hide_dials.h"

#include "channels/dials/name_index.h"
#include "front/dial_frame.h"
#include "text/columns.h"
#include "text/rewrite_pass.h"

namespace norvik::channels {

namespace {

constexpr std::string_view kEntry = "targetgeom";
constexpr std::string_view kLastItem = "DONE";
/// From the entry line to the `hidden` line.
constexpr int kLinesToFlag = 4;

/// The column at which an entry's keyword stands, in capitals or not; 0 if it does not.
std::size_t entryColumn(std::string_view line) {
  // Few lines have a "g" behind a "t".
  return text::column(text::lowered(line), kEntry);
}

const text::LineFilter& entryFilter() {
  static const text::LineFilter filter{text::anywhere("tg"), text::anywhere("tG"),
                                       text::anywhere("Tg"), text::anywhere("TG")};
  return filter;
}

void listDials(front::Session& session) {
  front::Opening& opening = session.opening;
  front::ListBox& list = opening.ListHideDialsChannels;
  front::showDialFrame(opening);
  list.clear();
  text::LineReader in(session.disk, opening.OpenedPath);
  for (in.passLines(entryFilter()); !in.atEnd(); in.passLines(entryFilter())) {
    const auto line = in.line();
    const std::size_t column = entryColumn(line);
    if (column == 0) continue;
    list.add(text::from(line, column + kEntry.size() + 1));
    bool hidden = false;
    for (int i = 0; i < kLinesToFlag; ++i) hidden = in.line().ends_with('1');
    if (hidden) list.setSelected(list.count() - 1, true);
  }
  list.add(kLastItem);
}

std::string scratchName(const front::Opening& opening) {
  constexpr std::string_view kScratch = "\\dial.tmp";
  const bool closed = opening.ProgramFolder.ends_with('\\');
  return opening.inProgramFolder(closed ? kScratch.substr(1) : kScratch);
}

/// Copies what stands in front of the entry's flag and returns the flag's line with its new value.
std::string flagLine(text::RewritePass& pass, const std::string& entry, bool hidden) {
  pass.out().line(entry);
  for (int i = 1; i < kLinesToFlag; ++i) pass.out().line(pass.in().line());
  const auto flag = pass.in().line();
  return std::string{text::leftmost(flag, text::column(flag, " "))} + (hidden ? "1" : "0");
}

void setFlags(front::Session& session, const std::string& scratch) {
  front::ListBox& list = session.opening.ListHideDialsChannels;
  const NameIndex names(list.items());
  text::RewritePass pass(session.disk, session.opening.OpenedPath, scratch);
  for (pass.copyLines(entryFilter()); !pass.in().atEnd(); pass.copyLines(entryFilter())) {
    std::string line{pass.in().line()};
    if (entryColumn(line) != 0) {
      // The first item that is part of the line decides; those behind it are held against the
      // flag's line, which a morph may be named like.
      int item = names.firstIn(line, 0);
      while (item != NameIndex::kNone) {
        list.setSelected(list.count() - 1, true);
        line = flagLine(pass, line, list.selected(item));
        item = names.firstIn(line, item + 1);
      }
    }
    pass.out().line(line);
  }
  pass.finish();
}

void finishDials(front::Session& session) {
  front::Opening& opening = session.opening;
  const std::string scratch = scratchName(opening);
  session.hourglass(true);
  setFlags(session, scratch);
  session.hourglass(false);
  const front::ResultOffer offer(session, scratch, opening.OpenedPath);
  front::CommonDialog& dialog = opening.CommonDialog2;
  if (dialog.save(session.front, session.disk.currentFolder(), opening.OpenedPath, {},
                  {"Save the figure with its dials hidden and shown", front::kFigureFilter})) {
    session.disk.replace(scratch, dialog.fileName());
  }
  front::hideDialFrame(opening);
}

}  // namespace

void wireHideDials(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.menuHideDialsChannels.clicked.add([&session] { listDials(session); });
  opening.CommandDialHideDone.clicked.add([&session] { finishDials(session); });
  opening.ListHideDialsChannels.key.add([&session, &opening](const std::string& key) {
    if (key == "Enter") finishDials(session);
    if (key == "Escape") front::hideDialFrame(opening);
  });
}

}  // namespace norvik::channels
