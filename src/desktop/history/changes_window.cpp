#include "desktop/history/changes_window.h"

#include "desktop/history/changes_view.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

QString summaryOf(const ChangeRows& rows) {
  return QStringLiteral("%1 lines removed, %2 added, in %3 places")
      .arg(rows.removed())
      .arg(rows.added())
      .arg(rows.changes());
}

QPushButton* button(const QString& caption, const QString& name, QWidget& parent) {
  auto* made = new QPushButton(caption, &parent);
  made->setObjectName(name);
  made->setAutoDefault(false);
  return made;
}

}  // namespace

void showChanges(const ComparedFiles& files, QWidget* parent) {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  auto rows = std::make_unique<ChangeRows>(files.before, files.after);
  QApplication::restoreOverrideCursor();

  QDialog dialog(parent);
  dialog.setObjectName(QStringLiteral("ChangesWindow"));
  dialog.setWindowTitle(files.title);
  auto* column = new QVBoxLayout(&dialog);
  auto* explanation = new QLabel(files.explanation, &dialog);
  explanation->setTextFormat(Qt::PlainText);
  explanation->setWordWrap(true);
  column->addWidget(explanation);
  const QString summary = summaryOf(*rows);
  const bool any = rows->changes() > 0;
  auto* view = new ChangesView(std::move(rows), &dialog);
  column->addWidget(view, 1);

  auto* line = new QHBoxLayout;
  line->addWidget(new QLabel(summary, &dialog), 1);
  auto* previous = button(QStringLiteral("&Previous Change"), QStringLiteral("Previous"), dialog);
  auto* next = button(QStringLiteral("&Next Change"), QStringLiteral("Next"), dialog);
  previous->setEnabled(any);
  next->setEnabled(any);
  line->addWidget(previous);
  line->addWidget(next);
  auto* close = button(QStringLiteral("Close"), QStringLiteral("Close"), dialog);
  close->setDefault(true);
  line->addWidget(close);
  column->addLayout(line);
  QObject::connect(previous, &QPushButton::clicked, view, [view] { view->goToPrevious(); });
  QObject::connect(next, &QPushButton::clicked, view, [view] { view->goToNext(); });
  QObject::connect(close, &QPushButton::clicked, &dialog, &QDialog::accept);
  dialog.resize(860, 620);
  view->setFocus();
  dialog.exec();
}

}  // namespace norvik::desktop
