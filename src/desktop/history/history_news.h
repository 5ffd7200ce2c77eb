#pragma once
// Where a window tells what was replaced.

class QLabel;
class QWidget;

namespace norvik::desktop {

inline constexpr const char* kHistoryNews = "HistoryNews";

/// The place for the news in a status bar. It is empty at first; HistoryTools finds it by its name
/// in any window that the main one owns, writes it and follows its links.
QLabel* makeHistoryNews(QWidget& parent);

}  // namespace norvik::desktop
