#pragma once
// What the tools ask of whoever sits in front of them: a person at a window, or a script.

#include "front/colours.h"
#include "graphics/surface.h"
#include "text/file_error.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::graphics {

class Device3D;

}  // namespace norvik::graphics

namespace norvik::front {

class Form;
class PictureBox;
struct FinishedFile;

/// Message box styles: the buttons, to which an icon may be added.
enum Style : int {
  kOk = 0,
  kOkCancel = 1,
  kYesNoCancel = 3,
  kYesNo = 4,
  kCritical = 16,
  kQuestion = 32,
  kExclamation = 48,
  kInformation = 64,
};
/// The part of a style that says which buttons a box has.
constexpr int kButtonMask = 15;

enum class Answer { ok = 1, cancel = 2, yes = 6, no = 7 };

struct FileDialog {
  enum class Kind { open, save };
  Kind kind = Kind::open;
  std::string name{};  ///< of the dialog control
  std::string title{};
  std::string filter{};
  std::string folder{};  ///< the initial folder
  std::string file{};    ///< the proposed name
  std::string hint{};    ///< what a window adds to the title; may be empty
  /// A further button of a window, which answers with an empty path; empty: none.
  std::string instead{};
};

/// The outcome of a fetch over the network. `error` is 0 when the front end does not fetch at all.
struct Fetched {
  bool done = false;
  int error = 0;
  std::string description;
};

struct Screen {
  float width = 0;   ///< in twips
  float height = 0;  ///< in twips
};

/// Where the mouse pointer is on its screen, in pixels, and the colour there.
struct ScreenPoint {
  graphics::Point at;
  int screenWidth = 0;
  int screenHeight = 0;
  Colour colour = kBlack;
};

/// A part of the screen, in pixels.
struct ScreenPart {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// What became of a program that was to be waited for.
enum class ProgramRun {
  notStarted,    ///< nothing here can start it
  ended,         ///< it ended, or the operator waits no longer
  leftToCaller,  ///< this front end starts nothing; whoever asked does the work
};

/// Thrown by a front end whose operator is gone: a script without an answer to a box, a window that
/// closes while a tool waits. It ends the tool as a run-time error does, without a word; tools
/// never catch it.
class ToolStopped {};

/// The operations of a front end. All are called on the one thread that the tools run on, and
/// return when they are done. Paths are system paths.
class FrontEnd {
 public:
  virtual ~FrontEnd() = default;

  virtual Answer messageBox(std::string_view text, std::string_view title, int style) = 0;
  /// The chosen path, or nothing on a cancel.
  virtual std::optional<std::string> fileDialog(const FileDialog& dialog) = 0;
  virtual std::optional<Colour> colourDialog(Colour initial) = 0;
  /// Whether the operator wants to print.
  virtual bool printerDialog() = 0;
  /// Prints lines; the first `headingLines` of them are larger and bold.
  virtual void print(std::string_view font, const std::vector<std::string>& lines,
                     std::size_t headingLines) = 0;

  virtual void setHourglass(Form& form, bool on) = 0;
  virtual void beep() = 0;

  /// Lets queued events run.
  virtual void pumpEvents() = 0;
  /// Waits until the operator has done one thing; for tools that poll.
  virtual void waitForOperator() = 0;

  /// The 3D view of a picture; the same one for as long as the front end lives.
  virtual graphics::Device3D& device(PictureBox& picture) = 0;
  /// Between two frames of an animation: lets queued events run and keeps the pace. False when the
  /// animation has lost its operator and must end.
  virtual bool nextFrame() = 0;

  /// The picture that the bytes of a file hold; none if the front end knows no picture in them.
  virtual std::optional<graphics::Surface> decodePicture(std::string_view bytes) = 0;

  // The clipboard, of which the tools know no more than a picture.

  virtual bool clipboardHoldsPicture() const = 0;
  /// Empties the clipboard and puts a picture into it.
  virtual void copyPicture(const graphics::Surface& picture) = 0;
  virtual void clearClipboard() = 0;

  /// What the mouse pointer is at; nothing where no program may look at the screen.
  virtual std::optional<ScreenPoint> pointer() = 0;
  /// What a part of the pointer's screen shows, stretched to a size.
  virtual graphics::Surface enlarged(const ScreenPart& part, int width, int height) = 0;

  /// Shows a loaded form.
  virtual void show(Form& form) = 0;
  /// Shows a loaded form, calls back once it is on view, and returns when it has been unloaded.
  virtual void showModal(Form& form, const std::function<void()>& shown) = 0;
  virtual void unloaded(Form& form) = 0;
  /// Brings a form that is on view in front of the others.
  virtual void bringToFront(Form&) {}
  virtual Screen screen() const = 0;

  /// Draws the closing animation's tile with its corner at a place of the form, in pixels. False
  /// when there is nothing to draw on; then the animation takes no time.
  virtual bool drawTile(Form& form, int left, int top) = 0;
  /// The size of that tile, in pixels.
  virtual int tileWidth() const = 0;
  virtual int tileHeight() const = 0;

  /// Opens a document or page with a verb of the system's shell.
  virtual void openDocument(std::string_view verb, std::string_view target,
                            std::string_view folder) = 0;
  /// Starts a command line in a normal window.
  virtual void run(std::string_view commandLine) = 0;
  /// Starts a program, which is there, with arguments, and waits until it has ended.
  virtual ProgramRun runToEnd(std::string_view program,
                              const std::vector<std::string>& arguments) = 0;
  /// Puts a file into the system's waste bin; false, and nothing done, where there is none.
  virtual bool moveToWasteBin(std::string_view path) = 0;
  /// Plays a sound and does not wait for its end; a missing file plays nothing.
  virtual void playSound(std::string_view path) = 0;
  /// The operating system's own folder.
  virtual std::string systemFolder() const = 0;
  /// Fetches what stands at an address into a file.
  virtual Fetched fetch(std::string_view address, std::string_view path) = 0;

  /// The date and time of the moment, as it is written into notes.
  virtual std::string now() const = 0;

  /// A tool has made or saved a file. Nothing is asked and nothing is opened: a window may say so.
  virtual void tellOf(const FinishedFile& file) { static_cast<void>(file); }
  /// The text of a pass that goes on, which nobody waits to be read; empty when it has ended.
  virtual void showPassText(std::string_view text) { static_cast<void>(text); }
  /// Tells the operator that a tool was stopped by an error.
  virtual void runtimeError(const text::FileError& error) = 0;
  /// Called last of all: the process ends when the running handler has returned.
  virtual void endProcess() = 0;
};

}  // namespace norvik::front
