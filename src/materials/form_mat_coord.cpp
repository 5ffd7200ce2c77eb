#include "materials/form_mat_coord.h"

namespace norvik::materials {

namespace {

constexpr float kFormWidth = 9600;  // twips
constexpr float kFormHeight = 6300;

}  // namespace

FormMatCoord::FormMatCoord() : Form("FormMatCoord", "Material Coordinator") {
  setBox({0, 0, kFormWidth, kFormHeight});
  LabelCR2Mat.setBox({8, 8, 200, 16});
  ListCR2Mat.setBox({8, 28, 200, 380});
  LabelMatsNotInCR2.setBox({216, 8, 200, 16});
  ListMatsNotInCR2.setBox({216, 28, 200, 380});
  LabelOBJMat.setBox({424, 8, 200, 16});
  ListOBJMat.setBox({424, 28, 200, 380});
  ListMatsNotInCR2.hide();
  unloading.add([this] {
    clearLists();
    ListMatsNotInCR2.hide();
  });
  static_cast<void>(takeChanges());
}

void FormMatCoord::clearLists() {
  ListCR2Mat.clear();
  ListMatsNotInCR2.clear();
  ListOBJMat.clear();
}

}  // namespace norvik::materials
