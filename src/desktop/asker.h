#pragma once
// The questions that the front end puts to the operator.

#include "desktop/history/changes_window.h"
#include "front/front_end.h"

#include <QPrinter>
#include <QString>

#include <optional>

namespace norvik::desktop {

/// Boxes and dialogs, in the window's own words. A test puts another one in its place.
class Asker {
 public:
  virtual ~Asker() = default;

  virtual front::Answer box(const QString& title, const QString& text, int style) = 0;
  /// The same, with a way to look at what a Yes would change before it is said.
  virtual front::Answer boxWithChanges(const QString& title, const QString& text, int style,
                                       const ComparedFiles&) {
    return box(title, text, style);
  }

  struct File {
    bool save = false;
    QString title;
    QString filter;  ///< in the window's form; empty for all files
    QString folder;  ///< host names
    QString name;
  };
  virtual std::optional<QString> file(const File& file) = 0;
  virtual std::optional<front::Colour> colour(front::Colour initial) = 0;
  /// Lets the operator set the printer up; false on a cancel.
  virtual bool printer(QPrinter& printer) = 0;
};

}  // namespace norvik::desktop
