#include "figure/map_lister.h"

#include "text/columns.h"
#include "text/line_reader.h"

#include <algorithm>
#include <set>

namespace norvik::figure {

namespace {

using text::anywhere;

constexpr std::string_view kTexture = "textureMap";
constexpr std::string_view kNoMap = "NO_MAP";
constexpr std::size_t kTextureColumn = 12;
constexpr float kPixelsPerCharacter = 8;

bool findMainMaterial(text::LineReader& in, const std::string& path) {
  const bool hair = text::extension(path) == "hr2";
  static const text::LineFilter stops{anywhere("material skin"), text::atStart("\tmaterial")};
  while (!in.atEnd()) {
    in.passLines(stops);
    if (in.atEnd()) break;
    const auto line = in.line();
    if (text::holds(line, "material skin")) return true;
    if (hair && text::begins(line, "\tmaterial")) return true;
  }
  return false;
}

/// What a pass over the map lines gathers.
struct Maps {
  std::string transparency;
  std::string reflection;
  std::string bump;
  std::string lastTexture;  ///< the whole line
};

void readMaps(front::Session& session, text::LineReader& in, Maps& maps) {
  static const text::LineFilter stops{anywhere("transparencyMap"), anywhere("reflectionMap"),
                                      anywhere("bumpMap"), anywhere(kTexture), anywhere("\"")};
  front::ListBox& list = session.opening.ListAllTexMaps;
  std::set<std::string, std::less<>> known(list.items().begin(), list.items().end());
  int newValues = 0;
  bool collecting = true;
  while (!in.atEnd()) {
    in.passLines(stops);
    if (in.atEnd()) return;
    const std::string field{in.field()};
    if (text::holds(field, "transparencyMap")) maps.transparency = text::from(field, 17);
    if (text::holds(field, "reflectionMap")) maps.reflection = text::from(field, 14);
    if (text::holds(field, "bumpMap")) maps.bump = text::from(field, 8);
    if (!collecting || !text::holds(field, kTexture)) continue;
    maps.lastTexture = field;
    if (field == kTexture) {
      collecting = !text::holds(in.field(), kTexture);
      continue;
    }
    const auto value = text::from(field, kTextureColumn);
    if (!known.emplace(value).second) continue;
    list.add(value);
    if (++newValues > 1) {
      session.front.messageBox("There is more than one texture map used in this CR2.", "ALERT!",
                               front::kOk);
    }
  }
}

/// The main texture from its line: from a double quote on, quote included, or from its column.
std::string textureOf(const std::string& line) {
  const auto quote = line.find('"');
  std::string value{quote == std::string::npos ? text::from(line, kTextureColumn)
                                               : std::string_view{line}.substr(quote)};
  if (text::holds(value, "tringRes")) value = "Default P4 Map";
  return value;
}

std::string_view orNoMap(const std::string& value) {
  return value.empty() ? kNoMap : std::string_view{value};
}

void showTextureList(front::Opening& opening) {
  front::ListBox& list = opening.ListAllTexMaps;
  if (list.count() == 0) return;
  std::size_t longest = 0;
  for (const std::string& item : list.items()) longest = std::max(longest, item.size());
  list.setWidth(kPixelsPerCharacter * static_cast<float>(longest));
  list.show();
  opening.TimerListAllTexMaps.start();
}

}  // namespace

void FindMapLocs(front::Session& session, const std::string& path) {
  front::Opening& opening = session.opening;
  text::LineReader in(session.disk, path);
  Maps maps;
  if (findMainMaterial(in, path)) {
    readMaps(session, in, maps);
    opening.TextMainTex.setText(textureOf(maps.lastTexture));
  } else {
    session.front.messageBox(
        "Either there is no texture map listed, or the primary material is not called \"skin\".",
        "Note!", front::kOk);
    opening.TextMainTex.setText(kNoMap);
  }
  opening.TextMainTrans.setText(orNoMap(maps.transparency));
  opening.TextMainReflect.setText(orNoMap(maps.reflection));
  opening.TextMainBump.setText(orNoMap(maps.bump));
}

void wireTextureList(front::Session& session) {
  front::Opening& opening = session.opening;
  opening.TextMainTex.moved.add([&opening](front::Mouse) { showTextureList(opening); });
  opening.ListAllTexMaps.clicked.add([&opening] { opening.ListAllTexMaps.hide(); });
  opening.ListAllTexMaps.released.add([&opening](front::Mouse) { opening.ListAllTexMaps.hide(); });
  // The timer goes on running when it has hidden the list.
  opening.TimerListAllTexMaps.expired.add([&opening] { opening.ListAllTexMaps.hide(); });
}

}  // namespace norvik::figure
