#pragma once
// The passes that are timed, each by name.

#include <functional>
#include <string>
#include <vector>

namespace norvik::bench {

/// Which of the figures in the bench's folder a pass works on.
enum class Figure {
  plain,     ///< figure.cr2
  lfEnds,    ///< lf.cr2: the same with LF line ends
  replaced,  ///< the same under a name for one run, for a pass that replaces it
  oneBlank,  ///< one-blank.cr2: its first line begins with a blank
  blanks,    ///< blanks.cr2: every line does
  scene,     ///< scene.pz3: the same behind a camera
  embedded,  ///< embedded.cr2: the same with a part behind it that has a geometry of its own
  mesh       ///< mesh.obj: an OBJ file of the figure's size
};
std::string fileOf(Figure figure);
/// Whether a pass replaces this file, which gets another name for each run then.
bool isReplaced(Figure figure);

/// What a pass is held against: all but the arithmetic have a limit in times of cp, and that one
/// works out every number of a mesh again, as an awk does beside it.
enum class Kind { read, rewrite, readAndRewrite, substitution, copy, open, arithmetic };

struct Pass {
  std::string name;
  Kind kind;
  Figure figure;
  /// Works on a file of the folder, whose host name it is given.
  std::function<void(const std::string& folder, const std::string& file)> run;
};

const std::vector<Pass>& passes();

}  // namespace norvik::bench
