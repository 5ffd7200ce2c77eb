#include "desktop/window_asker.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>

namespace norvik::desktop {

namespace {

constexpr int kIconMask = 0x70;

QMessageBox::StandardButtons buttonsOf(int style) {
  switch (style & front::kButtonMask) {
    case front::kOkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case front::kYesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case front::kYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

QMessageBox::Icon iconOf(int style) {
  switch (style & kIconMask) {
    case front::kCritical:
      return QMessageBox::Critical;
    case front::kQuestion:
      return QMessageBox::Question;
    case front::kExclamation:
      return QMessageBox::Warning;
    case front::kInformation:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

QMessageBox::StandardButton escapeOf(int style) {
  switch (style & front::kButtonMask) {
    case front::kOk:
      return QMessageBox::Ok;
    case front::kYesNo:
      return QMessageBox::No;
    default:
      return QMessageBox::Cancel;
  }
}

front::Answer answerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return front::Answer::yes;
    case QMessageBox::No:
      return front::Answer::no;
    case QMessageBox::Cancel:
      return front::Answer::cancel;
    default:
      return front::Answer::ok;
  }
}

QWidget* owner() {
  return QApplication::activeModalWidget() != nullptr ? QApplication::activeModalWidget()
                                                      : QApplication::activeWindow();
}

/// Adds a button that shows what differs. It neither answers the question nor writes anything.
void addChangesButton(QMessageBox& box, const ComparedFiles& files) {
  QPushButton* button = box.addButton(QStringLiteral("Show &Changes"), QMessageBox::ActionRole);
  button->setObjectName(QStringLiteral("ShowChanges"));
  button->setAutoDefault(false);
  // The box would take a press for an answer.
  QObject::disconnect(button, &QPushButton::clicked, nullptr, nullptr);
  QObject::connect(button, &QPushButton::clicked, &box,
                   [&box, files] { showChanges(files, &box); });
}

front::Answer ask(const QString& title, const QString& text, int style,
                  const ComparedFiles* files) {
  QMessageBox box(iconOf(style), title, text, buttonsOf(style), owner());
  if (files != nullptr) addChangesButton(box, *files);
  box.setObjectName(QStringLiteral("MessageBox"));
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  box.setEscapeButton(escapeOf(style));
  const int button = box.exec();
  // A box that goes away unanswered, with its window, says what the escape key says.
  return answerOf(button == QDialog::Rejected ? int{escapeOf(style)} : button);
}

}  // namespace

front::Answer WindowAsker::box(const QString& title, const QString& text, int style) {
  return ask(title, text, style, nullptr);
}

front::Answer WindowAsker::boxWithChanges(const QString& title, const QString& text, int style,
                                          const ComparedFiles& files) {
  return ask(title, text, style, &files);
}

std::optional<QString> WindowAsker::file(const File& file) {
  QFileDialog dialog(owner(), file.title, file.folder, file.filter);
  dialog.setObjectName(QStringLiteral("FileDialog"));
  dialog.setAcceptMode(file.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(file.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  if (!file.name.isEmpty()) dialog.selectFile(file.name);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return QDir::cleanPath(dialog.selectedFiles().constFirst());
}

std::optional<front::Colour> WindowAsker::colour(front::Colour initial) {
  const QColor start(static_cast<int>(initial & 0xFFU), static_cast<int>(initial >> 8U & 0xFFU),
                     static_cast<int>(initial >> 16U & 0xFFU));
  const QColor chosen = QColorDialog::getColor(start, owner());
  if (!chosen.isValid()) return std::nullopt;
  return front::colourOf(static_cast<unsigned>(chosen.red()), static_cast<unsigned>(chosen.green()),
                         static_cast<unsigned>(chosen.blue()));
}

bool WindowAsker::printer(QPrinter& printer) {
  QPrintDialog dialog(&printer, owner());
  dialog.setObjectName(QStringLiteral("PrintDialog"));
  return dialog.exec() == QDialog::Accepted;
}

}  // namespace norvik::desktop
