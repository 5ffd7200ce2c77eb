#include "desktop/window/main_window.h"

#include "channels/mirror/part_shape.h"
#include "desktop/bind/drag.h"
#include "desktop/bind/list_view.h"
#include "desktop/motion.h"
#include "desktop/window/dial_cards.h"
#include "desktop/window/dial_row.h"
#include "desktop/window/list_filter.h"
#include "desktop/window/overlays.h"
#include "desktop/window/panes.h"
#include "desktop/window/place.h"
#include "desktop/window/recent_menu.h"
#include "desktop/window/rename_row.h"
#include "desktop/window/shape_view.h"
#include "desktop/window/splash_page.h"
#include "desktop/window/tool_hints.h"
#include "desktop/window/tool_strip.h"
#include "desktop/window/view_menu.h"
#include "desktop/words.h"
#include "front/finished_file.h"
#include "text/columns.h"
#include "text/file_names.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace norvik::desktop {

namespace {

constexpr int kTwipsPerPixel = 15;

/// Whether the open makes something of a file.
bool opensInPanes(std::string_view path) {
  constexpr std::array<std::string_view, 8> kTypes{"cr2", "fc2", "pz2", "pz3",
                                                   "hr2", "pp2", "obj", "mtl"};
  const std::string type = text::lowered(text::extension(path));
  return std::find(kTypes.begin(), kTypes.end(), type) != kTypes.end();
}

}  // namespace

MainWindow::MainWindow(Maker& maker, front::Session& session, DesktopFrontEnd& frontEnd,
                       const QPalette& system)
    : maker_(maker),
      session_(session),
      opening_(session.opening),
      frontEnd_(frontEnd),
      system_(system) {
  setObjectName(QString::fromStdString(opening_.name()));
  setAcceptDrops(true);
  setMinimumSize(720, 480);
  makeMenus();
  addToolBar(makeToolStrip(maker_, opening_, *this));
  frontEnd_.setResultListener([this](const front::FinishedFile& file) { tellOf(file); });
  frontEnd_.setPassTextListener([this](std::string_view text) { status_->say(shown(text)); });
  makeCentre();
  status_ = std::make_unique<StatusLine>(maker_, opening_, frontEnd_.passStop(), *statusBar());
  bindTheRest();
  listenToMenus();
  resize(1080, 760);
  sync();
  // The keyboard begins where the work does.
  auto* parts = findChild<QWidget*>(QString::fromStdString(opening_.ListActors.name()));
  if (parts != nullptr) parts->setFocus();
}

MainWindow::~MainWindow() {
  frontEnd_.setResultListener({});
  frontEnd_.setPassTextListener({});
}

void MainWindow::makeMenus() {
  menus_ = std::make_unique<MenuTree>(maker_.dispatcher(), maker_.bindings(), opening_, *menuBar());
  addRecentMenu(*menus_, maker_.dispatcher(), opening_);
  hintAtCameras(*menus_, session_);
  menus_->action(opening_.MenuFileOpen)->setShortcut(QKeySequence::Open);
  menus_->action(opening_.MenuFileSave)->setShortcut(QKeySequence::Save);
  menus_->action(opening_.MenuFileSaveAs)
      ->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
  menus_->action(opening_.MenuFileExit)->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
  menus_->action(opening_.menuScreenRes)->setShortcut(QKeySequence(Qt::Key_F11));
  menus_->action(opening_.MenuHelp)->setShortcut(QKeySequence(Qt::Key_F1));
  const Theme present = themeNamed(session_.settings.get(kWindowSection, kThemeKey, "system"));
  const bool animation = session_.settings.get(kWindowSection, kClosingAnimationKey, "on") != "off";
  QMenu* view = addViewMenu(
      *menuBar(), {.theme = present,
                   .closingAnimation = animation,
                   .chooseTheme = [this](Theme theme) { chooseTheme(theme); },
                   .chooseClosingAnimation = [this](bool on) { chooseClosingAnimation(on); }});
  view->addSeparator();
  QAction* filter = view->addAction(QStringLiteral("&Filter the List"));
  filter->setObjectName(QStringLiteral("FilterList"));
  filter->setShortcut(QKeySequence::Find);
  connect(filter, &QAction::triggered, this, [this] { openFilter(*this, &opening_.ListChannels); });
}

/// What the window itself does about an entry, once the tools have done theirs.
void MainWindow::listenToMenus() {
  for (front::Control* opener : {static_cast<front::Control*>(&opening_.MenuFileOpen),
                                 static_cast<front::Control*>(&opening_.ListMRU),
                                 static_cast<front::Control*>(&opening_.LabelOpenSource)}) {
    opener->clicked.add([this] { opens_ = true; });
  }
  for (front::MenuEntry* save : {&opening_.MenuFileSave, &opening_.MenuFileSaveAs}) {
    save->clicked.add([this] { tellOfUntakenPaths(); });
  }
  opening_.menuScreenRes.clicked.add([this] {
    if (isFullScreen()) opening_.setState(front::WindowState::normal);
  });
}

void MainWindow::tellOfUntakenPaths() {
  QStringList names;
  for (const PendingPath* path : paths_) {
    if (path->pending()) names << path->name();
  }
  if (names.isEmpty()) return;
  status_->say(QStringLiteral("Not saved, for it was not taken: %1. Enter in the box takes it.")
                   .arg(names.join(QStringLiteral(", "))));
}

/// Nothing is opened or listed before the operator says so.
void MainWindow::tellOf(const front::FinishedFile& file) {
  std::vector<ResultAction> actions;
  if (file.isScratch) {
    actions.push_back(
        {QStringLiteral("Save as ..."), [this, path = file.path] { saveCopyOf(path); }});
  }
  if (!file.part.empty()) {
    actions.push_back({QStringLiteral("Show"), [this, file] { showDisplaced(file); }});
  }
  if (opensInPanes(file.path)) {
    actions.push_back(
        {QStringLiteral("Open"), [this, path = file.path] { openDropped(path, false); }});
  }
  const QString name = shown(text::fileTitle(file.path));
  QString line = file.isScratch ? QStringLiteral("Made: \\%1").arg(name)
                                : QStringLiteral("Saved: %1").arg(name);
  QString tip = shown(file.path);
  if (!file.note.empty()) {
    line += QStringLiteral(". ") + shown(file.note);
    tip += QLatin1Char('\n') + shown(file.note);
  }
  status_->offer(line, tip, std::move(actions));
}

void MainWindow::showDisplaced(const front::FinishedFile& file) {
  maker_.dispatcher().run("ShowResult", [this, &file] {
    auto shape = channels::shapeOfExtract(session_.disk, file.geometry, file.part, file.path);
    const QString title =
        shown(text::fileTitle(file.path)) + QStringLiteral(" over ") + shown(file.part);
    // It deletes itself when it is closed.
    auto view = std::make_unique<ShapeView>(std::move(shape), title, *this);
    view.release()->show();
  });
}

void MainWindow::saveCopyOf(const std::string& path) {
  maker_.dispatcher().run("SaveResult", [this, &path] {
    const std::string folder = session_.disk.currentFolder();
    const auto target = frontEnd_.fileDialog({.kind = front::FileDialog::Kind::save,
                                              .name = "SaveResult",
                                              .title = "Save a copy of the result",
                                              .folder = folder,
                                              .file = std::string{text::fileTitle(path)}});
    if (!target) return;
    if (!session_.disk.isSameFile(path, *target)) session_.disk.copy(path, *target);
    tellOf({.path = *target});
  });
}

void MainWindow::scrollToTops() {
  for (ListView* list : findChildren<ListView*>()) list->scrollToTop();
}

void MainWindow::rest() {
  status_->rest();
  const std::uint64_t listed =
      opening_.ListActors.itemChanges() + opening_.ListChannels.itemChanges();
  if (std::exchange(opens_, false) && listed != listed_) {
    scrollToTops();
    status_->withdraw();
  }
  listed_ = listed;
}

void MainWindow::makeCentre() {
  auto* centre = new QWidget(this);
  auto* column = new QVBoxLayout(centre);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(makeRenameRow(maker_, opening_, *centre));
  column->addWidget(makeEntryRow(maker_, opening_, *centre));
  column->addWidget(makeDialRow(maker_, opening_, *centre));

  auto* pages = new QStackedWidget(centre);
  pages->addWidget(makeSplashPage(opening_, *pages));
  auto* work = new QWidget(pages);
  auto* workColumn = new QVBoxLayout(work);
  workColumn->setContentsMargins(0, 0, 0, 0);
  workColumn->setSpacing(0);
  auto* panes = new QSplitter(Qt::Horizontal, work);
  panes->setObjectName(QStringLiteral("Panes"));
  panes->setChildrenCollapsible(false);
  panes->addWidget(makeDestinationPane(maker_, opening_, *panes));
  hintAtGeometries(*panes->findChild<ListView*>(QStringLiteral("ListAltGeomActors")), session_);
  sourcePane_ = makeSourcePane(maker_, opening_, *panes);
  panes->addWidget(sourcePane_);
  panes->setSizes({560, 480});
  workColumn->addWidget(panes, 1);
  workColumn->addWidget(makeMeshPage(maker_, opening_, *work), 1);
  workColumn->addWidget(makeInstallPane(maker_, opening_, *work), 1);
  workColumn->addWidget(makePathBlock(maker_, opening_, *work, paths_));
  showUnlessInstalling(maker_, opening_, *panes,
                       {&opening_.LabelFileName, &opening_.ListActors, &opening_.ListMaterials,
                        &opening_.ListChannels, &opening_.ListAltGeomActors,
                        &opening_.ListAltGeomNames, &opening_.ListOBJExtract});
  pages->addWidget(work);
  column->addWidget(pages, 1);
  setCentralWidget(centre);

  auto splash =
      std::make_unique<WidgetBinding>(maker_.dispatcher(), opening_.ImageSplash, *pages->widget(0));
  const auto turn = [pages, this] {
    // The installer takes the window over before any file is open.
    const bool empty = opening_.ImageSplash.visible() && !opening_.ListboxListCR2Files.visible();
    pages->setCurrentIndex(empty ? 0 : 1);
  };
  splash->setShower([turn](bool) { turn(); });
  maker_.bindings().add(std::move(splash));
  maker_.watch({&opening_.ListboxListCR2Files}, turn);
  makeOverlays(maker_, opening_, *centre);
  makeDialCards(maker_, opening_, *centre, *menus_);
}

/// Timers, and the labels and lists that hold state: should a tool show one, it is seen.
void MainWindow::bindTheRest() {
  auto* column = qobject_cast<QVBoxLayout*>(centralWidget()->layout());
  for (front::Control* control : opening_.controls()) {
    if (control == &opening_.PictureTile || maker_.bindings().bound(*control)) continue;
    // The body part transfer has no place in the window: its entry does nothing.
    const bool ofTheTransfer = control == &opening_.FileChooser || control == &opening_.FileLabel ||
                               control == &opening_.NameLabel;
    if (ofTheTransfer) continue;
    if (auto* timer = dynamic_cast<front::Timer*>(control); timer != nullptr) {
      maker_.timer(*timer);
    } else if (QWidget* widget = maker_.make(*control, *centralWidget()); widget != nullptr) {
      column->addWidget(widget);
      widget->setVisible(control->visible());
    }
  }
}

void MainWindow::sync() {
  QString title = shown(opening_.caption());
  const std::string& file = opening_.LabelOBJFileName.visible()
                                ? opening_.LabelOBJFileName.caption()
                                : opening_.LabelFileNameForEditor.caption();
  if (!file.empty()) {
    title = shown(text::fileTitle(file)) + QStringLiteral("[*] - ") + title;
  } else {
    title += QStringLiteral("[*]");
  }
  if (windowTitle() != title) setWindowTitle(title);
  if (isWindowModified() != opening_.PathsEdited) setWindowModified(opening_.PathsEdited);
  if (drawnState_ == opening_.state()) return;
  drawnState_ = opening_.state();
  if (drawnState_ == front::WindowState::maximised) {
    // The whole screen, without a title bar.
    showFullScreen();
  } else if (isVisible()) {
    showNormal();
  }
}

void MainWindow::chooseTheme(Theme theme) {
  QApplication::setPalette(paletteOf(theme, system_));
  // The colours that mean something have their shade in each theme.
  for (front::Form* form : session_.forms()) maker_.bindings().updateAll(*form);
  text::ignoringErrors([&] { session_.settings.set(kWindowSection, kThemeKey, themeName(theme)); });
}

void MainWindow::chooseClosingAnimation(bool on) {
  text::ignoringErrors(
      [&] { session_.settings.set(kWindowSection, kClosingAnimationKey, on ? "on" : "off"); });
}

bool MainWindow::showsClosingAnimation() const {
  return session_.settings.get(kWindowSection, kClosingAnimationKey, "on") != "off" &&
         !systemReducesMotion();
}

bool MainWindow::drawTile(int left, int top) {
  if (!animated_) animated_ = showsClosingAnimation();
  if (!*animated_) return false;
  if (curtain_ == nullptr) {
    const QSize drawn(static_cast<int>(opening_.box().width) / kTwipsPerPixel,
                      static_cast<int>(opening_.box().height) / kTwipsPerPixel);
    curtain_ = new Curtain(*this, drawn, frontEnd_.tileWidth());
  }
  return curtain_->drawTile(left, top);
}

void MainWindow::restorePlace() {
  restoreWindow(*this, session_.settings);
}

void MainWindow::keepPlace() {
  text::ignoringErrors([&] { keepWindow(*this, session_.settings); });
}

void MainWindow::closeEvent(QCloseEvent* event) {
  // The exit steps say whether and when the window goes.
  event->ignore();
  if (frontEnd_.waiting()) frontEnd_.stopWaiting();
  QTimer::singleShot(0, this, [this] {
    if (!opening_.loaded()) return;
    maker_.dispatcher().run([this] {
      keepPlace();
      session_.unload(opening_);
    });
  });
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
  const std::string name = keyName(*event);
  if (!name.empty() && opening_.key.hasHandlers()) maker_.dispatcher().raise(opening_.key, name);
  if (name == "Escape" && opening_.ListMRU.visible()) {
    opening_.ListMRU.hide();
  } else if (name == "Escape" && isFullScreen()) {
    opening_.setState(front::WindowState::normal);
  }
  if (name == "Escape") putDialToolsAway(maker_.dispatcher(), opening_);
  maker_.dispatcher().sync();
  QMainWindow::keyPressEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (carriesFile(*event->mimeData())) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const std::string path = droppedFile(*event->mimeData(), session_);
  if (path.empty()) return;
  const QPoint place = sourcePane_->mapFrom(this, event->position().toPoint());
  const bool asSource = sourcePane_->isVisible() && sourcePane_->rect().contains(place);
  event->acceptProposedAction();
  // The drag is over first: the open may put up a box.
  QTimer::singleShot(0, this, [this, path, asSource] { openDropped(path, asSource); });
}

/// A dropped file takes the way of one that is chosen in the dialog.
void MainWindow::openDropped(const std::string& path, bool asSource) {
  frontEnd_.withChosen(path, [&] {
    if (asSource && opening_.LabelOpenSource.reachable()) {
      maker_.dispatcher().raise(opening_.LabelOpenSource.pressed, front::Mouse{});
      maker_.dispatcher().raise(opening_.LabelOpenSource.released, front::Mouse{});
      maker_.dispatcher().raise(opening_.LabelOpenSource.clicked);
    } else {
      menus_->choose(opening_.MenuFileOpen);
    }
  });
}

}  // namespace norvik::desktop
