#pragma once
// The guide in a window of its own, for there may be no program on the system that shows its pages.

#include <QDialog>
#include <QTextBrowser>

class QLineEdit;

namespace norvik::desktop {

/// The name that a link gives a heading: small letters, blanks as hyphens, and nothing but letters,
/// digits, hyphens and underscores.
QString headingName(const QString& heading);

/// The pages, with their pictures as wide as there is room for, and links to the headings.
class GuidePages : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
  void changeEvent(QEvent* event) override;

 private:
  void dress();
  void goToHeading(const QString& name);
};

class GuideWindow : public QDialog {
 public:
  GuideWindow(const QString& folder, QWidget* parent);

  /// Shows a page, and behind a # the heading to begin with.
  void showPlace(const QString& place);

 private:
  void findNext();

  QString folder_;
  GuidePages* pages_ = nullptr;
  QLineEdit* wanted_ = nullptr;
};

}  // namespace norvik::desktop
