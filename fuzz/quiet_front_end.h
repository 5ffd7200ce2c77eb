#pragma once
// A front end that nobody sits in front of.

#include "front/front_end.h"
#include "graphics/bmp_reader.h"
#include "headless/remembering_device.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace norvik::fuzz {

/// Answers every box alike, cancels every dialog, and remembers what the boxes said.
class QuietFrontEnd final : public front::FrontEnd {
 public:
  void answerWith(front::Answer answer) { answer_ = answer; }
  void setScreen(front::Screen screen) { screen_ = screen; }
  /// What the operator does while a tool waits for him; without it he has gone.
  void whenWaiting(std::function<void()> step) { step_ = std::move(step); }
  const std::vector<std::string>& boxes() const { return boxes_; }

  front::Answer messageBox(std::string_view text, std::string_view, int style) override {
    boxes_.emplace_back(text);
    return (style & front::kButtonMask) == front::kOk ? front::Answer::ok : answer_;
  }
  std::optional<std::string> fileDialog(const front::FileDialog&) override { return {}; }
  std::optional<front::Colour> colourDialog(front::Colour) override { return {}; }
  bool printerDialog() override { return false; }
  void print(std::string_view, const std::vector<std::string>&, std::size_t) override {}
  void setHourglass(front::Form&, bool) override {}
  void beep() override {}
  void pumpEvents() override {}
  void waitForOperator() override {
    if (!step_) throw front::ToolStopped{};
    step_();
  }
  graphics::Device3D& device(front::PictureBox& picture) override {
    return devices_.try_emplace(&picture, picture).first->second;
  }
  bool nextFrame() override { return false; }
  std::optional<graphics::Surface> decodePicture(std::string_view bytes) override {
    return graphics::bmpSurface(bytes);
  }
  bool clipboardHoldsPicture() const override { return false; }
  void copyPicture(const graphics::Surface&) override {}
  void clearClipboard() override {}
  std::optional<front::ScreenPoint> pointer() override { return {}; }
  graphics::Surface enlarged(const front::ScreenPart&, int width, int height) override {
    return {width, height};
  }
  void show(front::Form&) override {}
  void showModal(front::Form&, const std::function<void()>& shown) override { shown(); }
  void unloaded(front::Form&) override {}
  front::Screen screen() const override { return screen_; }
  bool drawTile(front::Form&, int, int) override { return false; }
  int tileWidth() const override { return 1; }
  int tileHeight() const override { return 1; }
  void openDocument(std::string_view, std::string_view, std::string_view) override {}
  void run(std::string_view) override {}
  front::ProgramRun runToEnd(std::string_view, const std::vector<std::string>&) override {
    return front::ProgramRun::leftToCaller;
  }
  bool moveToWasteBin(std::string_view) override { return false; }
  void playSound(std::string_view) override {}
  std::string systemFolder() const override { return "C:\\WINDOWS"; }
  front::Fetched fetch(std::string_view, std::string_view) override { return {}; }
  std::string now() const override { return "2002-03-04 05:06:07"; }
  void runtimeError(const text::FileError&) override {}
  void endProcess() override {}

 private:
  front::Answer answer_ = front::Answer::ok;
  front::Screen screen_;
  std::vector<std::string> boxes_;
  std::function<void()> step_;
  std::map<front::PictureBox*, headless::RememberingDevice> devices_;
};

}  // namespace norvik::fuzz
