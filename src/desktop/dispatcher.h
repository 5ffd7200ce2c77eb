#pragma once
// The way from the window to the tools.

#include "front/session.h"

#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>

namespace norvik::desktop {

/// Hands what the operator does to the tools, one handler at a time. While a handler runs nothing
/// else is delivered, unless the handler itself waits for the operator (Door). After each handler
/// the window is brought in step with the controls.
class Dispatcher {
 public:
  void attach(front::Session& session) { session_ = &session; }
  bool attached() const { return session_ != nullptr; }
  front::Session& session() const { return *session_; }
  void setSync(std::function<void()> sync) { sync_ = std::move(sync); }

  /// Whether what happens now is delivered.
  bool open() const { return open_ && session_ != nullptr; }

  /// What is done when a handler has come to its end, however it ended.
  void setRest(std::function<void()> rest) { rest_ = std::move(rest); }

  /// Runs a handler through the session; false if a running one keeps the door shut. The trigger is
  /// the name of what set it off.
  bool run(std::string_view trigger, const std::function<void()>& handler);
  bool run(const std::function<void()>& handler) { return run({}, handler); }

  template <typename... Args, typename... Values>
  bool raise(const front::Event<Args...>& event, Values&&... values) {
    return run(session_ == nullptr ? std::string{} : session_->nameOf(event),
               [&] { event.raise(values...); });
  }

  /// Brings the window in step with the controls.
  void sync() const {
    if (sync_) sync_();
  }

  /// The handlers that were delivered so far.
  std::uint64_t delivered() const { return delivered_; }

  /// Lets events through while a handler waits for them.
  class Door {
   public:
    explicit Door(Dispatcher& dispatcher) : dispatcher_(dispatcher), before_(dispatcher.open_) {
      dispatcher_.open_ = true;
    }
    Door(const Door&) = delete;
    Door& operator=(const Door&) = delete;
    ~Door() { dispatcher_.open_ = before_; }

   private:
    Dispatcher& dispatcher_;
    bool before_;
  };

 private:
  front::Session* session_ = nullptr;
  std::function<void()> sync_;
  std::function<void()> rest_;
  bool open_ = true;
  std::uint64_t delivered_ = 0;
};

}  // namespace norvik::desktop
