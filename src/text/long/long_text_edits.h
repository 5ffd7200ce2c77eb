#pragma once
// Undo and redo of a text of any size.

#include "text/long/long_text.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace norvik::text {

/// Makes the edits of a text and can take them back, step by step. Keys that follow one another at
/// one place are one step. What an edit took out is kept as it was, so that a whole text of 100 MB
/// that another one has replaced costs no copy; the oldest steps are forgotten when what is kept
/// grows beyond `kMostKept` bytes.
class LongTextEdits {
 public:
  static constexpr std::size_t kMostKept = std::size_t{512} * 1024 * 1024;
  static constexpr std::size_t kMostSteps = 100'000;

  explicit LongTextEdits(LongText& text) : text_(text) {}

  /// Puts a text in the place of `length` bytes. With `typed` it joins the step before it if it
  /// goes on where that one ended.
  void replace(std::size_t at, std::size_t length, std::string_view bytes, bool typed = false);
  /// Puts another text in the place of the whole one.
  void setAll(LongText text);
  /// The next edit begins a step of its own.
  void endStep() { open_ = false; }
  /// Forgets all steps.
  void forget();

  bool canUndo() const { return done_ > 0; }
  bool canRedo() const { return done_ < steps_.size(); }
  /// What changed, as the bytes that stand there now.
  struct Change {
    std::size_t at;
    std::size_t length;
  };
  std::optional<Change> undo();
  std::optional<Change> redo();

 private:
  /// `kept` comes in the place of `length` bytes when the step is taken back or done again.
  struct Step {
    std::size_t at = 0;
    std::size_t length = 0;
    LongText kept;
  };

  bool joins(std::size_t at, std::size_t length, std::size_t inserted);
  void add(Step step);
  Change turn(Step& step);

  LongText& text_;
  std::vector<Step> steps_;
  std::size_t done_ = 0;  ///< of the steps; those behind it were taken back
  std::size_t kept_ = 0;  ///< bytes in all steps
  bool open_ = false;
};

}  // namespace norvik::text
