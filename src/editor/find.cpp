#include "editor/find.h"

#include "editor/caret.h"
#include "editor/load_pane.h"
#include "text/long/long_text_search.h"

#include <optional>
#include <string>
#include <utility>

namespace norvik::editor {

namespace {

using front::Answer;

text::TextSearch searchOf(const FormEditor& form) {
  return {form.ComboFind.text(), {form.CheckWholeWord.value(), form.CheckMatchCase.value()}};
}

void showRow(FormEditor& form) {
  form.LabelFind.show();
  form.CheckWholeWord.show();
  form.CheckMatchCase.show();
  form.ComboFind.show();
  form.LabelReplace.hide();
  form.setFocus(form.ComboFind);
}

void hideRow(FormEditor& form) {
  form.LabelFind.hide();
  form.CheckWholeWord.hide();
  form.CheckMatchCase.hide();
  form.ComboFind.hide();
  form.LabelReplace.hide();
  form.TextReplace.hide();
}

void findNext(FormEditor& form, Side side) {
  front::TextPane& page = form.page(side);
  const text::TextSearch search = searchOf(form);
  const auto hit = search.find(page.content(), page.caret() + 1);
  if (hit) page.setCaret(*hit, search.size());
}

/// Asks at each hit behind the caret's own place. New text is not searched.
void replaceEach(front::Session& session, FormEditor& form, Side side) {
  front::TextPane& page = form.page(side);
  const text::TextSearch search = searchOf(form);
  const std::string with = form.TextReplace.text();
  std::size_t from = page.caret() + 1;
  while (const auto hit = search.find(page.content(), from)) {
    page.setCaret(*hit, search.size());
    const Answer answer = session.front.messageBox("Replace?", "Note", front::kYesNoCancel);
    if (answer == Answer::cancel) return;
    from = *hit + 1;
    if (answer == Answer::yes) {
      page.replace(*hit, search.size(), with);
      notePaneChange(form, side);
      from = page.caret();
    }
  }
}

void replaceAllIn(front::Session& session, FormEditor& form, Side side) {
  front::TextPane& page = form.page(side);
  session.hourglass(true);
  text::Replaced made = text::replaceAll(page.content(), searchOf(form), form.TextReplace.text());
  if (made.hits > 0) {
    page.setContent(std::move(made.text));
    page.setCaret(made.behindLast, 0);
    notePaneChange(form, side);
  }
  session.hourglass(false);
  form.TextReplace.setText({});
  form.TextReplace.hide();
  form.ComboFind.hide();
}

void findFromBox(FormEditor& form) {
  form.ComboFind.add(form.ComboFind.text());
  findNext(form, form.current());
  if (form.TextReplace.visible()) form.setFocus(form.TextReplace);
}

void findAgain(front::Session& session, FormEditor& form, Side side) {
  if (form.TextReplace.visible()) {
    replaceEach(session, form, side);
  } else {
    findNext(form, side);
  }
}

void replaceFromBox(front::Session& session, FormEditor& form) {
  const Side side = form.current();
  if (session.front.messageBox("Replace ALL instances on this page?", "Note!", front::kYesNo) ==
      Answer::yes) {
    replaceAllIn(session, form, side);
  } else {
    replaceEach(session, form, side);
  }
}

}  // namespace

void wireFind(front::Session& session, FormEditor& form) {
  form.PictureFind.released.add([&form](front::Mouse mouse) {
    if (mouse.button != front::MouseButton::left) return;
    if (form.ComboFind.visible()) {
      hideRow(form);
    } else {
      showRow(form);
    }
  });
  form.PictureReplace.released.add([&form](front::Mouse mouse) {
    if (mouse.button != front::MouseButton::left) return;
    showRow(form);
    form.LabelReplace.show();
    form.TextReplace.show();
  });
  form.ComboFind.key.add([&form](const std::string& key) {
    if (key == "Enter") findFromBox(form);
  });
  form.TextReplace.key.add([&session, &form](const std::string& key) {
    if (key == "Enter") replaceFromBox(session, form);
  });
  for (const Side side : {Side::left, Side::right}) {
    form.page(side).key.add([&session, &form, side](const std::string& key) {
      if (isFindAgain(key)) findAgain(session, form, side);
    });
  }
}

}  // namespace norvik::editor
