#include "desktop/forms/notes_window.h"

#include "desktop/page/page_view.h"
#include "desktop/window/headings.h"
#include "front/form_obj.h"
#include "text/number_text.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 520;
constexpr int kHoleForm = 200;

}  // namespace

NotesWindow::NotesWindow(const WindowParts& parts, editor::FormNotes& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent) {
  setWindowFlags(Qt::Window | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kPaneMargin);
  PageView& page = maker().page(form.RichTextBox1, *this);
  page.setAccessibleName(QStringLiteral("Notes"));
  column->addWidget(&page, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  for (front::CommandButton* command : {&form.CommandSave, &form.CommandClose}) {
    auto* button = qobject_cast<QPushButton*>(maker().make(*command, *this));
    button->setAutoDefault(false);
    buttons->addWidget(button);
  }
  column->addLayout(buttons);
  connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this,
          [this, &form] { maker().dispatcher().raise(form.CommandSave.clicked); });
  resize(kWidth, kHeight);
}

HoleWindow::HoleWindow(const WindowParts& parts, editor::FormHole& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent), session_(parts.session) {
  setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
  resize(kHoleForm, kHoleForm);
}

void HoleWindow::resizeEvent(QResizeEvent* event) {
  FormWindow::resizeEvent(event);
  const auto* workshop = dynamic_cast<front::FormOBJ*>(session_.findForm("FormOBJ"));
  if (workshop == nullptr) return;
  const auto extent = [](const front::Label& label, int most) {
    return std::clamp(static_cast<int>(text::value(label.caption())), 0, most);
  };
  const int halfWidth = width() / 2;
  const int halfHeight = height() / 2;
  const int left = extent(workshop->LabelSmallestX, halfWidth);
  const int right = extent(workshop->LabelBiggestX, halfWidth);
  const int up = extent(workshop->LabelBiggestY, halfHeight);
  const QRect hole(halfWidth - left, halfHeight - up, left + right, 2 * up);
  setMask(hole.isEmpty() ? QRegion(rect()) : QRegion(rect()).subtracted(QRegion(hole)));
}

}  // namespace norvik::desktop
