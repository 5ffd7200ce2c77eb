#pragma once
// What was done to the lines of a list, so that it can be undone.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::builders {

/// The edits of an opened phi file in their order. An edit that is undone is forgotten with the
/// next one that is made.
class LineEdits {
 public:
  /// A line that became another.
  struct Edit {
    int index = 0;
    std::string before;
    std::string after;
  };

  void add(Edit edit);
  void clear();

  bool canUndo() const { return done_ > 0; }
  bool canRedo() const { return done_ < edits_.size(); }
  /// The edit that is to be taken back, or made again; none if there is none.
  std::optional<Edit> undo();
  std::optional<Edit> redo();

  /// The lines as they are now are those of the file.
  void markSaved() { saved_ = done_; }
  bool unsaved() const { return saved_ != done_; }

 private:
  std::vector<Edit> edits_;
  std::size_t done_ = 0;                  ///< how many of them show
  std::optional<std::size_t> saved_ = 0;  ///< how many showed then; none if those are forgotten
};

}  // namespace norvik::builders
