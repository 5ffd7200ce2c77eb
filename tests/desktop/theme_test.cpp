// What is seen in each of the window's themes.

#include "desktop/form_scenes.h"
#include "desktop/program_bench.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QStyleOptionButton>

#include <algorithm>

namespace norvik::desktop {
namespace {

class ThemeTest : public ProgramBench {
 protected:
  ThemeTest() { start(""); }

  void choose(const std::string& theme) {
    Hand(*program_, asker_, folder_.path()).action("Theme." + theme);
  }
  /// How far the brightest dot of a box's upper edge stands out from its ground.
  template <typename Button>
  int edgeOf(QStyle::SubElement indicator) {
    Button button;
    button.resize(button.sizeHint());
    QStyleOptionButton option;
    option.initFrom(&button);
    const QRect box = button.style()->subElementRect(indicator, &option, &button);
    const QImage seen = button.grab().toImage();
    const int ground = button.palette().color(QPalette::Window).lightness();
    int most = 0;
    for (int x = box.left(); x <= box.right(); ++x) {
      most = std::max(most, std::abs(seen.pixelColor(x, box.top()).lightness() - ground));
    }
    return most;
  }
};

TEST_F(ThemeTest, AnEmptyBoxIsSeen) {
  constexpr int kSeen = 40;
  for (const char* theme : {"light", "dark"}) {
    choose(theme);
    EXPECT_GT(edgeOf<QCheckBox>(QStyle::SE_CheckBoxIndicator), kSeen) << theme;
    EXPECT_GT(edgeOf<QRadioButton>(QStyle::SE_RadioButtonIndicator), kSeen) << theme;
  }
  choose("light");
}

}  // namespace
}  // namespace norvik::desktop
