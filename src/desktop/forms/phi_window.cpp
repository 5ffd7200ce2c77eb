#include "desktop/forms/phi_window.h"

#include "builders/phi/edit_phi.h"
#include "desktop/bind/label_button.h"
#include "desktop/window/escape.h"
#include "desktop/window/headings.h"
#include "desktop/words.h"

#include <QAction>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 640;

}  // namespace

PhiWindow::PhiWindow(const WindowParts& parts, builders::FormPhi& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent), form_(form) {
  setWindowFlags(Qt::Window | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kPaneMargin);
  column->setMenuBar(makeMenu());
  QLabel& file = maker().pathLabel(form.LabelPhiFileName, *this);
  makeFileHeading(file, QStringLiteral("Phi file"));
  column->addWidget(&file);
  ListView& lines = maker().list(form.ListPhi, *this);
  lines.setAccessibleName(QStringLiteral("Lines of the phi file"));
  // The figures' tree shows in the indentation.
  lines.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  lines.setToolTip(QStringLiteral("Double-click a line to edit it"));
  lines_ = &lines;
  column->addWidget(&lines, 1);
  column->addWidget(makeLine());
  column->addLayout(makeButtons());
  resize(kWidth, kHeight);
}

QMenuBar* PhiWindow::makeMenu() {
  auto* bar = new QMenuBar(this);
  auto* edit = bar->addMenu(QStringLiteral("&Edit"));
  undo_ = addStep(*edit, QStringLiteral("&Undo"), QKeySequence::Undo, builders::undoEdit);
  redo_ = addStep(*edit, QStringLiteral("&Redo"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z),
                  builders::redoEdit);
  menu_ = std::make_unique<MenuTree>(maker().dispatcher(), maker().bindings(), form_, *bar);
  return bar;
}

QAction* PhiWindow::addStep(QMenu& menu, const QString& name, const QKeySequence& key,
                            void (*step)(builders::FormPhi&)) {
  auto* action = menu.addAction(name);
  action->setShortcut(key);
  connect(action, &QAction::triggered, this,
          [this, step] { maker().dispatcher().run(form_.name(), [&] { step(form_); }); });
  return action;
}

QWidget* PhiWindow::makeLine() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* name = new QLabel(QStringLiteral("&Line"), row);
  QLineEdit& line = maker().line(form_.TextPhiEdit, *row);
  line.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  line.setToolTip(QStringLiteral("Enter or a double click puts the line back"));
  line.setAccessibleName(QStringLiteral("The line that is being edited"));
  name->setBuddy(&line);
  layout->addWidget(name);
  layout->addWidget(&line, 1);
  maker().showWhileAny(*row, {&form_.TextPhiEdit});
  // The line stays as it was, and the file with its other edits stays open.
  onEscape(line, [this] {
    maker().dispatcher().run(form_.name(), [this] { form_.TextPhiEdit.hide(); });
    lines_->setFocus(Qt::OtherFocusReason);
  });
  return row;
}

QLayout* PhiWindow::makeButtons() {
  auto* row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(&makeLabelButton(maker(), form_.LabelPhiSave, *this));
  row->addWidget(&makeLabelButton(maker(), form_.LabelPhiDone, *this));
  return row;
}

void PhiWindow::sync() {
  const QString title = shown(form_.caption()) + QStringLiteral("[*]");
  if (windowTitle() != title) setWindowTitle(title);
  setWindowModified(form_.edits.unsaved());
  if (undo_ == nullptr || redo_ == nullptr) return;
  undo_->setEnabled(form_.edits.canUndo());
  redo_->setEnabled(form_.edits.canRedo());
}

void PhiWindow::showEvent(QShowEvent* event) {
  FormWindow::showEvent(event);
  sync();
}

}  // namespace norvik::desktop
