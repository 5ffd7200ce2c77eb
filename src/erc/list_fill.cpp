#include "erc/list_fill.h"

namespace norvik::erc {

ListFill::ListFill(front::Session& session, FormECM& form, front::ListBox& list)
    : session_(session),
      form_(form),
      list_(list),
      listed_(list.items().begin(), list.items().end()) {
  form_.Listing = true;
  session_.hourglass(true);
}

ListFill::~ListFill() {
  form_.Listing = false;
  session_.hourglass(false);
}

void ListFill::add(const std::string& item) {
  if (!listed_.insert(item).second) return;
  list_.add(item);
  session_.front.pumpEvents();
}

}  // namespace norvik::erc
