#pragma once
// The OBJ workshop behind its form.

#include "front/form_obj.h"
#include "front/session.h"
#include "obj/mesh.h"
#include "obj/spin_state.h"

#include <random>

namespace norvik::obj {

enum class ViewMode { front = 1, side = 2, top = 3 };

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
  Spin spin;

  /// Where the colours of new groups and materials come from. Seeded anew when the form is loaded,
  /// so that a mesh looks the same whenever it is the first one.
  std::mt19937 random{kSeed};
  static constexpr std::mt19937::result_type kSeed = 254;

  /// The view that the options choose.
  ViewMode chosenView() const;
  /// The flat view of a mode.
  front::PictureBox& flatView(ViewMode mode);
};

}  // namespace norvik::obj
