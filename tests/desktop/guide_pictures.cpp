#include "desktop/guide_pictures.h"

#include "desktop/editor_pictures.h"
#include "desktop/install_pictures.h"
#include "desktop/material_pictures.h"
#include "desktop/phi_pictures.h"
#include "desktop/photographer.h"
#include "desktop/pose_pictures.h"
#include "desktop/small_tool_pictures.h"
#include "desktop/surgery_pictures.h"
#include "desktop/window_pictures.h"
#include "desktop/workshop_pictures.h"

#include <QAction>
#include <QtTest>

#include <algorithm>
#include <array>

namespace norvik::desktop {

namespace {

using Qt::StringLiterals::operator""_s;

const QString kTilda = u"/Runtime/Libraries/Characters/Tilda/tilda.cr2"_s;

/// What the takers of pictures want to be given, each in its own way.
struct Scene {
  Program& program;
  Operator& hand;
  const QString& drive;
  const Photographer& camera;

  void chooseTheme(const QString& name) const {
    program.mainWindow().findChild<QAction*>(u"Theme."_s + name)->trigger();
  }
  auto themes() const {
    return [this](const QString& name) { chooseTheme(name); };
  }
  auto windows() const {
    return [this](const QString& name, const QWidget& window) { camera.take(name, window); };
  }
  auto windowsOrMain() const {
    return [this](const QString& name, QWidget* window) {
      camera.take(name, window == nullptr ? program.mainWindow() : *window);
    };
  }
  void openFigure() const {
    hand.willChoose(drive + kTilda);
    hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
  }
};

void takeWindow(const Scene& scene) {
  takeWindowPictures(scene.program, scene.hand, scene.drive, scene.themes(), scene.camera);
}

void takeWorkshop(const Scene& scene) {
  scene.hand.willChoose(scene.drive + u"/Runtime/Geometries/Tilda/tilda.obj"_s);
  scene.hand.menu({u"menuFile"_s, u"MenuFileOpen"_s});
  takeWorkshopPictures(scene.hand, scene.themes(), scene.camera);
}

void takeMaterials(const Scene& scene) {
  takeMaterialPictures(scene.hand, scene.drive + kTilda, scene.drive, scene.themes(),
                       scene.windowsOrMain());
}

void takePoses(const Scene& scene) {
  takePosePictures(scene.hand, scene.drive, scene.windows());
}

void takePhi(const Scene& scene) {
  takePhiPictures(scene.hand, scene.drive, scene.themes(), scene.windows());
}

void takeInstaller(const Scene& scene) {
  takeInstallPictures(scene.program, scene.hand, scene.drive, scene.themes(),
                      scene.windowsOrMain());
}

void takeEditor(const Scene& scene) {
  takeEditorPictures(scene.hand, scene.drive, scene.themes(), scene.windows());
}

void takeSurgery(const Scene& scene) {
  takeSurgeryPictures(scene.hand, scene.drive, scene.themes(), scene.windows());
}

void takeSmallTools(const Scene& scene) {
  takeSmallToolPictures(scene.program, scene.hand, scene.drive, scene.themes(), scene.windows());
}

struct Section {
  const char* name;
  void (*take)(const Scene& scene);
  bool onTheFigure;  ///< it begins with the sample figure open
};

/// In an order in which one leaves the windows as the next one needs them.
constexpr std::array kSections = std::to_array<Section>({
    {"window", takeWindow, false},
    {"workshop", takeWorkshop, false},
    {"material", takeMaterials, false},
    {"pose", takePoses, true},
    {"phi", takePhi, true},
    {"install", takeInstaller, true},
    {"editor", takeEditor, true},
    {"surgery", takeSurgery, true},
    {"small", takeSmallTools, false},
});

void take(const Section& section, const Scene& scene) {
  if (section.onTheFigure) scene.openFigure();
  section.take(scene);
}

}  // namespace

QStringList pictureSections() {
  QStringList names;
  for (const Section& section : kSections) names << QString::fromLatin1(section.name);
  return names;
}

void takeSection(const QString& section, Program& program, Operator& hand, const QString& drive,
                 const QString& folder) {
  const Photographer camera(program.mainWindow(), folder);
  const auto* const found = std::find_if(
      kSections.begin(), kSections.end(),
      [&](const Section& candidate) { return section == QString::fromLatin1(candidate.name); });
  if (found == kSections.end()) giveUp("no pictures of " + section.toStdString());
  take(*found, {program, hand, drive, camera});
}

void takeAllPictures(Program& program, Operator& hand, const QString& drive,
                     const QString& folder) {
  const Photographer camera(program.mainWindow(), folder);
  const Scene scene{program, hand, drive, camera};
  for (const Section& section : kSections) take(section, scene);
  scene.chooseTheme(u"system"_s);
  hand.menu({u"menuFile"_s, u"MenuFileExit"_s});
}

}  // namespace norvik::desktop
