#pragma once
// The OBJ workshop behind its form.

#include "front/form_obj.h"
#include "front/session.h"
#include "mesh/mesh.h"
#include "workshop/spin_state.h"

#include <cstdint>
#include <random>

namespace norvik::obj {

enum class ViewMode { front = 1, side = 2, top = 3 };

/// Of the console's colours, the one that faces have without colours of their own.
inline constexpr std::size_t kPlainFill = 1;

/// What the tools of the workshop share. It is made once, hangs every tool on its trigger, and
/// outlives every handler; a load of the form brings everything back to the start.
class Workshop {
 public:
  Workshop(front::Session& session, front::FormOBJ& form);
  Workshop(const Workshop&) = delete;
  Workshop& operator=(const Workshop&) = delete;

  front::Session& session;
  front::FormOBJ& form;

  Mesh mesh;
  ViewMode viewMode = ViewMode::front;
  bool Suppress = false;  ///< a read does not show its flat view before its end
  bool reading = false;   ///< a read or refresh is under way: another one does not begin
  bool viewed = false;    ///< a mesh was read to its end
  front::Colour fill = front::kBlack;  ///< of the polygons in the flat views
  bool byGroups = false;               ///< the flat views were drawn in the groups' colours
  front::Colour fillWithout3D = front::kBlack;  ///< of those in PictureNoDX
  bool playing = false;                         ///< the form has only its two playthings on show
  std::uint64_t departures = 0;  ///< how often the form was left, for a read that meets it midway
  Spin spin;

  /// The mesh in view is forgotten: what tools keep beside it goes too.
  front::Event<> forgotten{form};

  /// Where the colours of new groups and materials come from. Seeded anew when the form is loaded,
  /// so that a mesh looks the same whenever it is the first one.
  std::mt19937 random{kSeed};
  static constexpr std::mt19937::result_type kSeed = 254;

  /// The view that the options choose.
  ViewMode chosenView() const;
  /// The flat view of a mode.
  front::PictureBox& flatView(ViewMode mode);
  /// Shows one of the pictures that lie on one another, and hides the others.
  void showAlone(const front::PictureBox& picture);
  /// The same with the flat view of the mode that is chosen.
  void showChosenView();
  /// The colour of the faces that follow, in the flat views and in the 3D view.
  void colourFaces(front::Colour colour);
  /// Names a mesh in the window's title.
  void setTitle(std::string_view path);
  /// Closes the magnifier, whose picture of the screen would not fit any more.
  void closeMagnifier();

 private:
  void restoreStart();
  void switchView();
};

}  // namespace norvik::obj
