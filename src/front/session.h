#pragma once
// What a tool is handed: everything it may touch.

#include "front/front_end.h"
#include "front/opening.h"
#include "front/settings.h"
#include "text/disk.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::front {

class Session;

/// Routines that a tool calls by name though they live in a room above it. Each is filled in by the
/// tool that is it, when that tool is wired.
struct Routines {
  /// Fills ListChannels with the channels of the pane's file; takes the path that was opened.
  std::function<void(const std::string& path)> ViewChannels;
  /// Has the manual editor show the file that LabelFileNameForEditor names.
  std::function<void()> OpenInEditor;
};

/// A finished scratch file, and the figure that it was made from. Both are system paths.
struct Result {
  std::string scratch;
  std::string figure;
};

/// A tool gets a reference to it when it is wired, and keeps it: the session outlives every
/// handler.
class Session {
 public:
  Session(FrontEnd& front, text::Disk& disk, Settings& settings, Opening& opening);
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  FrontEnd& front;
  text::Disk& disk;
  Settings& settings;
  Opening& opening;
  Routines routines;
  std::string commandLine;  ///< the program's, as it stands

  /// The finished result that is on offer just now; empty paths while none is.
  const Result& offered() const { return offered_; }

  /// What the operator should know before he agrees to the question that comes next; empty for
  /// nothing.
  const std::string& caution() const { return caution_; }

  /// All forms by name, the main form first.
  void addForm(Form& form) { forms_.push_back(&form); }
  const std::vector<Form*>& forms() const { return forms_; }
  Form* findForm(std::string_view name) const;

  /// Shows a form that is not loaded yet; one that is only comes to the front. An error of its
  /// loading leaves it unloaded; one of what follows its showing leaves it on view.
  void load(Form& form);
  /// The same; returns when the form was unloaded. An error of what follows its showing is told
  /// while the form stands.
  void loadModal(Form& form);
  /// Unloads a form as its close box does. The main form's unloading ends the process.
  void unload(Form& form);

  /// The mouse pointer of a long pass.
  void hourglass(bool on);

  /// A control by the name that it has in the whole program: "NAME" on the main form, "FORM.NAME"
  /// elsewhere.
  std::string nameOf(const Control& control) const;
  /// What an event happens at: a control, or a form.
  template <typename... Args>
  std::string nameOf(const Event<Args...>& event) const {
    if (event.control() != nullptr) return nameOf(*event.control());
    return event.form() != nullptr ? event.form()->name() : std::string{};
  }

  /// Runs a handler. An error of the file layer ends it here and is shown to the operator. The
  /// trigger is the name of what set it off; without one it is of the act that runs already.
  void deliver(std::string_view trigger, const std::function<void()>& handler);
  void deliver(const std::function<void()>& handler) { deliver({}, handler); }

  /// The question of a file's read-only attribute before it is opened; on Yes it is taken away.
  /// Throws FileError for a missing file.
  void offerToClearReadOnly(std::string_view path);

  /// Public routines that no control reaches, by name.
  std::map<std::string, std::function<void()>, std::less<>> callable;

 private:
  void prepare(Form& form);

  friend class ResultOffer;
  friend class Caution;
  std::vector<Form*> forms_;
  Result offered_;
  std::string caution_;
};

/// A tool's word, while it lives, that its result is whole and that the operator is asked whether
/// it may take the figure's place: a front end can show beside the question how the two differ.
///
///     const ResultOffer offer(session, scratch, figure);
///     if (session.front.messageBox("... Save changes?", ...) != Answer::yes) return;
class ResultOffer {
 public:
  ResultOffer(Session& session, std::string_view scratch, std::string_view figure)
      : session_(session) {
    session.offered_ = {std::string{scratch}, std::string{figure}};
  }
  ResultOffer(const ResultOffer&) = delete;
  ResultOffer& operator=(const ResultOffer&) = delete;
  ~ResultOffer() { session_.offered_ = {}; }

 private:
  Session& session_;
};

/// A tool's word, while it lives, that the answer yes to its question does harm as likely as not: a
/// window says so below the question, and a key pressed in haste refuses.
class Caution {
 public:
  Caution(Session& session, std::string_view note) : session_(session) { session.caution_ = note; }
  Caution(const Caution&) = delete;
  Caution& operator=(const Caution&) = delete;
  ~Caution() { session_.caution_.clear(); }

 private:
  Session& session_;
};

}  // namespace norvik::front
