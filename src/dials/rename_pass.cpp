#include "dials/rename_pass.h"

#include "text/rewrite_pass.h"

namespace norvik::dials {

void renameFile(text::Disk& disk, const std::string& path, Direction direction) {
  text::keepApart(disk, path, kScratch);
  if (disk.exists(kScratch)) disk.remove(kScratch);
  text::RewritePass pass(disk, path, kScratch);
  const text::LineFilter filter{text::anywhere(tokenOf(direction))};
  for (;;) {
    pass.copyLines(filter);
    if (pass.in().atEnd()) break;
    const std::string_view line = pass.in().line();
    const auto renamed = renamedLine(direction, line);
    pass.out().line(renamed ? std::string_view{*renamed} : line);
  }
  pass.finish();
  disk.replace(kScratch, path);
}

Preview previewOf(const text::Disk& disk, const std::string& path, Direction direction,
                  std::size_t most) {
  Preview preview;
  text::LineReader in(disk, path);
  const text::LineFilter filter{text::anywhere(tokenOf(direction))};
  for (std::uint64_t number = 1;; ++number) {
    number += in.skipLines(filter);
    if (in.atEnd()) return preview;
    const std::string_view line = in.line();
    auto renamed = renamedLine(direction, line);
    if (!renamed || *renamed == line) continue;
    ++preview.changes;
    if (preview.first.size() >= most) continue;
    preview.first.push_back({number, std::string{line}, std::move(*renamed)});
  }
}

}  // namespace norvik::dials
