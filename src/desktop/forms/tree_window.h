#pragma once
// The body parts of FormTree as a tree that folds.

#include "builders/phi/form_tree.h"
#include "builders/phi/mesh_groups.h"
#include "desktop/forms/form_windows.h"

#include <cstdint>
#include <optional>
#include <string>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace norvik::desktop {

/// The list stays the data: the tree shows it, and selects in it. What a cut will take is marked,
/// and told below the tree before anything is pressed.
class TreeWindow : public FormWindow {
 public:
  TreeWindow(const WindowParts& parts, builders::FormTree& form);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void fill();
  void select();
  void choose(const QTreeWidgetItem* item);
  void showBranch();
  QString branchText(const builders::CutPreview& preview, std::size_t names) const;
  void readMesh();

  front::Session& session_;
  builders::FormTree& form_;
  QTreeWidget* tree_ = nullptr;
  QLabel* branch_ = nullptr;
  std::uint64_t shownItems_ = 0;
  bool filled_ = false;
  std::string mesh_;
  std::optional<builders::MeshGroups> groups_;  ///< of that mesh; none if it cannot be read
};

}  // namespace norvik::desktop
