#pragma once
// The form at the size of the screen.

#include "front/session.h"

namespace norvik::front {

/// Puts a form at the corner of the screen and multiplies its size and font, and its controls'
/// places, sizes and fonts.
void scaleForm(Form& form, float x, float y);

/// Multiplies a form in the normal window state, its controls and their fonts to the size of the
/// screen, keeps the ratios in the main form's ScreenScaleX and ScreenScaleY, and maximises it.
void ResizeFormToScreen(Session& session, Form& form);

/// Multiplies a form, its controls and their fonts by the one ratio at which the form just fits on
/// the screen, so that pictures keep their proportions.
void scaleToScreen(Session& session, Form& form);

/// Multiplies a form, its controls and their fonts to the size of the screen, width and height each
/// by a ratio of its own.
void stretchToScreen(Session& session, Form& form);

/// A left edge in the main form's own pixels, as it is on the screen.
float scaledLeft(const Opening& opening, float left);

}  // namespace norvik::front
