#pragma once
// Every form of the program, and every part of the main window that comes and goes, each brought
// on view.

#include "desktop/bench.h"
#include "desktop/program.h"

#include <string>
#include <string_view>
#include <vector>

namespace norvik::desktop {

/// What an operator does on the way to a form.
class Hand {
 public:
  Hand(Program& program, ScriptedAsker& asker, std::string folder)
      : program_(program), asker_(asker), folder_(std::move(folder)) {}

  front::Session& session() { return program_.session(); }
  front::Opening& opening() { return session().opening; }
  front::FormOBJ& workshop() { return form<front::FormOBJ>("FormOBJ"); }
  template <typename Form>
  Form& form(std::string_view name) {
    return dynamic_cast<Form&>(*session().findForm(name));
  }
  QWidget& window(std::string_view form);

  /// Chooses an entry of the main window's menus.
  void menu(const front::MenuEntry& entry) { action(entry.name()); }
  void action(const std::string& name);
  void click(front::Control& control);
  void enter(front::TextBox& box, const std::string& text);
  /// Chooses the first item that holds a text and clicks it.
  void item(front::ListBox& list, std::string_view text);
  void doubleItem(front::ListBox& list, std::string_view text);
  void load(std::string_view form);
  void open(const std::string& file);
  void run(const std::function<void()>& act);
  /// What the next questions and dialogs are answered.
  void answer(front::Answer answer) { asker_.answers.push_back(answer); }
  void path(const std::string& hostFile);
  /// Writes a file of the drive, the folders above it too.
  void write(const std::string& hostFile, const std::string& bytes) const;
  std::string read(const std::string& hostFile) const;
  /// Begins the installation of a figure that brings a mesh and a picture.
  void stageInstallation();

 private:
  Program& program_;
  ScriptedAsker& asker_;
  std::string folder_;
};

/// What Escape does to what a scene shows: it closes the window, hides the widget of that name, or
/// leaves all as it is because the form says what it does (it stops a drawing, or leaves a row).
inline constexpr std::string_view kCloses = "closes";
inline constexpr std::string_view kStays = "stays";

inline constexpr const char* kFigure =
    "C:\\Poser\\Runtime\\Libraries\\Characters\\Tilda\\tilda.cr2";
inline constexpr const char* kMesh = "C:\\Poser\\Runtime\\Geometries\\Tilda\\tilda.obj";

struct Scene {
  const char* name;
  const char* form;
  const char* file;  ///< what the program is started with
  std::string_view escape;
  void (*open)(Hand& hand);
};

/// The main window's scenes, then those of the other forms.
std::vector<Scene> everyScene();

std::vector<Scene> mainScenes();
std::vector<Scene> formScenes();

}  // namespace norvik::desktop
