#include "desktop/guide/guide_window.h"

#include "desktop/guide/guide_places.h"

#include <QAbstractTextDocumentLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTextTable>
#include <QVBoxLayout>

#include <algorithm>

namespace norvik::desktop {

QString headingName(const QString& heading) {
  QString name;
  for (const QChar letter : heading.toLower()) {
    if (letter == QLatin1Char(' ')) {
      name += QLatin1Char('-');
    } else if (letter.isLetterOrNumber() || letter == QLatin1Char('-') ||
               letter == QLatin1Char('_')) {
      name += letter;
    }
  }
  return name;
}

QVariant GuidePages::loadResource(int type, const QUrl& name) {
  if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
  const QUrl address = name.isRelative() ? source().resolved(name) : name;
  QImage picture(address.toLocalFile());
  if (picture.isNull()) return {};
  constexpr int kMargin = 40;
  const double ratio = devicePixelRatioF();
  const int room = std::max(kMargin, viewport()->width() - kMargin);
  const int width = std::min(picture.width(), room);
  const int pixels = std::min(picture.width(), static_cast<int>(width * ratio));
  if (pixels < picture.width()) {
    picture = picture.scaledToWidth(pixels, Qt::SmoothTransformation);
  }
  picture.setDevicePixelRatio(static_cast<double>(pixels) / width);
  return picture;
}

void GuidePages::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
  QTextBrowser::doSetSource(url, type);
  dress();
  if (url.hasFragment()) goToHeading(url.fragment());
}

/// The colours of links are those of the moment in which a page is read.
void GuidePages::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() != QEvent::PaletteChange || source().isEmpty()) return;
  const int place = verticalScrollBar()->value();
  reload();
  dress();
  verticalScrollBar()->setValue(place);
}

/// Room around words, headings and cells.
void GuidePages::dress() {
  constexpr int kAround = 16;
  constexpr int kAboveHeading = 14;
  constexpr int kBelowHeading = 4;
  constexpr int kInCell = 4;
  document()->setDocumentMargin(kAround);
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    QTextBlockFormat format = block.blockFormat();
    if (format.headingLevel() == 0) continue;
    format.setTopMargin(kAboveHeading);
    format.setBottomMargin(kBelowHeading);
    QTextCursor(block).setBlockFormat(format);
  }
  for (QTextFrame* frame : document()->rootFrame()->childFrames()) {
    auto* table = qobject_cast<QTextTable*>(frame);
    if (table == nullptr) continue;
    QTextTableFormat format = table->format();
    format.setBorderCollapse(true);
    format.setBorder(1);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(palette().mid());
    format.setCellSpacing(0);
    format.setCellPadding(kInCell);
    table->setFormat(format);
  }
}

void GuidePages::goToHeading(const QString& name) {
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0 || headingName(block.text()) != name) continue;
    setTextCursor(QTextCursor(block));
    const QRectF place = document()->documentLayout()->blockBoundingRect(block);
    verticalScrollBar()->setValue(static_cast<int>(place.top()));
    return;
  }
}

GuideWindow::GuideWindow(const QString& folder, QWidget* parent)
    : QDialog(parent), folder_(folder) {
  setObjectName(QStringLiteral("GuideWindow"));
  setWindowTitle(QStringLiteral("The Guide"));
  auto* column = new QVBoxLayout(this);
  auto* row = new QHBoxLayout;
  column->addLayout(row);

  pages_ = new GuidePages(this);
  pages_->setObjectName(QStringLiteral("GuidePages"));
  pages_->setAccessibleName(QStringLiteral("The page"));
  pages_->setOpenExternalLinks(true);

  const auto button = [&](const QString& name, const QString& text, const QKeySequence& key) {
    auto* made = new QPushButton(text, this);
    made->setObjectName(name);
    made->setAutoDefault(false);
    made->setShortcut(key);
    made->setToolTip(key.toString(QKeySequence::NativeText));
    row->addWidget(made);
    return made;
  };
  auto* contents = button(QStringLiteral("GuideContents"), QStringLiteral("Contents"),
                          QKeySequence(Qt::ALT | Qt::Key_Home));
  auto* back = button(QStringLiteral("GuideBack"), QStringLiteral("Back"),
                      QKeySequence(Qt::ALT | Qt::Key_Left));
  auto* forward = button(QStringLiteral("GuideForward"), QStringLiteral("Forward"),
                         QKeySequence(Qt::ALT | Qt::Key_Right));
  connect(contents, &QPushButton::clicked, this, [this] {
    showPlace(QString::fromUtf8(kGuideStart.data(), static_cast<qsizetype>(kGuideStart.size())));
  });
  for (auto* step : {back, forward}) step->setEnabled(false);
  connect(back, &QPushButton::clicked, pages_, &QTextBrowser::backward);
  connect(forward, &QPushButton::clicked, pages_, &QTextBrowser::forward);
  connect(pages_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
  connect(pages_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);

  row->addStretch(1);
  auto* label = new QLabel(QStringLiteral("&Find on this page"), this);
  wanted_ = new QLineEdit(this);
  wanted_->setObjectName(QStringLiteral("GuideFind"));
  wanted_->setAccessibleName(QStringLiteral("Find on this page"));
  wanted_->setClearButtonEnabled(true);
  label->setBuddy(wanted_);
  row->addWidget(label);
  row->addWidget(wanted_);
  connect(wanted_, &QLineEdit::returnPressed, this, &GuideWindow::findNext);
  auto* find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, wanted_, [this] { wanted_->setFocus(); });
  auto* next = new QShortcut(QKeySequence(Qt::Key_F3), this);
  connect(next, &QShortcut::activated, this, &GuideWindow::findNext);

  column->addWidget(pages_, 1);
  pages_->setFocus();
  resize(860, 680);
}

/// From the caret on, then from the top.
void GuideWindow::findNext() {
  const QString text = wanted_->text();
  if (text.isEmpty() || pages_->find(text)) return;
  pages_->moveCursor(QTextCursor::Start);
  pages_->find(text);
}

void GuideWindow::showPlace(const QString& place) {
  QUrl address = QUrl::fromLocalFile(folder_ + QLatin1Char('/') + place.section(u'#', 0, 0));
  if (const QString heading = place.section(u'#', 1); !heading.isEmpty()) {
    address.setFragment(heading);
  }
  pages_->setSource(address);
}

}  // namespace norvik::desktop
