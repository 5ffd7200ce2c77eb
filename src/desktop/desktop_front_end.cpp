#include "desktop/desktop_front_end.h"

#include "desktop/chooser_places.h"
#include "desktop/drives.h"
#include "desktop/fetcher.h"
#include "desktop/launcher.h"
#include "desktop/printing.h"
#include "desktop/words.h"
#include "front/form.h"
#include "front/note_entry.h"
#include "lifecycle/addresses.h"
#include "text/columns.h"

#include <QApplication>
#include <QDateTime>
#include <QEventLoop>
#include <QFile>
#include <QScreen>
#include <QTimer>

namespace norvik::desktop {

namespace {

constexpr float kTwipsPerPixel = 15;

/// The arrow again while the operator is asked something in the middle of a pass.
class ArrowMeanwhile {
 public:
  explicit ArrowMeanwhile(bool hourglass) : hourglass_(hourglass) {
    if (hourglass_) QApplication::setOverrideCursor(Qt::ArrowCursor);
  }
  ArrowMeanwhile(const ArrowMeanwhile&) = delete;
  ArrowMeanwhile& operator=(const ArrowMeanwhile&) = delete;
  ~ArrowMeanwhile() {
    if (hourglass_) QApplication::restoreOverrideCursor();
  }

 private:
  bool hourglass_;
};

/// Which file an error is about, and what was being done with it.
QString whatWasDone(const text::FileError& error) {
  using text::FileAct;
  if (error.path().empty()) return {};
  const auto doing = [&]() -> const char* {
    switch (error.act()) {
      case FileAct::lookingFor:
        return "While looking for";
      case FileAct::reading:
        return "While reading";
      case FileAct::writing:
        return "While writing";
      case FileAct::deleting:
        return "While deleting";
      case FileAct::moving:
        return "While moving a file to";
      case FileAct::replacing:
        return "While replacing";
      case FileAct::makingFolder:
        return "While making the folder";
      case FileAct::changingAttribute:
        return "While changing the attributes of";
      case FileAct::changingFolder:
        return "While changing to the folder";
      case FileAct::unknown:
        break;
    }
    return "The file is";
  };
  return QString::fromLatin1(doing()) + QLatin1Char(' ') + shown(error.path());
}

/// The note file opens in the system's editor; where there is none, and while there is no note yet,
/// in a form.
void openNoteFile(front::Session& session, const std::string& path) {
  if (session.disk.exists(path) && openWithDesktop(session.disk, path, {})) return;
  if (front::Form* notes = session.findForm("FormNotes"); notes != nullptr) session.load(*notes);
}

}  // namespace

DesktopFrontEnd::DesktopFrontEnd(Dispatcher& dispatcher, Asker& asker, text::Disk& disk)
    : dispatcher_(dispatcher), asker_(asker), disk_(disk) {}

DesktopFrontEnd::~DesktopFrontEnd() = default;

void DesktopFrontEnd::withChosen(const std::string& path, const std::function<void()>& act) {
  chosen_ = path;
  act();
  chosen_.reset();
}

front::Answer DesktopFrontEnd::messageBox(std::string_view text, std::string_view title,
                                          int style) {
  dispatcher_.sync();
  const ArrowMeanwhile arrow(hourglass_);
  const std::string note = dispatcher_.attached() ? dispatcher_.session().caution() : std::string{};
  const Asker::Box box{.title = shown(title),
                       .text = shownMessage(text),
                       .style = style,
                       .note = shownMessage(note),
                       .cautious = !note.empty(),
                       .changes = changesOnOffer(style)};
  const bool repeats =
      repeated_ && title == *repeated_ && (style & front::kButtonMask) == front::kOkCancel;
  return repeats ? repeatedBox(box) : asker_.box(box);
}

/// A finished result and the figure that it was made from, while the operator is asked about it.
std::optional<ComparedFiles> DesktopFrontEnd::changesOnOffer(int style) const {
  const int buttons = style & front::kButtonMask;
  const bool isQuestion = buttons == front::kYesNo || buttons == front::kYesNoCancel;
  if (!isQuestion || !dispatcher_.attached()) return std::nullopt;
  const front::Result& offered = dispatcher_.session().offered();
  if (offered.scratch.empty() || !disk_.exists(offered.scratch)) return std::nullopt;
  const QString name = shown(text::fileTitle(offered.figure));
  ComparedFiles files;
  files.title = QStringLiteral("Changes in ") + name;
  files.explanation =
      QStringLiteral("From %1 as it is to the finished result. Nothing is saved yet.").arg(name);
  const bool known = text::ignoringErrors([&] {
    files.before = disk_.hostPath(offered.figure);
    files.after = disk_.hostPath(offered.scratch);
  });
  return known ? std::optional{files} : std::nullopt;
}

/// Asks until the operator says OK for all that are to come.
front::Answer DesktopFrontEnd::repeatedBox(const Asker::Box& box) {
  if (okForAll_) return front::Answer::ok;
  const auto answer = asker_.repeatedBox(box);
  okForAll_ = !answer;
  return answer.value_or(front::Answer::ok);
}

void DesktopFrontEnd::beginRepeats(std::string_view title) {
  repeated_ = title;
  okForAll_ = false;
}

void DesktopFrontEnd::endRepeats() {
  repeated_.reset();
}

std::optional<std::size_t> DesktopFrontEnd::offer(const front::FurtherWays& offered) {
  dispatcher_.sync();
  const ArrowMeanwhile arrow(hourglass_);
  QStringList ways;
  for (const std::string& way : offered.ways) ways << shown(way);
  return asker_.way({.title = shown(offered.title), .text = shownMessage(offered.text)}, ways);
}

QString DesktopFrontEnd::hostFolder(const std::string& folder) const {
  const bool there = !folder.empty() && disk_.folderExists(folder);
  return hostName(disk_.hostPath(there ? folder : disk_.currentFolder()));
}

/// The proposed name for the window's dialog: a whole path if there is one, else the name alone.
QString DesktopFrontEnd::proposedName(const std::string& file) const {
  if (!text::holds(file, "\\")) return shown(file);
  QString name;
  text::ignoringErrors([&] { name = hostName(disk_.hostPath(file)); });
  return name;
}

std::optional<std::string> DesktopFrontEnd::fileDialog(const front::FileDialog& dialog) {
  using Kind = front::FileDialog::Kind;
  dispatcher_.sync();
  if (chosen_ && dialog.kind == Kind::open) return std::exchange(chosen_, std::nullopt);
  const ArrowMeanwhile arrow(hourglass_);
  const auto answer = asker_.file(
      {.save = dialog.kind == Kind::save,
       .title = shown(dialog.title),
       .filter = windowFilter(dialog.filter),
       .folder = hostFolder(dialog.folder),
       .name = proposedName(dialog.file),
       .hint = shownMessage(dialog.hint),
       .instead = shown(dialog.instead),
       .places = dispatcher_.attached() ? chooserPlaces(dispatcher_.session()) : QStringList(),
       .hostPath = [this](const QString& text) { return hostPathOf(disk_, text); }});
  if (!answer) return std::nullopt;
  if (answer->isEmpty()) return std::string{};
  if (dispatcher_.attached()) rememberPlace(dispatcher_.session(), *answer);
  return disk_.systemPath(hostBytes(*answer));
}

std::optional<front::Colour> DesktopFrontEnd::colourDialog(front::Colour initial) {
  const ArrowMeanwhile arrow(hourglass_);
  return asker_.colour(initial);
}

QPrinter& DesktopFrontEnd::printer() {
  // Made when it is first needed: looking for printers takes time.
  if (!printer_) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  return *printer_;
}

bool DesktopFrontEnd::printerDialog() {
  const ArrowMeanwhile arrow(hourglass_);
  return asker_.printer(printer());
}

void DesktopFrontEnd::print(std::string_view font, const std::vector<std::string>& lines,
                            std::size_t headingLines) {
  QStringList page;
  for (const std::string& line : lines) page << shown(line);
  const auto paint = [&](QPrinter& pages) {
    printLines(pages, shown(font), page, static_cast<int>(headingLines));
  };
  if (asker_.wantsPreview()) {
    asker_.preview(printer(), paint);
  } else {
    paint(printer());
  }
}

void DesktopFrontEnd::beep() {
  QApplication::beep();
}

GlDevice& DesktopFrontEnd::glDevice(front::PictureBox& picture) {
  auto& device = devices_[&picture];
  if (!device) device = std::make_unique<GlDevice>(picture);
  return *device;
}

bool DesktopFrontEnd::nextFrame() {
  dispatcher_.sync();
  const Dispatcher::Door door(dispatcher_);
  const bool waited = std::exchange(waiting_, true);
  pacer_.wait(stopped_);
  waiting_ = waited;
  return !std::exchange(stopped_, false) && !ended_;
}

void DesktopFrontEnd::waitForOperator() {
  dispatcher_.sync();
  const Dispatcher::Door door(dispatcher_);
  const std::uint64_t before = dispatcher_.delivered();
  waiting_ = true;
  while (!stopped_ && dispatcher_.delivered() == before) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  waiting_ = false;
  if (std::exchange(stopped_, false)) throw front::ToolStopped{};
}

void DesktopFrontEnd::show(front::Form& form) {
  stage_->show(form, false);
}

void DesktopFrontEnd::showModal(front::Form& form, const std::function<void()>& shown) {
  form.setLoaded(true);
  const ArrowMeanwhile arrow(hourglass_);
  dispatcher_.sync();
  stage_->show(form, true);
  shown();
  dispatcher_.sync();
  const Dispatcher::Door door(dispatcher_);
  while (form.loaded()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void DesktopFrontEnd::unloaded(front::Form& form) {
  stage_->close(form);
}

void DesktopFrontEnd::bringToFront(front::Form& form) {
  stage_->show(form, false);
}

front::Screen DesktopFrontEnd::screen() const {
  const QSize size = QApplication::primaryScreen()->size();
  return {static_cast<float>(size.width()) * kTwipsPerPixel,
          static_cast<float>(size.height()) * kTwipsPerPixel};
}

bool DesktopFrontEnd::drawTile(front::Form&, int left, int top) {
  dispatcher_.sync();
  return stage_->drawTile(left, top);
}

void DesktopFrontEnd::openDocument(std::string_view, std::string_view target,
                                   std::string_view folder) {
  // A deployment may have a page of its own; else the guide is here.
  if (target == lifecycle::kManualPage.standard && showGuide_ && showGuide_()) return;
  if (openWithDesktop(disk_, target, folder)) return;
  dispatcher_.sync();
  const ArrowMeanwhile arrow(hourglass_);
  const QString guide = guideFolder();
  asker_.box(
      {.title = QStringLiteral("Norvik"),
       .text = QStringLiteral("Nothing on this system opens %1").arg(shownMessage(target)),
       .style = front::kExclamation,
       .note = guide.isEmpty() ? QString() : QStringLiteral("The guide lies in %1").arg(guide)});
}

void DesktopFrontEnd::run(std::string_view commandLine) {
  if (dispatcher_.attached()) {
    front::Session& session = dispatcher_.session();
    const std::string notes = session.opening.inProgramFolder(front::kNoteFile);
    if (commandLine == "Notepad.exe " + notes) return openNoteFile(session, notes);
  }
  startCommandLine(disk_, commandLine);
}

front::ProgramRun DesktopFrontEnd::runToEnd(std::string_view program,
                                            const std::vector<std::string>& arguments) {
  dispatcher_.sync();
  const ArrowMeanwhile arrow(hourglass_);
  const bool ran = runProgramToEnd(disk_, program, arguments);
  return ran ? front::ProgramRun::ended : front::ProgramRun::notStarted;
}

bool DesktopFrontEnd::moveToWasteBin(std::string_view path) {
  return QFile::moveToTrash(hostName(disk_.hostPath(path)));
}

void DesktopFrontEnd::playSound(std::string_view path) {
  if (disk_.exists(path)) sound_.play(hostName(disk_.hostPath(path)));
}

front::Fetched DesktopFrontEnd::fetch(std::string_view address, std::string_view path) {
  return fetchInto(disk_, address, path);
}

std::string DesktopFrontEnd::now() const {
  return QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toStdString();
}

void DesktopFrontEnd::tellOf(const front::FinishedFile& file) {
  if (tellOfResult_) tellOfResult_(file);
}

void DesktopFrontEnd::showPassText(std::string_view text) {
  if (showPassText_) showPassText_(text);
}

void DesktopFrontEnd::runtimeError(const text::FileError& error) {
  dispatcher_.sync();
  const ArrowMeanwhile arrow(hourglass_);
  const std::string text = "Run-time error '" + std::to_string(static_cast<int>(error.number())) +
                           "': " + std::string{error.text()};
  asker_.box(
      {QStringLiteral("Norvik"), shown(text), front::kCritical, whatWasDone(error), false, {}});
}

void DesktopFrontEnd::endProcess() {
  ended_ = true;
  QTimer::singleShot(0, qApp, SLOT(quit()));
}

QString windowFilter(std::string_view filter) {
  const QStringList parts = shown(filter).split(QLatin1Char('|'), Qt::SkipEmptyParts);
  QStringList kinds;
  for (int i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
    patterns.replace(QStringLiteral("*.*"), QStringLiteral("*"));
    QString words = parts[i];
    if (const auto bracket = words.indexOf(QLatin1Char('(')); bracket > 0) words.truncate(bracket);
    kinds << words.trimmed() + QStringLiteral(" (") + patterns + QLatin1Char(')');
  }
  return kinds.join(QStringLiteral(";;"));
}

}  // namespace norvik::desktop
