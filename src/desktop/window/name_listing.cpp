#include "desktop/window/name_listing.h"

#include "desktop/bind/widget_binding.h"
#include "desktop/theme.h"
#include "desktop/words.h"
#include "obj/face_tally.h"

#include <QHeaderView>
#include <QLocale>
#include <QPainter>
#include <QPixmap>

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
QStringList namesOn(const std::string& page) {
  return page.empty() ? QStringList() : shown(page).split(QStringLiteral("\r\n"));
}

}  // namespace

NameListing::NameListing(Maker& maker, front::Session& session, front::RichTextBox& page,
                         NameKind kind, QWidget& parent)
    : QTreeWidget(&parent), session_(session), page_(page), kind_(kind) {
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
  maker.bindings().add(std::make_unique<WidgetBinding>(maker.dispatcher(), page, *this));
  maker.watch({&page}, [this] { fill(); });
}

void NameListing::fill() {
  if (shownText_ == page_.text() && shownColours_ == page_.lineColours()) return;
  shownText_ = page_.text();
  shownColours_ = page_.lineColours();
  clear();
  const obj::FaceTally tally = obj::tallyFaces(session_);
  const obj::FaceCounts& counts = kind_ == NameKind::group ? tally.groups : tally.materials;
  std::size_t line = 0;
  for (const QString& name : namesOn(shownText_)) {
    auto* row = new QTreeWidgetItem(this);
    row->setText(kName, name.isEmpty() ? QStringLiteral("(no name)") : name);
    row->setIcon(kName, swatchOf(toColor(page_.lineColour(line++)), palette()));
    const auto found = counts.find(typed(name));
    const std::uint64_t faces = found == counts.end() ? 0 : found->second;
    row->setText(kFaces, QLocale().toString(static_cast<qulonglong>(faces)));
    row->setTextAlignment(kFaces, Qt::AlignRight | Qt::AlignVCenter);
  }
  hideRows();
  if (filled_) filled_();
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
