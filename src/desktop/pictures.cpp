#include "desktop/pictures.h"

#include <algorithm>
#include <array>

namespace norvik::desktop {

namespace {

constexpr std::array kLooks = std::to_array<PictureLook>({
    {"LabelOpenSource", "source", "Open", "Open a source figure"},
    {"PictureCopyToDest", "copy", "Copy", "Copy the chosen morph into the destination"},
    {"PictureViewChannels", "channels", "Channels", "Show the channels of one body part"},
    {"PictureJoints", "joints", "Joints", "Transfer joint parameters"},
    {"PictureTrash", "trash", "Trash",
     "Arm the trash, then drag body parts or channels to it, or press Delete"},
    {"PictureEMC", "erc", "Remote", "Enhanced remote control"},
    {"PictureEditor", "editor", "Editor", "Manual editor"},
    {"PictureChangeRatio", "ratio", "Ratio", "Change the ratio of a remote control"},
    {"PictureRenameMorph", "rename", "Rename", "Rename a morph or a body part"},
    {"PictureOBJView", "view", "View", "View the geometry"},
    {"PictureOBJExtract", "extract", "Extract", "Export the geometry that this file holds"},
    {"PictureScaleObj", "scale", "Scale", "Scale the mesh"},
    {"PictureMash", "mash", "Condense", "Condense the mesh or a morph"},
    {"PictureMirror", "mirror", "Mirror", "Copy a morph to the other side"},
    {"PictureMapViewer", "maps", "Maps", "View the maps"},
    {"PictureInstallCR2", "install", "Install", "Install the listed files"},
    {"PictureCR2InstallCancel", "cancel", "Cancel", "Leave the installer"},
    {"PicturePrintCR2Files", "print", "Print", "Print the list of files"},
    {"PictureFind", "find", "Find", "Find text (Ctrl+F), F3 again"},
    {"PictureReplace", "replace", "Replace", "Find and replace text (Ctrl+H)"},
    {"PictureSave", "save", "Save", "Save each pane that was changed (Ctrl+S)"},
    {"PicturePrint", "print", "Print", "Print the selection, or all of the file"},
    {"PictureSecFile", "second_file", "Second", "Open a second file beside the first"},
    {"PictureChannelReorderDone", "done", "Done", "Write the channels in their new order"},
    {"PictureBrktsOK", "brackets_ok", "The brackets match", "Click to go on"},
    {"PictureBrktLeft", "bracket_left", "A left bracket is missing", "Click to go on"},
    {"PictureBrktRight", "bracket_right", "A right bracket is missing", "Click to go on"},
    {"PicturePushPin", "pin", "Click to go on", "Click the picture to go on"},
    {"PictureObjViewer2", "", "3D view", "The mesh in 3D"},
    {"PictureOBJViewer", "", "View", "The mesh"},
    {"PictureNoDX", "", "Plain view", "The mesh from the front, drawn without 3D"},
    {"PictureStore", "", "Front", "The mesh from the front"},
    {"PictureStore2", "", "Side", "The mesh from the side"},
    {"PictureStore3", "", "Top", "The mesh from above"},
    {"PictureUVMap", "", "Template", "The texture template"},
    {"PictureSecMap", "", "Second template", "The secondary texture template"},
    {"PictureZoom", "", "Drawing", "The white window"},
    {"PictureAddObjFront", "", "Second mesh, front", "The second mesh from the front"},
    {"PictureAddObjSide", "", "Second mesh, side", "The second mesh from the side"},
    {"PictureAddObjTop", "", "Second mesh, top", "The second mesh from above"},
    {"LabelView", "view", "View", "Read the mesh and draw it"},
    {"PictureNewFile", "new_mesh", "New", "Drop this mesh and choose another one"},
    {"LabelMirror", "mirror", "Mirror", "Mirror the mesh"},
    {"PictureAddOBJ", "add_mesh", "Add", "Show a second mesh beside this one"},
    {"PictureMerge", "merge", "Merge", "Make one mesh of both"},
    {"PictureLop", "lop", "Lop", "Cut away what a box holds"},
    {"PicturePhiLopper", "branch", "Branch", "Cut away a part and all below it"},
    {"PictureMagGlass", "lens", "Magnify", "Magnify the view"},
    {"LabelMakeUV", "uv_make", "Make UV", "Make texture coordinates"},
    {"LabelUVMap", "uv_map", "UV Map", "Draw the texture template"},
    {"LabelSecMap", "uv_second", "Secondary", "Draw the secondary template"},
    {"LabelSaveMap", "uv_save", "Save Map", "Save the template as a picture"},
    {"LabelViewCR2TexMap", "maps", "View Map", "Show the texture map of the figure"},
    {"LabelApplyMap", "uv_apply", "Apply Map", "Apply the texture map"},
    {"LabelHotKeys", "keys", "Hot Keys", "List the keys of the views"},
    {"LabelPlay", "play", "PLAY", "Draw by hand"},
    {"LabelBoss", "boss", "Boss Button", "Cover the work"},
    {"PictureMatColor", "", "Colour", "Colour of the chosen material: double-click to change it"},
    {"PictureMatHiLite", "", "Highlight",
     "Highlight of the chosen material: double-click to change it"},
});

}  // namespace

const PictureLook* lookOf(std::string_view control) {
  const auto* const found = std::find_if(kLooks.begin(), kLooks.end(),
                                         [&](const auto& look) { return look.control == control; });
  return found == kLooks.end() ? nullptr : found;
}

}  // namespace norvik::desktop
