#include "desktop/file_chooser.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QUrl>

namespace norvik::desktop {

FileChooser::FileChooser(const Asker::File& file, QWidget* owner)
    : QFileDialog(owner, file.title, file.folder, file.filter), file_(file) {
  setObjectName(QStringLiteral("FileDialog"));
  // The system's own dialog knows nothing of drives and of what is said here.
  setOption(DontUseNativeDialog);
  setAcceptMode(file.save ? AcceptSave : AcceptOpen);
  setFileMode(file.save ? AnyFile : ExistingFile);
  QList<QUrl> places = sidebarUrls();
  for (const QString& folder : file.places) places << QUrl::fromLocalFile(folder);
  setSidebarUrls(places);
  if (!file.name.isEmpty()) selectFile(file.name);
  if (!file.hint.isEmpty()) addHint(file.hint);
  if (!file.instead.isEmpty()) addInstead(file.instead);
}

void FileChooser::addHint(const QString& hint) {
  auto* grid = qobject_cast<QGridLayout*>(layout());
  if (grid == nullptr) return;
  auto* label = new QLabel(hint, this);
  label->setObjectName(QStringLiteral("Hint"));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  grid->addWidget(label, grid->rowCount(), 0, 1, grid->columnCount());
}

/// A button that is an answer of its own.
void FileChooser::addInstead(const QString& text) {
  auto* buttons = findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
  if (buttons == nullptr) return;
  QPushButton* button = buttons->addButton(text, QDialogButtonBox::ActionRole);
  button->setObjectName(QStringLiteral("Instead"));
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this] {
    instead_ = true;
    QDialog::accept();
  });
}

/// The host path of a whole path; empty for a name alone.
QString FileChooser::typedPath(const QString& text) const {
  const QString host = file_.hostPath ? file_.hostPath(text) : QString();
  if (!host.isEmpty()) return host;
  return QDir::isAbsolutePath(text) ? QDir::cleanPath(text) : QString();
}

void FileChooser::accept() {
  auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  const QString path = name == nullptr ? QString() : typedPath(name->text());
  if (path.isEmpty()) return QFileDialog::accept();
  const QFileInfo info(path);
  if (info.isDir()) {
    setDirectory(path);
    name->clear();
  } else if (file_.save) {
    // The dialog itself asks before a file is replaced.
    setDirectory(info.path());
    name->setText(info.fileName());
    QFileDialog::accept();
  } else if (info.isFile()) {
    typed_ = path;
    QDialog::accept();
  } else {
    name->setText(path);
    QFileDialog::accept();
  }
}

QString FileChooser::chosen() const {
  if (instead_) return {};
  return typed_.isEmpty() ? selectedFiles().value(0) : typed_;
}

}  // namespace norvik::desktop
