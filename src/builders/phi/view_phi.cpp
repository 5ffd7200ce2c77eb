#include "builders/phi/view_phi.h"

#include "text/line_reader.h"

namespace norvik::builders {

void showPhi(front::Session& session, FormPhi& form, const std::string& path) {
  session.load(form);
  form.LabelPhiFileName.setCaption(path);
  text::LineReader in(session.disk, path);
  while (!in.atEnd()) form.ListPhi.add(in.line());
}

void wireViewPhi(front::Session& session, FormPhi& form) {
  session.opening.MenuViewPhi.clicked.add([&session, &form] {
    front::CommonDialog& dialog = session.opening.CommonDialog8;
    if (!dialog.open(session.front, session.disk.currentFolder(), {},
                     {"View a phi file", front::kPhiFilter})) {
      return;
    }
    showPhi(session, form, dialog.fileName());
  });
}

}  // namespace norvik::builders
