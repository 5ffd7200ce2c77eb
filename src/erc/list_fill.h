#pragma once
// The filling of one of the form's lists, item by item, while the window stays alive.

#include "erc/form_ecm.h"
#include "front/session.h"

#include <string>
#include <string_view>
#include <unordered_set>

namespace norvik::erc {

/// Adds items that are not in a list yet. Events are serviced behind each one, so the operator may
/// leave in the middle; what else is done at the form meanwhile does nothing. The mouse pointer is
/// the hourglass while it lives.
class ListFill {
 public:
  ListFill(front::Session& session, FormECM& form, front::ListBox& list);
  ListFill(const ListFill&) = delete;
  ListFill& operator=(const ListFill&) = delete;
  ~ListFill();

  void add(const std::string& item);

  /// Whether the operator has closed the form: nothing is left to fill.
  bool abandoned() const { return !form_.loaded(); }

 private:
  front::Session& session_;
  FormECM& form_;
  front::ListBox& list_;
  std::unordered_set<std::string> listed_;
};

}  // namespace norvik::erc
