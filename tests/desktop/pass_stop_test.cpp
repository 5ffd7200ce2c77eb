// Long passes ended by the operator at the real window.

#include "desktop/pass_stop.h"

#include "desktop/program_bench.h"
#include "front/form_obj.h"
#include "text/line_reader.h"

#include <QAbstractButton>
#include <QProgressBar>

#include <sstream>

namespace norvik::desktop {

namespace {

constexpr int kBetweenBreaths = 120;  // milliseconds: the next read lets the window live

/// A mesh whose records take long enough to read that the progress is on show.
std::string largeMesh() {
  constexpr int kVertices = 110'000;  // 5.5 MB of records
  std::ostringstream mesh;
  // What is only read past makes the file itself long enough too.
  for (int i = 0; i < 30'000; ++i) mesh << "# " << std::string(80, '-') << "\r\n";
  mesh << "g left\r\n";
  for (int i = 0; i < kVertices; ++i) {
    mesh << "v 0." << 100 + i % 800 << " 0." << 200 + i % 700 << " 0.25\r\n";
  }
  for (int i = 1; i < 1000; i += 3) mesh << "f " << i << ' ' << i + 1 << ' ' << i + 2 << "\r\n";
  return mesh.str();
}

class PassStopTest : public ProgramBench {
 protected:
  PassStopTest() : ProgramBench("[Startup]\nPLoc=C:\\Poser\\\n") {
    std::ofstream(host("large.obj"), std::ios::binary) << before_;
  }

  std::string host(const std::string& name) const { return folder_.path() + "/" + name; }
  std::string read(const std::string& name) const {
    std::ostringstream bytes;
    bytes << std::ifstream(host(name), std::ios::binary).rdbuf();
    return bytes.str();
  }
  bool isThere(const std::string& name) const { return std::filesystem::exists(host(name)); }

  front::FormOBJ& form() { return dynamic_cast<front::FormOBJ&>(*session().findForm("FormOBJ")); }
  QWidget& workshop() { return find<QWidget>("FormOBJ"); }
  QAbstractButton& cancelIn(QWidget& place) {
    return *place.findChild<QAbstractButton*>(QStringLiteral("CancelPass"));
  }

  void openWorkshop() {
    start(host("large.obj"));
    dispatcher().raise(opening().PictureOBJView.released, front::Mouse{});
    dispatcher().raise(form().LabelView.clicked);
    ASSERT_TRUE(form().LabelMirror.visible());
  }

  /// What the operator does when the pass, which begins behind this, has let the window live.
  void inThePass(const std::function<void()>& act) {
    QTest::qSleep(kBetweenBreaths);
    QTimer::singleShot(0, &window(), act);
  }

  bool says(QWidget& place, const QString& text) {
    const auto labels = place.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
      return label->isVisible() && label->text() == text;
    });
  }

  const std::string before_ = largeMesh();
};

TEST_F(PassStopTest, AMirrorThatIsCancelledLeavesTheMeshAndTheTool) {
  openWorkshop();
  bool seen = false;
  asker_.answers = {front::Answer::yes, front::Answer::no, front::Answer::no};
  asker_.whileAsking = [&] {
    if (!asker_.answers.empty() && asker_.boxes.size() < 3) return;
    inThePass([&] {
      seen = workshop().findChild<QProgressBar*>(QStringLiteral("MeshProgress"))->isVisible();
      EXPECT_TRUE(cancelIn(workshop()).isVisible());
      QTest::mouseClick(&cancelIn(workshop()), Qt::LeftButton);
    });
  };
  dispatcher().raise(form().LabelMirror.clicked);
  EXPECT_TRUE(seen);
  EXPECT_EQ(asker_.boxes.size(), 3U) << "the questions, and no box behind them";
  EXPECT_TRUE(asker_.files.empty());
  EXPECT_TRUE(read("large.obj") == before_);
  EXPECT_TRUE(says(workshop(), QStringLiteral("Cancelled")));
  EXPECT_FALSE(cancelIn(workshop()).isVisible());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);

  // The tool is ready again, and what it says is gone with the next work.
  asker_.boxes.clear();
  asker_.whileAsking = {};
  asker_.answers = {front::Answer::yes, front::Answer::no, front::Answer::no};
  asker_.paths = {QString::fromStdString(host("mirrored.obj"))};
  dispatcher().raise(form().LabelMirror.clicked);
  EXPECT_EQ(asker_.boxes.size(), 4U);
  const std::string mirrored = read("mirrored.obj");
  EXPECT_EQ(mirrored.substr(mirrored.find("g left"), 40),
            "g left\r\nv -0.100 0.200 0.25\r\nv -0.101 0.");
  EXPECT_FALSE(says(workshop(), QStringLiteral("Cancelled")));
}

TEST_F(PassStopTest, AMergeIsEndedByEscape) {
  std::ofstream(host("small.obj"), std::ios::binary)
      << "v 0.1 0.2 0.3\r\nv 0.2 0.2 0.3\r\nv 0.2 0.4 0.3\r\nf 1 2 3\r\n";
  openWorkshop();
  asker_.paths = {QString::fromStdString(host("small.obj"))};
  dispatcher().raise(form().PictureAddOBJ.released, front::Mouse{});
  ASSERT_TRUE(form().PictureMerge.visible());
  inThePass([&] { QTest::keyClick(&workshop(), Qt::Key_Escape); });
  dispatcher().raise(form().PictureMerge.released, front::Mouse{});
  EXPECT_FALSE(isThere("Norvik/MergeTest.obj"));
  EXPECT_EQ(opening().LabelOBJFileName.caption(), "C:\\large.obj");
  EXPECT_TRUE(form().PictureMerge.visible());
  EXPECT_TRUE(form().loaded()) << "Escape did not close the workshop";
  EXPECT_TRUE(says(workshop(), QStringLiteral("Cancelled")));

  dispatcher().raise(form().PictureMerge.released, front::Mouse{});
  EXPECT_TRUE(isThere("Norvik/MergeTest.obj"));
}

TEST_F(PassStopTest, ACutThatIsCancelledLeavesTheViews) {
  openWorkshop();
  form().OptionColorGroups.setValue(true);
  dispatcher().raise(form().LabelView.clicked);
  const graphics::Surface drawn = form().PictureStore.surface();
  const auto box = [this] {
    dispatcher().raise(form().PictureLop.released, front::Mouse{});
    dispatcher().raise(form().PictureStore.pressed, front::Mouse{front::MouseButton::left, 0, 0});
    dispatcher().raise(form().PictureStore.released,
                       front::Mouse{front::MouseButton::left, 599, 599});
  };
  const auto same = [&] {
    const graphics::Surface& now = form().PictureStore.surface();
    for (int y = 0; y < drawn.height(); ++y) {
      for (int x = 0; x < drawn.width(); ++x) {
        if (now.pixel({x, y}) != drawn.pixel({x, y})) return false;
      }
    }
    return true;
  };
  // In front of the question, while what would go is marked.
  inThePass([&] { QTest::keyClick(&workshop(), Qt::Key_Escape); });
  box();
  EXPECT_TRUE(asker_.boxes.empty());
  EXPECT_TRUE(same());
  EXPECT_FALSE(form().LopOn);

  // Behind it.
  asker_.answers = {front::Answer::yes};
  asker_.whileAsking = [&] {
    inThePass([&] { QTest::mouseClick(&cancelIn(workshop()), Qt::LeftButton); });
  };
  box();
  EXPECT_EQ(asker_.boxes.size(), 1U);
  EXPECT_TRUE(asker_.files.empty());
  EXPECT_TRUE(same());
  EXPECT_FALSE(form().LabelWait.visible());
  EXPECT_TRUE(read("large.obj") == before_);
  EXPECT_TRUE(says(workshop(), QStringLiteral("Cancelled")));

  asker_.boxes.clear();
  asker_.answers = {front::Answer::yes};
  asker_.whileAsking = {};
  asker_.paths = {QString::fromStdString(host("cut.obj"))};
  box();
  EXPECT_TRUE(isThere("cut.obj"));
}

TEST_F(PassStopTest, TheScalerIsCancelledInTheMainWindow) {
  start(host("large.obj"));
  opening().TextOBJScale.setText("2");
  // A menu's key does not get through; Escape does.
  inThePass([&] {
    QTest::keyClick(&window(), Qt::Key_F11);
    QTest::keyClick(&window(), Qt::Key_Escape);
  });
  dispatcher().raise(opening().TextOBJScale.key, "Enter");
  EXPECT_FALSE(window().isFullScreen());
  EXPECT_TRUE(asker_.boxes.empty());
  EXPECT_TRUE(read("large.obj") == before_);
  EXPECT_EQ(opening().TextOBJScale.text(), "2");
  EXPECT_TRUE(says(window(), QStringLiteral("Cancelled")));

  dispatcher().raise(opening().TextOBJScale.key, "Enter");
  ASSERT_EQ(asker_.boxes.size(), 1U);
  EXPECT_EQ(asker_.boxes[0].text, " 2 times original.");
}

TEST_F(PassStopTest, WhatAnEventReadsMeanwhileIsNotEnded) {
  start(host("large.obj"));
  opening().TextOBJScale.setText("2");
  bool read = false;
  inThePass([&] {
    program_->frontEnd().passStop().request();
    text::LineReader other(session().disk, "C:\\large.obj");
    read = !other.atEnd();
  });
  dispatcher().raise(opening().TextOBJScale.key, "Enter");
  EXPECT_TRUE(read);
  EXPECT_TRUE(asker_.boxes.empty());
  EXPECT_TRUE(this->read("large.obj") == before_);
}

TEST_F(PassStopTest, ABatchIsNotCancelledInTheMiddle) {
  start(host("large.obj"));
  opening().CheckOBJBatch.setValue(true);
  opening().TextOBJScale.setText("2");
  inThePass([&] {
    EXPECT_FALSE(cancelIn(window()).isVisible());
    program_->frontEnd().passStop().request();
  });
  dispatcher().raise(opening().TextOBJScale.key, "Enter");
  ASSERT_EQ(asker_.boxes.size(), 1U);
  EXPECT_FALSE(read("large.obj") == before_);
}

}  // namespace

}  // namespace norvik::desktop
