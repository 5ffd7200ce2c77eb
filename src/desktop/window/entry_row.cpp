#include "desktop/window/headings.h"
#include "desktop/window/scale_note.h"
#include "desktop/window/tool_strip.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

class Row {
 public:
  Row(Maker& maker, QWidget& parent) : maker_(maker), widget_(new QWidget(&parent)) {
    column_ = new QVBoxLayout(widget_);
    column_->setContentsMargins(kPaneMargin, 4, kPaneMargin, 0);
    column_->setSpacing(2);
    line_ = new QHBoxLayout;
    column_->addLayout(line_);
  }

  /// An entry with a word in front of it.
  void add(front::TextBox& box, const char* word, int width) {
    auto* label = new QLabel(QString::fromLatin1(word), widget_);
    auto& edit = maker_.line(box, *widget_);
    edit.setFixedWidth(width);
    edit.setAccessibleName(label->text());
    label->setBuddy(&edit);
    line_->addWidget(label);
    line_->addWidget(&edit);
    maker_.watch({&box}, [label, &box, &edit] {
      const bool appears = box.visible() && label->isHidden();
      label->setVisible(box.visible());
      // What a tool asks for is what the operator types next.
      if (appears) edit.setFocus(Qt::OtherFocusReason);
    });
  }

  void add(front::Control& control, const char* name = "") {
    QWidget* widget = maker_.make(control, *widget_);
    widget->setAccessibleName(QString::fromLatin1(name));
    line_->addWidget(widget);
  }

  void add(front::Frame& frame, std::initializer_list<front::OptionButton*> options) {
    auto& group = maker_.frame(frame, *widget_);
    group.setFlat(true);
    auto* inside = new QHBoxLayout(&group);
    inside->setContentsMargins(8, 2, 8, 2);
    for (front::OptionButton* option : options) inside->addWidget(maker_.make(*option, group));
    line_->addWidget(&group);
  }

  QWidget& widget() { return *widget_; }
  void addBelow(QWidget& widget) { column_->addWidget(&widget); }

  QWidget* finish() {
    line_->addStretch();
    return widget_;
  }

 private:
  Maker& maker_;
  QWidget* widget_;
  QVBoxLayout* column_;
  QHBoxLayout* line_;
};

}  // namespace

QWidget* makeEntryRow(Maker& maker, front::Opening& opening, QWidget& parent) {
  constexpr int kNumber = 90;
  Row row(maker, parent);
  row.add(opening.TextOBJScale, "Scale", kNumber);
  row.add(opening.SliderOBJScale, "Scale");
  row.add(opening.CheckOBJBatch);
  row.add(opening.FrameMash, {&opening.OptionMashOBJ, &opening.OptionMashMorph});
  row.addBelow(*new ScaleNote(maker, opening, row.widget()));
  QWidget* widget = row.finish();
  maker.showWhileAny(*widget, {&opening.TextOBJScale, &opening.SliderOBJScale,
                               &opening.CheckOBJBatch, &opening.FrameMash});
  return widget;
}

}  // namespace norvik::desktop
