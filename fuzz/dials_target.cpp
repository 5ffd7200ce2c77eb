// The dial tools, the mirror, the extraction and the joints on any figure. Those with a simple
// model are held against it; of the others, a figure that is not meant to change does not, and what
// is changed in place keeps its size. Steering: READ SIZE|TOOL|NAME|PART. The tools: "ik", "unique"
// (NAME), "hide" (of every second dial), "bend", "twist", "limits" (of PART), "translate" (of
// PART), "speed", "reorder", "mirror" (NAME onto PART), "extract" (NAME of PART) and "joints" (of
// PART).

#include "channels/actor_double_click.h"
#include "channels/dials/dial_tools.h"
#include "channels/joints/joints.h"
#include "channels/mirror/extract.h"
#include "channels/mirror/mirror.h"
#include "desk.h"
#include "input.h"
#include "plain_text.h"

#include <algorithm>

namespace {

using norvik::fuzz::Desk;
using norvik::fuzz::PlainText;
using norvik::fuzz::require;
using norvik::fuzz::requireEqual;
using Lines = std::vector<std::string>;

bool holds(std::string_view line, std::string_view token) {
  return line.find(token) != std::string_view::npos;
}

/// A figure and what a plain model makes of it; 62 where a read passes its end.
struct Outcome {
  int error = 0;
  Lines lines = {};
};

template <typename Step>
Outcome plainly(Step&& step) {
  Outcome outcome;
  try {
    step(outcome.lines);
  } catch (int error) {
    outcome.error = error;
  }
  return outcome;
}

Outcome plainIk(const std::string& text) {
  return plainly([in = PlainText(text)](Lines& out) mutable {
    while (!in.atEnd()) {
      const std::string line = in.line();
      if (!holds(line, "inkyChain")) {
        out.push_back(line);
        continue;
      }
      while (!holds(in.line(), "defaultPick")) {
      }
    }
  });
}

Outcome plainUnique(const std::string& text, const std::string& name) {
  return plainly([in = PlainText(text), name](Lines& out) mutable {
    while (!in.atEnd()) {
      const std::string line = in.line();
      out.push_back(holds(line, "Figure ") ? line.substr(0, line.find("Figure ")) + name : line);
    }
  });
}

std::size_t entryColumn(std::string line) {
  std::transform(line.begin(), line.end(), line.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return line.find("targetgeom");
}

/// Each item is held against the line in its turn.
Outcome plainHide(const std::string& text, const Lines& items, const std::vector<int>& selection) {
  return plainly([&, in = PlainText(text)](Lines& out) mutable {
    while (!in.atEnd()) {
      std::string line = in.line();
      const bool entry = entryColumn(line) != std::string::npos;
      for (std::size_t i = 0; entry && i < items.size(); ++i) {
        if (!holds(line, items[i])) continue;
        const bool last = i + 1 == items.size();
        const bool selected = last || std::find(selection.begin(), selection.end(),
                                                static_cast<int>(i)) != selection.end();
        out.push_back(line);
        for (int behind = 0; behind < 3; ++behind) out.push_back(in.line());
        const std::string flag = in.line();
        const auto blank = flag.find(' ');
        line =
            (blank == std::string::npos ? "" : flag.substr(0, blank + 1)) + (selected ? "1" : "0");
      }
      out.push_back(line);
    }
  });
}

class Dials {
 public:
  Dials(const norvik::fuzz::Input& input, std::vector<std::string> pieces)
      : text_(input.text), pieces_(std::move(pieces)), desk_("cr2", input.text) {
    desk_.host.addFile("/c/f.obj", input.text);
    desk_.host.limitReads(norvik::fuzz::numberIn(pieces_[0], 1, 4096));
    desk_.opening.DestPath = desk_.path;
    desk_.opening.LabelOBJFileName.setCaption("C:\\f.obj");
    desk_.front.answerWith(norvik::front::Answer::yes);
    norvik::channels::wireDialTools(desk_.session);
    norvik::channels::wireMirror(desk_.session);
    norvik::channels::wireExtract(desk_.session);
    norvik::channels::wireJoints(desk_.session);
    norvik::channels::wireActorDoubleClick(desk_.session);
  }

  void run() {
    const std::string& tool = pieces_[1];
    if (tool == "unique") return unique();
    if (tool == "hide") return hide();
    if (tool == "twist" || tool == "limits" || tool == "translate") return inPlace(tool);
    if (tool == "bend" || tool == "speed" || tool == "joints") return replaced(tool);
    if (tool == "reorder" || tool == "mirror" || tool == "extract") return untouched(tool);
    ik();
  }

 private:
  auto& opening() { return desk_.opening; }
  std::string figure() { return desk_.host.bytesOf(desk_.hostName); }
  template <typename... Args, typename... Values>
  int raise(const norvik::front::Event<Args...>& event, Values&&... values) {
    return Desk::run([&] { event.raise(values...); });
  }

  void ik() {
    const Outcome wanted = plainIk(text_);
    const int error = raise(opening().MenuDumpIK.clicked);
    require(error == wanted.error, "the error");
    requireEqual(figure(), error == 0 ? norvik::fuzz::withLineEnds(wanted.lines) : text_,
                 "the figure");
  }

  void unique() {
    const Outcome wanted = plainUnique(text_, pieces_[2]);
    opening().TextERCUnique.setText(pieces_[2]);
    require(raise(opening().TextERCUnique.key, std::string("Enter")) == 0, "an error");
    requireEqual(desk_.host.bytesOf("/c/f_Unique.cr2"), norvik::fuzz::withLineEnds(wanted.lines),
                 "the copy");
    requireEqual(figure(), text_, "the figure");
  }

  void hide() {
    if (raise(opening().menuHideDialsChannels.clicked) != 0) return;
    auto& list = opening().ListHideDialsChannels;
    for (int i = 0; i < list.count(); ++i) list.setSelected(i, i % 2 == 0);
    const Outcome wanted = plainHide(text_, list.items(), list.selection());
    const int error = raise(opening().CommandDialHideDone.clicked);
    require(error == wanted.error, "the error");
    requireEqual(desk_.host.bytesOf("/c/Norvik/dial.tmp"), norvik::fuzz::withLineEnds(wanted.lines),
                 "the copy");
  }

  void inPlace(const std::string& tool) {
    chooseActor();
    if (tool == "limits") {
      opening().TextForceLimits.setText(pieces_[3]);
      raise(opening().TextForceLimits.key, std::string("Enter"));
    } else if (tool == "translate") {
      raise(opening().LabelX.clicked);
    } else {
      opening().ListTwistRemove.choose(0);
      opening().ListTwistRestore.choose(0);
      raise(opening().ListTwistRemove.clicked);
    }
    require(figure().size() == text_.size(), "the figure's size");
    if (tool != "twist" || holds(text_, "*")) return;
    raise(opening().ListTwistRestore.clicked);
    requireEqual(figure(), text_, "the restored figure");
  }

  void replaced(const std::string& tool) {
    chooseActor();
    int error = 0;
    if (tool == "bend") {
      error = raise(opening().MenuBendOff.clicked);
    } else if (tool == "speed") {
      opening().ListChannelsReorder.add(pieces_[3] + "*" + pieces_[2] + "^ 1@");
      opening().ListChannelsReorder.choose(0);
      error = raise(opening().ListChannelsReorder.clicked);
      if (error == 0) error = raise(opening().TextTrackingSpeed.key, std::string("Enter"));
    } else {
      opening().LabelFileName.setCaption("destination");
      error = raise(opening().PictureJoints.released, norvik::front::Mouse{});
    }
    if (error != 0) requireEqual(figure(), text_, "the figure");
  }

  void untouched(const std::string& tool) {
    using norvik::front::Mouse;
    chooseActor();
    if (tool == "reorder") {
      opening().ListChannelsReorderNewOrder.add(pieces_[3] + "*" + pieces_[2] + "^ 1@" +
                                                pieces_[2]);
      raise(opening().PictureChannelReorderDone.released, Mouse{});
    } else if (tool == "mirror") {
      opening().PictureMirror.show();
      opening().MirrorMorph = pieces_[2];
      require(raise(opening().ListActors.doubleClicked) == 0, "an error");
    } else {
      opening().ListChannels.clear();
      opening().ListChannels.add("Channels for  " + pieces_[3]);
      opening().ListChannels.add("\t" + pieces_[2]);
      opening().ListChannels.choose(1);
      raise(opening().ListChannels.released, Mouse{norvik::front::MouseButton::right});
    }
    requireEqual(figure(), text_, "the figure");
  }

  void chooseActor() {
    for (auto* list : {&opening().ListActors, &opening().ListChannels}) {
      list->add("    " + pieces_[3] + " * 1");
      list->choose(0);
    }
  }

  std::string text_;
  std::vector<std::string> pieces_;
  Desk desk_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const norvik::fuzz::Input input(data, size);
  Dials(input, input.pieces(4)).run();
  return 0;
}
