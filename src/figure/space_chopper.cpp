#include "figure/space_chopper.h"

#include "text/copy_bytes.h"
#include "text/line_scan.h"
#include "text/rewrite_pass.h"

#include <vector>

namespace norvik::figure {

namespace {

constexpr std::string_view kScratch = "Chop.doc";

/// Takes a leading blank from each line of a block. Figures have such blanks in every line or
/// hardly any, so blocks without one stay as they are, and of the others what stands between two
/// blanks is copied.
class LeadingBlanks {
 public:
  /// The lines without the blanks, good until the next call.
  std::string_view removedFrom(std::string_view lines) {
    kept_.resize(lines.size() + 1);
    rest_ = lines;
    size_ = 0;
    std::size_t at = 0;
    bool lineStart = true;
    for (; at + text::ByteChunk::kSize <= lines.size(); at += text::ByteChunk::kSize) {
      const text::ByteChunk chunk(lines.data() + at);
      const std::uint64_t ends = chunk.matching('\r', '\n');
      std::uint64_t blanks = chunk.matching(' ') & (ends << 1U | (lineStart ? 1U : 0U));
      lineStart = text::isLineEnd(lines[at + text::ByteChunk::kSize - 1]);
      for (; blanks != 0; blanks &= blanks - 1) {
        leaveOut(lines.data() + at + text::firstOf(blanks));
      }
    }
    for (; at < lines.size(); ++at) {
      if (lineStart && lines[at] == ' ') leaveOut(lines.data() + at);
      lineStart = text::isLineEnd(lines[at]);
    }
    if (size_ == 0 && rest_.size() == lines.size()) return lines;
    keep(rest_.size());
    // A blank that was all of an unfinished last line leaves an empty line, not none.
    if (!text::isLineEnd(lines.back())) kept_[size_++] = '\n';
    return {kept_.data(), size_};
  }

 private:
  void leaveOut(const char* blank) {
    keep(static_cast<std::size_t>(blank - rest_.data()));
    rest_.remove_prefix(1);
    // A lone CR must not make one line end with an LF that the blank stood in front of.
    if (size_ > 0 && kept_[size_ - 1] == '\r') kept_[size_++] = '\n';
  }
  void keep(std::size_t count) {
    text::copyBytes(rest_.substr(0, count), kept_.data() + size_);
    rest_.remove_prefix(count);
    size_ += count;
  }

  std::vector<char> kept_;
  std::size_t size_ = 0;
  std::string_view rest_;  ///< of the lines, behind the last blank that was left out
};

}  // namespace

void SpaceChopper(front::Session& session, const std::string& path) {
  text::RewritePass pass(session.disk, path, kScratch);
  LeadingBlanks blanks;
  pass.in().handOnLines({}, [&](std::string_view lines) {
    // As most blocks are of a figure that needs this in a few lines: one look, and through.
    if (lines.ends_with('\n') && text::hasPlainLines(lines)) return pass.out().bytes(lines);
    pass.out().lines(blanks.removedFrom(lines));
  });
  pass.finish();
  session.disk.replace(kScratch, path);
}

}  // namespace norvik::figure
