#pragma once
// The coloured names of groups or materials in the window.

#include "desktop/maker.h"
#include "front/rich_text.h"
#include "front/session.h"

#include <QTreeWidget>

namespace norvik::desktop {

enum class NameKind { group, material };

/// Shows each line of a coloured page as a row: its colour, its name, and how many faces of the
/// mesh in view are of that name.
class NameListing : public QTreeWidget {
 public:
  NameListing(Maker& maker, front::Session& session, front::RichTextBox& page, NameKind kind,
              QWidget& parent);

 private:
  void fill();

  front::Session& session_;
  front::RichTextBox& page_;
  NameKind kind_;
  std::string shownText_;
  std::vector<front::Colour> shownColours_;
};

}  // namespace norvik::desktop
