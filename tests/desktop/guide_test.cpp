// Help opens the right page, and the guide leaves no tool out.

#include "desktop/guide/guide.h"

#include "desktop/guide/guide_places.h"
#include "desktop/launcher.h"
#include "desktop/pictures.h"
#include "desktop/program_bench.h"
#include "front/form.h"
#include "front/menu_entry.h"

#include <QDir>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextBlock>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace norvik::desktop {
namespace {

using Qt::StringLiterals::operator""_s;

QString textOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The names that links have for a page's headings.
std::set<QString> headingsOf(const QString& page) {
  std::set<QString> names;
  for (const QString& line : textOf(guideFolder() + u'/' + page).split(u'\n')) {
    const auto hashes = line.indexOf(QRegularExpression(u"[^#]"_s));
    if (hashes > 0) names.insert(headingName(line.mid(hashes).trimmed()));
  }
  return names;
}

/// What the guide prints in bold, each part of a way through the menus by itself.
std::set<QString> boldWords() {
  std::set<QString> words;
  const QDir guide(guideFolder());
  for (const QString& page : guide.entryList({u"*.md"_s})) {
    QString text = textOf(guide.filePath(page));
    text.replace(QRegularExpression(u"\\s+"_s), u" "_s);
    auto bold = QRegularExpression(u"\\*\\*(.+?)\\*\\*"_s).globalMatch(text);
    while (bold.hasNext()) {
      for (const QString& part : bold.next().captured(1).split(u" > "_s)) words.insert(part);
    }
  }
  return words;
}

bool answered(const front::Control& control) {
  return control.pressed.hasHandlers() || control.released.hasHandlers() ||
         control.clicked.hasHandlers() || control.doubleClicked.hasHandlers() ||
         control.dropped.hasHandlers();
}

/// Entries that do nothing, where a reader looks for them all the same.
const std::set<std::string> kNamedThoughInert{"MenuPropObjRel", "MenuPropTexRel", "MenuLimits",
                                              "MenuTwist", "MenuTransferParts"};

/// The words that stand on a tool in its window; empty for what is no tool.
QString wordsOn(const front::Control& control) {
  const bool named = kNamedThoughInert.contains(control.name());
  if (const auto* entry = dynamic_cast<const front::MenuEntry*>(&control); entry != nullptr) {
    if (!named && !answered(*entry)) return {};
    auto words = QString::fromStdString(entry->caption());
    while (words.endsWith(u'.')) words.chop(1);
    return words;
  }
  const PictureLook* look = lookOf(control.name());
  // A view is looked at; a tool has an icon, or is the colour of a material.
  const bool tool = look != nullptr &&
                    (*look->icon != '\0' || control.kind() == front::ControlKind::pictureButton);
  return tool && answered(control) ? QString::fromUtf8(look->label) : QString();
}

class GuideTest : public ProgramBench {
 protected:
  void SetUp() override { start(kTilda + "tilda.cr2"); }

  GuideWindow* guide() {
    for (QWidget* top : QApplication::topLevelWidgets()) {
      auto* found = dynamic_cast<GuideWindow*>(top);
      if (found != nullptr && found->isVisible()) return found;
    }
    return nullptr;
  }
  /// The page on view.
  QString page() {
    const GuideWindow* window = guide();
    if (window == nullptr) return {};
    const QUrl source = window->findChild<GuidePages*>(u"GuidePages"_s)->source();
    const QString heading = source.fragment().isEmpty() ? QString() : u'#' + source.fragment();
    return source.fileName() + heading;
  }
  QWidget& formWindow(const char* form) {
    return *window().findChild<QWidget*>(QString::fromLatin1(form));
  }
};

TEST_F(GuideTest, EveryPlaceIsThere) {
  std::map<QString, std::set<QString>> headings;
  const auto check = [&](const GuidePlace& place) {
    const auto words = QString::fromStdString(std::string{place.place});
    const QString page = words.section(u'#', 0, 0);
    const QString heading = words.section(u'#', 1);
    EXPECT_TRUE(QFile::exists(guideFolder() + u'/' + page)) << page.toStdString();
    if (!headings.contains(page)) headings[page] = headingsOf(page);
    if (!heading.isEmpty()) {
      EXPECT_TRUE(headings[page].contains(heading)) << place.place;
    }
  };
  for (const GuidePlace& place : guidePlaces()) check(place);
  for (const GuidePlace& place : guideSigns()) check(place);
}

TEST_F(GuideTest, EveryWindowAndEveryToolHasAPlace) {
  for (const auto* form : session().forms()) {
    EXPECT_FALSE(guidePlaceOf(form->name(), "").empty()) << form->name();
    for (const auto* control : form->controls()) {
      if (wordsOn(*control).isEmpty()) continue;
      EXPECT_FALSE(guidePlaceOf(form->name(), control->name()).empty())
          << form->name() << '.' << control->name();
    }
  }
}

TEST_F(GuideTest, NoPlaceIsOfAControlThatIsNotThere) {
  for (const GuidePlace& place : guidePlaces()) {
    const auto forms = session().forms();
    const auto form = std::find_if(forms.begin(), forms.end(), [&](const auto* candidate) {
      return candidate->name() == place.window;
    });
    const QString control = QString::fromStdString(std::string{place.control});
    if (form == forms.end() || control.isEmpty()) continue;
    const bool there = (*form)->find(std::string{place.control}) != nullptr ||
                       window().findChild<QObject*>(control) != nullptr ||
                       control.startsWith(u"Filter."_s);
    EXPECT_TRUE(there) << place.window << '.' << place.control;
  }
}

TEST_F(GuideTest, EveryToolIsNamedByTheWordsOnIt) {
  const std::set<QString> words = boldWords();
  for (const auto* form : session().forms()) {
    for (const auto* control : form->controls()) {
      const QString wanted = wordsOn(*control);
      if (wanted.isEmpty()) continue;
      EXPECT_TRUE(words.contains(wanted))
          << form->name() << '.' << control->name() << ": " << wanted.toStdString();
    }
  }
}

TEST_F(GuideTest, HelpOpensThePageOfWhatHasTheKeys) {
  window().activateWindow();
  find<QWidget>("ListMaterials").setFocus();
  QTest::keyClick(&find<QWidget>("ListMaterials"), Qt::Key_F1);
  EXPECT_EQ(page(), u"materials.md#change-a-colour"_s);
  EXPECT_TRUE(asker_.boxes.empty());
}

TEST_F(GuideTest, HelpInTheMenuIsTheSame) {
  window().activateWindow();
  find<QWidget>("TextMainTex").setFocus();
  find<QAction>("MenuHelp").trigger();
  EXPECT_EQ(page(), u"open-and-save.md#point-a-figure-at-other-files"_s);
}

TEST_F(GuideTest, AnOpenMenuTellsAboutItsEntry) {
  auto& menu = find<QMenu>("MenuCR2ToolsList");
  menu.popup(QPoint(0, 0));
  menu.setActiveAction(&find<QAction>("menuMatFile"));
  QTest::keyClick(&menu, Qt::Key_F1);
  EXPECT_FALSE(menu.isVisible());
  EXPECT_EQ(page(), u"mat-files.md"_s);
}

TEST_F(GuideTest, EachWindowHasItsOwnPage) {
  dispatcher().raise(opening().MenuPoseFile.clicked);
  QTest::keyClick(&formWindow("FormPZ2"), Qt::Key_F1);
  EXPECT_EQ(page(), u"pose-files.md"_s);
  dispatcher().run("FormPZ2", [&] { session().unload(*session().findForm("FormPZ2")); });
  dispatcher().raise(opening().menuMatFile.clicked);
  QTest::keyClick(&formWindow("FormPZ2"), Qt::Key_F1);
  EXPECT_EQ(page(), u"mat-files.md"_s);
}

TEST_F(GuideTest, AModalWindowLetsTheGuideBeRead) {
  QTimer::singleShot(50, &window(), [&] {
    QWidget* modal = QApplication::activeModalWidget();
    ASSERT_NE(modal, nullptr);
    QTest::keyClick(modal, Qt::Key_F1);
    EXPECT_EQ(page(), u"erc-links.md#make-a-link"_s);
    EXPECT_EQ(guide()->parentWidget(), modal);
    QTest::keyClick(guide(), Qt::Key_Escape);
    modal->close();
  });
  dispatcher().run("FormECM", [&] { session().loadModal(*session().findForm("FormECM")); });
  EXPECT_EQ(guide(), nullptr);
}

TEST_F(GuideTest, LinksLeadToHeadingsAndBack) {
  GuideWindow window(guideFolder(), nullptr);
  window.show();
  window.showPlace(u"README.md"_s);
  auto& pages = *window.findChild<GuidePages*>(u"GuidePages"_s);
  EXPECT_TRUE(pages.toPlainText().startsWith(u"What do you want to do?"_s));
  pages.setSource(QUrl(u"channels.md#take-a-body-part-out"_s));
  EXPECT_EQ(pages.textCursor().block().text(), u"Take a body part out"_s);
  window.findChild<QPushButton*>(u"GuideBack"_s)->click();
  EXPECT_EQ(pages.source().fileName(), u"README.md"_s);
  EXPECT_TRUE(window.findChild<QPushButton*>(u"GuideForward"_s)->isEnabled());
}

TEST_F(GuideTest, APictureIsNoWiderThanTheWindow) {
  GuideWindow window(guideFolder(), nullptr);
  window.resize(500, 400);
  window.show();
  window.showPlace(u"window.md"_s);
  auto& pages = *window.findChild<GuidePages*>(u"GuidePages"_s);
  const auto picture =
      pages.loadResource(QTextDocument::ImageResource, QUrl(u"pictures/figure.png"_s))
          .value<QImage>();
  ASSERT_FALSE(picture.isNull());
  EXPECT_LE(picture.width() / picture.devicePixelRatio(), pages.viewport()->width());
}

TEST_F(GuideTest, APageOfTheDeploymentComesFirst) {
  session().settings.set("Addresses", "Manual", "https://figures.invalid/help.htm");
  find<QAction>("MenuHelp").trigger();
  EXPECT_EQ(guide(), nullptr);
}

}  // namespace
}  // namespace norvik::desktop
