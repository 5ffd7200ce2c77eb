// The questions as the operator sees them.

#include "desktop/window_asker.h"

#include "desktop/bench.h"
#include "desktop/when_up.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <gtest/gtest.h>

#include <fstream>
#include <functional>

namespace norvik::desktop {

namespace {

struct BoxCase {
  int style;
  QMessageBox::Icon icon;
  QMessageBox::StandardButtons buttons;
  front::Answer onEscape;

  friend std::ostream& operator<<(std::ostream& out, const BoxCase& box) {
    return out << "style " << box.style;
  }
};

class BoxTest : public testing::TestWithParam<BoxCase> {};

TEST_P(BoxTest, HasTheIconAndTheButtonsOfItsStyle) {
  const BoxCase& wanted = GetParam();
  bool seen = false;
  whenUp<QMessageBox>([&](QMessageBox& box) {
    seen = true;
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Alert!"));
    EXPECT_EQ(box.text(), QStringLiteral("a < b & c"));
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.icon(), wanted.icon);
    EXPECT_EQ(box.standardButtons(), wanted.buttons);
    box.reject();
  });
  WindowAsker asker;
  EXPECT_EQ(
      asker.box(
          {QStringLiteral("Alert!"), QStringLiteral("a < b & c"), wanted.style, {}, false, {}}),
      wanted.onEscape);
  EXPECT_TRUE(seen);
}

INSTANTIATE_TEST_SUITE_P(
    Styles, BoxTest,
    testing::Values(BoxCase{front::kOk, QMessageBox::NoIcon, QMessageBox::Ok, front::Answer::ok},
                    BoxCase{front::kOkCancel | front::kExclamation, QMessageBox::Warning,
                            QMessageBox::Ok | QMessageBox::Cancel, front::Answer::cancel},
                    BoxCase{front::kYesNoCancel | front::kQuestion, QMessageBox::Question,
                            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                            front::Answer::cancel},
                    BoxCase{front::kYesNo | front::kCritical, QMessageBox::Critical,
                            QMessageBox::Yes | QMessageBox::No, front::Answer::no},
                    BoxCase{front::kYesNo | front::kInformation, QMessageBox::Information,
                            QMessageBox::Yes | QMessageBox::No, front::Answer::no}));

TEST(WindowAskerTest, AClickOnAButtonIsTheAnswer) {
  whenUp<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
  WindowAsker asker;
  EXPECT_EQ(asker.box({.style = front::kYesNo}), front::Answer::yes);
}

TEST(WindowAskerTest, AYesOrNoIsNotAnsweredByEscapeOrTheCloseBox) {
  whenUp<QMessageBox>([](QMessageBox& box) {
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_TRUE(box.isVisible());
    box.close();
    EXPECT_TRUE(box.isVisible());
    box.button(QMessageBox::Yes)->click();
  });
  WindowAsker asker;
  EXPECT_EQ(asker.box({.style = front::kYesNo}), front::Answer::yes);
}

TEST(WindowAskerTest, ABoxWithCancelIsLeftByEscape) {
  whenUp<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  WindowAsker asker;
  EXPECT_EQ(asker.box({.style = front::kYesNoCancel}), front::Answer::cancel);
}

TEST(WindowAskerTest, ACautiousBoxIsRefusedByReturn) {
  whenUp<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.informativeText(), "<b>mind");
    EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Cancel));
    QTest::keyClick(&box, Qt::Key_Return);
  });
  WindowAsker asker;
  EXPECT_EQ(
      asker.box({.style = front::kOkCancel, .note = QStringLiteral("<b>mind"), .cautious = true}),
      front::Answer::cancel);
}

class ChooserTest : public testing::Test {
 protected:
  ChooserTest() {
    std::ofstream(folder_.path() + "/a.cr2") << "x";
    std::filesystem::create_directory(folder_.path() + "/below");
    std::ofstream(folder_.path() + "/below/b.cr2") << "x";
    file_.folder = host("");
    file_.title = QStringLiteral("Open a figure");
    file_.hint = QStringLiteral("Cancel is fine");
    file_.hostPath = [this](const QString& text) {
      return text.startsWith(QStringLiteral("C:\\"))
                 ? host("/") + text.mid(3).replace(QLatin1Char('\\'), QLatin1Char('/'))
                 : QString();
    };
  }
  QString host(const char* below) const { return QString::fromStdString(folder_.path() + below); }

  /// What the dialog gives for a text that is typed and entered.
  std::optional<QString> typed(const QString& text) {
    whenUp<QFileDialog>([&](QFileDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "Open a figure");
      EXPECT_EQ(dialog.findChild<QLabel*>("Hint")->text(), "Cancel is fine");
      QTest::qWait(300);
      auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
      name->setFocus();
      QTest::keyClicks(name, text);
      QTest::keyClick(name, Qt::Key_Return);
      QTest::qWait(50);
      if (dialog.isVisible()) dialog.reject();
    });
    WindowAsker asker;
    return asker.file(file_);
  }

  ScratchFolder folder_;
  Asker::File file_;
};

TEST_F(ChooserTest, TakesAFullPathOfAFileOnView) {
  EXPECT_EQ(typed(host("/a.cr2")), host("/a.cr2"));
}

TEST_F(ChooserTest, TakesAPathOfADrive) {
  EXPECT_EQ(typed(QStringLiteral("C:\\below\\b.cr2")), host("/below/b.cr2"));
}

TEST_F(ChooserTest, TakesAName) {
  EXPECT_EQ(typed(QStringLiteral("a.cr2")), host("/a.cr2"));
}

TEST_F(ChooserTest, EntersAFolder) {
  EXPECT_EQ(typed(QStringLiteral("C:\\below")), std::nullopt);
}

TEST_F(ChooserTest, AFurtherButtonIsAnAnswerOfItsOwn) {
  file_.instead = QStringLiteral("Unpack with Norvik");
  whenUp<QFileDialog>([](QFileDialog& dialog) {
    auto* instead = dialog.findChild<QPushButton*>(QStringLiteral("Instead"));
    ASSERT_NE(instead, nullptr);
    EXPECT_EQ(instead->text(), "Unpack with Norvik");
    instead->click();
  });
  WindowAsker asker;
  EXPECT_EQ(asker.file(file_), QString()) << "an empty path, and no cancel";
}

TEST_F(ChooserTest, WithoutAFurtherButtonThereIsNone) {
  whenUp<QFileDialog>([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QPushButton*>(QStringLiteral("Instead")), nullptr);
    dialog.reject();
  });
  WindowAsker asker;
  EXPECT_EQ(asker.file(file_), std::nullopt);
}

/// What the operator takes of two ways, by what he does.
std::optional<std::size_t> taken(const std::function<void(QMessageBox&)>& act) {
  whenUp<QMessageBox>(act);
  WindowAsker asker;
  return asker.way({.title = QStringLiteral("Title"), .text = QStringLiteral("a < b")},
                   {QStringLiteral("Go &left"), QStringLiteral("Go &right")});
}

QAbstractButton* buttonOf(const QMessageBox& box, const char* text) {
  for (QAbstractButton* button : box.buttons()) {
    if (button->text() == QString::fromLatin1(text)) return button;
  }
  return nullptr;
}

TEST(WindowAskerTest, AWayIsTakenByItsButton) {
  const auto press = [](const char* text) {
    return [text](QMessageBox& box) {
      EXPECT_EQ(box.windowTitle(), "Title");
      EXPECT_EQ(box.text(), "a < b");
      EXPECT_EQ(box.buttons().size(), 3);
      buttonOf(box, text)->click();
    };
  };
  EXPECT_EQ(taken(press("Go &left")), 0U);
  EXPECT_EQ(taken(press("Go &right")), 1U);
  EXPECT_EQ(taken(press("&Close")), std::nullopt);
}

TEST(WindowAskerTest, ToTakeNoWayIsTheDefault) {
  for (const auto key : {Qt::Key_Return, Qt::Key_Escape}) {
    EXPECT_EQ(taken([key](QMessageBox& box) {
                EXPECT_EQ(box.defaultButton(), buttonOf(box, "&Close"));
                QTest::keyClick(&box, key);
              }),
              std::nullopt);
  }
  EXPECT_EQ(taken([](QMessageBox& box) { box.close(); }), std::nullopt);
}

TEST(WindowAskerTest, AWayIsTakenByTheKeyboard) {
  EXPECT_EQ(taken([](QMessageBox& box) {
              QAbstractButton* right = buttonOf(box, "Go &right");
              right->setFocus();
              QTest::keyClick(right, Qt::Key_Return);
            }),
            1U);
}

TEST(WindowAskerTest, AQuestionWaitsWhileTheChangesAreShown) {
  bool seen = false;
  whenUp<QMessageBox>([&](QMessageBox& box) {
    QTimer::singleShot(50, &box, [&] {
      QWidget* changes = QApplication::activeModalWidget();
      seen = changes->objectName() == QStringLiteral("ChangesWindow");
      changes->close();
    });
    box.findChild<QPushButton*>(QStringLiteral("ShowChanges"))->click();
    EXPECT_TRUE(box.isVisible());
    box.button(QMessageBox::Yes)->click();
  });
  WindowAsker asker;
  const ComparedFiles files{"/nowhere/a", "/nowhere/b", {}, {}};
  EXPECT_EQ(asker.box({.style = front::kYesNo, .changes = files}), front::Answer::yes);
  EXPECT_TRUE(seen);
}

TEST(WindowAskerTest, AColourIsTheOneThatIsChosen) {
  whenUp<QColorDialog>([](QColorDialog& dialog) {
    EXPECT_EQ(dialog.currentColor(), QColor(10, 20, 30));
    dialog.setCurrentColor(QColor(200, 100, 50));
    dialog.accept();
  });
  WindowAsker asker;
  EXPECT_EQ(asker.colour(front::colourOf(10, 20, 30)), front::colourOf(200, 100, 50));
}

TEST(WindowAskerTest, AColourMayBeLeft) {
  whenUp<QColorDialog>([](QColorDialog& dialog) { dialog.reject(); });
  WindowAsker asker;
  EXPECT_EQ(asker.colour(0), std::nullopt);
}

TEST(WindowAskerTest, APrinterMayBeLeft) {
  whenUp<QPrintDialog>([](QPrintDialog& dialog) { dialog.reject(); });
  WindowAsker asker;
  QPrinter printer;
  EXPECT_FALSE(asker.printer(printer));
}

}  // namespace

}  // namespace norvik::desktop
