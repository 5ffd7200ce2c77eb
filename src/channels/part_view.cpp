#include "channels/part_view.h"

#include "channels/channel_entry.h"
#include "channels/channel_scan.h"
#include "channels/erc_details.h"
#include "text/line_reader.h"

#include <optional>

namespace norvik::channels {

namespace {

using text::anywhere;

/// One part's channels, read by fields so that indentation does not count. The scan ends at the
/// next actor, wherever it is read, or at the end of the file.
class PartScan {
 public:
  PartScan(front::ListBox& list, text::LineReader& in) : list_(list), in_(in) {}

  void run() {
    static const text::LineFilter stops{anywhere("targetGeom"), anywhere("valueOpDeltaAdd"),
                                        anywhere("actor"), anywhere("\"")};
    auto field = next(stops);
    while (field) {
      if (text::holds(*field, "valueOpDeltaAdd")) {
        field = listLink();
      } else if (text::holds(*field, "targetGeom")) {
        field = listMorph();
      } else {
        field = next(stops);
      }
    }
  }

 private:
  /// Nothing at the next actor.
  std::optional<std::string> next() {
    std::string field{in_.field()};
    if (text::begins(field, "actor")) return std::nullopt;
    return field;
  }
  std::optional<std::string> next(const text::LineFilter& stops) {
    in_.passLines(stops);
    return next();
  }

  std::optional<std::string> listMorph() {
    static const text::LineFilter stops{anywhere("interpStyleLocked"), anywhere("actor"),
                                        anywhere("\"")};
    if (!next()) return std::nullopt;
    const auto name = next();
    if (!name) return std::nullopt;
    dial_ = dialName(*name);
    std::optional<std::string> field;
    do {
      field = next(stops);
      if (!field) return std::nullopt;
    } while (!text::holds(*field, "interpStyleLocked"));
    field = next();
    if (field && !text::holds(*field, "valueOpDeltaAdd")) addMorph();
    return field;
  }

  void addMorph() {
    list_.add("");
    list_.add("\t" + dial_);
  }

  std::optional<std::string> listLink() {
    ErcLink link;
    link.slaved = dial_;
    std::optional<std::string> field;
    for (std::string* value : {&link.figure, &link.group, &link.master, &link.ratio}) {
      field = next();
      if (!field) return std::nullopt;
      *value = *field;
    }
    link.ratio = text::after(*field, " ");
    addErcItems(list_, "", link);
    return field;
  }

  front::ListBox& list_;
  text::LineReader& in_;
  std::string dial_;
};

void leavePartView(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.PictureViewChannels.rest();
  for (front::PictureButton* picture :
       {&opening.PictureCopyToDest, &opening.PictureRenameMorph, &opening.PictureChangeRatio}) {
    picture->hide();
    picture->rest();
  }
  opening.ListChannels.clear();
  opening.ListChannels.add("ALL CHANNELS");
  opening.ListChannels.add("************************");
  session.routines.ViewChannels(opening.LabelFileNameForEditor.caption());
}

/// The part's name from its list entry, with one blank in front; empty for the entry that is blank.
std::string partName(std::string_view entry) {
  const auto star = entry.find('*');
  if (star == std::string_view::npos) return {};
  return std::string{text::from(text::withoutLast(entry.substr(0, star), 1), 4)};
}

/// The part's name with the source's own figure number: the last character of the first line that
/// holds the bare name. One digit is taken for granted. Nothing if there is no such line.
std::optional<std::string> nameInSource(front::Session& session, const std::string& name) {
  const std::string bare{text::before(text::withoutLast(name, 1), ":")};
  text::LineReader in(session.disk, session.opening.LabelChannelFileNameForEditor.caption());
  while (!in.atEnd()) {
    in.passLines({anywhere(bare)});
    if (in.atEnd()) break;
    const auto line = in.line();
    if (text::holds(line, bare)) return bare + ":" + std::string{text::rightmost(line, 1)};
  }
  return std::nullopt;
}

bool passLine(text::LineReader& in, const std::string& wanted) {
  const text::LineFilter stops{text::atStart(wanted)};
  return untilEndOfFile([&] {
    do {
      in.passLines(stops);
    } while (in.line() != wanted);
  });
}

/// Lists the part's channels. False when the file does not have the part twice.
bool listPart(front::Session& session, const std::string& name) {
  front::Opening& opening = session.opening;
  opening.ListChannels.add("Channels for " + name);
  if (name.ends_with(':')) return false;
  text::LineReader in(session.disk, opening.LabelChannelFileNameForEditor.caption());
  const std::string actorLine = "actor" + name;
  for (int occurrence = 0; occurrence < 2; ++occurrence) {
    if (!passLine(in, actorLine)) return false;
  }
  untilEndOfFile([&] { PartScan(opening.ListChannels, in).run(); });
  return true;
}

void enterPartView(front::Session& session, const std::string& entry) {
  front::Opening& opening = session.opening;
  opening.PictureViewChannels.activate();
  opening.PictureCopyToDest.show();
  opening.PictureRenameMorph.show();
  opening.PictureChangeRatio.show();
  opening.ListChannels.clear();
  opening.ListChannels.setFore(front::kListNormal);

  const bool sourceOpen =
      opening.LabelChannelFileNameForEditor.caption() != opening.LabelFileNameForEditor.caption();
  std::optional<std::string> name = partName(entry);
  if (sourceOpen && !name->empty()) name = nameInSource(session, *name);
  if (!name || !listPart(session, *name)) {
    session.front.messageBox(
        "No information for this bodypart in the file, the figure numbers may be different in the "
        "source file.",
        "Error!", front::kOk);
    return;
  }
  if (opening.ListChannels.count() == 1) {
    opening.ListChannels.setFore(front::kListWarning);
    opening.ListChannels.add("NO MORPH CHANNELS FOR THIS PART");
  }
  if (sourceOpen) opening.ListActors.clearSelection();
}

void togglePartView(front::Session& session) {
  front::Opening& opening = session.opening;
  const std::string entry{opening.ListActors.chosen()};
  if (text::holds(entry, "BODY")) {
    session.front.messageBox("You can't work with the BODY, choose a body part!", "Error!",
                             front::kCritical);
    return;
  }
  opening.OptionChannelRename.hide();
  opening.OptionBodyPartRename.hide();
  opening.PictureTrash.rest();
  opening.PictureJoints.rest();
  if (opening.PictureViewChannels.active()) return leavePartView(session);
  if (opening.ListActors.index() < 1 && entry.empty()) {
    session.front.messageBox("Choose a bodypart first, from the left pane.", "Note!", front::kOk);
    opening.PictureViewChannels.rest();
    return;
  }
  enterPartView(session, entry);
}

}  // namespace

void wirePartView(front::Session& session) {
  session.opening.PictureViewChannels.released.add([&session](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) togglePartView(session);
  });
}

}  // namespace norvik::channels
