#pragma once
// The front end with a window.

#include "desktop/asker.h"
#include "desktop/dispatcher.h"
#include "desktop/gl/gl_device.h"
#include "desktop/pacer.h"
#include "desktop/pass_stop.h"
#include "desktop/sound.h"
#include "front/front_end.h"
#include "front/further_ways.h"
#include "front/repeated_question.h"
#include "front/stoppable_pass.h"
#include "text/disk.h"

#include <QElapsedTimer>

#include <map>
#include <memory>
#include <optional>
#include <string>

namespace norvik::desktop {

/// The windows of the program, as the front end needs them.
class Stage {
 public:
  virtual ~Stage() = default;
  virtual void show(front::Form& form, bool modal) = 0;
  virtual void close(front::Form& form) = 0;
  virtual void setBusy(bool busy) = 0;
  /// Draws the closing tile at a place of the main form's own pixels; false when the operator has
  /// seen enough.
  virtual bool drawTile(int left, int top) = 0;
};

class DesktopFrontEnd : public front::FrontEnd,
                        public front::FurtherWaysOffer,
                        public front::RepeatedQuestions,
                        public front::PassStopper {
 public:
  DesktopFrontEnd(Dispatcher& dispatcher, Asker& asker, text::Disk& disk);
  ~DesktopFrontEnd() override;

  void setStage(Stage& stage) { stage_ = &stage; }

  /// Who says what a tool has left behind.
  using ResultListener = std::function<void(const front::FinishedFile& file)>;
  void setResultListener(ResultListener listener) { tellOfResult_ = std::move(listener); }
  /// Who shows the text of a pass.
  using PassTextListener = std::function<void(std::string_view text)>;
  void setPassTextListener(PassTextListener listener) { showPassText_ = std::move(listener); }

  /// Who shows the guide where the program's own page of help is asked for; false if it cannot.
  void setGuide(std::function<bool()> guide) { showGuide_ = std::move(guide); }

  /// Does what ends in an open dialog, and answers the dialog with a path: a file that is dropped
  /// on the window takes the way of a chosen one.
  void withChosen(const std::string& path, const std::function<void()>& act);

  /// The 3D view of a picture, for the widget that paints it.
  GlDevice& glDevice(front::PictureBox& picture);

  /// Ends the waiting of a tool that polls, or an animation; it stops there. For a window that
  /// closes.
  void stopWaiting() { stopped_ = true; }
  bool waiting() const { return waiting_; }

  /// Ends a pass that the operator has enough of.
  PassStop& passStop() { return passStop_; }

  front::Answer messageBox(std::string_view text, std::string_view title, int style) override;
  void beginRepeats(std::string_view title) override;
  void endRepeats() override;
  void beginPass() override;
  void checkPass() override { passStop_.check(); }
  void endPass() override;
  std::optional<std::size_t> offer(const front::FurtherWays& offered) override;
  std::optional<std::string> fileDialog(const front::FileDialog& dialog) override;
  std::optional<front::Colour> colourDialog(front::Colour initial) override;
  bool printerDialog() override;
  void print(std::string_view font, const std::vector<std::string>& lines,
             std::size_t headingLines) override;
  void setHourglass(front::Form& form, bool on) override;
  void beep() override;
  void pumpEvents() override;
  void waitForOperator() override;
  graphics::Device3D& device(front::PictureBox& picture) override { return glDevice(picture); }
  bool nextFrame() override;
  std::optional<graphics::Surface> decodePicture(std::string_view bytes) override;
  bool clipboardHoldsPicture() const override;
  void copyPicture(const graphics::Surface& picture) override;
  void clearClipboard() override;
  std::optional<front::ScreenPoint> pointer() override;
  graphics::Surface enlarged(const front::ScreenPart& part, int width, int height) override;
  void show(front::Form& form) override;
  void showModal(front::Form& form, const std::function<void()>& shown) override;
  void unloaded(front::Form& form) override;
  void bringToFront(front::Form& form) override;
  front::Screen screen() const override;
  bool drawTile(front::Form& form, int left, int top) override;
  int tileWidth() const override { return kTile; }
  int tileHeight() const override { return kTile; }
  void openDocument(std::string_view verb, std::string_view target,
                    std::string_view folder) override;
  void run(std::string_view commandLine) override;
  front::ProgramRun runToEnd(std::string_view program,
                             const std::vector<std::string>& arguments) override;
  bool moveToWasteBin(std::string_view path) override;
  void playSound(std::string_view path) override;
  std::string systemFolder() const override { return "C:\\WINDOWS"; }
  front::Fetched fetch(std::string_view address, std::string_view path) override;
  std::string now() const override;
  void tellOf(const front::FinishedFile& file) override;
  void showPassText(std::string_view text) override;
  void runtimeError(const text::FileError& error) override;
  void endProcess() override;

 private:
  static constexpr int kTile = 64;

  std::optional<ComparedFiles> changesOnOffer(int style) const;
  void showHourglass(bool on);
  QString hostFolder(const std::string& folder) const;
  front::Answer repeatedBox(const Asker::Box& box);
  QString proposedName(const std::string& file) const;
  QPrinter& printer();

  Dispatcher& dispatcher_;
  Asker& asker_;
  text::Disk& disk_;
  Stage* stage_ = nullptr;
  ResultListener tellOfResult_;
  PassTextListener showPassText_;
  std::function<bool()> showGuide_;
  Sound sound_;
  std::unique_ptr<QPrinter> printer_;
  std::optional<std::string> chosen_;
  std::map<const front::PictureBox*, std::unique_ptr<GlDevice>> devices_;
  Pacer pacer_;
  QElapsedTimer sincePump_;
  qint64 quiet_ = 0;                     ///< nanoseconds to the next pump that is worth it
  std::optional<std::string> repeated_;  ///< the title of the boxes that may come again
  bool okForAll_ = false;
  PassStop passStop_;
  bool hourglass_ = false;
  bool hourglassBehind_ = false;  ///< the pass that runs
  bool waiting_ = false;
  bool stopped_ = false;
  bool ended_ = false;
};

/// A dialog's filter, "Figures|*.cr2;*.pz3", in the window's form.
QString windowFilter(std::string_view filter);

}  // namespace norvik::desktop
