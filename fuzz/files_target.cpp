// The two listings of a figure's files against their steps, read by read. Steering: READ SIZE.

#include "desk.h"
#include "input.h"
#include "install/cr2_files.h"
#include "install/figure_files.h"
#include "install/form_remove_files.h"
#include "plain_text.h"

#include <algorithm>
#include <cctype>

namespace {

using norvik::fuzz::Desk;
using norvik::fuzz::Input;
using norvik::fuzz::PlainText;
using norvik::fuzz::require;
using norvik::fuzz::requireEqual;
using Lines = std::vector<std::string>;

bool holds(const std::string& text, const char* token) {
  return text.find(token) != std::string::npos;
}

/// What the search for the eight endings lists.
Lines plainNamed(const std::string& text) {
  Lines hits;
  PlainText in(text);
  while (!in.atEnd()) {
    const std::string line = in.line();
    std::string small = line;
    std::transform(small.begin(), small.end(), small.begin(),
                   [](unsigned char c) { return c < 0x80 ? std::tolower(c) : c; });
    for (const char* ending : {".obj", ".bmp", ".png", ".gif", ".bum", ".tif", ".jpg", ".pict"}) {
      if (holds(small, ending)) hits.push_back(line);
    }
  }
  Lines listed;
  std::string last;
  for (const std::string& hit : hits) {
    if (hit != last) listed.push_back(hit);
    last = hit;
  }
  return listed;
}

std::string diskPath(std::string path) {
  std::replace(path.begin(), path.end(), ':', '\\');
  return path;
}

/// The map behind a key, by the rules of its place.
std::string plainMap(std::string value) {
  const std::size_t runtime = value.find("Runtime");
  if (runtime != std::string::npos) return "C:\\Poser\\" + diskPath(value.substr(runtime));
  std::string folder = "C:\\Poser\\";
  if (value.size() > 1 && value[1] == ':' &&
      std::isalpha(static_cast<unsigned char>(value[0])) != 0) {
    folder = value.substr(0, 2) + "\\";
    value = value.substr(2);
  }
  while (!value.empty() && (value[0] == ':' || value[0] == '\\')) value = value.substr(1);
  return folder + diskPath(value);
}

std::string trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// The files that a figure uses; the error that ends the listing comes last.
Lines plainUsed(const std::string& figure, const std::string& text) {
  Lines listed{figure};
  const auto add = [&](std::string path) {
    std::erase(path, '"');
    if (std::find(listed.begin(), listed.end(), path) == listed.end()) listed.push_back(path);
  };
  const auto addMap = [&](const std::string& line, std::string value) {
    const bool none =
        holds(line, "NO_MAP") || holds(line, "depth") || holds(line, "GetStringRes(1029");
    std::erase(value, '"');
    value = trimmed(value);
    if (none || value.empty()) return;
    const std::string path = plainMap(value);
    if (path != "C:\\Poser\\Runtime\\textures\\Poser 4 Textures\\P4 woman texture.tif") add(path);
  };
  const std::string runtime = "C:\\Poser\\Runtime\\";
  PlainText in(text);
  try {
    while (!in.atEnd()) {
      const std::string line = in.field();
      if (line.starts_with("figureRes") && holds(line, "Geom")) {
        add(runtime + diskPath(line.substr(line.find("Geom"))));
      }
      if (line.starts_with("objFile") && holds(line, "Geometries:")) {
        add(runtime + diskPath(line.substr(line.find("Geometries:"))));
      }
      if (line == "textureMap") {
        const std::string value = in.field();
        addMap(value, value);
      } else if (holds(line, "Map") && line.find(' ') != std::string::npos) {
        const std::string behind = trimmed(line.substr(line.find(' ')));
        if (!behind.empty()) addMap(line, holds(line, "Runtime") ? line : behind);
      }
    }
  } catch (int error) {
    listed.push_back(std::to_string(error));
  }
  return listed;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Input input(data, size);
  const std::size_t readSize = norvik::fuzz::numberIn(input.pieces(1)[0], 1, 4096);
  {
    Desk desk("cr2", input.text);
    desk.host.limitReads(readSize);
    desk.front.answerWith(norvik::front::Answer::cancel);
    norvik::install::ListCR2Files(desk.session, desk.path);
    requireEqual(desk.opening.ListboxListCR2Files.items(), plainNamed(input.text), "ListCR2Files");
  }
  Desk desk("cr2", input.text);
  desk.host.limitReads(readSize);
  desk.opening.LabelFileNameForEditor.setCaption(desk.path);
  norvik::install::FormRemoveFiles form;
  const int error =
      Desk::run([&] { norvik::install::listFigureFiles(desk.session, form.ListFiles); });
  Lines found = form.ListFiles.items();
  if (error != 0) found.push_back(std::to_string(error));
  requireEqual(found, plainUsed(desk.path, input.text), "the files of a figure");
  requireEqual(desk.host.bytesOf(desk.hostName), input.text, "the figure");
  return 0;
}
