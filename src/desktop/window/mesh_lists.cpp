#include "desktop/bind/label_button.h"
#include "desktop/bind/text_binding.h"
#include "desktop/window/headings.h"
#include "desktop/window/list_filter.h"
#include "desktop/window/mesh_panes.h"
#include "desktop/window/name_keys.h"
#include "desktop/window/name_listing.h"
#include "desktop/window/pending_list.h"
#include "desktop/window/template_size.h"

#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <initializer_list>

namespace norvik::desktop {

namespace {

/// The controls of one side: groups, or materials.
struct Side {
  front::RichTextBox& listing;
  front::ListBox& names;
  front::ListBox& saved;
  front::TextBox& newName;
  front::CheckBox& save;
  const char* word;
  NameKind kind;
};

/// The line above the names narrows all that lists them, but for those to be saved.
QWidget* makeFilter(const Side& side, NameListing& listing, ListView& names, QWidget& parent) {
  auto* filter = new ListFilter({listing, QString::fromStdString(side.names.name()),
                                 [&listing, &names](const QString& text) {
                                   listing.narrow(text);
                                   names.setFilter(text);
                                 },
                                 [&side = side.names, &listing, &names] {
                                   return names.isVisible() ? toldOf(side, names) : listing.told();
                                 }},
                                parent);
  listing.setFilled([filter] { filter->count(); });
  QObject::connect(names.model(), &QAbstractItemModel::modelReset, filter,
                   [filter] { filter->count(); });
  QObject::connect(names.selectionModel(), &QItemSelectionModel::selectionChanged, filter,
                   [filter] { filter->count(); });
  return filter;
}

QPlainTextEdit& makePage(Maker& maker, front::TextBox& box, QWidget& parent, const char* name) {
  auto* page = new QPlainTextEdit(&parent);
  page->setAccessibleName(QString::fromLatin1(name));
  page->setTabChangesFocus(true);
  maker.bindings().add(std::make_unique<PageBinding>(maker.dispatcher(), box, *page));
  return *page;
}

/// A name that is clicked is marked in the views.
void letMark(Maker& maker, front::FormOBJ& form, const Side& side, NameListing& listing) {
  const bool materials = side.kind == NameKind::material;
  listing.setPointedAt([&maker, &form, materials](const std::string& name) {
    maker.dispatcher().raise(form.markWanted,
                             front::MarkWanted{.materials = materials, .name = name});
  });
  maker.watch({&form.PictureStore, &form.ListGroups, &side.listing}, [&form, materials, &listing] {
    const bool here = form.Mark && form.Mark->materials == materials;
    listing.showMarked(here ? &form.Mark->name : nullptr);
  });
}

QVBoxLayout* makeSide(Maker& maker, front::Session& session, front::FormOBJ& form, const Side& side,
                      QWidget& parent) {
  auto* column = new QVBoxLayout;
  column->setSpacing(4);
  const QString word = QString::fromLatin1(side.word);
  auto* listing = new NameListing(maker, session, form, side.kind, parent);
  letMark(maker, form, side, *listing);
  ListView& names = maker.list(side.names, parent);
  names.setAccessibleName(word);
  new NameKeys(maker, side.names, side.newName, names);
  ListView& saved = maker.list(side.saved, parent);
  saved.setAccessibleName(word + QStringLiteral(" to save"));
  column->addWidget(makeFilter(side, *listing, names, parent));
  column->addWidget(listing, 1);
  column->addWidget(&names, 1);
  column->addWidget(&saved, 1);
  auto& entry = maker.line(side.newName, parent);
  entry.setPlaceholderText(QStringLiteral("New name"));
  entry.setAccessibleName(QStringLiteral("New name"));
  column->addWidget(&entry);
  const auto kind =
      side.kind == NameKind::group ? PendingList::Kind::groups : PendingList::Kind::materials;
  column->addWidget(new PendingList(maker, form, kind, parent));
  column->addWidget(maker.make(side.save, parent));
  return column;
}

}  // namespace

QWidget* makeMeshLists(Maker& maker, front::Session& session, front::FormOBJ& form,
                       QWidget& parent) {
  constexpr int kNotes = 96;
  auto* panel = new QWidget(&parent);
  auto* column = new QVBoxLayout(panel);
  column->setContentsMargins(0, 0, 0, 0);

  auto* keysHeading = new QLabel(QStringLiteral("Keys"), panel);
  makeHeading(*keysHeading);
  auto& keys = maker.list(form.ListHotKeys, *panel);
  keys.setAccessibleName(QStringLiteral("Hot keys"));
  keys.setFocusPolicy(Qt::TabFocus);
  column->addWidget(keysHeading);
  column->addWidget(&keys);
  maker.watch({&form.ListHotKeys}, [keysHeading, &keys, &form] {
    constexpr int kRoom = 10;
    keys.setFixedHeight(form.ListHotKeys.count() * (keys.fontMetrics().height() + 5) + kRoom);
    keysHeading->setVisible(form.ListHotKeys.visible());
  });

  auto* commands = new QHBoxLayout;
  for (front::CommandButton* command : {&form.CommandListGroups, &form.CommandListMats}) {
    commands->addWidget(maker.make(*command, *panel));
  }
  column->addLayout(commands);
  auto* sides = new QHBoxLayout;
  sides->addLayout(makeSide(maker, session, form,
                            {form.RichTextBoxGroups, form.ListGroups, form.ListGroupsSave,
                             form.TextGrpRename, form.CheckSaveGroups, "Groups", NameKind::group},
                            *panel));
  sides->addLayout(
      makeSide(maker, session, form,
               {form.RichTextBoxMaterials, form.ListMaterials, form.ListMaterialsSave,
                form.TextMatRename, form.CheckSaveMaterials, "Materials", NameKind::material},
               *panel));
  column->addLayout(sides, 1);
  column->addWidget(&makeLabelButton(maker, form.LabelRichRename, *panel), 0, Qt::AlignLeft);
  column->addWidget(makeTemplateSize(maker, session, form.TextMapSize,
                                     QStringLiteral("Size of the template"), *panel));
  column->addWidget(makeTemplateSize(maker, session, form.TextMapSizeSec,
                                     QStringLiteral("Size of the second template"), *panel));
  column->addStretch();

  auto* notesHeading = new QLabel(QStringLiteral("Notes"), panel);
  makeHeading(*notesHeading);
  auto& notes = makePage(maker, form.TextNotes, *panel, "Notes");
  notes.setFixedHeight(kNotes);
  notes.setPlaceholderText(QStringLiteral("Kept in Notes.txt when the window is closed"));
  column->addWidget(notesHeading);
  column->addWidget(&notes);
  maker.watch({&form.TextNotes},
              [notesHeading, &form] { notesHeading->setVisible(form.TextNotes.visible()); });
  return panel;
}

}  // namespace norvik::desktop
