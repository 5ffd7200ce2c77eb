#include "desktop/window_asker.h"

#include "desktop/file_chooser.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QColorDialog>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPushButton>
#include <QVBoxLayout>

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

QMessageBox::StandardButton refusalOf(int style) {
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

/// A box of the tools. Where it has no Cancel, neither the escape key nor the close box answers it:
/// a No may throw away what the operator has done.
class QuestionBox : public QMessageBox {
 public:
  QuestionBox(Icon icon, const Asker::Box& asked, StandardButtons buttons, QWidget* owner,
              bool mustAnswer)
      : QMessageBox(icon, asked.title, asked.text, buttons, owner), mustAnswer_(mustAnswer) {
    setObjectName(QStringLiteral("MessageBox"));
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (mustAnswer) setWindowFlag(Qt::WindowCloseButtonHint, false);
    if (asked.note.isEmpty()) return;
    setInformativeText(asked.note);
    auto* note = findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"));
    if (note != nullptr) note->setTextFormat(Qt::PlainText);
  }

 protected:
  void closeEvent(QCloseEvent* event) override {
    if (mustAnswer_) return event->ignore();
    QMessageBox::closeEvent(event);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (mustAnswer_ && event->matches(QKeySequence::Cancel)) return event->accept();
    QMessageBox::keyPressEvent(event);
  }

 private:
  bool mustAnswer_;
};

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

/// Shows the box, to which `addButtons` has added its own. What the operator pressed.
int exec(const Asker::Box& asked, const std::function<void(QMessageBox&)>& addButtons) {
  const bool mustAnswer = (asked.style & front::kButtonMask) == front::kYesNo;
  QuestionBox box(iconOf(asked.style), asked, buttonsOf(asked.style), owner(), mustAnswer);
  if (asked.changes) addChangesButton(box, *asked.changes);
  addButtons(box);
  const auto refusal = refusalOf(asked.style);
  if (!mustAnswer) box.setEscapeButton(refusal);
  if (asked.cautious) box.setDefaultButton(refusal);
  const int button = box.exec();
  // A box that goes away unanswered, with its window, refuses.
  return button == QDialog::Rejected ? int{refusal} : button;
}

}  // namespace

front::Answer WindowAsker::box(const Box& asked) {
  return answerOf(exec(asked, [](QMessageBox&) {}));
}

std::optional<front::Answer> WindowAsker::repeatedBox(const Box& asked) {
  bool all = false;
  const int button = exec(asked, [&all](QMessageBox& box) {
    const QPushButton* forAll = box.addButton(QStringLiteral("OK for &all"), QMessageBox::YesRole);
    QObject::connect(forAll, &QPushButton::clicked, &box, [&all] { all = true; });
  });
  if (all) return std::nullopt;
  return answerOf(button);
}

std::optional<std::size_t> WindowAsker::way(const Box& asked, const QStringList& ways) {
  std::optional<std::size_t> taken;
  exec(asked, [&](QMessageBox& box) {
    box.button(QMessageBox::Ok)->setText(QStringLiteral("&Close"));
    box.setDefaultButton(QMessageBox::Ok);
    for (qsizetype i = 0; i < ways.size(); ++i) {
      const QPushButton* button = box.addButton(ways[i], QMessageBox::ActionRole);
      QObject::connect(button, &QPushButton::clicked, &box,
                       [&taken, i] { taken = static_cast<std::size_t>(i); });
    }
  });
  return taken;
}

std::optional<QString> WindowAsker::file(const File& file) {
  FileChooser chooser(file, owner());
  if (chooser.exec() != QDialog::Accepted) return std::nullopt;
  const QString chosen = chooser.chosen();
  if (chosen.isEmpty() && !chooser.answersOtherwise()) return std::nullopt;
  return chosen.isEmpty() ? chosen : QDir::cleanPath(chosen);
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
  // The dialog takes its further tabs over.
  auto* pages = new QWidget;
  pages->setWindowTitle(QStringLiteral("Preview"));
  auto* first = new QCheckBox(QStringLiteral("&Show the pages first"), pages);
  first->setObjectName(QStringLiteral("PreviewFirst"));
  first->setChecked(preview_);
  auto* column = new QVBoxLayout(pages);
  column->addWidget(first);
  column->addStretch();
  dialog.setOptionTabs({pages});
  const bool accepted = dialog.exec() == QDialog::Accepted;
  preview_ = first->isChecked();
  return accepted;
}

void WindowAsker::preview(QPrinter& printer, const std::function<void(QPrinter&)>& paint) {
  QPrintPreviewDialog dialog(&printer, owner());
  dialog.setObjectName(QStringLiteral("PrintPreview"));
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested,
                   [&paint](QPrinter* pages) { paint(*pages); });
  dialog.exec();
}

}  // namespace norvik::desktop
