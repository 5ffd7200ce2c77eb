#include "desktop/maker.h"

#include "desktop/bind/choice_bindings.h"
#include "desktop/bind/folder_bindings.h"
#include "desktop/bind/label_binding.h"
#include "desktop/bind/list_binding.h"
#include "desktop/bind/pane_binding.h"
#include "desktop/bind/picture_binding.h"
#include "desktop/bind/shape_binding.h"
#include "desktop/bind/surface_binding.h"
#include "desktop/bind/text_binding.h"
#include "desktop/bind/timer_binding.h"
#include "desktop/cover_picture.h"
#include "desktop/elided_label.h"
#include "desktop/icons.h"
#include "desktop/page/page_view.h"
#include "desktop/pictures.h"
#include "desktop/swatch.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QToolButton>

#include <algorithm>

namespace norvik::desktop {

namespace {

/// Tells of a control's changes.
class Watch : public Binding {
 public:
  Watch(Dispatcher& dispatcher, front::Control& control, std::function<void()> callback)
      : Binding(dispatcher, control), callback_(std::move(callback)) {}

 protected:
  void refresh() override { callback_(); }

 private:
  std::function<void()> callback_;
};

}  // namespace

ListView& Maker::list(front::ListBox& list, QWidget& parent) {
  auto* view = new ListView(&parent);
  bindings_.add(std::make_unique<ListBinding>(dispatcher_, list, *view));
  return *view;
}

QListWidget& Maker::folders(front::FolderList& folders, QWidget& parent) {
  auto* list = new QListWidget(&parent);
  bindings_.add(std::make_unique<FolderListBinding>(dispatcher_, folders, *list));
  return *list;
}

QComboBox& Maker::drives(front::DriveList& drives, QWidget& parent) {
  auto* combo = new QComboBox(&parent);
  bindings_.add(std::make_unique<DriveListBinding>(dispatcher_, drives, *combo));
  return *combo;
}

QLabel& Maker::label(front::Label& label, QWidget& parent) {
  auto* text = new QLabel(&parent);
  bindings_.add(std::make_unique<LabelBinding>(dispatcher_, label, *text));
  return *text;
}

QLabel& Maker::pathLabel(front::Label& label, QWidget& parent) {
  auto* text = new ElidedLabel(&parent);
  bindings_.add(std::make_unique<LabelBinding>(dispatcher_, label, *text));
  return *text;
}

QLineEdit& Maker::line(front::TextBox& box, QWidget& parent) {
  auto* edit = new QLineEdit(&parent);
  bindings_.add(std::make_unique<LineBinding>(dispatcher_, box, *edit, *edit));
  return *edit;
}

PageView& Maker::page(front::TextPane& pane, QWidget& parent) {
  auto* view = new PageView(pane, &parent);
  bindings_.add(std::make_unique<PaneBinding>(dispatcher_, pane, *view));
  return *view;
}

QGroupBox& Maker::frame(front::Frame& frame, QWidget& parent) {
  auto* group = new QGroupBox(&parent);
  bindings_.add(std::make_unique<FrameBinding>(dispatcher_, frame, *group));
  return *group;
}

QToolButton& Maker::picture(front::Control& picture, QWidget& parent, int iconSize) {
  auto* button = new QToolButton(&parent);
  button->setIconSize({iconSize, iconSize});
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  if (const PictureLook* look = lookOf(picture.name()); look != nullptr) {
    button->setIcon(pictureNamed(QString::fromLatin1(look->icon)));
    button->setText(QString::fromLatin1(look->label));
    button->setToolTip(QString::fromLatin1(look->hint));
    button->setAccessibleName(QString::fromLatin1(look->hint));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  }
  bindings_.add(std::make_unique<PictureBinding>(dispatcher_, picture, *button));
  return *button;
}

QAbstractButton& Maker::swatch(front::Control& picture, QWidget& parent) {
  auto* button = new Swatch(&parent);
  if (const PictureLook* look = lookOf(picture.name()); look != nullptr) {
    button->setText(QString::fromLatin1(look->label));
    button->setToolTip(QString::fromLatin1(look->hint));
    button->setAccessibleName(QString::fromLatin1(look->hint));
  }
  bindings_.add(std::make_unique<PictureBinding>(dispatcher_, picture, *button));
  return *button;
}

SurfaceView& Maker::surface(front::PictureBox& picture, QWidget& parent) {
  auto* view = new SurfaceView(picture.surface(), &parent);
  const PictureLook* look = lookOf(picture.name());
  view->setAccessibleName(look != nullptr ? QString::fromLatin1(look->hint)
                                          : QString::fromStdString(picture.name()));
  bindings_.add(std::make_unique<SurfaceBinding>(dispatcher_, picture, *view));
  return *view;
}

void Maker::shape(front::Shape& shape, QFrame& frame) {
  bindings_.add(std::make_unique<ShapeBinding>(dispatcher_, shape, frame));
}

void Maker::cover(front::Image& image, QWidget& parent, const QString& picture) {
  auto* cover = new CoverPicture(picture, parent);
  bindings_.add(std::make_unique<WidgetBinding>(dispatcher_, image, *cover));
}

void Maker::timer(front::Timer& timer) {
  bindings_.add(std::make_unique<TimerBinding>(dispatcher_, timer));
}

QWidget* Maker::make(front::Control& control, QWidget& parent) {
  using front::ControlKind;
  switch (control.kind()) {
    case ControlKind::listBox:
    case ControlKind::fileList:
      return &list(dynamic_cast<front::ListBox&>(control), parent);
    case ControlKind::label:
      return &label(dynamic_cast<front::Label&>(control), parent);
    case ControlKind::textBox:
      return &line(dynamic_cast<front::TextBox&>(control), parent);
    case ControlKind::richTextBox: {
      if (auto* pane = dynamic_cast<front::TextPane*>(&control); pane != nullptr) {
        return &page(*pane, parent);
      }
      auto* edit = new QPlainTextEdit(&parent);
      bindings_.add(std::make_unique<PageBinding>(dispatcher_,
                                                  dynamic_cast<front::TextBox&>(control), *edit));
      return edit;
    }
    case ControlKind::comboBox: {
      auto* combo = new QComboBox(&parent);
      combo->setEditable(true);
      combo->setInsertPolicy(QComboBox::NoInsert);
      bindings_.add(std::make_unique<LineBinding>(
          dispatcher_, dynamic_cast<front::TextBox&>(control), *combo->lineEdit(), *combo));
      return combo;
    }
    case ControlKind::pictureButton: {
      constexpr int kIcon = 24;
      return &picture(control, parent, kIcon);
    }
    case ControlKind::optionButton: {
      auto* button = new QRadioButton(&parent);
      bindings_.add(std::make_unique<OptionBinding>(
          dispatcher_, dynamic_cast<front::OptionButton&>(control), *button));
      return button;
    }
    case ControlKind::checkBox: {
      auto* button = new QCheckBox(&parent);
      bindings_.add(std::make_unique<CheckBinding>(
          dispatcher_, dynamic_cast<front::CheckBox&>(control), *button));
      return button;
    }
    case ControlKind::commandButton: {
      auto* button = new QPushButton(&parent);
      bindings_.add(std::make_unique<CommandBinding>(
          dispatcher_, dynamic_cast<front::CommandButton&>(control), *button));
      return button;
    }
    case ControlKind::slider:
    case ControlKind::scrollBar: {
      QAbstractSlider* slider = nullptr;
      if (control.kind() == ControlKind::slider) slider = new QSlider(Qt::Horizontal, &parent);
      if (slider == nullptr) slider = new QScrollBar(Qt::Horizontal, &parent);
      bindings_.add(std::make_unique<SliderBinding>(
          dispatcher_, dynamic_cast<front::Slider&>(control), *slider));
      return slider;
    }
    case ControlKind::frame:
      return &frame(dynamic_cast<front::Frame&>(control), parent);
    case ControlKind::shape: {
      auto* drawn = new QFrame(&parent);
      drawn->setFrameStyle(QFrame::StyledPanel);
      shape(dynamic_cast<front::Shape&>(control), *drawn);
      return drawn;
    }
    case ControlKind::image: {
      auto* picture = new QLabel(&parent);
      bindings_.add(std::make_unique<WidgetBinding>(dispatcher_, control, *picture));
      return picture;
    }
    case ControlKind::drawingSurface:
      return &surface(dynamic_cast<front::PictureBox&>(control), parent);
    case ControlKind::folderList:
      return &folders(dynamic_cast<front::FolderList&>(control), parent);
    case ControlKind::driveList:
      return &drives(dynamic_cast<front::DriveList&>(control), parent);
    case ControlKind::timer:
    case ControlKind::menuEntry:
      return nullptr;
  }
  return nullptr;
}

void Maker::watch(std::initializer_list<front::Control*> controls, std::function<void()> callback) {
  for (front::Control* control : controls) {
    bindings_.add(std::make_unique<Watch>(dispatcher_, *control, callback));
  }
}

void Maker::showWhileAny(QWidget& widget, std::initializer_list<front::Control*> controls) {
  const std::vector<front::Control*> watched(controls);
  watch(controls, [&widget, watched] {
    const bool any = std::any_of(watched.begin(), watched.end(),
                                 [](const front::Control* control) { return control->visible(); });
    widget.setVisible(any);
  });
}

}  // namespace norvik::desktop
