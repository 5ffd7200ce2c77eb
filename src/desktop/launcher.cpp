#include "desktop/launcher.h"

#include "desktop/drives.h"
#include "desktop/words.h"
#include "text/columns.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QProgressDialog>
#include <QStandardPaths>
#include <QUrl>

#include <memory>

namespace norvik::desktop {

namespace {

constexpr std::string_view kEditor = "notepad.exe";

/// The length of the program's name at the head of a command line: up to the last blank before
/// which a file of that name exists, else the first word.
std::size_t programLength(const text::Disk& disk, std::string_view line) {
  for (std::size_t end = line.size(); end != std::string_view::npos && end > 0;
       end = line.find_last_of(' ', end - 1)) {
    if (disk.exists(line.substr(0, end))) return end;
  }
  return std::min(line.find(' '), line.size());
}

QUrl fileAddress(const text::Disk& disk, std::string_view path) {
  return QUrl::fromLocalFile(hostName(disk.hostPath(path)));
}

/// Whether a page would be seen. The desktop's own opener takes every address and may then have
/// nobody to hand it to.
bool hasBrowser() {
  constexpr int kPatience = 1000;  // milliseconds
  const QString tool = QStandardPaths::findExecutable(QStringLiteral("xdg-settings"));
  if (tool.isEmpty() || qEnvironmentVariableIsSet("BROWSER")) return true;
  QProcess question;
  question.start(tool, {QStringLiteral("get"), QStringLiteral("default-web-browser")});
  if (!question.waitForFinished(kPatience)) return true;
  return question.exitCode() != 0 || !question.readAllStandardOutput().trimmed().isEmpty();
}

/// Waits for a program to end, or for the operator to have enough.
void waitFor(QProcess& process, const QString& name) {
  QProgressDialog waiting(
      QStringLiteral("%1 is running. Norvik goes on when it has ended.").arg(name),
      QStringLiteral("&Wait no longer"), 0, 0, QApplication::activeWindow());
  waiting.setObjectName(QStringLiteral("ProgramWait"));
  waiting.setWindowTitle(QStringLiteral("Norvik"));
  waiting.setWindowModality(Qt::ApplicationModal);
  waiting.setMinimumDuration(0);
  QObject::connect(&process, &QProcess::finished, &waiting, &QDialog::accept);
  if (process.state() != QProcess::NotRunning) waiting.exec();
}

bool isAddress(std::string_view target) {
  return text::holds(target, "://");
}

}  // namespace

void startCommandLine(const text::Disk& disk, std::string_view commandLine) {
  const std::string_view program = commandLine.substr(0, programLength(disk, commandLine));
  const std::string_view rest = text::trimmed(commandLine.substr(program.size()));
  if (text::equalIgnoringCase(program, kEditor)) {
    if (!disk.exists(rest)) {
      throw text::FileError(text::ErrorNumber::fileNotFound, rest, text::FileAct::lookingFor);
    }
    QDesktopServices::openUrl(fileAddress(disk, rest));
    return;
  }
  const QString loader = QStandardPaths::findExecutable(QStringLiteral("wine"));
  if (!disk.exists(program) || loader.isEmpty()) {
    throw text::FileError(text::ErrorNumber::fileNotFound, program, text::FileAct::lookingFor);
  }
  const QFileInfo file(hostName(disk.hostPath(program)));
  QStringList arguments{file.filePath()};
  if (!rest.empty()) arguments << shown(rest);
  QProcess::startDetached(loader, arguments, file.path());
}

bool runProgramToEnd(const text::Disk& disk, std::string_view program,
                     const std::vector<std::string>& arguments) {
  const QFileInfo file(hostName(disk.hostPath(program)));
  const bool ofTheFigures =
      text::equalIgnoringCase(text::rightmost(program, 4), ".exe") || !file.isExecutable();
  QString command = file.filePath();
  QStringList words;
  if (ofTheFigures) {
    command = QStandardPaths::findExecutable(QStringLiteral("wine"));
    if (command.isEmpty()) return false;
    words << file.filePath();
  }
  for (const std::string& argument : arguments) {
    // The loader's programs have drives of their own, on which Z: is all of the host.
    QString path = hostPathOf(disk, shown(argument));
    if (ofTheFigures) {
      path = QStringLiteral("Z:") + path.replace(QLatin1Char('/'), QLatin1Char('\\'));
    }
    words << path;
  }
  // It goes with the program, not with the wait: one that nobody waits for runs on.
  auto process = std::make_unique<QProcess>();
  process->setWorkingDirectory(file.path());
  process->start(command, words);
  if (!process->waitForStarted()) return false;
  waitFor(*process, file.fileName());
  QProcess* const left = process.release();
  if (left->state() == QProcess::NotRunning) {
    left->deleteLater();
  } else {
    QObject::connect(left, &QProcess::finished, left, &QObject::deleteLater);
  }
  return true;
}

bool openWithDesktop(const text::Disk& disk, std::string_view target, std::string_view folder) {
  if (isAddress(target)) {
    return hasBrowser() && QDesktopServices::openUrl(QUrl(shown(target)));
  }
  std::string path{target};
  if (!disk.exists(path) && !folder.empty()) path = std::string{folder} + "\\" + path;
  return QDesktopServices::openUrl(fileAddress(disk, path));
}

QString guideFolder() {
  const QDir program(QCoreApplication::applicationDirPath());
  // Of an installation, beside a build of the source, and of the programs deep in that build.
  for (const char* const place : {"../share/doc/norvik", "../../docs", "../../../../docs"}) {
    const QString folder = QDir::cleanPath(program.filePath(QString::fromLatin1(place)));
    if (QFileInfo::exists(folder + QStringLiteral("/window.md"))) return folder;
  }
  return {};
}

}  // namespace norvik::desktop
