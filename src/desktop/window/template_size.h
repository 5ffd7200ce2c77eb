#pragma once
// The size of a template that is to be saved.

#include "desktop/maker.h"
#include "front/session.h"

class QWidget;

namespace norvik::desktop {

/// The entry of a template's size, the usual sizes beside it, and what the return key will write:
/// how many pixels, how large a file, and where. A second button saves a PNG with a transparent
/// ground instead.
QWidget* makeTemplateSize(Maker& maker, front::Session& session, front::TextBox& size,
                          const QString& name, QWidget& parent);

}  // namespace norvik::desktop
