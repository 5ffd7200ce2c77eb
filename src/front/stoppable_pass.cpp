#include "front/stoppable_pass.h"

namespace norvik::front {

namespace {

class RunningPass {
 public:
  explicit RunningPass(PassStopper& stopper) : stopper_(stopper) { stopper_.beginPass(); }
  RunningPass(const RunningPass&) = delete;
  RunningPass& operator=(const RunningPass&) = delete;
  ~RunningPass() { stopper_.endPass(); }

 private:
  PassStopper& stopper_;
};

}  // namespace

void runStoppable(FrontEnd& front, const std::function<void()>& pass) {
  auto* stopper = dynamic_cast<PassStopper*>(&front);
  if (stopper == nullptr) return pass();
  const RunningPass running(*stopper);
  pass();
  // Who said so during the last write is heard too.
  stopper->checkPass();
}

}  // namespace norvik::front
