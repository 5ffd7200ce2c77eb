#include "install/figure_files.h"

#include "figure/poser_path.h"
#include "front/poser_location.h"
#include "text/columns.h"
#include "text/line_reader.h"

#include <set>

namespace norvik::install {

namespace {

using text::anywhere;
using text::begins;
using text::holds;

constexpr std::string_view kRuntime = "Runtime";
constexpr std::string_view kNeverListed =
    "Runtime\\textures\\Poser 4 Textures\\P4 woman texture.tif";

bool isLetter(char c) {
  const char small = text::lowered({&c, 1})[0];
  return small >= 'a' && small <= 'z';
}

/// ListFiles, each path once.
class FileLister {
 public:
  FileLister(front::Session& session, front::ListBox& list)
      : session_(session), list_(list), poser_(session.opening.PoserLocation) {}

  void add(const std::string& path) {
    if (listed_.insert(path).second) list_.add(path);
  }

  /// A line of the figure. `readOn` gives what stands behind a key that stands alone.
  template <typename ReadOn>
  void look(const std::string& line, ReadOn&& readOn) {
    constexpr std::string_view kReference = "figureRes";
    if (begins(line, kReference) && holds(line, "Geom")) {
      addGeometry(line, "Geom", "OBJ file not present!");
    }
    if (begins(line, "objFile") && holds(line, "Geometries:")) {
      addGeometry(line, "Geometries:", "Prop OBJ file not present!");
    }
    if (line == "textureMap") {
      const std::string value = readOn();
      if (isMap("textureMap " + value)) addMap(value);
    } else if (holds(line, "Map") && isMap(line) && !behindKey(line).empty()) {
      // What ends the key may be a tab, and the first blank then a part of the path.
      addMap(holds(line, kRuntime) ? line : behindKey(line));
    }
  }

 private:
  static bool isMap(std::string_view line) {
    return !holds(line, "NO_MAP") && !holds(line, "depth") && !holds(line, "GetStringRes(1029");
  }

  /// What stands behind the first blank; empty if there is none.
  static std::string_view behindKey(std::string_view line) {
    const auto blank = line.find(' ');
    if (blank == std::string_view::npos) return {};
    return text::trimmed(line.substr(blank));
  }

  /// A map without Poser's Runtime lies where it says if it names a drive, else below Poser.
  std::string mapElsewhere(std::string_view value) const {
    const bool onDrive = value.size() > 1 && value[1] == ':' && isLetter(value[0]);
    std::string folder = onDrive ? std::string{value[0]} + ":\\" : poser_;
    if (onDrive) value.remove_prefix(2);
    while (value.starts_with(':') || value.starts_with('\\')) value.remove_prefix(1);
    return folder + figure::asDiskPath(value);
  }

  /// Quotes are no part of a path.
  static std::string unquoted(std::string_view text) {
    std::string bare{text};
    std::erase(bare, '"');
    return bare;
  }

  void addGeometry(const std::string& line, std::string_view from, std::string_view complaint) {
    addNamed(unquoted(figure::pathBelow(poser_ + "Runtime\\", line, from)), complaint);
  }

  /// Nor are the blanks around the path of a map.
  void addMap(std::string_view field) {
    const std::string bare = unquoted(field);
    const std::string_view value = text::trimmed(bare);
    if (value.empty()) return;
    if (!holds(value, kRuntime)) return addNamed(mapElsewhere(value), "Map file not present!");
    const std::string below = figure::pathBelow("", value, kRuntime);
    if (below != kNeverListed) addNamed(poser_ + below, "Map file not present!");
  }

  void addNamed(const std::string& path, std::string_view complaint) {
    if (!session_.disk.exists(path)) {
      session_.front.messageBox(complaint, "Error!", front::kCritical);
    }
    add(path);
  }

  front::Session& session_;
  front::ListBox& list_;
  std::string poser_;
  std::set<std::string> listed_;
};

}  // namespace

void listFigureFiles(front::Session& session, front::ListBox& list) {
  static const text::LineFilter mayName{anywhere("figureRes"), anywhere("objFile"), anywhere("Map"),
                                        anywhere("\"")};
  front::readPoserLocation(session);
  const std::string figure = session.opening.LabelFileNameForEditor.caption();
  FileLister files(session, list);
  files.add(figure);
  text::LineReader in(session.disk, figure);
  const auto readOn = [&in] { return std::string{in.field()}; };
  while (!in.atEnd()) {
    in.passLines(mayName);
    if (!in.atEnd()) files.look(std::string{in.field()}, readOn);
  }
}

void wireFigureFiles(front::Session& session, FormRemoveFiles& form) {
  session.opening.menuFilesRemove.clicked.add([&session, &form] { session.load(form); });
  form.loading.add([&session, &form] {
    form.restoreStart();
    form.Drive1.setPath(text::raised(text::leftmost(session.disk.currentFolder(), 2)));
  });
  form.shown.add([&session, &form] { listFigureFiles(session, form.ListFiles); });
  form.OptionBackup.clicked.add([&form] {
    form.LabelDrive.show();
    form.Drive1.show();
  });
}

}  // namespace norvik::install
