#include "pose/weld_missing.h"

#include "front/print_lines.h"
#include "pose/channel_lines.h"
#include "pose/weld_merge.h"
#include "text/columns.h"
#include "text/number_text.h"
#include "text/rewrite_pass.h"

#include <algorithm>

namespace norvik::pose {

namespace {

/// A morph of the second pose as it goes into the first.
struct MissingMorph {
  std::string actorLine;  ///< of the actor it belongs to, without the figure's number
  std::string channelLine;
  std::string keyLine;
};

MissingMorph missingMorph(const FormPZ2Combine& form, int index) {
  const bool morph = form.ListTGVP.item(index) == "TG";
  const auto actor = text::before(form.ListActors2.item(index), ":");
  const std::string keyword{morph ? kTargetGeom : kValueParm};
  return {"actor " + std::string{actor}, "\t\t" + keyword + std::string{form.ListFile2.item(index)},
          std::string{form.ListKeyLines.item(index)}};
}

/// Copies up to and including the actor's line and the three behind it. False if it is not there.
bool copyThroughHead(text::RewritePass& pass, const std::string& actorLine) {
  constexpr int kHeadLines = 3;
  const text::LineFilter stops{text::atStart(actorLine)};
  while (!pass.in().atEnd()) {
    pass.copyLines(stops);
    if (pass.in().atEnd()) return false;
    const auto line = pass.in().line();
    const bool found = text::before(line, ":") == actorLine;
    pass.out().line(line);
    if (!found) continue;
    for (int i = 0; i < kHeadLines; ++i) pass.out().line(pass.in().line());
    return true;
  }
  return false;
}

void insert(front::Session& session, const MissingMorph& morph) {
  const std::string pose = session.opening.inProgramFolder(kWelded);
  const std::string scratch = session.opening.inProgramFolder(kWeldedMore);
  text::RewritePass pass(session.disk, pose, scratch);
  if (copyThroughHead(pass, morph.actorLine)) {
    writeChannel(pass.out(), morph.channelLine, morph.keyLine);
  }
  pass.copyRest();
  pass.finish();
  session.disk.replace(scratch, pose);
}

void print(front::Session& session, const FormPZ2Combine& form) {
  const std::string margin(15, ' ');
  std::vector<std::string> lines(3);
  lines.push_back(margin + "Morphs not present in  " + form.LabelFileFirst.caption());
  lines.insert(lines.end(), 2, "");
  for (const std::string& item : form.ListNotFound.items()) lines.push_back(margin + item);
  front::printLines(session.front, lines);
}

}  // namespace

void listMissing(FormPZ2Combine& form) {
  const std::vector<std::string>& found = form.ListFoundMorphs.items();
  for (const int index : form.ListFile2.selection()) {
    const auto morph = form.ListFile2.item(index);
    if (std::find(found.begin(), found.end(), morph) != found.end()) continue;
    form.ListNotFound.add(std::to_string(index) + "*" + std::string{morph});
  }
}

void insertMissing(front::Session& session, const FormPZ2Combine& form) {
  for (const std::string& item : form.ListNotFound.items()) {
    const auto index = static_cast<int>(text::value(text::before(item, "*")));
    insert(session, missingMorph(form, index));
  }
}

void tellMissing(front::Session& session, FormPZ2Combine& form) {
  form.ListNotFound.show();
  const front::Answer answer = session.front.messageBox(
      "These morphs do not exist in " + form.LabelFileFirst.caption() +
          ", but were inserted.  If you would you like to use them, you will need to be sure the "
          "geometry to support them exists in the target CR2.  Print the list?",
      "Error!", front::kYesNo);
  if (answer == front::Answer::yes) print(session, form);
  form.ListNotFound.clear();
  form.ListNotFound.hide();
}

}  // namespace norvik::pose
