#pragma once
// Lines on paper, or in a PDF.

#include <QPrinter>
#include <QStringList>

namespace norvik::desktop {

/// Prints lines in a font of fixed or other width, page by page, each page with its number. The
/// first `headingLines` lines are larger and bold.
void printLines(QPrinter& printer, const QString& font, const QStringList& lines, int headingLines);

}  // namespace norvik::desktop
