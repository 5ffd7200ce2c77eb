#pragma once
// Takes the pictures of the guide.

#include <QImage>
#include <QString>
#include <QWidget>

namespace norvik::desktop {

/// The picture with 256 colours, where that shows no difference; a third of the size on disk.
QImage withFewColours(const QImage& picture);

class Photographer {
 public:
  Photographer(QWidget& mainWindow, QString folder)
      : mainWindow_(mainWindow), folder_(std::move(folder)) {}

  /// The main window with whatever lies over it, as it is on the screen.
  void take(const QString& name) const { take(name, mainWindow_); }
  void take(const QString& name, const QWidget& window) const;

 private:
  QWidget& mainWindow_;
  QString folder_;
};

}  // namespace norvik::desktop
