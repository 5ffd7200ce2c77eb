#pragma once
// What the scaler is about to write.

#include "desktop/maker.h"
#include "front/opening.h"
#include "obj/scale_forecast.h"
#include "text/host.h"

#include <QLabel>
#include <QTimer>

#include <memory>
#include <string>
#include <utility>

namespace norvik::desktop {

/// Below the scale box, once its amount rests: how many coordinates of the mesh will be written
/// without their point, and the first such line as it is and as it will be. It reads the file a
/// little at a time while the window has nothing else to do; where there is none it hides.
class ScaleNote : public QLabel {
 public:
  ScaleNote(Maker& maker, front::Opening& opening, QWidget& parent);

 private:
  void look();
  void begin();
  void readOn();
  void tell();
  void forget();

  Maker& maker_;
  front::Opening& opening_;
  /// Not the tools' host: that would show the progress of a tool.
  std::unique_ptr<text::HostOps> host_ = text::makePosixHost();
  std::pair<std::string, std::string> asked_;  ///< the mesh and the amount, while the box is open
  std::unique_ptr<obj::ScaleForecast> forecast_;
  QTimer rest_;
  QTimer slice_;
};

}  // namespace norvik::desktop
