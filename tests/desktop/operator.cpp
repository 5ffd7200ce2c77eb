#include "desktop/operator.h"

#include "desktop/bind/list_view.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

#include <cstdlib>
#include <iostream>

namespace norvik::desktop {

namespace {

constexpr int kReading = 400;  // milliseconds

}  // namespace

void giveUp(const std::string& why) {
  std::cerr << "the operator gives up: " << why << std::endl;
  std::_Exit(1);
}

Operator::Operator(Program& program) : program_(program) {
  constexpr int kReaction = 40;
  eyes_.setInterval(kReaction);
  QObject::connect(&eyes_, &QTimer::timeout, &eyes_, [this] { answer(); });
  eyes_.start();
}

void Operator::willPress(const QString& button) {
  buttons_.push_back(button);
}

void Operator::willChoose(const QString& path) {
  paths_.push_back(path);
}

void Operator::willLook(std::function<void(QWidget&)> look) {
  looks_.push_back(std::move(look));
}

void Operator::answer() {
  QWidget* modal = QApplication::activeModalWidget();
  if (modal == nullptr) return;
  if (!looks_.empty()) {
    const auto look = looks_.front();
    looks_.pop_front();
    eyes_.stop();
    look(*modal);
    eyes_.start();
  }
  if (auto* box = qobject_cast<QMessageBox*>(modal); box != nullptr) {
    boxes_.push_back(box->text());
    const auto buttons = box->buttons();
    QAbstractButton* press = buttons.constFirst();
    if (buttons.size() > 1) {
      if (buttons_.empty()) giveUp("no answer for: " + box->text().toStdString());
      press = box->button(buttons_.front() == "Yes"      ? QMessageBox::Yes
                          : buttons_.front() == "No"     ? QMessageBox::No
                          : buttons_.front() == "Cancel" ? QMessageBox::Cancel
                                                         : QMessageBox::Ok);
      buttons_.pop_front();
    }
    QTest::mouseClick(press, Qt::LeftButton);
  } else if (auto* dialog = qobject_cast<QFileDialog*>(modal); dialog != nullptr) {
    if (paths_.empty())
      giveUp("no path for a dialog: " + dialog->windowTitle().toStdString() + " in " +
             dialog->directory().path().toStdString());
    const QString path = paths_.front();
    paths_.pop_front();
    // The dialog reads its folder in the background and then takes its proposed name once more.
    eyes_.stop();
    QTest::qWait(kReading);
    eyes_.start();
    auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
    name->selectAll();
    name->insert(path);  // as pasted: the dialog would walk the folders while it is typed
    if (dialog->selectedFiles().value(0) != path) {
      giveUp("the dialog took " + dialog->selectedFiles().value(0).toStdString() + " for " +
             path.toStdString());
    }
    auto* buttons = dialog->findChild<QDialogButtonBox*>();
    const bool save = dialog->acceptMode() == QFileDialog::AcceptSave;
    QWidget* take = buttons->button(save ? QDialogButtonBox::Save : QDialogButtonBox::Open);
    QTest::mouseClick(take, Qt::LeftButton);
  }
}

QWidget& Operator::find(const QString& control) const {
  auto* widget = program_.mainWindow().findChild<QWidget*>(control);
  if (widget == nullptr) giveUp("no control " + control.toStdString());
  if (!widget->isVisible()) giveUp(control.toStdString() + " is not seen");
  return *widget;
}

void Operator::click(const QString& control) {
  QWidget& widget = find(control);
  // An option takes the mouse on its button and words alone.
  constexpr int kButton = 10;
  const bool option = qobject_cast<QRadioButton*>(&widget) != nullptr;
  const QPoint place = option ? QPoint(kButton, widget.height() / 2) : QPoint();
  QTest::mouseClick(&widget, Qt::LeftButton, {}, place);
}

void Operator::rightClick(const QString& control) {
  QTest::mouseClick(&find(control), Qt::RightButton);
}

void Operator::doubleClick(const QString& control) {
  QTest::mouseDClick(&find(control), Qt::LeftButton);
}

void Operator::hover(const QString& control) {
  QWidget& widget = find(control);
  const QPointF place(10, 10);
  QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                   {});
  QApplication::sendEvent(&widget, &move);
}

void Operator::clickItem(const QString& list, const QString& text) {
  auto& view = dynamic_cast<ListView&>(find(list));
  for (int row = 0; row < view.model()->rowCount(); ++row) {
    const QModelIndex index = view.model()->index(row, 0);
    if (!index.data().toString().contains(text)) continue;
    view.scrollTo(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
    return;
  }
  giveUp("no item " + text.toStdString());
}

void Operator::type(const QString& box, const QString& text) {
  auto& edit = dynamic_cast<QLineEdit&>(find(box));
  QTest::mouseClick(&edit, Qt::LeftButton);
  edit.selectAll();
  QTest::keyClicks(&edit, text);
}

void Operator::menu(const QStringList& path) {
  QMenuBar& bar = *program_.mainWindow().menuBar();
  QMenu* open = nullptr;
  for (const QString& name : path) {
    const auto actions = open == nullptr ? bar.actions() : open->actions();
    const auto found = std::find_if(actions.begin(), actions.end(), [&](const QAction* action) {
      return action->objectName() == name;
    });
    if (found == actions.end()) giveUp("no entry " + name.toStdString());
    QAction* action = *found;
    QMenu* next = action->menu();
    if (open == nullptr) {
      QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(action).center());
    } else {
      QTest::mouseClick(open, Qt::LeftButton, {}, open->actionGeometry(action).center());
    }
    open = next;
    // A menu within a menu comes up a moment later.
    if (open != nullptr && !QTest::qWaitFor([open] { return open->isVisible(); })) {
      giveUp("no menu " + name.toStdString());
    }
  }
}

void Operator::shortcut(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(&program_.mainWindow(), key, modifiers);
}

}  // namespace norvik::desktop
