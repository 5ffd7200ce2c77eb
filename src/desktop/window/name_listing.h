#pragma once
// The coloured names of groups or materials in the window.

#include "desktop/maker.h"
#include "front/form_obj.h"
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
  NameListing(Maker& maker, front::Session& session, front::FormOBJ& form, NameKind kind,
              QWidget& parent);

  /// Hides the rows whose name does not hold a text, in whatever case; an empty one shows all.
  void narrow(const QString& text);
  /// "3 of 40" while rows are hidden so.
  QString told() const;
  /// Who is told of a row that was clicked, or chosen with the return key.
  void setPointedAt(std::function<void(const std::string& name)> pointedAt) {
    pointedAt_ = std::move(pointedAt);
  }
  /// Shows one name as marked; null shows none.
  void showMarked(const std::string* name);
  void setFilled(std::function<void()> filled) { filled_ = std::move(filled); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void fill();
  void hideRows();
  void pointAt(QTreeWidgetItem* row);

  front::Session& session_;
  front::FormOBJ& form_;
  front::RichTextBox& page_;
  NameKind kind_;
  QString wanted_;       ///< that a row's name must hold
  bool marked_ = false;  ///< one of the names
  std::function<void()> filled_;
  std::function<void(const std::string&)> pointedAt_;
  std::vector<std::string> names_;  ///< of the rows, as the page has them
  std::string shownText_;
  std::vector<front::Colour> shownColours_;
};

}  // namespace norvik::desktop
