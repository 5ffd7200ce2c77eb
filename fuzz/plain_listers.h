#pragma once
// The listers in their plainest form: read after read, no line passed over.

#include <functional>
#include <string>
#include <vector>

namespace norvik::fuzz {

/// What a lister leaves. Those that it does not fill stay empty.
struct Listing {
  int error = 0;  ///< that ended it; 0 for none
  std::vector<std::string> boxes = {};
  std::vector<std::string> list = {};    ///< actors, props, materials or textures
  std::vector<std::string> second = {};  ///< the materials' colours
  std::vector<std::string> third = {};   ///< the materials' highlights
  std::string obj = {};                  ///< TextMainOBJ
  std::string objFile = {};              ///< LabelOBJFileName
  bool embedded = false;                 ///< PictureOBJExtract shows
  std::vector<std::string> maps = {};    ///< texture, transparency, reflection, bump
};

/// Each takes the figure's extension and text.
Listing plainActors(const std::string& extension, const std::string& text);
Listing plainMaterials(const std::string& extension, const std::string& text);
Listing plainMaps(const std::string& extension, const std::string& text);

/// `enter` changes the current folder and returns the number of the error, 0 for none.
using Enter = std::function<int(const std::string& folder)>;
Listing plainPaths(const std::string& text, const Enter& enter);
Listing plainPropPaths(const std::string& text, const Enter& enter);

}  // namespace norvik::fuzz
