#pragma once
// One read at a time.

#include "workshop/workshop.h"

namespace norvik::obj {

/// While it lives no other read begins: the events of a read are serviced on the way.
class Reading {
 public:
  explicit Reading(Workshop& workshop) : workshop_(workshop) { workshop_.reading = true; }
  Reading(const Reading&) = delete;
  Reading& operator=(const Reading&) = delete;
  ~Reading() { workshop_.reading = false; }

 private:
  Workshop& workshop_;
};

}  // namespace norvik::obj
