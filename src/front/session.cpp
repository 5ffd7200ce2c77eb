#include "front/session.h"

#include "text/columns.h"
#include "text/history.h"

#include <algorithm>
#include <new>

namespace norvik::front {

Session::Session(FrontEnd& frontEnd, text::Disk& theDisk, Settings& theSettings,
                 Opening& theOpening)
    : front(frontEnd), disk(theDisk), settings(theSettings), opening(theOpening) {
  addForm(theOpening);
}

Form* Session::findForm(std::string_view name) const {
  const auto found = std::find_if(forms_.begin(), forms_.end(), [&](const Form* form) {
    return text::equalIgnoringCase(form->name(), name);
  });
  return found == forms_.end() ? nullptr : *found;
}

/// Brings a form to where it can be shown.
void Session::prepare(Form& form) {
  form.setLoaded(true);
  try {
    form.loading.raise();
  } catch (...) {
    form.setLoaded(false);
    throw;
  }
}

void Session::load(Form& form) {
  if (form.loaded()) {
    front.bringToFront(form);
    return;
  }
  prepare(form);
  front.show(form);
  form.shown.raise();
}

void Session::loadModal(Form& form) {
  if (form.loaded()) return;
  prepare(form);
  front.showModal(form, [this, &form] { deliver([&form] { form.shown.raise(); }); });
}

void Session::unload(Form& form) {
  if (!form.loaded()) return;
  form.unloading.raise();
  // A form that waited for the operator on leaving may have been left meanwhile.
  if (!form.loaded()) return;
  form.setLoaded(false);
  front.unloaded(form);
  if (&form == &opening) front.endProcess();
}

void Session::hourglass(bool on) {
  opening.setPointer(on ? Pointer::hourglass : Pointer::arrow);
  front.setHourglass(opening, on);
}

std::string Session::nameOf(const Control& control) const {
  const bool onMainForm = &control.form() == &opening;
  return onMainForm ? control.name() : control.form().name() + "." + control.name();
}

void Session::deliver(std::string_view trigger, const std::function<void()>& handler) {
  const text::History::Act act(disk.history(), trigger);
  const auto stopped = [this](const text::FileError& error) {
    hourglass(false);
    front.runtimeError({error.number(), disk.inFull(error.path()), error.act()});
  };
  try {
    handler();
  } catch (const text::FileError& error) {
    stopped(error);
  } catch (const std::bad_alloc&) {
    stopped(text::FileError(text::ErrorNumber::outOfMemory));
  } catch (const ToolStopped&) {
    hourglass(false);
  }
}

void Session::offerToClearReadOnly(std::string_view path) {
  if (!disk.isReadOnly(path)) return;
  const Answer answer = front.messageBox(
      "This is a read-only file, probably from a CD.  It cannot be edited.  Would you like to "
      "change "
      "this attribute so it can be edited by Norvik?",
      "Alert!", kYesNo);
  if (answer == Answer::yes) disk.setReadOnly(path, false);
}

}  // namespace norvik::front
