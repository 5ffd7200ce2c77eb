#pragma once
// The questions that the front end puts to the operator.

#include "desktop/history/changes_window.h"
#include "front/front_end.h"

#include <QPrinter>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <functional>
#include <optional>

namespace norvik::desktop {

/// Boxes and dialogs, in the window's own words. A test puts another one in its place.
class Asker {
 public:
  virtual ~Asker() = default;

  struct Box {
    QString title{};
    QString text{};
    int style = 0;
    QString note{};         ///< the window's own, below the text; may be empty
    bool cautious = false;  ///< a key pressed in haste refuses
    /// What a Yes would change, for a look at it before it is said.
    std::optional<ComparedFiles> changes{};
  };
  virtual front::Answer box(const Box& box) = 0;
  front::Answer box(const QString& title, const QString& text, int style) {
    return box({.title = title, .text = text, .style = style});
  }
  /// A box that may come again: none is OK for this one and all that follow.
  virtual std::optional<front::Answer> repeatedBox(const Box& asked) { return box(asked); }

  /// A box with a button for each of these ways beside its own, which leaves it at that.
  virtual std::optional<std::size_t> way(const Box& asked, const QStringList& ways) {
    static_cast<void>(asked), static_cast<void>(ways);
    return std::nullopt;
  }

  struct File {
    bool save = false;
    QString title{};
    QString filter{};  ///< in the window's form; empty for all files
    QString folder{};  ///< host names
    QString name{};
    QString hint{};        ///< below the dialog's own parts; may be empty
    QString instead{};     ///< a further button, which answers with an empty name; may be empty
    QStringList places{};  ///< folders at the side, behind the usual ones
    /// The host path of a path on a drive such as C:\Poser; empty for any other text.
    std::function<QString(const QString&)> hostPath{};
  };
  virtual std::optional<QString> file(const File& file) = 0;
  virtual std::optional<front::Colour> colour(front::Colour initial) = 0;
  /// Lets the operator set the printer up; false on a cancel.
  virtual bool printer(QPrinter& printer) = 0;
  /// Whether the operator wants to see the pages first.
  virtual bool wantsPreview() const { return false; }
  /// Shows the pages that `paint` makes; from there they go to the printer.
  virtual void preview(QPrinter& printer, const std::function<void(QPrinter&)>& paint) {
    paint(printer);
  }
};

}  // namespace norvik::desktop
