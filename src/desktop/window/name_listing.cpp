#include "desktop/window/name_listing.h"

#include "desktop/bind/widget_binding.h"
#include "desktop/theme.h"
#include "desktop/words.h"
#include "obj/face_tally.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QPixmap>

#include <string_view>
#include <utility>

namespace norvik::desktop {

namespace {

constexpr int kName = 0;
constexpr int kFaces = 1;

/// A square of a colour, framed so that it is seen on a ground of the same colour.
QIcon swatchOf(const QColor& colour, const QPalette& palette) {
  constexpr int kSide = 14;
  QPixmap square(kSide, kSide);
  square.fill(colour);
  QPainter painter(&square);
  painter.setPen(palette.color(QPalette::Mid));
  painter.drawRect(0, 0, kSide - 1, kSide - 1);
  return square;
}

/// The names on a page; the last line has no line end.
std::vector<std::string> namesOn(std::string_view page) {
  constexpr std::string_view kLineEnd = "\r\n";
  std::vector<std::string> names;
  if (page.empty()) return names;
  for (auto end = page.find(kLineEnd); end != page.npos; end = page.find(kLineEnd)) {
    names.emplace_back(page.substr(0, end));
    page.remove_prefix(end + kLineEnd.size());
  }
  names.emplace_back(page);
  return names;
}

}  // namespace

NameListing::NameListing(Maker& maker, front::Session& session, front::FormOBJ& form, NameKind kind,
                         QWidget& parent)
    : QTreeWidget(&parent),
      session_(session),
      form_(form),
      page_(kind == NameKind::group ? form.RichTextBoxGroups : form.RichTextBoxMaterials),
      kind_(kind) {
  const bool groups = kind == NameKind::group;
  setAccessibleName(groups ? QStringLiteral("Groups and their faces")
                           : QStringLiteral("Materials and their faces"));
  setHeaderLabels(
      {groups ? QStringLiteral("Group") : QStringLiteral("Material"), QStringLiteral("Faces")});
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setSelectionMode(QAbstractItemView::SingleSelection);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(kName, QHeaderView::Stretch);
  header()->setSectionResizeMode(kFaces, QHeaderView::ResizeToContents);
  maker.bindings().add(std::make_unique<WidgetBinding>(maker.dispatcher(), page_, *this,
                                                       WidgetBinding::Clicks::own));
  setToolTip(QStringLiteral("A click marks the faces in the views, another one unmarks them"));
  connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* row) { pointAt(row); });
  maker.watch({&page_}, [this] { fill(); });
}

void NameListing::fill() {
  if (shownText_ == page_.text() && shownColours_ == page_.lineColours()) return;
  shownText_ = page_.text();
  shownColours_ = page_.lineColours();
  clear();
  const obj::FaceCounts counts = obj::facesOnShow(
      session_, kind_ == NameKind::group ? obj::groupSide(form_) : obj::materialSide(form_));
  std::size_t line = 0;
  names_ = namesOn(shownText_);
  for (const std::string& name : names_) {
    auto* row = new QTreeWidgetItem(this);
    row->setText(kName, name.empty() ? QStringLiteral("(no name)") : shown(name));
    row->setIcon(kName, swatchOf(toColor(page_.lineColour(line++)), palette()));
    const std::uint64_t faces = obj::facesOf(counts, name);
    row->setText(kFaces, QLocale().toString(static_cast<qulonglong>(faces)));
    row->setTextAlignment(kFaces, Qt::AlignRight | Qt::AlignVCenter);
  }
  hideRows();
  if (filled_) filled_();
}

void NameListing::pointAt(QTreeWidgetItem* row) {
  const int line = row == nullptr ? -1 : indexOfTopLevelItem(row);
  if (line < 0 || !pointedAt_) return;
  // The row may be gone before its name is.
  const std::string name = names_.at(static_cast<std::size_t>(line));
  pointedAt_(name);
}

void NameListing::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    pointAt(currentItem());
  } else {
    QTreeWidget::keyPressEvent(event);
  }
}

void NameListing::showMarked(const std::string* name) {
  // A row that was clicked looks chosen; once it is unmarked it is not.
  if (std::exchange(marked_, name != nullptr) && !marked_) clearSelection();
  for (int i = 0; i < topLevelItemCount(); ++i) {
    QTreeWidgetItem& row = *topLevelItem(i);
    const bool marked = name != nullptr && names_.at(static_cast<std::size_t>(i)) == *name;
    QFont font = row.font(kName);
    font.setBold(marked);
    row.setFont(kName, font);
    row.setToolTip(kName,
                   marked ? QStringLiteral("Marked in the views; Escape unmarks it") : QString());
  }
}

void NameListing::narrow(const QString& text) {
  wanted_ = text;
  hideRows();
}

void NameListing::hideRows() {
  for (int i = 0; i < topLevelItemCount(); ++i) {
    QTreeWidgetItem& row = *topLevelItem(i);
    row.setHidden(!row.text(kName).contains(wanted_, Qt::CaseInsensitive));
  }
}

QString NameListing::told() const {
  if (wanted_.isEmpty()) return {};
  int seen = 0;
  for (int i = 0; i < topLevelItemCount(); ++i) {
    if (!topLevelItem(i)->isHidden()) ++seen;
  }
  return QStringLiteral("%1 of %2").arg(seen).arg(topLevelItemCount());
}

}  // namespace norvik::desktop
