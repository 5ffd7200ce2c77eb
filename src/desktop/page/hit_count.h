#pragma once
// How often a text is found.

#include "text/long/long_text_search.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>

namespace norvik::desktop {

/// Counts the hits of a search a stretch at a time, so that keys go in between.
class HitCount : public QObject {
 public:
  /// `told` is called with the hits so far, and whether these are all.
  explicit HitCount(std::function<void(std::size_t, bool)> told);

  void begin(const text::LongText& content, text::TextSearch search);
  void stop();

 private:
  void goOn();

  std::function<void(std::size_t, bool)> told_;
  const text::LongText* content_ = nullptr;
  std::optional<text::TextSearch> search_;
  std::size_t next_ = 0;
  std::size_t hits_ = 0;
  QTimer pause_;
};

}  // namespace norvik::desktop
