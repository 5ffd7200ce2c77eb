#include "desktop/form_scenes.h"

#include <QAction>
#include <QtTest>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace norvik::desktop {

QWidget& Hand::window(std::string_view form) {
  if (form == opening().name()) return program_.mainWindow();
  const QString name = QString::fromUtf8(form.data(), static_cast<qsizetype>(form.size()));
  return *program_.mainWindow().findChild<FormWindow*>(name);
}

void Hand::action(const std::string& name) {
  program_.mainWindow().findChild<QAction*>(QString::fromStdString(name))->trigger();
  QTest::qWait(20);
}

void Hand::click(front::Control& control) {
  Dispatcher& dispatcher = program_.dispatcher();
  dispatcher.raise(control.pressed, front::Mouse{});
  dispatcher.raise(control.released, front::Mouse{});
  dispatcher.raise(control.clicked);
  QTest::qWait(20);
}

void Hand::enter(front::TextBox& box, const std::string& text) {
  run([&] { box.setText(text); });
  program_.dispatcher().raise(box.key, std::string{"Enter"});
}

void Hand::item(front::ListBox& list, std::string_view text) {
  for (int i = 0; i < list.count(); ++i) {
    if (list.item(i).find(text) == std::string::npos) continue;
    run([&] { list.choose(i); });
    return click(list);
  }
  ADD_FAILURE() << list.name() << " has no item with " << text;
}

void Hand::doubleItem(front::ListBox& list, std::string_view text) {
  item(list, text);
  program_.dispatcher().raise(list.doubleClicked);
  QTest::qWait(20);
}

void Hand::load(std::string_view form) {
  run([&] { session().load(*session().findForm(form)); });
}

void Hand::open(const std::string& file) {
  program_.frontEnd().withChosen(
      file, [this] { program_.dispatcher().raise(opening().MenuFileOpen.clicked); });
  QTest::qWait(20);
}

void Hand::run(const std::function<void()>& act) {
  program_.dispatcher().run(act);
  QTest::qWait(20);
}

void Hand::path(const std::string& hostFile) {
  asker_.paths.push_back(QString::fromStdString(folder_ + hostFile));
}

void Hand::write(const std::string& hostFile, const std::string& bytes) const {
  std::filesystem::create_directories(std::filesystem::path(folder_ + hostFile).parent_path());
  std::ofstream(folder_ + hostFile, std::ios::binary) << bytes;
}

std::string Hand::read(const std::string& hostFile) const {
  std::ifstream in(folder_ + hostFile, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void Hand::stageInstallation() {
  const std::string host = session().disk.hostPath(opening().inProgramFolder("\\cr2install"));
  std::filesystem::create_directories(host);
  std::ofstream(host + "/anna.cr2", std::ios::binary)
      << read("/Poser/Runtime/Libraries/Characters/Tilda/tilda.cr2");
  std::ofstream(host + "/body.obj", std::ios::binary) << "v 0 0 0\r\n";
  std::ofstream(host + "/skin.bmp", std::ios::binary) << "picture";
  menu(opening().MenuInstallCR2);
}

}  // namespace norvik::desktop
