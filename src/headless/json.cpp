#include "headless/json.h"

#include <array>
#include <charconv>

namespace norvik::headless {

namespace {

constexpr unsigned char kFirstPrintable = 0x20;
constexpr unsigned char kDelete = 0x7F;

void appendEscaped(std::string& json, char c) {
  constexpr std::string_view kHex = "0123456789abcdef";
  const auto byte = static_cast<unsigned char>(c);
  switch (c) {
    case '"':
      json += "\\\"";
      return;
    case '\\':
      json += "\\\\";
      return;
    case '\t':
      json += "\\t";
      return;
    case '\n':
      json += "\\n";
      return;
    case '\r':
      json += "\\r";
      return;
    default:
      break;
  }
  if (byte < kFirstPrintable || byte == kDelete) {
    json += "\\u00";
    json += kHex[byte >> 4U];
    json += kHex[byte & 15U];
  } else if (byte > kDelete) {
    // The character of that number, in UTF-8.
    json += static_cast<char>(0xC0U | byte >> 6U);
    json += static_cast<char>(0x80U | (byte & 0x3FU));
  } else {
    json += c;
  }
}

}  // namespace

std::string jsonString(std::string_view bytes) {
  std::string json = "\"";
  for (const char c : bytes) appendEscaped(json, c);
  return json + "\"";
}

std::string jsonNumber(float number) {
  std::array<char, 64> buffer{};
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed);
  return {buffer.data(), result.ptr};
}

JsonObject::JsonObject(std::string_view event) : body_("{\"event\":" + jsonString(event)) {}

JsonObject& JsonObject::raw(std::string_view key, std::string_view json) {
  body_.append(",").append(jsonString(key)).append(":").append(json);
  return *this;
}

JsonObject& JsonObject::text(std::string_view key, std::string_view value) {
  return raw(key, jsonString(value));
}

JsonObject& JsonObject::textOrNull(std::string_view key, const std::string* value) {
  return raw(key, value == nullptr ? "null" : jsonString(*value));
}

JsonObject& JsonObject::number(std::string_view key, long long value) {
  return raw(key, std::to_string(value));
}

JsonObject& JsonObject::boolean(std::string_view key, bool value) {
  return raw(key, value ? "true" : "false");
}

JsonObject& JsonObject::texts(std::string_view key, const std::vector<std::string>& values) {
  std::string json = "[";
  for (const std::string& value : values) {
    if (json.size() > 1) json += ',';
    json += jsonString(value);
  }
  return raw(key, json + "]");
}

}  // namespace norvik::headless
