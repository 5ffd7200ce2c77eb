#pragma once
// The coloured names of groups or materials in the window.

#include "desktop/maker.h"
#include "front/rich_text.h"
#include "front/session.h"

#include <QTreeWidget>

#include <functional>
#include <utility>

namespace norvik::desktop {

enum class NameKind { group, material };

/// Shows each line of a coloured page as a row: its colour, its name, and how many faces of the
/// mesh in view are of that name.
class NameListing : public QTreeWidget {
 public:
  NameListing(Maker& maker, front::Session& session, front::RichTextBox& page, NameKind kind,
              QWidget& parent);

  /// Hides the rows whose name does not hold a text, in whatever case; an empty one shows all.
  void narrow(const QString& text);
  /// "3 of 40" while rows are hidden so.
  QString told() const;
  void setFilled(std::function<void()> filled) { filled_ = std::move(filled); }

 private:
  void fill();
  void hideRows();

  front::Session& session_;
  front::RichTextBox& page_;
  NameKind kind_;
  QString wanted_;  ///< that a row's name must hold
  std::function<void()> filled_;
  std::string shownText_;
  std::vector<front::Colour> shownColours_;
};

}  // namespace norvik::desktop
