#pragma once
// One JSON object a line, keys in the order in which they are added.

#include <string>
#include <string_view>
#include <vector>

namespace norvik::headless {

/// A text as a JSON string. A byte above 127 stands as the character of the same number, so that
/// any bytes come out as valid UTF-8 and can be told back.
std::string jsonString(std::string_view bytes);

/// The shortest text that reads back as the number.
std::string jsonNumber(float number);

/// An event on its way to the transcript. Keys are not checked for being new.
class JsonObject {
 public:
  /// Begins with the key "event".
  explicit JsonObject(std::string_view event);

  JsonObject& text(std::string_view key, std::string_view value);
  /// A text, or null.
  JsonObject& textOrNull(std::string_view key, const std::string* value);
  JsonObject& number(std::string_view key, long long value);
  JsonObject& boolean(std::string_view key, bool value);
  JsonObject& texts(std::string_view key, const std::vector<std::string>& values);
  /// A value that is JSON already.
  JsonObject& raw(std::string_view key, std::string_view json);

  std::string line() const { return body_ + "}"; }

 private:
  std::string body_;
};

}  // namespace norvik::headless
