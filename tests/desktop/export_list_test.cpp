#include "desktop/program_bench.h"

#include <QAbstractItemView>
#include <QRadioButton>

namespace norvik::desktop {

namespace {

class ExportListTest : public ProgramBench {};

TEST_F(ExportListTest, HasItsOptionsBelowIt) {
  const std::string kFolder = "/Poser/Runtime/Libraries/Characters/Tilda/";
  std::ofstream(folder_.path() + kFolder + "hat.pp2")
      << "{\r\nprop hat\r\n{\r\ngeomCustom\r\n{\r\nv 1 2 3\r\n}\r\n}\r\n}\r\n";
  start(folder_.path() + kFolder + "tilda.cr2");
  window().resize(1024, 768);
  auto& list = find<QAbstractItemView>("ListOBJExtract");
  auto& separate = find<QRadioButton>("OptionSepObjFiles");
  EXPECT_FALSE(list.isVisible());
  EXPECT_FALSE(separate.isVisible());
  opening().LabelFileNameForEditor.setCaption(kTilda + "hat.pp2");
  asker_.answers = {front::Answer::yes};
  dispatcher().raise(opening().PictureOBJExtract.released, front::Mouse{});
  QTest::qWait(50);
  ASSERT_TRUE(list.isVisible());
  ASSERT_TRUE(separate.isVisible());
  const QRect room(list.mapTo(&window(), QPoint(0, 0)), list.size());
  const QPoint place = separate.mapTo(&window(), QPoint(0, 0));
  EXPECT_GT(place.y(), room.bottom());
  EXPECT_GE(place.x(), room.left());
  EXPECT_LT(place.x() + separate.width(), room.right());
  // A right click puts all of it away.
  dispatcher().raise(opening().ListOBJExtract.released,
                     front::Mouse{front::MouseButton::right, 0, 0});
  QTest::qWait(50);
  EXPECT_FALSE(list.isVisible());
  EXPECT_FALSE(separate.isVisible());
}

}  // namespace

}  // namespace norvik::desktop
