#include "desktop/window/pending_path.h"

#include "desktop/words.h"
#include "text/columns.h"

#include <QLabel>
#include <QLineEdit>

namespace norvik::desktop {

PendingPath::PendingPath(Maker& maker, front::TextBox& box, front::Label& label, QLineEdit& edit,
                         QLabel& hint)
    : QObject(&edit), box_(box), label_(label), edit_(edit), hint_(hint) {
  connect(&edit, &QLineEdit::textChanged, this, [this] { showHint(); });
  box.doubleClicked.add([this] { take(); });
  // A text that a tool sets is no typed one.
  maker.watch({&box}, [this] { showHint(); });
  showHint();
}

QString PendingPath::name() const {
  return shown(label_.caption());
}

bool PendingPath::pending() const {
  return edit_.isModified() && edit_.text() != taken_;
}

void PendingPath::take() {
  // A path that the tool refuses stays to be mended.
  const bool refused = label_.fore() != front::kPathEdited || text::holds(box_.text(), "/");
  if (refused) return;
  taken_ = shown(box_.text());
  edit_.setModified(false);
  showHint();
}

void PendingPath::showHint() {
  if (!edit_.isModified()) taken_ = edit_.text();
  hint_.setVisible(pending());
}

}  // namespace norvik::desktop
