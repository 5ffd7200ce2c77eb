#include "builders/phi/create_phi.h"

#include "builders/phi/phi_writer.h"
#include "builders/phi/view_phi.h"
#include "figure/check_sgi.h"
#include "front/finished_file.h"
#include "front/repeated_question.h"
#include "text/columns.h"
#include "text/first_dot.h"
#include "text/rewrite_pass.h"

namespace norvik::builders {

namespace {

constexpr std::string_view kScratch = "\\Phi.txt";

void endWithError(front::Session& session, std::string_view text) {
  session.hourglass(false);
  session.front.messageBox(text, "Error!", front::kOk);
}

/// The maker's, unless the settings name another.
std::string contactAddress(const front::Session& session) {
  return session.settings.get("Addresses", "Contact", "support@norvik.invalid");
}

/// Writes the scratch file. False when the operator cancels.
bool writePhi(front::Session& session, const std::string& figure, const std::string& scratch) {
  text::keepApart(session.disk, figure, scratch);
  text::ignoringErrors([&] { session.disk.remove(scratch); });
  text::LineWriter out(session.disk, scratch, text::LineWriter::Mode::append);
  const front::RepeatedQuestion limbs(session.front, "Rotation Error!");
  PhiWriter writer(session, figure, out);
  const bool complete = writer.write();
  out.close();
  return complete;
}

void createPhi(front::Session& session, FormPhi& form) {
  front::Opening& opening = session.opening;
  front::CommonDialog& dialog = opening.CommonDialog1;
  if (!dialog.open(session.front, session.disk.currentFolder(), {},
                   {"Make a phi file of a figure", front::kCharacterFilter})) {
    return;
  }
  std::string figure = dialog.fileName();
  if (text::extension(figure) != "cr2") {
    session.front.messageBox("Wrong file type!", "Error!", front::kOk);
    return;
  }
  figure::CheckSGI(session, figure);
  session.hourglass(true);

  const std::string scratch = opening.inProgramFolder(kScratch);
  const std::string target = text::throughFirstDot(figure, "phi");
  try {
    if (!writePhi(session, figure, scratch)) {
      session.hourglass(false);
      return;
    }
    if (!text::ignoringErrors([&] { session.disk.rename(scratch, target); })) {
      endWithError(session, "File already exists, move or delete the first.");
      return;
    }
    session.hourglass(false);
    session.front.tellOf({.path = target});
    session.front.messageBox("Phi file saved as " + target, "Phi File Creator", front::kOk);
    showPhi(session, form, target);
  } catch (const text::FileError&) {
    endWithError(session, "Unconventional CR2, you can notify me at " + contactAddress(session));
  }
}

}  // namespace

void wireCreatePhi(front::Session& session, FormPhi& form) {
  session.opening.MenuPhi.clicked.add([&session, &form] { createPhi(session, form); });
}

}  // namespace norvik::builders
