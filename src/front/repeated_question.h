#pragma once
// A question that may come many times in one run of a tool.

#include "front/front_end.h"

#include <string_view>

namespace norvik::front {

/// What a front end is that can give one answer to the whole row of such questions. The tool asks
/// every time all the same.
class RepeatedQuestions {
 public:
  virtual ~RepeatedQuestions() = default;
  virtual void beginRepeats(std::string_view title) = 0;
  virtual void endRepeats() = 0;
};

/// A tool's word, while it lives, that message boxes of this title with OK and Cancel are such a
/// row.
class RepeatedQuestion {
 public:
  RepeatedQuestion(FrontEnd& front, std::string_view title)
      : questions_(dynamic_cast<RepeatedQuestions*>(&front)) {
    if (questions_ != nullptr) questions_->beginRepeats(title);
  }
  RepeatedQuestion(const RepeatedQuestion&) = delete;
  RepeatedQuestion& operator=(const RepeatedQuestion&) = delete;
  ~RepeatedQuestion() {
    if (questions_ != nullptr) questions_->endRepeats();
  }

 private:
  RepeatedQuestions* questions_;
};

}  // namespace norvik::front
