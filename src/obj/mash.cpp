#include "obj/mash.h"

#include "front/stoppable_pass.h"
#include "text/first_dot.h"
#include "text/number_text.h"
#include "text/rewrite_pass.h"

#include <string>

namespace norvik::obj {

namespace {

constexpr std::string_view kScratch = "\\tempobj.txt";
constexpr std::string_view kMark = "# Processed by Norvik by Tallowmere";
constexpr std::string_view kMarkLine = "# Processed by Norvik by Tallowmere 2001";

enum class Condensed { yes, already };

void dropNormals(text::RewritePass& pass) {
  const text::LineFilter normals({text::LineFilter::Token{"vn", true}});
  for (pass.copyLines(normals); !pass.in().atEnd(); pass.copyLines(normals)) {
    const std::string_view line = pass.in().line();
    if (!text::begins(line, "vn")) pass.out().line(line);
  }
}

void keepVertices(text::RewritePass& pass) {
  const text::LineFilter vertices({text::LineFilter::Token{"v ", true}});
  for (pass.in().passLines(vertices); !pass.in().atEnd(); pass.in().passLines(vertices)) {
    const std::string_view line = pass.in().line();
    if (text::begins(line, "v ")) pass.out().line(line);
  }
}

/// Fills the scratch file. A first line with the mark ends that; the scratch file goes then.
Condensed condense(front::Session& session, const std::string& path, const std::string& scratch) {
  const front::Opening& opening = session.opening;
  text::RewritePass pass(session.disk, path, scratch);
  // The first line stays whatever it is, a normal too.
  const std::string first{pass.in().line()};
  if (text::holds(first, kMark)) {
    session.front.messageBox("File already mashed!", "Note!", front::kOk);
    pass.finish();
    session.disk.remove(scratch);
    return Condensed::already;
  }
  session.hourglass(true);
  front::runStoppable(session.front, [&] {
    pass.out().line(kMarkLine);
    pass.out().line(first);
    if (opening.OptionMashOBJ.value()) dropNormals(pass);
    if (opening.OptionMashMorph.value()) keepVertices(pass);
    pass.finish();
  });
  return Condensed::yes;
}

void mash(front::Session& session) {
  const std::string path = session.opening.LabelOBJFileName.caption();
  const std::string scratch = session.opening.inProgramFolder(kScratch);
  if (condense(session, path, scratch) == Condensed::already) return;
  const auto before = static_cast<std::int64_t>(session.disk.size(path));
  session.disk.replaceKeeping(scratch, path, text::throughFirstDot(path, "bak"));
  const auto after = static_cast<std::int64_t>(session.disk.size(path));
  session.hourglass(false);
  session.front.messageBox("                  Converted!\rFile was" +
                               text::wholeNumberText(before) + " bytes, now it is" +
                               text::wholeNumberText(after) +
                               " bytes. A backup has been created with the extension BAK.",
                           "Note!", front::kOk);
}

void showOptions(front::Opening& opening, bool visible) {
  for (front::Control* control : std::initializer_list<front::Control*>{
           &opening.FrameMash, &opening.OptionMashOBJ, &opening.OptionMashMorph}) {
    control->setVisible(visible);
  }
}

void click(front::Session& session) {
  front::Opening& opening = session.opening;
  // An open hides the frame alone; the options go with it.
  const bool shown = opening.FrameMash.visible() &&
                     (opening.OptionMashOBJ.visible() || opening.OptionMashMorph.visible());
  if (!shown) {
    showOptions(opening, true);
    opening.SliderOBJScale.hide();
    opening.TextOBJScale.hide();
    opening.CheckOBJBatch.hide();
  } else if (opening.OptionMashOBJ.value() || opening.OptionMashMorph.value()) {
    mash(session);
    showOptions(opening, false);
  }
}

}  // namespace

void wireMash(front::Session& session) {
  session.opening.PictureMash.released.add([&session](front::Mouse mouse) {
    if (mouse.button == front::MouseButton::left) click(session);
  });
}

}  // namespace norvik::obj
