#include "desktop/page/hit_count.h"

#include <algorithm>

namespace norvik::desktop {

HitCount::HitCount(std::function<void(std::size_t, bool)> told) : told_(std::move(told)) {
  pause_.setSingleShot(true);
  connect(&pause_, &QTimer::timeout, this, [this] { goOn(); });
}

void HitCount::begin(const text::LongText& content, text::TextSearch search) {
  content_ = &content;
  search_ = std::move(search);
  next_ = 0;
  hits_ = 0;
  // Keys that follow one another are waited for.
  constexpr int kQuiet = 150;  // milliseconds
  pause_.start(kQuiet);
}

void HitCount::stop() {
  pause_.stop();
  search_.reset();
}

void HitCount::goOn() {
  if (!search_) return;
  constexpr std::size_t kStretch = std::size_t{4} << 20U;
  const std::size_t limit = std::min(next_ + kStretch, content_->size());
  std::size_t behind = limit;
  search_->visit(*content_, next_, limit, [&](std::size_t hit) {
    ++hits_;
    behind = std::max(limit, hit + search_->size());
    return true;
  });
  next_ = behind;
  const bool all = limit >= content_->size();
  told_(hits_, all);
  if (!all) pause_.start(0);
}

}  // namespace norvik::desktop
