#pragma once
// Help: the page of the guide that tells about what the operator is at.

#include "desktop/desktop_front_end.h"
#include "desktop/guide/guide_window.h"

#include <QObject>
#include <QPointer>

namespace norvik::desktop {

/// Where the guide tells about a widget: about it or what it stands in, about what the window is
/// used for at the moment, or about the window.
QString guidePlaceOf(const QWidget* widget);

/// Opens the guide for the Help entry and for F1, in every window and on an entry of an open menu.
class Guide : public QObject {
 public:
  Guide(DesktopFrontEnd& frontEnd, QWidget& mainWindow);
  ~Guide() override;

  /// The page of what has the keys. False if the guide is not on this system.
  bool showHere();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool show(const QString& place, QWidget& over);

  DesktopFrontEnd& frontEnd_;
  QWidget& mainWindow_;
  QPointer<GuideWindow> window_;
};

}  // namespace norvik::desktop
