#include "text/rewrite_pass.h"

#include "text/line_copy.h"

namespace norvik::text {

namespace {

std::string_view cleared(Disk& disk, std::string_view figure, std::string_view scratch) {
  keepApart(disk, figure, scratch);
  ignoringErrors([&] { disk.remove(scratch); });
  return scratch;
}

}  // namespace

void keepApart(const Disk& disk, std::string_view source, std::string_view scratch) {
  if (disk.isSameFile(source, scratch)) {
    throw FileError(ErrorNumber::fileAlreadyOpen, scratch, FileAct::writing);
  }
}

RewritePass::RewritePass(Disk& disk, std::string_view figure, std::string_view scratch)
    : out_(disk, cleared(disk, figure, scratch)), in_(disk, figure) {}

void RewritePass::copyLines(const LineFilter& filter) {
  text::copyLines(in_, out_, filter);
}

void RewritePass::copyRest() {
  text::copyRest(in_, out_);
}

void RewritePass::finish() {
  out_.close();
}

}  // namespace norvik::text
