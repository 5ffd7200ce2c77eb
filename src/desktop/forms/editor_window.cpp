#include "desktop/forms/editor_window.h"

#include "desktop/page/page_view.h"
#include "desktop/window/headings.h"
#include "desktop/words.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

namespace norvik::desktop {

namespace {

constexpr int kWidth = 1000;
constexpr int kHeight = 720;
constexpr int kIcon = 24;
constexpr int kNumberWidth = 90;
constexpr int kListHeight = 180;

using editor::Side;

void nameFor(QLabel& label, QWidget& buddy) {
  label.setBuddy(&buddy);
  buddy.setAccessibleName(label.text());
}

}  // namespace

EditorWindow::EditorWindow(const WindowParts& parts, editor::FormEditor& form)
    : FormWindow(parts.maker, form, parts.unload, parts.parent),
      form_(form),
      count_([this](std::size_t hits, bool all) {
        const QString number = QLocale().toString(static_cast<qulonglong>(hits));
        hits_->setText(number +
                       (all ? (hits == 1 ? QStringLiteral(" hit") : QStringLiteral(" hits"))
                            : QStringLiteral(" hits so far")));
      }) {
  setWindowFlags(Qt::Window | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kPaneMargin);
  column->addLayout(makeTools());
  column->addWidget(makeFindRow());
  ListView& recent = maker().list(form.ListMRU, *this);
  recent.setAccessibleName(QStringLiteral("Recent files"));
  recent.setMaximumHeight(kListHeight);
  column->addWidget(&recent);
  panes_ = new QSplitter(Qt::Horizontal, this);
  panes_->setChildrenCollapsible(false);
  panes_->addWidget(makeColumn(Side::left));
  rightColumn_ = makeColumn(Side::right);
  panes_->addWidget(rightColumn_);
  column->addWidget(panes_, 1);
  column->addLayout(makeFoot());
  for (front::Timer* timer : {&form.TimerLoadTime, &form.Timer1, &form.Timer2}) {
    maker().timer(*timer);
  }
  maker().watch({&form.RichTextBox2}, [this] {
    const bool inUse = form_.RichTextBox2.box().width > 0;
    if (inUse == !rightColumn_->isHidden()) return;
    rightColumn_->setVisible(inUse);
    panes_->setSizes({1 << 20, 1 << 20});
  });
  maker().watch({&form.LabelLineNum}, [this] { markCurrent(); });
  maker().watch({&form.ComboFind, &form.CheckMatchCase, &form.CheckWholeWord, &form.LabelLineNum,
                 &form.RichTextBox1, &form.RichTextBox2},
                [this] { showHits(); });
  makeShortcuts();
  resize(kWidth, kHeight);
}

QLayout* EditorWindow::makeTools() {
  auto* row = new QHBoxLayout;
  for (front::PictureButton* picture :
       {&form_.PictureFind, &form_.PictureReplace, &form_.PictureSave, &form_.PicturePrint,
        &form_.PictureSecFile}) {
    row->addWidget(&maker().picture(*picture, *this, kIcon));
  }
  auto* fresh = qobject_cast<QRadioButton*>(maker().make(form_.OptionNewFile, *this));
  row->addWidget(fresh);
  row->addStretch();
  QLabel& name = maker().label(form_.LabelLineNumLabel, *this);
  row->addWidget(&name);
  QLabel& number = maker().label(form_.LabelLineNum, *this);
  number.setAccessibleName(QStringLiteral("Line of the caret"));
  number.setMinimumWidth(number.fontMetrics().horizontalAdvance(QStringLiteral("0000000")));
  row->addWidget(&number);
  QLineEdit& line = maker().line(form_.TextLineNum, *this);
  line.setAccessibleName(QStringLiteral("Line to go to"));
  line.setPlaceholderText(QStringLiteral("Ctrl+G"));
  line.setMaximumWidth(kNumberWidth);
  row->addWidget(&line);
  auto* go = qobject_cast<QPushButton*>(maker().make(form_.CommandGotoLineNum, *this));
  go->setAutoDefault(false);
  row->addWidget(go);
  return row;
}

QWidget* EditorWindow::makeFindRow() {
  auto* box = new QWidget(this);
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  QLabel& find = maker().label(form_.LabelFind, *box);
  row->addWidget(&find);
  findBox_ = qobject_cast<QComboBox*>(maker().make(form_.ComboFind, *box));
  findBox_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  findBox_->setCompleter(nullptr);
  nameFor(find, *findBox_);
  row->addWidget(findBox_, 2);
  hits_ = new QLabel(box);
  hits_->setMinimumWidth(hits_->fontMetrics().horizontalAdvance(QStringLiteral("000,000 hits")));
  row->addWidget(hits_);
  QLabel& replace = maker().label(form_.LabelReplace, *box);
  row->addWidget(&replace);
  QLineEdit& with = maker().line(form_.TextReplace, *box);
  nameFor(replace, with);
  row->addWidget(&with, 2);
  row->addWidget(maker().make(form_.CheckMatchCase, *box));
  row->addWidget(maker().make(form_.CheckWholeWord, *box));
  maker().showWhileAny(*box, {&form_.LabelFind, &form_.ComboFind, &form_.TextReplace});
  connect(findBox_, &QComboBox::textActivated, this, [this](const QString& text) {
    maker().dispatcher().run(form_.name() + ".ComboFind", [&] {
      form_.ComboFind.setText(typed(text));
      form_.ComboFind.changed.raise();
    });
  });
  maker().watch({&form_.ComboFind}, [this] { fillFindBox(); });
  return box;
}

/// The texts that were searched for, the last one on top and each once.
void EditorWindow::fillFindBox() {
  QStringList texts;
  const auto& items = form_.ComboFind.items();
  for (auto item = items.rbegin(); item != items.rend(); ++item) {
    const QString text = shown(*item);
    if (!text.isEmpty() && !texts.contains(text)) texts << text;
  }
  QStringList before;
  for (int i = 0; i < findBox_->count(); ++i) before << findBox_->itemText(i);
  if (texts == before) return;
  const QSignalBlocker quiet(findBox_);
  const QSignalBlocker quietLine(findBox_->lineEdit());
  const QString typedNow = findBox_->currentText();
  findBox_->clear();
  findBox_->addItems(texts);
  findBox_->setEditText(typedNow);
}

QWidget* EditorWindow::makeColumn(Side side) {
  const bool left = side == Side::left;
  auto* box = new QWidget(this);
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  QLabel* name = left ? new QLabel(box) : &maker().pathLabel(form_.LabelSecFile, *box);
  name->setAccessibleName(left ? QStringLiteral("Left file") : QStringLiteral("Right file"));
  name->setTextInteractionFlags(Qt::TextSelectableByMouse);
  (left ? leftName_ : rightName_) = name;
  column->addWidget(name);
  PageView& view = maker().page(form_.page(side), *box);
  view.setAccessibleName(left ? QStringLiteral("Left pane") : QStringLiteral("Right pane"));
  (left ? leftView_ : rightView_) = &view;
  column->addWidget(&view, 1);
  QLabel& size = maker().label(form_.sizeLabel(side), *box);
  size.setAccessibleName(QStringLiteral("Size of the file"));
  QSizePolicy kept = size.sizePolicy();
  kept.setRetainSizeWhenHidden(true);
  size.setSizePolicy(kept);
  column->addWidget(&size);
  return box;
}

QLayout* EditorWindow::makeFoot() {
  auto* row = new QHBoxLayout;
  QLabel& time = maker().label(form_.LabelLoadTime, *this);
  QSizePolicy kept = time.sizePolicy();
  kept.setRetainSizeWhenHidden(true);
  time.setSizePolicy(kept);
  row->addStretch();
  row->addWidget(&time);
  return row;
}

void EditorWindow::press(front::Control& picture) {
  maker().dispatcher().raise(picture.released, front::Mouse{});
}

void EditorWindow::goToFindBox() {
  if (!form_.ComboFind.visible()) press(form_.PictureFind);
  findBox_->setFocus(Qt::ShortcutFocusReason);
  findBox_->lineEdit()->selectAll();
}

void EditorWindow::makeShortcuts() {
  const auto add = [this](const QKeySequence& keys, auto act) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
  };
  add(QKeySequence::Find, [this] { goToFindBox(); });
  add(Qt::CTRL | Qt::Key_H, [this] {
    press(form_.PictureReplace);
    findBox_->lineEdit()->selectAll();
  });
  add(Qt::CTRL | Qt::Key_G, [this] {
    if (auto* line = findChild<QLineEdit*>(QString::fromStdString(form_.TextLineNum.name()))) {
      line->setFocus(Qt::ShortcutFocusReason);
      line->selectAll();
    }
  });
  add(QKeySequence::Save, [this] { press(form_.PictureSave); });
}

/// Escape leaves the recent files or the find row, never the editor.
void EditorWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return FormWindow::keyPressEvent(event);
  if (form_.ListMRU.visible()) {
    maker().dispatcher().run(form_.name(), [this] { form_.ListMRU.hide(); });
  } else if (form_.ComboFind.visible()) {
    press(form_.PictureFind);
  }
  view(form_.current()).setFocus();
}

void EditorWindow::showHits() {
  const bool wanted = form_.ComboFind.visible() && !form_.ComboFind.text().empty();
  if (!wanted) {
    count_.stop();
    hits_->clear();
    for (PageView* view : {leftView_, rightView_}) view->setShaded(std::nullopt);
    return;
  }
  const text::TextSearch search(form_.ComboFind.text(),
                                {form_.CheckWholeWord.value(), form_.CheckMatchCase.value()});
  for (PageView* view : {leftView_, rightView_}) view->setShaded(search);
  count_.begin(form_.page(form_.current()).content(), search);
}

/// The name of the current pane's file is bold.
void EditorWindow::markCurrent() {
  for (const Side side : {Side::left, Side::right}) {
    QLabel& name = side == Side::left ? *leftName_ : *rightName_;
    QFont font = name.font();
    font.setBold(side == form_.current());
    if (font != name.font()) name.setFont(font);
  }
}

void EditorWindow::sync() {
  const QString path = shown(form_.caption());
  const QString title = path + QStringLiteral("[*]");
  if (windowTitle() != title) setWindowTitle(title);
  if (leftName_ == nullptr) return;
  if (leftName_->text() != path) leftName_->setText(path);
  const bool changed = form_.RichTextBox1.back() != editor::kUnchanged ||
                       form_.RichTextBox2.back() != editor::kUnchanged;
  if (isWindowModified() != changed) setWindowModified(changed);
}

}  // namespace norvik::desktop
