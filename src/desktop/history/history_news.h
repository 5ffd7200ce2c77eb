#pragma once
// Where a window tells what was replaced.

class QWidget;

namespace norvik::desktop {

class LinkLine;

inline constexpr const char* kHistoryNews = "HistoryNews";

/// The place for the news in a status bar. It is empty at first; HistoryTools finds it by its name
/// in any window that the main one owns, writes it and follows its links.
LinkLine* makeHistoryNews(QWidget& parent);

}  // namespace norvik::desktop
