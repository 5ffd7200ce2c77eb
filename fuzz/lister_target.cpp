// Each lister against its steps, read by read. Steering: EXTENSION|READ SIZE.

#include "desk.h"
#include "figure/actor_lister.h"
#include "figure/map_lister.h"
#include "figure/material_lister.h"
#include "figure/path_lister.h"
#include "input.h"
#include "plain_listers.h"

namespace {

using norvik::fuzz::Desk;
using norvik::fuzz::Input;
using norvik::fuzz::Listing;
using norvik::fuzz::require;
using norvik::fuzz::requireEqual;

struct Case {
  std::string extension;
  std::size_t readSize;
  std::string text;
};

using Lister = std::function<void(norvik::front::Session&, const std::string&)>;
using Take = std::function<void(const norvik::front::Opening&, Listing&)>;

/// What a lister leaves on a desk of its own.
Listing found(const Case& given, const Lister& lister, const Take& take) {
  Desk desk(given.extension, given.text);
  desk.host.limitReads(given.readSize);
  Listing listing;
  listing.error = Desk::run([&] { lister(desk.session, desk.path); });
  listing.boxes = desk.front.boxes();
  take(desk.opening, listing);
  requireEqual(desk.host.bytesOf(desk.hostName), given.text, "the figure");
  return listing;
}

void compare(const Listing& found, const Listing& wanted, const std::string& lister) {
  require(found.error == wanted.error, lister + ": the error");
  requireEqual(found.boxes, wanted.boxes, lister + ": the boxes");
  requireEqual(found.list, wanted.list, lister + ": the list");
  requireEqual(found.second, wanted.second, lister + ": the second list");
  requireEqual(found.third, wanted.third, lister + ": the third list");
  requireEqual(found.obj, wanted.obj, lister + ": TextMainOBJ");
  requireEqual(found.objFile, wanted.objFile, lister + ": LabelOBJFileName");
  require(found.embedded == wanted.embedded, lister + ": PictureOBJExtract");
  requireEqual(found.maps, wanted.maps, lister + ": the maps");
}

void takePaths(const norvik::front::Opening& opening, Listing& listing) {
  listing.list = opening.ListPropObj.items();
  listing.obj = opening.TextMainOBJ.text();
  listing.objFile = opening.LabelOBJFileName.caption();
  listing.embedded = opening.PictureOBJExtract.visible();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using norvik::front::Opening;
  namespace figure = norvik::figure;
  const Input input(data, size);
  const auto pieces = input.pieces(2);
  static const std::vector<std::string> extensions{"cr2", "fc2", "pz2", "pz3", "hr2", "pp2"};
  std::string extension = "cr2";
  for (const std::string& known : extensions) {
    if (pieces[0] == known) extension = known;
  }
  const Case given{extension, norvik::fuzz::numberIn(pieces[1], 1, 4096), input.text};

  compare(found(given, figure::ListTheActors,
                [](const Opening& opening, Listing& listing) {
                  listing.list = opening.ListActors.items();
                }),
          norvik::fuzz::plainActors(extension, input.text), "ListTheActors");
  compare(found(given, figure::MatLister,
                [](const Opening& opening, Listing& listing) {
                  listing.list = opening.ListMaterials.items();
                  listing.second = opening.ListMATColors.items();
                  listing.third = opening.ListMatHiLite.items();
                }),
          norvik::fuzz::plainMaterials(extension, input.text), "MatLister");

  Listing maps = norvik::fuzz::plainMaps(extension, input.text);
  if (maps.error != 0) maps.maps = {"", "", "", ""};
  compare(found(given, figure::FindMapLocs,
                [](const Opening& opening, Listing& listing) {
                  listing.list = opening.ListAllTexMaps.items();
                  listing.maps = {opening.TextMainTex.text(), opening.TextMainTrans.text(),
                                  opening.TextMainReflect.text(), opening.TextMainBump.text()};
                }),
          maps, "FindMapLocs");

  Desk folders("cr2", "");
  const norvik::fuzz::Enter enter = [&](const std::string& folder) {
    return Desk::run([&] { folders.disk.changeFolder(folder); });
  };
  const bool prop = extension == "hr2" || extension == "pp2";
  compare(found(given, prop ? figure::OpenHR2 : figure::OpenCR2, takePaths),
          prop ? norvik::fuzz::plainPropPaths(input.text, enter)
               : norvik::fuzz::plainPaths(input.text, enter),
          prop ? "OpenHR2" : "OpenCR2");
  return 0;
}
