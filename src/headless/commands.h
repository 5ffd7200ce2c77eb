#pragma once
// The commands of the script language.

#include "headless/operator_acts.h"
#include "headless/script.h"
#include "headless/script_front_end.h"
#include "workbench/workbench.h"

#include <functional>
#include <map>
#include <string>

namespace norvik::headless {

/// Carries out script lines. A line that cannot be carried out is refused: an event says why, and
/// the outcome remembers it.
class Commands {
 public:
  Commands(workbench::Workbench& workbench, ScriptFrontEnd& front, Transcript& transcript,
           Outcome& outcome, text::HostOps& host);

  void run(ScriptLine line);

 private:
  struct Command {
    int mostWords = 0;  ///< kAny of one that takes the rest of its line, or a list
    std::function<void(ScriptLine&)> carryOut;
  };
  static constexpr int kAny = -1;

  void add(const char* name, int mostWords, std::function<void(ScriptLine&)> carryOut);
  void addAnswers();
  void addProgram();
  void addMouse();
  void addLists();
  void addInput();
  void addInner();
  void addDisk();
  void addHistory();
  void addOutput();

  // A control by name. Operators reach only what is on view and enabled, in front of any modal
  // form.
  front::Control& find(const std::string& name);
  front::Control& reach(const std::string& name);
  template <typename Kind>
  Kind& reachAs(const std::string& name, const char* kind);
  void requireInFront(const front::Form& form) const;
  front::Form& loadedForm(const std::string& name);
  front::Form& reachForm(const std::string& name);
  int itemIndex(front::ListBox& list, const std::string& text);
  front::ListBox& selectItem(ScriptLine& line);
  void fail(const ScriptLine& line, const std::string& why);
  void type(ScriptLine& line);
  void checkProperty(ScriptLine& line);
  void savePicture(ScriptLine& line);

  workbench::Workbench& workbench_;
  front::Session& session_;
  ScriptFrontEnd& front_;
  Transcript& transcript_;
  Outcome& outcome_;
  text::HostOps& host_;
  OperatorActs acts_;
  std::map<std::string, Command, std::less<>> commands_;
};

}  // namespace norvik::headless
