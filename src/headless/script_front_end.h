#pragma once
// The front end without a window: a script answers, and every question and act comes out as an
// event.

#include "front/front_end.h"
#include "front/session.h"
#include "headless/answers.h"
#include "headless/outcome.h"
#include "headless/remembering_device.h"
#include "headless/transcript.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace norvik::headless {

/// Message boxes of one button answer themselves; all else takes what the script has queued. A
/// question that finds nothing queued stops its tool and is remembered in the outcome.
class ScriptFrontEnd : public front::FrontEnd {
 public:
  struct Options {
    float screenWidth = 1024;  ///< pixels
    float screenHeight = 768;
    std::string clock;  ///< a fixed time as it is written into notes; empty for the real one
  };

  ScriptFrontEnd(Transcript& transcript, Outcome& outcome, Options options)
      : transcript_(transcript), outcome_(outcome), options_(std::move(options)) {}

  /// Where the front end gets the operator's next act from while a handler waits: runs one command,
  /// false at the script's end.
  void setStep(std::function<bool()> step) { step_ = std::move(step); }
  void setUnload(std::function<void(front::Form&)> unload) { unload_ = std::move(unload); }

  Answers& answers() { return answers_; }
  const std::string& lastBox() const { return lastBox_; }
  bool ended() const { return ended_; }
  /// The modal form that is on top; null if there is none.
  front::Form* modalForm() const { return modals_.empty() ? nullptr : modals_.back(); }
  int frames() const { return frames_; }
  void setFrames(int frames) { frames_ = frames; }
  /// The 3D view of a picture, with what it remembers.
  RememberingDevice& rememberingDevice(front::PictureBox& picture);

  front::Answer messageBox(std::string_view text, std::string_view title, int style) override;
  std::optional<std::string> fileDialog(const front::FileDialog& dialog) override;
  std::optional<front::Colour> colourDialog(front::Colour initial) override;
  bool printerDialog() override;
  void print(std::string_view font, const std::vector<std::string>& lines,
             std::size_t headingLines) override;
  void setHourglass(front::Form&, bool) override {}
  void beep() override;
  void pumpEvents() override {}
  void waitForOperator() override;
  graphics::Device3D& device(front::PictureBox& picture) override {
    return rememberingDevice(picture);
  }
  bool nextFrame() override;
  std::optional<graphics::Surface> decodePicture(std::string_view bytes) override;
  bool clipboardHoldsPicture() const override { return pictureCopied_; }
  void copyPicture(const graphics::Surface&) override { pictureCopied_ = true; }
  void clearClipboard() override { pictureCopied_ = false; }
  std::optional<front::ScreenPoint> pointer() override { return std::nullopt; }
  graphics::Surface enlarged(const front::ScreenPart&, int width, int height) override {
    return {width, height};
  }
  void show(front::Form& form) override;
  void showModal(front::Form& form, const std::function<void()>& shown) override;
  void unloaded(front::Form& form) override;
  front::Screen screen() const override;
  bool drawTile(front::Form&, int, int) override { return false; }
  int tileWidth() const override { return kTile; }
  int tileHeight() const override { return kTile; }
  void openDocument(std::string_view verb, std::string_view target,
                    std::string_view folder) override;
  void run(std::string_view commandLine) override;
  front::ProgramRun runToEnd(std::string_view program,
                             const std::vector<std::string>& arguments) override;
  bool moveToWasteBin(std::string_view) override { return false; }
  void playSound(std::string_view path) override;
  std::string systemFolder() const override { return "C:\\WINDOWS"; }
  front::Fetched fetch(std::string_view address, std::string_view path) override;
  std::string now() const override;
  void runtimeError(const text::FileError& error) override;
  void endProcess() override;

 private:
  static constexpr int kTile = 64;

  void printForm(const front::Form& form, std::string_view state);
  [[noreturn]] void stopUnanswered();

  Transcript& transcript_;
  Outcome& outcome_;
  Options options_;
  Answers answers_;
  std::function<bool()> step_;
  std::function<void(front::Form&)> unload_;
  std::vector<front::Form*> modals_;
  std::string lastBox_;
  std::map<front::PictureBox*, std::unique_ptr<RememberingDevice>> devices_;
  int frames_ = 1;
  int drawn_ = 0;               ///< frames since the last command
  bool pictureCopied_ = false;  ///< the clipboard is the runner's own, empty at the start
  bool ended_ = false;
};

}  // namespace norvik::headless
