#include "front/help_boxes.h"

#include <array>

namespace norvik::front {

namespace {

constexpr std::array kHelpBoxes = std::to_array<HelpBox>({
    {"LabelOpenSource", "Information", "Click this button to open a source file."},
    {"PictureCopyToDest", "Information",
     "Click this to copy a morph from the source to destination file."},
    {"PictureEditor", "Information", "Click this for the Manual Editor"},
    {"PictureEMC", "Information", "Click this to work with Enhanced Remote Control Morphs."},
    {"PictureChangeRatio", "Information",
     "Click this to change the control ratio for an ERC morph."},
    {"PictureInstallCR2", "Information", "Click this to install the files referred to in the CR2."},
    {"PictureCR2InstallCancel", "Information", "Click here to cancel installing the CR2."},
    {"PictureJoints", "Information", "Click this button to enable transfering joint parameters."},
    {"PictureMapViewer", "Info", "Click this to view a map."},
    {"PictureMash", "Information",
     "Click this button to condense the OBJ file by removing the VN lines, or a morph by removing "
     "all but the V lines.  Click this icon again when you have chosen."},
    {"PictureMirror", "Info",
     "Left click this to enable morph copying.  Choose a body part to show its morphs, then click "
     "the Channel Icon, then doubleclick the morph you want to copy."},
    {"PictureOBJExtract", "Information",
     "Click this to export the geometry embedded in this file, as a new OBJ file."},
    {"PictureOBJView", "Information",
     "Click this button to view the geometry of the model in the main OBJ file."},
    {"PicturePrintCR2Files", "Information", "Click this to print the list of files."},
    {"PictureRenameMorph", "Information", "Click this to rename a morph channel or body part."},
    {"PictureScaleObj", "Information", "Click this button to scale the OBJ."},
    {"PictureTrash", "Information", "Click this button and then drag things to it."},
    {"PictureViewChannels", "Information",
     "Click this button to view channels for a body part and enable re-naming and copying them."},
    {"PictureMatColor", "Note!",
     "Choose a material and doubleclick here to change the material color."},
    {"PictureMatHiLite", "Note!",
     "Choose a material and doubleclick here to change the material highlight color."},
    {"TextOpeningNotes", "Info", "Doubleclick to hide this notepad."},
});

}  // namespace

void hangHelpBoxes(Session& session, Form& form, std::span<const HelpBox> boxes) {
  for (const HelpBox& box : boxes) {
    form.find(box.control)->released.add([&session, &box](Mouse mouse) {
      if (mouse.button == MouseButton::right) session.front.messageBox(box.text, box.title, kOk);
    });
  }
}

void wireHelpBoxes(Session& session) {
  hangHelpBoxes(session, session.opening, kHelpBoxes);
}

}  // namespace norvik::front
