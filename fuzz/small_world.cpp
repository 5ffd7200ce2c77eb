#include "small_world.h"

#include "small_world_texts.h"

#include <array>
#include <string_view>

namespace norvik::fuzz {

namespace {

std::vector<std::string> linesOf(std::string_view text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const auto end = text.find('\n', at);
    lines.emplace_back(text.substr(at, end - at));
    at = end == std::string_view::npos ? text.size() : end + 1;
  }
  return lines;
}

/// Two bytes are one blow: what is done, and at which line.
std::string damaged(std::string_view text, std::span<const std::uint8_t> blows) {
  auto lines = linesOf(text);
  for (std::size_t i = 0; i + 1 < blows.size() && lines.size() > 1; i += 2) {
    const auto at = static_cast<std::ptrdiff_t>(blows[i + 1] % lines.size());
    auto& line = lines[static_cast<std::size_t>(at)];
    switch (blows[i] % 6) {
      case 1:
        lines.erase(lines.begin() + at);
        break;
      case 2:
        lines.insert(lines.begin() + at, std::string{line});
        break;
      case 3:
        lines.resize(static_cast<std::size_t>(at) + 1);
        break;
      case 4:
        line.resize(line.size() / 2);
        break;
      case 5:
        std::swap(line, lines.front());
        break;
      default:
        break;
    }
  }
  std::string whole;
  for (const auto& line : lines) whole += line + "\r\n";
  return whole;
}

}  // namespace

std::vector<std::string> makeSmallWorld(MemoryHost& host, std::span<const std::uint8_t> damage) {
  struct Kind {
    std::string_view name;
    std::string_view text;
  };
  constexpr std::array<Kind, 12> kFiles{{{"a.cr2", kFigure},
                                         {"b.cr2", kFigure},
                                         {"s.pz3", kFigure},
                                         {"p.pz2", kPose},
                                         {"q.pz2", kPose},
                                         {"f.fc2", kPose},
                                         {"h.hr2", kProp},
                                         {"p.pp2", kProp},
                                         {"m.mtl", kMaterials},
                                         {"t.phi", kPhi},
                                         {"m.obj", kMesh},
                                         {"n.obj", kMesh}}};
  for (const std::string_view folder :
       {"/c/Norvik", "/c/Poser/Runtime/Geometries/Man/Left", "/c/Poser/Runtime/textures",
        "/c/Poser/Runtime/Libraries/Character"}) {
    host.addFolder(folder);
  }
  host.addFile("/c/Poser/Runtime/Geometries/Man/man.obj", damaged(kMesh, {}));
  host.addFile("/c/Poser/Runtime/Geometries/hat.obj", damaged(kMesh, {}));
  host.addFile("/c/Poser/Runtime/textures/skin.bmp", "BM");
  host.addFile("/c/Poser/Poser.exe", "MZ");
  std::vector<std::string> paths{"C:\\new.cr2", "C:\\nowhere\\a.cr2", "C:\\new.obj"};
  for (std::size_t i = 0; i < kFiles.size(); ++i) {
    // The first two bytes of the damage say which two files it is done to.
    const bool hit =
        damage.size() > 2 && (damage[0] % kFiles.size() == i || damage[1] % kFiles.size() == i);
    const auto blows = hit ? damage.subspan(2) : std::span<const std::uint8_t>{};
    host.addFile("/c/" + std::string{kFiles[i].name}, damaged(kFiles[i].text, blows));
    paths.push_back("C:\\" + std::string{kFiles[i].name});
  }
  return paths;
}

}  // namespace norvik::fuzz
